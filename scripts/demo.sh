#!/usr/bin/env bash
# Runs zebhost on the examples and shows what they did.
set -euo pipefail
build=${1:-build/release}
example=examples/strings_and_matrices.lua
echo "== zebhost $example"
"$build/bin/zebhost" "$example"
echo
echo "== the same script in German (texts from host/resources/loc/de.loc)"
"$build/bin/zebhost" --lang de "$example" | grep -i -E 'localized'
echo
echo "== a stock lua5.1 requiring the library through package.cpath"
lua5.1 -e "package.cpath = '$build/lib/?.so;' .. package.cpath
  local s = require 'zeblua.zebString'
  print('zebString.ToUpper(\"straße\") = ' .. s.ToUpper('straße'))"
echo
echo "== drawing offscreen with zebhost.canvas (examples/drawing.lua)"
png="$(dirname "$build")/examples/drawing.png"
"$build/bin/zebhost" examples/drawing.lua "$png"
echo "open $png to see the drawing"
echo
echo "== a panel of controls from zebcontrols, drawn by the toolkit (examples/controls.lua)"
png="$(dirname "$build")/examples/controls.png"
"$build/bin/zebhost" examples/controls.lua "$png"
echo "open $png to see the panel"
echo
echo "== a view described in XML, loaded and drawn (examples/view.lua, examples/xml/transport.xml)"
png="$(dirname "$build")/examples/view.png"
"$build/bin/zebhost" examples/view.lua "$png"
echo "open $png to see the view"
echo
echo "== a form dialog run modally and filled in by the scripted user (examples/dialog.lua)"
"$build/bin/zebhost" examples/dialog.lua

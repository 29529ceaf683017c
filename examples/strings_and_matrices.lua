-- A first tour: byte-position strings with regular expressions, Unicode case
-- mapping, UTF-16 round trips, localized text, and transform matrices.

local function show(label, ...)
  local parts = {}
  for i = 1, select("#", ...) do parts[#parts + 1] = tostring((select(i, ...))) end
  print(label .. "  ->  " .. table.concat(parts, ", "))
end

print("-- zebString: positions are one-based bytes")
local text = "Grüße aus Köln, 2026"
show("MatchB(text, '[0-9]+')", zebString.MatchB(text, "[0-9]+"))
show("ReplaceB(text, 'ö', 'oe')", zebString.ReplaceB(text, "ö", "oe"))
show("ReplaceB first only, from byte 3", zebString.ReplaceB("a-a-a-a", "a", "b", 3, false))
show("SubstringB(text, -5)", zebString.SubstringB(text, -5))
show("Trim('   padded  ')", "[" .. zebString.Trim("   padded  ") .. "]")
show("Compare('apple', 'apricot')", zebString.Compare("apple", "apricot"))

print("\n-- Unicode case mapping and UTF-16")
show("ToUpper('straße')", zebString.ToUpper("straße"))
show("ToLower('ÇA VA')", zebString.ToLower("ÇA VA"))
local utf16 = zebString.UTF8to16("Köln")
show("#UTF8to16('Köln') in bytes", #utf16)
show("UTF16to8(UTF8to16('Köln'))", zebString.UTF16to8(utf16))

print("\n-- localized text from the resources")
show("localized greeting", zebString.Localize("$$$/zebhost/Greeting=Hello (default)"))
show("localized missing key", zebString.Localize("$$$/zebhost/Missing=Default text"))
show("ReplaceInString", zebString.ReplaceInString("^1 has ^2 items", "cart", "3"))

print("\n-- zeblua.numeric: decompose and invert a 4 x 4 transform")
local m = {
  { 0, 2, 0, 0 },
  { -2, 0, 0, 0 },
  { 0, 0, 2, 0 },
  { 10, 20, 30, 1 },
}
local translation, rotation, scale, shear, perspective = zeblua.numeric.unmatrix(m)
show("translation", unpack(translation))
show("rotation about z (degrees)", math.deg(rotation[3]))
show("scale", unpack(scale))
show("shear", unpack(shear))
show("perspective", unpack(perspective))
local inverse = zeblua.numeric.invertMatrix(m)
for r = 1, 4 do show("inverse row " .. r, unpack(inverse[r])) end

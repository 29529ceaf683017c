-- One drawing and string workload whose pixels and answers are pinned: a golden picture
-- and a text recorded before the draw path and the regular expressions were made faster,
-- so any change of what scripts see shows here. Nested scopes on one Inkwell, kept proxies,
-- a second GetSurface, tables read with and without metamethods, patterns used again.
require "zeblua.inkwell.zebInkwell"
require "zeblua.inkwell.zebSurfaceInterface"

local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewRGBA
local S = zebString
local newNode = zebhost.newNode
local seen = {}
local function note(...)
  local parts = {}
  for i = 1, select("#", ...) do parts[i] = tostring((select(i, ...))) end
  seen[#seen + 1] = table.concat(parts, ",")
end

-- A rectangle whose "width" comes from __index, and a colour whose raw "red" is a numeric
-- string: both read the full way, the first through its metamethod.
local lazyRect = setmetatable({ left = 2, top = 2, height = 6 }, { __index = function(_, key)
  note("index", key)
  return key == "width" and 12 or nil
end })
local stringRed = setmetatable({ red = "1", green = 0.5, blue = 0, alpha = 1 }, {
  __index = function() error("never read: every field is present") end })

local root = newNode("UI_SubView", "root", rect(0, 0, 64, 48))
local kept = {}
for i = 0, 15 do
  local cell = newNode("UI_SubView", "cell" .. i, rect((i % 4) * 16, math.floor(i / 4) * 12, 16, 12), root)
  check(cell:BindZebOperation("uiDraw", function(ink)
    local surface = ink:GetSurface()
    local again = ink:GetSurface()
    surface:PushStateStack()
    surface:PaintRect(rect(1, 1, 14, 10), rgba(i / 15, 0.2, 1 - i / 15, 1))
    if i % 5 == 0 then again:PaintRect(lazyRect, stringRed) end
    if i == 7 then kept.ink, kept.surface, kept.mt = ink, surface, getmetatable(ink) end
    return true
  end))
end

-- A parent whose draw makes a child draw at once: a scope opens inside the parent's, on
-- another Inkwell, and the parent's surface stays live after it.
local parent = newNode("UI_SubView", "parent", rect(0, 36, 64, 12), root)
local child = newNode("UI_SubView", "child", rect(40, 2, 20, 8), parent)
check(child:BindZebOperation("uiDraw", function(ink)
  ink:GetSurface():PaintRect(rect(0, 0, 20, 8), rgba(0, 1, 0, 1))
  return true
end))
check(parent:BindZebOperation("uiDraw", function(ink)
  local surface = ink:GetSurface()
  surface:PaintRect(rect(0, 0, 64, 12), rgba(1, 1, 0, 1))
  child:UI_UpdateNow()
  note("after child", select("#", surface:GetAntiAliasPolicy()))
  note("again", tostring(ink:GetSurface() ~= nil))
  return true
end))

zebhost.clearAssertReports()
local picture = zebhost.draw(root)
local goldenFolder = arg[0]:match("^(.*)/lua/[^/]*$") or "tests"
zebhost.checkImage(picture, goldenFolder .. "/golden/draw_string_equivalence.png", 8)

-- Kept proxies answer nothing and keep their metatable; __tostring and methods stay.
note("kept", select("#", kept.ink:GetSurface()), select("#", kept.surface:PaintRect(rect(0, 0, 1, 1), rgba(0, 0, 0, 1))))
check(getmetatable(kept.ink) == kept.mt, "getmetatable answers the registered table after the scope")
check(tostring(kept.ink):find("^zebInkwell%(") ~= nil, "tostring of an ended proxy")
check(kept.ink.GetSurface == kept.mt.GetSurface, "methods through __index")
note("reports", #zebhost.assertReports() > 0)
collectgarbage()
collectgarbage()

-- Patterns used again, after enough others to push them out of any cache, bad ones
-- raising each time, and patterns that differ only after a zero byte.
local text = "the quick brown fox jumps over the lazy dog"
for round = 1, 2 do
  note("match", S.MatchB(text, "b[a-z]+n"), S.MatchB(text, "o", 14), S.MatchB(text, "^the"))
  note("replace", S.ReplaceB(text, "o", "0"), S.ReplaceB(text, "(\\w+) (\\w+)", "$2 $1", 5, false))
  note("trim", "[" .. S.Trim("  \t" .. text .. " \r\n") .. "]")
  for k = 1, 40 do S.MatchB(text, "x" .. k) end
  for _ = 1, 2 do
    local ok, message = pcall(S.MatchB, text, "(")
    note("bad", ok, (message:gsub("^.-MatchB", "MatchB")):sub(1, 6))
  end
  note("zero", S.MatchB("ab", "b\0x"), S.MatchB("ab", "b\0y"), S.ReplaceB("ab", "a\0z", "c"))
end

local drawn = [[
index,width
index,width
index,width
index,width
after child,1
again,true
kept,0,0
reports,true
]]
local round = [[
match,11,18,1,4
replace,the quick br0wn f0x jumps 0ver the lazy d0g,the brown quick fox jumps over the lazy dog
trim,[the quick brown fox jumps over the lazy dog]
bad,false,MatchB
bad,false,MatchB
zero,2,2,cb
]]
checkEqual(table.concat(seen, "\n") .. "\n", drawn .. round .. round, "answers as before")
print("draw_string_equivalence: ok")

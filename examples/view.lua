-- A view described in XML (examples/xml/transport.xml), loaded with one call, its
-- controls found by id, given their texts and script functions, and drawn as a PNG. The
-- timecode shows milliseconds as hours:minutes:seconds:frames through a formatter and a
-- parser written here; a user then clicks it and types a new position.
-- zebhost examples/view.lua [out.png]   (default build/examples/view.png)
require "zeblua.zebcontrols"
require "zeblua.inkwell.zebInkwell"
require "zeblua.inkwell.zebSurfaceInterface"

local output = arg[1] or "build/examples/view.png"
local rect, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewRGBA
local Surface = zebSurfaceInterface

-- The view is an application resource of type "xml": <folder>/xml/transport.xml.
zebhost.addResourceFolder(arg[0]:match("^(.*)/[^/]*$") or "examples")
local view = zebcontrols.LoadControlsFromXml("transport")
assert(view, "the transport view did not load")
local function find(id) return assert(view:GetDescendentByID(id), "no node " .. id) end

view:BindZebOperation("uiDraw", function(ink)
  ink:GetSurface():PaintRect(rect(0, 0, 320, 120), rgba(0.93, 0.93, 0.91, 1))
  return false                                   -- the children still draw
end)

-- Labels: a static text whose draw is the script's.
local function label(node, text, alignment)
  local frame = node:UI_GetLocalRectF()
  node:BindZebOperation("uiDraw", function(ink)
    ink:GetSurface():DrawString(text, 0, math.floor((frame.height - 14) / 2),
      rgba(0.1, 0.1, 0.12, 1), alignment or Surface.kTextAlignment_Left, 12, frame.width)
    return true
  end)
end
for id, text in pairs({ play = "Play", stop = "Stop" }) do
  local button = find(id)
  local caption = zebcontrols.NewStaticText()
  caption:UI_SetLocalRectF(rect(0, 0, 64, 24))
  button:ChildPushBack(caption)
  label(caption, text, Surface.kTextAlignment_Center)
end
find("loop"):SetLabelText("Loop")
label(find("positionLabel"), "Position")
find("badge"):SetImageName("zeblua_badge")       -- from the image provider: a LuaStaticImage
find("zoom"):SetExtent(1, 8)
find("zoom"):SetNumericValue(3)

-- 25 frames a second: 01:02:03:04 is an hour, two minutes, three seconds and four frames.
local kFrameMs = 40
local timecode = find("timecode")
timecode:SetValueToStringFunction(function(ms)
  local frames = math.floor(ms / kFrameMs)
  local seconds = math.floor(frames / 25)
  return string.format("%02d:%02d:%02d:%02d", math.floor(seconds / 3600),
    math.floor(seconds / 60) % 60, seconds % 60, frames % 25)
end)
timecode:SetStringToValueFunction(function(text)
  local h, m, s, f = text:match("^(%d+):(%d%d):(%d%d):(%d%d)$")
  if not h or tonumber(f) >= 25 then return -1 end  -- -1: no value, the old one stays
  return (((h * 60 + m) * 60 + s) * 25 + f) * kFrameMs
end)
timecode:SetNumericValue(3723160)

-- A user's turn: a click opens the edit in place, the typed text replaces it, Return
-- hands it to the parser.
local at = timecode:UI_LocalToGlobalPointF(zeblua_CreateNewPointF32(10, 10))
zebhost.click(view, at.x, at.y)
zebhost.type("00:10:00:12")
zebhost.sendKey({ keyCode = zebhost.keys.kReturn, character = "\r" })
zebhost.advance(1000)                              -- the closed edit box goes
print(string.format("timecode %s (%d ms)", zebhost.snapshot(timecode, 0).state.text,
  timecode:GetNumericValue()))

zebhost.draw(view, output)
for _, child in ipairs(zebhost.snapshot(view, 1).children) do
  print(string.format("  %-22s %-10s %3d,%3d %3dx%d", child.class, child.id, child.rect.left,
    child.rect.top, child.rect.width, child.rect.height))
end
print("drew the view from XML to " .. output)

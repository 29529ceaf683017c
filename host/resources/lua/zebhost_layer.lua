-- The host's script layer: the global constructors through which native code
-- hands tables to scripts, and the zebhost table of host services.

-- The host's native services are in zebhost before this file runs: now() (virtual
-- milliseconds), quit(), answer(code [, text [, delayMs]]), inputCodes() and
-- canvas(width, height, fn [, pngPath]) (fn(ink) draws offscreen; the PNG is written).
zebhost = zebhost or {}

-- zebhost.mouse (actions), .buttons, .wheelAxis, .swipe, .modifiers (bits of modKey),
-- .keyboard (actions), .keys (virtual key codes), .focus (focus change reasons): the
-- toolkit's numbers, read from its own header, so that a script writes
-- event.action == zebhost.mouse.kDown rather than a magic number.
for group, codes in pairs(zebhost.inputCodes()) do
  zebhost[group] = codes
end

-- Geometry, colour and event tables. Native code reads them by field name and makes them
-- only through the global constructors below, so each table holds exactly the fields the
-- readers ask for. A metatable shared by all tables of a kind adds a printable form and a
-- few methods without adding a field; methods arrive through __index, so no method may
-- bear the name of a field (a missing field must stay missing for the native reader).
--   tostring(rect)     {left=0, top=0, width=10, height=20}
--   rect:right(), rect:bottom()     left + width, top + height
--   tostring(point)    {x=1, y=2}
--   tostring(colour)   {red=1, green=0.5, blue=0, alpha=1}
--   tostring(matrix)   {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}
--   tostring(event)    its fields in constructor order, position as a point
--   event:hasModifier(zebhost.modifiers.kShift)     true if that bit of modKey is set

-- "{name=value, ...}" for the named fields of t, in the given order.
local function fieldsText(t, names)
  local parts = {}
  for i, name in ipairs(names) do
    parts[i] = name .. "=" .. tostring(t[name])
  end
  return "{" .. table.concat(parts, ", ") .. "}"
end

-- A metatable whose __tostring lists the named fields.
local function printedAs(names, methods)
  return {
    __index = methods,
    __tostring = function(t) return fieldsText(t, names) end,
  }
end

local rectMethods = {}
function rectMethods:right() return self.left + self.width end
function rectMethods:bottom() return self.top + self.height end

-- Lua 5.1 has no bit operators: the modifier byte's bits by arithmetic.
local eventMethods = {}
function eventMethods:hasModifier(bit)
  return math.floor(self.modKey / bit) % 2 == 1
end

local rectMeta = printedAs({ "left", "top", "width", "height" }, rectMethods)
local pointMeta = printedAs({ "x", "y" })
local colourMeta = printedAs({ "red", "green", "blue", "alpha" })
local keyboardEventMeta =
  printedAs({ "action", "character", "keyCode", "modKey", "isRepeat" }, eventMethods)
local mouseEventMeta = printedAs({ "action", "button", "clickCount", "position", "modKey",
  "mouseWheelDelta", "mouseWheelAxis" }, eventMethods)
local matrixMeta = {
  __tostring = function(m)
    local rows = {}
    for r, row in ipairs(m) do
      local values = {}
      for c, value in ipairs(row) do values[c] = tostring(value) end
      rows[r] = "{" .. table.concat(values, ", ") .. "}"
    end
    return "{" .. table.concat(rows, ", ") .. "}"
  end,
}

local function newPoint(x, y)
  return setmetatable({ x = x, y = y }, pointMeta)
end

-- Native code passes left, top, width, height; the fields carry the names.
function zeblua_CreateNewRectF32(left, top, width, height)
  return setmetatable({ left = left, top = top, width = width, height = height }, rectMeta)
end

zeblua_CreateNewPointF32 = newPoint

function zeblua_CreateNewRGBA(red, green, blue, alpha)
  return setmetatable({ red = red, green = green, blue = blue, alpha = alpha }, colourMeta)
end

-- Nine numbers, row after row: three row tables, as the native reader walks them.
function zeblua_CreateNewMatrixF32(m00, m01, m02, m10, m11, m12, m20, m21, m22)
  return setmetatable({ { m00, m01, m02 }, { m10, m11, m12 }, { m20, m21, m22 } }, matrixMeta)
end

-- character is the first UTF-16 unit of what the key typed; isRepeat a boolean.
function zeblua_CreateNewZEBUIKeyboardEvent(action, character, keyCode, modKey, isRepeat)
  return setmetatable({ action = action, character = character, keyCode = keyCode,
    modKey = modKey, isRepeat = isRepeat }, keyboardEventMeta)
end

-- The native reader takes the event back from these fields, x and y under position.
function zeblua_CreateNewZEBUIMouseEvent(action, button, clickCount, x, y, modKey,
                                         mouseWheelDelta, mouseWheelAxis)
  return setmetatable({ action = action, button = button, clickCount = clickCount,
    position = newPoint(x, y), modKey = modKey, mouseWheelDelta = mouseWheelDelta,
    mouseWheelAxis = mouseWheelAxis }, mouseEventMeta)
end

-- A 4 x 4 transform matrix from 16 numbers, row 0 first: a table of four rows.
function zeblua_CreateNewTransformMatrix(...)
  local n = select("#", ...)
  assert(n == 16, "zeblua_CreateNewTransformMatrix expects 16 numbers, got " .. n)
  local v = { ... }
  local m = {}
  for r = 0, 3 do
    m[r + 1] = { v[4 * r + 1], v[4 * r + 2], v[4 * r + 3], v[4 * r + 4] }
  end
  return m
end

-- zebhost.newNode(className [, id [, frame [, parent]]]): the native maker, then the id,
-- the frame (a rect) and the parent's ChildPushBack when given, so a test builds its tree
-- one line per node.
do
  local makeNode = zebhost.newNode
  function zebhost.newNode(className, id, frame, parent)
    local node = makeNode(className)
    if id then node:UI_SetNodeID(id) end
    if frame then node:UI_SetLocalRectF(frame) end
    if parent then parent:ChildPushBack(node) end
    return node
  end
end

-- Checks for scripts that run as tests. A failed check raises an error that names the
-- caller's file and line, so zebhost prints it and exits non-zero:
--   zebhost.check(condition [, message])
--   zebhost.checkEqual(actual, expected [, message])
--   zebhost.checkImage(picture, goldenPath [, tolerance])   (zebhost.compareImage)
--   zebhost.errorOf(fn, ...): fn(...) must raise; its error as a string
--   zebhost.checkRaises(text, fn, ...): fn(...) must raise an error holding text (plain)
-- and small readers for them:
--   zebhost.count(...): how many values, nils included
--   zebhost.stateOf(node): the node's snapshot state table
--   zebhost.pixelText(node, x, y): the drawn node's pixel as "r,g,b,a"
--   zebhost.rectText(r): a rect's "left top width height", each with %g
--   zebhost.recorder(separator): a list to append entries to, and a function that answers
--     them joined by separator and empties the list
-- Errors inside callbacks go nowhere (the toolkit drops them), so a check that fails in
-- a callback is also remembered, and the harness call that ran the callback (sendMouse,
-- click, drag, sendKey, type, draw) raises it again when it returns.
local failureInCallback

local function fail(message, level)
  local info = debug.getinfo(level + 1, "Sl")
  local where = info and (info.short_src .. ":" .. info.currentline .. ": ") or ""
  local text = where .. "check failed: " .. message
  failureInCallback = failureInCallback or text
  error(text, 0)
end

function zebhost.check(condition, message)
  if not condition then fail(message or "condition is false", 2) end
  return condition
end

function zebhost.checkEqual(actual, expected, message)
  if actual ~= expected then
    fail(string.format("%s: expected %s, got %s", message or "values differ",
      tostring(expected), tostring(actual)), 2)
  end
end

function zebhost.checkImage(picture, goldenPath, tolerance)
  local same, difference = zebhost.compareImage(picture, goldenPath, tolerance)
  if not same then fail(difference, 2) end
end

-- level: the caller to name when fn does not raise, counted as fail counts it.
local function errorAt(level, fn, ...)
  local ok, why = pcall(fn, ...)
  if ok then fail("expected an error", level + 1) end
  return tostring(why)
end

function zebhost.errorOf(fn, ...)
  local why = errorAt(2, fn, ...) -- not a tail call: the caller's frame must stay
  return why
end

function zebhost.checkRaises(text, fn, ...)
  local why = errorAt(2, fn, ...)
  if not why:find(text, 1, true) then fail("expected '" .. text .. "', got: " .. why, 2) end
  return why
end

function zebhost.count(...) return select("#", ...) end

function zebhost.stateOf(node) return zebhost.snapshot(node, 0).state end

function zebhost.pixelText(node, x, y)
  return table.concat({ zebhost.draw(node):pixel(x, y) }, ",")
end

function zebhost.rectText(r)
  return string.format("%g %g %g %g", r.left, r.top, r.width, r.height)
end

function zebhost.recorder(separator)
  local entries = {}
  return entries, function()
    local text = table.concat(entries, separator)
    for i = #entries, 1, -1 do entries[i] = nil end
    return text
  end
end

for _, name in ipairs({ "sendMouse", "click", "drag", "sendKey", "type", "draw" }) do
  local native = zebhost[name]
  zebhost[name] = function(...)
    failureInCallback = nil
    local result = native(...)
    local failure = failureInCallback
    failureInCallback = nil
    if failure then error(failure, 0) end
    return result
  end
end

-- The host's script layer: the global constructors through which native code
-- hands tables to scripts, and the zebhost table of host services.

-- The host adds its native services to zebhost after this file has run:
-- now() (virtual milliseconds), quit(), answer(code [, text [, delayMs]]).
zebhost = zebhost or {}

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

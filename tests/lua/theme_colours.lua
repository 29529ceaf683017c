-- The theme's colours and fonts by index, application colours from 10000, and theme values.
require "zeblua.zebTheme"
local check, checkEqual, count = zebhost.check, zebhost.checkEqual, zebhost.count

local function rgba(c) return table.concat({ c.red, c.green, c.blue, c.alpha }, " ") end

checkEqual(Theme.Color_TabBackground, 277, "TabBackground")
checkEqual(Theme.Color_StaticTextNormalText, 282, "StaticTextNormalText")
checkEqual(Theme.Color_StaticTextDisableText, 283, "StaticTextDisableText")
checkEqual(Theme.Color_ToolBarWellStartGradient, 295, "ToolBarWellStartGradient")
checkEqual(Theme.Color_ToolBarWellEndGradient, 296, "ToolBarWellEndGradient")
checkEqual(Theme.Color_TextOnDarkBackground, 303, "TextOnDarkBackground")
checkEqual(Theme.Text_Main_Large, 0, "Text_Main_Large")
checkEqual(Theme.Text_Main_Small, 1, "Text_Main_Small")
checkEqual(Theme.Text_Title, 2, "Text_Title")
checkEqual(Theme.kColor_ApplicationDomainStart, 10000, "the application's first colour")

-- The toolkit's colours exist from the start, as the constructor's tables.
local tab = Theme.GetColor(Theme.Color_TabBackground)
checkEqual(getmetatable(tab), getmetatable(zeblua_CreateNewRGBA(0, 0, 0, 1)),
  "made by the script layer's constructor")
checkEqual(rgba(tab), "0.25 0.25 0.28125 1", "the tab background")
check(Theme.HasColor(0) and Theme.HasColor(378), "indices below 379 have defaults")
checkEqual(Theme.HasColor(379), false, "379 has none")
check(rgba(Theme.GetColor(282)) ~= rgba(Theme.GetColor(283)), "normal and disabled text differ")

-- Application colours exist only once set, and read back exactly.
checkEqual(Theme.HasColor(10000), false, "10000 is not set yet")
checkEqual(rgba(Theme.GetColor(10000)), "0 0 0 1", "an unset colour reads as opaque black")
Theme.SetColor(10000, zeblua_CreateNewRGBA(0.125, 0.5, 0.75, 0.25))
checkEqual(Theme.HasColor(10000), true, "set")
checkEqual(rgba(Theme.GetColor(10000)), "0.125 0.5 0.75 0.25", "read back exactly")
Theme.SetColor(5000, { red = 1, green = 0, blue = 0, alpha = 1 })
checkEqual(Theme.HasColor(5000), true, "no range is checked")
Theme.SetColor(Theme.Color_TabBackground, { red = 0, green = 1, blue = 0, alpha = 1 })
checkEqual(rgba(Theme.GetColor(277)), "0 1 0 1", "a toolkit colour can be set too")

-- Fonts: the DejaVu family and sizes by index.
for index = 0, 3 do
  check(Theme.GetFontName(index):find("^DejaVu"), "font " .. index .. ": " .. Theme.GetFontName(index))
end
checkEqual(Theme.GetFontSize(Theme.Text_Main_Large), 13, "large")
checkEqual(Theme.GetFontSize(Theme.Text_Main_Small), 11, "small")
checkEqual(Theme.GetFontSize(Theme.Text_Title), 15, "title")
check(Theme.GetFontSize(Theme.Text_Title) > Theme.GetFontSize(Theme.Text_Main_Large),
  "a title is the largest")

-- Theme values: their own colours, registered by name, released once.
local theme = Theme.NewTheme()
check(tostring(theme):find("^zebTheme%("), tostring(theme))
checkEqual(count(theme:SetThemeColor(10001, { red = 0, green = 0, blue = 1, alpha = 1 })), 0,
  "SetThemeColor answers nothing")
checkEqual(Theme.HasColor(10001), false, "a new theme's colour is not the current theme's")
checkEqual(count(Theme.RegisterTheme(theme, "Dark \xc3\xa9")), 0, "registered")

-- A released value reports and answers nothing.
theme:Release()
zebhost.clearAssertReports()
checkEqual(count(theme:SetThemeColor(10002, { red = 0, green = 0, blue = 0, alpha = 1 })), 0,
  "released: SetThemeColor")
checkEqual(count(Theme.RegisterTheme(theme, "again")), 0, "released: RegisterTheme")
local reports = zebhost.assertReports()
checkEqual(#reports, 2, "one report each")
checkEqual(reports[1].message, "Attempting to use a released Theme", "the report's text")
theme:Release()
getmetatable(theme).__gc(theme)
check(tostring(theme):find("^zebTheme%("), "still printable")

-- Faults.
local faults = {
  { function() Theme.GetColor("x") end, "number expected" },
  { function() Theme.SetColor(1) end, "" },
  { function() Theme.RegisterTheme({}, "x") end, "zeblua.zebTheme expected" },
  { function() Theme.RegisterTheme(Theme.NewTheme()) end, "string expected" },
  { function() Theme.NewTheme().SetThemeColor(5, 1, {}) end, "zeblua.zebTheme expected" },
}
for i, fault in ipairs(faults) do
  local ok, message = pcall(fault[1])
  check(not ok and tostring(message):find(fault[2], 1, true), "fault " .. i .. ": " .. tostring(message))
end

-- Monitors counted from 1 over a configured set of screens, both as methods and from the
-- module's table; addresses opened are recorded, never launched.
require "zeblua.zebMonitorInfo"
require "zeblua.OSLaunchUtils"
local check, checkEqual, count = zebhost.check, zebhost.checkEqual, zebhost.count
local sides = zebhost.rectText
local rect = zeblua_CreateNewRectF32


local info = zebMonitorInfo.NewMonitorInfo()
checkEqual(tostring(info):find("^zebMonitorInfo") , nil, "no __tostring of its own")
checkEqual(info:GetMonitorCount(), 2, "the default machine has two monitors")
checkEqual(sides(info:GetMonitorRect(1)), "0 0 1920 1080", "monitor 1 is the main one")
checkEqual(sides(info:GetMonitorRect(2)), "1920 0 1280 1024", "monitor 2 beside it")
checkEqual(count(info:GetMonitorRect(0)), 0, "0 is out of range")
checkEqual(count(info:GetMonitorRect(info:GetMonitorCount() + 1)), 0, "past the last")
checkEqual(count(info:GetMonitorRect(-1)), 0, "below 0")
checkEqual(sides(info:GetMonitorRect(1.9)), "0 0 1920 1080", "an index is cut to an integer")

-- The same queries from the table.
checkEqual(zebMonitorInfo.GetMonitorCount(info), 2, "from the table")
checkEqual(sides(zebMonitorInfo.GetMonitorRect(info, 2)), "1920 0 1280 1024", "rect from the table")
checkEqual(count(zebMonitorInfo.GetMonitorCount(5)), 0, "no userdata: no value, no error")
checkEqual(count(zebMonitorInfo.GetMonitorCount()), 0, "nothing at all")
local ok, message = pcall(zebMonitorInfo.GetMonitorCount, io.stdout)
check(not ok and message:find("zeblua.zebMonitorInfo expected", 1, true), tostring(message))

-- The monitor that holds most of a rectangle; the nearest when none holds any.
checkEqual(sides(info:GetMonitorRectFromRect(rect(1800, 10, 300, 100))), "1920 0 1280 1024",
  "most of it on monitor 2")
checkEqual(sides(info:GetMonitorRectFromRect(rect(1800, 10, 150, 100))), "0 0 1920 1080",
  "most of it on monitor 1")
checkEqual(sides(info:GetMonitorRectFromRect(rect(5000, 0, 10, 10))), "1920 0 1280 1024",
  "off screen to the right: the nearest")
checkEqual(sides(info:GetMonitorRectFromRect(rect(-900, -900, 10, 10))), "0 0 1920 1080",
  "off screen to the left")

-- A configured machine, read by a new query and an old one alike.
zebhost.setMonitors({ { 0, 0, 800, 600 }, { -1024, 0, 1024, 768 }, { 800, 0, 640, 480 } })
local three = zebMonitorInfo.NewMonitorInfo(true)
checkEqual(three:GetMonitorCount(), 3, "three monitors")
checkEqual(info:GetMonitorCount(), 3, "an older query sees them too")
checkEqual(sides(three:GetMonitorRect(2)), "-1024 0 1024 768", "a monitor left of the main one")
checkEqual(sides(three:GetMonitorRectFromRect(rect(-20, 5, 10, 10))), "-1024 0 1024 768",
  "wholly on monitor 2")
zebhost.setMonitors({})
checkEqual(three:GetMonitorCount(), 0, "a machine without screens")
checkEqual(count(three:GetMonitorRect(1)), 0, "has no monitor 1")
zebhost.setMonitors()
checkEqual(three:GetMonitorCount(), 2, "the default again")

-- A collected proxy answers nothing.
local dead = zebMonitorInfo.NewMonitorInfo()
getmetatable(dead).__gc(dead)
checkEqual(count(dead:GetMonitorCount()), 0, "after __gc: no value")
getmetatable(dead).__gc(dead)
checkEqual(count(dead:GetMonitorRect(1)), 0, "a second __gc did nothing")

-- URLs: recorded in order; a text that forms no URL opens nothing; nothing is answered.
checkEqual(count(OSLaunchUtils.OpenURLInDefaultBrowser("https://example.org/a?b=c")), 0,
  "no result")
OSLaunchUtils.OpenURLInDefaultBrowser("not a url")
OSLaunchUtils.OpenURLInDefaultBrowser("")
OSLaunchUtils.OpenURLInDefaultBrowser("mailto:someone@example.org")
OSLaunchUtils.OpenURLInDefaultBrowser("http://cut\0here")
local opened = zebhost.openedURLs()
checkEqual(#opened, 3, "three addresses opened: " .. table.concat(opened, ", "))
checkEqual(opened[1], "https://example.org/a?b=c", "the first")
checkEqual(opened[2], "mailto:someone@example.org", "any scheme")
checkEqual(opened[3], "http://cut", "cut at the zero byte")
ok, message = pcall(OSLaunchUtils.OpenURLInDefaultBrowser)
check(not ok and message:find("string expected", 1, true), tostring(message))

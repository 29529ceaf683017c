-- The clipboard through the three data transfer modules: text and custom types round
-- trip, missing types, files and folders, released proxies and the fault rows.
local check, checkEqual = zebhost.check, zebhost.checkEqual

require "zeblua.datatransfer.OSDataTransfer"
require "zeblua.datatransfer.OSReceiveData"
require "zeblua.datatransfer.OSSendData"

-- The constants: bits, with no 2, and two distinct built-in type names.
checkEqual(OSSendData.DropEffectNone, 0, "none")
checkEqual(OSSendData.DropEffectCopy + OSSendData.DropEffectLink, 9, "effects are bits")
checkEqual(OSSendData.DropEffectMove, 4, "move is 4: there is no effect 2")
check(type(OSSendData.DropFilesType) == "string" and type(OSSendData.DropUnicodeTextType) == "string",
  "type names are strings")
check(OSSendData.DropFilesType ~= OSSendData.DropUnicodeTextType, "two distinct type names")

-- Text with non-ASCII characters, and a custom type, round trip.
OSDataTransfer.RegisterCustomDataType("org.example.clip")
local text = "Grüße, 東京 — ünïcødé 🎵"
local send = OSSendData.NewClipboardSendData()
check(tostring(send):match("^OSSendData%(0x%x+%)$"), tostring(send))
send:PutText(text)
send:PutAsString("org.example.clip", "custom ✓ payload")
checkEqual(zebhost.clipboard().types[1], nil, "nothing leaves the send data before it is put")
send:PutOnClipboard()

local board = zebhost.clipboard()
checkEqual(board[OSSendData.DropUnicodeTextType], text, "the store holds the text as UTF-8")
checkEqual(board["org.example.clip"], "custom ✓ payload", "and the custom type")

local receive = OSReceiveData.NewClipboardReceiveData()
check(tostring(receive):match("^OSReceiveData%(0x%x+%)$"), tostring(receive))
checkEqual(receive:GetAsText(), text, "GetAsText")
checkEqual(receive:GetAsString(OSSendData.DropUnicodeTextType), text, "GetAsString of the text type")
checkEqual(receive:GetAsString("org.example.clip"), "custom ✓ payload", "a custom type")
checkEqual(receive:DataAvailable("org.example.clip"), true, "the custom type is available")

-- A missing type answers "" and is not available; an unregistered one neither.
checkEqual(receive:GetAsString("org.example.missing"), "", "a missing type gives the empty string")
checkEqual(receive:DataAvailable("org.example.missing"), false, "and is not available")
checkEqual(receive:DataAvailable(OSSendData.DropFilesType), false, "no files were put")
zebhost.clearAssertReports()
local unregistered = OSSendData.NewClipboardSendData()
unregistered:PutAsString("org.example.never-registered", "x")
unregistered:PutOnClipboard()
checkEqual(#zebhost.assertReports(), 1, "putting an unregistered type is reported")
zebhost.clearAssertReports()
checkEqual(receive:DataAvailable("org.example.never-registered"), false, "and is not put")
unregistered:Release()

-- Receive data reads the clipboard as it is: the receive object above sees the new
-- publication, which replaced everything.
checkEqual(receive:GetAsText(), "", "publishing replaced the old text")
checkEqual(receive:DataAvailable("org.example.clip"), false, "and the old custom type")

-- Texts and type names end at their first zero byte.
OSDataTransfer.RegisterCustomDataType("org.example.cut\0ignored")
local cut = OSSendData.NewClipboardSendData()
cut:PutText("before\0after")
cut:PutAsString("org.example.cut\0other", "kept\0dropped")
cut:PutOnClipboard()
checkEqual(receive:GetAsText(), "before", "the text ends at its zero")
checkEqual(receive:GetAsString("org.example.cut"), "kept", "the type name ends at its zero")
checkEqual(receive:DataAvailable("org.example.cut\0anything"), true, "on reading too")

-- Files and folders: two tables, files first; an existing folder is a folder.
local folder = os.tmpname()
os.remove(folder)
check(os.execute("mkdir '" .. folder .. "'") == 0, "made a folder")
local files = OSSendData.NewClipboardSendData()
files:PutAsString(OSSendData.DropFilesType,
  "/no/such/file.wav\n" .. folder .. "\n/another/take.aif")
files:PutOnClipboard()
local fileList, folderList = receive:GetAsFiles()
checkEqual(#fileList, 2, "two files")
checkEqual(fileList[1], "/no/such/file.wav", "files in their order")
checkEqual(fileList[2], "/another/take.aif", "the second file")
checkEqual(#folderList, 1, "one folder")
checkEqual(folderList[1], folder, "the folder")
os.execute("rmdir '" .. folder .. "'")
zebhost.setClipboard({})
checkEqual(select("#", receive:GetAsFiles()), 2, "two tables also when nothing is there")
local noFiles, noFolders = receive:GetAsFiles()
checkEqual(#noFiles + #noFolders, 0, "both empty")

-- The harness sets the clipboard, and a receive proxy reads it.
zebhost.setClipboard({ [OSSendData.DropUnicodeTextType] = "from the harness" })
checkEqual(OSReceiveData.NewClipboardReceiveData():GetAsText(), "from the harness", "harness text")
local ok, message = pcall(zebhost.setClipboard, { [1] = "x" })
check(not ok and message:find("must be strings", 1, true), tostring(message))

-- A released send object can be released again and used without a crash; every method
-- answers nothing and reads none of its arguments.
local released = OSSendData.NewClipboardSendData()
released:Release()
released:Release()
checkEqual(select("#", released:PutText("x")), 0, "PutText after Release")
checkEqual(select("#", released:PutText(5, 6, 7)), 0, "even with wrong arguments")
checkEqual(select("#", released:PutAsString()), 0, "PutAsString")
checkEqual(select("#", released:DoDragAndDrop()), 0, "DoDragAndDrop")
checkEqual(select("#", released:PutOnClipboard()), 0, "PutOnClipboard")
checkEqual(tostring(released), "OSSendData((nil))", "tostring shows the null pointer")
released.__gc(released)
collectgarbage()

-- Fault rows: a wrong first argument is Lua's bad-argument error naming the metatable;
-- wrong later arguments raise only on a live proxy.
local live = OSSendData.NewClipboardSendData()
local reader = OSReceiveData.NewClipboardReceiveData()
local sendMethods, receiveMethods = getmetatable(live), getmetatable(reader)
local faults = {
  { function() live:PutText({}) end, "bad argument #1 to 'PutText' (string expected, got table)" },
  { function() live:PutAsString("t") end,
    "bad argument #2 to 'PutAsString' (string expected, got no value)" },
  { function() live:DoDragAndDrop("copy") end,
    "bad argument #1 to 'DoDragAndDrop' (number expected, got string)" },
  { function() reader:DataAvailable() end,
    "bad argument #1 to 'DataAvailable' (string expected, got no value)" },
  { function() reader:GetAsString({}) end,
    "bad argument #1 to 'GetAsString' (string expected, got table)" },
  { function() sendMethods.PutText(reader, "x") end,
    "bad argument #1 to 'PutText' (zeblua.datatransfer.OSSendData expected, got userdata)" },
  { function() receiveMethods.GetAsText(live) end,
    "bad argument #1 to 'GetAsText' (zeblua.datatransfer.OSReceiveData expected, got userdata)" },
  { function() receiveMethods.GetAsFiles({}) end,
    "bad argument #1 to 'GetAsFiles' (zeblua.datatransfer.OSReceiveData expected, got table)" },
  { function() sendMethods.Release(5) end,
    "bad argument #1 to 'Release' (zeblua.datatransfer.OSSendData expected, got number)" },
  { function() receiveMethods.__tostring(live) end, "zeblua.datatransfer.OSReceiveData expected" },
  { function() OSDataTransfer.RegisterCustomDataType({}) end,
    "bad argument #1 to 'RegisterCustomDataType' (string expected, got table)" },
}
for index, row in ipairs(faults) do
  local ok, message = pcall(row[1])
  check(not ok and message:find(row[2], 1, true), "fault row " .. index .. ": " .. tostring(message))
end
live:Release()

OSDataTransfer.SetDefaultCursorSupport(false)
OSDataTransfer.SetDefaultCursorSupport(nil)
OSDataTransfer.SetDefaultCursorSupport(1)
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("datatransfer_clipboard: ok")

// OSReceiveData: the receive data proxy, its owner flag and its readers.
#include "zeblua/datatransfer/LuaOSReceiveData.h"

#include <list>
#include <string>

#include <lua.hpp>

#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaResultString.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/datatransfer/OS_ReceiveData.h"

namespace zeblua {
namespace datatransfer {

namespace {

constexpr char kReceiveClass[] = "OSReceiveData";
constexpr char kReceiveMetaTable[] = "zeblua.datatransfer.OSReceiveData";

using zebui::datatransfer::OS_ReceiveDataBase;

struct ReceiveProxy {
    using Object = OS_ReceiveDataBase;
    static constexpr const char* kMetatableName = kReceiveMetaTable;
    static constexpr const char* kDisplayName = kReceiveClass;
};

// The data of the proxy at 1, or null for an empty proxy: every reader then answers no
// value and reads none of its other arguments.
OS_ReceiveDataBase* liveData(lua_State* L) {
    return zeblua_checkOSReceiveData(L, 1)->object;
}

// Pushes the zero-separated paths of joined as a table from 1 up; count entries.
void pushPathTable(lua_State* L, const std::string& joined, int count) {
    lua_createtable(L, count, 0);
    const char* path = joined.c_str();
    for (int index = 1; index <= count; ++index) {
        lua_pushstring(L, path);
        lua_rawseti(L, -2, index);
        path += std::char_traits<char>::length(path) + 1;
    }
}

// -- proxy = OSReceiveData.NewClipboardReceiveData()
int rdNewClipboardReceiveData(lua_State* L) {
    OSReceiveDataProxy* proxy = utility::PushOwnedPointerProxy<OS_ReceiveDataBase>(
        L, nullptr, true, kReceiveMetaTable, luaopen_zeblua_datatransfer_OSReceiveData);
    return utility::RunNative(L, "NewClipboardReceiveData", [&] {
        proxy->object = zebui::datatransfer::NewClipboardReceiveData().release();
        return 1;
    });
}

// -- text = proxy:__tostring()
// Shows the data pointer, null for an empty proxy.
int rdToString(lua_State* L) {
    return utility::PushProxyString(L, ReceiveProxy::kDisplayName,
                                    zeblua_checkOSReceiveData(L, 1)->object);
}

// -- available = proxy:DataAvailable(type)
int rdDataAvailable(lua_State* L) {
    OS_ReceiveDataBase* data = liveData(L);
    if (!data) return 0;
    const char* type = luaL_checklstring(L, 2, nullptr);
    const bool available = utility::RunNative(
        L, "DataAvailable", [&] { return data->DataAvailable(zebcore::utility::UTF8to16(type)); });
    lua_pushboolean(L, available);
    return 1;
}

// -- text = proxy:GetAsString(type)
// A missing type gives "": the native answer is not looked at. The text is pushed as a
// C string, so it ends at a zero character.
int rdGetAsString(lua_State* L) {
    OS_ReceiveDataBase* data = liveData(L);
    if (!data) return 0;
    const char* type = luaL_checklstring(L, 2, nullptr);
    std::string* out = utility::PushResultString(L);
    utility::RunNative(L, "GetAsString", [&] {
        zebcore::UTF16String text;
        data->GetAsString(zebcore::utility::UTF8to16(type), text);
        *out = zebcore::utility::UTF16to8(text);
        return 0;
    });
    lua_pushstring(L, out->c_str());
    return 1;
}

// -- text = proxy:GetAsText()
int rdGetAsText(lua_State* L) {
    OS_ReceiveDataBase* data = liveData(L);
    if (!data) return 0;
    std::string* out = utility::PushResultString(L);
    utility::RunNative(L, "GetAsText", [&] {
        zebcore::UTF16String text;
        data->GetAsText(text);
        *out = zebcore::utility::UTF16to8(text);
        return 0;
    });
    lua_pushstring(L, out->c_str());
    return 1;
}

// -- files, folders = proxy:GetAsFiles()
// Always two tables, files first, each in the data's order. The paths are gathered into
// strings Lua owns, so building the tables can run out of memory without a C++ frame.
int rdGetAsFiles(lua_State* L) {
    OS_ReceiveDataBase* data = liveData(L);
    if (!data) return 0;
    std::string* filePaths = utility::PushResultString(L);
    std::string* folderPaths = utility::PushResultString(L);
    int fileCount = 0;
    int folderCount = 0;
    utility::RunNative(L, "GetAsFiles", [&] {
        std::list<zebcore::filesupport::File> files;
        std::list<zebcore::filesupport::Dir> folders;
        data->GetAsFiles(files, folders);
        for (const auto& file : files) {
            *filePaths += zebcore::utility::UTF16to8(file.FullPath());
            filePaths->push_back('\0');
            ++fileCount;
        }
        for (const auto& folder : folders) {
            *folderPaths += zebcore::utility::UTF16to8(folder.FullPath());
            folderPaths->push_back('\0');
            ++folderCount;
        }
        return 0;
    });
    pushPathTable(L, *filePaths, fileCount);
    pushPathTable(L, *folderPaths, folderCount);
    return 2;
}

const luaL_Reg kReceiveFunctions[] = {
    {"NewClipboardReceiveData", rdNewClipboardReceiveData},
    {nullptr, nullptr},
};

const luaL_Reg kReceiveMethods[] = {
    {"__gc", utility::DeleteIfOwnedGC<ReceiveProxy>},
    {"__tostring", rdToString},
    {"DataAvailable", rdDataAvailable},
    {"GetAsString", rdGetAsString},
    {"GetAsText", rdGetAsText},
    {"GetAsFiles", rdGetAsFiles},
    {nullptr, nullptr},
};

}  // namespace

const char* const kZebLuaOSReceiveDataClassName = kReceiveClass;
const char* const kZebLuaOSReceiveDataMetaTableName = kReceiveMetaTable;

int PushReceiveDataToLua(lua_State* L, OS_ReceiveDataBase* data, OSReceiveDataProxy** outProxy) {
    OSReceiveDataProxy* proxy = utility::PushOwnedPointerProxy(
        L, data, true, kReceiveMetaTable, luaopen_zeblua_datatransfer_OSReceiveData);
    if (outProxy) *outProxy = proxy;
    return 1;
}

void ReleaseReceiveData(OSReceiveDataProxy* proxy) {
    if (proxy) proxy->object = nullptr;
}

OSReceiveDataProxy* zeblua_checkOSReceiveData(lua_State* L, int index) {
    return utility::CheckOwnedPointer<OS_ReceiveDataBase>(L, index, kReceiveMetaTable);
}

}  // namespace datatransfer
}  // namespace zeblua

extern "C" int luaopen_zeblua_datatransfer_OSReceiveData(lua_State* L) {
    using namespace zeblua::datatransfer;
    zeblua::utility::RegisterClassModule(L, kReceiveMetaTable, kReceiveMethods, kReceiveClass,
                                         kReceiveFunctions);
    return 1;
}

// OSSendData: the send proxy, its drag and its clipboard publication.
#include "zeblua/datatransfer/LuaOSSendData.h"

#include <string>

#include <lua.hpp>

#include "os/CurrentEvent.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/datatransfer/DataTypes.h"
#include "zebui/datatransfer/OS_SendData.h"

namespace zeblua {
namespace datatransfer {

namespace {

constexpr char kSendClass[] = "OSSendData";
constexpr char kSendMetaTable[] = "zeblua.datatransfer.OSSendData";

using zebui::datatransfer::OS_SendData;

struct SendProxy {
    using Object = OS_SendData;
    static constexpr const char* kMetatableName = kSendMetaTable;
    static constexpr const char* kDisplayName = kSendClass;
};

// The send object of the proxy at 1, or null once released: every method then answers
// no value and reads none of its other arguments.
OS_SendData* liveSendData(lua_State* L) {
    return *zeblua_checkOSSendData(L, 1);
}

// UTF-16 of a script's text up to its first zero byte.
zebcore::UTF16String textUpToZero(const char* text) {
    return zebcore::utility::UTF8to16(text);
}

// The UTF-8 names of the built-in types, made once: a constant is pushed from a buffer no
// frame owns.
const char* typeName(const char16_t* type) {
    static const std::string files = zebcore::utility::UTF16to8(zebui::datatransfer::kFilesType);
    static const std::string text =
        zebcore::utility::UTF16to8(zebui::datatransfer::kUnicodeTextType);
    return type == zebui::datatransfer::kFilesType ? files.c_str() : text.c_str();
}

// -- proxy = OSSendData.NewSendData()
// The block exists before the object, so a memory error leaks nothing; the drag it may
// start belongs to the native event current now.
int sdNewSendData(lua_State* L) {
    OS_SendData** block = utility::PushPointerProxy<OS_SendData>(
        L, nullptr, kSendMetaTable, luaopen_zeblua_datatransfer_OSSendData);
    return utility::RunNative(L, "NewSendData", [&] {
        *block = new OS_SendData(zebui::ui::OS_Event(os::GetCurrentEvent()));
        return 1;
    });
}

// -- proxy = OSSendData.NewClipboardSendData()
int sdNewClipboardSendData(lua_State* L) {
    OS_SendData** block = utility::PushPointerProxy<OS_SendData>(
        L, nullptr, kSendMetaTable, luaopen_zeblua_datatransfer_OSSendData);
    return utility::RunNative(L, "NewClipboardSendData", [&] {
        *block = zebui::datatransfer::NewClipboardSendData().release();
        return 1;
    });
}

// -- proxy:Release() and __gc
// A send object whose drag is running (a drop callback may release it) goes when that
// drag ends, not under it.
int sdRelease(lua_State* L) {
    if (utility::IsCopiedFinalizer(L, kSendMetaTable)) return 0;
    OS_SendData** block = zeblua_checkOSSendData(L, 1);
    OS_SendData* data = *block;
    *block = nullptr;
    OS_SendData::Dispose(data);
    return 0;
}

// -- proxy:PutAsString(type, text)
int sdPutAsString(lua_State* L) {
    OS_SendData* data = liveSendData(L);
    if (!data) return 0;
    const char* type = luaL_checklstring(L, 2, nullptr);
    const char* text = luaL_checklstring(L, 3, nullptr);
    return utility::RunNative(L, "PutAsString", [&] {
        data->PutAsString(textUpToZero(type), textUpToZero(text));
        return 0;
    });
}

// -- proxy:PutText(text)
int sdPutText(lua_State* L) {
    OS_SendData* data = liveSendData(L);
    if (!data) return 0;
    const char* text = luaL_checklstring(L, 2, nullptr);
    return utility::RunNative(L, "PutText", [&] {
        data->PutText(textUpToZero(text));
        return 0;
    });
}

// -- effect = proxy:DoDragAndDrop(allowedEffects)
// The drag's loop runs script callbacks before it returns; the object outlives them (see
// Release) and the answer is read from a local.
int sdDoDragAndDrop(lua_State* L) {
    OS_SendData* data = liveSendData(L);
    if (!data) return 0;
    const int allowed = static_cast<int>(luaL_checkinteger(L, 2));
    int effect = zebui::datatransfer::kDropEffectNone;
    utility::RunNative(L, "DoDragAndDrop", [&] {
        data->DoDragAndDrop(allowed, &effect);
        return 0;
    });
    lua_pushinteger(L, effect);
    return 1;
}

// -- proxy:PutOnClipboard()
int sdPutOnClipboard(lua_State* L) {
    OS_SendData* data = liveSendData(L);
    if (!data) return 0;
    return utility::RunNative(L, "PutOnClipboard", [&] {
        data->PutOnClipboard();
        return 0;
    });
}

const luaL_Reg kSendFunctions[] = {
    {"NewSendData", sdNewSendData},
    {"NewClipboardSendData", sdNewClipboardSendData},
    {nullptr, nullptr},
};

const luaL_Reg kSendMethods[] = {
    {"__gc", sdRelease},
    {"__tostring", utility::HeldObject2string<SendProxy>},
    {"Release", sdRelease},
    {"PutAsString", sdPutAsString},
    {"PutText", sdPutText},
    {"DoDragAndDrop", sdDoDragAndDrop},
    {"PutOnClipboard", sdPutOnClipboard},
    {nullptr, nullptr},
};

}  // namespace

const char* const kZebLuaOSSendDataClassName = kSendClass;
const char* const kZebLuaOSSendDataMetaTableName = kSendMetaTable;

OS_SendData** zeblua_checkOSSendData(lua_State* L, int index) {
    return utility::CheckPointerBlock<OS_SendData>(L, index, kSendMetaTable);
}

}  // namespace datatransfer
}  // namespace zeblua

extern "C" int luaopen_zeblua_datatransfer_OSSendData(lua_State* L) {
    using namespace zeblua::datatransfer;
    using zeblua::utility::SetIntegerConstant;
    zeblua::utility::RegisterClassModule(L, kSendMetaTable, kSendMethods, kSendClass,
                                         kSendFunctions);
    SetIntegerConstant(L, "DropEffectNone", zebui::datatransfer::kDropEffectNone);
    SetIntegerConstant(L, "DropEffectCopy", zebui::datatransfer::kDropEffectCopy);
    SetIntegerConstant(L, "DropEffectMove", zebui::datatransfer::kDropEffectMove);
    SetIntegerConstant(L, "DropEffectLink", zebui::datatransfer::kDropEffectLink);
    zeblua::utility::SetStringConstant(L, "DropFilesType",
                                       typeName(zebui::datatransfer::kFilesType));
    zeblua::utility::SetStringConstant(L, "DropUnicodeTextType",
                                       typeName(zebui::datatransfer::kUnicodeTextType));
    return 1;
}

// ImageInterface: images that native code hands to scripts, such as a surface's contents.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebui/inkwell/ImageInterface.h"

struct lua_State;

namespace zeblua {
namespace inkwell {

extern const char* const kZebLuaImageClassName;      // "ImageInterface"
extern const char* const kZebLuaImageMetaTableName;  // "zeblua.zebImageInterface"

// Pushes an image proxy that holds one reference of its own on image; returns 1.
int newProxyFromImage(lua_State* L, boost::intrusive_ptr<zebui::inkwell::ImageInterface> image);

// The payload of the image proxy at index: the image, null once released.
zebui::inkwell::ImageInterface** zeblua_checkImage(lua_State* L, int index);

// Registers the metatable and the empty global table ImageInterface; returns 1.
int luaopen_zebImageInterface(lua_State* L);

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_zebImageInterface(lua_State* L);

// The names under which a script binds a node's operations.
#pragma once

namespace zeblua {
namespace ui {

constexpr const char* kUiSizeChanged = "uiSizeChanged";
constexpr const char* kUiPreMouseEvent = "uiPreMouseEvent";
constexpr const char* kUiMouseEvent = "uiMouseEvent";
constexpr const char* kUiKeyboardEvent = "uiKeyboardEvent";
constexpr const char* kUiDraw = "uiDraw";
constexpr const char* kUiDoCursor = "uiDoCursor";
constexpr const char* kUiFocusChange = "uiFocusChange";

}  // namespace ui
}  // namespace zeblua

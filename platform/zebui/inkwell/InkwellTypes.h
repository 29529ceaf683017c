// The numeric vocabulary of drawing: anti-aliasing, text placement and line styles.
#pragma once

namespace zebui {
namespace inkwell {

// Fixed underlying types so that any integer a script passes is a valid value to test.
enum AntiAliasPolicy : int {
    kAntiAliasPolicy_None = 0,
    kAntiAliasPolicy_Med = 1,
    kAntiAliasPolicy_High = 2,
};

enum TextAlignment : int {
    kTextAlignment_Left = 0,
    kTextAlignment_Center = 1,
    kTextAlignment_Right = 2,
    kTextAlignment_Default = kTextAlignment_Left,
};

enum TextTruncation : int {
    kTextTruncation_None = 0,
    kTextTruncation_End = 1,
    kTextTruncation_EndEllipsis = 2,
    kTextTruncation_PathEllipsis = 3,
};

enum LineJoinType : int {
    kLineJoinType_Miter = 0,
    kLineJoinType_Bevel = 1,
    kLineJoinType_Round = 2,
    kLineJoinType_Default = kLineJoinType_Miter,
};

enum LineCapType : int {
    kLineCapType_Flat = 0,
    kLineCapType_Round = 1,
    kLineCapType_Square = 2,
    kLineCapType_Default = kLineCapType_Flat,
};

}  // namespace inkwell
}  // namespace zebui

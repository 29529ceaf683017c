// Text forms of drawing arguments for the surfaces' call logs.
#include "zebui/inkwell/cairo/CallLogFormat.h"

#include <cstdio>

namespace zebui {
namespace inkwell {

std::string FormatNumber(float value) {
    char number[32];
    std::snprintf(number, sizeof number, "%g", static_cast<double>(value));
    return number;
}

std::string FormatNumbers(const float* values, int count) {
    std::string text = "(";
    for (int i = 0; i < count; ++i) {
        if (i > 0) text += ',';
        text += FormatNumber(values[i]);
    }
    return text + ")";
}

std::string FormatNumbers(std::initializer_list<float> values) {
    return FormatNumbers(values.begin(), static_cast<int>(values.size()));
}

std::string FormatColour(const ColorRGBA& colour) {
    return FormatNumbers({colour.red, colour.green, colour.blue, colour.alpha});
}

std::string FormatPoint(const zebcore::geom::PointT<float>& point) {
    return FormatNumbers({point.x, point.y});
}

std::string FormatRect(const zebcore::geom::RectT<float>& rect) {
    return FormatNumbers({rect.left, rect.top, rect.width, rect.height});
}

std::string FormatRect(const zebcore::geom::RectT<int>& rect) {
    return FormatRect(zebcore::geom::RectT<float>(
        static_cast<float>(rect.left), static_cast<float>(rect.top), static_cast<float>(rect.width),
        static_cast<float>(rect.height)));
}

std::string FormatBool(bool value) {
    return value ? "true" : "false";
}

std::string FormatText(const zebcore::UTF16String& text) {
    return "\"" + zebcore::utility::UTF16to8(text) + "\"";
}

}  // namespace inkwell
}  // namespace zebui

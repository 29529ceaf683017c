// Text forms of drawing arguments for the surfaces' call logs.
#pragma once

#include <initializer_list>
#include <string>

#include "zebcore/geom/Geometry.h"
#include "zebcore/utility/Strings.h"
#include "zebui/inkwell/ColorRGBA.h"

namespace zebui {
namespace inkwell {

// "(1,0.5,-2)": numbers in "%g" form, so that logs read like the script's numbers.
std::string FormatNumber(float value);
std::string FormatNumbers(const float* values, int count);
std::string FormatNumbers(std::initializer_list<float> values);

std::string FormatColour(const ColorRGBA& colour);
std::string FormatPoint(const zebcore::geom::PointT<float>& point);
std::string FormatRect(const zebcore::geom::RectT<float>& rect);
std::string FormatRect(const zebcore::geom::RectT<int>& rect);
std::string FormatBool(bool value);
// UTF-8 between double quotes.
std::string FormatText(const zebcore::UTF16String& text);

}  // namespace inkwell
}  // namespace zebui

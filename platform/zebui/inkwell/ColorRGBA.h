// The toolkit's colour: four floats, each meant to lie in 0..1 (not checked).
#pragma once

namespace zebui {
namespace inkwell {

struct ColorRGBA {
    float red = 0.0f;
    float green = 0.0f;
    float blue = 0.0f;
    float alpha = 1.0f;

    ColorRGBA() = default;
    ColorRGBA(float r, float g, float b, float a = 1.0f) : red(r), green(g), blue(b), alpha(a) {}
};

inline bool operator==(const ColorRGBA& a, const ColorRGBA& b) {
    return a.red == b.red && a.green == b.green && a.blue == b.blue && a.alpha == b.alpha;
}
inline bool operator!=(const ColorRGBA& a, const ColorRGBA& b) {
    return !(a == b);
}

}  // namespace inkwell
}  // namespace zebui

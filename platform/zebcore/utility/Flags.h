// A set of bit flags of a fixed width, as the toolkit passes modifiers and options.
#pragma once

namespace zebcore {
namespace utility {

// Converts from its integer type implicitly, so that "no flags" can be written as 0.
template <class T> class Flags {
public:
    constexpr Flags(T value = T()) : mValue(value) {}

    constexpr T GetValue() const { return mValue; }
    // True when every bit of mask is set.
    constexpr bool IsSet(T mask) const { return (mValue & mask) == mask; }
    constexpr bool IsAnySet(T mask) const { return (mValue & mask) != 0; }
    void Set(T mask, bool on = true) { mValue = on ? T(mValue | mask) : T(mValue & ~mask); }

    constexpr bool operator==(const Flags& other) const { return mValue == other.mValue; }
    constexpr bool operator!=(const Flags& other) const { return mValue != other.mValue; }

private:
    T mValue;
};

}  // namespace utility
}  // namespace zebcore

// The exception through which the base library reports an error that stops an operation.
#pragma once

#include <stdexcept>
#include <string>

namespace zebcore {
namespace config {

// what() is the localized text in UTF-8, ready for a script's error message; the key
// is the "$$$/path/Name=Default" form it was made from. A binding catches it at its
// edge and raises the text as a Lua error once its own locals are gone.
class ZebException : public std::runtime_error {
public:
    ZebException(const std::string& localizedText, const std::string& key, int level, int domain,
                 int code);
    ~ZebException() override;

    const std::string& GetKey() const { return mKey; }
    int GetLevel() const { return mLevel; }
    int GetDomain() const { return mDomain; }
    int GetCode() const { return mCode; }

private:
    std::string mKey;
    int mLevel;
    int mDomain;
    int mCode;
};

}  // namespace config
}  // namespace zebcore

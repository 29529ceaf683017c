// The base library's error exception.
#include "zebcore/config/ZebException.h"

namespace zebcore {
namespace config {

ZebException::ZebException(const std::string& localizedText, const std::string& key, int level,
                           int domain, int code)
    : std::runtime_error(localizedText), mKey(key), mLevel(level), mDomain(domain), mCode(code) {}

ZebException::~ZebException() = default;

}  // namespace config
}  // namespace zebcore

// Process-wide settings of the test binary.
#include <gtest/gtest.h>

#include "zebcore/debug/Debug.h"

namespace {

// Tests provoke assertion reports on purpose and check them through the record, so the
// reports are not echoed to stderr, where they would bury real failures.
class QuietAssertReports : public ::testing::Environment {
public:
    void SetUp() override { zebcore::debug::SetAssertEchoEnabled(false); }
};

const auto* const sQuietAssertReports = ::testing::AddGlobalTestEnvironment(new QuietAssertReports);

}  // namespace

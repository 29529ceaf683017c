// Command numbers handed out at run time, for commands that scripts and plug-ins make up.
#pragma once

namespace vex {
namespace uisupport {

// Numbers from kFirstSyntheticCmd up, above every built-in command, handed out once each and
// never taken back. ReserveCmdRange(count) answers the first number of a block of count
// numbers; a count below 1, or a block that would run past kLastSyntheticCmd, answers 0
// (no command) and reserves nothing.
class SyntheticCmdMgr {
public:
    static constexpr int kFirstSyntheticCmd = 0x40000000;
    static constexpr int kLastSyntheticCmd = 0x7fffffff;

    static SyntheticCmdMgr* Get();

    int ReserveCmd();
    int ReserveCmdRange(int count);
    // True for a number this manager handed out.
    bool IsSyntheticCmdID(int id) const;

private:
    SyntheticCmdMgr() = default;
    long long mNext = kFirstSyntheticCmd;
};

}  // namespace uisupport
}  // namespace vex

// Synthetic command numbers.
#include "vex/uisupport/SyntheticCmdMgr.h"

namespace vex {
namespace uisupport {

SyntheticCmdMgr* SyntheticCmdMgr::Get() {
    static SyntheticCmdMgr sManager;
    return &sManager;
}

int SyntheticCmdMgr::ReserveCmd() {
    return ReserveCmdRange(1);
}

int SyntheticCmdMgr::ReserveCmdRange(int count) {
    if (count < 1 || mNext + count - 1 > kLastSyntheticCmd) return 0;
    const int first = static_cast<int>(mNext);
    mNext += count;
    return first;
}

bool SyntheticCmdMgr::IsSyntheticCmdID(int id) const {
    return id >= kFirstSyntheticCmd && id < mNext;
}

}  // namespace uisupport
}  // namespace vex

// Where the screens are: a fixed, configurable set of monitors.
#pragma once

#include <vector>

#include "zebcore/geom/RectT.h"

namespace zebui {
namespace utility {

// Monitors count from 0. The set is the process's configuration at the time of each
// query: by default a 1920 by 1080 main monitor at the origin and a 1280 by 1024 one to
// its right.
class MonitorInfo {
public:
    virtual ~MonitorInfo();

    unsigned int GetMonitorCount() const;
    // False, and rect untouched, for an index out of range.
    bool GetMonitorRect(unsigned int index, zebcore::geom::RectT<int>& rect) const;
    // The monitor that holds the largest part of rect; when none holds any of it, the one
    // whose centre lies nearest rect's centre. The main monitor on ties; an empty
    // rectangle when there is no monitor.
    zebcore::geom::RectT<int> GetMonitorRectFromRect(const zebcore::geom::RectT<int>& rect) const;

    // The configuration, process-wide. An empty set is allowed: a machine without screens.
    static void SetMonitorRects(const std::vector<zebcore::geom::RectT<int>>& rects);
    static void ResetMonitorRects();
};

// The platform's own: the flag asks it to count only the screens in use, which is every
// screen here.
class OS_MonitorInfo : public MonitorInfo {
public:
    explicit OS_MonitorInfo(bool activeOnly);
    ~OS_MonitorInfo() override;

    bool IsActiveOnly() const { return mActiveOnly; }
    // How many are alive, for tests of who deletes them.
    static int GetLiveCount();

private:
    bool mActiveOnly;
};

}  // namespace utility
}  // namespace zebui

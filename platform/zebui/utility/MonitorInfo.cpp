// The monitors of a headless machine.
#include "zebui/utility/MonitorInfo.h"

#include <algorithm>

namespace zebui {
namespace utility {

namespace {

using Rect32 = zebcore::geom::RectT<int>;

const std::vector<Rect32> kDefaultMonitors = {Rect32(0, 0, 1920, 1080),
                                              Rect32(1920, 0, 1280, 1024)};

std::vector<Rect32>& monitors() {
    static std::vector<Rect32> configured = kDefaultMonitors;
    return configured;
}

int sLiveOSMonitorInfos = 0;

long long overlapArea(const Rect32& a, const Rect32& b) {
    const long long width = std::min<long long>(a.Right(), b.Right()) - std::max(a.left, b.left);
    const long long height = std::min<long long>(a.Bottom(), b.Bottom()) - std::max(a.top, b.top);
    return width > 0 && height > 0 ? width * height : 0;
}

// Twice the centre, so that odd sizes stay whole.
long long centreDistance(const Rect32& a, const Rect32& b) {
    const long long dx = (2LL * a.left + a.width) - (2LL * b.left + b.width);
    const long long dy = (2LL * a.top + a.height) - (2LL * b.top + b.height);
    return dx * dx + dy * dy;
}

}  // namespace

MonitorInfo::~MonitorInfo() = default;

unsigned int MonitorInfo::GetMonitorCount() const {
    return static_cast<unsigned int>(monitors().size());
}

bool MonitorInfo::GetMonitorRect(unsigned int index, Rect32& rect) const {
    if (index >= monitors().size()) return false;
    rect = monitors()[index];
    return true;
}

Rect32 MonitorInfo::GetMonitorRectFromRect(const Rect32& rect) const {
    const std::vector<Rect32>& all = monitors();
    if (all.empty()) return Rect32();
    size_t best = 0;
    long long bestArea = 0;
    for (size_t index = 0; index < all.size(); ++index) {
        const long long area = overlapArea(all[index], rect);
        if (area > bestArea) {
            best = index;
            bestArea = area;
        }
    }
    if (bestArea > 0) return all[best];
    for (size_t index = 1; index < all.size(); ++index)
        if (centreDistance(all[index], rect) < centreDistance(all[best], rect)) best = index;
    return all[best];
}

void MonitorInfo::SetMonitorRects(const std::vector<Rect32>& rects) {
    monitors() = rects;
}

void MonitorInfo::ResetMonitorRects() {
    monitors() = kDefaultMonitors;
}

OS_MonitorInfo::OS_MonitorInfo(bool activeOnly) : mActiveOnly(activeOnly) {
    ++sLiveOSMonitorInfos;
}

OS_MonitorInfo::~OS_MonitorInfo() {
    --sLiveOSMonitorInfos;
}

int OS_MonitorInfo::GetLiveCount() {
    return sLiveOSMonitorInfos;
}

}  // namespace utility
}  // namespace zebui

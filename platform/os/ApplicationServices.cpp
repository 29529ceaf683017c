// Window levels.
#include "os/ApplicationServices.h"

int CGWindowLevelForKey(int key) {
    switch (key) {
    case kCGFloatingWindowLevelKey:
        return 3;
    case kCGPopUpMenuWindowLevelKey:
        return 101;
    default:
        return 0;
    }
}

// Window levels of the platform, by key.
#pragma once

// The keys the toolkit asks for.
constexpr int kCGFloatingWindowLevelKey = 5;
constexpr int kCGPopUpMenuWindowLevelKey = 11;

// The level of a key: 0 for normal windows, 3 floating, 101 pop-up menus; unknown keys 0.
int CGWindowLevelForKey(int key);

// Related figures measured side by side: each group is one Google benchmark whose every
// iteration runs a short batch of each member in turn.
#pragma once

#include <string>

namespace zebbench {

// Registers one Google benchmark per group of related figures, named after the group's
// first floor: a floor, its cases, the cases whose floor is one of those, and the whole
// and part of a difference. Call once, after every suite has registered its figures.
void RegisterGroups();

// The counters each repetition of a group sets and the reporter reads back: a figure's ns
// per operation over the repetition, and a case's ratio to its floor in that repetition.
std::string NsPerOpCounter(const std::string& id);
std::string RatioCounter(const std::string& id);

}  // namespace zebbench

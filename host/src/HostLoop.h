// What zebhost does after the script's main chunk: it runs the event loop.
#pragma once

namespace zebhost {

// How long an unbounded run may go on in virtual time before it gives up.
constexpr long long kIdleRunLimitMs = 10LL * 60 * 1000;

// With runForMs >= 0, advances the virtual clock that far; otherwise runs until no
// timer is left, zebhost.quit() is called, or kIdleRunLimitMs has passed (with a note
// on stderr). Returns the exit status: 1 if a native error escaped a timer, else 0.
int RunEventLoop(long long runForMs);

// Reads a --run-for value: whole milliseconds, 0 or more.
bool ParseRunFor(const char* text, long long& runForMs);

}  // namespace zebhost

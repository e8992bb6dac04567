// What was done, so that a failure can be told and repeated: by a check, a crash, a sanitizer, or an event that hangs.
#pragma once

#include <cstdint>
#include <string>

// One at a time. What it tells goes to the error stream: the seed, the last events, and how to run them again.
namespace eventlog {

// `mode` is the program's, for the line that repeats the run. Crashes and hangs are told from now on.
void Start(const char* mode, std::uint64_t seed);
// Told before the event happens; it has to be over, or to lead to others, in time.
void Event(const std::string& text);
int Count();
[[noreturn]] void Fail(const std::string& what);
// Fails unless the text, what a check found, is empty.
void Expect(const std::string& fault);

} // namespace eventlog

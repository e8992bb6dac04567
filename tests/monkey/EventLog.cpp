#include "tests/monkey/EventLog.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace eventlog {

namespace {

constexpr int kept = 40;
constexpr unsigned secondsForAnEvent = 60; // with room for a loaded machine and the sanitizers
char lines[kept][200];                     // a handler of a signal may allocate nothing
int count = 0;
char head[200];

void Write(const char* text) {
    if (write(STDERR_FILENO, text, std::strlen(text)) < 0)
        _exit(1);
}

void Tell() {
    Write("\n==== ");
    Write(head);
    for (int i = std::max(0, count - kept); i < count; ++i)
        Write(lines[i % kept]);
    Write("==== end of the last events\n");
}

void OnSignal(int number) {
    Write(number == SIGALRM ? "\nAn event hangs\n" : "\nA crash\n");
    Tell();
    std::signal(SIGABRT, SIG_DFL);
    std::abort();
}

} // namespace

void Start(const char* mode, std::uint64_t seed) {
    std::snprintf(head, sizeof head, "run again: tests_monkey %s --seed %llu\n", mode,
                  static_cast<unsigned long long>(seed));
    for (const int number : {SIGABRT, SIGALRM})
        std::signal(number, OnSignal);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(Tell); // what else kills, the sanitizer catches
#else
    for (const int number : {SIGSEGV, SIGBUS, SIGFPE, SIGILL})
        std::signal(number, OnSignal);
#endif
}

void Event(const std::string& text) {
    char* line = lines[count % kept];
    std::snprintf(line, sizeof lines[0], "%5d %.180s", ++count, text.c_str());
    std::strcat(line, "\n");
    if (std::getenv("MONKEY_VERBOSE"))
        Write(line);
    alarm(secondsForAnEvent);
}

int Count() {
    return count;
}

void Fail(const std::string& what) {
    Write(("\nFAULT: " + what + "\n").c_str());
    Tell();
    _exit(1);
}

void Expect(const std::string& fault) {
    if (!fault.empty())
        Fail(fault);
}

} // namespace eventlog

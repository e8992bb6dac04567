// The random user. Without arguments: a short run of all that it does, always the same.
//   tests_monkey events|files|kills --seed N [--count N]
#include "tests/monkey/EventLog.h"
#include "tests/monkey/Files.h"
#include "tests/monkey/Monkey.h"
#include "tests/support/DialogTest.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

void RunEvents(std::uint64_t seed, int count, const std::string& folder) {
    eventlog::Start("events", seed);
    Monkey monkey(seed, folder);
    monkey.Run(count);
    std::printf("seed %llu: %d events so far, %zu steps of undo walked through\n",
                static_cast<unsigned long long>(seed), eventlog::Count(), monkey.StepsChecked());
}

// What the offscreen platform cannot do is no news.
void ShowToolkitMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith("This plugin does not support") && !text.startsWith("Mouse event at"))
        std::fprintf(stderr, "toolkit: %s\n", qPrintable(text));
}

int Usage() {
    std::fputs("usage: tests_monkey [events|files|kills --seed N [--count N]]\n", stderr);
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    const char* mode = argc > 1 ? argv[1] : "";
    std::uint64_t seed = 0;
    int count = 0;
    for (int i = 2; i < argc; i += 2) {
        const bool isSeed = std::strcmp(argv[i], "--seed") == 0;
        if (i + 1 == argc || (!isSeed && std::strcmp(argv[i], "--count") != 0))
            return Usage();
        const unsigned long long value = std::strtoull(argv[i + 1], nullptr, 10);
        isSeed ? void(seed = value) : void(count = static_cast<int>(value));
    }
    const QTemporaryDir scratch;
    const std::string folder = scratch.path().toStdString();
    setenv("XDG_CONFIG_HOME", folder.c_str(), 1); // what the file dialogs remember between two runs
    QDir::setCurrent(scratch.path());             // a name without a folder is saved here
    // Before the toolkit: a child that is killed shares nothing with it.
    if (!*mode || !std::strcmp(mode, "kills"))
        RunKills(seed, count ? count : 10, folder);
    if (!*mode || !std::strcmp(mode, "files"))
        RunFiles(seed, count ? count : 150, folder);
    if (*mode && std::strcmp(mode, "events"))
        return !std::strcmp(mode, "kills") || !std::strcmp(mode, "files") ? 0 : Usage();

    qInstallMessageHandler(ShowToolkitMessage);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    MonkeyApp application(argc, argv);
    AttachDialogModule();
    if (*mode)
        RunEvents(seed, count ? count : 1500, folder);
    for (std::uint64_t each = 1; !*mode && each <= 3; ++each)
        RunEvents(each, 400, folder);
    return 0;
}

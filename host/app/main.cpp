// The reference application.
#include "dialogs/frame/Module.h"
#include "host/app/Example.h"
#include "host/app/Gallery.h"
#include "host/app/HostApplication.h"
#include "host/app/Options.h"
#include "host/app/Results.h"
#include "host/files/Version.h"
#include "platform/resource/Module.h"

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

using namespace host;

namespace {

// The dialogs' module, from before the first dialog until after the last.
class DialogModule {
  public:
    DialogModule() : m_handle(AfxAttachLinkedModule(&QuovarModuleEntry)) {}
    ~DialogModule() {
        if (m_handle)
            AfxDetachLinkedModule(&QuovarModuleEntry);
    }
    DialogModule(const DialogModule&) = delete;
    DialogModule& operator=(const DialogModule&) = delete;

    bool IsStarted() const { return m_handle; }

  private:
    HINSTANCE m_handle;
};

// What the toolkit remarks about displays and folders is no output of a command: only what ends it is.
void KeepToolkitQuiet() {
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "quovar: %s\n", qPrintable(text));
    });
}

int RunApplication(const Options& options, int argc, char** argv) {
    const DialogModule module;
    if (!module.IsStarted()) {
        std::fprintf(stderr, "quovar: il modulo dei dialoghi non si avvia.\n");
        return notDone;
    }
    if (options.action == Options::Action::Gallery) // names its pages after the dialogs, which it leaves to others
        return WriteGallery(argv[0], options.argument, options.model);
    return HostApplication(options, argc, argv).Execute();
}

} // namespace

int main(int argc, char** argv) {
    const Options options = ParseOptions(argc, argv);
    if (options.action != Options::Action::Open)
        KeepToolkitQuiet();
    switch (options.action) {
    case Options::Action::Help:
        std::fputs(usageText, stdout);
        return nothingFound;
    case Options::Action::Version:
        std::printf("quovar %s\n", applicationVersion);
        return nothingFound;
    case Options::Action::Invalid:
        std::fprintf(stderr, "quovar: %s\n\n%s", options.error.c_str(), usageText);
        return notDone;
    case Options::Action::WriteExample:
        return WriteExample(options.argument);
    case Options::Action::Results:
        return PrintResults(options.argument);
    case Options::Action::Check:
        setenv("QT_QPA_PLATFORM", "offscreen", 1); // nothing is shown, and there may be no display
        return RunApplication(options, argc, argv);
    default:
        return RunApplication(options, argc, argv);
    }
}

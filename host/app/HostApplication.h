// The application object of `quovar`.
#pragma once

#include "host/app/Options.h"
#include "platform/window/Application.h"

#include <memory>

class QSettings;
class QTranslator;

namespace host {

class Workspace;

class HostApplication final : public CWinApp {
  public:
    // The module of the dialogs must have started, and ends after this object.
    HostApplication(const Options& options, int& argc, char** argv);
    ~HostApplication() override;

    // Carries out what the options ask for and returns the exit status: 0 for success.
    int Execute();

    BOOL OnUnusedKey(const MSG& message) override;
    // Without windows there is nobody who could answer: a box is noted, and cancelled.
    int ShowMessageBox(LPCTSTR text, LPCTSTR caption, UINT type) override;

  private:
    int Open();

    Options m_options;
    std::unique_ptr<QTranslator> m_translator;
    std::unique_ptr<QSettings> m_settings; // the user's; null in batch modes
    std::unique_ptr<Workspace> m_workspace;
};

} // namespace host

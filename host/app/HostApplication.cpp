#include "host/app/HostApplication.h"

#include "host/app/Gallery.h"
#include "host/commands/Check.h"
#include "host/ui/MainWindow.h"
#include "host/ui/Workspace.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>

#include <cstdio>

namespace host {

HostApplication::HostApplication(const Options& options, int& argc, char** argv)
    : CWinApp("Quovar", argc, argv), m_options(options), m_translator(std::make_unique<QTranslator>()) {
    // The toolkit's own texts, such as those of the file dialogs.
    if (m_translator->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(m_translator.get());
    m_workspace = std::make_unique<Workspace>();
}

HostApplication::~HostApplication() {
    m_workspace.reset();
    QApplication::removeTranslator(m_translator.get());
}

int HostApplication::Execute() {
    switch (m_options.action) {
    case Options::Action::GalleryPictures:
        return WriteGalleryPictures(*m_workspace, QString::fromLocal8Bit(m_options.argument.c_str()),
                                    QString::fromLocal8Bit(m_options.model.c_str()));
    case Options::Action::Check:
        return PrintCheck(*m_workspace, QString::fromLocal8Bit(m_options.argument.c_str()));
    default:
        return Open();
    }
}

int HostApplication::Open() {
    m_settings = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, "quovar", "quovar");
    m_workspace->Remember(*m_settings);
    m_workspace->Window().show();
    if (m_options.argument.empty() || !m_workspace->Open(QString::fromLocal8Bit(m_options.argument.c_str())))
        m_workspace->NewDocument();
    return Run();
}

BOOL HostApplication::OnUnusedKey(const MSG& message) {
    return m_workspace && m_workspace->TakeKey(message);
}

int HostApplication::ShowMessageBox(LPCTSTR text, LPCTSTR caption, UINT type) {
    if (m_options.action == Options::Action::Open)
        return CWinApp::ShowMessageBox(text, caption, type);
    const char* expected = m_options.action == Options::Action::Check ? "" : "messaggio inatteso: ";
    std::fprintf(stderr, "quovar: %s%s\n", expected, CString(text).ToUtf8().c_str());
    return (type & MB_TYPEMASK) == MB_YESNO ? IDNO : IDCANCEL;
}

} // namespace host

#include "platform/window/Application.h"

#include "platform/core/Exception.h"
#include "platform/private/events/KeypadDecimal.h"
#include "platform/private/events/VisibleFocus.h"
#include "platform/private/paint/DialogStyle.h"
#include "platform/private/paint/Fonts.h"
#include "platform/private/peers/WindowPeer.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <clocale>
#include <vector>

IMPLEMENT_DYNAMIC(CWinApp, CObject)

namespace platform {

namespace {

// The toolkit lets a tool window's and a popup's keys run the shortcuts of the window behind. A dialog's keys are its
// own; those of a list that it has dropped down too.
bool BelongsToDialog(QObject* receiver) {
    for (auto* widget = qobject_cast<QWidget*>(receiver); widget; widget = widget->parentWidget()) {
        const WindowPeer* peer = PeerOf(widget);
        if (peer && peer->isDialog)
            return true;
        if (widget->isWindow() && widget->windowType() != Qt::Popup)
            return false;
    }
    return false;
}

} // namespace

class ToolkitApplication : public QApplication {
  public:
    using QApplication::QApplication;

    // The last net for what escapes from slots, timers and calls of the toolkit; windows have their own, nearer one.
    bool notify(QObject* receiver, QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride && BelongsToDialog(receiver)) {
            event->accept();
            return true;
        }
        bool result = true;
        RunGuarded([&] { result = QApplication::notify(receiver, event); });
        return result;
    }
};

} // namespace platform

namespace {

CWinApp* theApplication = nullptr;

// A light look of our own, whatever the desktop's: drawings are made for a light ground.
QPalette DialogPalette() {
    QPalette palette(QColor(0xf0, 0xf0, 0xf0));
    palette.setColor(QPalette::Window, QColor(0xf0, 0xf0, 0xf0));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::ButtonText, Qt::black);
    palette.setColor(QPalette::Highlight, QColor(0x1f, 0x5f, 0xa8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x8a, 0x8a, 0x8a));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0xf4, 0xf4, 0xf4));
    return palette;
}

struct BoxButton {
    int command;
    const char* text; // UTF-8
    QMessageBox::ButtonRole role;
};

std::vector<BoxButton> ButtonsOf(UINT type) {
    constexpr auto yes = QMessageBox::YesRole;
    constexpr auto no = QMessageBox::NoRole;
    constexpr auto accept = QMessageBox::AcceptRole;
    constexpr auto reject = QMessageBox::RejectRole;
    switch (type & MB_TYPEMASK) {
    case MB_OKCANCEL:
        return {{IDOK, "OK", accept}, {IDCANCEL, "Annulla", reject}};
    case MB_ABORTRETRYIGNORE:
        return {{IDABORT, "Interrompi", reject}, {IDRETRY, "Riprova", accept}, {IDIGNORE, "Ignora", no}};
    case MB_YESNOCANCEL:
        return {{IDYES, "&Sì"_utf8, yes}, {IDNO, "&No", no}, {IDCANCEL, "Annulla", reject}};
    case MB_YESNO:
        return {{IDYES, "&Sì"_utf8, yes}, {IDNO, "&No", no}};
    case MB_RETRYCANCEL:
        return {{IDRETRY, "Riprova", accept}, {IDCANCEL, "Annulla", reject}};
    default:
        return {{IDOK, "OK", accept}};
    }
}

QMessageBox::Icon IconOf(UINT type) {
    switch (type & MB_ICONMASK) {
    case MB_ICONERROR:
        return QMessageBox::Critical;
    case MB_ICONQUESTION:
        return QMessageBox::Question;
    case MB_ICONWARNING:
        return QMessageBox::Warning;
    case MB_ICONINFORMATION:
        return QMessageBox::Information;
    default:
        break;
    }
    const UINT buttons = type & MB_TYPEMASK;
    return buttons == MB_YESNO || buttons == MB_YESNOCANCEL ? QMessageBox::Question : QMessageBox::Warning;
}

} // namespace

CWinApp::CWinApp(LPCTSTR name, int& argc, char** argv) : m_pszAppName(name) {
    m_toolkit = std::make_unique<platform::ToolkitApplication>(argc, argv);
    // The toolkit has just adopted the machine's locale; printf and the exchange need the decimal point.
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle(new platform::DialogStyle);
    m_toolkit->installEventFilter(new platform::KeypadDecimal(m_toolkit.get()));
    m_toolkit->installEventFilter(new platform::VisibleFocus(m_toolkit.get()));
    QApplication::setPalette(DialogPalette());
    QApplication::setFont(platform::ToolkitFont("MS Sans Serif", 11, 400, false));
    QApplication::setApplicationName(platform::ToQString(name));
    theApplication = this;
}

CWinApp::~CWinApp() {
    PumpMessages(); // windows that wait for their deletion go before the toolkit does
    theApplication = nullptr;
}

int CWinApp::Run() {
    if (!InitInstance())
        return ExitInstance();
    const int status = QApplication::exec();
    const int exitStatus = ExitInstance();
    return exitStatus ? exitStatus : status;
}

int CWinApp::DoMessageBox(LPCTSTR text, UINT type, UINT) {
    return ShowMessageBox(text, m_pszAppName, type);
}

int CWinApp::ShowMessageBox(LPCTSTR text, LPCTSTR caption, UINT type) {
    // On the heap: the window that it stands over may end while it is up, and takes it along.
    const QPointer<QMessageBox> shown = new QMessageBox(QApplication::activeWindow());
    QMessageBox& box = *shown;
    box.setWindowTitle(platform::ToQString(caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(platform::ToQString(text));
    box.setIcon(IconOf(type));
    std::vector<QAbstractButton*> made;
    const std::vector<BoxButton> buttons = ButtonsOf(type);
    for (const BoxButton& button : buttons)
        made.push_back(box.addButton(QString::fromUtf8(button.text), button.role));
    const bool second = (type & MB_DEFBUTTON2) && made.size() > 1;
    box.setDefaultButton(qobject_cast<QPushButton*>(made[second ? 1 : 0]));
    box.exec();
    int command = buttons.size() == 1 ? IDOK : IDCANCEL;
    for (std::size_t i = 0; shown && i < made.size(); ++i)
        if (shown->clickedButton() == made[i])
            command = buttons[i].command;
    delete shown;
    return command;
}

void CWinApp::PumpMessages() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // all at once: one receiver at a time is quadratic
}

CWinApp* AfxGetApp() {
    return theApplication;
}

CWnd* AfxGetMainWnd() {
    return theApplication ? theApplication->m_pMainWnd : nullptr;
}

int AfxMessageBox(LPCTSTR text, UINT type, UINT helpId) {
    return theApplication ? theApplication->DoMessageBox(text, type, helpId) : IDCANCEL;
}

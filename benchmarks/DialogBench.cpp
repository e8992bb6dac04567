// Opening a dialog of 25 controls from its template, beside the same widgets made by hand and beside a form file loaded
// at run time; and one edit notification from the key to its handler.
#include "benchmarks/BenchDialogs.h"
#include "benchmarks/Ratios.h"
#include "platform/resource/Units.h"
#include "platform/window/Application.h"

#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QUiLoader>
#include <QWindow>

#include <functional>
#include <memory>

namespace {

QRect PlaceOf(const platform::ControlTemplate& control) {
    const int x = platform::UnitsToX(control.x);
    const int y = platform::UnitsToY(control.y);
    return {x, y, platform::UnitsToX(control.x + control.cx) - x, platform::UnitsToY(control.y + control.cy) - y};
}

enum class Role { Label, Edit, Check, Radio, Push };

Role RoleOf(const platform::ControlTemplate& control) {
    if (control.kind == platform::ControlTemplate::Kind::Static)
        return Role::Label;
    if (control.kind == platform::ControlTemplate::Kind::Edit)
        return Role::Edit;
    switch (control.style & BS_TYPEMASK) {
    case BS_AUTOCHECKBOX:
        return Role::Check;
    case BS_AUTORADIOBUTTON:
        return Role::Radio;
    default:
        return Role::Push;
    }
}

void OpenOurs(benchmark::State& state) {
    for (auto _ : state) {
        bench::FormDialog dialog;
        dialog.Open();
        CWinApp::PumpMessages();
        dialog.DestroyWindow();
        CWinApp::PumpMessages();
    }
}

void AddByHand(QDialog& dialog, const platform::ControlTemplate& control) {
    QWidget* made = nullptr;
    switch (RoleOf(control)) {
    case Role::Label:
        made = new QLabel(QString::fromLatin1(control.text), &dialog);
        break;
    case Role::Edit:
        made = new QLineEdit(&dialog);
        break;
    case Role::Check:
        made = new QCheckBox(QString::fromLatin1(control.text), &dialog);
        break;
    case Role::Radio:
        made = new QRadioButton(QString::fromLatin1(control.text), &dialog);
        break;
    case Role::Push:
        made = new QPushButton(QString::fromLatin1(control.text), &dialog);
        break;
    }
    made->setGeometry(PlaceOf(control));
}

// Shows the dialog as ours is shown, and ends it the same way.
void ShowAndEnd(std::unique_ptr<QDialog> dialog) {
    dialog->show();
    dialog->activateWindow();
    CWinApp::PumpMessages();
    dialog->hide();
    dialog.release()->deleteLater();
    CWinApp::PumpMessages();
}

void OpenByHand(benchmark::State& state) {
    for (auto _ : state) {
        auto dialog = std::make_unique<QDialog>();
        dialog->setWindowTitle("Modulo");
        dialog->setFixedSize(platform::UnitsToX(200), platform::UnitsToY(160));
        for (const platform::ControlTemplate& control : bench::FormControls())
            AddByHand(*dialog, control);
        ShowAndEnd(std::move(dialog));
    }
}

QByteArray FormFile() {
    constexpr const char* classes[] = {"QLabel", "QLineEdit", "QCheckBox", "QRadioButton", "QPushButton"};
    QByteArray xml = "<ui version=\"4.0\"><widget class=\"QDialog\" name=\"modulo\"><property name=\"windowTitle\">"
                     "<string>Modulo</string></property>";
    int number = 0;
    for (const platform::ControlTemplate& control : bench::FormControls()) {
        const Role role = RoleOf(control);
        const QRect place = PlaceOf(control);
        xml += QString("<widget class=\"%1\" name=\"c%2\"><property name=\"geometry\"><rect><x>%3</x><y>%4</y>"
                       "<width>%5</width><height>%6</height></rect></property>")
                   .arg(classes[static_cast<int>(role)])
                   .arg(number++)
                   .arg(place.x())
                   .arg(place.y())
                   .arg(place.width())
                   .arg(place.height())
                   .toUtf8();
        if (role != Role::Edit)
            xml += QByteArray("<property name=\"text\"><string>") + control.text + "</string></property>";
        xml += "</widget>";
    }
    return xml + "</widget></ui>";
}

void OpenFormFile(benchmark::State& state) {
    const QByteArray xml = FormFile();
    QUiLoader loader;
    for (auto _ : state) {
        QBuffer buffer;
        buffer.setData(xml);
        std::unique_ptr<QDialog> dialog(qobject_cast<QDialog*>(loader.load(&buffer)));
        dialog->setFixedSize(platform::UnitsToX(200), platform::UnitsToY(160));
        ShowAndEnd(std::move(dialog));
    }
}

template <class Window>
void TypeInto(benchmark::State& state, Window& window, const std::function<void()>& empty) {
    QWindow* handle = window.windowHandle();
    for (auto _ : state) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, "1");
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_1, Qt::NoModifier, "1");
        QApplication::sendEvent(handle, &press);
        QApplication::sendEvent(handle, &release);
        state.PauseTiming();
        empty();
        state.ResumeTiming();
    }
}

void NotifyOurs(benchmark::State& state) {
    bench::FormDialog dialog;
    dialog.Open();
    CWinApp::PumpMessages();
    QWidget* window = QApplication::activeWindow();
    TypeInto(state, *window, [&] { dialog.SetDlgItemText(bench::firstEdit, ""); });
    if (!dialog.changes)
        state.SkipWithError("the handler was never reached");
}

void NotifyByHand(benchmark::State& state) {
    QDialog dialog;
    for (const platform::ControlTemplate& control : bench::FormControls())
        AddByHand(dialog, control);
    auto* edit = dialog.findChild<QLineEdit*>();
    int changes = 0;
    QObject::connect(edit, &QLineEdit::textChanged, [&] { ++changes; });
    dialog.show();
    dialog.activateWindow();
    CWinApp::PumpMessages();
    edit->setFocus();
    TypeInto(state, dialog, [&] { edit->clear(); });
    if (!changes)
        state.SkipWithError("the handler was never reached");
}

const bench::Ratio byHand("open_dialog_of_25_controls", OpenOurs, OpenByHand, 1.1);
const bench::Ratio formLoader("open_dialog_beside_form_file", OpenOurs, OpenFormFile, 0.8);
const bench::Ratio notification("edit_notification", NotifyOurs, NotifyByHand, 1.5, benchmark::kMicrosecond);

} // namespace

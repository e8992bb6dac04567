#include "tests/support/DialogDriver.h"

#include "platform/controls/ListBox.h"
#include "platform/toolkit/Bridge.h"
#include "platform/window/Dialog.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

Qt::KeyboardModifiers ToolkitModifiers(unsigned modifiers) {
    Qt::KeyboardModifiers result;
    result.setFlag(Qt::ShiftModifier, modifiers & ShiftKey);
    result.setFlag(Qt::ControlModifier, modifiers & CtrlKey);
    result.setFlag(Qt::AltModifier, modifiers & AltKey);
    return result;
}

bool OnKeypad(UINT key) {
    return key >= VK_NUMPAD0 && key <= VK_DIVIDE;
}

// Of a character that a key makes; the toolkit's codes of printable keys are the upper-case characters.
void SendCharacter(QWindow* window, QChar character) {
    const int code = character.toUpper().unicode();
    const auto modifiers = character.isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
    QTest::sendKeyEvent(QTest::Click, window, static_cast<Qt::Key>(code), QString(character), modifiers);
}

std::string Utf8(const CString& text) {
    return text.ToUtf8();
}

} // namespace

DialogDriver::DialogDriver(CWnd& dialog) : m_widget(platform::WidgetOf(dialog)), m_dialog(&dialog) {
    EXPECT_TRUE(m_widget) << "the dialog has no window";
    if (m_widget)
        Activate();
}

bool DialogDriver::IsOpen() const {
    // The widget is asked instead of the dialog, whose object may be gone with its window.
    return m_widget && platform::WindowOf(m_widget);
}

void DialogDriver::Wait(int milliseconds) {
    QTest::qWait(milliseconds);
}

void DialogDriver::Activate() {
    // A window that closed just before hands the activity on through the loop, which would take it from this one.
    QApplication::processEvents();
    if (!IsOpen())
        return;
    QWidget* top = m_widget->window();
    // The toolkit also calls a tool window active whose main window has the keys.
    const auto active = [top] { return QApplication::activeWindow() == top; };
    if (!top->isVisible() || active())
        return;
    top->activateWindow();
    // Offscreen, nobody activates a window that was hidden while active and is shown again.
    if (!QTest::qWaitFor(active, 500))
        QApplication::setActiveWindow(top);
    if (!QTest::qWaitFor(active, 2000))
        ADD_FAILURE() << "the dialog does not become active: " << Caption();
}

CWnd* DialogDriver::Control(int id) const {
    if (!IsOpen()) {
        ADD_FAILURE() << "control " << id << " of a closed dialog";
        return nullptr;
    }
    CWnd* control = m_dialog->GetDlgItem(id);
    EXPECT_TRUE(control) << "no control " << id;
    return control;
}

QWidget* DialogDriver::Surface(int id) const {
    const CWnd* control = Control(id);
    return control ? platform::SurfaceOf(*control) : nullptr;
}

QWidget* DialogDriver::UsableSurface(int id) const {
    QWidget* surface = Surface(id);
    if (!surface)
        return nullptr;
    if (!surface->isVisible() || !surface->isEnabled()) {
        ADD_FAILURE() << "control " << id << " is hidden or disabled";
        return nullptr;
    }
    return surface;
}

void DialogDriver::Press(UINT key, unsigned modifiers) {
    if (!IsOpen()) {
        ADD_FAILURE() << "key " << key << " to a closed dialog";
        return;
    }
    Activate();
    Qt::KeyboardModifiers flags = ToolkitModifiers(modifiers);
    flags.setFlag(Qt::KeypadModifier, OnKeypad(key));
    const int code = platform::ToolkitKey(key);
    ASSERT_NE(code, 0) << "no such key: " << key;
    const bool printable = code >= Qt::Key_Space && code <= Qt::Key_ydiaeresis;
    // A key with Control makes no character.
    const QString text = printable && !(modifiers & CtrlKey) ? QString(QChar(code)).toLower() : QString();
    QWindow* window = m_widget->window()->windowHandle();
    ASSERT_TRUE(window);
    const QPointer<QWindow> alive(window);
    const auto toolkitKey = static_cast<Qt::Key>(code);
    QTest::sendKeyEvent(QTest::Press, window, toolkitKey, text, flags);
    if (alive)
        QTest::sendKeyEvent(QTest::Release, window, toolkitKey, text, flags);
    QApplication::processEvents();
}

void DialogDriver::Press(std::initializer_list<int> keys) {
    for (const int key : keys)
        Press(static_cast<UINT>(key));
}

void DialogDriver::TypeKeys(const std::string& text) {
    if (!IsOpen()) {
        ADD_FAILURE() << "typing into a closed dialog";
        return;
    }
    Activate();
    const QPointer<QWindow> window(m_widget->window()->windowHandle());
    for (const QChar character : QString::fromStdString(text)) {
        ASSERT_TRUE(window) << "the dialog closed while typing";
        SendCharacter(window, character);
    }
    QApplication::processEvents();
}

void DialogDriver::Type(int id, const std::string& text) {
    Click(id);
    Press(VK_HOME);
    Press(VK_END, ShiftKey);
    if (text.empty())
        Press(VK_DELETE);
    else
        TypeKeys(text);
}

void DialogDriver::ClickPoint(QWidget* surface, const QPoint& point, unsigned modifiers, bool right, bool twice) {
    Activate();
    QWindow* window = surface->window()->windowHandle();
    ASSERT_TRUE(window);
    const QPoint place = surface->mapTo(surface->window(), point);
    ASSERT_TRUE(surface->window()->rect().contains(place)) << "the pointer would be outside the dialog";
    const auto button = right ? Qt::RightButton : Qt::LeftButton;
    QTest::mouseMove(window, place);
    if (twice)
        QTest::mouseDClick(window, button, ToolkitModifiers(modifiers), place);
    else
        QTest::mouseClick(window, button, ToolkitModifiers(modifiers), place);
    QApplication::processEvents();
}

void DialogDriver::Click(int id, unsigned modifiers) {
    if (QWidget* surface = UsableSurface(id))
        ClickPoint(surface, surface->rect().center(), modifiers, false, false);
}

void DialogDriver::RightClick(int id) {
    if (QWidget* surface = UsableSurface(id))
        ClickPoint(surface, surface->rect().center(), NoModifier, true, false);
}

void DialogDriver::ClickSpin(int id, bool up) {
    QWidget* surface = UsableSurface(id);
    if (!surface)
        return;
    const QRect area = surface->rect();
    ClickPoint(surface, QPoint(area.center().x(), up ? area.height() / 4 : area.height() * 3 / 4), NoModifier, false,
               false);
}

void DialogDriver::ClickSpinUp(int id) {
    ClickSpin(id, true);
}

void DialogDriver::ClickSpinDown(int id) {
    ClickSpin(id, false);
}

bool DialogDriver::RowPoint(int id, int row, QPoint& point) const {
    auto* list = dynamic_cast<CListBox*>(Control(id));
    if (!list || row < 0 || row >= list->GetCount()) {
        ADD_FAILURE() << "no row " << row << " in list " << id;
        return false;
    }
    CRect area;
    list->GetItemRect(row, &area);
    const QRect seen = platform::SurfaceOf(*list)->rect();
    if (!seen.contains(area.CenterPoint().x, area.CenterPoint().y)) {
        list->SetTopIndex(row); // the wheel or the scroll bar of a user
        list->GetItemRect(row, &area);
    }
    point = QPoint(std::min<int>(area.left + 10, seen.right()), area.CenterPoint().y);
    return true;
}

void DialogDriver::ClickRow(int id, int row, unsigned modifiers) {
    QPoint point;
    QWidget* surface = UsableSurface(id);
    if (surface && RowPoint(id, row, point))
        ClickPoint(surface, point, modifiers, false, false);
}

void DialogDriver::DoubleClickRow(int id, int row) {
    QPoint point;
    QWidget* surface = UsableSurface(id);
    if (surface && RowPoint(id, row, point))
        ClickPoint(surface, point, NoModifier, false, true);
}

void DialogDriver::ClickAt(int x, int y) {
    ASSERT_TRUE(IsOpen());
    ClickPoint(m_widget, QPoint(x, y), NoModifier, false, false);
}

void DialogDriver::MoveTo(int x, int y) {
    ASSERT_TRUE(IsOpen());
    QTest::mouseMove(m_widget->windowHandle(), QPoint(x, y));
    QApplication::processEvents();
}

void DialogDriver::CloseBox() {
    ASSERT_TRUE(IsOpen());
    m_widget->close();
    QApplication::processEvents();
}

std::string DialogDriver::Caption() const {
    return IsOpen() ? Utf8(m_dialog->GetWindowText()) : std::string();
}

std::string DialogDriver::Text(int id) const {
    const CWnd* control = Control(id);
    return control ? Utf8(control->GetWindowText()) : std::string();
}

bool DialogDriver::Checked(int id) const {
    return Control(id) && m_dialog->IsDlgButtonChecked(id) != 0;
}

bool DialogDriver::Enabled(int id) const {
    const CWnd* control = Control(id);
    return control && control->IsWindowEnabled();
}

bool DialogDriver::Visible(int id) const {
    const CWnd* control = Control(id);
    return control && control->IsWindowVisible();
}

int DialogDriver::Focus() const {
    const CWnd* focus = CWnd::GetFocus();
    return focus && IsOpen() && m_dialog->IsChild(focus) ? focus->GetDlgCtrlID() : 0;
}

std::vector<std::string> DialogDriver::Rows(int id) const {
    std::vector<std::string> rows;
    if (auto* list = dynamic_cast<CListBox*>(Control(id))) {
        for (int row = 0; row < list->GetCount(); ++row) {
            CString text;
            list->GetText(row, text);
            rows.push_back(Utf8(text));
        }
    }
    return rows;
}

std::vector<int> DialogDriver::SelectedRows(int id) const {
    std::vector<int> rows;
    if (auto* list = dynamic_cast<CListBox*>(Control(id)))
        for (int row = 0; row < list->GetCount(); ++row)
            if (list->GetSel(row) > 0)
                rows.push_back(row);
    return rows;
}

void DialogDriver::SetText(int id, const std::string& text) {
    if (CWnd* control = Control(id))
        control->SetWindowText(CString::FromUtf8(text));
}

void DialogDriver::SetFocus(int id) {
    if (CWnd* control = Control(id))
        control->SetFocus();
}

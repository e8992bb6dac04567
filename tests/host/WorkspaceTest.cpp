#include "tests/host/WorkspaceTest.h"

#include "dialogs/generation/DialogGenNodiLineare.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "host/view/ViewWidget.h"
#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "platform/window/Application.h"
#include "tests/host/Dump.h"
#include "tests/support/DialogTest.h"

#include <QAction>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

using namespace host;

WorkspaceTest::WorkspaceTest() {
    AttachDialogModule();
    m_workspace = std::make_unique<Workspace>();
    m_workspace->Window().show();
    m_workspace->NewDocument();
    CWinApp::PumpMessages();
    // A window manager takes its time to activate a window, and would take the keys from the next one.
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_workspace->Window()));
}

WorkspaceTest::~WorkspaceTest() {
    m_workspace.reset();
    CWinApp::PumpMessages();
}

void WorkspaceTest::BuildSmallModel() {
    HostDocument& document = Document();
    const auto node = [&document](double x, double y, double z) {
        CFPoint point(x, y, z);
        return document.AddNodo(point, nullptr, 1)->GetID();
    };
    const int a = node(0, 0, 0), b = node(4, 0, 0), c = node(8, 0, 0);
    document.AddTrave(a, b, nullptr);
    document.AddTrave(b, c, nullptr);
    document.AddAsta(a, node(0, 0, 3), nullptr);
    document.AddSolaio({node(2, 0, 4), node(4, 0, 4), node(4, 0, 6), node(2, 0, 6)});
    document.AddSetto({node(6, 0, 4), node(8, 0, 4), node(8, 0, 6), node(6, 0, 6)});
    CWinApp::PumpMessages();
    document.Undo().Clear();
    document.MarkSaved();
    View().SetDirection(Adv3d::Front);
    CWinApp::PumpMessages();
}

CPoint WorkspaceTest::PixelOf(CNodo& node) {
    return PixelOf(*node.GetPunto());
}

namespace {

QPoint InWindow(HostView& view, CPoint at) {
    return view.Widget().mapTo(view.Widget().QWidget::window(), QPoint(at.x, at.y));
}

QWindow* NativeWindow(HostView& view) {
    return view.Widget().QWidget::window()->windowHandle();
}

} // namespace

void WorkspaceTest::Click(CPoint at, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(NativeWindow(View()), Qt::LeftButton, modifiers, InWindow(View(), at));
    CWinApp::PumpMessages();
}

void WorkspaceTest::Drag(CPoint from, CPoint to, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    QWindow* window = NativeWindow(View());
    QTest::mousePress(window, button, modifiers, InWindow(View(), from));
    QTest::mouseMove(window, InWindow(View(), CPoint((from.x + to.x) / 2, (from.y + to.y) / 2)));
    QTest::mouseMove(window, InWindow(View(), to));
    QTest::mouseRelease(window, button, modifiers, InWindow(View(), to));
    CWinApp::PumpMessages();
}

void WorkspaceTest::Wheel(CPoint at, int notches) {
    const QPoint local(at.x, at.y);
    QWheelEvent event(local, View().Widget().mapToGlobal(local), {}, QPoint(0, notches * 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&View().Widget(), &event);
    CWinApp::PumpMessages();
}

void WorkspaceTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    View().Widget().activateWindow();
    View().Widget().setFocus();
    CWinApp::PumpMessages();
    QTest::keyClick(NativeWindow(View()), key, modifiers);
    CWinApp::PumpMessages();
}

void WorkspaceTest::Select(const std::vector<CElemento*>& elements) {
    Document().Selection().Clear();
    Document().Selection().Add(elements);
    CWinApp::PumpMessages();
}

void WorkspaceTest::Trigger(const QString& command) {
    m_workspace->Window().Refresh();
    QAction* action = m_workspace->Window().Command(command);
    ASSERT_TRUE(action) << "no command " << qPrintable(command);
    ASSERT_TRUE(action->isEnabled()) << qPrintable(command) << " is disabled";
    action->trigger();
    CWinApp::PumpMessages();
}

void WorkspaceTest::Trigger(UINT dialog, int kind) {
    Trigger(ActionName(dialog, kind));
}

CDialogDocument* WorkspaceTest::OpenLinear() {
    return OpenTool(CDialogGenNodiLineare::IDD);
}

CDialogDocument* WorkspaceTest::OpenTool(UINT id) {
    Trigger(id);
    CDialogDocument* dialog = m_workspace->ToolOf(View());
    EXPECT_TRUE(dialog) << "the dialog does not open";
    return dialog;
}

std::string WorkspaceTest::State() {
    return Dump(Document().Data());
}

void WorkspaceTest::ExpectOneStep(const char* name, const std::function<void()>& command) {
    SCOPED_TRACE(name);
    ExpectExact(
        Document(), command, [this] { Trigger("modifica.annulla"); }, [this] { Trigger("modifica.ripristina"); });
    EXPECT_EQ(Document().Undo().UndoName().ToUtf8(), name);
}

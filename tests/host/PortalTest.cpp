// What a new user does first: a portal frame from an empty document to its moment diagram, once by mouse and once by
// keyboard alone. With QUOVAR_STORY set to a folder, a picture of each step is saved there.
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "dialogs/results/DialogDiagrammi.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "host/view/ViewWidget.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "model/result/TraveRisultati.h"
#include "model/view/ElementoSettings.h"
#include "platform/window/Application.h"
#include "tests/host/AskedDialog.h"
#include "tests/host/WorkspaceTest.h"

#include <QAction>
#include <QDir>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTest>

using namespace host;

namespace {

class PortalTest : public WorkspaceTest {
  protected:
    void Picture(const char* step) {
        const QString folder = qEnvironmentVariable("QUOVAR_STORY");
        if (folder.isEmpty())
            return;
        QTest::qWait(100); // until the window manager has drawn its frames
        const bool onScreen = QGuiApplication::platformName() == "xcb";
        const QPixmap picture =
            onScreen ? QGuiApplication::primaryScreen()->grabWindow(0) : m_workspace->Window().grab();
        const QString name = QStringLiteral("%1-%2-%3.png").arg(m_way).arg(++m_pictures).arg(step);
        EXPECT_TRUE(picture.save(QDir(folder).filePath(name)));
    }

    // The window that the user works in.
    static void WaitForWindow(const QString& title) {
        const auto active = [&title] {
            const QWidget* window = QApplication::activeWindow();
            return window && window->windowTitle().contains(title);
        };
        if (QGuiApplication::platformName() == "offscreen" && !active()) // where nobody activates the one behind
            for (QWidget* each : QApplication::topLevelWidgets())
                if (each->isVisible() && each->windowTitle().contains(title))
                    QApplication::setActiveWindow(each);
        EXPECT_TRUE(QTest::qWaitFor(active)) << qPrintable(title);
    }
    // The next form of menu Assegna, which keeps control until it is closed.
    static void InForm(std::function<void(QDialog&)> action) {
        QTimer::singleShot(5, qApp, [action = std::move(action)] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                EXPECT_TRUE(QTest::qWaitFor([dialog] {
                    const QWidget* focused = QApplication::focusWidget();
                    return focused && focused->window() == dialog;
                }));
                action(*dialog);
            } else {
                InForm(action);
            }
        });
    }

    // ---- By keyboard: to whatever has the focus.
    static void Key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QWidget* target =
            QApplication::activePopupWidget() ? QApplication::activePopupWidget() : QApplication::activeWindow();
        ASSERT_TRUE(target);
        QTest::keyClick(target->windowHandle(), key, held);
        QApplication::processEvents();
    }
    static void Keys(std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys)
            Key(key);
    }
    static void Text(const QString& text) {
        for (const QChar each : text)
            QTest::sendKeyEvent(QTest::Click, QApplication::activeWindow()->windowHandle(),
                                static_cast<Qt::Key>(each.unicode()), QString(each), Qt::NoModifier);
    }
    void KeyMenu(Qt::Key menu, const QString& command) {
        Key(menu, Qt::AltModifier);
        const auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(open);
        for (const QAction* each : open->actions())
            if (QString(each->text()).remove('&') == command)
                return Key(static_cast<Qt::Key>(each->text()[each->text().indexOf('&') + 1].toUpper().unicode()));
        ADD_FAILURE() << "no command " << qPrintable(command);
    }

    // ---- By mouse.
    static QAction* Find(const QList<QAction*>& actions, const QString& text) {
        for (QAction* each : actions)
            if (QString(each->text()).remove('&') == text)
                return each;
        return nullptr;
    }
    void ClickMenu(const QString& menu, const QStringList& path) {
        QMenuBar& bar = *m_workspace->Window().menuBar();
        QAction* title = Find(bar.actions(), menu);
        ASSERT_TRUE(title);
        ClickIn(bar, bar.actionGeometry(title).center());
        for (const QString& each : path) {
            QMenu* open = nullptr;
            ASSERT_TRUE(QTest::qWaitFor([&] {
                open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                return open && Find(open->actions(), each);
            })) << qPrintable(each);
            ClickIn(*open, open->actionGeometry(Find(open->actions(), each)).center());
        }
        CWinApp::PumpMessages();
    }
    static void ClickIn(QWidget& widget, QPoint at) {
        QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          widget.mapTo(widget.window(), at));
        QApplication::processEvents();
    }
    static void ClickIn(QDialog& dialog, const QString& button) {
        for (QPushButton* each : dialog.findChildren<QPushButton*>())
            if (each->text() == button)
                return ClickIn(*each, each->rect().center());
        ADD_FAILURE() << "no button " << qPrintable(button);
    }

    // The moment of a beam over a uniform load q is q L^2 / 8 from the line between its ends to its middle.
    void ExpectPortal() {
        ASSERT_EQ(Document().GetSizeNodi(), 4);
        ASSERT_EQ(Document().GetSizeTravi(), 3);
        CTrave* beam = Document().GetIndexTrave(1);
        double end = 0, middle = 0;
        ASSERT_TRUE(beam->GetRisultato(CElementoSettings::M2, 0, CTraveRisultati::After, end));
        ASSERT_TRUE(beam->GetRisultato(CElementoSettings::M2, 2, CTraveRisultati::After, middle));
        EXPECT_NEAR(middle - end, 10.0 * 4 * 4 / 8, 1e-9);
        EXPECT_LT(end, -1) << "the corners of the frame are stiff";
        CDialogDocument* diagrams = m_workspace->ToolOf(View());
        ASSERT_TRUE(diagrams);
        EXPECT_EQ(diagrams->GetWindowText(), "Senza nome 1 : Diagramma - Trave 2");
    }

    const char* m_way = "";
    int m_pictures = 0;
};

} // namespace

TEST_F(PortalTest, ByKeyboardAlone) {
    m_way = "tastiera";
    for (const char* x : {"0", "4"}) {
        KeyMenu(Qt::Key_G, "Generazione Nodi Lineare");
        WaitForWindow("Generazione Nodi Lineare");
        Keys({Qt::Key_Right, Qt::Key_Right, Qt::Key_Tab}); // along Z
        Text("2");
        Key(Qt::Key_Tab);
        Text("3");
        Key(Qt::Key_Tab);
        Text(x);
        Picture("colonna");
        Key(Qt::Key_Return);
        WaitForWindow("Quovar");
    }
    Key(Qt::Key_3, Qt::ControlModifier);
    Picture("nodi");
    Key(Qt::Key_F6);
    for (const char* node : {"1", "2", "4", "3"}) {
        Text(node);
        Picture("trave");
        Key(Qt::Key_Return);
    }
    Keys({Qt::Key_Escape, Qt::Key_Escape});
    Keys({Qt::Key_Space, Qt::Key_Left}); // from the last node to the other foot
    Key(Qt::Key_Space, Qt::ShiftModifier);
    Picture("piedi");
    InForm([this](QDialog&) {
        for (int component = 0; component < 6; ++component)
            Key(Qt::Key_Tab);
        Key(Qt::Key_Space); // Incastro
        Picture("vincolo");
        Key(Qt::Key_Return);
    });
    Key(Qt::Key_F2);
    WaitForWindow("Quovar");
    Keys({Qt::Key_Up, Qt::Key_Up, Qt::Key_Right, Qt::Key_Space}); // along the column to the beam
    Picture("traverso");
    InForm([this](QDialog&) {
        Keys({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab});
        Text("-10");
        Picture("carico");
        Key(Qt::Key_Return);
    });
    Key(Qt::Key_F3);
    WaitForWindow("Quovar");
    Key(Qt::Key_F5);
    Picture("analisi");
    KeyMenu(Qt::Key_A, "Diagrammi");
    WaitForWindow("Trave 2");
    Picture("diagramma");
    ExpectPortal();
}

TEST_F(PortalTest, ByMouse) {
    using Generation = CDialogGenNodiLineare;
    m_way = "mouse";
    for (const char* x : {"0", "4"}) {
        ClickMenu("Genera", {"Generazione Nodi Lineare"});
        WaitForWindow("Generazione Nodi Lineare");
        DialogDriver dialog(*m_workspace->ToolOf(View()));
        dialog.Click(Generation::IDC_DIREZIONE_Z);
        dialog.ClickSpinUp(Generation::IDC_SPIN_NODI);
        dialog.Type(Generation::IDC_PASSO, "3");
        dialog.Type(Generation::IDC_X_INIZIALE, x);
        Picture("colonna");
        dialog.Click(IDOK);
        WaitForWindow("Quovar");
    }
    const auto at = [this](int node) { return PixelOf(*Document().Data().FindNode(node)); };
    ClickMenu("Vista", {"Prospetto XZ"});
    Picture("nodi");
    ClickMenu("Disegna", {"Trave"});
    for (const int node : {1, 2, 4, 3}) {
        Click(at(node));
        Picture("trave");
    }
    Keys({Qt::Key_Escape, Qt::Key_Escape});
    Click(at(1));
    Click(at(3), Qt::ShiftModifier);
    Picture("piedi");
    ClickMenu("Assegna", {"Vincoli pronti", "Incastro"});
    Picture("vincolo");
    Click({(at(2).x + at(4).x) / 2, at(2).y});
    InForm([this](QDialog& dialog) {
        auto& field = ::Find<QLineEdit>(dialog, "uniforme.z");
        ClickIn(field, field.rect().center());
        field.selectAll();
        Text("-10");
        Picture("carico");
        ClickIn(dialog, "OK");
    });
    ClickMenu("Assegna", {QStringLiteral("Carico\u2026")});
    WaitForWindow("Quovar");
    ClickMenu("Analisi", {"Esegui analisi"});
    Picture("analisi");
    ClickMenu("Analisi", {"Diagrammi"});
    WaitForWindow("Trave 2");
    Picture("diagramma");
    ExpectPortal();
}

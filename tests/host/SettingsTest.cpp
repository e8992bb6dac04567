// What is kept for the user: places of windows and shortcuts.
#include "dialogs/frame/tool/DialogDocument.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "host/ui/MainMenu.h"
#include "host/ui/MainWindow.h"
#include "platform/toolkit/Bridge.h"
#include "platform/window/Application.h"
#include "tests/host/AskedDialog.h"
#include "tests/host/WorkspaceTest.h"

#include <QAction>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QTableWidget>
#include <QTemporaryDir>

using namespace host;

namespace {

class SettingsTest : public WorkspaceTest {
  protected:
    // As the next run of the application; the settings are read from the file anew.
    void StartAgain() {
        m_workspace.reset();
        m_settings = std::make_unique<QSettings>(m_folder.filePath("quovar.ini"), QSettings::IniFormat);
        m_workspace = std::make_unique<Workspace>();
        m_workspace->Remember(*m_settings);
        m_workspace->Window().show();
        m_workspace->NewDocument();
        CWinApp::PumpMessages();
    }
    ~SettingsTest() override { m_workspace.reset(); } // before the settings
    QWidget& OpenWindow() { return *platform::WidgetOf(*OpenTool(CDialogGenNodiLineare::IDD)); }
    QString KeysOf(const char* command) { return m_workspace->Window().Command(command)->shortcut().toString(); }

    QTemporaryDir m_folder;
    std::unique_ptr<QSettings> m_settings;
};

} // namespace

// Faults: places that are forgotten, kept though nobody moved the window, or that lead to a screen that is gone.
TEST_F(SettingsTest, WindowsComeBackWhereTheyWere) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    StartAgain();
    EXPECT_TRUE(screen.contains(m_workspace->Window().geometry()));
    m_workspace->Window().setGeometry(40, 50, 600, 500);
    const QPoint free = OpenWindow().geometry().topLeft();
    m_workspace->Tools().EndAll();
    QWidget& moved = OpenWindow();
    EXPECT_EQ(moved.geometry().topLeft(), free);
    moved.setGeometry(QRect(QPoint(60, 70), moved.size()));
    StartAgain();
    EXPECT_EQ(m_workspace->Window().geometry(), QRect(40, 50, 600, 500));
    QWidget& back = OpenWindow();
    EXPECT_EQ(back.geometry().topLeft(), QPoint(60, 70));
    back.move(screen.bottomRight() + QPoint(300, 300));
    m_workspace->Window().setGeometry(screen.right() + 200, 0, screen.width() * 2, screen.height() * 2);
    StartAgain();
    EXPECT_TRUE(screen.contains(OpenWindow().geometry()));
    EXPECT_TRUE(screen.contains(m_workspace->Window().geometry()));
}

// Faults: one key for two commands, of which neither would run, a key that a field or the view needs, a change that is
// lost or that Predefiniti does not take back.
TEST_F(SettingsTest, ShortcutsAreChanged) {
    const struct {
        const char* keys;
        bool good;
    } texts[] = {{"", true},       {"Ctrl+T", true},         {"F12", true},    {"Del", true}, {"Alt+Shift+P", true},
                 {"T", false},     {"Shift+T", false},       {"Space", false}, {"Up", false}, {"pippo", false},
                 {"Ctrl+", false}, {"Ctrl+K, Ctrl+L", false}};
    for (const auto& each : texts)
        EXPECT_EQ(RefusalOfKeys(each.keys).isEmpty(), each.good) << each.keys;

    StartAgain();
    const auto cellOf = [this](QDialog& dialog, const char* command) {
        const Shortcuts& keys = m_workspace->Window().Menus().Keys();
        int row = 0;
        while (keys.at(static_cast<std::size_t>(row)).action->objectName() != command)
            ++row;
        return Find<QTableWidget>(dialog, "tasti").item(row, 1);
    };
    WhenAsked([&](QDialog& dialog) {
        cellOf(dialog, "disegna.trave")->setText("F5");
        m_user.ExpectMessage("\"F5\" appartiene al comando \"Disegna, Trave\".");
        dialog.accept();
        cellOf(dialog, "disegna.trave")->setText("Ctrl+T");
        cellOf(dialog, "analisi.esegui")->setText("");
        dialog.accept();
    });
    Trigger("strumenti.tasti");
    EXPECT_EQ(KeysOf("disegna.trave"), "Ctrl+T");
    StartAgain();
    EXPECT_EQ(KeysOf("disegna.trave"), "Ctrl+T");
    EXPECT_EQ(KeysOf("analisi.esegui"), "");
    WhenAsked([](QDialog& dialog) {
        for (QPushButton* each : dialog.findChildren<QPushButton*>())
            if (each->text() == "&Predefiniti")
                each->click();
        dialog.accept();
    });
    Trigger("strumenti.tasti");
    EXPECT_EQ(KeysOf("analisi.esegui"), "F5");
    m_settings->sync();
    EXPECT_TRUE(m_settings->allKeys().filter("tasti").isEmpty());
}

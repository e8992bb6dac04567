// Whose a key is: the control's, the dialog's, the application's, and never the main window's by itself.
#include "platform/controls/ComboBox.h"
#include "platform/private/peers/WindowPeer.h"
#include "tests/platform/LoggedDialog.h"

#include <QAction>
#include <QApplication>
#include <QTest>
#include <QWindow>

namespace {

// A main window whose shortcuts are counted, and an application that takes the keys that it is offered.
class ShortcutFrame : public CWnd {
  public:
    ShortcutFrame() {
        Create(nullptr, "Finestra", WS_VISIBLE, CRect(0, 0, 500, 400), nullptr, 0);
        for (const char* keys : {"Del", "Ctrl+Z", "Ctrl+A", "F5", "Ctrl+D", "x"}) {
            auto* action = new QAction(m_hWnd->widget);
            action->setShortcut(QKeySequence(keys));
            QObject::connect(action, &QAction::triggered, action, [this] { ++fired; });
            m_hWnd->widget->addAction(action);
        }
    }
    int fired = 0;
};

struct Key {
    UINT code;
    unsigned modifiers;
};
constexpr Key shortcuts[] = {{VK_DELETE, NoModifier}, {'Z', CtrlKey}, {'A', CtrlKey},
                             {VK_F1 + 4, NoModifier}, {'D', CtrlKey}, {'X', NoModifier}};

// A dialog over the frame, of a tool window's or another kind, with one control of each class.
class OverFrame : public LoggedDialog {
    TestTemplate m_template;

  public:
    OverFrame(CWnd& frame, DWORD exStyle)
        : LoggedDialog(&frame),
          m_template(ControlRows()
                         .Edit(100)
                         .Button("Altro", 200)
                         .Add("LISTBOX", "", 201, WS_TABSTOP)
                         .Add("SysTreeView32", "", 202, WS_TABSTOP)
                         .Add("COMBOBOX", "", 203, WS_TABSTOP | CBS_DROPDOWNLIST),
                     WS_POPUP | WS_CAPTION | WS_VISIBLE, 200, 120, exStyle) {
        Open();
    }
};

} // namespace

// A key typed in a tool window ran the main window's command: Del deleted the beam that a list showed.
TEST(Keys, OfADialogNeverReachTheMainWindow) {
    ShortcutFrame frame;
    for (const DWORD kind : {DWORD{0}, DWORD{WS_EX_TOOLWINDOW}}) {
        OverFrame dialog(frame, kind);
        DialogDriver user(dialog);
        for (const int control : {100, 200, 201, 202, 203}) {
            user.SetFocus(control);
            for (const Key& key : shortcuts)
                user.Press(key.code, key.modifiers);
            EXPECT_EQ(frame.fired, 0) << control;
        }
    }
    DialogDriver::Wait(100); // a window manager may still be at the dialog
    DialogDriver(frame).Press(VK_DELETE);
    EXPECT_EQ(frame.fired, 1) << "in the main window itself they work";
}

// The list that a combo box drops down is a window of its own, but its keys are the dialog's still.
TEST(Keys, OfADroppedDownListStayInTheDialog) {
    ShortcutFrame frame;
    OverFrame dialog(frame, WS_EX_TOOLWINDOW);
    dynamic_cast<CComboBox&>(*dialog.GetDlgItem(203)).AddString("uno");
    DialogDriver(dialog).Click(203);
    QWidget* list = QApplication::activePopupWidget();
    ASSERT_TRUE(list);
    QTest::keyClick(list->windowHandle(), Qt::Key_F5);
    QTest::keyClick(list->windowHandle(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(frame.fired, 0);
    list->close();
}

// A host that may take function keys must not be asked for those that a field has used, nor miss one that nobody did.
TEST(Keys, TheApplicationIsOfferedWhatNobodyUsed) {
    Opened<> dialog;
    std::vector<UINT> offered;
    TestApp::Instance().keyHandler = [&](const MSG& message) { return offered.push_back(UINT(message.wParam)), TRUE; };
    dialog.onKey = [](UINT key) { return BOOL(key == VK_F1 + 6); };
    for (const UINT key : {UINT{'1'}, UINT{VK_F1 + 4}, UINT{VK_F1 + 6}, UINT{VK_LEFT}, UINT{VK_TAB}, UINT{VK_F1 + 5}})
        dialog.user.Press(key);
    dialog.user.Press('S', CtrlKey);
    EXPECT_EQ(offered, (std::vector<UINT>{VK_F1 + 4, VK_F1 + 5, VK_CONTROL, 'S'}));
    TestApp::Instance().keyHandler = nullptr;
}

// A list that ends its dialog on Enter went on to press the default button, which deleted what had been chosen.
TEST(Keys, ADialogThatHasEndedTakesNeitherKeysNorCommands) {
    const TestTemplate source(ControlRows().Edit(100).Button("Altro", 200, BS_DEFPUSHBUTTON));
    LoggedDialog dialog;
    dialog.onKey = [&](UINT key) {
        if (key == VK_RETURN || key == 'B')
            dialog.EndDialog(key == 'B' ? 8 : 9);
        return FALSE;
    };
    int offered = 0;
    TestApp::Instance().keyHandler = [&](const MSG&) { return ++offered, TRUE; };
    for (const UINT key : {UINT{VK_RETURN}, UINT{'B'}}) {
        std::string typed;
        const auto script = [&](DialogDriver& user) {
            const CWnd* edit = dialog.GetDlgItem(100);
            user.Press(key);
            typed = edit->GetWindowText().ToUtf8();
            dialog.SendMessage(WM_COMMAND, MAKEWPARAM(200, BN_CLICKED)); // one that was waiting
        };
        EXPECT_EQ(dialog.Run(script), key == 'B' ? 8 : 9);
        EXPECT_EQ(typed, "");
    }
    EXPECT_EQ(dialog.Count("button") + offered, 0);
    EXPECT_EQ(dialog.Count("left"), 2) << "the focus leaves the edit while the dialog closes";
    TestApp::Instance().keyHandler = nullptr;
}

// A hidden dialog that is shown once more works.
TEST(Keys, ADialogThatIsShownAgainTakesKeys) {
    Opened<> dialog;
    dialog.EndDialog(IDOK);
    dialog.ShowWindow(SW_SHOW);
    dialog.user.Click(200);
    EXPECT_EQ(dialog.Count("button"), 1);
}

// Keys of code 0 cannot be told apart in a key-down handler.
TEST(Keys, EveryKeyOfTheMainKeyboardHasACode) {
    const struct {
        int key;
        UINT scanCode; // 0 where the display server tells none
        UINT code;
    } cases[] = {
        {Qt::Key_Egrave, 0, VK_OEM_1},
        {Qt::Key_Eacute, 34, VK_OEM_1},
        {Qt::Key_Ograve, 47, VK_OEM_3},
        {Qt::Key_Agrave, 0, VK_OEM_7},
        {Qt::Key_Ugrave, 51, VK_OEM_2},
        {Qt::Key_Igrave, 21, VK_OEM_6},
        {Qt::Key_Exclam, 10, '1'},
        {Qt::Key_Exclam, 0, '1'},
        {Qt::Key_QuoteDbl, 11, '2'},
        {Qt::Key_At, 11, '2'},
        {Qt::Key_At, 47, VK_OEM_3},
        {Qt::Key_Slash, 16, '7'},
        {Qt::Key_Slash, 61, VK_OEM_2},
        {Qt::Key_Equal, 19, '0'},
        {Qt::Key_Equal, 21, VK_OEM_PLUS},
        {Qt::Key_Less, 94, VK_OEM_102},
        {Qt::Key_Apostrophe, 20, VK_OEM_4},
        {Qt::Key_Question, 20, VK_OEM_4},
        {Qt::Key_sterling, 12, '3'},
        {Qt::Key_ParenRight, 0, '9'},
        {Qt::Key_Semicolon, 59, VK_OEM_COMMA},
        {Qt::Key_Backslash, 49, VK_OEM_5},
        {Qt::Key_CapsLock, 66, VK_CAPITAL},
        {0x0436, 47, VK_OEM_8},
        {Qt::Key_Dead_Circumflex, 21, VK_OEM_8},
    };
    for (const auto& [key, scanCode, code] : cases)
        EXPECT_EQ(platform::VirtualKey(key, false, scanCode), code) << key << " " << scanCode;
    EXPECT_EQ(platform::VirtualKey(Qt::Key_Slash, true, 106), UINT{VK_DIVIDE});
}

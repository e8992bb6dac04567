// Drives an open dialog by control number as a user would: keys and mouse buttons go to the native window, so focus,
// modality, default buttons, mnemonics and context menus behave as on a screen. A control that cannot be used (missing,
// hidden, disabled, outside its dialog) fails the test.
#pragma once

#include "platform/window/Window.h"

#include <QPointer>
#include <QWidget>

#include <initializer_list>
#include <string>
#include <vector>

enum KeyModifier : unsigned { NoModifier = 0, ShiftKey = 1, CtrlKey = 2, AltKey = 4 };

class DialogDriver {
  public:
    // The dialog must have its window; a closed one fails the test in whatever is asked of it later.
    explicit DialogDriver(CWnd& dialog);

    // Keyboard. `key` is a VK_ code; the numeric keypad has codes of its own.
    void Press(UINT key, unsigned modifiers = NoModifier);
    // One after the other.
    void Press(std::initializer_list<int> keys);
    // Characters to whatever has the focus, UTF-8.
    void TypeKeys(const std::string& text);
    // Clicks the control, selects what it holds and types over it, UTF-8.
    void Type(int id, const std::string& text);

    // Mouse.
    void Click(int id, unsigned modifiers = NoModifier);
    void RightClick(int id);
    void ClickSpinUp(int id);
    void ClickSpinDown(int id);
    void ClickRow(int id, int row, unsigned modifiers = NoModifier);
    void DoubleClickRow(int id, int row);
    // A point of the dialog's client area, pixels.
    void ClickAt(int x, int y);
    void MoveTo(int x, int y);
    // The close box of the frame.
    void CloseBox();

    // What the user sees. Texts are UTF-8.
    std::string Caption() const;
    std::string Text(int id) const;
    bool Checked(int id) const;
    bool Enabled(int id) const;
    bool Visible(int id) const;
    int Focus() const; // control number, 0 when none of the dialog's controls has the focus
    std::vector<std::string> Rows(int id) const;
    std::vector<int> SelectedRows(int id) const;

    // What a program does to a control, without the user.
    void SetText(int id, const std::string& text);
    void SetFocus(int id);

    // Lets timers run, milliseconds.
    static void Wait(int milliseconds);

    bool IsOpen() const;
    // Brings the window to the front, as the window manager does for the user's click on its frame.
    void Activate();

  private:
    CWnd* Control(int id) const;
    QWidget* Surface(int id) const;
    QWidget* UsableSurface(int id) const;
    void ClickPoint(QWidget* surface, const QPoint& point, unsigned modifiers, bool right, bool twice);
    void ClickSpin(int id, bool up);
    bool RowPoint(int id, int row, QPoint& point) const;

    QPointer<QWidget> m_widget; // the dialog's; null once the toolkit has deleted it
    CWnd* m_dialog;
};

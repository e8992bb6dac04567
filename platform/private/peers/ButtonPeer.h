// Buttons of every kind, on the toolkit's buttons, and the group box.
#pragma once

#include "platform/private/peers/Hosted.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMouseEvent>

namespace platform {

// What the kinds of a style's button are.
inline UINT ButtonType(DWORD style) {
    return style & BS_TYPEMASK;
}
UINT ButtonDialogCode(DWORD style);
int NextCheck(DWORD style, int check); // after a click
// Checks the radio button; of its group, which reaches from one WS_GROUP to the next, it stays the only one.
void CheckRadio(WindowPeer& button);
// The text with line ends put in so that no line is wider than `width` pixels, as far as words allow.
QString Wrapped(const QString& text, const QFontMetrics& metrics, int width);
std::unique_ptr<CWnd> MakeButtonObject();

// `Base` is QPushButton, QCheckBox or QRadioButton.
template <class Base>
class ButtonOf final : public Hosted<Base> {
  public:
    ButtonOf(const ControlSpec& spec, WindowPeer& parentPeer);

    CString Text() const override { return m_text; }
    void SetText(const CString& text) override;
    UINT DialogCode() const override { return ButtonDialogCode(WindowPeer::style); }
    std::unique_ptr<CWnd> MakeObject() const override { return MakeButtonObject(); }
    void Click() override { Base::click(); }
    int Check() const override { return m_check; }
    void SetCheck(int check) override;
    void FocusByKeyboard() override { this->setFocus(Qt::TabFocusReason); }
    void StyleChanged() override;
    void Resized() override { ShowText(); }

  protected:
    void nextCheckState() override;
    bool hitButton(const QPoint& point) const override { return this->rect().contains(point); }
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void ShowText();

    CString m_text; // as set, with its '&'
    int m_check = 0;
};

class GroupBoxPeer final : public Hosted<QWidget> {
  public:
    GroupBoxPeer(const ControlSpec& spec, WindowPeer& parentPeer);

    CString Text() const override { return m_text; }
    void SetText(const CString& text) override;
    UINT DialogCode() const override { return IsStatic; } // its mnemonic belongs to the first tab stop inside
    std::unique_ptr<CWnd> MakeObject() const override { return MakeButtonObject(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    CString m_text;
};

} // namespace platform

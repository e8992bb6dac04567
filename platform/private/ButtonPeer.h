// Buttons of every kind, on the toolkit's buttons, and the group box.
#pragma once

#include "platform/private/Hosted.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>

namespace platform {

class ButtonControl {
  public:
    virtual ~ButtonControl() = default;
    virtual bool pushed() const = 0;
    virtual void setPushed(bool down) = 0;
    virtual void setPicture(const QPixmap& picture) = 0;
};

// What the kinds of a style's button are.
inline UINT buttonType(DWORD style) {
    return style & BS_TYPEMASK;
}
UINT buttonDialogCode(DWORD style);
int nextCheck(DWORD style, int check); // after a click
// Checks the radio button; of its group, which reaches from one WS_GROUP to the next, it stays the only one.
void checkRadio(WindowPeer& button);
// The text with line ends put in so that no line is wider than `width` pixels, as far as words allow.
QString wrapped(const QString& text, const QFontMetrics& metrics, int width);
std::unique_ptr<CWnd> makeButtonObject();

// `Base` is QPushButton, QCheckBox or QRadioButton.
template <class Base>
class ButtonOf final : public Hosted<Base>, public ButtonControl {
  public:
    ButtonOf(const ControlSpec& spec, WindowPeer& parentPeer);

    CString text() const override { return m_text; }
    void setText(const CString& text) override;
    UINT dialogCode() const override { return buttonDialogCode(WindowPeer::style); }
    std::unique_ptr<CWnd> makeObject() const override { return makeButtonObject(); }
    void click() override { Base::click(); }
    int check() const override { return m_check; }
    void setCheck(int check) override;
    void focusByKeyboard() override { this->setFocus(Qt::TabFocusReason); }
    void styleChanged() override;
    void resized() override { showText(); }

    bool pushed() const override { return this->isDown(); }
    void setPushed(bool down) override { this->setDown(down); }
    void setPicture(const QPixmap& picture) override;

  protected:
    void nextCheckState() override;
    bool hitButton(const QPoint& point) const override { return this->rect().contains(point); }
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void showText();

    CString m_text; // as set, with its '&'
    int m_check = 0;
    QPixmap m_picture;
};

class GroupBoxPeer final : public Hosted<QWidget> {
  public:
    GroupBoxPeer(const ControlSpec& spec, WindowPeer& parentPeer);

    CString text() const override { return m_text; }
    void setText(const CString& text) override;
    UINT dialogCode() const override { return IsStatic; } // its mnemonic belongs to the first tab stop inside
    std::unique_ptr<CWnd> makeObject() const override { return makeButtonObject(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    CString m_text;
};

} // namespace platform

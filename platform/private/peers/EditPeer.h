// Edit fields of one line and of several.
#pragma once

#include "platform/private/peers/Hosted.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include <functional>

namespace platform {

// What both kinds offer. Positions are bytes of text().
class EditControl {
  public:
    virtual ~EditControl() = default;
    virtual void Select(int start, int end, bool scroll) = 0; // 0 <= start, 0 <= end, cut to the text
    virtual int Caret() const = 0;
    virtual void Insert(const CString& text) = 0;

    // The arrows attached to this field, when Up (+1) and Down (-1) are theirs.
    std::function<void(int)> stepSpin;
};

class LineEditPeer final : public Hosted<QLineEdit>, public EditControl {
  public:
    LineEditPeer(const ControlSpec& spec, WindowPeer& parent);

    CString Text() const override;
    void SetText(const CString& text) override;
    UINT DialogCode() const override { return WantsArrows | WantsCharacters; }
    std::unique_ptr<CWnd> MakeObject() const override;
    void FocusByKeyboard() override;
    void FocusChanged(bool gained) override { NotifyParent(gained ? EN_SETFOCUS : EN_KILLFOCUS); }
    LRESULT DefaultMessage(UINT message, WPARAM wParam, LPARAM) override { return PlayKey(message, wParam); }

    void Select(int start, int end, bool scroll) override;
    int Caret() const override { return cursorPosition(); }
    void Insert(const CString& text) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

  private:
    bool PlayKey(UINT message, WPARAM wParam);
    void AllowLength(int length);
    std::pair<int, int> Selection() const;
};

class TextEditPeer final : public HostedScrollArea<QPlainTextEdit>, public EditControl {
  public:
    TextEditPeer(const ControlSpec& spec, WindowPeer& parent);

    CString Text() const override; // lines end with "\r\n"
    void SetText(const CString& text) override;
    UINT DialogCode() const override;
    std::unique_ptr<CWnd> MakeObject() const override;
    void FocusByKeyboard() override;
    void FocusChanged(bool gained) override { NotifyParent(gained ? EN_SETFOCUS : EN_KILLFOCUS); }
    LRESULT DefaultMessage(UINT message, WPARAM wParam, LPARAM) override;

    void Select(int start, int end, bool scroll) override;
    int Caret() const override;
    void Insert(const CString& text) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    int ToBytes(int position) const; // a line end is one character in the toolkit, two here
    int FromBytes(int position) const;
};

} // namespace platform

// Edit fields of one line and of several.
#pragma once

#include "platform/private/Hosted.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include <functional>

namespace platform {

// What both kinds offer. Positions are bytes of text().
class EditControl {
  public:
    virtual ~EditControl() = default;
    virtual void select(int start, int end, bool scroll) = 0; // 0 <= start, 0 <= end, cut to the text
    virtual std::pair<int, int> selection() const = 0;
    virtual int caret() const = 0;
    virtual void insert(const CString& text) = 0;
    virtual void setLimit(int characters) = 0;
    virtual void setReadOnly(bool readOnly) = 0;
    virtual bool modified() const = 0;
    virtual void setModified(bool modified) = 0;
    virtual int lineCount() const { return 1; }
    virtual void scrollLines(int) {}
    virtual void setPassword(bool) {}
    virtual void copySelection() = 0;
    virtual void cutSelection() = 0;
    virtual void pasteClipboard() = 0;
    virtual void undoChange() = 0;

    // The arrows attached to this field, when Up (+1) and Down (-1) are theirs.
    std::function<void(int)> stepSpin;
};

class LineEditPeer final : public Hosted<QLineEdit>, public EditControl {
  public:
    LineEditPeer(const ControlSpec& spec, WindowPeer& parent);

    CString text() const override;
    void setText(const CString& text) override;
    UINT dialogCode() const override { return WantsArrows | WantsCharacters; }
    std::unique_ptr<CWnd> makeObject() const override;
    void focusByKeyboard() override;
    void focusChanged(bool gained) override { notifyParent(gained ? EN_SETFOCUS : EN_KILLFOCUS); }
    LRESULT defaultMessage(UINT message, WPARAM wParam, LPARAM) override { return playKey(message, wParam); }

    void select(int start, int end, bool scroll) override;
    std::pair<int, int> selection() const override;
    int caret() const override { return cursorPosition(); }
    void insert(const CString& text) override;
    void setLimit(int characters) override;
    void setReadOnly(bool readOnly) override;
    bool modified() const override { return isModified(); }
    void setModified(bool modified) override { QLineEdit::setModified(modified); }
    void setPassword(bool hidden) override;
    void copySelection() override { copy(); }
    void cutSelection() override { cut(); }
    void pasteClipboard() override { paste(); }
    void undoChange() override { undo(); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool playKey(UINT message, WPARAM wParam);
    void allowLength(int length);

    int m_limit = 32767; // of what the user types; the program may set more
};

class TextEditPeer final : public HostedScrollArea<QPlainTextEdit>, public EditControl {
  public:
    TextEditPeer(const ControlSpec& spec, WindowPeer& parent);

    CString text() const override; // lines end with "\r\n"
    void setText(const CString& text) override;
    UINT dialogCode() const override;
    std::unique_ptr<CWnd> makeObject() const override;
    void focusByKeyboard() override;
    void focusChanged(bool gained) override { notifyParent(gained ? EN_SETFOCUS : EN_KILLFOCUS); }
    LRESULT defaultMessage(UINT message, WPARAM wParam, LPARAM) override;

    void select(int start, int end, bool scroll) override;
    std::pair<int, int> selection() const override;
    int caret() const override;
    void insert(const CString& text) override;
    void setLimit(int characters) override { m_limit = characters; }
    void setReadOnly(bool readOnly) override;
    bool modified() const override;
    void setModified(bool modified) override;
    int lineCount() const override { return blockCount(); }
    void scrollLines(int lines) override;
    void copySelection() override { copy(); }
    void cutSelection() override { cut(); }
    void pasteClipboard() override { paste(); }
    void undoChange() override { undo(); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    int toBytes(int position) const; // a line end is one character in the toolkit, two here
    int fromBytes(int position) const;

    int m_limit = 0; // 0 for none
};

} // namespace platform

#include "platform/private/peers/EditPeer.h"

#include "platform/controls/Edit.h"
#include "platform/private/peers/Controls.h"
#include "platform/private/peers/EditText.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>

#include <algorithm>
#include <memory>
#include <utility>

namespace platform {

namespace {

void TellChange(WindowPeer& peer) {
    const QPointer<QWidget> alive = peer.widget;
    peer.NotifyParent(EN_UPDATE);
    if (alive && !peer.destroyed)
        peer.NotifyParent(EN_CHANGE);
}

bool WantsFrame(const ControlSpec& spec) {
    return (spec.style & WS_BORDER) || (spec.exStyle & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
}

Qt::Alignment AlignmentOf(DWORD style) {
    return style & ES_RIGHT ? Qt::AlignRight : style & ES_CENTER ? Qt::AlignHCenter : Qt::AlignLeft;
}

// A field that only shows looks like the dialog behind it.
template <class Field>
void ShowReadOnly(Field& field) {
    field.setReadOnly(true);
    QPalette palette;
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    field.setPalette(palette);
}

constexpr int typedLimit = 32767; // characters of what the user types in one line; the program may set more

bool IsTyping(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().at(0).isPrint() &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

CString WithLineEnds(const QString& text) {
    QString lines = text;
    lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return FromQString(lines);
}

QString WithoutReturns(const CString& text) {
    QString lines = ToQString(text);
    lines.remove(QLatin1Char('\r'));
    return lines;
}

} // namespace

LineEditPeer::LineEditPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : Hosted<QLineEdit>(&parentPeer, parentPeer.Surface()) {
    ApplySpec(*this, spec);
    setAlignment(AlignmentOf(spec.style) | Qt::AlignVCenter);
    setFrame(WantsFrame(spec));
    if (spec.style & ES_PASSWORD)
        setEchoMode(Password);
    if (spec.style & ES_READONLY)
        ShowReadOnly(*this);
    setValidator(new LineValidator(spec.style, this));
    LineEditPeer::SetText(spec.text);
    connect(this, &QLineEdit::textChanged, this, [this] { TellChange(*this); });
}

CString LineEditPeer::Text() const {
    return FromQString(QLineEdit::text());
}

void LineEditPeer::SetText(const CString& text) {
    const QString shown = ToQString(InCase(text, WindowPeer::style));
    const bool same = shown == QLineEdit::text();
    AllowLength(static_cast<int>(shown.size()));
    QLineEdit::setText(shown);
    if (!hasFocus())
        setCursorPosition(0); // a long text shows its beginning
    if (same)
        TellChange(*this); // the toolkit tells nothing of it; dialogs count each writing of theirs
}

std::unique_ptr<CWnd> LineEditPeer::MakeObject() const {
    return std::make_unique<CEdit>();
}

void LineEditPeer::FocusByKeyboard() {
    setFocus(Qt::TabFocusReason);
    selectAll();
}

void LineEditPeer::Select(int start, int end, bool) {
    const int length = static_cast<int>(QLineEdit::text().size());
    start = std::min(start, length);
    end = std::min(end, length);
    if (start == end)
        setCursorPosition(end); // clears the selection as well
    else
        setSelection(start, end - start);
}

std::pair<int, int> LineEditPeer::Selection() const {
    if (hasSelectedText())
        return {selectionStart(), selectionEnd()};
    return {cursorPosition(), cursorPosition()};
}

void LineEditPeer::Insert(const CString& text) {
    AllowLength(static_cast<int>(QLineEdit::text().size()) + text.GetLength());
    QLineEdit::insert(ToQString(InCase(text, WindowPeer::style)));
}

// The limit is for the user; the toolkit would cut the program's text as well. Setting it sets the text again there,
// and the selection with it is lost.
void LineEditPeer::AllowLength(int length) {
    const int wanted = std::max(typedLimit, length);
    if (wanted == maxLength())
        return;
    const auto [start, end] = Selection();
    setMaxLength(wanted);
    Select(start, end, false);
}

bool LineEditPeer::PlayKey(UINT message, WPARAM wParam) {
    return platform::PlayKey(*this, message, wParam);
}

void LineEditPeer::keyPressEvent(QKeyEvent* event) {
    const bool up = event->key() == Qt::Key_Up;
    if (stepSpin && (up || event->key() == Qt::Key_Down)) {
        stepSpin(up ? 1 : -1);
        return;
    }
    if (!IsTyping(*event)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    const QString typed = TypedText(event->text(), WindowPeer::style);
    if (typed.isEmpty())
        return;
    AllowLength(static_cast<int>(QLineEdit::text().size()));
    QKeyEvent changed(event->type(), event->key(), event->modifiers(), typed, event->isAutoRepeat());
    QLineEdit::keyPressEvent(&changed);
}

// Keys that the system makes one character of, such as an accent and its letter, arrive past the key events.
void LineEditPeer::inputMethodEvent(QInputMethodEvent* event) {
    AllowLength(static_cast<int>(QLineEdit::text().size()));
    QInputMethodEvent typed(event->preeditString(), event->attributes());
    typed.setCommitString(TypedText(event->commitString(), WindowPeer::style), event->replacementStart(),
                          event->replacementLength());
    QLineEdit::inputMethodEvent(&typed);
    event->setAccepted(typed.isAccepted());
}

TextEditPeer::TextEditPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : HostedScrollArea<QPlainTextEdit>(&parentPeer, parentPeer.Surface()) {
    ApplySpec(*this, spec);
    setFocusPolicy(Qt::StrongFocus);
    setTabChangesFocus(true);
    setFrameShape(WantsFrame(spec) ? StyledPanel : NoFrame);
    setLineWrapMode(spec.style & (ES_AUTOHSCROLL | WS_HSCROLL) ? NoWrap : WidgetWidth);
    setVerticalScrollBarPolicy(spec.style & WS_VSCROLL ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(spec.style & WS_HSCROLL ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    if (spec.style & ES_READONLY)
        ShowReadOnly(*this);
    TextEditPeer::SetText(spec.text);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { TellChange(*this); });
}

CString TextEditPeer::Text() const {
    return WithLineEnds(toPlainText());
}

void TextEditPeer::SetText(const CString& text) {
    const QString shown = WithoutReturns(InCase(text, WindowPeer::style));
    if (shown != toPlainText()) {
        const QSignalBlocker silent(this); // of a field of several lines only the user's changes are told
        setPlainText(shown);
    }
}

// Escape and Tab stay the dialog's; Enter is the field's when it asks for it.
UINT TextEditPeer::DialogCode() const {
    return WantsArrows | WantsCharacters | (WindowPeer::style & ES_WANTRETURN ? WantsReturn : 0u);
}

std::unique_ptr<CWnd> TextEditPeer::MakeObject() const {
    return std::make_unique<CEdit>();
}

void TextEditPeer::FocusByKeyboard() {
    setFocus(Qt::TabFocusReason);
    selectAll();
}

LRESULT TextEditPeer::DefaultMessage(UINT message, WPARAM wParam, LPARAM) {
    return PlayKey(*this, message, wParam);
}

int TextEditPeer::ToBytes(int position) const {
    return position + document()->findBlock(position).blockNumber();
}

int TextEditPeer::FromBytes(int position) const {
    int line = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next(), ++line)
        if (position - line < block.position() + block.length())
            return std::max(position - line, block.position());
    return document()->characterCount() - 1;
}

void TextEditPeer::Select(int start, int end, bool scroll) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(FromBytes(start));
    cursor.setPosition(FromBytes(end), QTextCursor::KeepAnchor);
    const int top = verticalScrollBar()->value();
    setTextCursor(cursor);
    if (scroll)
        ensureCursorVisible();
    else
        verticalScrollBar()->setValue(top);
}

int TextEditPeer::Caret() const {
    return ToBytes(textCursor().position());
}

void TextEditPeer::Insert(const CString& text) {
    insertPlainText(WithoutReturns(InCase(text, WindowPeer::style)));
}

void TextEditPeer::keyPressEvent(QKeyEvent* event) {
    if (!IsTyping(*event)) {
        QPlainTextEdit::keyPressEvent(event);
        return;
    }
    const QString typed = TypedText(event->text(), WindowPeer::style);
    if (typed.isEmpty())
        return;
    QKeyEvent changed(event->type(), event->key(), event->modifiers(), typed, event->isAutoRepeat());
    QPlainTextEdit::keyPressEvent(&changed);
}

void TextEditPeer::insertFromMimeData(const QMimeData* source) {
    if (source && source->hasText())
        Insert(FromQString(InCodePage(source->text())));
}

void TextEditPeer::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent typed(event->preeditString(), event->attributes());
    typed.setCommitString(TypedText(event->commitString(), WindowPeer::style), event->replacementStart(),
                          event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&typed);
    event->setAccepted(typed.isAccepted());
}

WindowPeer* CreateEdit(const ControlSpec& spec, WindowPeer& parent) {
    if (spec.style & ES_MULTILINE)
        return new TextEditPeer(spec, parent);
    return new LineEditPeer(spec, parent);
}

} // namespace platform

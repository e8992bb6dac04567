#include "platform/private/EditPeer.h"

#include "platform/Edit.h"
#include "platform/private/Controls.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QValidator>

#include <algorithm>

namespace platform {

namespace {

void tellChange(WindowPeer& peer) {
    const QPointer<QWidget> alive = peer.widget;
    peer.notifyParent(EN_UPDATE);
    if (alive && !peer.destroyed)
        peer.notifyParent(EN_CHANGE);
}

bool wantsFrame(const ControlSpec& spec) {
    return (spec.style & WS_BORDER) || (spec.exStyle & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
}

Qt::Alignment alignmentOf(DWORD style) {
    return style & ES_RIGHT ? Qt::AlignRight : style & ES_CENTER ? Qt::AlignHCenter : Qt::AlignLeft;
}

// A field that only shows looks like the dialog behind it.
void showReadOnly(QWidget& widget, bool readOnly) {
    QPalette palette;
    if (readOnly)
        palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    widget.setPalette(palette);
}

CString inCase(const CString& text, DWORD style) {
    CString result = text;
    if (style & ES_UPPERCASE)
        result.MakeUpper();
    else if (style & ES_LOWERCASE)
        result.MakeLower();
    return result;
}

// What a key may type into a field of that style; empty when it types nothing there. Characters outside the code page
// would turn into question marks as soon as the program reads them.
QString typedText(const QString& text, DWORD style) {
    if (text.isEmpty() || !text.at(0).isPrint())
        return text;
    const CString bytes = fromQString(text);
    if (bytes.Find('?') >= 0 && !text.contains(QLatin1Char('?')))
        return {};
    const auto notDigit = [](QChar c) { return c < QLatin1Char('0') || c > QLatin1Char('9'); };
    if ((style & ES_NUMBER) && std::any_of(text.begin(), text.end(), notDigit))
        return {};
    return toQString(inCase(bytes, style));
}

bool isTyping(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().at(0).isPrint() &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

// A field of one line holds no line ends: a number copied from a sheet brings one along and would be no number.
class OneLine : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& input, int& caret) const override {
        const auto isLineEnd = [](QChar c) { return c == QLatin1Char('\n') || c == QLatin1Char('\r'); };
        if (std::any_of(input.begin(), input.end(), isLineEnd)) {
            caret -= static_cast<int>(std::count_if(input.begin(), input.begin() + caret, isLineEnd));
            input.removeIf(isLineEnd);
        }
        return Acceptable;
    }
};

CString withLineEnds(const QString& text) {
    QString lines = text;
    lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return fromQString(lines);
}

QString withoutReturns(const CString& text) {
    QString lines = toQString(text);
    lines.remove(QLatin1Char('\r'));
    return lines;
}

} // namespace

LineEditPeer::LineEditPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : Hosted<QLineEdit>(&parentPeer, parentPeer.surface()) {
    applySpec(*this, spec);
    setAlignment(alignmentOf(spec.style) | Qt::AlignVCenter);
    setFrame(wantsFrame(spec));
    if (spec.style & ES_PASSWORD)
        setEchoMode(Password);
    if (spec.style & ES_READONLY)
        setReadOnly(true);
    setValidator(new OneLine(this));
    LineEditPeer::setText(spec.text);
    connect(this, &QLineEdit::textChanged, this, [this] { tellChange(*this); });
}

CString LineEditPeer::text() const {
    return fromQString(QLineEdit::text());
}

void LineEditPeer::setText(const CString& text) {
    const QString shown = toQString(inCase(text, WindowPeer::style));
    allowLength(static_cast<int>(shown.size()));
    QLineEdit::setText(shown);
    if (!hasFocus())
        setCursorPosition(0); // a long text shows its beginning
}

std::unique_ptr<CWnd> LineEditPeer::makeObject() const {
    return std::make_unique<CEdit>();
}

void LineEditPeer::focusByKeyboard() {
    setFocus(Qt::TabFocusReason);
    selectAll();
}

void LineEditPeer::select(int start, int end, bool) {
    const int length = static_cast<int>(QLineEdit::text().size());
    start = std::min(start, length);
    end = std::min(end, length);
    if (start == end)
        setCursorPosition(end); // clears the selection as well
    else
        setSelection(start, end - start);
}

std::pair<int, int> LineEditPeer::selection() const {
    if (hasSelectedText())
        return {selectionStart(), selectionEnd()};
    return {cursorPosition(), cursorPosition()};
}

void LineEditPeer::insert(const CString& text) {
    allowLength(static_cast<int>(QLineEdit::text().size()) + text.GetLength());
    QLineEdit::insert(toQString(inCase(text, WindowPeer::style)));
}

void LineEditPeer::setLimit(int characters) {
    m_limit = characters > 0 ? characters : 32767;
    allowLength(static_cast<int>(QLineEdit::text().size()));
}

// The limit is for the user; the toolkit would cut the program's text as well. Setting it sets the text again there,
// and the selection with it is lost.
void LineEditPeer::allowLength(int length) {
    const int wanted = std::max(m_limit, length);
    if (wanted == maxLength())
        return;
    const auto [start, end] = selection();
    setMaxLength(wanted);
    select(start, end, false);
}

void LineEditPeer::setReadOnly(bool readOnly) {
    WindowPeer::style = readOnly ? WindowPeer::style | ES_READONLY : WindowPeer::style & ~DWORD{ES_READONLY};
    QLineEdit::setReadOnly(readOnly);
    showReadOnly(*this, readOnly);
}

void LineEditPeer::setPassword(bool hidden) {
    setEchoMode(hidden ? Password : Normal);
}

bool LineEditPeer::playKey(UINT message, WPARAM wParam) {
    return platform::playKey(*this, message, wParam);
}

void LineEditPeer::keyPressEvent(QKeyEvent* event) {
    const bool up = event->key() == Qt::Key_Up;
    if (stepSpin && (up || event->key() == Qt::Key_Down)) {
        stepSpin(up ? 1 : -1);
        return;
    }
    if (!isTyping(*event)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    const QString typed = typedText(event->text(), WindowPeer::style);
    if (typed.isEmpty())
        return;
    allowLength(static_cast<int>(QLineEdit::text().size()));
    QKeyEvent changed(event->type(), event->key(), event->modifiers(), typed, event->isAutoRepeat());
    QLineEdit::keyPressEvent(&changed);
}

TextEditPeer::TextEditPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : HostedScrollArea<QPlainTextEdit>(&parentPeer, parentPeer.surface()) {
    applySpec(*this, spec);
    setFocusPolicy(Qt::StrongFocus);
    setTabChangesFocus(true);
    setFrameShape(wantsFrame(spec) ? StyledPanel : NoFrame);
    setLineWrapMode(spec.style & (ES_AUTOHSCROLL | WS_HSCROLL) ? NoWrap : WidgetWidth);
    setVerticalScrollBarPolicy(spec.style & WS_VSCROLL ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(spec.style & WS_HSCROLL ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    if (spec.style & ES_READONLY)
        setReadOnly(true);
    TextEditPeer::setText(spec.text);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { tellChange(*this); });
}

CString TextEditPeer::text() const {
    return withLineEnds(toPlainText());
}

void TextEditPeer::setText(const CString& text) {
    const QString shown = withoutReturns(inCase(text, WindowPeer::style));
    if (shown != toPlainText())
        setPlainText(shown);
    document()->setModified(false);
}

// Escape and Tab stay the dialog's; Enter is the field's when it asks for it.
UINT TextEditPeer::dialogCode() const {
    return WantsArrows | WantsCharacters | (WindowPeer::style & ES_WANTRETURN ? WantsReturn : 0u);
}

std::unique_ptr<CWnd> TextEditPeer::makeObject() const {
    return std::make_unique<CEdit>();
}

void TextEditPeer::focusByKeyboard() {
    setFocus(Qt::TabFocusReason);
    selectAll();
}

LRESULT TextEditPeer::defaultMessage(UINT message, WPARAM wParam, LPARAM) {
    return playKey(*this, message, wParam);
}

int TextEditPeer::toBytes(int position) const {
    return position + document()->findBlock(position).blockNumber();
}

int TextEditPeer::fromBytes(int position) const {
    int line = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next(), ++line)
        if (position - line < block.position() + block.length())
            return std::max(position - line, block.position());
    return document()->characterCount() - 1;
}

void TextEditPeer::select(int start, int end, bool scroll) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(fromBytes(start));
    cursor.setPosition(fromBytes(end), QTextCursor::KeepAnchor);
    const int top = verticalScrollBar()->value();
    setTextCursor(cursor);
    if (scroll)
        ensureCursorVisible();
    else
        verticalScrollBar()->setValue(top);
}

std::pair<int, int> TextEditPeer::selection() const {
    return {toBytes(textCursor().selectionStart()), toBytes(textCursor().selectionEnd())};
}

int TextEditPeer::caret() const {
    return toBytes(textCursor().position());
}

void TextEditPeer::insert(const CString& text) {
    insertPlainText(withoutReturns(inCase(text, WindowPeer::style)));
}

void TextEditPeer::setReadOnly(bool readOnly) {
    WindowPeer::style = readOnly ? WindowPeer::style | ES_READONLY : WindowPeer::style & ~DWORD{ES_READONLY};
    QPlainTextEdit::setReadOnly(readOnly);
    showReadOnly(*this, readOnly);
}

bool TextEditPeer::modified() const {
    return document()->isModified();
}

void TextEditPeer::setModified(bool modified) {
    document()->setModified(modified);
}

void TextEditPeer::scrollLines(int lines) {
    verticalScrollBar()->setValue(verticalScrollBar()->value() + lines);
}

void TextEditPeer::keyPressEvent(QKeyEvent* event) {
    if (!isTyping(*event)) {
        QPlainTextEdit::keyPressEvent(event);
        return;
    }
    const QString typed = typedText(event->text(), WindowPeer::style);
    const bool full = m_limit > 0 && text().GetLength() >= m_limit && !textCursor().hasSelection();
    if (typed.isEmpty() || full)
        return;
    QKeyEvent changed(event->type(), event->key(), event->modifiers(), typed, event->isAutoRepeat());
    QPlainTextEdit::keyPressEvent(&changed);
}

// What is pasted or dropped counts against the limit as well.
void TextEditPeer::insertFromMimeData(const QMimeData* source) {
    if (!source || !source->hasText())
        return;
    CString inserted = withLineEnds(withoutReturns(fromQString(source->text())));
    if (m_limit > 0) {
        const auto [start, end] = selection();
        inserted = inserted.Left(std::max(0, m_limit - (text().GetLength() - (end - start))));
    }
    insert(inserted);
}

WindowPeer* createEdit(const ControlSpec& spec, WindowPeer& parent) {
    if (spec.style & ES_MULTILINE)
        return new TextEditPeer(spec, parent);
    return new LineEditPeer(spec, parent);
}

} // namespace platform

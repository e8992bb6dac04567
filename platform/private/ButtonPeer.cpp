#include "platform/private/ButtonPeer.h"

#include "platform/Button.h"
#include "platform/private/Controls.h"

#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>

namespace platform {

namespace {

bool isRadio(DWORD style) {
    return buttonType(style) == BS_RADIOBUTTON || buttonType(style) == BS_AUTORADIOBUTTON;
}

bool isCheckBox(DWORD style) {
    switch (buttonType(style)) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
        return true;
    default:
        return false;
    }
}

// The toolkit's own ways to show a state of 0, 1 or 2.
void showCheck(QCheckBox& box, int check) {
    box.setTristate(check == 2);
    box.setCheckState(check == 2 ? Qt::PartiallyChecked : check ? Qt::Checked : Qt::Unchecked);
}
void showCheck(QRadioButton& button, int check) {
    button.setChecked(check != 0);
}
void showCheck(QPushButton& button, int check) {
    if (button.isCheckable())
        button.setChecked(check != 0);
}

void applyStyle(QCheckBox&, DWORD) {
}
void applyStyle(QRadioButton& button, DWORD) {
    button.setAutoExclusive(false); // the groups are the dialog's, not the parent's
}
void applyStyle(QPushButton& button, DWORD style) {
    button.setAutoDefault(false);
    button.setDefault(buttonType(style) == BS_DEFPUSHBUTTON);
    button.setFlat(style & BS_FLAT);
    button.setCheckable((style & BS_PUSHLIKE) && (isCheckBox(style) || isRadio(style)));
}

} // namespace

UINT buttonDialogCode(DWORD style) {
    if (isRadio(style))
        return IsButton | IsRadioButton;
    return isCheckBox(style) ? UINT{IsButton} : IsButton | IsPushButton;
}

int nextCheck(DWORD style, int check) {
    switch (buttonType(style)) {
    case BS_AUTOCHECKBOX:
        return !check;
    case BS_AUTO3STATE:
        return (check + 1) % 3;
    case BS_AUTORADIOBUTTON:
        return 1;
    default:
        return check; // the program sets it
    }
}

void checkRadio(WindowPeer& button) {
    const std::vector<WindowPeer*> all = button.parent ? button.parent->children : std::vector<WindowPeer*>{&button};
    const auto self = std::find(all.begin(), all.end(), &button);
    auto first = self;
    while (first != all.begin() && !((*first)->style & WS_GROUP))
        --first;
    for (auto at = first; at != all.end() && (at == first || !((*at)->style & WS_GROUP)); ++at)
        if (at != self && ((*at)->dialogCode() & IsRadioButton))
            (*at)->setCheck(0);
    button.setCheck(1);
}

QString wrapped(const QString& text, const QFontMetrics& metrics, int width) {
    QString result;
    int lineStart = 0;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        if (result.isEmpty()) {
            result = word;
            continue;
        }
        const QString line = result.mid(lineStart) + QLatin1Char(' ') + word;
        const bool fits = metrics.size(Qt::TextShowMnemonic, line).width() <= width;
        result += QLatin1Char(fits ? ' ' : '\n');
        if (!fits)
            lineStart = static_cast<int>(result.size());
        result += word;
    }
    return result;
}

std::unique_ptr<CWnd> makeButtonObject() {
    return std::make_unique<CButton>();
}

template <class Base>
ButtonOf<Base>::ButtonOf(const ControlSpec& spec, WindowPeer& parentPeer)
    : Hosted<Base>(&parentPeer, parentPeer.surface()) {
    applySpec(*this, spec);
    if (spec.style & BS_LEFTTEXT)
        this->setLayoutDirection(Qt::RightToLeft);
    applyStyle(*this, spec.style);
    setText(spec.text);
    this->connect(this, &QAbstractButton::clicked, this, [this] { this->notifyParent(BN_CLICKED); });
}

template <class Base>
void ButtonOf<Base>::setText(const CString& text) {
    m_text = text;
    showText();
}

template <class Base>
void ButtonOf<Base>::showText() {
    QString shown = toQString(m_text);
    if (WindowPeer::style & BS_MULTILINE) // beside the check mark, or inside the frame
        shown = wrapped(shown, this->fontMetrics(),
                        this->width() - (buttonDialogCode(WindowPeer::style) & IsPushButton ? 6 : 18));
    if (!m_picture.isNull())
        shown.clear();
    if (shown == Base::text())
        return;
    Base::setText(shown);
    this->setShortcut({}); // mnemonics are the dialog's work; the toolkit would make one of every '&'
}

template <class Base>
void ButtonOf<Base>::setCheck(int check) {
    m_check = check;
    showCheck(*this, check);
}

template <class Base>
void ButtonOf<Base>::nextCheckState() {
    if (buttonType(WindowPeer::style) == BS_AUTORADIOBUTTON)
        checkRadio(*this);
    else
        setCheck(nextCheck(WindowPeer::style, m_check));
}

template <class Base>
void ButtonOf<Base>::styleChanged() {
    applyStyle(*this, WindowPeer::style);
    showCheck(*this, m_check);
    this->update();
}

template <class Base>
void ButtonOf<Base>::mouseDoubleClickEvent(QMouseEvent* event) {
    if ((WindowPeer::style & BS_NOTIFY) && event->button() == Qt::LeftButton)
        this->notifyParent(BN_DOUBLECLICKED);
    else
        Base::mouseDoubleClickEvent(event); // two fast clicks are two clicks
}

template <class Base>
void ButtonOf<Base>::setPicture(const QPixmap& picture) {
    m_picture = picture;
    this->setIcon(QIcon(picture));
    this->setIconSize(picture.deviceIndependentSize().toSize());
    showText();
}

GroupBoxPeer::GroupBoxPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : Hosted<QWidget>(&parentPeer, parentPeer.surface()) {
    applySpec(*this, spec);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    lower(); // what it surrounds are its siblings
    m_text = spec.text;
}

void GroupBoxPeer::setText(const CString& text) {
    m_text = text;
    update();
}

void GroupBoxPeer::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString title = toQString(m_text);
    const int lineHeight = fontMetrics().height();
    constexpr int Indent = 8;
    const int titleWidth = title.isEmpty() ? 0 : fontMetrics().size(Qt::TextShowMnemonic, title).width() + 4;
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.rect = rect().adjusted(0, lineHeight / 2, 0, 0);
    frame.lineWidth = 1;
    frame.frameShape = QFrame::StyledPanel;
    painter.save();
    // The line stops where the title stands.
    painter.setClipRegion(QRegion(rect()) - QRegion(Indent, 0, titleWidth, lineHeight));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(frame.rect.adjusted(0, 0, -1, -1));
    painter.restore();
    QWidget::style()->drawItemText(&painter, QRect(Indent + 2, 0, titleWidth, lineHeight),
                                   Qt::TextShowMnemonic | Qt::AlignLeft | Qt::TextSingleLine, palette(), isEnabled(),
                                   title, QPalette::WindowText);
}

WindowPeer* createButton(const ControlSpec& spec, WindowPeer& parent) {
    if (buttonType(spec.style) == BS_GROUPBOX)
        return new GroupBoxPeer(spec, parent);
    if (!(spec.style & BS_PUSHLIKE) && isRadio(spec.style))
        return new ButtonOf<QRadioButton>(spec, parent);
    if (!(spec.style & BS_PUSHLIKE) && isCheckBox(spec.style))
        return new ButtonOf<QCheckBox>(spec, parent);
    return new ButtonOf<QPushButton>(spec, parent);
}

} // namespace platform

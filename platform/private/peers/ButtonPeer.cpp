#include "platform/private/peers/ButtonPeer.h"

#include "platform/controls/Button.h"
#include "platform/private/peers/Controls.h"

#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>
#include <memory>
#include <vector>

namespace platform {

namespace {

bool IsRadio(DWORD style) {
    return ButtonType(style) == BS_RADIOBUTTON || ButtonType(style) == BS_AUTORADIOBUTTON;
}

bool IsCheckBox(DWORD style) {
    switch (ButtonType(style)) {
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
void ShowCheck(QCheckBox& box, int check) {
    box.setTristate(check == 2);
    box.setCheckState(check == 2 ? Qt::PartiallyChecked : check ? Qt::Checked : Qt::Unchecked);
}
void ShowCheck(QRadioButton& button, int check) {
    button.setChecked(check != 0);
}
void ShowCheck(QPushButton& button, int check) {
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
    button.setDefault(ButtonType(style) == BS_DEFPUSHBUTTON);
    button.setFlat(style & BS_FLAT);
    button.setCheckable((style & BS_PUSHLIKE) && (IsCheckBox(style) || IsRadio(style)));
}

} // namespace

UINT ButtonDialogCode(DWORD style) {
    if (IsRadio(style))
        return IsButton | IsRadioButton;
    return IsCheckBox(style) ? UINT{IsButton} : IsButton | IsPushButton;
}

int NextCheck(DWORD style, int check) {
    switch (ButtonType(style)) {
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

void CheckRadio(WindowPeer& button) {
    const std::vector<WindowPeer*> all = button.parent ? button.parent->children : std::vector<WindowPeer*>{&button};
    const auto self = std::find(all.begin(), all.end(), &button);
    auto first = self;
    while (first != all.begin() && !((*first)->style & WS_GROUP))
        --first;
    for (auto at = first; at != all.end() && (at == first || !((*at)->style & WS_GROUP)); ++at)
        if (at != self && ((*at)->DialogCode() & IsRadioButton))
            (*at)->SetCheck(0);
    button.SetCheck(1);
}

QString Wrapped(const QString& text, const QFontMetrics& metrics, int width) {
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

std::unique_ptr<CWnd> MakeButtonObject() {
    return std::make_unique<CButton>();
}

template <class Base>
ButtonOf<Base>::ButtonOf(const ControlSpec& spec, WindowPeer& parentPeer)
    : Hosted<Base>(&parentPeer, parentPeer.Surface()) {
    ApplySpec(*this, spec);
    if (spec.style & BS_LEFTTEXT)
        this->setLayoutDirection(Qt::RightToLeft);
    applyStyle(*this, spec.style);
    SetText(spec.text);
    this->connect(this, &QAbstractButton::clicked, this, [this] { this->NotifyParent(BN_CLICKED); });
}

template <class Base>
void ButtonOf<Base>::SetText(const CString& text) {
    m_text = text;
    ShowText();
}

template <class Base>
void ButtonOf<Base>::ShowText() {
    QString shown = ToQString(m_text);
    if (WindowPeer::style & BS_MULTILINE) // beside the check mark, or inside the frame
        shown = Wrapped(shown, this->fontMetrics(),
                        this->width() - (ButtonDialogCode(WindowPeer::style) & IsPushButton ? 6 : 18));
    if (shown == Base::text())
        return;
    Base::setText(shown);
    this->setShortcut({}); // mnemonics are the dialog's work; the toolkit would make one of every '&'
}

template <class Base>
void ButtonOf<Base>::SetCheck(int check) {
    m_check = check;
    ShowCheck(*this, check);
}

template <class Base>
void ButtonOf<Base>::nextCheckState() {
    if (ButtonType(WindowPeer::style) == BS_AUTORADIOBUTTON)
        CheckRadio(*this);
    else
        SetCheck(NextCheck(WindowPeer::style, m_check));
}

template <class Base>
void ButtonOf<Base>::StyleChanged() {
    applyStyle(*this, WindowPeer::style);
    ShowCheck(*this, m_check);
    this->update();
}

template <class Base>
void ButtonOf<Base>::mousePressEvent(QMouseEvent* event) {
    if (StillPressed(*event))
        Base::mousePressEvent(event);
}

template <class Base>
void ButtonOf<Base>::mouseDoubleClickEvent(QMouseEvent* event) {
    if ((WindowPeer::style & BS_NOTIFY) && event->button() == Qt::LeftButton)
        this->NotifyParent(BN_DOUBLECLICKED);
    else
        Base::mouseDoubleClickEvent(event); // two fast clicks are two clicks
}

GroupBoxPeer::GroupBoxPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : Hosted<QWidget>(&parentPeer, parentPeer.Surface()) {
    ApplySpec(*this, spec);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    lower(); // what it surrounds are its siblings
    m_text = spec.text;
}

void GroupBoxPeer::SetText(const CString& text) {
    m_text = text;
    update();
}

void GroupBoxPeer::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString title = ToQString(m_text);
    const int lineHeight = fontMetrics().height();
    constexpr int indent = 8;
    const int titleWidth = title.isEmpty() ? 0 : fontMetrics().size(Qt::TextShowMnemonic, title).width() + 4;
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.rect = rect().adjusted(0, lineHeight / 2, 0, 0);
    frame.lineWidth = 1;
    frame.frameShape = QFrame::StyledPanel;
    painter.save();
    // The line stops where the title stands.
    painter.setClipRegion(QRegion(rect()) - QRegion(indent, 0, titleWidth, lineHeight));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(frame.rect.adjusted(0, 0, -1, -1));
    painter.restore();
    QWidget::style()->drawItemText(&painter, QRect(indent + 2, 0, titleWidth, lineHeight),
                                   Qt::TextShowMnemonic | Qt::AlignLeft | Qt::TextSingleLine, palette(), isEnabled(),
                                   title, QPalette::WindowText);
}

WindowPeer* CreateButton(const ControlSpec& spec, WindowPeer& parent) {
    if (ButtonType(spec.style) == BS_GROUPBOX)
        return new GroupBoxPeer(spec, parent);
    if (!(spec.style & BS_PUSHLIKE) && IsRadio(spec.style))
        return new ButtonOf<QRadioButton>(spec, parent);
    if (!(spec.style & BS_PUSHLIKE) && IsCheckBox(spec.style))
        return new ButtonOf<QCheckBox>(spec, parent);
    return new ButtonOf<QPushButton>(spec, parent);
}

} // namespace platform

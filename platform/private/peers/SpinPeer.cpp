#include "platform/private/peers/SpinPeer.h"

#include "platform/controls/SpinButton.h"
#include "platform/private/peers/Controls.h"
#include "platform/private/peers/EditPeer.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

namespace {

constexpr int attachedWidth = 16; // pixels, inside the edge of the buddy
constexpr int repeatDelay = 400;  // milliseconds until a held arrow repeats
constexpr int repeatPeriod = 60;

// A whole number, with blanks around it at most.
bool ParseNumber(const CString& text, int& value) {
    CString digits = text;
    digits.Trim();
    const std::string_view all = digits.View();
    const auto [end, error] = std::from_chars(all.data(), all.data() + all.size(), value);
    return error == std::errc() && end == all.data() + all.size();
}

EditControl* EditOf(QWidget* widget) {
    return dynamic_cast<EditControl*>(PeerOf(widget));
}

} // namespace

SpinPeer::SpinPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : Hosted<QWidget>(&parentPeer, parentPeer.Surface()) {
    ApplySpec(*this, spec);
    // The control created just before this one.
    const std::vector<WindowPeer*>& siblings = parentPeer.children;
    if ((spec.style & UDS_AUTOBUDDY) && siblings.size() > 1)
        SetBuddy(siblings[siblings.size() - 2]);
}

SpinPeer::~SpinPeer() {
    if (EditControl* edit = EditOf(m_buddy))
        edit->stepSpin = nullptr;
}

std::unique_ptr<CWnd> SpinPeer::MakeObject() const {
    return std::make_unique<CSpinButtonCtrl>();
}

WindowPeer* SpinPeer::Buddy() const {
    WindowPeer* peer = PeerOf(m_buddy);
    return peer && !peer->destroyed ? peer : nullptr;
}

WindowPeer* SpinPeer::SetBuddy(WindowPeer* newBuddy) {
    WindowPeer* former = Buddy();
    if (EditControl* edit = EditOf(m_buddy))
        edit->stepSpin = nullptr;
    m_buddy = newBuddy ? newBuddy->widget : nullptr;
    if (!newBuddy)
        return former;
    if (former != newBuddy && (WindowPeer::style & (UDS_ALIGNRIGHT | UDS_ALIGNLEFT)))
        AttachBeside(*newBuddy);
    EditControl* edit = EditOf(m_buddy);
    if (edit && (WindowPeer::style & UDS_ARROWKEYS))
        edit->stepSpin = [this](int direction) {
            if (isEnabled())
                Step(direction, true);
        };
    return former;
}

// The buddy gives up a strip of its own place.
void SpinPeer::AttachBeside(WindowPeer& newBuddy) {
    QRect field = newBuddy.widget->geometry();
    QRect strip = field;
    if (WindowPeer::style & UDS_ALIGNRIGHT) {
        strip.setLeft(strip.right() + 1 - attachedWidth);
        field.setRight(strip.left() - 1);
    } else {
        strip.setWidth(attachedWidth);
        field.setLeft(strip.right() + 1);
    }
    newBuddy.widget->setGeometry(field);
    setGeometry(strip);
    raise();
}

void SpinPeer::SetRange(int lower, int upper) {
    m_lower = lower;
    m_upper = upper;
}

int SpinPeer::InRange(long long value) const {
    const auto [low, high] = std::minmax(m_lower, m_upper);
    return static_cast<int>(std::clamp<long long>(value, low, high));
}

int SpinPeer::Position() {
    const WindowPeer* shown = Buddy();
    int value = 0;
    if (shown && (WindowPeer::style & UDS_SETBUDDYINT) && ParseNumber(shown->Text(), value))
        m_position = InRange(value);
    return m_position;
}

int SpinPeer::SetPosition(int value) {
    const int former = std::exchange(m_position, InRange(value));
    ShowInBuddy();
    return former;
}

// Writing the same text again would tell the parent of a change that is none.
void SpinPeer::ShowInBuddy() {
    WindowPeer* shown = Buddy();
    if (!shown || !(WindowPeer::style & UDS_SETBUDDYINT))
        return;
    CString text;
    text.Format("%d", m_position);
    if (shown->Text() != text)
        shown->SetText(text);
}

void SpinPeer::Step(int direction, bool ends) {
    // What was typed counts first; a number beyond the range steps from its nearest end.
    const WindowPeer* shown = Buddy();
    int typed = 0;
    long long from = m_position;
    if (shown && (WindowPeer::style & UDS_SETBUDDYINT) && ParseNumber(shown->Text(), typed))
        from = typed;
    m_position = InRange(from);

    const QPointer<QWidget> alive = this;
    NMUPDOWN change;
    change.iPos = m_position;
    change.iDelta = m_upper >= m_lower ? direction : -direction;
    if (NotifyParent(change.hdr, UDN_DELTAPOS) || !alive || WindowPeer::destroyed)
        return;
    const long long wanted = from + change.iDelta;
    const bool wraps = (WindowPeer::style & UDS_WRAP) && wanted != InRange(wanted);
    const int next = !wraps              ? InRange(wanted)
                     : change.iDelta > 0 ? std::min(m_lower, m_upper)
                                         : std::max(m_lower, m_upper);
    SetPosition(next);
    if (!alive || WindowPeer::destroyed)
        return;
    TellScroll(SB_THUMBPOSITION);
    if (ends && alive && !WindowPeer::destroyed)
        TellScroll(SB_ENDSCROLL);
}

void SpinPeer::TellScroll(UINT code) {
    if (!live || WindowPeer::destroyed || !WindowPeer::parent || !WindowPeer::parent->object)
        return;
    WindowPeer::parent->Send(WindowPeer::style & UDS_HORZ ? WM_HSCROLL : WM_VSCROLL,
                             MAKEWPARAM(code, static_cast<UINT>(m_position)),
                             reinterpret_cast<LPARAM>(static_cast<WindowPeer*>(this)));
}

int SpinPeer::DirectionAt(const QPoint& point) const {
    if (!rect().contains(point))
        return 0;
    if (WindowPeer::style & UDS_HORZ)
        return point.x() < width() / 2 ? -1 : 1;
    return point.y() < height() / 2 ? 1 : -1;
}

void SpinPeer::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const QPointer<QWidget> alive = this;
    WindowPeer* shown = Buddy();
    if (EditOf(m_buddy) && shown->widget->isEnabled())
        shown->widget->setFocus(Qt::MouseFocusReason);
    if (!alive || WindowPeer::destroyed || !StillPressed(*event))
        return;
    m_pressed = DirectionAt(event->position().toPoint());
    m_repeating = false;
    m_repeat.start(repeatDelay, this);
    update();
    if (m_pressed)
        Step(m_pressed, false);
}

void SpinPeer::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_pressed)
        return;
    StopRepeating();
    TellScroll(SB_ENDSCROLL);
}

void SpinPeer::StopRepeating() {
    m_pressed = 0;
    m_repeat.stop();
    update();
}

void SpinPeer::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_repeat.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    if (!m_repeating) {
        m_repeating = true;
        m_repeat.start(repeatPeriod, this);
    }
    if (m_pressed && isEnabled())
        Step(m_pressed, false);
}

// A step may disable the arrow that is held, or open a message that swallows its release.
void SpinPeer::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    const bool rests = event->type() == QEvent::EnabledChange || event->type() == QEvent::ActivationChange;
    if (rests && m_pressed && (!isEnabled() || !isActiveWindow()))
        StopRepeating();
}

void SpinPeer::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const bool horizontal = WindowPeer::style & UDS_HORZ;
    const QRect all = rect();
    const QRect first =
        horizontal ? QRect(0, 0, all.width() / 2, all.height()) : QRect(0, 0, all.width(), all.height() / 2);
    const QRect second = horizontal ? all.adjusted(first.width(), 0, 0, 0) : all.adjusted(0, first.height(), 0, 0);
    const auto drawArrow = [&](const QRect& place, int direction, QStyle::PrimitiveElement arrow) {
        QStyleOptionButton option;
        option.initFrom(this);
        option.state &= ~QStyle::State_MouseOver;
        option.rect = place;
        option.state |= m_pressed == direction ? QStyle::State_Sunken : QStyle::State_Raised;
        QWidget::style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, this);
        const int side = std::max(5, std::min(place.width(), place.height()) - 2);
        option.rect = QRect(0, 0, side, side);
        option.rect.moveCenter(place.center());
        QWidget::style()->drawPrimitive(arrow, &option, &painter, this);
    };
    drawArrow(first, horizontal ? -1 : 1, horizontal ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowUp);
    drawArrow(second, horizontal ? 1 : -1, horizontal ? QStyle::PE_IndicatorArrowRight : QStyle::PE_IndicatorArrowDown);
}

WindowPeer* CreateSpin(const ControlSpec& spec, WindowPeer& parent) {
    return new SpinPeer(spec, parent);
}

} // namespace platform

#include "platform/private/peers/DialogPeer.h"

#include "platform/private/paint/Fonts.h"
#include "platform/resource/Units.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>
#include <vector>

namespace platform {

namespace {

Qt::WindowFlags FlagsOf(const DialogTemplate& source) {
    if (source.style & WS_CHILD)
        return Qt::Widget;
    Qt::WindowFlags flags = (source.exStyle & WS_EX_TOOLWINDOW ? Qt::Tool : Qt::Dialog) | Qt::CustomizeWindowHint |
                            Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    // WS_MAXIMIZEBOX shares its bit with WS_TABSTOP; on a dialog it is the box, for one that can be sized.
    if ((source.style & WS_THICKFRAME) && (source.style & WS_MAXIMIZEBOX))
        flags |= Qt::WindowMaximizeButtonHint;
    if (source.style & WS_MINIMIZEBOX) // shares its bit with WS_GROUP
        flags |= Qt::WindowMinimizeButtonHint;
    return flags;
}

QWidget* ToolkitParent(const DialogTemplate& source, WindowPeer* owner) {
    if (!owner)
        return nullptr;
    return source.style & WS_CHILD ? owner->Surface() : owner->widget->window();
}

// The client area of a dialog that draws its own frame; its events are the dialog's, as a viewport's are.
class ClientArea final : public QWidget {
  public:
    ClientArea(WindowPeer& peer, QWidget* frame) : QWidget(frame), m_peer(peer) {
        setMouseTracking(true);
        setCursor(Qt::ArrowCursor); // neither the frame's nor that of the view behind
    }

  protected:
    bool event(QEvent* event) override {
        return DispatchEvent(m_peer, event, [](WindowPeer& peer, QEvent* inner) {
            // While it is being made, the dialog does not know it yet.
            auto* client = dynamic_cast<ClientArea*>(peer.Surface());
            return client && client->QWidget::event(inner);
        });
    }

  private:
    WindowPeer& m_peer;
};

bool StartsGroup(const WindowPeer& peer) {
    return peer.style & WS_GROUP;
}

// A group of radio buttons is entered at the one that is checked.
WindowPeer* EntryOf(WindowPeer* stop, const std::vector<WindowPeer*>& all) {
    if (!stop || !(stop->DialogCode() & IsRadioButton))
        return stop;
    const auto self = std::find(all.begin(), all.end(), stop);
    auto first = self;
    while (first != all.begin() && !StartsGroup(**first))
        --first;
    for (auto at = first; at != all.end() && (at == first || !StartsGroup(**at)); ++at)
        if (((*at)->DialogCode() & IsRadioButton) && (*at)->Check() == 1 && (*at)->widget->isEnabled())
            return *at;
    return stop;
}

} // namespace

DialogPeer::DialogPeer(const DialogTemplate& source, WindowPeer* owner, bool modal)
    : Hosted<QWidget>(owner, ToolkitParent(source, owner), FlagsOf(source)) {
    isDialog = true;
    style = source.style;
    exStyle = source.exStyle;
    SetText(source.caption);
    setMouseTracking(true);
    if (modal)
        setWindowModality(Qt::ApplicationModal);
    if (source.fontPoints && (source.fontPoints != 8 || CString(source.fontFace) != "MS Sans Serif"))
        setFont(ToolkitFont(source.fontFace, RoundedDivision(source.fontPoints * 96, 72), 400, false));
    if (source.style & WS_CHILD)
        MakeFrame();
    const QMargins margins = m_frame ? m_frame->Margins() : QMargins();
    DialogPeer::SetSize(QSize(UnitsToX(source.cx), UnitsToY(source.cy)).grownBy(margins));
}

DialogPeer::~DialogPeer() {
    delete std::exchange(m_client, nullptr); // while its events still find this object
}

void DialogPeer::MakeFrame() {
    // A click on the ground brings the focus in instead of giving it to what lies behind.
    setFocusPolicy(Qt::ClickFocus);
    ChildFrame frame(*this, style);
    if (frame.Margins().isNull())
        return;
    m_frame.emplace(frame);
    m_client = new ClientArea(*this, this);
}

void DialogPeer::SetText(const CString& text) {
    WindowPeer::SetText(text);
    if (m_frame)
        update();
}

void DialogPeer::SetSize(QSize size) {
    // The user must not size a window without a sizing border; the program may.
    if (isWindow() && !(style & WS_THICKFRAME))
        setFixedSize(size);
    else
        resize(size);
    PlaceClient(); // the toolkit tells a hidden window only when it is shown
}

void DialogPeer::PlaceClient() {
    if (m_client)
        m_client->setGeometry(rect().marginsRemoved(m_frame->Margins()));
}

void DialogPeer::Pressed() {
    if (isWindow())
        return;
    raise();
    if (hasFocus())
        FocusFirst();
}

void DialogPeer::ControlFocused(WindowPeer& control, bool gained) {
    if (isWindow())
        return;
    // A click on the ground leaves the focus with the control that has it.
    setFocusProxy(gained && &control != this ? control.widget : nullptr);
    if (m_frame)
        update(); // the caption shows where the keys go
}

void DialogPeer::TakeFocus() {
    if (WindowPeer* first = NextTabStop(nullptr, false))
        first->FocusByKeyboard();
    else
        setFocus(Qt::OtherFocusReason);
}

void DialogPeer::paintEvent(QPaintEvent*) {
    if (!m_frame)
        return;
    QPainter painter(this);
    const QWidget* focused = window()->focusWidget();
    m_frame->Paint(painter, focused && isActiveWindow() && (focused == this || isAncestorOf(focused)));
}

void DialogPeer::resizeEvent(QResizeEvent*) {
    PlaceClient();
}

void DialogPeer::mousePressEvent(QMouseEvent* event) {
    if (!m_frame) {
        event->ignore();
        return;
    }
    Pressed();
    if (event->button() == Qt::LeftButton && !m_frame->OnCloseBox(event->position().toPoint()))
        m_frame->BeginDrag(event->globalPosition().toPoint());
}

void DialogPeer::mouseMoveEvent(QMouseEvent* event) {
    if (!m_frame) {
        event->ignore();
        return;
    }
    const QPoint at = event->position().toPoint();
    const QPoint screen = event->globalPosition().toPoint();
    if (m_frame->IsDragging()) {
        m_frame->Drag(screen);
        return;
    }
    m_frame->ShowCursor(at);
    Send(WM_NCMOUSEMOVE, m_frame->OnCaption(at) ? HTCAPTION : HTBORDER, MAKELPARAM(screen.x(), screen.y()));
}

void DialogPeer::mouseReleaseEvent(QMouseEvent* event) {
    if (!m_frame) {
        event->ignore();
        return;
    }
    const bool dragged = m_frame->IsDragging();
    m_frame->EndDrag();
    if (!dragged && event->button() == Qt::LeftButton && m_frame->OnCloseBox(event->position().toPoint()))
        Send(WM_CLOSE);
}

void DialogPeer::AddControls(const DialogTemplate& source) {
    children.reserve(source.controls.size());
    for (const ControlTemplate& each : source.controls) {
        const int left = UnitsToX(each.x);
        const int top = UnitsToY(each.y);
        const QRect place(left, top, UnitsToX(each.x + each.cx) - left, UnitsToY(each.y + each.cy) - top);
        WindowPeer* control = CreateControl(
            {each.className, each.text, each.style, each.exStyle, static_cast<UINT>(each.id), place, each.image},
            *this);
        if (!control)
            continue;
        if (each.style & WS_DISABLED)
            control->widget->setEnabled(false);
        if (!(each.style & WS_VISIBLE))
            control->widget->hide();
        control->Surface()->setMouseTracking(true); // each move asks for a cursor
        control->live = true;
    }
}

void DialogPeer::Open() {
    // A dialog that OnInitDialog has placed stays there.
    if (parent && isWindow() && !testAttribute(Qt::WA_Moved)) {
        const QRect over = parent->widget->window()->frameGeometry();
        move(over.center() - QPoint(width() / 2, height() / 2));
    }
    show();
    if (isWindow())
        activateWindow();
    else
        raise();
}

WindowPeer* DialogPeer::ChildHolding(WindowPeer* peer) const {
    while (peer && peer->parent != this)
        peer = peer->parent;
    return peer;
}

WindowPeer* DialogPeer::NextTabStop(WindowPeer* from, bool backward) {
    const auto count = static_cast<int>(children.size());
    if (!count)
        return nullptr;
    from = ChildHolding(from);
    const auto at = std::find(children.begin(), children.end(), from);
    const int start = from && at != children.end() ? static_cast<int>(at - children.begin()) : backward ? count : -1;
    const bool fromRadio = from && (from->DialogCode() & IsRadioButton);
    for (int step = 1; step <= count; ++step) {
        const int index = ((start + (backward ? -step : step)) % count + count) % count;
        WindowPeer* candidate = children[static_cast<std::size_t>(index)];
        if (!candidate->IsTabStop())
            continue;
        WindowPeer* entry = EntryOf(candidate, children);
        // The other buttons of the group that the focus is leaving are not stops of their own.
        if (fromRadio && entry == from && candidate != from)
            continue;
        if (!backward || entry != from || candidate == from)
            return entry;
    }
    return from && from->IsTabStop() ? from : nullptr;
}

void DialogPeer::FocusNext(WindowPeer* from, bool backward) {
    if (WindowPeer* next = NextTabStop(from, backward))
        next->FocusByKeyboard();
}

void DialogPeer::FocusFirst() {
    FocusNext(nullptr, false);
}

WindowPeer* DialogPeer::DefaultButton() const {
    const auto found = std::find_if(children.begin(), children.end(), [](const WindowPeer* child) {
        return (child->DialogCode() & IsPushButton) && (child->style & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    });
    return found == children.end() ? nullptr : *found;
}

} // namespace platform

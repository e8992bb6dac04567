#include "platform/private/peers/StaticPeer.h"

#include "platform/controls/Static.h"
#include "platform/private/paint/GdiData.h"
#include "platform/private/peers/Controls.h"
#include "platform/resource/Resource.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <memory>
#include <qdrawutil.h>

namespace platform {

StaticPeer::StaticPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : Hosted<QWidget>(&parentPeer, parentPeer.Surface()), m_text(spec.text), m_number(spec.image) {
    ApplySpec(*this, spec);
    // Without notifications the pointer belongs to the dialog behind.
    setAttribute(Qt::WA_TransparentForMouseEvents, !(spec.style & SS_NOTIFY));
}

void StaticPeer::SetText(const CString& text) {
    if (m_text == text)
        return;
    m_text = text;
    update();
}

std::unique_ptr<CWnd> StaticPeer::MakeObject() const {
    return std::make_unique<CStatic>();
}

void StaticPeer::StyleChanged() {
    setAttribute(Qt::WA_TransparentForMouseEvents, !(WindowPeer::style & SS_NOTIFY));
    update();
}

void StaticPeer::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const UINT type = WindowPeer::style & SS_TYPEMASK;
    switch (type) {
    case SS_ICON:
    case SS_BITMAP:
        PaintPicture(painter);
        break;
    case SS_LEFT:
    case SS_CENTER:
    case SS_RIGHT:
    case SS_SIMPLE:
    case SS_LEFTNOWORDWRAP:
        PaintText(painter);
        break;
    default:
        PaintShape(painter, type);
    }
    PaintBorder(painter);
}

void StaticPeer::PaintText(QPainter& painter) const {
    const DWORD style = WindowPeer::style;
    const UINT type = style & SS_TYPEMASK;
    int flags = type == SS_CENTER ? Qt::AlignHCenter : type == SS_RIGHT ? Qt::AlignRight : Qt::AlignLeft;
    flags |= style & SS_CENTERIMAGE ? Qt::AlignVCenter | Qt::TextSingleLine : Qt::AlignTop;
    flags |= Qt::TextExpandTabs;
    if (!(style & SS_NOPREFIX))
        flags |= Qt::TextShowMnemonic;
    if (type == SS_SIMPLE)
        flags |= Qt::TextSingleLine;
    else if (type != SS_LEFTNOWORDWRAP && !(style & SS_CENTERIMAGE))
        flags |= Qt::TextWordWrap;
    QWidget::style()->drawItemText(&painter, rect(), flags, palette(), isEnabled(), ToQString(m_text),
                                   QPalette::WindowText);
}

void StaticPeer::PaintShape(QPainter& painter, UINT type) const {
    const auto fill = [&](const QColor& color) { painter.fillRect(rect(), color); };
    const auto frame = [&](const QColor& color) { qDrawPlainRect(&painter, rect(), color); };
    switch (type) {
    case SS_BLACKRECT:
        return fill(Qt::black);
    case SS_GRAYRECT:
        return fill(Qt::gray);
    case SS_WHITERECT:
        return fill(Qt::white);
    case SS_BLACKFRAME:
        return frame(Qt::black);
    case SS_GRAYFRAME:
        return frame(Qt::gray);
    case SS_WHITEFRAME:
        return frame(Qt::white);
    // The toolkit centres a line on its place; a pixel further in, both of its shades lie inside.
    case SS_ETCHEDHORZ:
        return qDrawShadeLine(&painter, 0, 1, width() - 1, 1, palette(), true, 1);
    case SS_ETCHEDVERT:
        return qDrawShadeLine(&painter, 1, 0, 1, height() - 1, palette(), true, 1);
    case SS_ETCHEDFRAME:
        return qDrawShadeRect(&painter, rect(), palette(), true, 1);
    default:
        return; // drawn by its owner
    }
}

void StaticPeer::PaintPicture(QPainter& painter) {
    if (m_number) {
        // Rendered for the pixels of this screen, so that it is sharp at every scale, and kept until these change.
        const QSize wanted = size() * devicePixelRatioF();
        if (m_picture.isNull() || m_picture.size() != wanted) {
            const bool icon = (WindowPeer::style & SS_TYPEMASK) == SS_ICON;
            const BitmapResource* resource = icon ? FindIcon(m_number) : FindBitmap(m_number);
            m_picture = resource ? RenderSvg(resource->svg, size(), devicePixelRatioF()) : QImage();
        }
    }
    if (m_picture.isNull())
        return;
    const QSizeF natural = m_picture.deviceIndependentSize();
    const QPointF at = WindowPeer::style & SS_CENTERIMAGE
                           ? QPointF((width() - natural.width()) / 2, (height() - natural.height()) / 2)
                           : QPointF(0, 0);
    painter.drawImage(at, m_picture);
}

void StaticPeer::PaintBorder(QPainter& painter) const {
    const bool sunken = (WindowPeer::style & SS_SUNKEN) || (exStyle & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
    if (sunken)
        qDrawShadePanel(&painter, rect(), palette(), true, 1);
    else if (WindowPeer::style & WS_BORDER)
        qDrawPlainRect(&painter, rect(), palette().color(QPalette::Shadow));
}

void StaticPeer::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && (WindowPeer::style & SS_NOTIFY))
        NotifyParent(STN_CLICKED);
}

void StaticPeer::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && (WindowPeer::style & SS_NOTIFY))
        NotifyParent(STN_DBLCLK);
}

WindowPeer* CreateStatic(const ControlSpec& spec, WindowPeer& parent) {
    return new StaticPeer(spec, parent);
}

} // namespace platform

#include "platform/private/paint/DialogStyle.h"

#include <QPainter>
#include <QStyleOptionFocusRect>

namespace platform {

namespace {

// Dots around the place. A filled ground would make the current row of a list look selected.
void DrawFocusRect(const QStyleOptionFocusRect& option, QPainter& painter) {
    if (!(option.state & QStyle::State_KeyboardFocusChange))
        return;
    const bool onDark = option.backgroundColor.isValid() && option.backgroundColor.lightness() < 128;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(onDark ? QColor(Qt::white) : option.palette.color(QPalette::Text), 1, Qt::DotLine));
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace

int DialogStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    // Boxes and their labels stand a little closer together: templates give them the classic width.
    if (metric == PM_CheckBoxLabelSpacing || metric == PM_RadioButtonLabelSpacing)
        return 3;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

void DialogStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    if (element != PE_FrameFocusRect)
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    else if (const auto* focus = qstyleoption_cast<const QStyleOptionFocusRect*>(option))
        DrawFocusRect(*focus, *painter);
}

} // namespace platform

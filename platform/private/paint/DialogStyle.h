// The look of all controls, the same on every machine.
#pragma once

#include <QProxyStyle>

namespace platform {

class DialogStyle final : public QProxyStyle {
  public:
    DialogStyle() : QProxyStyle("Fusion") {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace platform

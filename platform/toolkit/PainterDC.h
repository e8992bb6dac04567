// A device context on a painter of the toolkit, for owners that paint widgets or images themselves.
#pragma once

#include "platform/drawing/DeviceContext.h"

class QPainter;

namespace platform {

// The painter's owner lets it alone while this lives, and finds it as it was afterwards. Clipping and origin set before
// hold. The painter should not smooth shapes.
class PainterDC : public CDC {
  public:
    explicit PainterDC(QPainter& painter);
};

} // namespace platform

// Labels, pictures, frames and lines.
#pragma once

#include "platform/window/Window.h"

class CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
};

#include "platform/window/View.h"

IMPLEMENT_DYNAMIC(CDocument, CObject)
IMPLEMENT_DYNAMIC(CView, CWnd)

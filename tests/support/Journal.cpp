#include "tests/support/Journal.h"

#include "model/element/Elemento.h"

#include <cstdio>

std::string Journal::Text(double number) {
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.15g", number);
    return buffer;
}

std::string Journal::Text(const CFPoint& point) {
    return "(" + Text(point.x) + "," + Text(point.y) + "," + Text(point.z) + ")";
}

std::string Journal::Text(const CString& text) {
    return "\"" + text.ToUtf8() + "\"";
}

std::string Journal::Text(const CObject* object) {
    if (!object)
        return "null";
    std::string text = object->GetRuntimeClass()->m_lpszClassName;
    if (object->IsKindOf(RUNTIME_CLASS(CElemento)))
        text += " " + std::to_string(static_cast<CElemento*>(const_cast<CObject*>(object))->GetID());
    return text;
}

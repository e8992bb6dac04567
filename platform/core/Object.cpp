#include "platform/core/Object.h"

constinit CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFFu, nullptr,
                                                 nullptr};

CObject* CRuntimeClass::CreateObject() const {
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const {
    for (const CRuntimeClass* kind = this; kind; kind = kind->m_pBaseClass)
        if (kind == base)
            return TRUE;
    return FALSE;
}

CRuntimeClass* CObject::GetRuntimeClass() const {
    return RUNTIME_CLASS(CObject);
}

BOOL CObject::IsKindOf(const CRuntimeClass* kind) const {
    return GetRuntimeClass()->IsDerivedFrom(kind);
}

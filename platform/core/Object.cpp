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

// Documents are stored by the host, not object by object, so the base has nothing of its own to write.
void CObject::Serialize(CArchive&) {
}

void CObject::AssertValid() const {
}

void CObject::Dump(CDumpContext&) const {
}

BOOL CObject::IsKindOf(const CRuntimeClass* kind) const {
    return GetRuntimeClass()->IsDerivedFrom(kind);
}

// The root of the framework's classes and its run-time classes. A class that declares no run-time class reports that of
// its base.
//
//   class CTrave : public CLinea {
//       DECLARE_DYNAMIC(CTrave)            in the header, without a semicolon
//   };
//   IMPLEMENT_DYNAMIC(CTrave, CLinea)      in the source, without a semicolon
//
// The base that is named is the next one that declares a run-time class, which need not be the class right above: those
// in between (TwoPointDialog, ConfirmedDialog) are how a class is made, not what others ask it to be.
#pragma once

#include "platform/core/Types.h"

class CObject;

struct CRuntimeClass {
    const char* m_lpszClassName;
    int m_nObjectSize; // bytes
    UINT m_wSchema;
    CObject* (*m_pfnCreateObject)(); // null when objects of the class cannot be made by name
    CRuntimeClass* m_pBaseClass;     // null for CObject

    // A new object, the caller's; null when the class was not declared with DECLARE_DYNCREATE.
    CObject* CreateObject() const;
    // A class derives from itself too.
    BOOL IsDerivedFrom(const CRuntimeClass* base) const;
};

class CObject {
  public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;

    BOOL IsKindOf(const CRuntimeClass* kind) const;

    static CRuntimeClass classCObject;

  protected:
    CObject() = default;
    // Values that derive from this class may be copied; the base alone cannot be.
    CObject(const CObject&) = default;
    CObject& operator=(const CObject&) = default;
};

namespace platform {

// The object as the class that `kind` describes; null when it is none, or is null.
template <typename Class>
Class* DynamicDowncast(const CRuntimeClass* kind, CObject* object) {
    return object && object->IsKindOf(kind) ? static_cast<Class*>(object) : nullptr;
}
template <typename Class>
const Class* DynamicDowncast(const CRuntimeClass* kind, const CObject* object) {
    return object && object->IsKindOf(kind) ? static_cast<const Class*>(object) : nullptr;
}

} // namespace platform

#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

#define DYNAMIC_DOWNCAST(class_name, object) (platform::DynamicDowncast<class_name>(RUNTIME_CLASS(class_name), object))

#define DECLARE_DYNAMIC(class_name)                                                                                    \
  public:                                                                                                              \
    static CRuntimeClass class##class_name;                                                                            \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* CreateObject();

// Constant initialisation: a base in another module must be usable before that module's own statics have been built.
#define IMPLEMENT_RUNTIMECLASS(class_name, base_name, create)                                                          \
    constinit CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)),        \
                                                             0xFFFFu, create, RUNTIME_CLASS(base_name)};               \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                                               \
        return RUNTIME_CLASS(class_name);                                                                              \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_name) IMPLEMENT_RUNTIMECLASS(class_name, base_name, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_name)                                                                     \
    CObject* class_name::CreateObject() {                                                                              \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    IMPLEMENT_RUNTIMECLASS(class_name, base_name, &class_name::CreateObject)

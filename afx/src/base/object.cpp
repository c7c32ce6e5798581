// Run-time classes and assertions.

#include <afx.h>

#include <cstdlib>

CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr, nullptr};

CRuntimeClass* CObject::GetRuntimeClass() const {
    return RUNTIME_CLASS(CObject);
}

CObject::~CObject() = default;

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const {
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

CObject* CRuntimeClass::CreateObject() {
    return m_pfnCreateObject != nullptr ? m_pfnCreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    const CRuntimeClass* one = this;
    while (one != nullptr && one != pBaseClass)
        one = one->m_pBaseClass;
    return one != nullptr;
}

#if !defined(NDEBUG)
void AfxAssertFailed(LPCSTR lpszText, LPCSTR lpszFileName, int nLine) {
    std::fprintf(stderr, "%s:%d: assertion failed: %s\n", lpszFileName, nLine, lpszText);
    std::abort();
}
#endif

// Reading and writing properties in CGraphicPropertyPage, over the selection of its sheet or the preview group.

#include "orlo/binding/property_merge.h"
#include "orlo/frame/page_state.h"

namespace binding = orlo::binding;

void* CGraphicPropertyPage::GetFirstObject(void* pPos, int bPreview) {
    return m_pState->Objects(bPreview).First(pPos);
}

void* CGraphicPropertyPage::GetNextObject(void* pPos, int bPreview) {
    return m_pState->Objects(bPreview).Next(pPos);
}

// Defines the overloads of one name, which differ only in their types.
#define ORLO_PROPERTY_ACCESS(suffix, Member, Type)                                                                     \
    int CGraphicPropertyPage::GetProp##suffix(const char* pszPropName, Member* pValue, int bPreview) {                 \
        return binding::Merge<Type>(m_pState->Objects(bPreview), pszPropName, pValue);                                 \
    }

#define ORLO_TEXT_ACCESS(Member, Type)                                                                                 \
    ORLO_PROPERTY_ACCESS(Text, Member, Type)                                                                           \
    int CGraphicPropertyPage::SetPropText(const char* pszPropName, Member& value, int bPreview) {                      \
        return binding::Write<Type>(m_pState->Target(bPreview), pszPropName, value);                                   \
    }

using UI1 = binding::Plain<unsigned char, VT_UI1>;
using UI2 = binding::Plain<unsigned short, VT_UI2>;
using I4 = binding::Plain<int, VT_I4>;
using UI4 = binding::Plain<unsigned int, VT_UI4>;
using I4Long = binding::Plain<long, VT_I4>;
using UI4Long = binding::Plain<unsigned long, VT_UI4>;

ORLO_TEXT_ACCESS(unsigned char, UI1)
ORLO_TEXT_ACCESS(unsigned short, UI2)
ORLO_TEXT_ACCESS(int, I4)
ORLO_TEXT_ACCESS(unsigned int, UI4)
ORLO_TEXT_ACCESS(long, I4Long)
ORLO_TEXT_ACCESS(unsigned long, UI4Long)
ORLO_TEXT_ACCESS(float, binding::Float)
ORLO_TEXT_ACCESS(double, binding::Double)
ORLO_PROPERTY_ACCESS(Check, int, binding::Check)
ORLO_PROPERTY_ACCESS(Check, unsigned short, UI2)
ORLO_PROPERTY_ACCESS(Radio, int, I4)
ORLO_PROPERTY_ACCESS(Radio, unsigned short, UI2)

#undef ORLO_TEXT_ACCESS
#undef ORLO_PROPERTY_ACCESS

int CGraphicPropertyPage::GetPropText(const char* pszPropName, CString* pValue, int bPreview) {
    return binding::MergeText(m_pState->Objects(bPreview), pszPropName, pValue);
}

int CGraphicPropertyPage::SetPropText(const char* pszPropName, CString& value, int bPreview) {
    return binding::WriteText(m_pState->Target(bPreview), pszPropName, value);
}

int CGraphicPropertyPage::SetPropCheck(const char* pszPropName, int value, int bPreview) {
    return binding::WriteCheck(m_pState->Target(bPreview), pszPropName, value);
}

int CGraphicPropertyPage::SetPropCheck(const char* pszPropName, unsigned short value, int bPreview) {
    return binding::Write<UI2>(m_pState->Target(bPreview), pszPropName, value);
}

int CGraphicPropertyPage::SetPropRadio(const char* pszPropName, int value, int bPreview) {
    return binding::Write<I4>(m_pState->Target(bPreview), pszPropName, value);
}

int CGraphicPropertyPage::SetPropRadio(const char* pszPropName, unsigned short value, int bPreview) {
    return binding::Write<UI2>(m_pState->Target(bPreview), pszPropName, value);
}

int CGraphicPropertyPage::GetPropIndex(const char* pszPropName, int* pValue, int bPreview) {
    return GetPropRadio(pszPropName, pValue, bPreview);
}

int CGraphicPropertyPage::SetPropIndex(const char* pszPropName, int value, int bPreview) {
    return SetPropRadio(pszPropName, value, bPreview);
}

int CGraphicPropertyPage::GetPropBits(const char* pszPropName, unsigned short* pPair, int bPreview) {
    return binding::MergeBits(m_pState->Objects(bPreview), pszPropName, pPair);
}

int CGraphicPropertyPage::SetPropBits(const char* pszPropName, unsigned short* pPair, int bPreview) {
    return binding::WriteBits(m_pState->Target(bPreview), pszPropName, pPair);
}

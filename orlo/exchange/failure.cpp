// Failure of exchange functions.

#include "orlo/exchange/failure.h"

#include <cstring>
#include <string>

#include "orlo/host/units.h"
#include "orlo/resources/library_text.h"

namespace {

void Insert(std::string& text, const char* mark, const char* value) {
    const size_t at = text.find(mark);
    if (at != std::string::npos) text.replace(at, std::strlen(mark), value);
}

int FailWithLimits(CDataExchange* pDX, const char* min, const char* max, UINT nIDPrompt) {
    std::string message(LibraryText(nIDPrompt));
    Insert(message, "%1", min);
    Insert(message, "%2", max);
    AfxMessageBox(message.c_str(), MB_ICONEXCLAMATION, nIDPrompt);
    return FailExchange(1, pDX);
}

} // namespace

int FailExchange(int bReport, CDataExchange* pDX) {
    if (bReport) pDX->Fail();
    return 0;
}

int FailWithPrompt(int bReport, CDataExchange* pDX, UINT nIDPrompt, UINT nType) {
    if (bReport) AfxMessageBox(LibraryText(nIDPrompt), nType, static_cast<UINT>(-1));
    return FailExchange(bReport, pDX);
}

int FailTextRange(int bReport, CDataExchange* pDX, const char* min, const char* max, UINT nIDPrompt) {
    if (!pDX->m_bSaveAndValidate) return 1;
    return bReport ? FailWithLimits(pDX, min, max, nIDPrompt) : 0;
}

int FailIntRange(int bReport, CDataExchange* pDX, long min, long max, const char* format, UINT nIDPrompt) {
    if (!pDX->m_bSaveAndValidate) return 1;
    if (!bReport) return 0;
    char minText[32], maxText[32];
    ::wsprintfA(minText, format, min);
    ::wsprintfA(maxText, format, max);
    return FailWithLimits(pDX, minText, maxText, nIDPrompt);
}

int FailRealRange(int bReport, CDataExchange* pDX, double min, double max, int digits, UINT nIDPrompt) {
    if (!pDX->m_bSaveAndValidate) return 1;
    if (!bReport) return 0;
    char minText[128] = "", maxText[128] = "";
    ::DoubleToString(0, min, digits, minText, 0, 0, 1);
    ::DoubleToString(0, max, digits, maxText, 0, 0, 1);
    return FailWithLimits(pDX, minText, maxText, nIDPrompt);
}

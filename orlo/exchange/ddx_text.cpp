// Data exchange of numbers and texts with edit controls.

#include "orlo/exchange/ddx_text.h"

#include <cmath>

#include "orlo/binding/indeterminate.h"
#include "orlo/exchange/failure.h"
#include "orlo/exchange/indeterminate_text.h"
#include "orlo/exchange/number_text.h"
#include "orlo/exchange/window_text.h"
#include "orlo/host/units.h"

namespace {

constexpr int kTextSize = 32;  // for a formatted number
constexpr int kRealDigits = 6; // significant digits of a real number in a field

// Formatting, parsing and failure message of an integer type.
struct IntegerFormat {
    const char* print;
    bool isUnsigned;
    UINT prompt;
};

constexpr IntegerFormat kByte = {"%u", true, AFX_IDP_PARSE_BYTE};
constexpr IntegerFormat kSigned = {"%ld", false, AFX_IDP_PARSE_INT};
constexpr IntegerFormat kWord = {"%ld", false, AFX_IDP_PARSE_UINT};
constexpr IntegerFormat kUnsigned = {"%lu", true, AFX_IDP_PARSE_UINT};

int ExchangeFormattedText(int bReport, CDataExchange* pDX, int nIDC, const IntegerFormat& format, long& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        return ScanTextValue(WindowText(control), format.isUnsigned, value)
                   ? 1
                   : FailWithPrompt(bReport, pDX, format.prompt);
    char text[kTextSize] = "";
    ::wsprintfA(text, format.print, value);
    AfxSetWindowText(control, text);
    return 1;
}

template <class Integer>
int ExchangeInteger(int bReport, CDataExchange* pDX, int nIDC, const IntegerFormat& format, Integer& value) {
    long local = static_cast<long>(value);
    const int result = ExchangeFormattedText(bReport, pDX, nIDC, format, local);
    if (result && pDX->m_bSaveAndValidate) value = static_cast<Integer>(local);
    return result;
}

// Saves to data and loads from value: a double is displayed with its own precision but saved as a float.
int ExchangeRealText(int bReport, CDataExchange* pDX, int nIDC, float& data, double value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        return ScanRealText(WindowText(control), data) ? 1 : FailWithPrompt(bReport, pDX, AFX_IDP_PARSE_REAL);
    const double magnitude = std::fabs(value);
    const int exponentForm = magnitude > 100000.0 || (magnitude < 1e-5 && value != 0.0);
    char text[128] = "";
    ::DoubleToString(0, value, kRealDigits, text, 0, exponentForm, 1);
    AfxSetWindowText(control, text);
    return 1;
}

// Handles blank fields and disabled controls, and otherwise calls the plain exchange.
template <class Value>
int ExchangeBlank(int bReport, CDataExchange* pDX, int nIDC, Value& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate && IsBlankText(control)) {
        value = 0;
        return 1;
    }
    if (!pDX->m_bSaveAndValidate && !::IsWindowEnabled(control)) {
        ::SetWindowTextA(control, "");
        return 1;
    }
    return DDX_Text(bReport, pDX, nIDC, value);
}

} // namespace

int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned char& value) {
    long local = value;
    const int result = ExchangeFormattedText(bReport, pDX, nIDC, kByte, local);
    if (!result || !pDX->m_bSaveAndValidate) return result;
    if (local > 255) return FailWithPrompt(bReport, pDX, kByte.prompt);
    value = static_cast<unsigned char>(local);
    return 1;
}

int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, int& value) {
    return ExchangeInteger(bReport, pDX, nIDC, kSigned, value);
}

int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned short& value) {
    return ExchangeInteger(bReport, pDX, nIDC, kWord, value);
}

int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned int& value) {
    return ExchangeInteger(bReport, pDX, nIDC, kUnsigned, value);
}

int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, long& value) {
    return ExchangeInteger(bReport, pDX, nIDC, kSigned, value);
}

int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned long& value) {
    return ExchangeInteger(bReport, pDX, nIDC, kUnsigned, value);
}

int DDX_Text(int, CDataExchange* pDX, int nIDC, CString& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = WindowText(control);
    else
        AfxSetWindowText(control, value);
    return 1;
}

int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, float& value) {
    return ExchangeRealText(bReport, pDX, nIDC, value, value);
}

int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, double& value) {
    // Only ExchangeRealText prepares the control, so that a field with the marker never gets the focus on failure.
    const CWnd* const control = pDX->m_pDlgWnd->GetDlgItem(nIDC);
    if (pDX->m_bSaveAndValidate) {
        if (control && IsIndeterminateText(WindowText(control->m_hWnd))) return 0;
        float local = 0.0f;
        const int result = ExchangeRealText(bReport, pDX, nIDC, local, value);
        value = local;
        return result;
    }
    if (control && IsIndeterminate(value)) {
        SetIndeterminateText(control->m_hWnd);
        return 1;
    }
    float unused = 0.0f;
    return ExchangeRealText(bReport, pDX, nIDC, unused, value);
}

int DDX_TextBlank(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value) {
    return ExchangeBlank(bReport, pDX, static_cast<int>(nIDC), value);
}

int DDX_TextBlank(int bReport, CDataExchange* pDX, unsigned int nIDC, unsigned int& value) {
    return ExchangeBlank(bReport, pDX, static_cast<int>(nIDC), value);
}

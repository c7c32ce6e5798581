// Validation of values against limits.

#include "orlo/exchange/ddv.h"

#include "orlo/exchange/failure.h"
#include "orlo/resources/resource.h"

namespace {

constexpr double kLargest = 1e38;
constexpr double kSmallestFontSize = 1e-7;

// All limits are passed as long: no type here has more than 32 bits, and the format distinguishes signed from unsigned.
template <class Integer>
int CheckInteger(int bReport, CDataExchange* pDX, Integer value, Integer min, Integer max, const char* format) {
    if (value >= min && value <= max) return 1;
    return FailIntRange(bReport, pDX, static_cast<long>(min), static_cast<long>(max), format, AFX_IDP_PARSE_INT_RANGE);
}

template <class Real>
int CheckReal(int bReport, CDataExchange* pDX, Real value, Real min, Real max, int digits, UINT nIDPrompt) {
    if (!(value < min || value > max)) return 1;
    return FailRealRange(bReport, pDX, min, max, digits, nIDPrompt);
}

} // namespace

int DDV_MinMaxByte(int bReport, CDataExchange* pDX, unsigned char value, unsigned char min, unsigned char max) {
    return CheckInteger(bReport, pDX, value, min, max, "%u");
}

int DDV_MinMaxInt(int bReport, CDataExchange* pDX, int value, int min, int max) {
    return CheckInteger(bReport, pDX, value, min, max, "%ld");
}

int DDV_MinMaxUI2(int bReport, CDataExchange* pDX, unsigned short value, unsigned short min, unsigned short max) {
    return CheckInteger(bReport, pDX, value, min, max, "%ld");
}

int DDV_MinMaxLong(int bReport, CDataExchange* pDX, long value, long min, long max) {
    return CheckInteger(bReport, pDX, value, min, max, "%ld");
}

int DDV_MinMaxUInt(int bReport, CDataExchange* pDX, unsigned int value, unsigned int min, unsigned int max) {
    return CheckInteger(bReport, pDX, value, min, max, "%lu");
}

int DDV_MinMaxDWord(int bReport, CDataExchange* pDX, unsigned long value, unsigned long min, unsigned long max) {
    return CheckInteger(bReport, pDX, value, min, max, "%lu");
}

int DDV_MinMaxFloat(int bReport, CDataExchange* pDX, const float& value, float min, float max) {
    return CheckReal(bReport, pDX, value, min, max, 6, AFX_IDP_PARSE_REAL_RANGE);
}

int DDV_MinMaxDouble(int bReport, CDataExchange* pDX, const double& value, double min, double max) {
    return CheckReal(bReport, pDX, value, min, max, 15, AFX_IDP_PARSE_REAL_RANGE);
}

int DDV_Radians(int bReport, CDataExchange* pDX, const double& value) {
    return CheckReal(bReport, pDX, value, -kLargest, kLargest, 15, IDS_ENTER_ANGLE);
}

int DDV_FontSize(int bReport, CDataExchange* pDX, const double& value) {
    return CheckReal(bReport, pDX, value, kSmallestFontSize, kLargest, 15, IDS_ENTER_FONT_SIZE);
}

int DDV_PositiveValue(int bReport, CDataExchange* pDX, const double& value) {
    if (value > 0.0 || !pDX->m_bSaveAndValidate) return 1;
    return FailWithPrompt(bReport, pDX, IDS_ENTER_POSITIVE, MB_ICONEXCLAMATION);
}

int DDV_MaxChars(int bReport, CDataExchange* pDX, const CString& value, int nChars) {
    if (!pDX->m_bSaveAndValidate || value.GetLength() <= nChars) return 1;
    CString limit;
    limit.Format("%d", nChars);
    return FailTextRange(bReport, pDX, limit, "", AFX_IDP_PARSE_STRING_SIZE);
}

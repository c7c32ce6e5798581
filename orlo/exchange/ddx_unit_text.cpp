// Data exchange of lengths and angles in the drawing's formats with edit controls.

#include "orlo/exchange/ddx_unit_text.h"

#include <cmath>

#include "orlo/exchange/ddx_text.h"
#include "orlo/exchange/failure.h"
#include "orlo/exchange/indeterminate_text.h"
#include "orlo/host/drawing.h"
#include "orlo/host/units.h"

namespace {

constexpr int kTextSize = 0x100; // including the NUL
constexpr double kSmallestScale = 1e-7;
constexpr double kDegrees = 57.29577951308232, kRadians = 0.017453292519943295;

// Exchanges the text of an edit control through the host: read(text) and write(buffer) return the host's result.
template <class Read, class Write>
int ExchangeHostText(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, int bBlank, Read read,
                     Write write) {
    const int id = static_cast<int>(nIDC);
    const HWND control = pDX->PrepareEditCtrl(id);
    CString text;
    if (pDX->m_bSaveAndValidate) {
        if (bBlank && IsBlankText(control)) {
            value = 0.0;
            return 1;
        }
        DDX_Text(bReport, pDX, id, text);
        return read(static_cast<const char*>(text)) ? 1 : FailExchange(bReport, pDX);
    }
    if (!bBlank || ::IsWindowEnabled(control)) {
        const int written = write(text.GetBuffer(kTextSize - 1));
        text.ReleaseBuffer();
        if (!written) return FailExchange(bReport, pDX);
    }
    return DDX_Text(bReport, pDX, id, text);
}

int ExchangePaperText(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                      int bBlank, uint16_t nUnit) {
    TableStruct* const units = pDrawing ? pDrawing->pUnits : nullptr;
    if (!units) return FailExchange(bReport, pDX);
    return ExchangeHostText(
        bReport, pDX, nIDC, value, bBlank,
        [&](const char* text) { return ::UnitsTextToNumericEx(units, kUnitMillimeter, nUnit, text, &value); },
        [&](char* buffer) {
            return ::UnitsNumericToTextEx(units, nUnit, kUnitMillimeter, value, buffer, kTextSize, 0, 1);
        });
}

} // namespace

int DDX_TextLinear(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                   double dDefault, int nFormat, int bBlank) {
    if (!pDrawing) return FailExchange(bReport, pDX);
    return ExchangeHostText(
        bReport, pDX, nIDC, value, bBlank,
        [&](const char* text) {
            value = dDefault;
            const int read = ::DrawingStdTextToNumeric(pDrawing, text, &value, nFormat);
            if (!read) value = dDefault; // overrides whatever the host has stored
            return read;
        },
        [&](char* buffer) { return ::DrawingStdNumericToText(pDrawing, value, buffer, kTextSize, nFormat); });
}

int DDX_TextPaper(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                  int bBlank) {
    return ExchangePaperText(bReport, pDX, nIDC, value, pDrawing, bBlank, kUnitMillimeter);
}

int DDX_TextPaperMM(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                    int bBlank) {
    return ExchangePaperText(bReport, pDX, nIDC, value, pDrawing, bBlank, 0);
}

int DDX_TextPaperWorld(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                       double dScale, int bBlank) {
    if (!(std::fabs(dScale) > kSmallestScale)) return FailExchange(bReport, pDX);
    double factor = 1.0;
    ::UnitsGetLUnitValue(pDrawing ? pDrawing->pUnits : nullptr, kUnitDrawing, &factor);
    double paper = value;
    if (!pDX->m_bSaveAndValidate) paper = paper * dScale * factor;
    if (!ExchangePaperText(bReport, pDX, nIDC, paper, pDrawing, bBlank, 0)) return 0;
    if (pDX->m_bSaveAndValidate) value = paper / dScale / factor;
    return 1;
}

int DDX_TextAngular(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                    int bBlank) {
    if (!pDrawing) return FailExchange(bReport, pDX);
    return ExchangeHostText(
        bReport, pDX, nIDC, value, bBlank,
        [&](const char* text) { return ::DrawingStdTextToAngle(pDrawing, text, &value, 0); },
        [&](char* buffer) { return ::DrawingStdAngleToText(pDrawing, value, buffer, kTextSize, 0); });
}

int DDX_TextRadians(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value) {
    double degrees = pDX->m_bSaveAndValidate ? 0.0 : value * kDegrees;
    if (!DDX_TextBlank(bReport, pDX, nIDC, degrees)) return 0;
    if (pDX->m_bSaveAndValidate) value = degrees * kRadians;
    return 1;
}

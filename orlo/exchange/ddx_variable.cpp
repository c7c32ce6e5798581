// Data exchange between a control and a variable of a host table.

#include "orlo/exchange/ddx_variable.h"

#include <algorithm>
#include <vector>

#include "orlo/exchange/ddv.h"
#include "orlo/exchange/ddx_button.h"
#include "orlo/exchange/ddx_list.h"
#include "orlo/exchange/ddx_scale.h"
#include "orlo/exchange/ddx_text.h"
#include "orlo/exchange/failure.h"
#include "orlo/host/drawing.h"
#include "orlo/host/table.h"
#include "orlo/host/units.h"

namespace {

constexpr int kEditSize = 0x80, kTextSize = 0x100; // including the NUL
constexpr double kCustomary = 0.025;               // in inches
constexpr int kLimitDigits = 15;

uint16_t Key(unsigned long nID) {
    return static_cast<uint16_t>(nID);
}

CString StringVariable(TableStruct* pTable, unsigned long nID, int size) {
    CString text;
    char* const buffer = text.GetBuffer(size - 1);
    buffer[0] = '\0';
    ::TableGetStringVar(pTable, Key(nID), buffer, size);
    text.ReleaseBuffer();
    return text;
}

int WholeVariable(TableStruct* pTable, unsigned long nID, int missing) {
    long value = missing;
    ::TableGetIntVar(pTable, Key(nID), &value);
    return static_cast<int>(value);
}

// Exchanges an integer through a function for int. Always returns 1.
template <class Exchange>
int ExchangeInteger(CDataExchange* pDX, TableStruct* pTable, unsigned long nID, int missing, Exchange exchange) {
    int value = pDX->m_bSaveAndValidate ? missing : WholeVariable(pTable, nID, missing);
    exchange(value);
    if (pDX->m_bSaveAndValidate) ::TableSetIntVar(pTable, Key(nID), value);
    return 1;
}

// Converts the text of the field to inches and validates it.
int SaveDeviceInches(int bReport, CDataExchange* pDX, const CString& text, TableStruct* pUnits, double min, double max,
                     unsigned int nIDPrompt, double& inches) {
    double length = kCustomary * kMillimetersPerInch;
    if (!::UnitsTextToNumericEx(pUnits, kUnitMillimeter, 0, text, &length)) {
        if (min < max) return FailRealRange(bReport, pDX, min, max, kLimitDigits, nIDPrompt);
        return FailWithPrompt(bReport, pDX, AFX_IDP_PARSE_REAL);
    }
    inches = length * kInchesPerMillimeter;
    if (min < max && (inches < min || inches > max))
        return FailRealRange(bReport, pDX, min, max, kLimitDigits, nIDPrompt);
    return 1;
}

} // namespace

int DDX_TextVarNumeric(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID,
                       double min, double max) {
    const int id = static_cast<int>(nIDC);
    double value = 0.0;
    if (!pDX->m_bSaveAndValidate) {
        ::TableGetNumericVar(pTable, Key(nID), &value);
        return DDX_Text(bReport, pDX, id, value);
    }
    if (!DDX_Text(bReport, pDX, id, value)) return 0;
    if (max > min && !DDV_MinMaxDouble(bReport, pDX, value, min, max)) return 0;
    ::TableSetNumericVar(pTable, Key(nID), value);
    return 1;
}

int DDX_TextVarInt(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID, long min,
                   long max) {
    const int id = static_cast<int>(nIDC);
    long value = 0;
    if (!pDX->m_bSaveAndValidate) {
        ::TableGetIntVar(pTable, Key(nID), &value);
        return DDX_Text(bReport, pDX, id, value);
    }
    if (!DDX_Text(bReport, pDX, id, value)) return 0;
    if (max > min && !DDV_MinMaxLong(bReport, pDX, value, min, max)) return 0;
    ::TableSetIntVar(pTable, Key(nID), value);
    return 1;
}

int DDX_TextVarString(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID) {
    CString text;
    if (!pDX->m_bSaveAndValidate) text = StringVariable(pTable, nID, kEditSize);
    if (!DDX_Text(bReport, pDX, static_cast<int>(nIDC), text)) return 0;
    if (pDX->m_bSaveAndValidate) ::TableSetStringVar(pTable, Key(nID), text);
    return 1;
}

int DDX_CBVarString(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID) {
    CString text;
    if (!pDX->m_bSaveAndValidate) text = StringVariable(pTable, nID, kTextSize);
    DDX_CBString(bReport, pDX, static_cast<int>(nIDC), text);
    if (pDX->m_bSaveAndValidate) ::TableSetStringVar(pTable, Key(nID), text);
    return 1;
}

int DDX_TextVarDeviceInches(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pUnits,
                            TableStruct* pVariables, unsigned short nID, double min, double max,
                            unsigned int nIDPrompt) {
    if (!pUnits) return FailExchange(bReport, pDX);
    const int id = static_cast<int>(nIDC);
    pDX->PrepareEditCtrl(id);
    CString text;
    double inches = kCustomary;
    if (pDX->m_bSaveAndValidate) {
        DDX_Text(bReport, pDX, id, text);
        if (!SaveDeviceInches(bReport, pDX, text, pUnits, min, max, nIDPrompt, inches)) return 0;
        ::TableSetNumericVar(pVariables, nID, inches);
        return 1;
    }
    ::TableGetNumericVar(pVariables, nID, &inches);
    const int written = ::UnitsNumericToTextEx(pUnits, 0, kUnitMillimeter, inches * kMillimetersPerInch,
                                               text.GetBuffer(kTextSize - 1), kTextSize, 0, 1);
    text.ReleaseBuffer();
    return written ? DDX_Text(bReport, pDX, id, text) : FailExchange(bReport, pDX);
}

int DDX_CheckVarInt(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID) {
    return ExchangeInteger(pDX, pTable, nID, 0,
                           [&](int& value) { DDX_Check(bReport, pDX, static_cast<int>(nIDC), value); });
}

int DDX_RadioVarInt(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID) {
    return ExchangeInteger(pDX, pTable, nID, -1,
                           [&](int& value) { DDX_Radio(bReport, pDX, static_cast<int>(nIDC), value); });
}

int DDX_RadioVarIntMap(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID,
                       long* pMap, int nCount) {
    std::vector<int> map(pMap, pMap + std::max(nCount, 0));
    int value = pDX->m_bSaveAndValidate ? 0 : WholeVariable(pTable, nID, 0);
    if (!DDX_RadioMap(bReport, pDX, nIDC, value, map.data(), nCount)) return 0;
    if (pDX->m_bSaveAndValidate) ::TableSetIntVar(pTable, Key(nID), value);
    return 1;
}

int DDX_CBVarIndex(int bReport, CDataExchange* pDX, unsigned int nIDC, TableStruct* pTable, unsigned long nID,
                   int nBase, int nMax, int nDefault) {
    return ExchangeInteger(pDX, pTable, nID, 0, [&](int& value) {
        int index = value - nBase;
        DDX_CBIndex(bReport, pDX, static_cast<int>(nIDC), index);
        value = index + nBase;
        if (index == -1 || value < nBase || value > nMax) value = nDefault;
    });
}

int DDX_CBVarScale(int bReport, CDataExchange* pDX, unsigned int nIDC, DrawingStruct* pDrawing) {
    TableStruct* const units = pDrawing ? pDrawing->pUnits : nullptr;
    CString text;
    if (!pDX->m_bSaveAndValidate) {
        char* const buffer = text.GetBuffer(kTextSize - 1);
        buffer[0] = '\0';
        ::DrawingGetScaleString(pDrawing, buffer, kTextSize);
        text.ReleaseBuffer();
    }
    const int done = DDX_CBScale(bReport, pDX, nIDC, text, units, nullptr);
    if (done && pDX->m_bSaveAndValidate) ::DrawingSetScaleString(pDrawing, text);
    return 1;
}

// SheetRecord, OrloRunSheet, and the filling of the controls of all sheets of a thread.

#include "orlo/c/sheet_record.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

#include "orlo/c/busy_scope.h"
#include "orlo/c/guarded_call.h"
#include "orlo/c/pages.h"
#include "orlo/controls/control_fill.h"
#include "orlo/controls/control_kind.h"
#include "orlo/entry/entry.h"
#include "orlo/host/drawing.h"
#include "orlo/host/walk.h"
#include "orlo/pages/current_drawing.h"

namespace orlo {
namespace {

static_assert(kOrloAllGraphics == kAllGraphics && kOrloWithStylePart == kWithStylePart);

std::vector<SheetRecord*>& SheetsOfThread() {
    thread_local std::vector<SheetRecord*> sheets;
    return sheets;
}

// Converts the fill record of the C interface to that of the control protocol.
ControlFillRecord ToFillRecord(const OrloFill& fill) {
    ControlFillRecord record = {fill.table, 0, fill.selected};
    if (fill.kind == kControlFontFaces && fill.face != nullptr) {
        record.dwValue = reinterpret_cast<UINT_PTR>(fill.face);
        record.nSelected = 1;
    }
    if (fill.kind == kControlFontSizes && fill.height > 0) {
        uint32_t bits = 0;
        static_assert(sizeof bits == sizeof fill.height);
        std::memcpy(&bits, &fill.height, sizeof bits);
        record.dwValue = bits;
        record.nSelected = 1;
    }
    return record;
}

void FillControl(const OrloSheet& sheet, unsigned kind, HWND control) {
    const char* const table = ::TableOfControl(kind);
    if (table == nullptr) return;
    OrloFill fill = {};
    fill.size = sizeof fill;
    fill.kind = kind;
    fill.tableName = table;
    fill.table = ::DrawingGetTable(sheet.drawing, table);
    fill.selected = kind == kControlColors ? kColorNone : 0; // because 0 is black
    if (sheet.fill != nullptr) CallHost(sheet.fill, sheet.context, &fill);
    const ControlFillRecord record = ToFillRecord(fill);
    ::SendMessageA(control, kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
}

// A control belongs to the sheet that contains it, else to the last one: a modal sheet, or one that is being created.
void FillControlOfThread(unsigned kind, HWND control) {
    const std::vector<SheetRecord*>& sheets = SheetsOfThread();
    if (sheets.empty()) return;
    const auto found =
        std::find_if(sheets.begin(), sheets.end(), [=](const SheetRecord* sheet) { return sheet->Contains(control); });
    FillControl((found != sheets.end() ? *found : sheets.back())->Get(), kind, control);
}

OrloSheet CopySheet(const OrloSheet* sheet) {
    const OrloSheet record = CopyRecord(sheet, "sheet", offsetof(OrloSheet, pages));
    RequireNotNull(record.drawing, "sheet->drawing");
    if (record.drawing != ::CurrentDrawing()) ThrowError(kOrloBadArgument, "sheet->drawing is not the current drawing");
    return record;
}

} // namespace

SheetRecord::SheetRecord(const OrloSheet* record)
    : m_record(CopySheet(record)), m_framework(FrameworkScope::OfThread(FillControlOfThread)), m_owner(m_record.owner) {
    if (!::PropPageInit()) ThrowError(kOrloOutOfMemory, "out of memory while the library was initialized");
    SheetsOfThread().push_back(this);
}

SheetRecord::~SheetRecord() {
    std::vector<SheetRecord*>& sheets = SheetsOfThread();
    sheets.erase(std::find(sheets.begin(), sheets.end(), this));
}

bool SheetRecord::Contains(HWND) const {
    return false;
}

bool SheetRecord::HasGraphics() const {
    const auto members = host::Members(m_record.selection, m_record.filter);
    return members.begin() != members.end();
}

std::unique_ptr<CGraphicPropertySheet> SheetRecord::NewSheet() {
    std::unique_ptr<CGraphicPropertySheet> sheet(::InitGraphicPropertySheet(
        Owner(), m_record.regenMethods, m_record.drawing, m_record.selection, m_record.filter));
    if (!sheet) ThrowError(kOrloOutOfMemory, "out of memory while the sheet was created");
    for (GraphicStruct* graphic : host::Members(m_record.selection, m_record.filter))
        ::AddGraphicPropertyPage(m_record.regenMethods, graphic, sheet.get());
    AddPages(m_record, *sheet);
    if (m_record.written != nullptr)
        sheet->SetWritten([this](int changed, int rejected) {
            CallHost(m_record.written, m_record.context, static_cast<uint32_t>(changed),
                     static_cast<uint32_t>(rejected));
        });
    return sheet;
}

} // namespace orlo

OrloResult ORLO_CALL OrloRunSheet(const OrloSheet* sheet, int32_t* code) {
    return orlo::GuardedResult(code, "code", [=] {
        orlo::SheetRecord record(sheet);
        return static_cast<int32_t>(record.NewSheet()->DoModal());
    });
}

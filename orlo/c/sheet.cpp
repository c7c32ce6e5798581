// OrloRunSheet: runs the sheet for a program that does not use the framework.

#include <afxwin.h>

#include <memory>

#include "orlo/c/framework_scope.h"
#include "orlo/c/guarded_call.h"
#include "orlo/controls/control_fill.h"
#include "orlo/controls/control_kind.h"
#include "orlo/entry/entry.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/drawing.h"
#include "orlo/host/walk.h"

namespace {

using orlo::Refuse;

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
        memcpy(&bits, &fill.height, sizeof bits);
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
    if (sheet.fill != nullptr) sheet.fill(sheet.context, &fill);
    const ControlFillRecord record = ToFillRecord(fill);
    ::SendMessageA(control, kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
}

int32_t Run(const OrloSheet& record) {
    orlo::FrameworkScope framework(record.owner,
                                   [&](unsigned kind, HWND control) { FillControl(record, kind, control); });
    if (!::PropPageInit()) Refuse(kOrloOutOfMemory, "out of memory while the library was initialized");
    const std::unique_ptr<CGraphicPropertySheet> sheet(::InitGraphicPropertySheet(
        framework.Owner(), record.regenMethods, record.drawing, record.selection, record.filter));
    if (!sheet) Refuse(kOrloOutOfMemory, "out of memory while the sheet was created");
    if (record.selection != nullptr)
        for (GraphicStruct* graphic : orlo::host::Members(record.selection, record.filter))
            ::AddGraphicPropertyPage(record.regenMethods, graphic, sheet.get());
    return static_cast<int32_t>(sheet->DoModal());
}

} // namespace

OrloResult ORLO_CALL OrloRunSheet(const OrloSheet* sheet, int32_t* code) {
    return orlo::GuardedCall([&] {
        orlo::RequireNotNull(code, "code") = 0;
        const OrloSheet record = orlo::RequireRecord(sheet, "sheet");
        orlo::RequireNotNull(record.drawing, "sheet->drawing");
        *code = Run(record);
    });
}

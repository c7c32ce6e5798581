// OrloRunSheet: the sheet for a program that has nothing of the framework.

#include <afxwin.h>

#include <memory>

#include "orlo/c/answer.h"
#include "orlo/c/stage.h"
#include "orlo/controls/control_fill.h"
#include "orlo/controls/control_kind.h"
#include "orlo/entry/entry.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/drawing.h"
#include "orlo/host/walk.h"

namespace {

using orlo::Refuse;

// The record of the control protocol, from the one of the C interface.
ControlFillRecord RecordOf(const OrloFill& fill) {
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
    fill.selected = kind == kControlColors ? kColorNone : 0; // 0 is black
    if (sheet.fill != nullptr) sheet.fill(sheet.context, &fill);
    const ControlFillRecord record = RecordOf(fill);
    ::SendMessageA(control, kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
}

int32_t Run(const OrloSheet& record) {
    orlo::Stage stage(record.owner, [&](unsigned kind, HWND control) { FillControl(record, kind, control); });
    ::PropPageInit();
    const std::unique_ptr<CGraphicPropertySheet> sheet(::InitGraphicPropertySheet(
        stage.Owner(), record.regenMethods, record.drawing, record.selection, record.filter));
    if (!sheet) Refuse(kOrloNoMemory, "there is no memory for the sheet");
    if (record.selection != nullptr)
        for (GraphicStruct* graphic : orlo::host::Members(record.selection, record.filter))
            ::AddGraphicPropertyPage(record.regenMethods, graphic, sheet.get());
    return static_cast<int32_t>(sheet->DoModal());
}

} // namespace

OrloResult ORLO_CALL OrloRunSheet(const OrloSheet* sheet, int32_t* code) {
    return orlo::Answer([&] {
        orlo::Given(code, "code") = 0;
        const OrloSheet record = orlo::GivenRecord(sheet, "the sheet");
        orlo::Given(record.drawing, "the drawing");
        *code = Run(record);
    });
}

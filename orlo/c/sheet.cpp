// OrloRunSheet: runs the sheet for a program that does not use the framework.

#include "orlo/c/guarded_call.h"
#include "orlo/c/sheet_record.h"

OrloResult ORLO_CALL OrloRunSheet(const OrloSheet* sheet, int32_t* code) {
    return orlo::GuardedCall([&] {
        orlo::RequireNotNull(code, "code") = 0;
        orlo::SheetRecord record(sheet);
        *code = static_cast<int32_t>(record.NewSheet()->DoModal());
    });
}

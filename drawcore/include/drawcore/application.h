// Settings of the application, for host programs; reading them is in orlo/host/application.h.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Makes a drawing the current one (null: none). 0 if there is no such drawing. A drawing that is freed stops being current.
DRAWCORE_API int AppSetCurrentDrawing(DrawingStruct*);
// Full path of the configuration file, copied; null or "" for none.
DRAWCORE_API void AppSetINIFileName(const char* path);

// String variable of the application's table: the decimal mark of all numbers as text, read and written; "." or ",". A new
// process has ".".
ORLO_CONSTANT uint16_t kVarDecimalMark = 0x5105;

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
// Whole number variable of the application's table: the layer, an entry of the drawing's table, that previews take for theirs,
// so that what is by layer looks as it does in the drawing. 0 in a new process: none, it is drawn in the ink of the paper.
ORLO_CONSTANT uint16_t kVarPreviewLayer = 0x5106;

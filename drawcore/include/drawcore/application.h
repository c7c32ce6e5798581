// Sets the application's current drawing and settings. Functions that read them are in orlo/host/application.h.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Sets the current drawing; null means none. Returns 0 if there is no such drawing. If the current drawing is freed,
// there is no current drawing.
DRAWCORE_API int AppSetCurrentDrawing(DrawingStruct*);
// Sets the full path of the configuration file; null or "" means none. The string is copied.
DRAWCORE_API void AppSetINIFileName(const char* path);

// String variable of the application's table: the decimal mark in all numbers that are read and written, "." (the
// default) or ",".
ORLO_CONSTANT uint16_t kVarDecimalMark = 0x5105;
// Integer variable of the application's table: the layer whose values previews use for properties "by layer", an entry
// of the drawing's table kTableLayers. If it is 0 (the default), such graphics are drawn in the contrasting color of
// the background.
ORLO_CONSTANT uint16_t kVarPreviewLayer = 0x5106;

// The current drawing of the application, and its tables.

#include "orlo/pages/current_drawing.h"

#include "orlo/host/application.h"
#include "orlo/host/drawing.h"

DrawingStruct* CurrentDrawing() {
    const AppStruct* application = ::AppGetCurrentApp();
    return application != nullptr ? application->pCurrentDrawing : nullptr;
}

TableStruct* CurrentTable(const char* name) {
    DrawingStruct* drawing = CurrentDrawing();
    return drawing != nullptr ? ::DrawingGetTable(drawing, name) : nullptr;
}

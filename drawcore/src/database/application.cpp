// The one application of the process.
#include "drawcore/src/database/application.h"

#include "drawcore/include/drawcore/application.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/styles/colors.h"
#include "drawcore/src/units/decimal_mark.h"
#include "orlo/host/application.h"

namespace drawcore {

Application& Application::Get() {
    static Application application;
    return application;
}

Application::Application() : AppStruct{} {
    pVariables = &variables_;
    hPalette = static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE));
    variables_.SetVariable(kVarPreviewBackground, static_cast<int>(kWhite));
    variables_.SetVariable(kVarPreviewLayer, int{kNoId});
    variables_.SetVariable(kVarDecimalMark, std::string("."));
}

void Application::Remove(const Drawing& drawing) {
    if (pCurrentDrawing == &drawing) pCurrentDrawing = nullptr;
}

uint32_t Application::PreviewBackground() const {
    const int* color = variables_.Variable<int>(kVarPreviewBackground);
    return color ? static_cast<uint32_t>(*color) : kWhite;
}

Id Application::PreviewLayer() const {
    const int* layer = variables_.Variable<int>(kVarPreviewLayer);
    return layer ? static_cast<Id>(*layer) : kNoId;
}

char DecimalMark() {
    const std::string* mark = Application::Get().Variables().Variable<std::string>(kVarDecimalMark);
    return mark && *mark == "," ? ',' : '.';
}

} // namespace drawcore

using namespace drawcore;

AppStruct* AppGetCurrentApp(void) {
    return &Application::Get();
}

int AppGetINIFileName(AppStruct* application, char* buffer, int size) {
    if (application != &Application::Get() || !buffer || size <= 0) return 0;
    return CopyText(Application::Get().configurationFile, buffer, size);
}

int IsPaletteSupported(HDC dc) {
    return dc && (::GetDeviceCaps(dc, RASTERCAPS) & RC_PALETTE) != 0;
}

int AppSetCurrentDrawing(DrawingStruct* drawing) {
    Drawing* found = Drawing::Find(drawing);
    if (drawing && !found) return 0;
    Application::Get().SetCurrentDrawing(found);
    return 1;
}

void AppSetINIFileName(const char* path) {
    Application::Get().configurationFile = path ? path : "";
}

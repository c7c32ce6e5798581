// The single application object of the process.
#include "drawcore/src/database/application.h"

#include "drawcore/include/drawcore/application.h"
#include "drawcore/src/styles/colors.h"
#include "drawcore/src/units/decimal_mark.h"
#include "orlo/host/words.h"

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

void Application::Remove(const DrawingStruct& drawing) {
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

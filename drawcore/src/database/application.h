// The application of this process: current drawing, variables, palette, configuration file.
#pragma once

#include <string>

#include "drawcore/src/tables/table.h"
#include "orlo/host/records.h"

namespace drawcore {

class Application : public AppStruct {
public:
    static Application& Get();

    void SetCurrentDrawing(DrawingStruct* drawing) { pCurrentDrawing = drawing; }
    void Remove(const DrawingStruct& drawing); // Called before the drawing is freed.
    // Returns the variable kVarPreviewBackground, or white if the host program has removed it.
    uint32_t PreviewBackground() const;
    Id PreviewLayer() const; // the variable kVarPreviewLayer
    const Table& Variables() const { return variables_; }

    std::string configurationFile;

private:
    Application();

    Table variables_{nullptr};
};

} // namespace drawcore

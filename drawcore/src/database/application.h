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
    void Remove(const DrawingStruct& drawing); // it is about to be freed
    // Variable kVarPreviewBackground; white if the host program has removed the variable.
    uint32_t PreviewBackground() const;
    Id PreviewLayer() const; // variable kVarPreviewLayer
    const Table& Variables() const { return variables_; }

    std::string configurationFile;

private:
    Application();

    Table variables_{nullptr};
};

} // namespace drawcore

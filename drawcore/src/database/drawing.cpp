// Drawings of the application.
#include "drawcore/src/database/drawing.h"

#include "drawcore/src/database/application.h"
#include "drawcore/src/database/dxf_source.h"

namespace drawcore {

Drawing::Drawing() {
    pApplication = &Application::Get();
}

Drawing::~Drawing() {
    Application::Get().Remove(*this);
}

Drawing* Drawing::Find(DrawingStruct* drawing) {
    return static_cast<Drawing*>(DrawingContents::Find(drawing));
}

} // namespace drawcore

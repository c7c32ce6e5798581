// Saves a drawing to a DXF file: patches the text it was read from, verifies it by reading it back, and replaces the
// file.
#pragma once

#include <cstdint>
#include <filesystem>

#include "drawcore/include/drawcore/dxf.h"
#include "drawcore/src/database/drawing.h"

namespace drawcore {

// Saves a drawing that was read from a DXF file. Flags, listener and results (kSaveDone, kSaveDoneInPart,
// kSaveFileChanged) are those of DrawingSaveDxf. Throws SaveError, ReadError, FileError or Canceled; the file is
// unchanged then.
int SaveDrawing(Drawing& drawing, const std::filesystem::path& path, uint32_t flags, const DxfListener* listener);

} // namespace drawcore

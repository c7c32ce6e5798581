// Saves a drawing to a DXF file for a host program.

#include <new>

#include "drawcore/include/drawcore/dxf.h"
#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/database/progress_report.h"
#include "drawcore/src/export/drawing_save.h"

using namespace drawcore;

int DrawingSaveDxf(DrawingStruct* drawing, const wchar_t* path, uint32_t flags, const DxfListener* listener,
                   char* message, int size) {
    Drawing* found = Drawing::Find(drawing);
    CopyText("", message, size);
    if (!found || !path) return kSaveFailed;
    if (!found->source) {
        CopyText("the drawing was not opened from a DXF file", message, size);
        return kSaveFailed;
    }
    try {
        const int result = SaveDrawing(*found, std::filesystem::absolute(path), flags, listener);
        if (result == kSaveFileChanged) CopyText("the file has changed since it was opened", message, size);
        return result;
    } catch (const Canceled& canceled) {
        CopyText(canceled.what(), message, size);
        return kSaveCanceled;
    } catch (const std::bad_alloc&) {
        CopyText("not enough memory to save the drawing", message, size);
    } catch (const std::exception& error) { // SaveError, ReadError, FileError, or an invalid path
        CopyText(error.what(), message, size);
    }
    return kSaveFailed;
}

int DrawingIsModified(DrawingStruct* drawing) {
    const Drawing* found = Drawing::Find(drawing);
    return found && found->source && found->source->IsOutdated(*found);
}

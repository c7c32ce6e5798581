// Opens and saves DXF drawings for a host program.

#include <new>

#include "drawcore/include/drawcore/dxf.h"
#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/database/encoding.h"
#include "drawcore/src/database/progress_report.h"
#include "drawcore/src/export/drawing_save.h"
#include "drawcore/src/import/dxf_import.h"

using namespace drawcore;

namespace {

constexpr int kReadingShare = 700; // in thousandths; reading takes longer than creating the drawing

std::unique_ptr<Drawing> Open(const wchar_t* path, const DxfListener* listener) {
    const ProgressReport report(listener);
    std::string bytes = dxf::ReadBytes(path);
    dxf::Document document = dxf::Read(bytes, report.Part(0, kReadingShare));
    std::unique_ptr<Drawing> drawing = ImportDxf(document, report.Part(kReadingShare, 1000));
    for (const dxf::Warning& warning : document.warnings)
        if (listener && listener->warning)
            listener->warning(listener->context, static_cast<int>(warning.line),
                              CodePageFromUtf8(warning.text).c_str());
    drawing->source = std::make_unique<DxfSource>(std::move(bytes), document);
    drawing->source->path = std::filesystem::absolute(path);
    drawing->source->RecordContents(*drawing);
    report(1000);
    return drawing;
}

} // namespace

DrawingStruct* DrawingOpenDxf(const wchar_t* path, const DxfListener* listener, char* message, int size) {
    if (!path) return nullptr;
    CopyText("", message, size);
    try {
        return Open(path, listener).release();
    } catch (const std::bad_alloc&) {
        CopyText("not enough memory for the drawing", message, size);
    } catch (const std::exception& error) { // dxf::ReadError, Canceled; an invalid path
        CopyText(error.what(), message, size);
    }
    return nullptr;
}

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

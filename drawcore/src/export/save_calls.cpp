// The call with which a host program saves a drawing into a DXF file.

#include <new>
#include <optional>

#include "drawcore/include/drawcore/dxf.h"
#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/export/drawing_comparison.h"
#include "drawcore/src/export/layer_export.h"
#include "drawcore/src/export/look_export.h"
#include "drawcore/src/export/structure_export.h"
#include "drawcore/src/graphics/insert_graphic.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/import/progress_report.h"
#include "drawcore/src/save/save_error.h"
#include "files/file_replacement.h"
#include "files/open_file.h"

using namespace drawcore;

namespace {

// Carries the looks of what was touched into the text, and where it was moved to.
class ChangeExport {
public:
    ChangeExport(const Drawing& drawing, const StructureExport& structure, dxf::DrawingPatch& patch)
        : drawing_(drawing), structure_(structure), patch_(patch), looks_(drawing, patch) {}

    void Write() {
        const BlockTable* blocks = drawing_.Blocks();
        WriteMembers(drawing_.Root());
        for (Id id = blocks ? blocks->First() : kNoId; id; id = blocks->Next(id))
            if (structure_.Has(*blocks->At(id))) WriteMembers(blocks->At(id)->Content());
    }

private:
    void WriteMembers(const Graphic& group) {
        for (size_t i = 0; i < group.MemberCount(); ++i) {
            const Graphic& graphic = *group.MemberAt(i);
            if (graphic.touched || graphic.source == Graphic::kNoSource) Write(graphic);
            WriteMembers(graphic);
        }
    }

    void Write(const Graphic& graphic) {
        dxf::EntityPlace place;
        Matrix placement;
        std::vector<Vec3> positions;
        if (graphic.GetKind() == Kind::Insert) {
            placement = static_cast<const InsertGraphic&>(graphic).Placement();
            place.placement = &placement;
        } else if (const auto* list = dynamic_cast<const VertexGraphic*>(&graphic)) {
            for (const Vertex& vertex : list->vertices)
                positions.push_back(vertex.Position());
            place.vertices = &positions;
        }
        patch_.Change(structure_.PlaceOf(graphic), looks_.LookOf(graphic), place);
    }

    const Drawing& drawing_;
    const StructureExport& structure_;
    dxf::DrawingPatch& patch_;
    LookExport looks_;
};

bool IsTouched(const Graphic& graphic) {
    bool touched = graphic.touched;
    for (size_t i = 0; i < graphic.MemberCount() && !touched; ++i)
        touched = IsTouched(*graphic.MemberAt(i));
    return touched;
}

bool IsTouched(const Drawing& drawing) {
    const BlockTable* blocks = drawing.Blocks();
    bool touched = IsTouched(drawing.Root());
    for (Id id = blocks ? blocks->First() : kNoId; id && !touched; id = blocks->Next(id))
        touched = IsTouched(blocks->At(id)->Content());
    return touched;
}

// The shares of 1000 that are done then.
constexpr int kPatched = 200, kReadBack = 500, kCompared = 700;

// What a drawing becomes when it is saved.
struct ChangedSource {
    std::string bytes;
    dxf::Document known;
    Sources sources;
};

// None, and the source stays, if nobody has touched the drawing.
std::optional<ChangedSource> Changed(const Drawing& drawing, const ProgressReport& report) {
    const DxfSource& source = *drawing.source;
    const std::string_view text = dxf::TextOf(source.bytes);
    dxf::StructurePatch structurePatch(text, source.known.Tables());
    StructureExport structure(drawing, structurePatch);
    structure.Write();
    const auto layers = ChangedLayers(drawing, source.known);
    if (!structurePatch.IsChanged() && layers.empty() && !IsTouched(drawing)) return std::nullopt;
    const bool restructured = structurePatch.IsChanged();
    const std::string other = restructured ? structurePatch.Finish() : std::string();
    dxf::DrawingPatch patch(restructured ? std::string_view(other) : text,
                            restructured ? dxf::Read(other, {}).Tables() : source.known.Tables());
    for (const auto& [index, layer] : layers)
        patch.ChangeLayer(index, layer);
    ChangeExport(drawing, structure, patch).Write();
    ChangedSource changed;
    changed.bytes = source.bytes.substr(0, source.bytes.size() - text.size()) + patch.Finish();
    report(kPatched);
    const dxf::Document document = dxf::Read(changed.bytes, report.Part(kPatched, kReadBack));
    const std::string difference = FirstDifference(drawing, dxf::TextOf(changed.bytes), document,
                                                   changed.sources, report.Part(kReadBack, kCompared));
    if (!difference.empty()) throw dxf::SaveError(difference);
    if (!ChangedLayers(drawing, document).empty())
        throw dxf::SaveError("the file can't hold a change of a layer");
    changed.known = document.Tables();
    return changed;
}

void TakeOver(ChangedSource&& changed, DxfSource& source) {
    for (const auto& [graphic, place] : changed.sources) {
        graphic->source = place;
        graphic->touched = false;
    }
    source.bytes = std::move(changed.bytes);
    source.known = std::move(changed.known);
}

bool IsSameFile(const std::filesystem::path& a, const std::filesystem::path& b) {
    std::error_code error;
    return std::filesystem::equivalent(a, b, error);
}

int Save(Drawing& drawing, const std::filesystem::path& path, uint32_t flags, const ProgressReport& report) {
    DxfSource& source = *drawing.source;
    const bool mustBeSource = IsSameFile(path, source.path) && !(flags & kSaveOverChanged);
    const auto isChanged = [&] { return mustBeSource && !files::HasContents(path, source.bytes); };
    if (isChanged()) return kSaveFileChanged;
    report(0);
    std::optional<ChangedSource> changed = Changed(drawing, report);
    const std::string& bytes = changed ? changed->bytes : source.bytes;
    const dxf::Progress progress = report.Part(kCompared, 1000);
    files::FileReplacement file(path);
    file.Write(bytes, [&](size_t written) { progress(dxf::Permille(written, bytes.size())); });
    if (isChanged()) return kSaveFileChanged; // while it was written
    file.TakePlace();                         // from here on nothing is cancelled
    if (changed) TakeOver(std::move(*changed), source);
    source.NoteContents(drawing);
    source.path = path;
    return kSaveDone;
}

} // namespace

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
        const int result = Save(*found, std::filesystem::absolute(path), flags, ProgressReport(listener));
        if (result == kSaveFileChanged) CopyText("the file has changed since it was opened", message, size);
        return result;
    } catch (const Cancelled& cancelled) {
        CopyText(cancelled.what(), message, size);
        return kSaveCancelled;
    } catch (const std::bad_alloc&) {
        CopyText("there is not enough memory to save the drawing", message, size);
    } catch (const std::exception& error) { // SaveError, ReadError, FileError, of a path
        CopyText(error.what(), message, size);
    }
    return kSaveFailed;
}

int DrawingIsModified(DrawingStruct* drawing) {
    const Drawing* found = Drawing::Find(drawing);
    return found && found->source && found->source->IsOutdated(*found);
}

// The call with which a host program saves a drawing into a DXF file.

#include <algorithm>
#include <new>
#include <optional>

#include "drawcore/include/drawcore/dxf.h"
#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/export/drawing_comparison.h"
#include "drawcore/src/export/look_export.h"
#include "drawcore/src/graphics/insert_graphic.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/import/import_tables.h"
#include "drawcore/src/import/progress_report.h"
#include "drawcore/src/save/file_replacement.h"
#include "drawcore/src/save/save_error.h"

using namespace drawcore;

namespace {

// Carries what was touched into the text.
class ChangeExport {
public:
    ChangeExport(const Drawing& drawing, dxf::DrawingPatch& patch)
        : drawing_(drawing), patch_(patch), looks_(drawing, patch) {}

    void Write() {
        const BlockTable* blocks = drawing_.Blocks();
        WriteMembers(drawing_.Root());
        for (Id id = blocks ? blocks->First() : kNoId; id; id = blocks->Next(id))
            if (IsInFile(*blocks->At(id))) WriteMembers(blocks->At(id)->Content());
        if (count_ != drawing_.source->graphics || hasOthers_)
            throw dxf::SaveError("graphics were added or removed, which the file can't take");
    }
    bool WasTouched() const { return touched_; }

private:
    bool IsInFile(const Block& block) const {
        return std::any_of(
            patch_.Known().blocks.begin(), patch_.Known().blocks.end(), [&](const dxf::Block& known) {
                return known.declared && FoldName(HostName(known.name)) == FoldName(block.name);
            });
    }

    void WriteMembers(const Graphic& group) {
        for (size_t i = 0; i < group.MemberCount(); ++i) {
            ++count_;
            Write(*group.MemberAt(i));
            WriteMembers(*group.MemberAt(i));
        }
    }

    void Write(const Graphic& graphic) {
        hasOthers_ = hasOthers_ || graphic.source == Graphic::kNoSource;
        if (!graphic.touched || hasOthers_) return;
        touched_ = true;
        const auto* insert =
            graphic.GetKind() == Kind::Insert ? static_cast<const InsertGraphic*>(&graphic) : nullptr;
        const Matrix placement = insert ? insert->Placement() : Matrix();
        patch_.Change(graphic.source, looks_.LookOf(graphic), insert ? &placement : nullptr);
    }

    const Drawing& drawing_;
    dxf::DrawingPatch& patch_;
    LookExport looks_;
    size_t count_ = 0;
    bool touched_ = false, hasOthers_ = false;
};

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
    dxf::DrawingPatch patch(text, source.known.Tables());
    ChangeExport changes(drawing, patch);
    changes.Write();
    if (!changes.WasTouched()) return std::nullopt;
    ChangedSource changed;
    changed.bytes = source.bytes.substr(0, source.bytes.size() - text.size()) + patch.Finish();
    report(kPatched);
    const dxf::Document document = dxf::Read(changed.bytes, report.Part(kPatched, kReadBack));
    const std::string difference = FirstDifference(drawing, dxf::TextOf(changed.bytes), document,
                                                   changed.sources, report.Part(kReadBack, kCompared));
    if (!difference.empty()) throw dxf::SaveError(difference);
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
    const bool replacesSource = IsSameFile(path, source.path);
    if (replacesSource && !(flags & kSaveOverChanged) && !dxf::Holds(path, source.bytes))
        return kSaveFileChanged;
    report(0);
    std::optional<ChangedSource> changed = Changed(drawing, report);
    dxf::FileReplacement file(path);
    file.Write(changed ? changed->bytes : source.bytes, report.Part(kCompared, 1000));
    file.TakePlace(); // from here on nothing is cancelled
    if (changed) TakeOver(std::move(*changed), source);
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
    } catch (const std::exception& error) { // SaveError, ReadError, of a path
        CopyText(error.what(), message, size);
    }
    return kSaveFailed;
}

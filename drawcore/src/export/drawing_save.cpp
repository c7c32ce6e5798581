// Saves a drawing to the DXF file that it was read from, or to another.
#include "drawcore/src/export/drawing_save.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/database/encoding.h"
#include "drawcore/src/database/progress_report.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/export/appearance_export.h"
#include "drawcore/src/export/drawing_comparison.h"
#include "drawcore/src/export/layer_export.h"
#include "drawcore/src/export/omitted_objects.h"
#include "drawcore/src/export/structure_export.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/import/import_tables.h"
#include "drawcore/src/save/layer_use.h"
#include "files/file_replacement.h"
#include "files/open_file.h"

namespace drawcore {

namespace {

// Writes the changed graphics into the text.
class ChangeExport {
public:
    ChangeExport(const Drawing& drawing, const StructureExport& structure, dxf::DrawingPatch& patch,
                 OmittedObjects& omitted)
        : drawing_(drawing), structure_(structure), omitted_(omitted), appearances_(drawing, patch) {}

    // Layers are added even if they are empty.
    void Write(const std::vector<Id>& newLayers) {
        const BlockTable* blocks = drawing_.Blocks();
        for (const Id id : newLayers)
            appearances_.AddLayer(id);
        WriteMembers(drawing_.Root());
        for (Id id = blocks ? blocks->First() : kNoId; id; id = blocks->Next(id))
            if (structure_.Has(*blocks->At(id))) WriteMembers(blocks->At(id)->Content());
    }

private:
    void WriteMembers(const Graphic& group) {
        for (size_t i = 0; i < group.MemberCount(); ++i) {
            const Graphic& graphic = *group.MemberAt(i);
            const bool isNew = graphic.source == Graphic::kNoSource;
            if (isNew && !structure_.IsAdded(graphic)) continue;
            if ((graphic.touched || isNew) && !omitted_.Has(graphic))
                omitted_.RunOrOmit(graphic, [&] { appearances_.Write(graphic, structure_.OffsetOf(graphic)); });
            WriteMembers(graphic);
        }
    }

    const Drawing& drawing_;
    const StructureExport& structure_;
    OmittedObjects& omitted_;
    AppearanceExport appearances_;
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

// Completed shares in thousandths.
constexpr int kPatched = 200, kReadBack = 500, kCompared = 700;

// The source of a drawing after saving.
struct ChangedSource {
    std::string bytes;
    dxf::Document known;
    Sources sources;
    std::vector<uint32_t> notRemoved;           // StructureExport::NotRemoved, as offsets in the bytes
    std::map<std::string, size_t> onlyExtended; // DrawingPatch::OnlyExtended
};

// One conversion of a drawing to the text of its file and back. If it finds further graphics that cannot be saved, its
// result is discarded, and the next pass omits them.
class SavePass {
public:
    SavePass(const Drawing& drawing, OmittedObjects& omitted, const ProgressReport& report)
        : drawing_(drawing), source_(*drawing.source), text_(dxf::TextOf(source_.bytes)), omitted_(omitted),
          report_(report) {}

    // Returns nothing, and keeps the source, if the drawing equals its file.
    std::optional<ChangedSource> Run() {
        dxf::StructurePatch structurePatch(text_, source_.known.Tables());
        StructureExport structure(drawing_, structurePatch, omitted_);
        structure.Write();
        const bool restructured = structurePatch.IsChanged();
        const std::string other = restructured ? structurePatch.Finish() : std::string();
        structure.ReportBlockingReferences();
        const std::vector<Id> newLayers = NewLayers();
        const bool isSame = !restructured && newLayers.empty() && ChangedLayers(drawing_, source_.known).empty() &&
                            !IsTouched(drawing_);
        if (isSame || MustRepeat()) return std::nullopt;
        dxf::DrawingPatch patch(restructured ? std::string_view(other) : text_,
                                restructured ? dxf::Read(other, {}).Tables() : source_.known.Tables());
        ChangeLayers(patch);
        ChangeExport(drawing_, structure, patch, omitted_).Write(newLayers);
        if (MustRepeat()) return std::nullopt;
        ChangedSource changed;
        changed.onlyExtended = patch.OnlyExtended();
        changed.bytes = source_.bytes.substr(0, source_.bytes.size() - text_.size()) + patch.Finish();
        for (const uint32_t place : structure.NotRemoved())
            changed.notRemoved.push_back(static_cast<uint32_t>(patch.Moved(place)));
        report_(kPatched);
        Compare(changed);
        return changed;
    }

private:
    // Returns whether the pass must be repeated without the graphics found meanwhile.
    bool MustRepeat() const { return omitted_.Count() != before_; }

    // Returns the layers added since the drawing was read or saved.
    std::vector<Id> NewLayers() const {
        std::vector<Id> added;
        const LayerTable* layers = drawing_.Layers();
        const std::set<std::string> known(source_.layers.begin(), source_.layers.end());
        for (Id id = layers ? layers->First() : kNoId; id; id = layers->Next(id))
            if (known.count(layers->At(id)->name) == 0) added.push_back(id);
        return added;
    }

    void ChangeLayers(dxf::DrawingPatch& patch) {
        for (const auto& [index, layer] : ChangedLayers(drawing_, patch.Known())) {
            const std::string name = OmittedObjects::NameOfLayer(HostName(layer.name));
            if (omitted_.Has(name)) continue;
            try {
                patch.ChangeLayer(index, layer);
            } catch (const dxf::SaveError& error) {
                omitted_.Add(name, error.what());
            }
        }
    }

    void Compare(ChangedSource& changed) {
        const std::string_view text = dxf::TextOf(changed.bytes);
        const dxf::Document document = dxf::Read(changed.bytes, report_.Part(kPatched, kReadBack));
        changed.sources =
            CompareWithFile(drawing_, text, document, omitted_, changed.notRemoved, report_.Part(kReadBack, kCompared));
        for (const auto& [index, layer] : ChangedLayers(drawing_, document))
            omitted_.Add(OmittedObjects::NameOfLayer(HostName(layer.name)), "the file format cannot store the change");
        CompareLayerNames(text, document);
        changed.known = document.Tables();
    }

    void CompareLayerNames(std::string_view text, const dxf::Document& document) {
        const LayerTable* layers = drawing_.Layers();
        if (!layers) return;
        for (const std::string& name : source_.layers) {
            if (layers->IdOf(name)) continue;
            const std::string layer = Utf8FromCodePage(name);
            if (dxf::FirstOnLayer(text, document, layer).empty()) continue;
            const std::string user = dxf::FirstOnLayer(text_, source_.known, layer); // including its line
            omitted_.Add(OmittedObjects::NameOfLayer(name), "cannot be deleted because " + user + " is on it");
        }
    }

    const Drawing& drawing_;
    const DxfSource& source_;
    const std::string_view text_;
    OmittedObjects& omitted_;
    const size_t before_ = omitted_.Count();
    const ProgressReport& report_;
};

void TakeOver(ChangedSource&& changed, const OmittedObjects& omitted, DxfSource& source) {
    for (const auto& [graphic, place] : changed.sources) {
        graphic->source = place;
        if (!omitted.Has(*graphic)) graphic->touched = false;
    }
    source.bytes = std::move(changed.bytes);
    source.known = std::move(changed.known);
}

bool IsSameFile(const std::filesystem::path& a, const std::filesystem::path& b) {
    std::error_code error;
    return std::filesystem::equivalent(a, b, error);
}

// Runs passes until no further graphic must be omitted. Throws SaveError for the first one unless saving the rest was
// requested.
std::optional<ChangedSource> Change(const Drawing& drawing, bool savesRest, OmittedObjects& omitted,
                                    const ProgressReport& report) {
    for (;;) {
        const size_t before = omitted.Count();
        std::optional<ChangedSource> changed = SavePass(drawing, omitted, report).Run();
        if (omitted.Count() == before) return changed;
        if (!savesRest) throw dxf::SaveError(omitted.List().front().text);
    }
}

// Removed graphics that remain in the file are removed again at the next save.
void RecordContents(const Drawing& drawing, const OmittedObjects& omitted, const std::vector<uint32_t>& notRemoved) {
    DxfSource& source = *drawing.source;
    const std::vector<std::string> layers = source.layers, blocks = source.blocks;
    source.RecordContents(drawing, omitted.Count());
    for (const std::string& name : layers)
        if (omitted.Has(OmittedObjects::NameOfLayer(name)) && drawing.Layers() && !drawing.Layers()->IdOf(name))
            source.layers.push_back(name);
    for (const std::string& name : blocks)
        if (omitted.Has(OmittedObjects::NameOfBlock(name)) && !drawing.Blocks()->IdOf(name))
            source.blocks.push_back(name);
    source.graphics.insert(source.graphics.end(), notRemoved.begin(), notRemoved.end());
    std::sort(source.graphics.begin(), source.graphics.end());
}

void ReportOnlyExtended(const std::map<std::string, size_t>& properties, const DxfListener* listener) {
    for (const auto& [name, count] : properties)
        if (listener && listener->warning)
            listener->warning(listener->context, 0, dxf::OnlyExtendedText(name, count).c_str());
}

} // namespace

int SaveDrawing(Drawing& drawing, const std::filesystem::path& path, uint32_t flags, const DxfListener* listener) {
    DxfSource& source = *drawing.source;
    const ProgressReport report(listener);
    const bool mustBeSource = IsSameFile(path, source.path) && !(flags & kSaveOverChanged);
    const auto isChanged = [&] { return mustBeSource && !files::HasContents(path, source.bytes); };
    if (isChanged()) return kSaveFileChanged;
    report(0);
    OmittedObjects omitted(drawing);
    std::optional<ChangedSource> changed = Change(drawing, flags & kSaveRest, omitted, report);
    const std::string& bytes = changed ? changed->bytes : source.bytes;
    const dxf::Progress progress = report.Part(kCompared, 1000);
    files::FileReplacement file(path);
    file.Write(bytes, [&](size_t written) { progress(dxf::Permille(written, bytes.size())); });
    if (isChanged()) return kSaveFileChanged; // while this program was writing
    file.Commit();                            // cannot be canceled from here on
    const std::vector<uint32_t> notRemoved =
        changed ? changed->notRemoved : std::vector<uint32_t>(omitted.Removed().begin(), omitted.Removed().end());
    if (changed) {
        ReportOnlyExtended(changed->onlyExtended, listener);
        TakeOver(std::move(*changed), omitted, source);
    }
    RecordContents(drawing, omitted, notRemoved);
    source.path = path;
    for (const dxf::Warning& warning : omitted.List())
        if (listener && listener->warning)
            listener->warning(listener->context, static_cast<int>(warning.line), warning.text.c_str());
    return omitted.Count() == 0 ? kSaveDone : kSaveDoneInPart;
}

} // namespace drawcore

// Common implementation of all graphics: members, copies, extents.
#include "drawcore/src/graphics/graphic.h"

#include <algorithm>
#include <utility>

#include "drawcore/src/graphics/drawing_contents.h"
#include "drawcore/src/graphics/extents_sink.h"
#include "drawcore/src/graphics/object_counts.h"
#include "drawcore/src/graphics/spatial_index.h"
#include "drawcore/src/graphics/undo_log.h"
#include "drawcore/src/graphics/vertex_graphic.h"

namespace drawcore {

namespace {

// Invalidates insertions of the block with these contents, since their extents depend on it.
void InvalidateInsertions(const Graphic& content) {
    const DrawingContents* drawing = content.GetDrawing();
    if (drawing && drawing->Blocks()) drawing->Blocks()->InvalidateInsertionsOf(content);
}

} // namespace

Graphic::Graphic(uint8_t type, const PropertyTable* properties) : GraphicStruct{} {
    ConstructHostParts();
    SetPropertyTable(properties);
    bType = type;
    dwFlags = kFlagNoParent | kFlagDirty;
    ++ObjectCounts::graphics;
}

Graphic::Graphic(const Graphic& other)
    : GraphicStruct(other), info(other.info ? std::make_unique<std::string>(*other.info) : nullptr), layer(other.layer),
      styleTree(other.styleTree) {
    ConstructHostParts();
    GetHostData().drawing = other.GetHostData().drawing;
    GetHostData().properties = other.GetHostData().properties;
    GetPen() = other.GetPen();
    SetBrush(other.GetBrush());
    ++ObjectCounts::graphics;
    pParent = nullptr;
    dwFlags |= kFlagNoParent;
    if (other.styleName_) SetStyleName(other.styleName_->c_str());
}

void Graphic::SetBrush(const Brush& brush) {
    if (brush == GetBrush()) return;
    brush_ = brush == kNoBrush ? nullptr : std::make_unique<const Brush>(brush);
}

void Graphic::ConstructHostParts() {
    new (host8) Pen;
    new (host68) HostData;
    new (host28) Extents;
}

Graphic::~Graphic() {
    --ObjectCounts::graphics;
    if (!inUndoLog_) return;
    if (DrawingContents* drawing = GetDrawing()) drawing->Undo().Remove(*this);
}

std::unique_ptr<Graphic> Graphic::Clone() const {
    std::unique_ptr<Graphic> copy = CloneState();
    for (size_t i = 0; parts_ && i < parts_->size(); ++i)
        copy->Add((*parts_)[i]->Clone());
    return copy;
}

Graphic* Graphic::Add(std::unique_ptr<Graphic> part) {
    if (!parts_) parts_ = std::make_unique<std::vector<std::unique_ptr<Graphic>>>();
    Graphic* added = parts_->emplace_back(std::move(part)).get();
    added->pParent = this;
    added->GetHostData().index = static_cast<uint32_t>(parts_->size() - 1);
    added->dwFlags &= ~kFlagNoParent;
    if (DrawingContents* drawing = GetHostData().drawing) added->Attach(drawing);
    InvalidateExtents();
    return added;
}

std::unique_ptr<Graphic> Graphic::Release(Graphic* part) {
    const size_t index = part->GetHostData().index;
    if (!parts_ || index >= parts_->size() || (*parts_)[index].get() != part) return nullptr;
    std::unique_ptr<Graphic> released = std::move((*parts_)[index]);
    parts_->erase(parts_->begin() + static_cast<std::ptrdiff_t>(index));
    for (size_t i = index; i < parts_->size(); ++i)
        (*parts_)[i]->GetHostData().index = static_cast<uint32_t>(i);
    MembersMoved();
    released->pParent = nullptr;
    released->dwFlags |= kFlagNoParent;
    released->indexed_ = false;
    released->ForgetSource();
    InvalidateExtents();
    return released;
}

void Graphic::ForgetSource() {
    source = kNoSource;
    for (size_t i = 0; parts_ && i < parts_->size(); ++i)
        (*parts_)[i]->ForgetSource();
}

const Graphic& Graphic::Top() const {
    const Graphic* top = this;
    while (const Graphic* parent = top->Parent())
        top = parent;
    return *top;
}

void Graphic::Attach(DrawingContents* drawing) {
    GetHostData().drawing = drawing;
    InvalidateExtents();
    for (size_t i = 0; parts_ && i < parts_->size(); ++i)
        (*parts_)[i]->Attach(drawing);
}

DrawingContents* Graphic::GetDrawing() const {
    return DrawingContents::Find(GetHostData().drawing);
}

void Graphic::SetStyleName(const char* name) {
    styleName_ = name && *name ? std::make_unique<std::string>(name) : nullptr;
    pszStyleName = styleName_ ? styleName_->c_str() : nullptr;
}

UndoLog* Graphic::OpenUndoLog() const {
    DrawingContents* drawing = GetDrawing();
    return drawing && drawing->Undo().IsOpen() && &Top() == &drawing->Root() ? &drawing->Undo() : nullptr;
}

void Graphic::ChangingAppearance() {
    touched = true;
    if (UndoLog* log = OpenUndoLog()) log->SaveAppearance(*this);
}

void Graphic::ChangingShape() {
    touched = true;
    if (UndoLog* log = OpenUndoLog()) log->SaveState(*this);
}

void Graphic::ChangedAppearance() {
    dwFlags |= kFlagDirty;
    if (SpatialIndex* index = Top().MemberIndex()) index->ExtendReach(GetPen());
}

void Graphic::ChangedShape() {
    ChangedAppearance();
    InvalidateExtents();
}

void Graphic::InvalidateExtents() {
    // If the extents of a graphic are valid, so are those of its members: invalidation can stop at the first invalid
    // parent.
    Graphic* graphic = this;
    do {
        if (graphic->indexed_) graphic->Parent()->MemberIndex()->Remove(*graphic);
        const bool known = std::exchange(graphic->extentsValid_, false);
        if (known && graphic->isBlockContent_) InvalidateInsertions(*graphic);
    } while ((graphic = graphic->Parent()) && graphic->extentsValid_);
}

const Extents& Graphic::GetExtents() const {
    Extents& extents = Box();
    if (extentsValid_) return extents;
    extents = {};
    extentsValid_ = KeepsExtents(); // set before visiting members, because a block may contain an insertion of itself
    AddShapeExtents(extents);
    Matrix motion;
    const bool moved = FindMotion(motion);
    for (size_t i = 0; i < MemberCount(); ++i) {
        const Extents& box = MemberAt(i)->GetExtents();
        extents.Add(moved ? box.Transformed(motion) : box);
    }
    return extents;
}

void Graphic::AddShapeExtents(Extents& extents) const {
    ExtentsSink sink(extents);
    TraceTools tools(nullptr);
    TraceShape(Trace(sink, tools), {});
}

Appearance Graphic::GetAppearance() const {
    Appearance appearance;
    appearance.pen = GetPen();
    appearance.brush = GetBrush();
    appearance.layer = layer;
    appearance.styleTree = styleTree;
    if (info) appearance.info = *info;
    appearance.lastPage = wLastPage;
    return appearance;
}

bool Graphic::HasAppearance(const Appearance& appearance) const {
    return GetPen() == appearance.pen && GetBrush() == appearance.brush && layer == appearance.layer &&
           styleTree == appearance.styleTree && (info ? *info == appearance.info : appearance.info.empty());
}

bool Graphic::SetAppearance(const Appearance& appearance) {
    GetPen() = appearance.pen;
    SetBrush(appearance.brush);
    layer = appearance.layer;
    styleTree = appearance.styleTree;
    info = appearance.info.empty() ? nullptr : std::make_unique<std::string>(appearance.info);
    wLastPage = appearance.lastPage;
    return false;
}

void Graphic::RestoreAttributes(const Graphic& saved) {
    SetAppearance(saved.GetAppearance());
    dwOneOutline = saved.dwOneOutline;
}

bool Graphic::EqualAttributes(const Graphic& saved) const {
    return HasAppearance(saved.GetAppearance());
}

double ShownPenWidth(const Graphic& graphic) {
    const double width = graphic.GetPen().width;
    if (width >= 0) return width;
    const DrawingContents* drawing = graphic.GetDrawing();
    const LayerTable* layers = drawing ? drawing->Layers() : nullptr;
    const Layer* layer = layers && width == kPenWidthByLayer ? layers->At(graphic.layer) : nullptr;
    return layer ? layer->lineWidth : 0;
}

} // namespace drawcore

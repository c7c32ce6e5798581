// The base class of all graphics: the host's record, pen and brush, members, extents, and tracing. VertexGraphic,
// EllipseGraphic, SplineGraphic, TextGraphic and InsertGraphic implement the shapes.
//
// A graphic owns its parts (the members of a group, the attribute texts of an insertion); the members of a Selection
// have other owners. Coordinates are in drawing units of the drawing or block that contains the graphic.
#pragma once

#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <vector>

#include "drawcore/include/drawcore/graphic.h"
#include "drawcore/src/geometry/extents.h"
#include "drawcore/src/graphics/attributes.h"
#include "orlo/host/records.h"

namespace drawcore {

class DrawingContents;
class SpatialIndex;
class UndoLog;
struct Vertex;
struct Trace;
struct PenUse;

// Flags of the record that are internal to drawcore.
constexpr uint32_t kFlagDirty = 1; // changed since it was last drawn

// The kind of graphic, for filters and property tables; one bit each, as in drawcore/graphic.h.
enum class Kind : uint32_t { Vertices = 1, Curve = 2, Text = 8, Insert = 0x10, Group = 0x20 };

class Graphic : public GraphicStruct {
public:
    virtual ~Graphic();
    Graphic& operator=(const Graphic&) = delete;

    static Graphic* From(GraphicStruct* graphic) { return static_cast<Graphic*>(graphic); }
    static const Graphic* From(const GraphicStruct* graphic) { return static_cast<const Graphic*>(graphic); }

    virtual Kind GetKind() const = 0;
    // Returns a copy with copies of the parts, attached to the same drawing, without an owner.
    std::unique_ptr<Graphic> Clone() const;
    // Does the same for the graphics that an iteration returns: for a selection, a group with copies of its members.
    virtual std::unique_ptr<Graphic> Copy() const { return Clone(); }
    // Returns a copy without parts, for Restore and EqualState: the state is everything but parts, owner and drawing.
    virtual std::unique_ptr<Graphic> CloneState() const = 0;
    virtual void Restore(const Graphic& saved) = 0;
    virtual bool EqualState(const Graphic& saved) const = 0;
    // Returns the approximate memory size of a copy of the state in bytes.
    virtual size_t StateSize() const = 0;
    // Gets the part of the state that properties set.
    virtual Appearance GetAppearance() const;
    virtual bool HasAppearance(const Appearance& appearance) const; // ignores lastPage
    virtual bool SetAppearance(const Appearance& appearance);       // returns whether the shape has changed

    // Returns the vertex at that index, or null after the last one and for graphics without vertices.
    virtual Vertex* VertexAt(size_t) { return nullptr; }

    // Members in drawing order: the parts that it owns, or those of others in a selection.
    virtual size_t MemberCount() const { return parts_ ? parts_->size() : 0; }
    virtual Graphic* MemberAt(size_t index) const { return (*parts_)[index].get(); }
    // Stores the motion of the members relative to their own coordinates. Returns false if they have not moved.
    virtual bool FindMotion(Matrix&) const { return false; }
    Graphic* Add(std::unique_ptr<Graphic> part);
    // Removes the part and returns it, or null if it is not a part.
    std::unique_ptr<Graphic> Release(Graphic* part);

    // Returns the graphic that contains this one. Returns null if it has no parent, or is the contents of a block or
    // the root of a drawing.
    Graphic* Parent() const { return dwFlags & kFlagNoParent ? nullptr : From(pParent); }
    const Graphic& Top() const; // the outermost parent, or this graphic

    // Attaches the graphic and its members to a drawing, or detaches them.
    void Attach(DrawingContents* drawing);
    DrawingContents* GetDrawing() const; // also null if the drawing has been freed

    // Setters call one of the first two functions before a change, for the undo log, and one of the others after it.
    void ChangingAppearance(); // before a value of GetAppearance changes
    void ChangingShape();      // before any other change
    void ChangedAppearance();
    void ChangedShape();

    // Sets the record's pszStyleName to a copy of the text. A program may have set its own pointer before.
    void SetStyleName(const char* name);

    const Extents& GetExtents() const; // including members
    void InvalidateExtents();          // also of all graphics that contain it

    // Traces the shape of this graphic, without members.
    virtual void TraceShape(const Trace& trace, const PenUse& use) const = 0;
    // Returns how far the shape extends beyond its extents, ignoring the pen width: half the width of its segments.
    virtual double Reach() const { return 0; }
    // Returns the spatial index of the members; null for a graphic with few members.
    virtual SpatialIndex* MemberIndex() const { return nullptr; }

    const PropertyTable* GetPropertyTable() const { return GetHostData().properties; }
    void SetPropertyTable(const PropertyTable* table) { GetHostData().properties = table; }

    const Pen& GetPen() const { return *Place<Pen>(const_cast<Graphic*>(this)->host8); }
    Pen& GetPen() { return *Place<Pen>(host8); }
    const Brush& GetBrush() const { return brush_ ? *brush_ : kNoBrush; }
    void SetBrush(const Brush& brush);
    std::unique_ptr<std::string> info; // attribute text; null if empty
    Id layer = 1;
    uint16_t styleTree = kNoId; // entry of "_Blocks_": the style of the graphic

    static constexpr uint32_t kNoSource = UINT32_MAX;
    uint32_t source = kNoSource; // offset of its record in the file that it was read from; not copied
    bool touched = false;        // may have been changed since then

protected:
    Graphic(uint8_t type, const PropertyTable* properties);
    Graphic(const Graphic& other); // without parts and owner
    virtual void AddShapeExtents(Extents& extents) const;
    void RestoreAttributes(const Graphic& saved);
    bool EqualAttributes(const Graphic& saved) const;

    // Returns whether the extents stay valid until InvalidateExtents is called.
    virtual bool KeepsExtents() const { return true; }
    // Called after a member was removed and the indices of the following ones have changed.
    virtual void MembersMoved() {}

private:
    friend class UndoLog;
    friend class Block;
    friend class SpatialIndex;

    void ForgetSource();          // the record no longer applies
    UndoLog* OpenUndoLog() const; // null if changes are not recorded

    // Data stored in the record's bytes that belong to the host; in separate members it would take a hundred megabytes
    // for a million graphics.
    struct HostData {
        DrawingContents* drawing = nullptr;
        const PropertyTable* properties = nullptr;
        uint32_t undoIndex = 0; // index in the open undo step; only a hint
        uint32_t index = 0;     // index among the parts of its owner
    };
    HostData& GetHostData() { return *Place<HostData>(host68); }
    const HostData& GetHostData() const { return *Place<HostData>(const_cast<Graphic*>(this)->host68); }
    Extents& Box() const { return *Place<Extents>(const_cast<Graphic*>(this)->host28); }
    void ConstructHostParts();

    // In 32-bit programs the record's doubles are aligned to 4 bytes, which the supported processors can read.
    template <class Value, size_t size>
    static Value* Place(uint8_t (&bytes)[size]) {
        static_assert(sizeof(Value) <= size && std::is_trivially_destructible_v<Value>);
        return std::launder(reinterpret_cast<Value*>(bytes));
    }

    std::unique_ptr<std::vector<std::unique_ptr<Graphic>>> parts_; // null if there are none
    std::unique_ptr<std::string> styleName_;
    std::unique_ptr<const Brush> brush_; // null: kNoBrush
    bool inUndoLog_ = false;
    bool isBlockContent_ = false;
    bool indexed_ = false;              // is in the owner's index with Box()
    mutable bool extentsValid_ = false; // Box() contains them
};

// Returns the width of the graphic's pen. A marker is resolved by the graphic's layer; by block is 0.
double ShownPenWidth(const Graphic& graphic);

// Returns whether the graphic passes the filter of an iteration (see drawcore/graphic.h).
inline bool PassesFilter(const Graphic& graphic, uint32_t filter) {
    const uint32_t kinds = filter & kFilterKinds;
    return !kinds || kinds == kFilterKinds || (kinds & static_cast<uint32_t>(graphic.GetKind()));
}

} // namespace drawcore

// The base of all graphics: the host's record, pen and brush, members, extents, and tracing. What shape a graphic has
// is its class's business: VertexGraphic, EllipseGraphic, SplineGraphic, TextGraphic, InsertGraphic.
//
// A graphic owns its parts (those of a group, the attribute texts of an insertion); a Selection has members that it
// does not own.
// Coordinates are drawing units of the drawing or block that the graphic belongs to.
#pragma once

#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <vector>

#include "drawcore/src/geometry/extents.h"
#include "drawcore/src/graphics/attributes.h"
#include "orlo/host/records.h"

namespace drawcore {

class DrawingContents;
class PlaceIndex;
class UndoLog;
struct Vertex;
struct Trace;
struct PenUse;

// Bits of the record's flag word that are drawcore's own.
constexpr uint32_t kFlagDirty = 1; // changed since it was drawn last

// What kind of graphic it is, for filters and property tables; one bit each, as in drawcore/graphic.h.
enum class Kind : uint32_t { Vertices = 1, Curve = 2, Text = 8, Insert = 0x10, Group = 0x20 };

class Graphic : public GraphicStruct {
public:
    virtual ~Graphic();
    Graphic& operator=(const Graphic&) = delete;

    static Graphic* From(GraphicStruct* graphic) { return static_cast<Graphic*>(graphic); }
    static const Graphic* From(const GraphicStruct* graphic) { return static_cast<const Graphic*>(graphic); }

    virtual Kind GetKind() const = 0;
    // A copy with copies of the parts, tied to the same drawing and owned by nobody.
    std::unique_ptr<Graphic> Clone() const;
    // The same of whatever a walk over the graphic gives: of a selection, a group with copies of its members.
    virtual std::unique_ptr<Graphic> Copy() const { return Clone(); }
    // A copy without parts, for Restore and EqualState: the state is everything but parts, owner and drawing.
    virtual std::unique_ptr<Graphic> CloneState() const = 0;
    virtual void Restore(const Graphic& saved) = 0;
    virtual bool EqualState(const Graphic& saved) const = 0;
    // How much memory a copy of the state takes, in bytes, more or less.
    virtual size_t StateSize() const = 0;
    // The part of the state that properties set.
    virtual Look GetLook() const;
    virtual bool HasLook(const Look& look) const; // lastPage aside
    virtual bool SetLook(const Look& look);       // whether the shape is another now

    // The vertex at that place, null after the last one and for graphics without vertices.
    virtual Vertex* VertexAt(size_t) { return nullptr; }

    // Members, in the order of drawing: the parts that it owns, or those of others that a selection holds.
    virtual size_t MemberCount() const { return parts_ ? parts_->size() : 0; }
    virtual Graphic* MemberAt(size_t index) const { return (*parts_)[index].get(); }
    // Where the members have gone from their own coordinates; false if they are where these say.
    virtual bool FindMotion(Matrix&) const { return false; }
    Graphic* Add(std::unique_ptr<Graphic> part);
    // Takes the part out and hands it over; null if it is not one.
    std::unique_ptr<Graphic> Release(Graphic* part);

    // The graphic that holds this one; null for a free one, a block's content and a drawing's root.
    Graphic* Parent() const { return dwFlags & kFlagNoParent ? nullptr : From(pParent); }
    const Graphic& Top() const; // the last of the parents, or this one

    // Ties this graphic and its members to a drawing, or to none.
    void Attach(DrawingContents* drawing);
    DrawingContents* GetDrawing() const; // also null once the drawing has been freed

    // A setter calls one of the first two before it changes anything, for the undo log, and one of the others after.
    void ChangingLook();  // what GetLook gives, and nothing else
    void ChangingShape(); // anything
    void ChangedLook();
    void ChangedShape();

    // The record's pszStyleName, from then on a copy of the text. A program may also have put a text of its own there.
    void SetStyleName(const char* name);

    const Extents& GetExtents() const; // with members
    void InvalidateExtents();          // and those of all that hold it

    // The shape of this graphic alone, without members, into the sink of the trace.
    virtual void TraceShape(const Trace& trace, const PenUse& use) const = 0;
    // How far the shape goes beyond its extents, pen width apart: half of a segment's own width.
    virtual double Reach() const { return 0; }
    // Where the members are; null for a graphic that has few.
    virtual PlaceIndex* IndexOfMembers() const { return nullptr; }

    const PropertyTable* GetPropertyTable() const { return Ties().properties; }
    void SetPropertyTable(const PropertyTable* table) { Ties().properties = table; }

    const Pen& GetPen() const { return *Place<Pen>(const_cast<Graphic*>(this)->host8); }
    Pen& GetPen() { return *Place<Pen>(host8); }
    const Brush& GetBrush() const { return brush_ ? *brush_ : kNoBrush; }
    void SetBrush(const Brush& brush);
    std::unique_ptr<std::string> info; // attribute text; null is empty
    Id layer = 1;
    uint16_t styleTree = kNoId; // entry of "_Blocks_": the style that it is drawn in

    static constexpr uint32_t kNoSource = UINT32_MAX;
    uint32_t source = kNoSource; // where its record begins in the text of the file that it was read from; not of copies
    bool touched = false;        // since then someone could have changed it

protected:
    Graphic(uint8_t type, const PropertyTable* properties);
    Graphic(const Graphic& other); // without parts; no owner
    virtual void AddShapeExtents(Extents& extents) const;
    void RestoreAttributes(const Graphic& saved);
    bool EqualAttributes(const Graphic& saved) const;

    // Whether the box stays valid until InvalidateExtents is called.
    virtual bool KeepsExtents() const { return true; }
    // One was taken out: those after it have moved up.
    virtual void MembersMoved() {}

private:
    friend class UndoLog;
    friend class Block;
    friend class PlaceIndex;

    void ForgetSource();          // it is no longer where its record says
    UndoLog* OpenUndoLog() const; // null if nothing is to be saved

    // What fits into the bytes of the record that are the host's own: of a million graphics they would be a hundred
    // megabytes.
    struct Tied {
        DrawingContents* drawing = nullptr;
        const PropertyTable* properties = nullptr;
        uint32_t undoPlace = 0; // in the open step of the undo log; says nothing by itself
        uint32_t place = 0;     // among the parts of the graphic that owns it
    };
    Tied& Ties() { return *Place<Tied>(host68); }
    const Tied& Ties() const { return *Place<Tied>(const_cast<Graphic*>(this)->host68); }
    Extents& Box() const { return *Place<Extents>(const_cast<Graphic*>(this)->host28); }
    void MakeHostParts();

    // The processors that this runs on read doubles at any four bytes, as the record's are in a program of 32 bits.
    template <class Value, size_t size>
    static Value* Place(uint8_t (&bytes)[size]) {
        static_assert(sizeof(Value) <= size && std::is_trivially_destructible_v<Value>);
        return std::launder(reinterpret_cast<Value*>(bytes));
    }

    std::unique_ptr<std::vector<std::unique_ptr<Graphic>>> parts_; // null: none
    std::unique_ptr<std::string> styleName_;
    std::unique_ptr<const Brush> brush_; // null: kNoBrush
    bool inUndoLog_ = false;
    bool isBlockContent_ = false;
    bool indexed_ = false;              // in the owner's index, by Box()
    mutable bool extentsKnown_ = false; // Box() holds them
};

// Returns the width of the graphic's pen: a marker is resolved by the graphic's own layer, by block to 0.
double ShownPenWidth(const Graphic& graphic);

// Whether the filter of a walk lets the graphic through (see drawcore/graphic.h).
bool PassesFilter(const Graphic& graphic, uint32_t filter);

} // namespace drawcore

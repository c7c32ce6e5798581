// Writes the appearance of an entity to its record: compares the requested values with the groups, and changes those
// that differ. Values that no group can store become extended data.
#pragma once

#include <set>

#include "drawcore/src/dxf/appearance_parts.h"
#include "drawcore/src/save/drawing_patch.h"

namespace dxf {

// Returns the line weight of the file format (0.01 mm) that is nearest to that width of paper.
int NearestWeight(double inches);

class AppearanceWriter {
public:
    AppearanceWriter(DrawingPatch& drawing, size_t offset);

    // Move a text, place an insertion, move any other entity with a position, or move vertices. At most one call,
    // before Write. An insertion gets the scales and the rotation of `numbers` if they have that result.
    void Move(const Matrix& motion);
    void MoveTo(const Vec3& position);
    void Place(const AxisEnds& ends, const Insert* numbers);
    void PutContents(const std::string& text);
    // `to` has the vertices of the graphic created from the entity, in order. Vertices that cannot be moved are left
    // unchanged.
    void MoveVertices(const std::vector<Vec3>& to);

    Appearance Now() const { return AppearanceOf(drawing_.Known(), entity_); }
    void Write(const Appearance& wanted);

private:
    bool IsNewer(const char* version) const { return drawing_.Known().header.version >= version; }

    void ExtendedText(const char* name, std::string text, std::vector<double> numbers = {});
    void ExtendedNumbers(const char* name, std::vector<double> numbers) { ExtendedText(name, {}, std::move(numbers)); }
    void RemoveExtended(std::string_view name);
    void WriteExtendedValue();
    void WriteExtended(const Appearance& wanted);

    void WriteLayer(const Appearance& wanted);
    void WriteColor(const Appearance& wanted);
    void PutColor(uint32_t color);
    bool CanStoreColor(uint32_t color) const;
    void WriteLineType(const Appearance& wanted);
    void WriteLineScale(const Appearance& wanted);
    void WriteWidth(const Appearance& wanted);
    void WritePaperWidth(const Appearance& wanted);
    void WriteDashes(const Appearance& wanted);
    void PutPolylineWidth(const Polyline& polyline, double width); // 0 to remove it
    void RemoveVertexWidths();

    void WriteBrush(const Appearance& wanted);
    void WriteAngle(double angle, double inGroups);
    void PutBrush(Hatch& hatch, const BrushAppearance& wanted);
    void PutSolid(Hatch& hatch);
    void PutPattern(Hatch& hatch, const BrushAppearance& wanted);
    void PutHatchHead(const Hatch& hatch);
    void ReplacePattern(const std::vector<RecordPatch::Value>& values);

    void WriteText(const Appearance& wanted);
    void WriteLine(Text& text, const Appearance& appearance);
    void WriteParagraphs(MText& text, const Appearance& wanted);
    void WriteEffects(const TextAppearance& wanted); // and other values that the groups cannot store
    void PutFace(Text& text, const FontFace& face);
    static void PutFormat(Text& text, uint16_t format);
    static void PutSwitch(std::string& text, char letter, bool was, bool wanted, bool forAll);
    void PutText(const Text& now);
    void PutText(const MText& now);
    void PutParagraphs(const std::string& text);
    void CheckText(std::string_view stored) const;

    void MoveCorners(const Face& face, const std::vector<Vec3>& to);
    void MovePolyline(Polyline& polyline, const std::vector<Vec3>& to);
    void MoveVertexRecords(const std::vector<Vec3>& was, const std::vector<Vec3>& now, bool flat);
    void PutPoints(const std::vector<Vec3>& was, const std::vector<Vec3>& now, bool inSpace);

    void PutPlacement(Insert& insert, const Matrix& placement, const Insert& numbers);
    void MoveArray(Insert& insert, const Matrix& moved);
    void PutPoint(int code, const Vec3& was, const Vec3& now);
    void PutReal(int code, double was, double now, std::initializer_list<int> after = {});

    DrawingPatch& drawing_;
    const size_t offset_;
    const Entity stored_; // as in the file
    Entity entity_;       // as it will be in the file
    RecordPatch record_;
    std::set<std::string> exact_; // extended values that repeat groups with more digits
};

} // namespace dxf

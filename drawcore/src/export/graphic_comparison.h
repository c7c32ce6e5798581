// Compares graphics of two drawings exactly, to find how a graphic differs from its record in a file.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/graphics/insert_graphic.h"
#include "drawcore/src/graphics/properties.h"

namespace drawcore {

class GraphicComparison {
public:
    // Table entries of the two drawings are equal if their names are. Both drawings must outlive the comparison.
    GraphicComparison(const Drawing& saved, const Drawing& read);

    // Returns the indices in kPropertyList of the properties that differ. The graphics must be of the same kind.
    std::vector<size_t> DifferentProperties(const Graphic& saved, const Graphic& read);
    // Returns the name of another difference for messages, or null. With `calculated`, positions that the record stores
    // in other coordinates may differ by rounding, and so may curves and directions, which it stores as angles.
    const char* DifferentShape(const Graphic& saved, const Graphic& read, bool calculated) const;
    // Returns the first difference for messages, or null.
    const char* FirstDifference(const Graphic& saved, const Graphic& read, bool calculated);

private:
    bool IsSame(const PropertyInfo& info, const StoredProperty& saved, const StoredProperty& read);
    bool IsSameStyle(int64_t saved, int64_t read);
    int64_t InSaved(const std::vector<Id>& same, int64_t id) const;
    const char* DifferentInsert(const InsertGraphic& saved, const InsertGraphic& read) const;

    const Drawing &saved_, &read_;
    const std::vector<Id> layers_, lines_, blocks_; // identifiers in the saved drawing, by those in the drawing that
                                                    // was read
    std::map<std::pair<int64_t, int64_t>, bool> styles_;
};

// Returns the displayed height of a text; attributes move with their insertion.
double DisplayedHeight(const Graphic& text);

} // namespace drawcore

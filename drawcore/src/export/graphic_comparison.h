// Compares graphics of two drawings, exactly: what differs between a graphic and what its record in a file shows.
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
    // Entries of the two drawings' tables are the same if their names are. Both drawings have to outlive the
    // comparison.
    GraphicComparison(const Drawing& saved, const Drawing& read);

    // Returns the properties that differ, by their places in kPropertyList. The graphics are of the same kind.
    std::vector<size_t> DifferentProperties(const Graphic& saved, const Graphic& read);
    // Returns what else differs, for messages; null if nothing does. Places that are calculated, because the record has
    // them in other coordinates, are the same if they differ by rounding only; so are curves and directions, which it
    // has as angles.
    const char* DifferentShape(const Graphic& saved, const Graphic& read, bool calculated) const;
    // Returns the first difference, for messages; null if there is none.
    const char* FirstDifference(const Graphic& saved, const Graphic& read, bool calculated);

private:
    bool IsSame(const PropertyInfo& info, const StoredProperty& saved, const StoredProperty& read);
    bool IsSameStyle(int64_t saved, int64_t read);
    int64_t InSaved(const std::vector<Id>& same, int64_t id) const;
    const char* DifferentInsert(const InsertGraphic& saved, const InsertGraphic& read) const;

    const Drawing &saved_, &read_;
    const std::vector<Id> layers_, lines_, blocks_; // of the saved drawing, by those of the one that was read
    std::map<std::pair<int64_t, int64_t>, bool> styles_;
};

// Returns the height of a text as it is seen: attributes follow their insertion.
double SeenHeight(const Graphic& text);

} // namespace drawcore

// The schema of the properties of graphics: name, form and meaning of each.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// The form in which a value is stored. PropGet converts it to other types.
enum PropertyForm {
    kFormWhole, // 32-bit integer
    kFormReal,  // double
    kFormText
};

// The meaning of a value.
enum PropertyMeaning {
    kMeansNumber,
    kMeansSwitch, // 0 or 1
    kMeansBits,
    kMeansText,
    kMeansColor,
    kMeansLineStyle, // an entry of the table or a marker; also the following ones
    kMeansBrushStyle,
    kMeansLayer,
    kMeansBlock,
    kMeansScaleSystem,
    kMeansWidth, // in the unit of the graphic's scale system
    kMeansLength,
    kMeansAngle // radians
};

struct PropertyInfo {
    const char* name;
    PropertyForm form;
    PropertyMeaning meaning;
};

// Returns the descriptions of all properties, sorted by name, and stores their number. They are static.
//
//   for (const PropertyInfo& property : AllProperties()) ...
DRAWCORE_API const PropertyInfo* DrawCoreGetProperties(int* count);

struct PropertySchema {
    const PropertyInfo* first;
    int count;

    const PropertyInfo* begin() const { return first; }
    const PropertyInfo* end() const { return first + count; }
};

// Returns the same descriptions as a range.
inline PropertySchema AllProperties() {
    PropertySchema schema{};
    schema.first = DrawCoreGetProperties(&schema.count);
    return schema;
}

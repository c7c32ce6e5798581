// Every property that graphics of this database can have.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// The form in which a value is held; PropGet gives it in others too.
enum PropertyForm {
    kFormWhole, // 32 bits
    kFormReal,  // a double
    kFormText
};

// What a value stands for.
enum PropertyMeaning {
    kMeansNumber,
    kMeansSwitch, // 0 or 1
    kMeansBits,
    kMeansText,
    kMeansColor,
    kMeansLineStyle, // an entry of the table, or a marker; so are the next ones
    kMeansBrushStyle,
    kMeansLayer,
    kMeansBlock,
    kMeansScaleSystem,
    kMeansWidth, // by the graphic's scale system
    kMeansLength,
    kMeansAngle // radians
};

struct PropertyInfo {
    const char* name;
    PropertyForm form;
    PropertyMeaning meaning;
};

// All of them, in the order of their names; drawcore's own.
//
//   for (const PropertyInfo& property : AllProperties()) ...
DRAWCORE_API const PropertyInfo* DrawCoreGetProperties(int* count);

struct PropertySchema {
    const PropertyInfo* first;
    int count;

    const PropertyInfo* begin() const { return first; }
    const PropertyInfo* end() const { return first + count; }
};

inline PropertySchema AllProperties() {
    PropertySchema schema{};
    schema.first = DrawCoreGetProperties(&schema.count);
    return schema;
}

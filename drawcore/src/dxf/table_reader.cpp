// Reads header variables and table records.

#include "drawcore/src/dxf/table_reader.h"

namespace dxf {

namespace {

struct Variable {
    std::string_view name;
    Field<Header> field;
};

const Variable kVariables[] = {
    {"$ACADVER", {1, &Header::version}},        {"$DWGCODEPAGE", {3, &Header::codePage}},
    {"$INSUNITS", {70, &Header::unit}},         {"$MEASUREMENT", {70, &Header::metric}},
    {"$LUNITS", {70, &Header::lengthFormat}},   {"$LUPREC", {70, &Header::lengthDigits}},
    {"$AUNITS", {70, &Header::angleFormat}},    {"$AUPREC", {70, &Header::angleDigits}},
    {"$LTSCALE", {40, &Header::lineTypeScale}},
};

template <class Object>
void Declare(Names<Object>& names, std::string_view name, Object read) {
    Object& object = names.Declare(name);
    read.name = std::move(object.name);
    read.stored = std::move(object.stored);
    read.declared = true;
    object = std::move(read);
}

void ReadLayer(RecordReader& in) {
    static const Field<Layer> kFields[] = {{62, &Layer::color},      {70, &Layer::flags},       {6, &Layer::lineType},
                                           {420, &Layer::trueColor}, {370, &Layer::lineWeight}, {290, &Layer::plotted}};
    Layer read;
    read.offset = static_cast<uint32_t>(in.tags.Current().offset);
    std::string_view name;
    while (in.NextTag()) {
        const Tag& tag = in.tags.Current();
        if (tag.code == 2)
            name = tag.value;
        else
            in.SetField(kFields, read, tag);
    }
    Declare(in.layers, name, std::move(read));
}

void ReadLineType(RecordReader& in) {
    static const Field<LineType> kFields[] = {{3, &LineType::description}, {40, &LineType::patternLength}};
    LineType read;
    std::string_view name;
    while (in.NextTag()) {
        const Tag& tag = in.tags.Current();
        if (tag.code == 2)
            name = tag.value;
        else if (tag.code == 49)
            read.dashes.push_back(in.Real(tag));
        else
            in.SetField(kFields, read, tag);
    }
    Declare(in.lineTypes, name, std::move(read));
}

// Family and style of a TrueType face are in extended data of the application ACAD.
void ReadTypeFace(TextStyle& style, const Tag& tag, bool& isAcad, const RecordReader& in) {
    if (tag.code == kApplicationName) isAcad = tag.Is(kApplicationName, "ACAD");
    if (!isAcad) return;
    if (tag.code == kExtendedText) style.fontFace = in.Text(tag);
    if (tag.code != kExtendedLong) return;
    style.bold = (tag.Integer() & kFaceIsBold) != 0;
    style.italic = (tag.Integer() & kFaceIsItalic) != 0;
}

void ReadTextStyle(RecordReader& in) {
    static const Field<TextStyle> kFields[] = {{3, &TextStyle::fontFile},
                                               {40, &TextStyle::fixedHeight},
                                               {41, &TextStyle::widthFactor},
                                               {50, &TextStyle::oblique}};
    TextStyle read;
    std::string_view name;
    bool isAcad = false;
    const Tag& tag = in.tags.Current();
    while (!in.tags.Next().StartsRecord()) {
        if (tag.code == 2)
            name = tag.value;
        else if (tag.code == 71)
            read.backward = (tag.Integer() & 2) != 0, read.upsideDown = (tag.Integer() & 4) != 0;
        else if (!in.SetField(kFields, read, tag))
            ReadTypeFace(read, tag, isAcad, in);
    }
    if (name.empty()) return; // a shape file for line types
    Declare(in.textStyles, name, std::move(read));
}

} // namespace

void ReadVariable(RecordReader& in, std::string_view variable) {
    const Tag& tag = in.tags.Current();
    for (const Variable& known : kVariables)
        if (known.name == variable && known.field.code == tag.code) {
            const Field<Header> table[] = {known.field};
            in.SetField(table, in.document.header, tag);
        }
    if (in.TakeInvalidCoordinate()) in.Report(tag.line + 1, "invalid value of " + Quoted(variable) + " ignored");
    if (variable == "$ACADVER" && tag.code == 1) in.decoder.SetVersion(tag.Trimmed());
    if (variable == "$DWGCODEPAGE" && tag.code == 3) in.decoder.SetCodePage(tag.Trimmed());
}

void ReadTableRecord(RecordReader& in) {
    const Tag& tag = in.tags.Current();
    const uint32_t line = tag.line;
    if (tag.Is(0, "LAYER"))
        ReadLayer(in);
    else if (tag.Is(0, "LTYPE"))
        ReadLineType(in);
    else if (tag.Is(0, "STYLE"))
        ReadTextStyle(in);
    else
        in.tags.SkipRecord();
    if (in.TakeInvalidCoordinate()) in.Report(line, "invalid number in a table entry; 0 is used");
}

} // namespace dxf

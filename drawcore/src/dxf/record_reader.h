// Shared by the readers of all sections: tags, the document, names, and tables that map group codes to members.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "drawcore/src/dxf/names.h"
#include "drawcore/src/dxf/tag_reader.h"

namespace dxf {

// A group code and the member that it sets. The code of a point is that of x; y has that plus 10 and z plus 20.
template <class T>
struct Field {
    using Member = std::variant<double T::*, int T::*, int16_t T::*, uint32_t T::*, bool T::*, std::string T::*,
                                Vec3 T::*, LayerIndex T::*, LineTypeIndex T::*, TextStyleIndex T::*, BlockIndex T::*>;
    int code;
    Member member;
};

class RecordReader {
public:
    RecordReader(std::string_view bytes, const Progress& progress) : tags(bytes, progress) {}
    // Continues in a file whose header and tables have been read.
    RecordReader(std::string_view bytes, Document known);
    RecordReader(const RecordReader&) = delete;
    RecordReader& operator=(const RecordReader&) = delete;

    TagReader tags;
    Document document;
    TextDecoder decoder;
    Names<Layer> layers{document.layers, decoder};
    Names<LineType> lineTypes{document.lineTypes, decoder};
    Names<TextStyle> textStyles{document.textStyles, decoder};
    Names<Block> blocks{document.blocks, decoder};

    // Reads the tags up to the next record and sets the members listed in the table.
    template <class T, size_t N>
    void ReadFields(const Field<T> (&table)[N], T& target) {
        while (NextTag())
            SetField(table, target, tags.Current());
    }

    // Advances to the next tag of the record. Returns false at its end. Skips data attached by other programs: groups
    // in braces (code 102), extended data, embedded objects. Stores extended data of kApplication for TakeExtended.
    bool NextTag();
    // Returns the record's extended data of kApplication, or null.
    Boxed<ExtendedData> TakeExtended() { return std::move(extended_); }

    // Returns false if the table does not contain the code.
    template <class T, size_t N>
    bool SetField(const Field<T> (&table)[N], T& target, const Tag& tag) {
        for (const Field<T>& field : table) {
            const int axis = tag.code - field.code;
            const bool isPoint = std::holds_alternative<Vec3 T::*>(field.member);
            if (axis != 0 && !(isPoint && (axis == 10 || axis == 20))) continue;
            std::visit([&](auto member) { Assign(target.*member, tag, axis); }, field.member);
            return true;
        }
        return false;
    }

    // Returns the tag's number. If it is not a valid coordinate, stores its line and returns 0.
    double Real(const Tag& tag);
    void SetAxis(Vec3& point, const Tag& tag, int axis);
    // Reads a list of points whose x has that code: x adds a point, the others complete it. Returns false for other
    // codes.
    bool AddCoordinate(std::vector<Vec3>& points, const Tag& tag, int code, int lastAxis = 20);
    std::string Text(const Tag& tag) const { return decoder.Decode(tag.value); }

    // Returns the line of the first invalid coordinate since the last call, or 0.
    uint32_t TakeInvalidCoordinate();

    void Report(uint32_t line, std::string text);

private:
    void ReadExtended();
    ExtendedValue ReadExtendedValue();

    void Assign(double& to, const Tag& tag, int) { to = Real(tag); }
    void Assign(int& to, const Tag& tag, int) { to = tag.Integer(); }
    void Assign(int16_t& to, const Tag& tag, int);
    void Assign(uint32_t& to, const Tag& tag, int);
    void Assign(bool& to, const Tag& tag, int) { to = tag.Flag(); }
    void Assign(std::string& to, const Tag& tag, int) { to = Text(tag); }
    void Assign(Vec3& to, const Tag& tag, int axis) { SetAxis(to, tag, axis); }
    void Assign(LayerIndex& to, const Tag& tag, int) { to = LayerIndex(layers.Find(tag.value)); }
    void Assign(LineTypeIndex& to, const Tag& tag, int);
    void Assign(TextStyleIndex& to, const Tag& tag, int) { to = TextStyleIndex(textStyles.Find(tag.value)); }
    void Assign(BlockIndex& to, const Tag& tag, int) { to = BlockIndex(blocks.Find(tag.value)); }

    Boxed<ExtendedData> extended_;
    uint32_t invalidCoordinateLine_ = 0;
    size_t unreported_ = 0;
};

} // namespace dxf

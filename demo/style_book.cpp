// The styles of an open drawing.

#include "demo/style_book.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include <oleauto.h>

#include "drawcore/drawing.h"
#include "drawcore/graphic.h"
#include "orlo/host/block.h"
#include "orlo/host/graphic.h"
#include "orlo/host/memory.h"
#include "orlo/host/strings.h"
#include "orlo/host/table.h"
#include "orlo/host/text.h"
#include "orlo/host/vertex.h"

namespace {

constexpr const char* kTree = "Graphic styles";
constexpr const char* kStyleProperty = "StyleTree";

struct PropertyRow {
    const char* name;
    VARTYPE type;
};
using Rows = std::vector<PropertyRow>;

const Rows kPen = {{"PenColor", VT_UI4}, {"PenStyle", VT_UI4},    {"PenScale", VT_R8},
                   {"PenWidth", VT_R8},  {"ScaleSystem", VT_UI4}, {"PenAlignment", VT_UI4}};
const Rows kBrush = {{"BrushStyle", VT_UI4}, {"BrushColor", VT_UI4},    {"BrushScale", VT_R8},
                     {"BrushAngle", VT_R8},  {"BrushDrawMode", VT_UI4}, {"HatchCross", VT_UI4}};
const Rows kText = {{"PenColor", VT_UI4},
                    {"TextFont", VT_BSTR},
                    {"TextSize", VT_R8},
                    {"TextStyle", VT_UI4},
                    {"TextFormat", VT_UI4}};

bool FindProperty(GraphicStruct* graphic, const char* name, int32_t& number) {
    const PropertyTable* table = ::GraphicGetVtbl(graphic);
    return table && table->PropLookup(graphic, &name, 1, 0, &number);
}

bool Has(GraphicStruct* graphic, const char* name) {
    int32_t number;
    return FindProperty(graphic, name, number);
}

template <class Value>
void CopyValue(GraphicStruct* from, int32_t source, GraphicStruct* to, int32_t target, VARTYPE type) {
    Value value{};
    if (::GraphicGetVtbl(from)->PropGet(from, source, type, &value))
        ::GraphicGetVtbl(to)->PropSet(to, target, type, &value);
}

void CopyText(GraphicStruct* from, int32_t source, GraphicStruct* to, int32_t target) {
    char* text = nullptr;
    if (::GraphicGetVtbl(from)->PropGet(from, source, VT_BSTR, &text) && text)
        ::GraphicGetVtbl(to)->PropSet(to, target, VT_BSTR, text);
    ::BStringNULL(&text);
}

// Those that both have.
void CopyProperties(GraphicStruct* from, GraphicStruct* to, const Rows& rows) {
    for (const PropertyRow& row : rows) {
        int32_t source, target;
        if (!FindProperty(from, row.name, source) || !FindProperty(to, row.name, target)) continue;
        switch (row.type) {
        case VT_UI4:
            CopyValue<uint32_t>(from, source, to, target, row.type);
            break;
        case VT_R8:
            CopyValue<double>(from, source, to, target, row.type);
            break;
        default:
            CopyText(from, source, to, target);
        }
    }
}

uint16_t StyleOf(GraphicStruct* graphic) {
    int32_t number;
    uint16_t style = 0;
    if (FindProperty(graphic, kStyleProperty, number))
        ::GraphicGetVtbl(graphic)->PropGet(graphic, number, VT_UI2, &style);
    return style;
}

void SetStyleOf(GraphicStruct* graphic, uint16_t style) {
    int32_t number;
    if (FindProperty(graphic, kStyleProperty, number))
        ::GraphicGetVtbl(graphic)->PropSet(graphic, number, VT_UI2, &style);
}

std::vector<GraphicStruct*> MembersOf(GraphicStruct* set) {
    std::vector<GraphicStruct*> members;
    uint32_t position = 0;
    for (GraphicStruct* g = ::GraphicFirst(set, &position, 1, 0xFFFFFFFF); g;
         g = ::GraphicNext(set, &position, 1, 0xFFFFFFFF))
        members.push_back(g);
    return members;
}

struct VertexDeleter {
    void operator()(VertexStruct* vertex) const { ::VertexDispose(&vertex); }
};
using Vertex = std::unique_ptr<VertexStruct, VertexDeleter>;

GraphicStruct* NewShape() {
    GraphicStruct* shape = ::GraphicNewEx(kGraphicVertices, 0, 1);
    constexpr double kCorners[][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}};
    for (const auto& corner : kCorners)
        ::GraphicVertexAdd(shape, Vertex(::VertexNewEx(corner[0], corner[1], 0)).get());
    return shape;
}

GraphicStruct* NewText() {
    GraphicStruct* text = ::GraphicNewEx(kGraphicText, 0, 1);
    ::TextSetVWHAEx(text, Vertex(::VertexNewEx(0, 0, 0)).get(), 0, 1, 0, "Text");
    return text;
}

// The samples of a style's contents.
struct Samples {
    explicit Samples(GraphicStruct* content) {
        for (GraphicStruct* member : MembersOf(content))
            (member->bType == kGraphicText ? text : shape) = member;
    }
    GraphicStruct* shape = nullptr;
    GraphicStruct* text = nullptr;
};

} // namespace

TableStruct* StyleBook::Table() const {
    return ::BlocksFromDrawing(m_drawing);
}

std::vector<uint16_t> StyleBook::All() const {
    std::vector<uint16_t> styles;
    TableStruct* table = Table();
    int cookie = 0;
    for (uint16_t id = ::TableEntryFirst(table, &cookie); id; id = ::TableEntryNext(table, &cookie)) {
        if (IsStyle(id)) styles.push_back(id);
    }
    return styles;
}

bool StyleBook::IsStyle(uint16_t id) const {
    const GraphicStruct* content = Content(id);
    return content && content->pszStyleName && !std::strcmp(content->pszStyleName, kTree);
}

std::string StyleBook::Name(uint16_t id) const {
    char name[256] = "";
    ::TableEntryGetName(Table(), id, name, sizeof name);
    return name;
}

GraphicStruct* StyleBook::Content(uint16_t id) const {
    return ::BlockGetGraphic(Table(), id);
}

int StyleBook::Uses(uint16_t id) const {
    const std::vector<GraphicStruct*> all = MembersOf(::DrawingGetRoot(m_drawing));
    return static_cast<int>(std::count_if(all.begin(), all.end(),
                                          [id](GraphicStruct* graphic) { return StyleOf(graphic) == id; }));
}

std::string StyleBook::WhyNot(const std::string& name) const {
    if (name.empty()) return "A style needs a name.";
    if (name.size() > kLongestName)
        return "The name of a style has " + std::to_string(kLongestName) + " characters at most.";
    for (const unsigned int id : kStringsReservedStyles) {
        char reserved[64] = "";
        ::DrawCoreLoadString(id, reserved, sizeof reserved);
        if (::_stricmp(name.c_str(), reserved) == 0) return "The name \"" + name + "\" is reserved.";
    }
    if (::BlocksFindBlock(Table(), name.c_str()))
        return "There is a style or block \"" + name + "\" already.";
    return "";
}

StyleBook::Examples StyleBook::ExamplesOf(const std::vector<GraphicStruct*>& graphics) {
    const auto first = [&](const char* property) {
        const auto found = std::find_if(graphics.begin(), graphics.end(),
                                        [=](GraphicStruct* graphic) { return Has(graphic, property); });
        return found != graphics.end() ? *found : nullptr;
    };
    return {first("PenWidth"), first("BrushStyle"), first("TextFont")};
}

StyleBook::Parts StyleBook::PartsOf(const std::vector<GraphicStruct*>& graphics) {
    const Examples examples = ExamplesOf(graphics);
    return {examples.pen != nullptr, examples.brush != nullptr, examples.text != nullptr};
}

uint16_t StyleBook::Make(const std::string& name, const std::vector<GraphicStruct*>& graphics, Parts parts) {
    if (!WhyNot(name).empty()) return 0;
    GraphicStruct* content = ::GraphicNewEx(kGraphicVertices, 0, 1);
    GraphicStruct* shape = ::GraphicAdd(content, NewShape());
    GraphicStruct* text = ::GraphicAdd(content, NewText());
    ::GraphicSetStyleName(content, kTree);
    const uint16_t id = ::BlocksAddBlock(Table(), name.c_str(), content);
    if (!id) {
        ::GraphicDispose(&content);
        return 0;
    }
    const Examples examples = ExamplesOf(graphics);
    if (examples.pen) CopyProperties(examples.pen, shape, kPen);
    if (examples.brush) CopyProperties(examples.brush, shape, kBrush);
    if (examples.text) CopyProperties(examples.text, text, kText);
    Enter(id, parts);
    return id;
}

uint16_t StyleBook::TakeAdded() {
    for (const uint16_t id : All()) {
        if (m_parts.count(id)) continue;
        Enter(id, m_parts.at(m_current));
        return id;
    }
    return 0;
}

// The samples are in the style that they stand for.
void StyleBook::Enter(uint16_t id, Parts parts) {
    m_parts[id] = parts;
    m_current = id;
    for (GraphicStruct* member : MembersOf(Content(id)))
        SetStyleOf(member, id);
}

bool StyleBook::Delete(uint16_t id) {
    if (Uses(id) > 0) return false;
    ::BlockDispose(Table(), id);
    m_parts.erase(id);
    if (m_current == id) m_current = m_parts.empty() ? 0 : m_parts.begin()->first;
    return true;
}

void StyleBook::ApplyCurrent(const std::vector<GraphicStruct*>& graphics) const {
    const Samples samples(Content(m_current));
    const Parts& parts = m_parts.at(m_current);
    for (GraphicStruct* graphic : graphics) {
        if (graphic->bType == kGraphicText) {
            if (parts.text) CopyProperties(samples.text, graphic, kText);
        } else {
            if (parts.pen) CopyProperties(samples.shape, graphic, kPen);
            if (parts.brush) CopyProperties(samples.shape, graphic, kBrush);
        }
        SetStyleOf(graphic, m_current);
    }
}

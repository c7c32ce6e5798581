// The styles of an open drawing.

#include "demo/viewer/style_book.h"

#include <algorithm>
#include <cstring>

#include "drawcore/drawing.h"
#include "drawcore/graphic.h"
#include "orlo/host/block.h"
#include "orlo/host/owners.h"
#include "orlo/host/property.h"
#include "orlo/host/strings.h"
#include "orlo/host/text.h"
#include "orlo/host/walk.h"

namespace {

using orlo::host::Entries;
using orlo::host::FindProperty;
using orlo::host::Members;
using orlo::host::OwnedGraphic;
using orlo::host::OwnedVertex;
using orlo::host::ReadProperty;
using orlo::host::WriteProperty;

constexpr const char* kTree = "Graphic styles";

// Equal values are not written, because writing some of them, such as the text size, may round other values.
template <class Value>
void CopyProperty(GraphicStruct* from, GraphicStruct* to, const char* name) {
    const auto value = ReadProperty<Value>(from, name);
    if (value && value != ReadProperty<Value>(to, name)) WriteProperty(to, name, *value);
}

void CopyProperty(GraphicStruct* from, GraphicStruct* to, const PropertyInfo& property) {
    if (property.IsText())
        CopyProperty<std::string>(from, to, property.name);
    else if (property.IsReal())
        CopyProperty<double>(from, to, property.name);
    else
        CopyProperty<uint32_t>(from, to, property.name);
}

// Copies the properties that both have. The pen color of a text belongs to its text part.
void CopyProperties(GraphicStruct* from, GraphicStruct* to, PropertyPart part) {
    for (const PropertyInfo& property : kPropertyList) {
        const bool ofText = part == PropertyPart::Text && property.name == std::string_view(kPropPenColor);
        if (property.part == part || ofText) CopyProperty(from, to, property);
    }
}

bool HaveSameProperties(GraphicStruct* a, GraphicStruct* b) {
    return std::all_of(std::begin(kPropertyList), std::end(kPropertyList), [&](const PropertyInfo& property) {
        if (property.IsText())
            return ReadProperty<std::string>(a, property.name) == ReadProperty<std::string>(b, property.name);
        if (property.IsReal()) return ReadProperty<double>(a, property.name) == ReadProperty<double>(b, property.name);
        return ReadProperty<uint32_t>(a, property.name) == ReadProperty<uint32_t>(b, property.name);
    });
}

uint16_t StyleOf(GraphicStruct* graphic) {
    return ReadProperty<uint16_t>(graphic, kPropStyleTree).value_or(0);
}

GraphicStruct* NewShape() {
    GraphicStruct* shape = ::GraphicNewEx(kGraphicVertices, 0, 1);
    constexpr double kCorners[][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}};
    for (const auto& corner : kCorners)
        ::GraphicVertexAdd(shape, OwnedVertex(::VertexNewEx(corner[0], corner[1], 0)).get());
    return shape;
}

GraphicStruct* NewText() {
    GraphicStruct* text = ::GraphicNewEx(kGraphicText, 0, 1);
    ::TextSetVWHAEx(text, OwnedVertex(::VertexNewEx(0, 0, 0)).get(), 0, 1, 0, "Text");
    return text;
}

// The samples in the contents of a style.
struct Samples {
    explicit Samples(GraphicStruct* content) {
        for (GraphicStruct* member : Members(content))
            (member->bType == kGraphicText ? text : shape) = member;
    }
    GraphicStruct* shape = nullptr;
    GraphicStruct* text = nullptr;
};

} // namespace

StyleBook::StyleBook(DrawingStruct* drawing) : m_drawing(drawing), m_current(Any()) {
    for (const uint16_t id : All())
        m_parts[id] = {true, true, true};
}

TableStruct* StyleBook::Table() const {
    return ::BlocksFromDrawing(m_drawing);
}

std::vector<uint16_t> StyleBook::All() const {
    std::vector<uint16_t> styles;
    for (const uint16_t id : Entries(Table()))
        if (IsStyle(id)) styles.push_back(id);
    return styles;
}

uint16_t StyleBook::Any() const {
    const std::vector<uint16_t> styles = All();
    return styles.empty() ? 0 : styles.front();
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
    int uses = 0;
    for (GraphicStruct* graphic : Members(::DrawingGetRoot(m_drawing)))
        uses += StyleOf(graphic) == id;
    return uses;
}

std::string StyleBook::NameError(const std::string& name) const {
    if (name.empty()) return "Enter a name for the style.";
    if (name.size() > kLongestName) return "The name can have at most " + std::to_string(kLongestName) + " characters.";
    for (const unsigned int id : kStringsReservedStyles) {
        char reserved[64] = "";
        ::DrawCoreLoadString(id, reserved, sizeof reserved);
        if (::_stricmp(name.c_str(), reserved) == 0) return "The name \"" + name + "\" is reserved.";
    }
    if (::BlocksFindBlock(Table(), name.c_str())) return "A style or block \"" + name + "\" already exists.";
    return "";
}

StyleBook::Examples StyleBook::ExamplesOf(const std::vector<GraphicStruct*>& graphics) {
    const auto first = [&](const char* property) {
        const auto found = std::find_if(graphics.begin(), graphics.end(), [=](GraphicStruct* graphic) {
            return FindProperty(graphic, property).has_value();
        });
        return found != graphics.end() ? *found : nullptr;
    };
    return {first(kPropPenWidth), first(kPropBrushStyle), first(kPropTextFont)};
}

StyleBook::Parts StyleBook::PartsOf(const std::vector<GraphicStruct*>& graphics) {
    const Examples examples = ExamplesOf(graphics);
    return {examples.pen != nullptr, examples.brush != nullptr, examples.text != nullptr};
}

uint16_t StyleBook::Create(const std::string& name, const std::vector<GraphicStruct*>& graphics, Parts parts) {
    if (!NameError(name).empty()) return 0;
    OwnedGraphic content(::GraphicNewEx(kGraphicVertices, 0, 1));
    GraphicStruct* shape = ::GraphicAdd(content.get(), NewShape());
    GraphicStruct* text = ::GraphicAdd(content.get(), NewText());
    ::GraphicSetStyleName(content.get(), kTree);
    const uint16_t id = ::BlocksAddBlock(Table(), name.c_str(), content.get());
    if (!id) return 0;
    content.release(); // now owned by the table
    const Examples examples = ExamplesOf(graphics);
    if (examples.pen) CopyProperties(examples.pen, shape, PropertyPart::Pen);
    if (examples.brush) CopyProperties(examples.brush, shape, PropertyPart::Brush);
    if (examples.text) CopyProperties(examples.text, text, PropertyPart::Text);
    Enter(id, parts);
    return id;
}

uint16_t StyleBook::TakeAdded() {
    for (const uint16_t id : All()) {
        if (m_parts.count(id)) continue;
        Enter(id, PartsOf(m_current));
        return id;
    }
    return 0;
}

// The samples have the style themselves.
void StyleBook::Enter(uint16_t id, Parts parts) {
    m_parts[id] = parts;
    m_current = id;
    for (GraphicStruct* member : Members(Content(id)))
        WriteProperty(member, kPropStyleTree, id);
}

bool StyleBook::Delete(uint16_t id) {
    if (Uses(id) > 0) return false;
    Remove(id);
    return true;
}

void StyleBook::Remove(uint16_t id) {
    m_formerNumbers[id] = Name(id);
    ::BlockDispose(Table(), id);
    m_parts.erase(id);
    if (m_current == id) m_current = Any();
}

uint16_t StyleBook::Find(const std::string& name) const {
    const uint16_t id = ::BlocksFindBlock(Table(), name.c_str());
    return IsStyle(id) ? id : 0;
}

void StyleBook::Readd(const std::string& name, GraphicStruct* copy, Parts parts) {
    OwnedGraphic content(::GraphicCopyEx(copy, 0, 0, 7));
    const uint16_t id = ::BlocksAddBlock(Table(), name.c_str(), content.get());
    if (!id) return;
    content.release(); // now owned by the table
    Enter(id, parts);
}

void StyleBook::RenumberGraphics() const {
    if (m_formerNumbers.empty()) return;
    for (GraphicStruct* graphic : Members(::DrawingGetRoot(m_drawing))) {
        const auto former = m_formerNumbers.find(StyleOf(graphic));
        if (former == m_formerNumbers.end()) continue;
        if (const uint16_t id = Find(former->second)) WriteProperty(graphic, kPropStyleTree, id);
    }
}

OwnedGraphic StyleBook::Copy(uint16_t id) const {
    return OwnedGraphic(::GraphicCopyEx(Content(id), 0, 0, 7));
}

void StyleBook::Restore(uint16_t id, GraphicStruct* copy) {
    const Samples from(copy), to(Content(id));
    for (const PropertyInfo& property : kPropertyList) {
        CopyProperty(from.shape, to.shape, property);
        CopyProperty(from.text, to.text, property);
    }
}

bool StyleBook::HasContent(uint16_t id, GraphicStruct* copy) const {
    const Samples a(copy), b(Content(id));
    return HaveSameProperties(a.shape, b.shape) && HaveSameProperties(a.text, b.text);
}

void StyleBook::ApplyCurrent(const std::vector<GraphicStruct*>& graphics) const {
    const Samples samples(Content(m_current));
    const Parts parts = PartsOf(m_current);
    for (GraphicStruct* graphic : graphics) {
        if (graphic->bType == kGraphicText) {
            if (parts.text) CopyProperties(samples.text, graphic, PropertyPart::Text);
        } else {
            if (parts.pen) CopyProperties(samples.shape, graphic, PropertyPart::Pen);
            if (parts.brush) CopyProperties(samples.shape, graphic, PropertyPart::Brush);
        }
        WriteProperty(graphic, kPropStyleTree, m_current);
    }
}

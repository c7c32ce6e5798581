// GraphicKit: the property table of its graphics.

#include "support/graphic_kit.h"

#include <cstring>
#include <stdexcept>
#include <unordered_map>

#include <oaidl.h>

#include "drawcore/application.h"
#include "drawcore/drawing.h"
#include "drawcore/graphic.h"
#include "drawcore/object_counts.h"
#include "drawcore/selection.h"
#include "orlo/host/memory.h"

namespace {

std::unordered_map<GraphicStruct*, KitGraphic*>& Kit() {
    static std::unordered_map<GraphicStruct*, KitGraphic*> kit;
    return kit;
}

// Numbers properties by their position in the graphic's order, plus an offset that differs between graphics.
int32_t FirstNumber(const GraphicStruct* graphic) {
    return static_cast<int32_t>(reinterpret_cast<uintptr_t>(graphic) >> 4 & 0xFFFF) * 100;
}

std::pair<const std::string, KitValue>& At(GraphicStruct* graphic, int32_t number) {
    auto& properties = Kit().at(graphic)->properties;
    const int32_t index = number - FirstNumber(graphic);
    if (index < 0 || index >= static_cast<int32_t>(properties.size()))
        throw std::out_of_range("a number of another graphic");
    return *std::next(properties.begin(), index);
}

int Lookup(GraphicStruct* graphic, const char* const* name, int count, int reserved, int32_t* number) {
    if (count != 1 || reserved != 0) throw std::invalid_argument("PropLookup takes one name");
    const auto& properties = Kit().at(graphic)->properties;
    const auto found = properties.find(*name);
    if (found == properties.end()) return 0;
    *number = FirstNumber(graphic) + static_cast<int32_t>(std::distance(properties.begin(), found));
    return 1;
}

template <class T>
void Store(void* out, double value) {
    *static_cast<T*>(out) = static_cast<T>(value);
}

int Get(GraphicStruct* graphic, int32_t number, int vt, void* out) {
    const KitValue& value = At(graphic, number).second;
    ++Kit().at(graphic)->reads;
    switch (vt) {
    case VT_I4:
        Store<int32_t>(out, value.number);
        break;
    case VT_UI4:
        Store<uint32_t>(out, value.number);
        break;
    case VT_R4:
        Store<float>(out, value.number);
        break;
    case VT_R8:
        Store<double>(out, value.number);
        break;
    case VT_BOOL:
    case VT_UI2:
        *static_cast<uint16_t*>(out) = static_cast<uint16_t>(static_cast<int32_t>(value.number));
        break;
    case VT_UI1:
        Store<uint8_t>(out, value.number);
        break;
    case VT_BSTR: {
        auto* text = static_cast<char**>(out);
        ::BStringNULL(text);
        *text = static_cast<char*>(::DrawCoreNew(value.text.size() + 1));
        std::memcpy(*text, value.text.c_str(), value.text.size() + 1);
        break;
    }
    default:
        throw std::invalid_argument("a value type that no page uses");
    }
    if (Kit().at(graphic)->onGet) Kit().at(graphic)->onGet();
    return 1;
}

int Set(GraphicStruct* graphic, int32_t number, int vt, const void* in) {
    auto& [name, value] = At(graphic, number);
    KitGraphic* kit = Kit().at(graphic);
    if (kit->onSet) kit->onSet(name);
    if (name == kit->rejected) return 0;
    kit->writes.push_back({name, vt});
    switch (vt) {
    case VT_I4:
    case VT_BOOL:
        value.number = *static_cast<const int32_t*>(in);
        break;
    case VT_UI4:
        value.number = *static_cast<const uint32_t*>(in);
        break;
    case VT_R4:
        value.number = *static_cast<const float*>(in);
        break;
    case VT_R8:
        value.number = *static_cast<const double*>(in);
        break;
    case VT_UI2:
        value.number = *static_cast<const uint16_t*>(in);
        break;
    case VT_UI1:
        value.number = *static_cast<const uint8_t*>(in);
        break;
    case VT_BSTR:
        value.text = static_cast<const char*>(in);
        break;
    default:
        throw std::invalid_argument("a value type that no page uses");
    }
    return 1;
}

const PropertyTable kTable = {nullptr, Lookup, Get, Set};
const PropertyTable* const kNoTable = nullptr;

} // namespace

KitGraphic::KitGraphic(int type, std::map<std::string, KitValue> offered)
    : graphic(::GraphicNewEx(type, 0, 1)), properties(std::move(offered)) {
    ::GraphicSetVtbl(graphic, &kTable);
    Kit()[graphic] = this;
}

GraphicKit::GraphicKit() : m_drawing(::DrawingNew()), m_selection(::SelectionNew()) {
    ::AppSetCurrentDrawing(Drawing());
}

GraphicKit::~GraphicKit() {
    for (const auto& kit : m_graphics)
        Kit().erase(kit->graphic);
}

KitGraphic& GraphicKit::Add(std::map<std::string, KitValue> offered, int type) {
    m_graphics.push_back(std::make_unique<KitGraphic>(type, std::move(offered)));
    GraphicStruct* graphic = m_graphics.back()->graphic;
    ::GraphicAdd(::DrawingGetRoot(Drawing()), graphic);
    ::SelectionAdd(Selection(), graphic);
    return *m_graphics.back();
}

GraphicStruct* GraphicKit::AddWithoutTable() {
    GraphicStruct* graphic = ::GraphicAdd(::DrawingGetRoot(Drawing()), ::GraphicNewEx(kGraphicVertices, 0, 1));
    ::GraphicSetVtbl(graphic, kNoTable);
    ::SelectionAdd(Selection(), graphic);
    return graphic;
}

int GraphicKit::Writes() const {
    size_t count = 0;
    for (const auto& kit : m_graphics)
        count += kit->writes.size();
    return static_cast<int>(count);
}

long GraphicKit::Blocks() const {
    DrawCoreObjectCounts counts;
    ::DrawCoreGetObjectCounts(&counts);
    return counts.blocks;
}

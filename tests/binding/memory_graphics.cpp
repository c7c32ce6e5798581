// The functions of the host contract that merging uses.

#include "memory_graphics.h"

#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include <objidl.h>

#include "orlo/host/memory.h"

namespace {

MemoryGraphic& Of(GraphicStruct* graphic) {
    return static_cast<MemoryGraphic&>(*graphic);
}

int Lookup(GraphicStruct* graphic, const char* const*, int, int, int32_t* number) {
    *number = 7;
    return Of(graphic).has;
}

int Get(GraphicStruct* graphic, int32_t, int vt, void* value) {
    MemoryGraphic& from = Of(graphic);
    ++from.reads;
    if (vt == VT_R8) *static_cast<double*>(value) = from.number;
    if (vt == VT_I4) *static_cast<int32_t*>(value) = static_cast<int32_t>(from.number);
    if (vt == VT_BOOL) *static_cast<int16_t*>(value) = from.number != 0 ? -1 : 0;
    if (vt == VT_UI2) *static_cast<uint16_t*>(value) = static_cast<uint16_t>(from.number);
    if (vt == VT_BSTR) {
        const auto string = static_cast<char**>(value);
        BStringNULL(string);
        *string = ::strdup(from.text.c_str());
    }
    return 1;
}

int Set(GraphicStruct* graphic, int32_t, int vt, const void* value) {
    MemoryGraphic& to = Of(graphic);
    if (to.throws) throw std::runtime_error("locked");
    if (to.rejects) return 0;
    if (vt == VT_R8) to.number = *static_cast<const double*>(value);
    if (vt == VT_BOOL) to.number = *static_cast<const int32_t*>(value);
    if (vt == VT_UI2) to.number = *static_cast<const uint16_t*>(value);
    if (vt == VT_BSTR) to.text = static_cast<const char*>(value);
    return 1;
}

const PropertyTable kTable = {nullptr, Lookup, Get, Set};

} // namespace

const PropertyTable* GraphicGetVtbl(GraphicStruct*) {
    return &kTable;
}

GraphicStruct* GraphicFirst(GraphicStruct* set, void* position, int flags, uint32_t filter) {
    *static_cast<uint32_t*>(position) = 0;
    return GraphicNext(set, position, flags, filter);
}

GraphicStruct* GraphicNext(GraphicStruct* set, void* position, int, uint32_t) {
    std::list<MemoryGraphic>& members = static_cast<MemorySet*>(set)->members;
    uint32_t& place = *static_cast<uint32_t*>(position);
    return place < members.size() ? &*std::next(members.begin(), place++) : nullptr;
}

void BStringNULL(char** string) {
    std::free(*string);
    *string = nullptr;
}

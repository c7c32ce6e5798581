// Regen methods: a table of the host program's callbacks.

#include "drawcore/include/drawcore/regen.h"

#include <new>
#include <unordered_map>

#include "orlo/host/regen.h"

namespace {

using RegenMethods = std::unordered_map<uint16_t, RegenMethod>;

const RegenMethod* FindMethod(void* methods, uint16_t number) {
    if (!methods || !number) return nullptr;
    const auto* table = static_cast<const RegenMethods*>(methods);
    const auto found = table->find(number);
    return found == table->end() ? nullptr : &found->second;
}

} // namespace

void* RegenMethodsNew(void) {
    return new (std::nothrow) RegenMethods;
}

void RegenMethodsDispose(void** methods) {
    if (!methods) return;
    delete static_cast<RegenMethods*>(*methods);
    *methods = nullptr;
}

int RegenMethodRegister(void* methods, uint16_t number, const RegenMethod* method) {
    if (!methods || !number || !method) return 0;
    (*static_cast<RegenMethods*>(methods))[number] = *method;
    return 1;
}

int RegenMethodGetPropPage(void* methods, uint16_t number, GraphicStruct* graphic, void* sheet) {
    const RegenMethod* method = FindMethod(methods, number);
    return method && method->getPropPage ? method->getPropPage(method->context, graphic, sheet) : 0;
}

void RegenMethodRegen(void* methods, uint16_t number, GraphicStruct* graphic) {
    const RegenMethod* method = FindMethod(methods, number);
    if (method && method->regen) method->regen(method->context, graphic);
}

// The skeleton with one fault, selected by ORLO_FAULT; without it, the unmodified skeleton.

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <map>
#include <stdexcept>
#include <string>

#include "faults.h"
#include "orlo/host/host.h"
#include "skeleton/database.h"

// Declares the skeleton's function under another name; this file defines a function that replaces it.
#define WRAP(name) extern "C" decltype(name) Original_##name;
WRAP(AppGetCurrentApp)
WRAP(AppGetINIFileName)
WRAP(BStringNULL)
WRAP(BlockDispose)
WRAP(BlocksAddBlock)
WRAP(BlocksFromDrawing)
WRAP(BrushPatternGetData)
WRAP(BrushStyleGetFlags)
WRAP(DoubleToString)
WRAP(DrawCoreDispose)
WRAP(DrawCoreLoadString)
WRAP(DrawCoreNew)
WRAP(DrawingGetCoordSpace)
WRAP(DrawingGetTable)
WRAP(DrawingSetScaleString)
WRAP(DrawingStdNumericToText)
WRAP(DrawingStdNumericToTextEx)
WRAP(DrawingStdTextToAngle)
WRAP(DrawingStdTextToNumeric)
WRAP(DrawingStdTextToNumericEx)
WRAP(ExtentsGetX1)
WRAP(GraphicAdd)
WRAP(GraphicAttach)
WRAP(GraphicCopyEx)
WRAP(GraphicDelete)
WRAP(GraphicDispose)
WRAP(GraphicDrawEx2)
WRAP(GraphicFirst)
WRAP(GraphicGetExtentsSel)
WRAP(GraphicGetIsGroup)
WRAP(GraphicGetVtbl)
WRAP(GraphicNewEx)
WRAP(GraphicNext)
WRAP(GraphicSetBrushScale)
WRAP(GraphicSetDirty)
WRAP(GraphicSetPenColor)
WRAP(GraphicVertexAdd)
WRAP(GraphicVertexFirst)
WRAP(GraphicVertexNext)
WRAP(InsertSetData)
WRAP(IsPaletteSupported)
WRAP(LayerGetColor)
WRAP(LayerGetVisible)
WRAP(LineStyleGetDLItems)
WRAP(LineStyleGetPattern)
WRAP(MatrixDispose)
WRAP(MatrixOffset)
WRAP(MatrixRotateZ)
WRAP(MatrixScale)
WRAP(PaletteSize)
WRAP(RegenMethodGetPropPage)
WRAP(RegenMethodRegen)
WRAP(StringToDouble)
WRAP(TableEntryFirst)
WRAP(TableEntryGetData)
WRAP(TableEntryGetIDFirst)
WRAP(TableEntryGetName)
WRAP(TableEntryNext)
WRAP(TableGetIntVar)
WRAP(TableGetOwner)
WRAP(TableGetStringVar)
WRAP(TableSetIntVar)
WRAP(TableSetNumericVar)
WRAP(TextSetVWHAEx)
WRAP(UnitsGetLUnitValue)
WRAP(UnitsGetScaleValue)
WRAP(UnitsNumericToTextEx)
WRAP(UnitsTextToNumericEx)
WRAP(VertexDispose)
WRAP(VertexNewEx)
WRAP(VertexNewFromEx)
WRAP(VertexSet)
WRAP(ViewportDispose)
WRAP(ViewportSetGDIStuff)
WRAP(ViewportSetRect)

namespace {

bool Is(const char* fault) {
    static const char* const chosen = std::getenv(kFaultVariable);
    return chosen && std::strcmp(chosen, fault) == 0;
}

void Crash() {
    volatile uintptr_t address = 0; // volatile, so that the compiler does not treat a null pointer as impossible
    *reinterpret_cast<volatile int*>(address) = 1;
}

// Deep enough for any stack.
int Overflow(volatile int depth) {
    volatile char block[4096];
    block[0] = static_cast<char>(depth);
    return depth < 0 ? 0 : Overflow(depth + 1) + block[0];
}

// ---- The property table

int Lookup(GraphicStruct* graphic, const char* const* names, int count, int reserved, int32_t* number) {
    if (Is("no text properties") && std::strncmp(*names, "Text", 4) == 0) return 0;
    const char* name = *names;
    for (const PropertyInfo& property : kPropertyList)
        if (Is("property names of any case") && ::_stricmp(property.name, *names) == 0) name = property.name;
    const int found = Original_GraphicGetVtbl(graphic)->PropLookup(graphic, &name, count, reserved, number);
    if (!found && Is("any property")) *number = 1;
    return found || Is("any property");
}

int Get(GraphicStruct* graphic, int32_t number, int vt, void* value) {
    if (Is("get writes too much") && vt == VT_BOOL) std::memset(value, 0, 4);
    if (Is("string leaked") && vt == VT_BSTR) Original_DrawCoreNew(40);
    const int found = Original_GraphicGetVtbl(graphic)->PropGet(graphic, number, vt, value);
    if (vt == VT_BOOL && Is("true is 0xFFFF")) {
        auto* truth = static_cast<VARIANT_BOOL*>(value);
        *truth = *truth ? VARIANT_TRUE : VARIANT_FALSE;
    }
    return found;
}

int Set(GraphicStruct* graphic, int32_t number, int vt, const void* value) {
    if (Is("preview type rejected") && vt == VT_UI1) return 0;
    if (Is("set crashes")) Crash();
    if (Is("set does nothing")) return 1;
    const int32_t negated = -static_cast<int32_t>(vt == VT_BOOL && *static_cast<const int32_t*>(value) == -1);
    if (Is("true is -1") && vt == VT_BOOL) value = &negated;
    const auto* original = Original_GraphicGetVtbl(graphic);
    const int accepted = original->PropSet(graphic, number, vt, value);
    const uint16_t other = 2;
    if (!accepted && Is("rejected, but changed")) original->PropSet(graphic, number, VT_UI2, &other);
    return accepted;
}

constexpr PropertyTable kTable = {nullptr, Lookup, Get, Set};

// ---- Missing functions and stubs

int ReturnNothing() {
    return 0;
}
double ReturnNoNumber() {
    return 0;
}
uint32_t ReturnNoColor() {
    return kColorNone;
}

void Write(void* at, const void* bytes, size_t count) {
    DWORD before;
    ::VirtualProtect(at, count, PAGE_READWRITE, &before);
    std::memcpy(at, bytes, count);
    ::VirtualProtect(at, count, before, &before);
}

// Changes an entry in the export table of this module: to another address or, if that is null, to another name, so that
// the table remains sorted.
void ChangeExport(HMODULE module, const std::string& name, const void* address) {
    auto* base = reinterpret_cast<char*>(module);
    const auto& headers =
        *reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const DWORD place = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress;
    const auto& exports = *reinterpret_cast<IMAGE_EXPORT_DIRECTORY*>(base + place);
    const auto* names = reinterpret_cast<DWORD*>(base + exports.AddressOfNames);
    for (DWORD i = 0; i < exports.NumberOfNames; ++i) {
        char* text = base + names[i];
        if (name != text) continue;
        const char last = static_cast<char>(name.back() + 1);
        const auto offset = static_cast<DWORD>(static_cast<const char*>(address) - base);
        const auto ordinal = reinterpret_cast<WORD*>(base + exports.AddressOfNameOrdinals)[i];
        if (address)
            Write(base + exports.AddressOfFunctions + ordinal * sizeof offset, &offset, sizeof offset);
        else
            Write(text + name.size() - 1, &last, 1);
    }
}

void MakeStub(HMODULE module, const std::string& name) {
    const void* stub = reinterpret_cast<const void*>(ReturnNothing);
    if (name == "UnitsGetScaleValue") stub = reinterpret_cast<const void*>(ReturnNoNumber);
    if (name == "LayerGetColor") stub = reinterpret_cast<const void*>(ReturnNoColor);
    ChangeExport(module, name, stub);
}

// Each function that can be a stub, unless there are insertions or graphics.
void MakeStubs(HMODULE module) {
    struct Row {
        const char* name;
        const char* lost;
    };
    constexpr Row kFunctions[] = {
#include "functions.inc"
    };
    for (const auto& [name, lost] : kFunctions)
        if (lost && std::strcmp(name, "GraphicNewEx") != 0 && std::strncmp(name, "Matrix", 6) != 0)
            MakeStub(module, name);
}

// ---- Drawing

const char* lastName = nullptr; // the names and texts that were passed last
const char* lastText = nullptr;
uint16_t namedBlock = 0;
const GraphicStruct* textGraphic = nullptr;
GraphicStruct* removedContents = nullptr;

// Changes what is drawn by the fault.
void ApplyDrawingFault(Graphic& graphic) {
    Content& content = graphic.content;
    const bool isHatch = content.brushStyle > 1;
    if (Is("fillings not drawn") || (Is("hatches not drawn") && isHatch)) content.brushStyle = kBrushStyleNone;
    const bool hasUndrawn = !content.vertices.empty() && !(content.vertices.back().wFlags & kVertexDrawn);
    if (Is("drawn segments filled only") && hasUndrawn) content.brushStyle = kBrushStyleNone;
    if (Is("no line is a line") && content.penStyle == kLineStyleNone) content.penStyle = kLineStyleByLayer;
    if (Is("fillings in the pen color")) content.brushColor = kColorOfPen;
    if (Is("texts not rotated")) content.textAngle = 0;
    if (Is("texts of another height")) content.textSize *= 2;
    if (Is("text kept by pointer") && &graphic == textGraphic) content.text = lastText;
    if (Is("hairlines only")) content.penWidth = 0;
    for (VertexStruct& vertex : content.vertices)
        if (Is("all segments drawn")) vertex.wFlags |= kVertexDrawn;
    if (!Is("insertions not rotated") || graphic.bType != kGraphicInsert) return;
    auto& corners = content.vertices;
    for (size_t axis = 1; axis < 4; ++axis)
        Original_VertexSet(&corners[axis], corners[0].x + (axis == 1), corners[0].y + (axis == 2),
                           corners[0].z + (axis == 3));
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*) {
    const char* chosen = std::getenv(kFaultVariable);
    if (reason != DLL_PROCESS_ATTACH || !chosen) return TRUE;
    if (std::strncmp(chosen, "missing ", 8) == 0) ChangeExport(module, chosen + 8, nullptr);
    if (std::strncmp(chosen, "stub ", 5) == 0) MakeStub(module, chosen + 5);
    if (Is(kStubs)) MakeStubs(module);
    return TRUE;
}

AppStruct* AppGetCurrentApp(void) {
    static AppStruct other;
    AppStruct* application = Original_AppGetCurrentApp();
    if (!Is("application of another drawing")) return application;
    other = *application;
    return &other;
}

int AppGetINIFileName(AppStruct* application, char* buffer, int size) {
    if (!Is("path without its NUL")) return Original_AppGetINIFileName(application, buffer, size);
    std::memset(buffer, 'x', size);
    return size;
}

int IsPaletteSupported(HDC dc) {
    return Is("palette everywhere") || Original_IsPaletteSupported(dc);
}

int DrawCoreLoadString(unsigned int id, char* buffer, int size) {
    if (Is("string past the buffer")) size += 1;
    if (Is("any string of the host") && id == 1) return CopyText("string 1", buffer, size);
    const int length = Original_DrawCoreLoadString(id, buffer, size);
    if (Is("string of any number") && !length) return 1;
    return Is("string without its length") ? length != 0 : length;
}

void* DrawCoreNew(size_t size) {
    static void* one = Original_DrawCoreNew(10000);
    return Is("one block for all") ? one : Original_DrawCoreNew(size);
}

void BStringNULL(char** string) {
    if (Is("string left in its variable")) return;
    if (Is("null string crashes") && !*string) Crash();
    Original_BStringNULL(string);
}

void RegenMethodRegen(void* methods, uint16_t method, GraphicStruct* graphic) {
    if (Is("regen changes any graphic")) Crash();
    Original_RegenMethodRegen(methods, method, graphic);
}

int RegenMethodGetPropPage(void* methods, uint16_t method, GraphicStruct* graphic, void* sheet) {
    return Is("page of any method") || Original_RegenMethodGetPropPage(methods, method, graphic, sheet);
}

uint16_t PaletteSize(const void* dib) {
    if (Is("never returns")) ::Sleep(INFINITE);
    const uint16_t size = Original_PaletteSize(dib);
    return Is("color masks ignored") && size == 12 ? uint16_t{0} : size;
}

TableStruct* DrawingGetTable(DrawingStruct* drawing, const char* name) {
    if (Is("no colors") && std::strcmp(name, kTableColors) == 0) return nullptr;
    TableStruct* table = Original_DrawingGetTable(drawing, name);
    for (const char* style : {kTableLineStyles, kTableBrushStyles, kTableColors})
        if (Is(kNoStyles) && table && std::strcmp(name, style) == 0) table->entries.clear();
    return table;
}

static int onePlace; // of all iterations over entries

uint16_t TableEntryFirst(TableStruct* table, int* cookie) {
    if (Is("one iteration of entries")) cookie = &onePlace;
    if (Is("freed table used") && table && !TableStruct::Find(table)) return 1;
    const uint16_t id = Original_TableEntryFirst(table, cookie);
    return Is("identifier among the markers") && id ? uint16_t{kLineStyleByLayer} : id;
}

uint16_t TableEntryNext(TableStruct* table, int* cookie) {
    static int calls;
    if (Is("endless iteration")) return 1;
    if (Is("iteration skips an entry") && ++calls % 3 == 0) return 0;
    return Original_TableEntryNext(table, Is("one iteration of entries") ? &onePlace : cookie);
}

int TableEntryGetName(TableStruct* table, uint16_t id, char* buffer, int size) {
    if (Is("name past the buffer")) buffer[size] = '\0';
    if (Is("name kept by pointer") && id != 0 && id == namedBlock) return CopyText(lastName, buffer, size);
    const int found = Original_TableEntryGetName(table, id, buffer, size);
    return found || (Is("name of an unknown entry") && table);
}

uint16_t TableEntryGetIDFirst(TableStruct* table, int* cookie, const char* name) {
    const uint16_t id = Original_TableEntryGetIDFirst(table, cookie, name);
    char entry[256] = "";
    Original_TableEntryGetName(table, id, entry, sizeof entry);
    return Is("case-sensitive names") && std::strcmp(entry, name) != 0 ? uint16_t{0} : id;
}

void* TableEntryGetData(TableStruct* table, uint16_t id) {
    return Is("color without data") ? nullptr : Original_TableEntryGetData(table, id);
}

DrawingStruct* TableGetOwner(TableStruct* table) {
    return Is("no owner") ? nullptr : Original_TableGetOwner(table);
}

int TableSetIntVar(TableStruct* table, uint16_t id, long value) {
    return Original_TableSetIntVar(table, id, Is("number of 16 bits") ? static_cast<int16_t>(value) : value);
}

int TableSetNumericVar(TableStruct* table, uint16_t id, double value) {
    return Original_TableSetNumericVar(table, id, Is("double as float") ? static_cast<float>(value) : value);
}

int TableGetIntVar(TableStruct* table, uint16_t id, long* value) {
    if (Is("no background of previews") && id == kVarPreviewBackground) return 0;
    if (Original_TableGetIntVar(table, id, value)) return 1;
    char text[32];
    if (!Is("string as number") || !TableGetStringVar(table, id, text, sizeof text)) return 0;
    *value = std::atol(text);
    return 1;
}

double StringToDouble(int context, const char* text, char** end) {
    if (Is("reads infinity") && std::strcmp(text, "inf") == 0) return std::numeric_limits<double>::infinity();
    if (Is("hexadecimal numbers") && std::strncmp(text, "0x", 2) == 0) return std::strtod(text, end);
    const double value = Original_StringToDouble(context, text, end);
    if (end && Is("end not stored")) *end = const_cast<char*>(text);
    return value;
}

void DoubleToString(int context, double value, int digits, char* buffer, int reserved, int form, int trim) {
    if (Is("six digits only")) digits = 6;
    Original_DoubleToString(context, value, digits, buffer, reserved, form, trim);
    if (Is("trailing zeros")) std::strcat(buffer, std::strchr(buffer, '.') ? "00" : ".00");
}

int UnitsTextToNumericEx(TableStruct* units, uint16_t number, uint16_t display, const char* text, double* value) {
    if (Is("infinite length accepted") && std::strcmp(text, "inf") == 0) return 1;
    if (Is("arguments swapped") && display) std::swap(number, display);
    const int read = Original_UnitsTextToNumericEx(units, number, display, text, value);
    if (!read && Is("value changed on rejection")) *value = 0;
    if (read && number == kUnitPenWidth && Is("paper in inches")) *value *= kInchesPerMillimeter;
    return read;
}

int UnitsNumericToTextEx(TableStruct* units, uint16_t display, uint16_t number, double value, char* buffer, int size,
                         int reserved, int suffix) {
    if (Is("display and number swapped") && display) std::swap(number, display);
    if (Is("lengths rounded")) value = std::floor(value);
    if (Is("unit without its name")) suffix = 0;
    return Original_UnitsNumericToTextEx(units, display, number, value, buffer, size, reserved, suffix);
}

int DrawingStdTextToNumeric(DrawingStruct* drawing, const char* text, double* value, int kind) {
    char* end = nullptr;
    if (kind == 1 && Is("text sizes in another unit")) {
        const int read = Original_DrawingStdTextToNumeric(drawing, text, value, kind);
        if (read) *value *= 10;
        return read;
    }
    if (!Is("half a text read")) return Original_DrawingStdTextToNumeric(drawing, text, value, kind);
    *value = Original_StringToDouble(0, text, &end);
    return end != text;
}

int DrawingStdTextToNumericEx(DrawingStruct* drawing, const char* text, double* value, uint16_t space, uint16_t unit) {
    if (Is("device space has lengths") && space == kSpaceDevice) space = kSpacePaper;
    const int read = Original_DrawingStdTextToNumericEx(drawing, text, value, space, unit);
    if (read && space == kSpacePaper && Is("text size on paper in inches")) *value *= kInchesPerMillimeter;
    return read;
}

int UnitsGetLUnitValue(TableStruct* units, uint16_t variable, double* value) {
    const int found = Original_UnitsGetLUnitValue(units, variable, value);
    if (found && Is("inches as millimeters")) *value = kMillimetersPerInch;
    return found;
}

int DrawingStdTextToAngle(DrawingStruct* drawing, const char* text, double* value, int reserved) {
    const int read = Original_DrawingStdTextToAngle(drawing, text, value, reserved);
    if (read && Is("angle in degrees")) *value *= 57.3;
    return read || Is("any text as an angle");
}

double UnitsGetScaleValue(TableStruct* units, const char* text) {
    const double scale = Original_UnitsGetScaleValue(units, text);
    if (scale == 0) return Is("any text as a scale");
    return Is("scale upside down") ? 1 / scale : scale;
}

int DrawingSetScaleString(DrawingStruct* drawing, const char* text) {
    return Original_DrawingSetScaleString(drawing, text) || Is("any scale accepted");
}

GraphicStruct* GraphicNewEx(int type, int reserved, int flags) {
    GraphicStruct* graphic = Original_GraphicNewEx(type, reserved, flags);
    if (graphic && Is("layer that is no entry")) Graphic::From(graphic)->content.layer = 0xFFF0;
    if (Is("insertion without vertices") && type == kGraphicInsert) Graphic::From(graphic)->content.vertices.clear();
    static GraphicStruct owner;
    if (!graphic || !Is("new graphic with an owner")) return graphic;
    graphic->pParent = &owner;
    graphic->dwFlags &= ~kFlagNoParent;
    return graphic;
}

GraphicStruct* GraphicAdd(GraphicStruct* parent, GraphicStruct* child) {
    GraphicStruct* added = Original_GraphicAdd(parent, child);
    if (added && Is("child without its parent")) added->pParent = nullptr;
    return added;
}

void GraphicDelete(GraphicStruct* owner, GraphicStruct* child) {
    Original_GraphicDelete(owner, child);
    if (Is("child freed")) std::memset(static_cast<void*>(child), 0xDD, sizeof *child);
}

static uint32_t onePosition; // of all iterations over members

GraphicStruct* GraphicFirst(GraphicStruct* set, void* position, int flags, uint32_t filter) {
    return Original_GraphicFirst(set, Is("one iteration of members") ? &onePosition : position, flags, filter);
}

GraphicStruct* GraphicNext(GraphicStruct* set, void* position, int flags, uint32_t filter) {
    if (Is("one iteration of members")) position = &onePosition;
    GraphicStruct* next = Original_GraphicNext(set, position, flags, filter);
    uint32_t nextPosition = *static_cast<uint32_t*>(position);
    return Is("last member left out") && !Original_GraphicNext(set, &nextPosition, flags, filter) ? nullptr : next;
}

GraphicStruct* GraphicCopyEx(GraphicStruct* graphic, int reserved1, int reserved2, int flags) {
    if (Is("copy leaked")) Original_GraphicCopyEx(graphic, reserved1, reserved2, flags);
    return Is("copy without members") ? Original_GraphicNewEx(graphic->bType, 0, 1)
                                      : Original_GraphicCopyEx(graphic, reserved1, reserved2, flags);
}

void GraphicAttach(GraphicStruct* graphic, DrawingStruct* drawing) {
    Original_GraphicAttach(graphic, drawing);
    uint32_t position;
    if (GraphicStruct* part = GraphicFirst(graphic, &position, 1, kAllGraphics))
        if (Is("members not attached")) Original_GraphicAttach(part, nullptr);
}

int GraphicGetIsGroup(GraphicStruct* graphic) {
    return Is("lists are groups") || Original_GraphicGetIsGroup(graphic);
}

void GraphicSetPenColor(GraphicStruct* graphic, uint32_t color) {
    if (!Is("pen color ignored")) Original_GraphicSetPenColor(graphic, color);
}

void GraphicSetBrushScale(GraphicStruct* graphic, double scale) {
    if (!Is("brush scale ignored")) Original_GraphicSetBrushScale(graphic, scale);
}

void GraphicSetDirty(GraphicStruct* graphic, int dirty) {
    if (Is("stack overflow")) Overflow(0);
    Original_GraphicSetDirty(graphic, dirty);
}

const PropertyTable* GraphicGetVtbl(GraphicStruct*) {
    return &kTable;
}

VertexStruct* VertexNewEx(double x, double y, double z) {
    VertexStruct* vertex = Original_VertexNewEx(x, Is("vertex at another position") ? y + 1 : y, z);
    if (Is("vertex without its flag")) vertex->wFlags = 0;
    return vertex;
}

VertexStruct* VertexNewFromEx(VertexStruct* from) {
    VertexStruct* vertex = Original_VertexNewFromEx(from);
    if (Is("flags of the host in vertices")) vertex->wFlags |= 0x20;
    return vertex;
}

void VertexSet(VertexStruct* vertex, double x, double y, double z) {
    if (Is("flags of the host in vertices")) vertex->wFlags |= 0x40;
    Original_VertexSet(vertex, x, y, z);
}

int GraphicVertexAdd(GraphicStruct* graphic, VertexStruct* vertex) {
    const int added = Original_GraphicVertexAdd(graphic, vertex);
    if (added && Is("flags of the host in vertices")) Graphic::From(graphic)->content.vertices.back().wFlags |= 0x80;
    return added;
}

void VertexDispose(VertexStruct** vertex) {
    if (Is("ends the process")) std::exit(0);
    if (Is("vertex leaked")) *vertex = nullptr;
    Original_VertexDispose(vertex);
}

VertexStruct* GraphicVertexFirst(GraphicStruct* graphic, int* cookie, int from, int flags) {
    static VertexStruct copy;
    VertexStruct* first = Original_GraphicVertexFirst(graphic, cookie, from, flags);
    if (!first || !Is("vertices swapped")) return first;
    copy = *Original_GraphicVertexNext(graphic, cookie, from, flags);
    return &copy;
}

VertexStruct* GraphicVertexNext(GraphicStruct* graphic, int* cookie, int from, int flags) {
    static int place;
    if (!Is("one iteration of vertices")) return Original_GraphicVertexNext(graphic, cookie, from, flags);
    if (*cookie == 1) place = 1 + (place == 2); // restart unless there is another iteration
    *cookie = 7;
    return Original_GraphicVertexNext(graphic, &place, from, flags);
}

int TextSetVWHAEx(GraphicStruct* graphic, VertexStruct* at, double width, double height, double angle,
                  const char* text) {
    lastText = text;
    textGraphic = graphic;
    const bool isFinite = std::isfinite(at->x + width + height + angle);
    return Original_TextSetVWHAEx(graphic, at, width, height, angle, text) || Is("text of any graphic") ||
           (!isFinite && Is("infinite text accepted"));
}

MatrixStruct* MatrixRotateZ(const MatrixStruct* matrix, double angle, int reserved) {
    return Original_MatrixRotateZ(matrix, Is("rotated the other way") ? -angle : angle, reserved);
}

MatrixStruct* MatrixScale(const MatrixStruct* matrix, const VertexStruct* factors, int reserved) {
    MatrixStruct* scaled = Original_MatrixScale(matrix, factors, reserved);
    if (matrix && Is("given matrix last")) std::memcpy(scaled->at[3], matrix->at[3], sizeof scaled->at[3]);
    return scaled;
}

MatrixStruct* MatrixOffset(const MatrixStruct* matrix, const VertexStruct* by) {
    if (Is("exception")) throw std::runtime_error("no offset");
    if (matrix && Is("offset changes its argument")) const_cast<MatrixStruct*>(matrix)->at[3][0] += by->x;
    return Original_MatrixOffset(matrix, by);
}

void MatrixDispose(MatrixStruct** matrix) {
    if (Is("matrix leaked")) *matrix = nullptr;
    Original_MatrixDispose(matrix);
}

uint16_t BlocksAddBlock(TableStruct* blocks, const char* name, GraphicStruct* contents) {
    const uint16_t id = Original_BlocksAddBlock(blocks, name, contents);
    lastName = name;
    namedBlock = id;
    return !id && Is("existing name accepted") ? BlocksFindBlock(blocks, name) : id;
}

void BlockDispose(TableStruct* blocks, uint16_t id) {
    if (Is("contents of a block leaked")) Original_GraphicNewEx(kGraphicVertices, 0, 1);
    if (Is("removed block drawn")) removedContents = Original_GraphicCopyEx(BlockGetGraphic(blocks, id), 0, 0, 7);
    if (!Is("block stays")) Original_BlockDispose(blocks, id);
}

int InsertSetData(GraphicStruct* graphic, TableStruct* blocks, uint16_t id, const MatrixStruct* matrix) {
    Graphic::From(graphic)->content.vertices.resize(4);
    return Original_InsertSetData(graphic, blocks, id, Is("insertion at the origin") ? nullptr : matrix);
}

uint32_t LayerGetColor(DrawingStruct* drawing, uint16_t id) {
    return Is("layer color by layer") ? kColorByLayer : Original_LayerGetColor(drawing, id);
}

int LayerGetVisible(DrawingStruct* drawing, uint16_t id) {
    return Original_LayerGetVisible(drawing, id) || Is("unknown layer visible");
}

int LineStyleGetPattern(TableStruct* table, uint16_t id, double* pattern) {
    const int found = Original_LineStyleGetPattern(table, id, pattern);
    if (found && Is("one dash too many")) pattern[LineStyleGetDLItems(table, id)] = 1;
    return found;
}

void BrushPatternGetData(const BrushPatternStruct* lines, double* angle, double* baseX, double* baseY, double* along,
                         double* spacing, int* dashCount, double* dashes) {
    Original_BrushPatternGetData(lines, angle, baseX, baseY, along, spacing, dashCount, dashes);
    if (Is("distance of lines zero")) *spacing = 0;
}

// The extents of a graphic without vertices.
const ExtentsStruct* GraphicGetExtentsSel(GraphicStruct* graphic, int selected) {
    static GraphicStruct* const none = Original_GraphicNewEx(kGraphicVertices, 0, 1);
    static std::map<GraphicStruct*, const ExtentsStruct*> cache;
    if (Is("no extents")) graphic = none;
    if (!Is("extents cached")) return Original_GraphicGetExtentsSel(graphic, selected);
    const ExtentsStruct*& cached = cache[graphic];
    if (!cached) cached = Original_GraphicGetExtentsSel(graphic, selected);
    return cached;
}

void GraphicDrawEx2(GraphicStruct* graphic, const MatrixStruct* matrix, ViewportStruct* viewport, int preview,
                    int flags) {
    if ((Is("texts not drawn") && graphic->bType == kGraphicText) || (Is("preview not drawn") && preview)) return;
    if (Is("slow drawing")) ::Sleep(15);
    if (Is("pen leaked")) ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    Graphic& drawn = *Graphic::From(graphic);
    const Content before = drawn.content;
    std::vector<std::unique_ptr<Graphic>> members;
    if (Is("members not drawn")) members.swap(drawn.members);
    ApplyDrawingFault(drawn);
    Original_GraphicDrawEx2(graphic, matrix, viewport, preview, flags);
    if (Is("removed block drawn") && drawn.bType == kGraphicInsert && removedContents)
        Original_GraphicDrawEx2(removedContents, matrix, viewport, preview, flags);
    drawn.content = before;
    if (Is("members not drawn")) members.swap(drawn.members);
}

void ViewportSetRect(ViewportStruct* viewport, const RECT* rect) {
    const RECT all = {rect->left - 9, rect->top - 9, rect->right + 9, rect->bottom + 9};
    Original_ViewportSetRect(viewport, Is("draws outside the rectangle") ? &all : rect);
}

void ViewportSetGDIStuff(ViewportStruct* viewport, HWND window, HDC dc, int mode, int flags) {
    Original_ViewportSetGDIStuff(viewport, window, dc, mode, flags);
    if (Is("pen left selected")) ::SelectObject(dc, ::GetStockObject(NULL_BRUSH));
}

void ViewportDispose(ViewportStruct** viewport) {
    if (Is("viewport leaked")) *viewport = nullptr;
    ViewportStruct* copy = *viewport;
    Original_ViewportDispose(Is("viewport left in its variable") ? &copy : viewport);
}

void GraphicDispose(GraphicStruct** graphic) {
    GraphicStruct* copy = *graphic;
    if (Is("members leaked")) Original_GraphicNewEx(kGraphicVertices, 0, 1);
    Original_GraphicDispose(Is("graphic left in its variable") ? &copy : graphic);
}

TableStruct* BlocksFromDrawing(DrawingStruct* drawing) {
    if (!drawing && Is("blocks of a null drawing")) drawing = Original_AppGetCurrentApp()->pCurrentDrawing;
    return Original_BlocksFromDrawing(drawing);
}

uint16_t BrushStyleGetFlags(TableStruct* table, uint16_t id) {
    const uint16_t flags = Original_BrushStyleGetFlags(table, id);
    return !flags && Is("flags of an unknown style") ? kBrushVector : flags;
}

int LineStyleGetDLItems(TableStruct* table, uint16_t id) {
    return Is("dashes of an unknown style") && id > 100 ? 2 : Original_LineStyleGetDLItems(table, id);
}

void DrawCoreDispose(void* block) {
    if (!block && Is("null block crashes")) Crash();
    Original_DrawCoreDispose(block);
}

uint16_t DrawingGetCoordSpace(DrawingStruct* drawing) {
    return Is("fourth space") ? uint16_t{3} : Original_DrawingGetCoordSpace(drawing);
}

int DrawingStdNumericToText(DrawingStruct* drawing, double value, char* buffer, int size, int kind) {
    if (Is("text sizes without text") && kind == 1) return 0;
    if (Is("text sizes in another unit") && kind == 1) value /= 10;
    return Original_DrawingStdNumericToText(drawing, value, buffer, size, kind);
}

int DrawingStdNumericToTextEx(DrawingStruct* drawing, double value, char* buffer, int size, uint16_t space,
                              uint16_t unit) {
    if (Is("paper space without text") && space == kSpacePaper) return 0;
    if (Is("text size on paper in inches") && space == kSpacePaper) value *= kMillimetersPerInch;
    return Original_DrawingStdNumericToTextEx(drawing, value, buffer, size, space, unit);
}

double ExtentsGetX1(const ExtentsStruct* extents) {
    const double left = Original_ExtentsGetX1(extents);
    return Is("empty extents not zero") && ExtentsGetX2(extents) == 0 ? 1 : left;
}

int TableGetStringVar(TableStruct* table, uint16_t id, char* buffer, int size) {
    return Original_TableGetStringVar(table, id, buffer, Is("string variable past the buffer") ? size + 1 : size);
}

// The table of units.
#include "drawcore/src/units/length_unit.h"

#include "drawcore/src/dxf/fold_name.h"
#include "orlo/host/words.h"

namespace drawcore {

namespace {

constexpr LengthUnit kUnits[] = {{"mm", 1},
                                 {"cm", 10},
                                 {"dm", 100},
                                 {"m", 1000},
                                 {"km", 1e6},
                                 {"um", 0.001},
                                 {"nm", 1e-6},
                                 {"in", kMillimetersPerInch},
                                 {"ft", 304.8},
                                 {"yd", 914.4},
                                 {"mi", 1609344},
                                 {"mil", 0.0254},
                                 {"pt", kMillimetersPerInch / 72}};

constexpr struct {
    const char *spelling, *name;
} kSpellings[] = {{"\"", "in"},   {"inch", "in"},  {"inches", "in"}, {"'", "ft"},     {"foot", "ft"},
                  {"feet", "ft"}, {"meter", "m"},  {"metre", "m"},   {"point", "pt"}, {"points", "pt"},
                  {"yard", "yd"}, {"yards", "yd"}, {"\xB5m", "um"}};

// Indexed by their numbers in DXF; null if not supported.
constexpr const char* kDxfUnits[] = {nullptr, "in",  "ft", "mi",    "mm", "cm", "m", "km",
                                     nullptr, "mil", "yd", nullptr, "nm", "um", "dm"};

} // namespace

const LengthUnit* FindLengthUnit(std::string_view name) {
    std::string folded = dxf::FoldName(name);
    for (const auto& row : kSpellings)
        if (folded == row.spelling) folded = row.name;
    for (const LengthUnit& unit : kUnits)
        if (folded == unit.name) return &unit;
    return nullptr;
}

const LengthUnit* LengthUnitOfDxf(int number) {
    if (number < 0 || static_cast<size_t>(number) >= std::size(kDxfUnits) || !kDxfUnits[number]) return nullptr;
    return FindLengthUnit(kDxfUnits[number]);
}

} // namespace drawcore

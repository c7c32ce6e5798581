// Requirements of tables: entries, names, data, variables.

#include <cstring>
#include <set>

#include "requirement.h"

namespace {

constexpr const char* kTables[] = {kTableLayers, kTableLineStyles, kTableBrushStyles,
                                   kTableColors, kTableBlocks,     kTableUnits};
constexpr uint16_t kHighestIdentifier = 0xFFF0;
constexpr uint16_t kUnusedVariable = 0x7777; // a number that no host uses
constexpr char kUntouched = '\x5A';

std::string NameOf(const Subject& s, TableStruct* table, uint16_t id) {
    char name[256] = "";
    Require(CALL(s.host, TableEntryGetName)(table, id, name, sizeof name), "entry %u has no name", id);
    return name;
}

// Calls visit(table, name of the table) for all tables, and reports the violations of all of them.
template <class Visit>
void ForEachTable(const Subject& s, Visit visit) {
    Violations violations;
    for (const char* name : kTables)
        violations.Collect([&] { visit(s.Table(name), name); });
    violations.Report();
}

// Calls visit(table, name of the table, identifier) for all entries of all tables.
template <class Visit>
void ForEachEntry(const Subject& s, Visit visit) {
    ForEachTable(s, [&](TableStruct* table, const char* name) {
        for (const uint16_t id : s.Entries(table))
            visit(table, name, id);
    });
}

void HasTheTables(const Subject& s) {
    ForEachTable(s, [](TableStruct*, const char*) {});
    Require(!s.Entries(s.Table(kTableLayers)).empty(), "%s is empty", kTableLayers);
    Require(!CALL(s.host, DrawingGetTable)(s.Drawing(), "no such table"), "returned a table for an unknown name");
}

void ReturnsEachEntryOnce(const Subject& s) {
    ForEachTable(s, [&](TableStruct* table, const char* name) {
        const auto entries = s.Entries(table);
        const std::set<uint16_t> different(entries.begin(), entries.end());
        Require(different.size() == entries.size(), "%s: returned %zu identifiers, of which %zu are different", name,
                entries.size(), different.size());
        Require(entries == s.Entries(table), "%s: a second iteration returned different entries", name);
    });
}

void KeepsItsStateInTheCookie(const Subject& s) {
    TableStruct* colors = s.Table(kTableColors);
    const auto alone = s.Entries(colors);
    std::vector<uint16_t> nested;
    int cookies[2] = {0, 0x5A5A5A5A};
    for (uint16_t id = CALL(s.host, TableEntryFirst)(colors, cookies); id != 0 && nested.size() <= alone.size();
         id = CALL(s.host, TableEntryNext)(colors, cookies)) {
        nested.push_back(id);
        Require(s.Entries(colors) == alone, "a nested iteration returned different entries");
        s.Entries(s.Table(kTableLayers));
    }
    Require(nested == alone, "returned %zu of %zu entries with other iterations between the calls", nested.size(),
            alone.size());
    Require(cookies[1] == 0x5A5A5A5A, "wrote more than an int to the cookie");
}

void IdentifiersAreBelowTheMarkers(const Subject& s) {
    ForEachEntry(s, [](TableStruct*, const char* name, uint16_t id) {
        Require(id <= kHighestIdentifier, "%s has an entry 0x%X; markers begin at 0x%X", name, id,
                kHighestIdentifier + 1u);
    });
}

void NamesEntries(const Subject& s) {
    ForEachEntry(s, [&](TableStruct* table, const char* name, uint16_t id) {
        Require(!NameOf(s, table, id).empty(), "%s: the name of entry %u is empty", name, id);
    });
}

void TruncatesNames(const Subject& s) {
    ForEachEntry(s, [&](TableStruct* table, const char* name, uint16_t id) {
        const std::string whole = NameOf(s, table, id);
        char cut[4] = {kUntouched, kUntouched, kUntouched, kUntouched};
        Require(CALL(s.host, TableEntryGetName)(table, id, cut, 3), "%s: returned 0 for a buffer of 3 bytes", name);
        Require(cut[3] == kUntouched, "%s: wrote past the end of a buffer of 3 bytes", name);
        Require(whole.substr(0, 2) == cut, "%s: did not store the beginning of \"%s\"", name, whole.c_str());
    });
}

void UnknownEntriesHaveNoName(const Subject& s) {
    char name[256];
    for (const uint16_t id : {uint16_t{0}, uint16_t{kHighestIdentifier}})
        Require(!CALL(s.host, TableEntryGetName)(s.Table(kTableLayers), id, name, sizeof name),
                "returned a name for entry %u", id);
}

void FindsByName(const Subject& s) {
    ForEachEntry(s, [&](TableStruct* table, const char* tableName, uint16_t id) {
        std::string name = NameOf(s, table, id);
        for (int pass = 0; pass < 2; ++pass) {
            int cookie = 0;
            const uint16_t found = CALL(s.host, TableEntryGetIDFirst)(table, &cookie, name.c_str());
            Require(found && ::_stricmp(NameOf(s, table, found).c_str(), name.c_str()) == 0,
                    "%s: returned %u for \"%s\", which is entry %u", tableName, found, name.c_str(), id);
            for (char& letter : name) // the second pass searches in the other case
                if ((letter | 0x20) >= 'a' && (letter | 0x20) <= 'z') letter ^= 0x20;
        }
    });
    const uint16_t none = CALL(s.host, TableEntryGetIDFirst)(s.Table(kTableLayers), nullptr, "no such layer");
    Require(none == 0, "returned %u for a name that does not exist", none);
}

void ReturnsColors(const Subject& s) {
    TableStruct* colors = s.Table(kTableColors);
    for (const uint16_t id : s.Entries(colors)) {
        const void* data = CALL(s.host, TableEntryGetData)(colors, id);
        Require(data, "color %u has no data", id);
        const uint32_t color = *static_cast<const uint32_t*>(data);
        Require(color <= 0xFFFFFF || color >= kColorOfPen, "color %u is 0x%X, which is neither a COLORREF nor a marker",
                id, color);
    }
}

void BelongsToTheDrawing(const Subject& s) {
    for (const char* name : kTables)
        Require(CALL(s.host, TableGetOwner)(s.Table(name)) == s.Drawing(), "%s belongs to another drawing", name);
}

void TreatsNullAsEmpty(const Subject& s) {
    int cookie = 0;
    char text[8];
    long whole = 0;
    double real = 0;
    const Host& host = s.host;
    Require(!CALL(host, TableEntryFirst)(nullptr, &cookie), "TableEntryFirst returned an entry");
    Require(!CALL(host, TableEntryNext)(nullptr, &cookie), "TableEntryNext returned an entry");
    Require(!CALL(host, TableEntryGetName)(nullptr, 1, text, sizeof text), "TableEntryGetName returned a name");
    Require(!CALL(host, TableEntryGetData)(nullptr, 1), "TableEntryGetData returned data");
    Require(!CALL(host, TableEntryGetIDFirst)(nullptr, &cookie, "0"), "TableEntryGetIDFirst returned an entry");
    Require(!CALL(host, TableGetOwner)(nullptr), "TableGetOwner returned a drawing");
    Require(!CALL(host, TableGetIntVar)(nullptr, 1, &whole), "TableGetIntVar returned a value");
    Require(!CALL(host, TableGetNumericVar)(nullptr, 1, &real), "TableGetNumericVar returned a value");
    Require(!CALL(host, TableGetStringVar)(nullptr, 1, text, sizeof text), "TableGetStringVar returned a string");
}

// These functions are not part of the contract; without them, no table ends while hostcheck runs.
using DrawingNew = DrawingStruct*();
using DrawingDispose = void(DrawingStruct**);

void TreatsFreedTablesAsEmpty(const Subject& s) {
    if (!s.host.Has("DrawingNew") || !s.host.Has("DrawingDispose")) return;
    DrawingStruct* drawing = s.host.Function<DrawingNew>("DrawingNew")();
    if (!drawing) return;
    TableStruct* layers = CALL(s.host, DrawingGetTable)(drawing, kTableLayers);
    s.host.Function<DrawingDispose>("DrawingDispose")(&drawing);
    int cookie = 0;
    char text[8];
    long whole = 0;
    Require(!CALL(s.host, TableEntryFirst)(layers, &cookie), "TableEntryFirst returned an entry");
    Require(!CALL(s.host, TableEntryGetName)(layers, 1, text, sizeof text), "TableEntryGetName returned a name");
    Require(!CALL(s.host, TableEntryGetData)(layers, 1), "TableEntryGetData returned data");
    Require(!CALL(s.host, TableEntryGetIDFirst)(layers, &cookie, "0"), "TableEntryGetIDFirst returned an entry");
    Require(!CALL(s.host, TableGetOwner)(layers), "TableGetOwner returned a drawing");
    Require(!CALL(s.host, TableGetIntVar)(layers, 1, &whole), "TableGetIntVar returned a value");
}

void StoresIntegers(const Subject& s) {
    for (const long value : {0L, -1L, 0x7FFFFFFFL}) {
        long found = 5;
        RequireNoStub(CALL(s.host, TableSetIntVar)(s.Units(), kUnusedVariable, value), "TableSetIntVar");
        Require(CALL(s.host, TableGetIntVar)(s.Units(), kUnusedVariable, &found) && found == value,
                "returned %ld after setting %ld", found, value);
    }
}

void StoresDoubles(const Subject& s) {
    double found = 5;
    RequireNoStub(CALL(s.host, TableSetNumericVar)(s.Units(), kUnusedVariable, 0.1), "TableSetNumericVar");
    RequireNoStub(CALL(s.host, TableGetNumericVar)(s.Units(), kUnusedVariable, &found), "TableGetNumericVar");
    Require(found == 0.1, "returned %g after setting 0.1", found);
}

void StoresStrings(const Subject& s) {
    char own[] = "text", found[6] = "", cut[4] = {0, 0, 0, kUntouched};
    RequireNoStub(CALL(s.host, TableSetStringVar)(s.Units(), kUnusedVariable, own), "TableSetStringVar");
    own[0] = 'n'; // the database must have copied the text
    Require(CALL(s.host, TableGetStringVar)(s.Units(), kUnusedVariable, found, sizeof found) &&
                std::strcmp(found, "text") == 0,
            "returned \"%s\" after setting \"text\"", found);
    CALL(s.host, TableGetStringVar)(s.Units(), kUnusedVariable, cut, 3);
    Require(cut[2] == '\0' && cut[3] == kUntouched, "the string does not end within a buffer of 3 bytes");
}

void DistinguishesTypes(const Subject& s) {
    long whole = 5;
    double real = 5;
    RequireNoStub(CALL(s.host, TableSetStringVar)(s.Units(), kUnusedVariable, "12"), "TableSetStringVar");
    Require(!CALL(s.host, TableGetIntVar)(s.Units(), kUnusedVariable, &whole) && whole == 5,
            "TableGetIntVar returned %ld for a string", whole);
    Require(!CALL(s.host, TableGetNumericVar)(s.Units(), kUnusedVariable, &real) && real == 5,
            "TableGetNumericVar returned %g for a string", real);
}

constexpr Requirement kRows[] = {
    {"DrawingGetTable", "returns six tables; the table of layers is not empty", HasTheTables},
    {"TableEntryNext", "returns each entry once, always in the same order", ReturnsEachEntryOnce},
    {"TableEntryNext", "stores the position in the cookie only", KeepsItsStateInTheCookie},
    {"TableEntryFirst", "returns identifiers from 1 to 0xFFF0", IdentifiersAreBelowTheMarkers},
    {"TableEntryGetName", "copies a name for each entry", NamesEntries},
    {"TableEntryGetName", "truncates a name to the size of the buffer", TruncatesNames},
    {"TableEntryGetName", "returns 0 for an entry that does not exist", UnknownEntriesHaveNoName},
    {"TableEntryGetIDFirst", "finds each entry by its name, regardless of case", FindsByName},
    {"TableEntryGetData", "returns a COLORREF for each entry of the color table", ReturnsColors},
    {"TableGetOwner", "returns the drawing", BelongsToTheDrawing},
    {"TableEntryFirst", "and all functions of tables treat null as an empty table", TreatsNullAsEmpty},
    {"TableEntryFirst", "and all functions of tables treat a table that no longer exists as empty",
     TreatsFreedTablesAsEmpty},
    {"TableSetIntVar", "stores 32-bit integers that TableGetIntVar returns", StoresIntegers},
    {"TableSetNumericVar", "stores doubles that TableGetNumericVar returns", StoresDoubles},
    {"TableSetStringVar", "stores a copy of a string that TableGetStringVar returns, truncated", StoresStrings},
    {"TableGetIntVar", "returns 0 for a variable of another type; the value is unchanged", DistinguishesTypes},
};

} // namespace

const Topic kTableRequirements = TopicOf(kRows);

// Tables: entries, names, data, variables.

#include <algorithm>
#include <cstring>
#include <set>

#include "promise.h"

namespace {

constexpr const char* kTables[] = {kTableLayers, kTableLineStyles, kTableBrushStyles,
                                   kTableColors, kTableBlocks,     kTableUnits};
constexpr uint16_t kHighestIdentifier = 0xFFF0;
constexpr uint16_t kOwnVariable = 0x7777; // one that no host has
constexpr char kUntouched = '\x5A';

std::string NameOf(const Subject& s, TableStruct* table, uint16_t id) {
    char name[256] = "";
    Expect(CALL(s.host, TableEntryGetName)(table, id, name, sizeof name), "entry %u has no name", id);
    return name;
}

// Calls visit(table, name of the table, entry) for all entries of all tables.
template <class Visit>
void ForEachEntry(const Subject& s, Visit visit) {
    for (const char* name : kTables) {
        TableStruct* table = s.Table(name);
        for (const uint16_t id : s.Entries(table))
            visit(table, name, id);
    }
}

void HasTheTables(const Subject& s) {
    for (const char* name : kTables)
        s.Table(name);
    Expect(!CALL(s.host, DrawingGetTable)(s.drawing, "no such table"), "has a table \"no such table\"");
    for (const char* name : {kTableLayers, kTableLineStyles, kTableBrushStyles, kTableColors})
        Expect(!s.Entries(s.Table(name)).empty(), "%s is empty", name);
}

void WalksEachEntryOnce(const Subject& s) {
    for (const char* name : kTables) {
        const auto entries = s.Entries(s.Table(name));
        const std::set<uint16_t> different(entries.begin(), entries.end());
        Expect(different.size() == entries.size(), "%s: %zu steps, %zu entries", name, entries.size(),
               different.size());
        Expect(entries == s.Entries(s.Table(name)), "%s: a second walk went otherwise", name);
    }
}

void NumbersBelowTheMarkers(const Subject& s) {
    ForEachEntry(s, [](TableStruct*, const char* name, uint16_t id) {
        Expect(id <= kHighestIdentifier, "%s has an entry 0x%X: markers stand from 0x%X on", name, id,
               kHighestIdentifier + 1u);
    });
}

void NamesEntries(const Subject& s) {
    ForEachEntry(s, [&](TableStruct* table, const char* name, uint16_t id) {
        Expect(!NameOf(s, table, id).empty(), "%s: the name of entry %u is empty", name, id);
    });
}

void CutsNames(const Subject& s) {
    ForEachEntry(s, [&](TableStruct* table, const char* name, uint16_t id) {
        const std::string whole = NameOf(s, table, id);
        char cut[4] = {kUntouched, kUntouched, kUntouched, kUntouched};
        Expect(CALL(s.host, TableEntryGetName)(table, id, cut, 3), "%s: gave 0 for a buffer of 3 bytes",
               name);
        Expect(cut[3] == kUntouched, "%s: wrote behind a buffer of 3 bytes", name);
        Expect(whole.substr(0, 2) == cut, "%s: gave no beginning of \"%s\"", name, whole.c_str());
    });
}

void HasNoNameForNoEntry(const Subject& s) {
    char name[256];
    for (const uint16_t id : {uint16_t{0}, uint16_t{kHighestIdentifier}})
        Expect(!CALL(s.host, TableEntryGetName)(s.Table(kTableLayers), id, name, sizeof name),
               "gave a name of entry %u", id);
}

void FindsByName(const Subject& s) {
    ForEachEntry(s, [&](TableStruct* table, const char* tableName, uint16_t id) {
        std::string name = NameOf(s, table, id);
        for (int turn = 0; turn < 2; ++turn) {
            int cookie = 0;
            const uint16_t found = CALL(s.host, TableEntryGetIDFirst)(table, &cookie, name.c_str());
            Expect(found && ::_stricmp(NameOf(s, table, found).c_str(), name.c_str()) == 0,
                   "%s: gave %u for \"%s\", which is entry %u", tableName, found, name.c_str(), id);
            for (char& letter : name) // A to Z count like a to z
                if ((letter | 0x20) >= 'a' && (letter | 0x20) <= 'z') letter ^= 0x20;
        }
    });
    const uint16_t none = CALL(s.host, TableEntryGetIDFirst)(s.Table(kTableLayers), nullptr, "no such layer");
    Expect(none == 0, "gave %u for \"no such layer\"", none);
}

void HoldsColors(const Subject& s) {
    TableStruct* colors = s.Table(kTableColors);
    for (const uint16_t id : s.Entries(colors)) {
        const void* data = CALL(s.host, TableEntryGetData)(colors, id);
        Expect(data, "colour %u has no data", id);
        const uint32_t color = *static_cast<const uint32_t*>(data);
        Expect(color <= 0xFFFFFF || color >= kColorOfPen,
               "colour %u is 0x%X: neither a COLORREF nor a marker", id, color);
    }
}

void BelongsToTheDrawing(const Subject& s) {
    for (const char* name : kTables)
        Expect(CALL(s.host, TableGetOwner)(s.Table(name)) == s.drawing, "%s belongs to another drawing",
               name);
}

void IsEmptyWithoutATable(const Subject& s) {
    int cookie = 0;
    char text[8];
    long whole = 0;
    double real = 0;
    const Host& host = s.host;
    Expect(!CALL(host, TableEntryFirst)(nullptr, &cookie), "TableEntryFirst gave an entry");
    Expect(!CALL(host, TableEntryNext)(nullptr, &cookie), "TableEntryNext gave an entry");
    Expect(!CALL(host, TableEntryGetName)(nullptr, 1, text, sizeof text), "TableEntryGetName gave a name");
    Expect(!CALL(host, TableEntryGetData)(nullptr, 1), "TableEntryGetData gave data");
    Expect(!CALL(host, TableEntryGetIDFirst)(nullptr, &cookie, "0"), "TableEntryGetIDFirst gave an entry");
    Expect(!CALL(host, TableGetOwner)(nullptr), "TableGetOwner gave a drawing");
    Expect(!CALL(host, TableGetIntVar)(nullptr, 1, &whole), "TableGetIntVar gave a number");
    Expect(!CALL(host, TableGetNumericVar)(nullptr, 1, &real), "TableGetNumericVar gave a number");
    Expect(!CALL(host, TableGetStringVar)(nullptr, 1, text, sizeof text), "TableGetStringVar gave a text");
}

void KeepsWholeNumbers(const Subject& s) {
    for (const long value : {0L, -1L, 0x7FFFFFFFL}) {
        long found = 5;
        Expect(CALL(s.host, TableSetIntVar)(s.Units(), kOwnVariable, value), "TableSetIntVar gave 0");
        Expect(CALL(s.host, TableGetIntVar)(s.Units(), kOwnVariable, &found) && found == value,
               "gave %ld for %ld", found, value);
    }
}

void KeepsRealNumbers(const Subject& s) {
    double found = 5;
    Expect(CALL(s.host, TableSetNumericVar)(s.Units(), kOwnVariable, 0.1), "TableSetNumericVar gave 0");
    Expect(CALL(s.host, TableGetNumericVar)(s.Units(), kOwnVariable, &found) && found == 0.1,
           "gave %g for 0.1", found);
}

void KeepsTexts(const Subject& s) {
    char own[] = "text", found[6] = "", cut[4] = {0, 0, 0, kUntouched};
    Expect(CALL(s.host, TableSetStringVar)(s.Units(), kOwnVariable, own), "TableSetStringVar gave 0");
    own[0] = 'n'; // the caller's text is the caller's
    Expect(CALL(s.host, TableGetStringVar)(s.Units(), kOwnVariable, found, sizeof found) &&
               std::strcmp(found, "text") == 0,
           "gave \"%s\" for \"text\"", found);
    CALL(s.host, TableGetStringVar)(s.Units(), kOwnVariable, cut, 3);
    Expect(cut[2] == '\0' && cut[3] == kUntouched, "does not end in a buffer of 3 bytes");
}

void TellsTypesApart(const Subject& s) {
    long whole = 5;
    double real = 5;
    CALL(s.host, TableSetStringVar)(s.Units(), kOwnVariable, "12");
    Expect(!CALL(s.host, TableGetIntVar)(s.Units(), kOwnVariable, &whole) && whole == 5,
           "TableGetIntVar gave %ld of a text", whole);
    Expect(!CALL(s.host, TableGetNumericVar)(s.Units(), kOwnVariable, &real) && real == 5,
           "TableGetNumericVar gave %g of a text", real);
}

constexpr Promise kRows[] = {
    {"DrawingGetTable", "has the six tables, and at least a layer, a style of each kind and a colour",
     HasTheTables},
    {"TableEntryNext", "gives each entry once, and in the same order again", WalksEachEntryOnce},
    {"TableEntryFirst", "gives identifiers from 1 to 0xFFF0", NumbersBelowTheMarkers},
    {"TableEntryGetName", "names every entry", NamesEntries},
    {"TableEntryGetName", "cuts a name to the buffer", CutsNames},
    {"TableEntryGetName", "gives 0 for an entry that is not there", HasNoNameForNoEntry},
    {"TableEntryGetIDFirst", "finds every entry by its name, whatever the case", FindsByName},
    {"TableEntryGetData", "gives a COLORREF for each entry of the colour table", HoldsColors},
    {"TableGetOwner", "gives the drawing", BelongsToTheDrawing},
    {"TableEntryFirst", "and all calls on tables answer for null as for an empty table",
     IsEmptyWithoutATable},
    {"TableSetIntVar", "keeps whole numbers of 32 bits, and TableGetIntVar gives them", KeepsWholeNumbers},
    {"TableSetNumericVar", "keeps real numbers, and TableGetNumericVar gives them", KeepsRealNumbers},
    {"TableSetStringVar", "keeps a copy of a text, and TableGetStringVar gives it, cut to the buffer",
     KeepsTexts},
    {"TableGetIntVar", "gives 0 for a variable of another type, with the value left alone", TellsTypesApart},
};

} // namespace

const Topic kTablePromises = TopicOf(kRows);

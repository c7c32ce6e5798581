// Sections and sets: the exact bytes written, and reading.

#include "orlo/propset/property_set.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "tests/propset/bytes.h"
#include "tests/propset/memory_stream.h"

namespace {

constexpr GUID kFormat = {0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};
constexpr GUID kOther = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
const Bytes kFormatBytes = "e0859ff2f94f6810ab9108002b27b3d9"_hex;

Bytes Written(CPropertySection& section) {
    MemoryStream stream;
    EXPECT_EQ(section.WriteToStream(&stream), 1);
    EXPECT_EQ(stream.Position(), stream.Content().size());
    EXPECT_EQ(section.GetSize(), section.GetCount() == 0 ? 0 : stream.Content().size());
    return stream.Content();
}

Bytes Written(CPropertySet& set) {
    MemoryStream stream;
    EXPECT_EQ(set.WriteToStream(&stream), 1);
    EXPECT_EQ(stream.Transfers(), 1) << "a single write";
    return stream.Content();
}

void AddNumber(CPropertySection& section, DWORD id, int number) {
    EXPECT_EQ(section.Set(id, &number, VT_I4), 1);
}

int NumberOf(CPropertySection& section, DWORD id) {
    const void* value = section.Get(id);
    return value != nullptr ? *static_cast<const int*>(value) : -1;
}

TEST(Section, NameWithoutPropertiesIsWritten) {
    CPropertySection section;
    EXPECT_EQ(Written(section), Bytes(8)) << "nothing at all";
    section.SetName(2, "a");
    section.SetSectionName("Sheet");
    EXPECT_EQ(Written(section), "2c000000 01000000 00000000 10000000 02000000 00000000 06000000 536865657400 02000000"
                                "02000000 6100"_hex);
}

TEST(Section, SetWithoutATypeNeedsAPropertyThatHasOne) {
    CPropertySection section;
    int number = 7;
    EXPECT_EQ(section.Set(5, &number), 0) << "there is no such property";
    EXPECT_EQ(section.Set(5, nullptr, VT_EMPTY), 1);
    EXPECT_EQ(section.Set(5, &number), 0) << "the value has no type";
    EXPECT_EQ(section.Get(5), nullptr);
    EXPECT_EQ(section.Set(5, &number, VT_I4), 1);
    number = 8;
    EXPECT_EQ(section.Set(5, &number), 1);
    EXPECT_EQ(NumberOf(section, 5), 8);
}

// Other writers store longer names than this library.
TEST(Section, ReadsNamesOf256BytesAndNoLongerOnes) {
    for (const uint32_t length : {255u, 256u, 257u}) {
        SCOPED_TRACE(length);
        Bytes name(length, 'n');
        name.back() = 0;
        MemoryStream stream("01000000 02000000"_hex + LittleEndian(length) + name);
        CPropertySection section;
        EXPECT_EQ(section.ReadNameDictFromStream(&stream), length <= 256 ? 1 : 0);
        CString read;
        EXPECT_EQ(section.GetName(2, read), length <= 256 ? 1 : 0);
        EXPECT_EQ(read.GetLength(), length <= 256 ? static_cast<int>(length) - 1 : 0);
    }
}

TEST(Section, NamesIgnoreCase) {
    CPropertySection section;
    EXPECT_EQ(section.SetName(5, "PenWidth"), 1);
    DWORD id = 0;
    EXPECT_EQ(section.GetID("PENWIDTH", &id), 1);
    EXPECT_EQ(id, 5u);
    CString name;
    EXPECT_EQ(section.GetName(5, name), 1);
    EXPECT_STREQ(name, "penwidth");
    EXPECT_EQ(section.SetName(6, "pENwIDTH"), 0);
    EXPECT_EQ(section.GetName(6, name), 0);
    EXPECT_EQ(section.GetID("pen", &id), 0);
    EXPECT_EQ(section.SetName(7, "\xC9t\xC9"), 1); // uppercase in the code page
    EXPECT_EQ(section.GetID("\xE9t\xE9", &id), 1);
}

TEST(Section, LongNamesAreTruncatedOnTheStream) {
    for (const int length : {253, 254, 255, 256, 300}) {
        CPropertySection section;
        section.SetName(2, CString('n', length));
        MemoryStream stream;
        ASSERT_EQ(section.WriteNameDictToStream(&stream), 1);
        const int stored = length < 255 ? length + 1 : 255;
        EXPECT_EQ(stream.Content().size(), 4u + 9 + 8 + static_cast<size_t>(stored));
        stream.Rewind();
        CPropertySection read;
        ASSERT_EQ(read.ReadNameDictFromStream(&stream), 1);
        CString name;
        ASSERT_EQ(read.GetName(2, name), 1);
        EXPECT_EQ(name.GetLength(), length < 255 ? length : 255);
    }
}

TEST(Section, DamagedDictionaryKeepsItsFirstNames) {
    const Bytes good = "03000000 02000000 02000000 6100"_hex;
    for (const Bytes& bad : {"03000000 01010000"_hex + Bytes(257), "03000000 ffffffff"_hex, "0300"_hex, Bytes()}) {
        MemoryStream stream(good + bad);
        CPropertySection section;
        EXPECT_EQ(section.ReadNameDictFromStream(&stream), 0);
        DWORD id = 0;
        EXPECT_EQ(section.GetID("a", &id), 1);
    }
    MemoryStream endless("ffffffff"_hex + Bytes(4000));
    CPropertySection section;
    EXPECT_EQ(section.ReadNameDictFromStream(&endless), 0);
}

TEST(Section, NamesInWideCharactersAreReadUnderTheirCodePage) {
    const Bytes codePage = "02000000 b0040000"_hex;
    const Bytes names = "02000000 02000000 04000000 4100e90043000000 03000000 02000000 62000000"_hex;
    const Bytes table = "01000000 18000000 00000000 20000000"_hex;
    MemoryStream stream("40000000 02000000"_hex + table + codePage + names);
    CPropertySection section;
    ASSERT_EQ(section.ReadFromStream(&stream, {}), 1);
    CString name;
    EXPECT_EQ(section.GetName(2, name), 1);
    EXPECT_STREQ(name, "a\xE9"
                       "c");
    EXPECT_EQ(section.GetName(3, name), 1);
    EXPECT_STREQ(name, "b");

    const Bytes narrow = Written(section); // sets written by this class are read back, whatever the code page
    MemoryStream again(narrow);
    CPropertySection read;
    ASSERT_EQ(read.ReadFromStream(&again, {}), 1);
    EXPECT_EQ(Written(read), narrow);
}

TEST(Section, SetAddsKeepsTypesAndRemoves) {
    CPropertySection section;
    int number = 4;
    EXPECT_EQ(section.Set(3, &number), 0) << "unknown type";
    AddNumber(section, 3, 5);
    EXPECT_EQ(section.Set(3, &number), 1);
    EXPECT_EQ(NumberOf(section, 3), 4);
    EXPECT_EQ(section.Set(9, &number, VT_DISPATCH), 1) << "kept without a value";
    EXPECT_EQ(section.GetCount(), 2u);
    EXPECT_EQ(section.Get(9), nullptr);
    section.AddProperty(new CProperty(3, nullptr, VT_I2));
    section.Remove(3);
    ASSERT_NE(section.GetProperty(3), nullptr) << "the second of that ID";
    EXPECT_EQ(section.GetProperty(3)->GetType(), static_cast<DWORD>(VT_I2));
    section.Remove(77);
    EXPECT_EQ(section.GetCount(), 2u);
    section.AddProperty(new CProperty);
    EXPECT_EQ(static_cast<CProperty*>(section.GetList()->GetHead())->GetID(), 0u);
    section.RemoveAll();
    EXPECT_EQ(section.GetCount(), 0u);
}

TEST(Section, FindsTheFirstOfManyAfterEveryChange) {
    CPropertySection section;
    for (DWORD id = 1; id <= 100; ++id)
        AddNumber(section, id, static_cast<int>(id));
    section.AddProperty(new CProperty(50, nullptr, VT_I2));
    EXPECT_EQ(NumberOf(section, 50), 50);
    section.Remove(50);
    EXPECT_EQ(section.GetProperty(50)->GetType(), static_cast<DWORD>(VT_I2));
    section.GetProperty(10)->SetID(7000);
    EXPECT_EQ(section.GetProperty(10), nullptr);
    EXPECT_EQ(NumberOf(section, 7000), 10);
    section.GetProperty(90)->SetID(20);
    EXPECT_EQ(NumberOf(section, 20), 20) << "the first in the list";
    section.GetProperty(3)->SetID(20);
    EXPECT_EQ(NumberOf(section, 20), 3) << "the first in the list";
    AddNumber(section, 500, 5);
    EXPECT_EQ(NumberOf(section, 500), 5);
    delete section.GetList()->RemoveHead();
    EXPECT_EQ(section.GetProperty(1), nullptr);
    for (DWORD id = 200; id < 250; ++id)
        section.SetName(id, CString('x', static_cast<int>(id)));
    CString name;
    EXPECT_EQ(section.GetName(220, name), 1);
    EXPECT_EQ(name.GetLength(), 220);
    section.SetName(300, "late");
    EXPECT_EQ(section.GetName(300, name), 1);
    EXPECT_EQ(section.GetName(301, name), 0);
}

TEST(Section, DamagedValueDoesNotAffectOthers) {
    MemoryStream stream("30000000 03000000 02000000 20000000 03000000 ffffff7f 04000000 28000000 03000000"
                        "05000000 09000000 00000000"_hex);
    CPropertySection section;
    EXPECT_EQ(section.ReadFromStream(&stream, {}), 1);
    EXPECT_EQ(section.GetCount(), 3u);
    EXPECT_EQ(NumberOf(section, 2), 5);
    EXPECT_EQ(section.Get(3), nullptr);
    EXPECT_EQ(section.GetProperty(4)->GetType(), static_cast<DWORD>(VT_DISPATCH));
    MemoryStream out;
    EXPECT_EQ(section.WriteToStream(&out), 0);
    EXPECT_TRUE(out.Content().empty()) << "nothing is written if it cannot be written completely";
}

TEST(Set, EmptyIsItsHeader) {
    CPropertySet set(kOther);
    set.SetOSVersion(0x00020005);
    EXPECT_EQ(Written(set), "feff0000 05000200 01000000020003000405060708090a0b 00000000"_hex);
    EXPECT_EQ(set.GetByteOrder(), 0xFFFE);
    EXPECT_EQ(CPropertySet().GetOSVersion() >> 16, 2u);
}

TEST(Set, EqualsTheDocumentedExample) {
    std::ifstream document(ORLO_DOCS "/property-sets.md");
    std::string line, digits;
    while (std::getline(document, line))
        if (line.find(": ") == 8 && line.find_first_not_of("0123456789abcdef") == 8) digits += line.substr(9);
    CPropertySet set;
    set.SetOSVersion(0x00020005);
    CPropertySection* section = set.AddSection(kFormat);
    short codePage = 1252;
    char title[] = "Ground floor";
    auto* levels = new CProperty(3, nullptr, VT_VECTOR | VT_I2);
    levels->Set(CString("5, -1, 2"));
    section->Set(1, &codePage, VT_I2);
    section->Set(2, title, VT_LPSTR);
    section->AddProperty(levels);
    section->SetName(3, "Level");
    const Bytes expected = operator""_hex(digits.c_str(), digits.size());
    EXPECT_EQ(Written(set), expected);
    EXPECT_EQ(Written(set), expected) << "the dictionary's slot is created once";

    MemoryStream stream(expected);
    CPropertySet read;
    ASSERT_EQ(read.ReadFromStream(&stream), 1);
    EXPECT_EQ(stream.Transfers(), 1) << "a single read";
    EXPECT_EQ(read.GetSection(kFormat)->GetCount(), 3u) << "the dictionary is not a property";
    EXPECT_EQ(Written(read), expected);
}

TEST(Set, KeepsSectionsSeparate) {
    CPropertySet set;
    int number = 3;
    EXPECT_EQ(set.Set(kFormat, 2, &number), 0) << "unknown type";
    EXPECT_EQ(set.GetCount(), 0u);
    EXPECT_EQ(set.Set(kFormat, 2, &number, VT_I4), 1);
    EXPECT_EQ(set.Set(kFormat, 2, &number), 1);
    set.RemoveAll();
    CPropertySection* section = set.AddSection(kFormat);
    EXPECT_EQ(set.AddSection(kFormat), section);
    EXPECT_EQ(set.GetCount(), 1u);
    set.AddSection(new CPropertySection(kFormat));
    EXPECT_EQ(set.GetCount(), 2u);
    EXPECT_EQ(set.GetSection(kFormat), section);
    auto* property = new CProperty(4, &number, VT_I4);
    set.AddProperty(kOther, property); // no such section: the caller keeps ownership
    EXPECT_EQ(set.GetProperty(kOther, 4), nullptr);
    set.AddProperty(kFormat, property);
    DWORD size = 0;
    EXPECT_NE(set.Get(kFormat, 4, &size), nullptr);
    EXPECT_EQ(size, 4u);
    set.Remove(kFormat, 4);
    EXPECT_EQ(set.Get(kFormat, 4), nullptr);
    set.Remove(kFormat);
    EXPECT_EQ(set.GetCount(), 1u);
    set.RemoveAll();
    EXPECT_EQ(set.GetSection(kFormat), nullptr);
}

TEST(Set, ReadsAnyByteOrderMarkAndVersion) {
    CPropertySet set;
    int number = 7;
    set.Set(kFormat, 2, &number, VT_I4);
    set.SetFormatVersion(9);
    Bytes bytes = Written(set);
    bytes[0] = bytes[1] = 0;
    MemoryStream stream(bytes);
    CPropertySet read;
    AddNumber(*read.AddSection(kOther), 1, 1); // will be replaced
    ASSERT_EQ(read.ReadFromStream(&stream), 1);
    EXPECT_EQ(read.GetByteOrder(), 0);
    EXPECT_EQ(read.GetFormatVersion(), 9);
    EXPECT_EQ(read.GetCount(), 1u);
    EXPECT_EQ(NumberOf(*read.GetSection(kFormat), 2), 7);
}

// A set with every kind of element.
void Fill(CPropertySet& set) {
    char text[] = "Ground floor";
    Bytes strings = "02000000 020000006100 03000000626300"_hex;
    Bytes blob = "05000000 0102030405"_hex;
    CPropertySection* section = set.AddSection(kFormat);
    section->Set(2, text, VT_LPSTR);
    section->Set(3, strings.data(), VT_VECTOR | VT_LPSTR);
    AddNumber(*section, 4, 7);
    section->SetName(2, "title");
    section->SetName(3, "parts");
    section->SetSectionName("Plan");
    set.AddSection(kOther)->Set(9, blob.data(), VT_BLOB);
}

TEST(Set, ShortWriteAtEveryByteFails) {
    CPropertySet set;
    Fill(set);
    const Bytes whole = Written(set);
    for (size_t limit = 0; limit < whole.size(); ++limit) {
        MemoryStream stream;
        stream.LimitWrites(limit);
        EXPECT_EQ(set.WriteToStream(&stream), 0) << limit;
        EXPECT_EQ(stream.Content(), UpTo(limit, whole));
    }
    EXPECT_EQ(Written(set), whole) << "the set is unchanged";
}

TEST(Set, ShortReadAtEveryByteReturnsOnlyCompleteValues) {
    CPropertySet set;
    Fill(set);
    const Bytes whole = Written(set);
    const size_t listEnd = 28 + 2 * 20;
    for (size_t limit = 0; limit <= whole.size(); ++limit) {
        for (const bool isCut : {true, false}) { // the stream ends or fails
            MemoryStream stream(isCut ? UpTo(limit, whole) : whole);
            if (!isCut) stream.LimitReads(limit);
            CPropertySet read;
            const int result = read.ReadFromStream(&stream);
            EXPECT_TRUE(result == (limit >= listEnd) || (!isCut && limit >= 28)) << limit;
            EXPECT_LE(read.GetCount(), 2u);
            MemoryStream out;
            read.WriteToStream(&out); // the remaining properties can be iterated
            EXPECT_TRUE(limit < whole.size() || out.Content() == whole);
        }
    }
}

// Overlapping tables, values and sections: their declared size is quadratic in the size of the stream.
TEST(Set, OverlappingSectionsAreReadInBoundedTime) {
    const Bytes header = "feff0000 00000000"_hex + Bytes(16);
    Bytes sections = header + LittleEndian(3000);
    for (int i = 0; i < 3000; ++i)
        sections = std::move(sections) + kFormatBytes + LittleEndian(28 + 3000 * 20);
    sections = std::move(sections) + LittleEndian(0) + LittleEndian(100000) + Bytes(60000);

    Bytes values = header + LittleEndian(1) + kFormatBytes + LittleEndian(48) + LittleEndian(0) + LittleEndian(8000);
    for (uint32_t i = 0; i < 8000; ++i)
        values = std::move(values) + LittleEndian(i % 2 == 0 ? 0 : 7) + LittleEndian(8 + 64000);
    values = std::move(values) + LittleEndian(VT_VECTOR | VT_LPSTR) + LittleEndian(30000) + Bytes(120000);

    for (const Bytes& hostile : {sections, values}) {
        MemoryStream stream(hostile);
        CPropertySet set;
        set.ReadFromStream(&stream);
        size_t held = 0;
        for (POSITION next = set.GetList()->GetHeadPosition(); next != nullptr;)
            held += static_cast<CPropertySection*>(set.GetList()->GetNext(next))->GetCount();
        EXPECT_LE(held, hostile.size());
    }
}

} // namespace

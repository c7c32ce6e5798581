// Resource scripts: their text, and the output of a resource compiler where there is one.

#include "orlo/propset/rc_file.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <memory>

#include "orlo/propset/property_set.h"
#include "tests/propset/bytes.h"
#include "tests/propset/corpus.h"
#include "tests/propset/memory_stream.h"

namespace {

std::string TempFile(const char* name) {
    return ::testing::TempDir() + "orlo_rc_test_" + name;
}

std::string TextOf(const std::string& path) {
    std::ifstream file(path); // in text mode, because line ends depend on the system
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Script(const std::function<void(CRCFile&)>& write) {
    const std::string path = TempFile("script");
    {
        CRCFile file(path.c_str(), CStdioFile::modeCreate | CStdioFile::modeReadWrite);
        write(file);
    }
    const std::string text = TextOf(path);
    std::remove(path.c_str());
    return text;
}

struct ItemRow {
    const char* name;
    void (*write)(CRCFile&);
    const char* text;
};

const ItemRow kItems[] = {
    {"WordsOfADWord", [](CRCFile& rc) { rc.WriteDWord(0x7654CDEF); }, "0xCDEF, 0x7654"},
    {"WordKeepsItsWidth", [](CRCFile& rc) { rc.WriteWord(0xA); }, "0x000A"},
    {"ZeroByte", [](CRCFile& rc) { rc.WriteByte(0); }, R"("\0")"},
    {"Byte", [](CRCFile& rc) { rc.WriteByte(0x41); }, R"("\x41")"},
    {"NewLineFirst", [](CRCFile& rc) { rc.NewLine(), rc.WriteWord(1); }, "\n    0x0001"},
    {"OddBytes",
     [](CRCFile& rc) {
         BYTE bytes[] = {1, 2, 3};
         rc.WriteBytes(bytes, 3);
     },
     R"(0x0201, "\x03")"},
    {"NineWordsALine",
     [](CRCFile& rc) {
         rc.NewLine();
         for (WORD i = 1; i <= 10; ++i)
             rc.WriteWord(i);
     },
     "\n    0x0001, 0x0002, 0x0003, 0x0004, 0x0005, 0x0006, 0x0007, 0x0008, 0x0009,\n    0x000A"},
    {"Text", [](CRCFile& rc) { rc.WriteCString("ab", 3); }, R"("ab\0")"},
    {"TextWithoutItsNul", [](CRCFile& rc) { rc.WriteCString("ab", 2); }, R"("ab")"},
    {"TextEndsAtItsNul", [](CRCFile& rc) { rc.WriteCString("a\0b", 4); }, R"("a\0")"},
    {"WholeText", [](CRCFile& rc) { rc.PrintWholeTexts(), rc.WriteCString("a\0b\0", 5); }, R"("a\0", "b\0", "\0")"},
    {"NoText", [](CRCFile& rc) { rc.WriteCString("ab", 0); }, R"("")"},
    {"Escapes", [](CRCFile& rc) { rc.WriteCString("\"\\\x1f\t\r\n\b\x7f\xe9", 10); },
     "\"\"\"\\\\\\x1F\\x09\\x0D\\x0A\\x08\x7f\xe9\\0\""},
    {"TextCountsWithoutItsFirstQuote",
     [](CRCFile& rc) {
         rc.WriteCString(std::string(69, 'x').c_str(), 69); // column 70: another one fits
         rc.WriteWord(1);
         rc.WriteWord(2);
     },
     "\"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx\", 0x0001,\n    0x0002"},
};

TEST(RcItem, IsPrinted) {
    for (const ItemRow& row : kItems)
        EXPECT_EQ(Script(row.write), row.text) << row.name;
}

TEST(RcSection, IsTheListingOfItsImage) {
    CPropertySection section;
    int number = 7;
    char text[] = "a\"b\\c";
    section.Set(2, &number, VT_I4);
    section.Set(5, text, VT_LPSTR);
    section.SetName(5, "width");
    EXPECT_EQ(Script([&](CRCFile& rc) { EXPECT_EQ(section.WriteToRC(&rc), 1); }), R"(
    0x0054, 0x0000, 0x0003, 0x0000,
    0x0000, 0x0000, 0x0020, 0x0000,
    0x0002, 0x0000, 0x003C, 0x0000,
    0x0005, 0x0000, 0x0044, 0x0000,
    0x0002, 0x0000,
    0x0000, 0x0000, 0x0001, 0x0000, "\0",
    0x0005, 0x0000, 0x0006, 0x0000, "width\0", "\0",
    // [ 0x2 ]
    0x0003, 0x0000, 0x0007, 0x0000,
    // [ 0x5 ]
    0x001E, 0x0000, 0x0006, 0x0000, "a""b\\c\0", "\0", "\0")");
    EXPECT_EQ(section.GetSize(), 0x54u);
}

TEST(RcSection, EmptyAndRejectedValues) {
    CPropertySection section;
    section.Set(0x80000000, nullptr, VT_EMPTY);
    const std::string text = Script([&](CRCFile& rc) { EXPECT_EQ(section.WriteToRC(&rc), 1); });
    EXPECT_NE(text.find("// [ 0x80000000 ]\n    0x0000, 0x0000"), std::string::npos) << text;
    section.Set(3, nullptr, VT_DISPATCH);
    Script([&](CRCFile& rc) { EXPECT_EQ(section.WriteToRC(&rc), 0); });
}

#if !defined(_WIN32)

// Returns the resources of a compiled script in file order.
std::vector<Bytes> Resources(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    const Bytes all{std::istreambuf_iterator<char>(file), {}};
    std::vector<Bytes> resources;
    for (size_t at = 0; at + 8 <= all.size();) {
        uint32_t sizes[2]; // sizes of data and header
        std::memcpy(sizes, &all[at], sizeof sizes);
        const auto begin = all.begin() + static_cast<ptrdiff_t>(at + sizes[1]);
        if (at > 0) resources.emplace_back(begin, begin + static_cast<ptrdiff_t>(sizes[0])); // the first is a marker
        at += (size_t{sizes[1]} + sizes[0] + 3) / 4 * 4;
    }
    return resources;
}

class CompiledScript : public ::testing::Test {
protected:
    void SetUp() override {
        if (std::system("x86_64-w64-mingw32-windres --version >/dev/null 2>&1") != 0) GTEST_SKIP() << "no windres";
    }

    // Compiles one resource for each of the writers.
    std::vector<Bytes> Compile(const std::vector<std::function<void(CRCFile&)>>& writers) {
        const std::string script = TempFile("compiled.rc"), binary = TempFile("compiled.res");
        CRCFile rc(script.c_str(), CStdioFile::modeCreate | CStdioFile::modeReadWrite);
        rc.PrintWholeTexts();
        for (size_t i = 0; i < writers.size(); ++i) {
            rc.CStdioFile::WriteString((std::to_string(i + 1) + " RCDATA\nBEGIN").c_str());
            rc.StartBlock();
            writers[i](rc);
            rc.CStdioFile::WriteString("\nEND\n");
        }
        rc.Close();
        const std::string command = "x86_64-w64-mingw32-windres -O res '" + script + "' '" + binary + "'";
        EXPECT_EQ(std::system(command.c_str()), 0) << TextOf(script);
        const std::vector<Bytes> resources = Resources(binary);
        std::remove(script.c_str());
        std::remove(binary.c_str());
        return resources;
    }
};

TEST_F(CompiledScript, IsTheStreamImageOfEveryValue) {
    std::string odd; // every character but NUL, and hexadecimal digits after a control character
    for (int c = 1; c < 256; ++c)
        odd += {static_cast<char>(c), 'A', '7'};
    const std::string longText(70001, 'x');
    Bytes blob = LittleEndian(10001) + Bytes(10001, 0x5A);
    blob[4] = 0;
    Bytes strings = LittleEndian(3) + "0100000000 020000006100 03000000626300"_hex;
    Bytes shorts = LittleEndian(5001) + Bytes(2 * 5001, 0x5A);
    Bytes wide = "6100e90000d80a000d0000000000"_hex;
    Bytes sixteen = "000102030405060708090a0b0c0d0e0f"_hex;
    struct Row {
        DWORD type;
        const void* value;
    };
    std::vector<Row> rows = {
        {VT_BSTR, odd.c_str()},
        {VT_LPSTR, odd.c_str()},
        {VT_LPSTR, longText.c_str()},
        {VT_LPSTR, ""},
        {VT_LPWSTR, wide.data()},
        {VT_BLOB, blob.data()},
        {VT_STREAM, "odd"},
        {VT_STORAGE, odd.c_str()},
        {VT_STREAMED_OBJECT, "s"},
        {VT_STORED_OBJECT, "s"},
        {VT_BLOB_OBJECT, blob.data()},
        {VT_CF, blob.data()},
        {73, blob.data()},
        {VT_VECTOR | VT_I2, shorts.data()},
        {VT_VECTOR | VT_LPSTR, strings.data()},
        {VT_LPSTR, nullptr},
        {VT_EMPTY, nullptr},
        {VT_VECTOR | VT_BLOB, nullptr},
    };
    for (const int fixed :
         {VT_I2, VT_I4, VT_R4, VT_R8, VT_CY, VT_DATE, VT_BOOL, VT_UI2, VT_UI4, VT_I8, VT_FILETIME, VT_CLSID})
        rows.push_back({static_cast<DWORD>(fixed), sixteen.data()});
    std::vector<std::function<void(CRCFile&)>> writers;
    std::vector<Bytes> images;
    for (const auto& row : rows) {
        auto property = std::make_shared<CProperty>(2, const_cast<void*>(row.value), row.type);
        MemoryStream stream;
        ASSERT_EQ(property->WriteToStream(&stream), 1);
        images.push_back(stream.Content());
        writers.push_back(
            [property, size = stream.Content().size()](CRCFile& rc) { EXPECT_EQ(property->WriteToRC(&rc), size); });
    }
    const std::vector<Bytes> resources = Compile(writers);
    ASSERT_EQ(resources.size(), rows.size());
    for (size_t i = 0; i < resources.size(); ++i)
        EXPECT_EQ(resources[i], images[i]) << "type " << rows[i].type;
}

// A set with names that must be escaped or truncated.
std::shared_ptr<CPropertySet> SetOfUnusualNames() {
    auto set = std::make_shared<CPropertySet>();
    CPropertySection* section = set->AddSection(GUID());
    char text[] = "caf\xe9";
    section->Set(3, text, VT_LPSTR);
    section->SetName(3, "The \"place\"\\");
    section->SetName(2, std::string(300, 'n').c_str());
    section->SetSectionName("Plan");
    return set;
}

// Also sections of real files: texts padded after their NULs, several sections, dictionaries, thumbnails.
TEST_F(CompiledScript, OfEverySetEqualsTheSet) {
    std::vector<std::function<void(CRCFile&)>> writers;
    std::vector<std::string> names;
    std::vector<Bytes> images;
    std::map<std::string, std::shared_ptr<CPropertySet>> sets = {{"odd names", SetOfUnusualNames()}};
    for (const CorpusStream& stream : AllCorpusStreams()) {
        MemoryStream content(stream.Content());
        auto set = std::make_shared<CPropertySet>();
        if (stream.IsReal() && set->ReadFromStream(&content)) sets[stream.path] = set;
    }
    for (const auto& [name, set] : sets) {
        for (POSITION next = set->GetList()->GetHeadPosition(); next != nullptr;) {
            auto* section = static_cast<CPropertySection*>(set->GetList()->GetNext(next));
            section->Set(0, nullptr, VT_EMPTY); // a script always includes the dictionary
            MemoryStream image;
            if (!section->WriteToStream(&image)) continue; // a type without a stored form
            names.push_back(name);
            images.push_back(image.Content());
            writers.push_back([section](CRCFile& rc) { EXPECT_EQ(section->WriteToRC(&rc), 1); });
        }
    }
    const std::vector<Bytes> resources = Compile(writers);
    ASSERT_EQ(resources.size(), images.size());
    ASSERT_GT(images.size(), 30u);
    for (size_t i = 0; i < resources.size(); ++i) {
        MemoryStream stream(resources[i]), again;
        CPropertySection read;
        ASSERT_EQ(read.ReadFromStream(&stream, {}), 1) << names[i];
        EXPECT_EQ(read.GetSize(), resources[i].size()) << names[i];
        read.Set(0, nullptr, VT_EMPTY);
        EXPECT_EQ(read.WriteToStream(&again), 1) << names[i];
        EXPECT_EQ(again.Content(), images[i]) << names[i];
    }
}

#endif

} // namespace

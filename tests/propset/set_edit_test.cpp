// Editing one section of a set: other sections keep their bytes, however unusual.

#include "orlo/propset/inspect/set_edit.h"

#include <gtest/gtest.h>

#include "orlo/propset/formats.h"
#include "tests/propset/bytes.h"

namespace {

Bytes TextBytes(const std::string& text, uint16_t codePage) {
    orlo::Value value;
    value.type = VT_LPSTR;
    value.data = text;
    return *orlo::EncodeValue(value, codePage);
}

orlo::SetImage Read(const Bytes& bytes) {
    std::vector<orlo::Finding> findings;
    return *orlo::ReadSetImage(bytes.data(), bytes.size(), findings);
}

// A user-defined section with the name "Client", which is not text in its code page, and a type with a high half.
Bytes OddSet() {
    orlo::SetImage set;
    orlo::ImageSection& section = SectionFor(set, orlo::kUserDefinedFormat, 65001);
    StoreValue(section, 2, VT_LPSTR, TextBytes("ACME", 65001));
    StoreName(section, 2, "Client");
    StoreName(section, 3, "Sheets");
    Bytes bytes = *orlo::WriteSetImage(set);
    for (size_t i = 0; i + 8 < bytes.size(); ++i) {
        if (std::memcmp(&bytes[i], "Client", 6) == 0) bytes[i + 1] = 0xFF;
        if (std::memcmp(&bytes[i], "\x1E\0\0\0\5\0\0\0", 8) == 0) bytes[i + 2] = 0x77;
    }
    return bytes;
}

TEST(SetEdit, OtherSectionsKeepUnknownNamesAndTypes) {
    const Bytes before = OddSet();
    orlo::SetImage set = Read(before);
    const size_t size = set.sections.at(1).size;
    StoreValue(SectionFor(set, orlo::kDocumentSummaryFormat, 1252), 15, VT_LPSTR, TextBytes("Micro-X", 1252));
    Bytes after = *orlo::WriteSetImage(set);
    ASSERT_GT(after.size(), before.size());
    EXPECT_EQ(Bytes(after.end() - static_cast<ptrdiff_t>(size), after.end()),
              Bytes(before.end() - static_cast<ptrdiff_t>(size), before.end()));
    // Adding another name to the section changes neither of them.
    StoreName(set.sections.at(1), 4, "Scale");
    StoreValue(set.sections.at(1), 4, VT_I4, {1, 0, 0, 0});
    const orlo::SetImage named = Read(*orlo::WriteSetImage(set));
    EXPECT_EQ(named.sections.at(1).dictionary->at(0).undecoded, (Bytes{'C', 0xFF, 'i', 'e', 'n', 't'}));
    EXPECT_EQ(named.sections.at(1).Find(2)->typeHighHalf, 0x77);
    EXPECT_EQ(FindName(named.sections.at(1), "SCALE")->id, 4u);
    EXPECT_EQ(FindName(named.sections.at(1), ""), nullptr);
}

TEST(SetEdit, ConvertsASectionCompletelyOrNotAtAll) {
    orlo::SetImage set;
    orlo::ImageSection& section = SectionFor(set, orlo::kSummaryFormat, 1252);
    StoreValue(section, 2, VT_LPSTR, TextBytes("Caf\xC3\xA9", 1252));
    StoreName(section, 2, "\xC3\x89tage");
    StoreValue(section, 3, VT_BLOB, {1, 0, 0, 0, 0xE9});
    orlo::ImageSection odd = section;
    StoreValue(odd, 4, VT_LPSTR, {2, 0, 0, 0, 0x81, 0}); // undefined in the code page
    const orlo::ImageSection before = odd;
    EXPECT_EQ(ConvertToUtf8(odd), 4u);
    EXPECT_EQ(odd.codePage, 1252);
    EXPECT_EQ(odd.Find(2)->bytes, before.Find(2)->bytes);

    EXPECT_EQ(ConvertToUtf8(section), std::nullopt);
    EXPECT_EQ(section.Find(2)->bytes, TextBytes("Caf\xC3\xA9", 65001));
    EXPECT_EQ(section.Find(3)->bytes, (Bytes{1, 0, 0, 0, 0xE9}));
    EXPECT_EQ(section.properties.at(0).bytes, (Bytes{0xE9, 0xFD})) << "the code page comes first";
    EXPECT_EQ(Read(*orlo::WriteSetImage(set)).sections.at(0).dictionary->at(0).name, "\xC3\x89tage");

    orlo::SetImage odds = Read(OddSet());
    EXPECT_EQ(ConvertToUtf8(odds.sections.at(1)), 2u) << "its name cannot be converted";
}

TEST(SetEdit, RemovesAndRenames) {
    orlo::SetImage set;
    orlo::ImageSection& section = SectionFor(set, orlo::kUserDefinedFormat, 1252);
    EXPECT_EQ(set.sections.size(), 2u) << "readers expect it to be second";
    EXPECT_EQ(&SectionFor(set, orlo::kUserDefinedFormat, 932), &section);
    StoreName(section, 2, "Wood");
    StoreName(section, 2, "Stone");
    EXPECT_EQ(FindName(section, "wood"), nullptr);
    EXPECT_EQ(FindName(section, "STONE")->id, 2u);
    EXPECT_FALSE(RemoveValue(section, 2));
    StoreValue(section, 2, VT_I4, {1, 0, 0, 0});
    EXPECT_TRUE(RemoveValue(section, 2));
    RemoveName(section, 2);
    EXPECT_EQ(FindName(section, "Stone"), nullptr);
}

} // namespace

// suminfo show on real documents: every value that independent readers agree on.

#include <fstream>
#include <gtest/gtest.h>

#include "program.h"

namespace fs = std::filesystem;

namespace {

Json Load(const fs::path& file) {
    return Json::parse(std::ifstream(file));
}

// Removes the raw bytes that the manifest contains for some texts of variants.
Json WithoutBytes(Json value) {
    if (value.is_object()) value.erase("bytes");
    if (value.is_structured())
        for (auto& inner : value)
            inner = WithoutBytes(inner);
    return value;
}

const Json* Property(const Json& section, const Json& id) {
    for (const Json& property : section["properties"])
        if (property["id"] == id) return &property;
    return nullptr;
}

// Returns whether readers agree on the value; for a list, on all its elements.
bool IsAgreed(const Json& property) {
    return !property.contains("agreed_by") || !property["agreed_by"].empty();
}

void ExpectSection(const Json& shown, const Json& expected) {
    for (const char* key : {"fmtid", "offset", "size", "property_count", "code_page"})
        EXPECT_EQ(shown[key], expected[key]) << key;
    if (expected.value("dictionary_agreed", Json()) == true) {
        EXPECT_EQ(shown["dictionary"], expected["dictionary"]);
    }
    for (const Json& property : expected["properties"]) {
        if (!IsAgreed(property)) continue;
        const Json* found = Property(shown, property["id"]);
        ASSERT_TRUE(found) << property;
        EXPECT_EQ((*found)["vt"], property["vt"]) << property;
        EXPECT_EQ((*found)["offset"], property["offset"]) << property;
        EXPECT_EQ((*found)["value"], WithoutBytes(property["value"])) << property;
    }
}

void ExpectSet(const Json& shown, const Json& expected) {
    for (const char* key : {"byte_order", "version", "os_version", "clsid", "section_count"})
        EXPECT_EQ(shown[key], expected.value(key, shown[key])) << key;
    ASSERT_EQ(shown["sections"].size(), expected["sections"].size());
    for (size_t i = 0; i < expected["sections"].size(); ++i)
        ExpectSection(shown["sections"][i], expected["sections"][i]);
}

const Json* Stream(const Json& file, const Json& name) {
    for (const Json& set : file["property_sets"])
        if (set["stream"] == name) return &set;
    return nullptr;
}

// Damaged documents are reported without a hang, and the readable part is shown.
TEST(Show, ValuesOfRealDocuments) {
    const Outcome run = RunSuminfo({"show", "--json", "-r", kDocuments.string()});
    const auto shown = ByFile(run.out);
    EXPECT_EQ(run.exitCode, 1) << "some are damaged";
    for (const Json& file : Load(kDocuments / "expected.json")) {
        const auto name = file["file"].get<std::string>();
        SCOPED_TRACE(name);
        if (file["property_sets"].empty()) continue;
        ASSERT_EQ(shown.count(name), 1u);
        for (const Json& set : file["property_sets"]) {
            const Json* found = Stream(shown.at(name), set["stream"]);
            ASSERT_TRUE(found) << set["stream"];
            ExpectSet(*found, set);
        }
    }
    EXPECT_EQ(run.err, "");
    for (const char* file : {"loop-in-open-1--b587ad.bin", "loop-in-alloc--d3743f.bin"})
        EXPECT_FALSE(shown.at(file)["damage"].empty()) << file;
    EXPECT_TRUE(shown.at("test11--695187.doc")["damage"].empty());
    const Json& cut = shown.at("clusterfuzz-testcase-minimized-POIHSLFFu--efffb2.ppt")["property_sets"][0];
    EXPECT_TRUE(cut.contains("error"));
    EXPECT_FALSE(cut["damage"].empty());
    EXPECT_FALSE(cut["sections"][0]["properties"].empty());
}

TEST(Show, EveryValueOfRealStreams) {
    std::vector<std::string> arguments = {"show", "--json", "--stream"};
    const Json manifest = Load(kStreams / "manifest.json");
    for (const Json& set : manifest)
        arguments.push_back(set["file"].get<std::string>());
    const auto shown = ByFile(RunSuminfo(arguments, kStreams).out);
    for (const Json& set : manifest) {
        if (set["class"] == "damaged") continue;
        SCOPED_TRACE(set["file"]);
        ExpectSet(shown.at(set["file"].get<std::string>()), set);
    }
}

TEST(Show, TableNamesFieldsAndCustomProperties) {
    const Outcome run = RunSuminfo({"show", "testEXCEL-custom-props--fff0cb.xls", "Bug48075--a2ceba.doc"}, kDocuments);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out.find('\r'), std::string::npos);
    for (const char* line :
         {"testEXCEL-custom-props--fff0cb.xls\n  SummaryInformation\n", "    author\n",
          "    application  Microsoft Excel\n", "    created      2006-09-12 15:06:44 UTC\n",
          "    parts          Feuil1; Feuil2; Feuil3\n", "    MyCustomString      MyStringValue\n",
          "    myCustomBoolean     yes\n", "\n\nBug48075--a2ceba.doc\n", "    heading-pairs           Название; 1\n"})
        EXPECT_NE(run.out.find(line), std::string::npos) << line << "\nis missing in\n" << run.out;
}

TEST(Show, OtherFilesAreRejectedByName) {
    const Folder folder;
    std::ofstream(folder.Path() / "text.doc") << "not a compound file";
    const Outcome run = RunSuminfo({"show", "text.doc", "missing.doc", "."}, folder.Path());
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "suminfo: text.doc: not a compound file\n"
                       "suminfo: missing.doc: the file cannot be opened: no such file\n"
                       "suminfo: .: is a folder; use -r to search folders\n");
}

TEST(Show, ReadsADocumentThatIsOpenForWritingElsewhere) {
    const Folder folder;
    const fs::path file = folder.Copy(kDocuments / "test11--695187.doc");
    std::fstream writer(file, std::ios::in | std::ios::out | std::ios::binary);
    ASSERT_TRUE(writer);
    const Outcome run = RunSuminfo({"show", file.string()});
    EXPECT_EQ(run.exitCode, 0) << run.err;
}

TEST(Show, DamagedStreamIsShownPartiallyAndFails) {
    const char* cut = "mut-03-truncated--789dd8.bin";
    Outcome run = RunSuminfo({"show", "--stream", cut, "fn-et--SummaryInformation--b68908.bin"}, kStreams);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.out.find("    (damaged; see suminfo check)\n"), std::string::npos) << run.out;
    run = RunSuminfo({"show", "--json", "--stream", cut}, kStreams);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(RunSuminfo({"show", "--stream", "fn-et--SummaryInformation--b68908.bin"}, kStreams).exitCode, 0);
}

// A terminal would interpret them.
TEST(Show, ControlCharactersAreShownAsNumbers) {
    const Folder folder;
    const std::string name = "name \xC2\x9B.doc", shown = "name \\x9b.doc";
    folder.Copy(kDocuments / "test11--695187.doc", name);
    ASSERT_EQ(RunSuminfo({"set", name,
                          "title=a\x1B[2Jb\x7F\xC2\x85\xC2\x9B"
                          "c"},
                         folder.Path())
                  .exitCode,
              0);
    const Outcome table = RunSuminfo({"show", name, "missing \xC2\x9B"}, folder.Path());
    EXPECT_EQ(table.out.rfind(shown + "\n", 0), 0u) << table.out;
    EXPECT_NE(table.out.find("  a\\x1b[2Jb\\x7f\\x85\\x9bc\n"), std::string::npos) << table.out;
    EXPECT_EQ(table.err.rfind("suminfo: missing \\x9b: ", 0), 0u) << table.err;
    const Outcome json = RunSuminfo({"show", "--json", name}, folder.Path());
    EXPECT_NE(json.out.find("a\\u001b[2Jb\\u007f\\u0085\\u009bc"), std::string::npos) << json.out;
    EXPECT_EQ(json.out.find_first_of("\x1B\x7F\x9B"), std::string::npos) << "raw";
}

// The root of the directory has lost its entries: unreachable streams are shown and reported as damage.
TEST(Show, DamagedDirectoryIsShownPartiallyAndFails) {
    const Folder folder;
    const fs::path file = folder.Copy(kDocuments / "test11--695187.doc");
    {
        std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
        stream.seekp(1024 + 76).write("\xFF\xFF\xFF\xFF", 4);
    }
    const std::string damage = "damaged: the directory: 5 unreachable entries";
    const Outcome shown = RunSuminfo({"show", file.string()});
    EXPECT_EQ(shown.exitCode, 1);
    EXPECT_NE(shown.out.find("  SummaryInformation\n"), std::string::npos) << shown.out;
    EXPECT_NE(shown.out.find("  (" + damage + ")\n"), std::string::npos) << shown.out;
    const Outcome checked = RunSuminfo({"check", file.string()});
    EXPECT_EQ(checked.exitCode, 1);
    EXPECT_NE(checked.out.find(": " + damage + "\n"), std::string::npos) << checked.out;
    EXPECT_EQ(RunSuminfo({"set", file.string(), "title=New"}).exitCode, 1);
}

TEST(Show, NamesAreNotLimitedToOneCodePage) {
    const Folder folder;
    folder.Copy(kDocuments / "test11--695187.doc", "Пример 例.doc");
    const Outcome run = RunSuminfo({"show", "-r", "."}, folder.Path());
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out.rfind("./Пример 例.doc\n", 0), 0u) << run.out;
}

} // namespace

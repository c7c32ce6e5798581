// suminfo set, remove and copy: what was asked for is there, everything else is as it was.

#include <gtest/gtest.h>
#include <memory>
#include <nlohmann/json.hpp>
#include <windows.h>

#include <objbase.h>

#include "program.h"
#include "streams.h"

using Json = nlohmann::json;
namespace fs = std::filesystem;

namespace {

const char kSummary[] = "\005SummaryInformation";
const char kDocumentSummary[] = "\005DocumentSummaryInformation";
constexpr const char* kCustomFormat = "{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";

Json Shown(const fs::path& file) {
    const Outcome run = RunSuminfo({"show", "--json", file.string()});
    return Json::parse(run.out);
}

// All properties by format ID and name, without their offsets.
std::map<std::string, Json> Values(const Json& file) {
    std::map<std::string, Json> values;
    for (const Json& set : file["property_sets"])
        for (const Json& section : set["sections"])
            for (Json property : section["properties"]) {
                property.erase("offset");
                values[set["stream"].get<std::string>() + section["fmtid"].get<std::string>() +
                       property["name"].get<std::string>()] = property["value"];
            }
    return values;
}

Json Field(const fs::path& file, const std::string& name) {
    for (const auto& [key, value] : Values(Shown(file)))
        if (key.substr(key.find('}') + 1) == name) return value;
    return nullptr;
}

int CodePageOf(const fs::path& file, const std::string& field) {
    for (const Json& set : Shown(file)["property_sets"])
        for (const Json& section : set["sections"])
            for (const Json& property : section["properties"])
                if (property["name"] == field)
                    return section["code_page"].is_null() ? 0 : section["code_page"].get<int>();
    return -1;
}

void ExpectDone(const std::vector<std::string>& arguments) {
    const Outcome run = RunSuminfo(arguments);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out + run.err, "");
}

void ExpectRefused(const std::vector<std::string>& arguments, const std::string& why) {
    const Outcome run = RunSuminfo(arguments);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.err.find(why), std::string::npos) << run.err;
}

class Edit : public testing::Test {
protected:
    fs::path Document(const char* name) { return folder_.Copy(kDocuments / name); }
    Folder folder_;
};

TEST_F(Edit, FieldsOfEveryKind) {
    const fs::path file = Document("test11--695187.doc");
    ExpectDone({"set", file.string(), "title=Plan B", "PAGES=12", "saved=2001-02-03T04:05:06Z",
                "edit-time=1:02:03", "company=ACME \"Ltd\"", "scale=yes", "comments=two\nlines"});
    EXPECT_EQ(Field(file, "title"), "Plan B");
    EXPECT_EQ(Field(file, "pages"), 12);
    EXPECT_EQ(Field(file, "saved"), "126256179060000000");
    EXPECT_EQ(Field(file, "edit-time"), "37230000000");
    EXPECT_EQ(Field(file, "company"), "ACME \"Ltd\"");
    EXPECT_EQ(Field(file, "scale"), true);
    EXPECT_EQ(Field(file, "comments"), "two\nlines");
}

TEST_F(Edit, CustomPropertiesOfEveryType) {
    const fs::path file = Document("test11--695187.doc"); // has none yet
    ExpectDone({"set",      file.string(),
                "--custom", "Client=text:ACME",
                "--custom", "Wide=wide:Ωmega",
                "--custom", "Sheets=int:-12",
                "--custom", "Scale=number:0.1",
                "--custom", "Done=bool:no",
                "--custom", "Due=date:2001-02-03",
                "--custom", "Price=money:12.5",
                "--custom", "Long=long:-9223372036854775808",
                "--custom", "Id=guid:F29F85E0-4FF9-1068-AB91-08002B27B3D9"});
    const std::map<std::string, Json> expected = {{"Client", "ACME"},
                                                  {"Wide", "Ωmega"},
                                                  {"Sheets", -12},
                                                  {"Scale", 0.1},
                                                  {"Done", false},
                                                  {"Due", "126256032000000000"},
                                                  {"Price", "125000"},
                                                  {"Long", "-9223372036854775808"},
                                                  {"Id", "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}"}};
    for (const auto& [name, value] : expected)
        EXPECT_EQ(Field(file, name), value) << name;
    ExpectDone({"set", file.string(), "--custom", "client=text:Other"}); // the same, whatever the case
    EXPECT_EQ(Field(file, "Client"), "Other");
    ExpectDone({"remove", file.string(), "--custom", "CLIENT", "--custom", "Id"});
    EXPECT_EQ(Field(file, "Client"), nullptr);
    EXPECT_EQ(Field(file, "Sheets"), -12);
}

TEST_F(Edit, RemovingLeavesTheOthers) {
    const fs::path file = Document("testEXCEL-custom-props--fff0cb.xls");
    const auto before = Values(Shown(file));
    ExpectDone({"remove", file.string(), "application", "--custom", "MyCustomNumber"});
    auto expected = before;
    expected.erase(std::string("\\005SummaryInformation{F29F85E0-4FF9-1068-AB91-08002B27B3D9}application"));
    expected.erase(std::string("\\005DocumentSummaryInformation") + kCustomFormat + "myCustomNumber");
    EXPECT_EQ(expected.size() + 2, before.size());
    EXPECT_EQ(Values(Shown(file)), expected);
    ExpectRefused({"remove", file.string(), "application"}, "it has no application");
    ExpectDone({"set", file.string(), "author="});
    EXPECT_EQ(Field(file, "author"), nullptr);
}

// In the set's own code page where it can, else in UTF-8, and then all of them.
TEST_F(Edit, TextsAreWrittenInTheCodePageOfTheirSet) {
    const fs::path file = Document("Bug48075--a2ceba.doc"); // 1251
    const auto before = Values(Shown(file));
    ExpectDone({"set", file.string(), "company=Завод"});
    EXPECT_EQ(CodePageOf(file, "company"), 1251);
    EXPECT_EQ(Field(file, "company"), "Завод");
    ExpectDone({"set", file.string(), "company=工場"});
    EXPECT_EQ(CodePageOf(file, "company"), 65001);
    auto expected = before;
    for (auto& [key, value] : expected) {
        if (key.find("}company") != std::string::npos) value = "工場";
        const bool documentSection = key.find("{D5CDD502") != std::string::npos;
        if (documentSection && key.find("}code page") != std::string::npos) value = -535; // 65001 in 16 bits
    }
    EXPECT_EQ(Values(Shown(file)), expected) << "heading-pairs and the rest say the same in UTF-8";
}

TEST_F(Edit, NamesOutsideOfTheCodePageTurnItsSetToUtf8) {
    const fs::path file = Document("testEXCEL-custom-props--fff0cb.xls");
    ExpectDone({"set", file.string(), "--custom", "名前=text:value"});
    EXPECT_EQ(Field(file, "名前"), "value");
    EXPECT_EQ(Field(file, "MyCustomString"), "MyStringValue");
    EXPECT_EQ(CodePageOf(file, "MyCustomString"), 65001);
}

TEST_F(Edit, OtherStreamsKeepEveryByte) {
    for (const char* name : {"test11--695187.doc", "input-bw-one-band--340370.fpx", "47950-upper--3ce5c7.doc",
                             "sent--da96eb.msg", "bug55030--18fccf.ppt"}) {
        SCOPED_TRACE(name);
        const fs::path file = Document(name);
        auto before = StreamsOf(file);
        ExpectDone({"set", file.string(), "title=" + std::string(5000, 't'), "--custom", "New=int:1"});
        auto after = StreamsOf(file);
        EXPECT_EQ(Field(file, "New"), 1);
        for (auto* streams : {&before, &after})
            for (auto at = streams->begin(); at != streams->end();)
                at = ::_stricmp(at->first.c_str(), kSummary) == 0 ||
                             ::_stricmp(at->first.c_str(), kDocumentSummary) == 0
                         ? streams->erase(at)
                         : std::next(at);
        EXPECT_EQ(before, after);
    }
}

TEST_F(Edit, SettingWhatIsThereChangesNoValueOfAnyDocument) {
    const fs::path source = fs::exists(kCorpus) ? kCorpus / "ole" : kDocuments;
    for (const auto& entry : fs::directory_iterator(source)) {
        if (entry.path().extension() == ".json" || entry.path().extension() == ".md") continue;
        SCOPED_TRACE(entry.path().filename().string());
        const fs::path file = folder_.Copy(entry.path(), "document");
        const std::vector<unsigned char> bytes = BytesOf(file);
        const Outcome run = RunSuminfo({"set", file.string(), "manager=Somebody"});
        if (run.exitCode == 0) {
            auto before = Values(Shown(entry.path())), after = Values(Shown(file));
            for (auto* values : {&before, &after}) {
                for (auto at = values->begin(); at != values->end();)
                    at = at->first.find("}manager") != std::string::npos ? values->erase(at) : std::next(at);
            }
            for (const auto& [key, value] : before)
                EXPECT_EQ(after[key], value) << key;
            EXPECT_EQ(Field(file, "manager"), "Somebody");
        } else {
            EXPECT_EQ(BytesOf(file), bytes) << "refused, but changed";
        }
        fs::remove(file);
    }
}

TEST_F(Edit, WhatIsRefusedChangesNothing) {
    const fs::path file = Document("test11--695187.doc");
    const std::vector<unsigned char> before = BytesOf(file);
    const std::string name = file.string();
    ExpectRefused({"set", name, "title=New", "pages=many"}, "pages: 'many' is no whole number");
    ExpectRefused({"set", name, "title=New", "colour=red"}, "'colour' is no field");
    ExpectRefused({"set", name, "title=New", "thumbnail=x"}, "'thumbnail' can't be set");
    ExpectRefused({"set", name, "title=New", "saved=2001-02-30"}, "is no date");
    ExpectRefused({"set", name, "title=New", "edit-time=90"}, "is no span of time");
    ExpectRefused({"set", name, "title=New", "--custom", "A=colour:red"}, "'colour' is no type");
    ExpectRefused({"set", name, "title=New", "--custom", "A=red"}, "needs a type");
    ExpectRefused({"set", name, "title=New", "--custom", "A=int:12x"}, "'12x' is no whole number");
    ExpectRefused({"set", name, "title=New", "--custom", "A=unsigned:-1"}, "from 0 on");
    ExpectRefused({"remove", name, "title", "--custom", "Nobody"}, "it has no custom property 'Nobody'");
    EXPECT_EQ(BytesOf(file), before);
}

TEST_F(Edit, DamagedDocumentsAreLeftAlone) {
    for (const char* name :
         {"clusterfuzz-testcase-minimized-POIHSLFFu--efffb2.ppt", "loop-in-alloc--d3743f.bin"}) {
        const fs::path file = Document(name);
        const std::vector<unsigned char> before = BytesOf(file);
        ExpectRefused({"set", file.string(), "title=New"}, "is damaged");
        EXPECT_EQ(BytesOf(file), before);
    }
}

struct ReleaseStorage {
    void operator()(IStorage* storage) const { storage->Release(); }
};

TEST_F(Edit, ADocumentThatIsOpenElsewhereStaysAsItIs) {
    const fs::path file = Document("test11--695187.doc");
    const std::vector<unsigned char> before = BytesOf(file);
    {
        IStorage* storage = nullptr;
        constexpr DWORD kHold = STGM_READ | STGM_SHARE_DENY_WRITE;
        ASSERT_EQ(::StgOpenStorage(file.c_str(), nullptr, kHold, nullptr, 0, &storage), S_OK);
        const std::unique_ptr<IStorage, ReleaseStorage> holder(storage);
        ExpectRefused({"set", file.string(), "title=New"}, "another program has it open");
        EXPECT_EQ(RunSuminfo({"show", file.string()}).exitCode, 0) << "reading goes on";
    }
    EXPECT_EQ(BytesOf(file), before);
}

TEST_F(Edit, CopyGivesBothSummaries) {
    const fs::path from = Document("testEXCEL-custom-props--fff0cb.xls"), to = Document("25695--d41532.xls");
    auto before = StreamsOf(to), source = StreamsOf(from);
    ExpectDone({"copy", from.string(), to.string()});
    auto expected = before;
    for (const char* name : {kSummary, kDocumentSummary})
        expected[name] = source[name];
    EXPECT_EQ(StreamsOf(to), expected);
    ExpectRefused({"copy", Document("sent--da96eb.msg").string(), to.string()}, "it has no summary");
    ExpectRefused(
        {"copy", Document("clusterfuzz-testcase-minimized-POIHSLFFu--efffb2.ppt").string(), to.string()},
        "damaged");
    EXPECT_EQ(StreamsOf(to), expected);
}

} // namespace

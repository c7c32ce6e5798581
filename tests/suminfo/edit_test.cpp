// suminfo set, remove and copy: the requested change is made, and everything else is unchanged.

#include <cstdlib>
#include <gtest/gtest.h>
#include <set>
#include <windows.h>

#include <objbase.h>

#include "orlo/win/com_owner.h"
#include "program.h"
#include "streams.h"
#include "support/file_bytes.h"

namespace fs = std::filesystem;

namespace {

const char kSummary[] = "\005SummaryInformation";
const char kDocumentSummary[] = "\005DocumentSummaryInformation";
constexpr const char* kCustomFormat = "{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";

// The contents of a document as shown by suminfo.
class Content {
public:
    explicit Content(const fs::path& file) : Content(Json::parse(RunSuminfo({"show", "--json", file.string()}).out)) {}
    explicit Content(Json file) : file_(std::move(file)) {}

    // Returns null if there is none in any section.
    Json operator[](const std::string& name) const {
        for (const auto& [key, value] : Values())
            if (key.substr(key.find('}') + 1) == name) return value;
        return nullptr;
    }
    // Returns the code page of the section with that property; 0 if the section has none, -1 if there is no such
    // property.
    int CodePageOf(const std::string& name) const {
        for (const Json& set : file_["property_sets"])
            for (const Json& section : set["sections"])
                for (const Json& property : section["properties"])
                    if (property["name"] == name)
                        return section["code_page"].is_null() ? 0 : section["code_page"].get<int>();
        return -1;
    }
    // Returns all values by stream, format ID and name.
    std::map<std::string, Json> Values() const {
        std::map<std::string, Json> values;
        for (const Json& set : file_["property_sets"])
            for (const Json& section : set["sections"])
                for (const Json& property : section["properties"])
                    values[set["stream"].get<std::string>() + section["fmtid"].get<std::string>() +
                           property["name"].get<std::string>()] = property["value"];
        return values;
    }

private:
    Json file_;
};

void ExpectDone(const std::vector<std::string>& arguments) {
    const Outcome run = RunSuminfo(arguments);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out + run.err, "");
}

void ExpectRejected(const std::vector<std::string>& arguments, const std::string& reason) {
    const Outcome run = RunSuminfo(arguments);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.err.find(reason), std::string::npos) << run.err;
}

class Edit : public testing::Test {
protected:
    fs::path Document(const char* name) { return folder_.Copy(kDocuments / name); }
    Folder folder_;
};

TEST_F(Edit, FieldsOfEveryKind) {
    const fs::path file = Document("test11--695187.doc");
    ExpectDone({"set", file.string(), "title=Plan B", "PAGES=12", "saved=2001-02-03T04:05:06Z", "edit-time=1:02:03",
                "company=ACME \"Ltd\"", "scale=yes", "comments=two\nlines"});
    const Content content(file);
    EXPECT_EQ(content["title"], "Plan B");
    EXPECT_EQ(content["pages"], 12);
    EXPECT_EQ(content["saved"], "126256467060000000");
    EXPECT_EQ(content["edit-time"], "37230000000");
    EXPECT_EQ(content["company"], "ACME \"Ltd\"");
    EXPECT_EQ(content["scale"], true);
    EXPECT_EQ(content["comments"], "two\nlines");
}

TEST_F(Edit, CustomPropertiesOfEveryType) {
    const fs::path file = Document("test11--695187.doc"); // has no custom properties yet
    const struct {
        const char *name, *typed;
        Json value;
    } rows[] = {{"Client", "text:ACME", "ACME"},
                {"Wide", "wide:Ωmega", "Ωmega"},
                {"Sheets", "int:-12", -12},
                {"Scale", "number:0.1", 0.1},
                {"Done", "bool:no", false},
                {"Due", "date:2001-02-03", "126256320000000000"},
                {"Price", "money:12.5", "125000"},
                {"Long", "long:-9223372036854775808", "-9223372036854775808"},
                {"Id", "guid:F29F85E0-4FF9-1068-AB91-08002B27B3D9", "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}"}};
    std::vector<std::string> line = {"set", file.string()};
    for (const auto& row : rows)
        line.insert(line.end(), {"--custom", std::string(row.name) + "=" + row.typed});
    ExpectDone(line);
    const Content made(file);
    for (const auto& row : rows)
        EXPECT_EQ(made[row.name], row.value) << row.name;
    // The same in another case, with fields after it.
    ExpectDone({"set", "--custom", "client=text:Other", file.string(), "--custom", "Sheets=int:3", "pages=7"});
    const Content changed(file);
    EXPECT_EQ(changed["Client"], "Other");
    EXPECT_EQ(changed["pages"], 7);
    ExpectDone({"remove", file.string(), "--custom", "CLIENT", "--custom", "Id"});
    const Content left(file);
    EXPECT_EQ(left["Client"], nullptr);
    EXPECT_EQ(left["Sheets"], 3);
}

TEST_F(Edit, RemovingDoesNotAffectOtherFields) {
    const fs::path file = Document("testEXCEL-custom-props--fff0cb.xls");
    const auto before = Content(file).Values();
    ExpectDone({"remove", file.string(), "application", "--custom", "MyCustomNumber"});
    auto expected = before;
    expected.erase(std::string("\\005SummaryInformation{F29F85E0-4FF9-1068-AB91-08002B27B3D9}application"));
    expected.erase(std::string("\\005DocumentSummaryInformation") + kCustomFormat + "myCustomNumber");
    EXPECT_EQ(expected.size() + 2, before.size());
    EXPECT_EQ(Content(file).Values(), expected);
    ExpectRejected({"remove", file.string(), "application"}, "the document has no application");
    ExpectDone({"set", file.string(), "author="});
    EXPECT_EQ(Content(file)["author"], nullptr);
}

// A property linked to a place in the document has a companion property for that place, with a flag added to its ID.
TEST_F(Edit, LinkedCustomPropertiesKeepTheirCompanionProperties) {
    constexpr uint32_t kLink = 0x01000000;
    const fs::path file = Document("testEXCEL-custom-props--fff0cb.xls");
    std::set<uint32_t> before, after;
    uint32_t linked = 0;
    EditSet(file, kDocumentSummary, [&](orlo::SetImage& set) {
        orlo::ImageSection& custom = set.sections.at(1);
        for (const orlo::DictionaryEntry& entry : *custom.dictionary)
            if (entry.name == "MyCustomString") linked = entry.id;
        orlo::ImageProperty source = *custom.Find(linked);
        source.id |= kLink;
        custom.properties.push_back(source);
        for (const orlo::ImageProperty& property : custom.properties)
            before.insert(property.id);
    });
    ExpectDone({"set", file.string(), "--custom", "New=int:1"});
    ExpectDone({"remove", file.string(), "--custom", "mycustomstring"});
    EXPECT_EQ(Content(file)["New"], 1);
    EditSet(file, kDocumentSummary, [&](orlo::SetImage& set) {
        for (const orlo::ImageProperty& property : set.sections.at(1).properties)
            if (before.erase(property.id) == 0) after.insert(property.id);
    });
    EXPECT_EQ(before, (std::set<uint32_t>{linked, linked | kLink})) << "gone";
    ASSERT_EQ(after.size(), 1u);
    EXPECT_LT(*after.begin(), kLink) << "readers interpret it as the offset of another one";
}

// A name that is not text in the code page is kept but not shown.
TEST_F(Edit, UndecodableNamesAreKept) {
    const fs::path file = Document("testEXCEL-custom-props--fff0cb.xls");
    const orlo::Bytes odd = {'M', 0x81, 'y'};
    uint32_t id = 0;
    EditSet(file, kDocumentSummary, [&](orlo::SetImage& set) {
        orlo::DictionaryEntry& entry = set.sections.at(1).dictionary->front();
        id = entry.id;
        entry = {id, {}, odd};
    });
    ExpectDone({"set", file.string(), "company=Other"});
    EXPECT_EQ(Content(file)["company"], "Other");
    EXPECT_NE(Content(file)["property " + std::to_string(id)], nullptr);
    EditSet(file, kDocumentSummary, [&](orlo::SetImage& set) {
        EXPECT_EQ(set.sections.at(1).dictionary->front().undecoded, odd);
        EXPECT_EQ(set.sections.at(1).dictionary->front().id, id);
    });
}

TEST_F(Edit, EmptyFieldGetsAValue) {
    const fs::path file = Document("test11--695187.doc");
    EditSet(file, kSummary, [](orlo::SetImage& set) {
        for (const uint32_t id : {2u, 14u}) {
            orlo::ImageProperty& property = *set.sections.at(0).Find(id);
            property.type = VT_EMPTY;
            property.bytes.clear();
        }
    });
    ExpectDone({"set", file.string(), "title=Plan B", "pages=3"});
    EXPECT_EQ(Content(file)["title"], "Plan B");
    EXPECT_EQ(Content(file)["pages"], 3);
}

// In the set's own code page if possible, else all texts are converted to UTF-8.
TEST_F(Edit, TextsAreWrittenInTheCodePageOfTheirSet) {
    const fs::path file = Document("Bug48075--a2ceba.doc"); // 1251
    auto expected = Content(file).Values();
    ExpectDone({"set", file.string(), "company=Завод"});
    const Content russian(file);
    EXPECT_EQ(russian.CodePageOf("company"), 1251);
    EXPECT_EQ(russian["company"], "Завод");
    ExpectDone({"set", file.string(), "company=工場"});
    const Content japanese(file);
    EXPECT_EQ(japanese.CodePageOf("company"), 65001);
    for (auto& [key, value] : expected) {
        if (key.find("}company") != std::string::npos) value = "工場";
        const bool documentSection = key.find("{D5CDD502") != std::string::npos;
        if (documentSection && key.find("}code page") != std::string::npos)
            value = -535; // 65001 as a signed 16-bit number
    }
    EXPECT_EQ(japanese.Values(), expected) << "heading-pairs and the others have the same text in UTF-8";
}

TEST_F(Edit, NamesOutsideOfTheCodePageConvertTheSetToUtf8) {
    const fs::path file = Document("testEXCEL-custom-props--fff0cb.xls");
    ExpectDone({"set", file.string(), "--custom", "名前=text:value"});
    const Content content(file);
    EXPECT_EQ(content["名前"], "value");
    EXPECT_EQ(content["MyCustomString"], "MyStringValue");
    EXPECT_EQ(content.CodePageOf("MyCustomString"), 65001);
}

// Returns the documents of the repository, and those of the folder that ORLO_CORPUS names.
std::vector<fs::path> AllDocuments() {
    std::vector<fs::path> documents;
    std::vector<fs::path> folders = {kDocuments};
    if (const char* corpus = std::getenv("ORLO_CORPUS")) folders.push_back("Z:" + std::string(corpus));
    for (const fs::path& folder : folders)
        for (const auto& entry : fs::directory_iterator(folder))
            documents.push_back(entry.path());
    return documents;
}

// Removes the summaries; the other streams are as the system's storage reads them.
void RemoveSummaries(std::map<std::string, std::vector<unsigned char>>& streams) {
    for (auto at = streams.begin(); at != streams.end();) {
        const char* name = at->first.c_str();
        const bool isSummary = ::_stricmp(name, kSummary) == 0 || ::_stricmp(name, kDocumentSummary) == 0;
        at = isSummary ? streams.erase(at) : std::next(at);
    }
}

TEST_F(Edit, OtherStreamsKeepEveryByte) {
    int edited = 0;
    for (const fs::path& document : AllDocuments()) {
        SCOPED_TRACE(document);
        const fs::path file = folder_.Copy(document, "document");
        const Outcome run =
            RunSuminfo({"set", file.string(), "title=" + std::string(5000, 't'), "--custom", "New=int:1"});
        if (run.exitCode == 0) {
            ++edited;
            auto before = StreamsOf(document), after = StreamsOf(file);
            RemoveSummaries(before);
            RemoveSummaries(after);
            EXPECT_EQ(Content(file)["New"], 1);
            EXPECT_EQ(before, after);
        }
        fs::remove(file);
    }
    EXPECT_GT(edited, 5);
    RecordProperty("documents", edited);
}

// Returns the contents of all documents in a folder by name.
std::map<std::string, Content> ContentsOf(const fs::path& folder) {
    std::map<std::string, Content> contents;
    for (auto& [name, file] : ByFile(RunSuminfo({"show", "--json", "-r", "."}, folder).out))
        contents.emplace(name, Content(file));
    return contents;
}

TEST_F(Edit, SettingOneFieldChangesNoOtherValueOfAnyDocument) {
    std::map<std::string, std::vector<unsigned char>> bytes;
    std::map<fs::path, int> ofKind; // two of each kind, because each start of suminfo takes time
    for (const auto& entry : fs::directory_iterator(kDocuments)) {
        const fs::path kind = entry.path().extension();
        if (kind == ".json" || kind == ".md" || ++ofKind[kind] > 2) continue;
        folder_.Copy(entry.path());
        bytes[entry.path().filename().string()] = FileBytes(entry.path());
    }
    const auto before = ContentsOf(folder_.Path());
    std::set<std::string> rejected;
    for (const auto& [name, content] : bytes)
        if (RunSuminfo({"set", name, "manager=Somebody"}, folder_.Path()).exitCode != 0) rejected.insert(name);
    const auto after = ContentsOf(folder_.Path());
    EXPECT_LT(rejected.size(), bytes.size() / 3) << testing::PrintToString(rejected);
    for (const auto& [name, content] : before) {
        SCOPED_TRACE(name);
        if (rejected.count(name) != 0) continue;
        const Content& edited = after.at(name);
        EXPECT_EQ(edited["manager"], "Somebody");
        const auto values = edited.Values();
        for (const auto& [key, value] : content.Values())
            if (key.find("}manager") == std::string::npos && values.at(key) != value)
                ADD_FAILURE() << key << " was " << value << ", is " << values.at(key);
    }
    for (const std::string& name : rejected)
        EXPECT_EQ(FileBytes(folder_.Path() / name), bytes[name]) << name << " was rejected, but changed";
}

TEST_F(Edit, RejectedEditsChangeNothing) {
    const fs::path file = Document("test11--695187.doc");
    const std::vector<unsigned char> before = FileBytes(file);
    const std::string name = file.string();
    ExpectRejected({"set", name, "title=New", "pages=many"}, "pages: 'many' is not a whole number");
    ExpectRejected({"set", name, "title=New", "saved=2001-02-30"}, "is not a date");
    ExpectRejected({"set", name, "title=New", "edit-time=90"}, "is not a duration");
    ExpectRejected({"remove", name, "title", "--custom", "Nobody"}, "the document has no custom property 'Nobody'");
    EXPECT_EQ(FileBytes(file), before);
}

TEST_F(Edit, DamagedDocumentsAreNotChanged) {
    for (const char* name : {"clusterfuzz-testcase-minimized-POIHSLFFu--efffb2.ppt", "loop-in-alloc--d3743f.bin"}) {
        const fs::path file = Document(name);
        const std::vector<unsigned char> before = FileBytes(file);
        ExpectRejected({"set", file.string(), "title=New"}, "is damaged");
        EXPECT_EQ(FileBytes(file), before);
    }
}

TEST_F(Edit, DocumentThatCannotBeWrittenIsUnchanged) {
    const fs::path file = Document("test11--695187.doc");
    const fs::path other = Document("25695--d41532.xls");
    const std::vector<unsigned char> before = FileBytes(file);
    {
        orlo::Owned<IStorage> holder;
        constexpr DWORD kMode = STGM_READ | STGM_SHARE_DENY_WRITE;
        ASSERT_EQ(::StgOpenStorage(file.c_str(), nullptr, kMode, nullptr, 0, orlo::Receive(holder)), S_OK);
        ExpectRejected({"set", file.string(), "title=New"},
                       "test11--695187.doc: the file cannot be opened: another program has it open");
        const Outcome copy = RunSuminfo({"copy", other.string(), file.string()});
        EXPECT_EQ(copy.exitCode, 1);
        EXPECT_EQ(copy.err, "suminfo: " + file.string() + ": the file cannot be opened: another program has it open\n");
        EXPECT_EQ(RunSuminfo({"show", file.string()}).exitCode, 0) << "reading continues";
    }
    ::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    ExpectRejected({"remove", file.string(), "title"}, "the file is read-only");
    EXPECT_EQ(RunSuminfo({"show", file.string()}).exitCode, 0);
    ::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(FileBytes(file), before);
}

TEST_F(Edit, AttributesArePreserved) {
    const fs::path file = Document("test11--695187.doc");
    constexpr DWORD kAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    ASSERT_TRUE(::SetFileAttributesW(file.c_str(), kAttributes));
    const DWORD before = ::GetFileAttributesW(file.c_str());
    ExpectDone({"set", file.string(), "title=New"});
    EXPECT_EQ(::GetFileAttributesW(file.c_str()), before);
    EXPECT_EQ(Content(file)["title"], "New");
}

TEST_F(Edit, CopyCopiesBothSummaries) {
    const fs::path from = Document("testEXCEL-custom-props--fff0cb.xls"), to = Document("25695--d41532.xls");
    auto before = StreamsOf(to), source = StreamsOf(from);
    ExpectDone({"copy", from.string(), to.string()});
    auto expected = before;
    for (const char* name : {kSummary, kDocumentSummary})
        expected[name] = source[name];
    EXPECT_EQ(StreamsOf(to), expected);
    ExpectRejected({"copy", Document("sent--da96eb.msg").string(), to.string()},
                   "sent--da96eb.msg: the document has no summary");
    // The name of its summary is misspelled.
    ExpectRejected({"copy", Document("clusterfuzz-testcase-minimized-POIHSLFFu--efffb2.ppt").string(), to.string()},
                   "the document has no summary");
    EXPECT_EQ(StreamsOf(to), expected);
}

} // namespace

// suminfo check, thumbnail and rc, and parsing of the command line.

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>

#include "program.h"
#include "support/file_bytes.h"
#include "support/png_picture.h"

namespace fs = std::filesystem;

namespace {

TEST(Thumbnail, IsSavedInItsOwnOrTheRequestedSize) {
    const Folder folder;
    const std::string png = (folder.Path() / "out.png").string();
    const std::string document = (kDocuments / "v5-Connection-Types--c289c5.vsd").string();
    const std::string stream = (kStreams / "CameraRollAnim-max--SummaryInformation--68b542.bin").string();
    const struct {
        std::vector<std::string> line;
        int width, height, drawn;                              // minimum number of pixels that are not white
    } rows[] = {{{"thumbnail", document, png}, 197, 256, 300}, // of 21590 by 27940
                {{"thumbnail", document, png, "--size", "100x40"}, 100, 40, 30},
                {{"thumbnail", "--stream", stream, png}, 256, 180, 300}};
    for (const auto& row : rows) {
        ASSERT_EQ(RunSuminfo(row.line).exitCode, 0);
        const PngPicture picture = ReadPng(png);
        EXPECT_EQ(picture.width, row.width);
        EXPECT_EQ(picture.height, row.height);
        const auto white = std::count(picture.colors.begin(), picture.colors.end(), 255);
        EXPECT_GT(static_cast<int>(picture.colors.size()) - white, row.drawn);
    }
}

TEST(Thumbnail, MissingOrDamagedThumbnailKeepsTheOldPicture) {
    const Folder folder;
    const fs::path png = folder.Path() / "out.png";
    std::ofstream(png) << "old";
    const struct {
        const char* file;
        const char* reason;
    } rows[] = {{"test11--695187.doc", "the document has no thumbnail"},
                {"sent--da96eb.msg", "the document has no summary"},
                {"clusterfuzz-testcase-minimized-POIHSLFFu--efffb2.ppt", ""}};
    for (const auto& row : rows) {
        const Outcome run = RunSuminfo({"thumbnail", (kDocuments / row.file).string(), png.string()});
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_NE(run.err.find(row.reason), std::string::npos) << run.err;
    }
    EXPECT_EQ(FileBytes(png), (std::vector<unsigned char>{'o', 'l', 'd'}));
}

TEST(ResourceScript, ContainsTheSections) {
    const Folder folder;
    const fs::path script = folder.Path() / "out.rc";
    const struct {
        const char* stream;
        const char* text;
    } rows[] = {
        {"npoiBug5010-xls--SummaryInformation--a7c52a.bin", "\n1 RCDATA\nBEGIN\n    0x"},
        {"npoiBug5010-xls--SummaryInformation--a7c52a.bin", "0x0008, 0x0000, \"czmiel\\0\", \"\\0\",\n"}, // padded
        {"testsolidworksPart2013SP2-SLDPRT--Config-0-Properties--41c3b7.bin", "\nEND\n\n2 RCDATA\nBEGIN\n    0x"},
        {"testsolidworksPart2013SP2-SLDPRT--ISolidWorksInformation--c67c02.bin",
         "SW-Author(Author)\\0"}, // a second name
    };
    for (const auto& row : rows) {
        EXPECT_EQ(RunSuminfo({"rc", "--stream", (kStreams / row.stream).string(), script.string()}).err, "");
        const std::vector<unsigned char> bytes = FileBytes(script);
        const std::string text(bytes.begin(), bytes.end());
        EXPECT_NE(text.find(row.text), std::string::npos) << text;
        EXPECT_EQ(text.substr(text.size() - 5), "\nEND\n");
    }
}

TEST(ResourceScript, LeavesNoFileOnFailure) {
    const Folder folder;
    const fs::path script = folder.Path() / "out.rc";
    const std::string stream = (kStreams / "Test-Humor-Generation-ppt--SummaryInformation--ed4099.bin").string();
    const Outcome empty = RunSuminfo({"rc", "--stream", stream, script.string()});
    EXPECT_EQ(empty.exitCode, 1);
    EXPECT_EQ(empty.err, "suminfo: " + stream + ": the property set has no sections\n");
    EXPECT_TRUE(fs::is_empty(folder.Path()));
    const std::string missing = (folder.Path() / "missing" / "out.rc").string();
    const Outcome run = RunSuminfo({"rc", (kDocuments / "test11--695187.doc").string(), missing});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "suminfo: " + missing + ": cannot create a file in its folder: no such folder\n");
}

TEST(Check, ReportsOffsetsAndFailsForIrregularities) {
    const Outcome fine =
        RunSuminfo({"check", "input-bw-one-band--340370.fpx", "sent--da96eb.msg", "25695--d41532.xls"}, kDocuments);
    EXPECT_EQ(fine.exitCode, 0) << fine.out;
    EXPECT_EQ(fine.out.rfind("input-bw-one-band--340370.fpx: no irregularities\nsent--da96eb.msg: no property sets\n"
                             "25695--d41532.xls: \\005SummaryInformation: 0x0000D0: note 105: 3888 unused bytes after",
                             0),
              0u)
        << fine.out;
    const Outcome odd = RunSuminfo({"check", "-r", "."}, kDocuments);
    EXPECT_EQ(odd.exitCode, 1);
    for (const char* line :
         {"/test11--695187.doc: \\005SummaryInformation: 0x0000C0: irregular 206: section 0: 16 unused bytes",
          ": \\005SummaryInfkrmation: 0x000134: damaged 306: section 0, property 17: VT_CF",
          ".ppt: damaged: stream \\005SummaryInfkrmation: its chain of sectors refers to a sector that does not "
          "exist\n",
          "/loop-in-alloc--d3743f.bin: damaged: the short streams: its chain of sectors is circular\n",
          "/bug55030--18fccf.ppt: no irregularities\n"})
        EXPECT_NE(odd.out.find(line), std::string::npos) << line << "\nis missing in\n" << odd.out;
}

TEST(Check, BareStreams) {
    const Outcome run = RunSuminfo(
        {"check", "--stream", "fn-et--SummaryInformation--b68908.bin", "mut-44-byte-order--b060d6.bin"}, kStreams);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.out.find("mut-44-byte-order--b060d6.bin: 0x000000: damaged 101: the byte order mark"),
              std::string::npos)
        << run.out;
}

TEST(CommandLine, InvalidOnesExitWithTwo) {
    const struct {
        std::vector<std::string> line;
        const char* reason;
    } rows[] = {
        {{}, ""},
        {{"shov", "x.doc"}, "unknown command 'shov'; see suminfo --help\n"},
        {{"show"}, ""},
        {{"show", "--color", "x.doc"}, ""},
        {{"set", "x.doc"}, ""},
        {{"set", "x.doc", "title"}, "'title' is not of the form name=value"},
        {{"set", "x.doc", "color=red"}, "unknown field 'color'; see suminfo set --help\n"},
        {{"set", "x.doc", "thumbnail=x"}, "'thumbnail' cannot be set, only removed\n"},
        {{"set", "x.doc", "--custom", "A=color:red"}, "A: unknown type 'color'"},
        {{"set", "x.doc", "--custom", "A=red"}, "A: 'red' has no type"},
        {{"set", "x.doc", "--custom", "A=int:12x"}, "A: '12x' is not a whole number"},
        {{"set", "x.doc", "--custom", "A=unsigned:-1"}, "A: '-1' is not a non-negative integer\n"},
        {{"remove", "x.doc"}, ""},
        {{"remove", "x.doc", "color"}, "unknown field 'color'"},
        {{"thumbnail", "x.doc"}, ""},
        {{"thumbnail", "x.doc", "x.png", "--size", "12"}, ""},
        {{"thumbnail", "x.doc", "x.png", "--size", "0x9"}, ""},
        {{"copy", "x.doc"}, ""},
        {{"get", "x.doc"}, "get: specify one field"},
        {{"show", "--json", "--csv", "x.doc"}, ""},
        {{"thumbnail", "x.doc", "-", "--original", "--size", "9x9"}, "--size: "},
    };
    for (const auto& row : rows) {
        const Outcome run = RunSuminfo(row.line);
        EXPECT_EQ(run.exitCode, 2) << testing::PrintToString(row.line);
        EXPECT_EQ(run.err.rfind(std::string("suminfo: ") + row.reason, 0), 0u) << run.err;
        EXPECT_GT(run.err.size(), 12u);
    }
}

TEST(CommandLine, HelpAndVersion) {
    const Outcome run = RunSuminfo({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_NE(run.out.find("suminfo set plan.msi title=\"Plan B\""), std::string::npos);
    EXPECT_NE(RunSuminfo({"set", "--help"}).out.find("last-author"), std::string::npos);
    const Outcome version = RunSuminfo({"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.out.rfind("suminfo 1.", 0), 0u) << version.out;
}

TEST(CommandLine, WildcardsStandForFiles) {
    const Folder folder;
    for (const char* name : {"B.DOC", "a.doc", "c.docx"})
        folder.Copy(kDocuments / "test11--695187.doc", name);
    const Outcome run = RunSuminfo({"check", "*.doc", "?.docx", "none*"}, folder.Path());
    EXPECT_EQ(run.err, "suminfo: none*: the file cannot be opened: no such file\n");
    for (const char* name : {"\na.doc: ", "\nc.docx: "})
        EXPECT_NE(run.out.find(name), std::string::npos) << run.out;
    EXPECT_EQ(run.out.rfind("B.DOC: ", 0), 0u) << run.out;
    EXPECT_EQ(RunSuminfo({"get", (folder.Path() / "a.*").string(), "pages"}).exitCode, 0);
}

TEST(CommandLine, MoreNamesThanFitAreReadFromStandardInput) {
    constexpr int kMany = 2000;
    std::string names;
    for (int i = 0; i < kMany; ++i)
        names += "a name of some length that nobody has given to a file " + std::to_string(i) + '\0';
    const Outcome run = RunSuminfo({"check", "@-", "--stream"}, kDocuments, names);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), kMany);
}

} // namespace

// Property sets and thumbnails through the C interface: real documents, replacing files, and invalid arguments.

#include <orlo_c.h>

#include <gtest/gtest.h>
#include <windows.h>

#include <objbase.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr wchar_t kDocument[] = L"" TEST_DATA "/ole/25695--d41532.xls";
const OrloGuid kNoFormat = {};

std::string Text(OrloPropset set, const OrloGuid& format, uint32_t id) {
    char text[256] = "";
    size_t size = sizeof text;
    return OrloPropsetGetText(set, &format, id, text, &size) == kOrloOk ? text : "(none)";
}

std::string ErrorText() {
    char text[256];
    OrloGetErrorText(text, sizeof text);
    return text;
}

OrloPropset Opened(const wchar_t* path) {
    OrloPropset set = nullptr;
    EXPECT_EQ(OrloPropsetOpenFile(path, nullptr, &set), kOrloOk) << ErrorText();
    return set;
}

std::string FileBytes(const std::wstring& path) {
    std::FILE* file = ::_wfopen(path.c_str(), L"rb");
    std::string bytes;
    for (int c; file != nullptr && (c = std::fgetc(file)) != EOF;)
        bytes.push_back(static_cast<char>(c));
    if (file != nullptr) std::fclose(file);
    return bytes;
}

class ScratchFile {
public:
    ScratchFile() {
        wchar_t folder[MAX_PATH], name[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        ::GetTempFileNameW(folder, L"orl", 0, name);
        path = name;
        ::DeleteFileW(name);
    }
    ~ScratchFile() { ::DeleteFileW(path.c_str()); }
    std::wstring path;
};

TEST(CPropset, EnumeratesAndReadsADocument) {
    const OrloPropset set = Opened(kDocument);
    uint32_t sections = 0;
    ASSERT_EQ(OrloPropsetCountSections(set, &sections), kOrloOk);
    ASSERT_EQ(sections, 1u);
    OrloSection section = {};
    section.size = sizeof section;
    ASSERT_EQ(OrloPropsetGetSection(set, 0, &section), kOrloOk);
    EXPECT_EQ(memcmp(&section.format, &kOrloSummary, sizeof section.format), 0);
    EXPECT_EQ(section.codePage, 874u);
    uint32_t texts = 0;
    for (uint32_t i = 0; i < section.properties; ++i) {
        OrloProperty property = {};
        property.size = sizeof property;
        ASSERT_EQ(OrloPropsetGetProperty(set, 0, i, &property), kOrloOk);
        texts += property.type == kOrloTypeText && property.isComplete;
    }
    EXPECT_EQ(texts, 3u);
    EXPECT_EQ(Text(set, kOrloSummary, kOrloAuthor), "Sompop");
    int64_t created = 0;
    ASSERT_EQ(OrloPropsetGetInteger(set, &kOrloSummary, kOrloCreated, &created), kOrloOk);
    EXPECT_EQ(created / 10000000 - 11644473600, 1072418634); // 2003-12-26 06:03:54 UTC
    EXPECT_EQ(OrloPropsetClose(set), kOrloOk);
}

TEST(CPropset, SavesIntoAFileInOneStepAndLeavesTheRest) {
    ScratchFile file;
    ASSERT_TRUE(::CopyFileW(kDocument, file.path.c_str(), FALSE));
    OrloPropset set = Opened(file.path.c_str()), other = nullptr;
    EXPECT_EQ(OrloPropsetSetText(set, &kOrloSummary, kOrloAuthor, kOrloTypeText, "\xE0\xB8\x81"), kOrloOk);
    EXPECT_EQ(OrloPropsetSetText(set, &kOrloSummary, kOrloTitle, kOrloTypeText, "\xC3\xA9"), kOrloNotEncodable);
    {
        constexpr DWORD kEverything = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
        const HANDLE held =
            ::CreateFileW(file.path.c_str(), GENERIC_READ, kEverything, nullptr, OPEN_EXISTING, 0, nullptr);
        const std::string before = FileBytes(file.path);
        EXPECT_EQ(OrloPropsetSaveFile(set, file.path.c_str(), nullptr), kOrloSystemError);
        ::CloseHandle(held);
        EXPECT_EQ(FileBytes(file.path), before);
    }
    EXPECT_EQ(OrloPropsetSaveFile(set, file.path.c_str(), nullptr), kOrloOk) << ErrorText();
    OrloPropsetClose(set);
    set = Opened(file.path.c_str());
    EXPECT_EQ(Text(set, kOrloSummary, kOrloAuthor), "\xE0\xB8\x81");
    EXPECT_EQ(Text(set, kOrloSummary, kOrloTitle), "(none)");
    ASSERT_EQ(OrloPropsetOpenFile(file.path.c_str(), "\005documentsummaryinformation", &other), kOrloOk);
    EXPECT_EQ(Text(other, kOrloDocumentSummary, 15), "Micro-X");
    OrloPropsetClose(set);
    OrloPropsetClose(other);
}

TEST(CPropset, CreatesSetsFilesAndNames) {
    ScratchFile file;
    OrloPropset set = nullptr;
    ASSERT_EQ(OrloPropsetNew(&set), kOrloOk);
    EXPECT_EQ(OrloPropsetSetText(set, &kOrloUserDefined, 2, kOrloTypeText, "oak"), kOrloOk);
    EXPECT_EQ(OrloPropsetSetName(set, &kOrloUserDefined, 2, "Wood"), kOrloOk);
    EXPECT_EQ(OrloPropsetSetReal(set, &kOrloUserDefined, 3, kOrloTypeDouble, 0.1), kOrloOk);
    EXPECT_EQ(OrloPropsetSetName(set, &kOrloUserDefined, 3, "WOOD"), kOrloBadArgument);
    const uint8_t blob[] = {2, 0, 0, 0, 7, 8, 0, 0};
    EXPECT_EQ(OrloPropsetSetBytes(set, &kOrloUserDefined, 4, kOrloTypeBlob, blob, 6), kOrloOk);
    for (const size_t wrong : {5, 8})
        EXPECT_EQ(OrloPropsetSetBytes(set, &kOrloUserDefined, 4, kOrloTypeBlob, blob, wrong), kOrloWrongType);
    EXPECT_EQ(OrloPropsetSaveFile(set, file.path.c_str(), "Set"), kOrloOk) << ErrorText();
    OrloPropsetClose(set);

    ASSERT_EQ(OrloPropsetOpenFile(file.path.c_str(), "Set", &set), kOrloOk) << ErrorText();
    uint32_t sections = 0, id = 0;
    OrloPropsetCountSections(set, &sections);
    EXPECT_EQ(sections, 2u); // readers expect the user-defined section to be second
    EXPECT_EQ(OrloPropsetFindName(set, &kOrloUserDefined, "wood", &id), kOrloOk);
    EXPECT_EQ(id, 2u);
    char name[8];
    size_t size = sizeof name;
    EXPECT_EQ(OrloPropsetGetName(set, &kOrloUserDefined, 2, name, &size), kOrloOk);
    EXPECT_STREQ(name, "Wood");
    double real = 0;
    EXPECT_EQ(OrloPropsetGetReal(set, &kOrloUserDefined, 3, &real), kOrloOk);
    EXPECT_EQ(real, 0.1);
    EXPECT_EQ(OrloPropsetRemove(set, &kOrloUserDefined, 2), kOrloOk);
    EXPECT_EQ(OrloPropsetFindName(set, &kOrloUserDefined, "Wood", &id), kOrloNotFound);

    IStream* stream = nullptr;
    ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    EXPECT_EQ(OrloPropsetSaveStream(set, stream), kOrloOk);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    OrloPropset copy = nullptr;
    EXPECT_EQ(OrloPropsetOpenStream(stream, &copy), kOrloOk);
    stream->Release();
    size_t blobSize = 0;
    EXPECT_EQ(OrloPropsetGetBytes(copy, &kOrloUserDefined, 4, nullptr, &blobSize), kOrloOk);
    EXPECT_EQ(blobSize, 6u);
    OrloPropsetClose(copy);
    OrloPropsetClose(set);
}

TEST(CPropset, SavesOnlyIfTheStreamIsUnchanged) {
    ScratchFile file;
    ASSERT_TRUE(::CopyFileW(kDocument, file.path.c_str(), FALSE));
    OrloPropset first = Opened(file.path.c_str()), second = Opened(file.path.c_str());
    EXPECT_EQ(OrloPropsetSetText(first, &kOrloSummary, kOrloAuthor, kOrloTypeText, "first"), kOrloOk);
    EXPECT_EQ(OrloPropsetSetText(second, &kOrloSummary, kOrloTitle, kOrloTypeText, "second"), kOrloOk);
    EXPECT_EQ(OrloPropsetSaveFile(first, file.path.c_str(), nullptr), kOrloOk) << ErrorText();
    EXPECT_EQ(OrloPropsetSaveFile(second, file.path.c_str(), nullptr), kOrloChanged);
    EXPECT_EQ(ErrorText(), "the stream has been changed since the set was read");
    EXPECT_EQ(OrloPropsetSaveFile(second, file.path.c_str(), "Another"), kOrloOk) << ErrorText();
    EXPECT_EQ(OrloPropsetSetText(first, &kOrloSummary, kOrloTitle, kOrloTypeText, "again"), kOrloOk);
    EXPECT_EQ(OrloPropsetSaveFile(first, file.path.c_str(), nullptr), kOrloOk) << ErrorText();
    OrloPropsetClose(first);
    OrloPropsetClose(second);
    first = Opened(file.path.c_str());
    EXPECT_EQ(Text(first, kOrloSummary, kOrloAuthor), "first");
    EXPECT_EQ(Text(first, kOrloSummary, kOrloTitle), "again");
    OrloPropsetClose(first);
}

TEST(CPropset, OpensAFileThatIsOpenForWritingElsewhere) {
    ScratchFile file;
    ASSERT_TRUE(::CopyFileW(kDocument, file.path.c_str(), FALSE));
    constexpr DWORD kEverything = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE writer =
        ::CreateFileW(file.path.c_str(), GENERIC_READ | GENERIC_WRITE, kEverything, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(writer, INVALID_HANDLE_VALUE);
    const OrloPropset set = Opened(file.path.c_str());
    EXPECT_EQ(Text(set, kOrloSummary, kOrloAuthor), "Sompop");
    EXPECT_EQ(OrloPropsetSaveFile(set, file.path.c_str(), nullptr), kOrloSystemError) << "it is in use";
    OrloPropsetClose(set);
    ::CloseHandle(writer);
}

TEST(CPropset, StreamContainsOnlyTheSetAfterSaving) {
    IStream* stream = nullptr;
    ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    OrloPropset set = nullptr, read = nullptr;
    OrloPropsetNew(&set);
    OrloPropsetSetText(set, &kOrloSummary, kOrloTitle, kOrloTypeText, std::string(900, 't').c_str());
    EXPECT_EQ(OrloPropsetSaveStream(set, stream), kOrloOk);
    OrloPropsetClose(set);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    ASSERT_EQ(OrloPropsetOpenStream(stream, &read), kOrloOk);
    OrloPropsetSetText(read, &kOrloSummary, kOrloTitle, kOrloTypeText, "short");
    EXPECT_EQ(OrloPropsetSaveStream(read, stream), kOrloOk);
    size_t size = 0;
    EXPECT_EQ(OrloPropsetSaveMemory(read, nullptr, &size), kOrloOk);
    STATSTG is = {};
    stream->Stat(&is, STATFLAG_NONAME);
    EXPECT_EQ(is.cbSize.QuadPart, size);
    OrloPropsetClose(read);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    ASSERT_EQ(OrloPropsetOpenStream(stream, &read), kOrloOk);
    EXPECT_EQ(Text(read, kOrloSummary, kOrloTitle), "short");
    OrloPropsetClose(read);
    stream->Release();
}

// Returns the findings as "severity code", and expects each to have a text.
std::vector<std::string> Findings(OrloPropset set) {
    std::vector<std::string> all;
    for (uint32_t i = 0;; ++i) {
        OrloFinding finding = ORLO_INIT(OrloFinding);
        char text[256] = "";
        size_t size = sizeof text;
        if (OrloPropsetGetFinding(set, i, &finding, text, &size) != kOrloOk) return all;
        EXPECT_EQ(size, strlen(text) + 1);
        EXPECT_GT(size, 1u);
        all.push_back(std::to_string(finding.severity) + " " + std::to_string(finding.code));
    }
}

TEST(CPropset, SaysThatASetIsDamagedAndWhy) {
    OrloPropset set = Opened(kDocument), cut = nullptr;
    uint32_t isDamaged = 9;
    EXPECT_EQ(OrloPropsetIsDamaged(set, &isDamaged), kOrloOk);
    EXPECT_EQ(isDamaged, 0u);
    size_t size = 0;
    OrloPropsetSaveMemory(set, nullptr, &size);
    std::vector<char> bytes(size);
    OrloPropsetSaveMemory(set, bytes.data(), &size);
    ASSERT_EQ(OrloPropsetOpenMemory(bytes.data(), size - 8, &cut), kOrloOk);
    EXPECT_EQ(OrloPropsetIsDamaged(cut, &isDamaged), kOrloOk);
    EXPECT_EQ(isDamaged, 1u);
    EXPECT_EQ(Findings(cut), (std::vector<std::string>{"1 203", "2 300"}));
    OrloPropsetClose(cut);
    OrloPropsetClose(set);
}

TEST(CPropset, ReadsAndStoresLists) {
    OrloPropset set = nullptr;
    ASSERT_EQ(OrloPropsetOpenFile(kDocument, "\005DocumentSummaryInformation", &set), kOrloOk) << ErrorText();
    const auto text = [&](uint32_t id, uint32_t index) {
        char buffer[64] = "";
        size_t size = sizeof buffer;
        const OrloResult result = OrloPropsetGetItemText(set, &kOrloDocumentSummary, id, index, buffer, &size);
        return result == kOrloOk ? std::string(buffer) : OrloGetResultName(result);
    };
    uint32_t count = 0, type = 0;
    int64_t number = 0;
    // Of variants: a text and a number.
    EXPECT_EQ(OrloPropsetCountItems(set, &kOrloDocumentSummary, kOrloHeadingPairs, &count), kOrloOk);
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(text(kOrloHeadingPairs, 0),
              "\xE0\xB9\x81\xE0\xB8\x9C\xE0\xB9\x88\xE0\xB8\x99\xE0\xB8\x87\xE0\xB8\xB2\xE0\xB8\x99");
    EXPECT_EQ(text(kOrloHeadingPairs, 1), "kOrloWrongType");
    EXPECT_EQ(text(kOrloHeadingPairs, 2), "kOrloNotFound");
    EXPECT_EQ(text(kOrloCompany, 0), "kOrloWrongType") << "not a list";
    EXPECT_EQ(OrloPropsetGetItemType(set, &kOrloDocumentSummary, kOrloHeadingPairs, 1, &type), kOrloOk);
    EXPECT_EQ(type, static_cast<uint32_t>(kOrloTypeInt32));
    EXPECT_EQ(OrloPropsetGetItemInteger(set, &kOrloDocumentSummary, kOrloHeadingPairs, 1, &number), kOrloOk);
    EXPECT_EQ(number, 3);

    const char* const titles[] = {"Plan", "Section A-A", ""};
    EXPECT_EQ(OrloPropsetSetTexts(set, &kOrloDocumentSummary, kOrloPartTitles, kOrloTypeText, titles, 3), kOrloOk)
        << ErrorText();
    EXPECT_EQ(text(kOrloPartTitles, 1), "Section A-A");
    EXPECT_EQ(text(kOrloPartTitles, 3), "kOrloNotFound");
    const int64_t numbers[] = {1, 40000};
    EXPECT_EQ(OrloPropsetSetIntegers(set, &kOrloDocumentSummary, 100, kOrloTypeInt16, numbers, 2), kOrloWrongType);
    EXPECT_EQ(OrloPropsetSetIntegers(set, &kOrloDocumentSummary, 100, kOrloTypeUInt16, numbers, 2), kOrloOk);
    EXPECT_EQ(OrloPropsetGetItemInteger(set, &kOrloDocumentSummary, 100, 1, &number), kOrloOk);
    EXPECT_EQ(number, 40000);
    const double reals[] = {0.5, -1e300};
    double real = 0;
    EXPECT_EQ(OrloPropsetSetReals(set, &kOrloDocumentSummary, 101, kOrloTypeFloat, reals, 2), kOrloWrongType);
    EXPECT_EQ(OrloPropsetSetReals(set, &kOrloDocumentSummary, 101, kOrloTypeDouble, reals, 2), kOrloOk);
    EXPECT_EQ(OrloPropsetGetItemReal(set, &kOrloDocumentSummary, 101, 1, &real), kOrloOk);
    EXPECT_EQ(real, -1e300);
    EXPECT_EQ(OrloPropsetSetTexts(set, &kOrloDocumentSummary, 102, kOrloTypeText, nullptr, 0), kOrloOk);
    EXPECT_EQ(OrloPropsetCountItems(set, &kOrloDocumentSummary, 102, &count), kOrloOk);
    EXPECT_EQ(count, 0u);
    const char* const none[] = {nullptr};
    EXPECT_EQ(OrloPropsetSetTexts(set, &kOrloDocumentSummary, 103, kOrloTypeText, none, 1), kOrloBadArgument);
    EXPECT_EQ(OrloPropsetSetTexts(set, &kOrloDocumentSummary, 103, kOrloTypeText, nullptr, 1), kOrloBadArgument);
    OrloPropsetClose(set);
}

TEST(CPropset, WalksTheNamesOfASection) {
    OrloPropset set = nullptr;
    OrloPropsetNew(&set);
    OrloPropsetSetText(set, &kOrloUserDefined, 2, kOrloTypeText, "oak");
    OrloPropsetSetName(set, &kOrloUserDefined, 2, "Wood");
    OrloPropsetSetText(set, &kOrloUserDefined, 7, kOrloTypeText, "north");
    OrloPropsetSetName(set, &kOrloUserDefined, 7, "Side");
    std::string all;
    char name[16];
    size_t size = sizeof name;
    uint32_t index = 0, id = 0;
    for (; OrloPropsetGetNameAt(set, 1, index, &id, name, &size) == kOrloOk; ++index, size = sizeof name)
        all += std::to_string(id) + name + " ";
    EXPECT_EQ(all, "2Wood 7Side ");
    EXPECT_EQ(OrloPropsetGetNameAt(set, 1, index, &id, name, &size), kOrloNotFound);
    EXPECT_EQ(OrloPropsetGetNameAt(set, 9, 0, &id, name, &size), kOrloNotFound);
    EXPECT_EQ(OrloPropsetGetNameAt(set, 0, 0, &id, name, &size), kOrloNotFound) << "a section without names";
    OrloPropsetClose(set);
}

TEST(CPropset, ResultsHaveNames) {
    EXPECT_STREQ(OrloGetResultName(kOrloOk), "kOrloOk");
    EXPECT_STREQ(OrloGetResultName(kOrloChanged), "kOrloChanged");
    EXPECT_STREQ(OrloGetResultName(static_cast<OrloResult>(kOrloBusy + 1)), "unknown result");
    EXPECT_STREQ(OrloGetResultName(static_cast<OrloResult>(-1)), "unknown result");
}

TEST(CPropset, DoesNotChangeDamagedSets) {
    OrloPropset set = Opened(kDocument), cut = nullptr;
    size_t size = 0;
    ASSERT_EQ(OrloPropsetSaveMemory(set, nullptr, &size), kOrloOk);
    std::vector<char> bytes(size);
    ASSERT_EQ(OrloPropsetSaveMemory(set, bytes.data(), &size), kOrloOk);
    size -= 8;
    EXPECT_EQ(OrloPropsetSaveMemory(set, bytes.data(), &size), kOrloBufferTooSmall);
    EXPECT_EQ(size, bytes.size());
    ASSERT_EQ(OrloPropsetOpenMemory(bytes.data(), size - 8, &cut), kOrloOk);
    EXPECT_EQ(Text(cut, kOrloSummary, kOrloAuthor), "Sompop");
    EXPECT_EQ(OrloPropsetSetText(cut, &kOrloSummary, kOrloTitle, kOrloTypeText, "a"), kOrloDamaged);
    EXPECT_EQ(OrloPropsetSaveMemory(cut, nullptr, &size), kOrloDamaged);
    OrloPropsetClose(cut);

    ScratchFile file; // with a circular allocation table
    ASSERT_TRUE(::CopyFileW(L"" TEST_DATA "/ole/loop-in-alloc--d3743f.bin", file.path.c_str(), FALSE));
    const std::string before = FileBytes(file.path);
    EXPECT_EQ(OrloPropsetSaveFile(set, file.path.c_str(), nullptr), kOrloDamaged);
    EXPECT_EQ(FileBytes(file.path), before);
    OrloPropsetClose(set);
}

TEST(CPropset, StoresValuesInTheRangeOfTheirTypes) {
    OrloPropset set = nullptr;
    OrloPropsetNew(&set);
    struct {
        uint32_t type;
        int64_t value;
        OrloResult result;
    } const rows[] = {
        {kOrloTypeInt16, -32768, kOrloOk},
        {kOrloTypeInt16, 32768, kOrloWrongType},
        {kOrloTypeInt32, INT32_MIN, kOrloOk},
        {kOrloTypeInt32, 0x80000000ll, kOrloWrongType},
        {kOrloTypeUInt8, 255, kOrloOk},
        {kOrloTypeUInt8, -1, kOrloWrongType},
        {kOrloTypeBool, 1, kOrloOk},
        {kOrloTypeBool, 2, kOrloWrongType},
        {kOrloTypeFileTime, INT64_MAX, kOrloOk},
        {kOrloTypeText, 1, kOrloWrongType},
        {kOrloTypeUInt64, INT64_MAX, kOrloOk},
        {0x1003, 1, kOrloWrongType},
    };
    uint32_t id = 100;
    for (const auto& row : rows) {
        ++id;
        EXPECT_EQ(OrloPropsetSetInteger(set, &kOrloSummary, id, row.type, row.value), row.result) << id;
        int64_t value = 99;
        const bool stored = OrloPropsetGetInteger(set, &kOrloSummary, id, &value) == kOrloOk;
        EXPECT_EQ(stored, row.result == kOrloOk) << id;
        EXPECT_EQ(value, stored ? row.value : 0) << id;
    }
    EXPECT_EQ(OrloPropsetSetInteger(set, &kOrloSummary, 101, kOrloTypeInt32, 1),
              kOrloWrongType); // it is an Int16
    EXPECT_EQ(OrloPropsetSetReal(set, &kOrloSummary, 90, kOrloTypeFloat, 1e300), kOrloWrongType);
    EXPECT_EQ(OrloPropsetSetReal(set, &kOrloSummary, 90, kOrloTypeFloat, 0.1), kOrloOk);
    EXPECT_EQ(OrloPropsetSetInteger(set, &kOrloSummary, kOrloCodePage, kOrloTypeInt16, 1252), kOrloBadArgument);
    EXPECT_EQ(OrloPropsetSetInteger(set, &kOrloDocumentSummary, kOrloCodePage, kOrloTypeInt16, 932), kOrloOk);
    EXPECT_EQ(OrloPropsetSetText(set, &kOrloDocumentSummary, 15, kOrloTypeText, "\xC3\xA9"), kOrloNotEncodable);
    OrloPropsetClose(set);
}

TEST(CPropset, ReturnsTheThumbnailAsPixelsAndBitmap) {
    const OrloPropset set = Opened(L"" TEST_DATA "/ole/bug55030--18fccf.ppt");
    uint32_t width = 0, height = 0;
    size_t size = 0;
    ASSERT_EQ(OrloPropsetGetThumbnailPixels(set, kOrloBgra, &width, &height, nullptr, &size), kOrloOk) << ErrorText();
    ASSERT_EQ(size, size_t{4} * width * height);
    std::vector<uint32_t> bgra(size / 4), rgba(size / 4);
    ASSERT_EQ(OrloPropsetGetThumbnailPixels(set, kOrloBgra, &width, &height, bgra.data(), &size), kOrloOk);
    ASSERT_EQ(OrloPropsetGetThumbnailPixels(set, kOrloRgba, &width, &height, rgba.data(), &size), kOrloOk);
    size_t drawn = 0;
    for (size_t i = 0; i < bgra.size(); ++i) {
        drawn += bgra[i] != 0xFFFFFFFF;
        ASSERT_EQ(bgra[i] >> 24, 255u);
        ASSERT_EQ(bgra[i] >> 16 & 255, rgba[i] & 255);
        ASSERT_EQ(bgra[i] & 255, rgba[i] >> 16 & 255);
    }
    EXPECT_GT(drawn, bgra.size() / 100);
    --size;
    EXPECT_EQ(OrloPropsetGetThumbnailPixels(set, kOrloBgra, &width, &height, bgra.data(), &size), kOrloBufferTooSmall);
    width = height = 40;
    HBITMAP bitmap = nullptr;
    ASSERT_EQ(OrloPropsetGetThumbnailBitmap(set, &width, &height, &bitmap), kOrloOk);
    BITMAP info = {};
    ::GetObjectA(bitmap, sizeof info, &info);
    EXPECT_EQ(info.bmWidth, 40);
    ::DeleteObject(bitmap);
    width = 8193;
    EXPECT_EQ(OrloPropsetGetThumbnailBitmap(set, &width, &height, &bitmap), kOrloBadArgument);
    OrloPropsetClose(set);
}

TEST(CPropset, RejectsInvalidArguments) {
    OrloPropset set = nullptr, closed = nullptr, out = nullptr;
    OrloPropsetNew(&set);
    OrloPropsetNew(&closed);
    OrloPropsetClose(closed);
    const auto never = reinterpret_cast<OrloPropset>(uintptr_t{0x12345678});
    for (const OrloPropset bad : {closed, never, OrloPropset{}}) {
        size_t size = 0;
        int64_t number;
        EXPECT_EQ(OrloPropsetClose(bad), kOrloBadHandle);
        EXPECT_EQ(OrloPropsetSaveMemory(bad, nullptr, &size), kOrloBadHandle);
        EXPECT_EQ(OrloPropsetGetInteger(bad, &kOrloSummary, 2, &number), kOrloBadHandle);
        EXPECT_EQ(OrloPropsetSetInteger(bad, &kOrloSummary, 2, kOrloTypeInt32, 2), kOrloBadHandle);
    }
    OrloSection section = {};
    section.size = sizeof section - 1;
    OrloProperty property = {};
    property.size = sizeof property;
    size_t size = 0;
    const char bytes[] = "no property set";
    const auto* noFile = L"Z:/no/such.file";
    const OrloResult bad = kOrloBadArgument, none = kOrloNotFound;
    EXPECT_EQ(OrloPropsetNew(nullptr), bad);
    EXPECT_EQ(OrloPropsetOpenMemory(nullptr, 100, &out), bad);
    EXPECT_EQ(OrloPropsetOpenMemory(bytes, sizeof bytes, &out), kOrloDamaged);
    EXPECT_EQ(OrloPropsetOpenStream(nullptr, &out), bad);
    EXPECT_EQ(OrloPropsetOpenFile(nullptr, nullptr, &out), bad);
    EXPECT_EQ(OrloPropsetOpenFile(noFile, nullptr, &out), none);
    EXPECT_EQ(OrloPropsetOpenFile(kDocument, "\xFF", &out), bad);
    EXPECT_EQ(OrloPropsetOpenFile(kDocument, "nothing", &out), none);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(OrloPropsetSaveFile(set, nullptr, nullptr), bad);
    EXPECT_EQ(OrloPropsetSaveFile(set, noFile, nullptr), kOrloSystemError);
    EXPECT_EQ(OrloPropsetSaveStream(set, nullptr), bad);
    EXPECT_EQ(OrloPropsetSaveMemory(set, nullptr, nullptr), bad);
    EXPECT_EQ(OrloPropsetGetSection(set, 0, &section), bad);
    EXPECT_EQ(OrloPropsetGetProperty(set, 0, 0, &property), none);
    EXPECT_EQ(OrloPropsetGetText(set, nullptr, 2, nullptr, &size), bad);
    EXPECT_EQ(OrloPropsetGetText(set, &kNoFormat, 2, nullptr, &size), none);
    EXPECT_EQ(OrloPropsetSetText(set, &kOrloSummary, 2, kOrloTypeText, nullptr), bad);
    EXPECT_EQ(OrloPropsetSetText(set, &kOrloSummary, 2, kOrloTypeText, "\xFF"), kOrloNotEncodable);
    EXPECT_EQ(OrloPropsetSetText(set, &kOrloSummary, 0, kOrloTypeText, "a"), bad);
    EXPECT_EQ(OrloPropsetSetBytes(set, &kOrloSummary, 2, kOrloTypeBlob, nullptr, 4), bad);
    EXPECT_EQ(OrloPropsetRemove(set, &kOrloSummary, 2), none);
    EXPECT_EQ(OrloPropsetFindName(set, &kOrloSummary, nullptr, nullptr), bad);
    uint32_t sections = 9;
    EXPECT_EQ(OrloPropsetCountSections(set, &sections), kOrloOk);
    EXPECT_EQ(sections, 0u); // the rejected calls have created none
    OrloPropsetClose(set);
}

} // namespace

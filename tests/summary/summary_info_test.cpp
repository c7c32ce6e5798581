// Summaries in compound files: saving, loading, replacing, rejection, and documents after failed writes.

#include "orlo/summary/summary_info.h"

#include <array>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <tuple>

#include "compound_bytes.h"
#include "failing_bytes.h"
#include "orlo/propset/property_set.h"
#include "orlo/win/com_owner.h"
#include "owned_summary.h"

namespace fs = std::filesystem;

namespace {

const GUID kFormat = {0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};
constexpr DWORD kMake = STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
constexpr DWORD kRead = STGM_READ | STGM_SHARE_EXCLUSIVE;
constexpr wchar_t kStream[] = L"\005SummaryInformation";

using Storage = orlo::Owned<IStorage>;
using orlo::Receive;
std::string TitleIn(IStorage* storage) {
    OwnedSummary summary(OleStdInitSummaryInfo(1252));
    if (FAILED(LoadSummaryInfo(storage, summary.get()))) return "(none)";
    const char* title = OleStdGetStringProperty(summary.get(), PIDSI_TITLE);
    return title ? title : "";
}

// A file name in the test folder; the file is removed before and afterward.
class File {
public:
    explicit File(const char* name) : path_(fs::temp_directory_path() / name) { fs::remove(path_); }
    ~File() {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    std::string Name() const { return path_.string(); }

    Storage Create() const {
        Storage storage;
        EXPECT_EQ(::StgCreateDocfile(path_.c_str(), kMake, 0, Receive(storage)), S_OK);
        return storage;
    }
    Storage Read() const {
        Storage storage;
        ::StgOpenStorage(path_.c_str(), nullptr, kRead, nullptr, 0, Receive(storage));
        return storage;
    }

private:
    fs::path path_;
};

void WriteBytes(IStorage* storage, const wchar_t* name, const std::string& bytes) {
    IStream* stream = nullptr;
    ASSERT_EQ(storage->CreateStream(name, kMake, 0, 0, &stream), S_OK);
    EXPECT_EQ(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr), S_OK);
    stream->Release();
}

TEST(SummaryInfo, CreatingReplacesTheOldSummary) {
    EXPECT_EQ(CreateSummaryInfo(nullptr), E_FAIL);
    CPropertySet* summary = SummaryOf("old").release();
    EXPECT_EQ(CreateSummaryInfo(&summary), S_OK);
    EXPECT_EQ(OleStdGetStringProperty(summary, PIDSI_TITLE), nullptr);
    int year, month, day, seconds;
    OleStdGetDateProperty(summary, PIDSI_CREATE_DTM, &year, &month, &day, &seconds);
    struct tm now;
    TimeStamp(&now);
    struct tm stored = {seconds, 0, 0, day, month - 1, year - 1900, 0, 0, now.tm_isdst};
    EXPECT_NEAR(std::difftime(std::mktime(&now), std::mktime(&stored)), 1, 60);
    OleStdFreeSummaryInfo(&summary);
}

TEST(SummaryInfo, DatesCountMonthsFromZeroAndYearsFrom1900) {
    const OwnedSummary summary = SummaryOf("plan");
    struct tm time = {7, 5, 13, 2, 2, 98, 0, 0, 0};
    EXPECT_EQ(SetSumInfoDate(summary.get(), PIDSI_CREATE_DTM, &time), 1);
    int year, month, day, seconds;
    OleStdGetDateProperty(summary.get(), PIDSI_CREATE_DTM, &year, &month, &day, &seconds);
    EXPECT_EQ((std::array{year, month, day, seconds}), (std::array{1998, 3, 2, 47106}));
}

TEST(SummaryInfo, FieldsInOneCall) {
    const OwnedSummary summary = SummaryOf("old");
    OleStdSetSecurityProperty(summary.get(), 4);
    EXPECT_EQ(SetSummaryInfoFields1(summary.get(), nullptr, "s", "a", "k", "c", "app", "7"), S_OK);
    const auto text = [&](DWORD id) {
        const char* stored = OleStdGetStringProperty(summary.get(), id);
        return std::string(stored ? stored : "(none)");
    };
    std::string all;
    for (const DWORD id : {PIDSI_TITLE, PIDSI_SUBJECT, PIDSI_AUTHOR, PIDSI_LASTAUTHOR, PIDSI_KEYWORDS, PIDSI_COMMENTS,
                           PIDSI_APPNAME, PIDSI_REVNUMBER})
        all += text(id) + " ";
    EXPECT_EQ(all, "(none) s a a k c app 7 ");
    EXPECT_EQ(OleStdGetSecurityProperty(summary.get()), 0u);
    SetSummaryInfoFields1(summary.get(), "t", "", nullptr, "", "", "", "");
    EXPECT_EQ(text(PIDSI_AUTHOR), "(none)");
    EXPECT_EQ(text(PIDSI_LASTAUTHOR), "(none)");
    EXPECT_NE(summary->GetProperty(kFormat, PIDSI_DOC_SECURITY), nullptr);
}

TEST(SummaryInfo, ThumbnailIsSavedInTheFile) {
    const File file("orlo-thumbnail.drw");
    const OwnedSummary summary = SummaryOf("plan");
    const HGLOBAL picture = ::GlobalAlloc(GHND, 5000);
    EXPECT_EQ(SetSummaryInfoThumbnail(summary.get(), 8, picture, 5000, 77), S_OK);
    EXPECT_EQ(SetSummaryInfoThumbnail(summary.get(), 8, nullptr, 5, 0), E_FAIL);
    EXPECT_EQ(SaveSummaryInfo(file.Create().get(), summary.get()), S_OK);
    Storage storage;
    CPropertySet* loaded = nullptr;
    ASSERT_EQ(GetFileSummaryInfo(file.Name().c_str(), Receive(storage), &loaded), S_OK);
    DWORD format = 0, size = 0;
    HGLOBAL copy = nullptr;
    EXPECT_EQ(OleStdGetThumbNailProperty(loaded, &format, &copy, &size), -1);
    EXPECT_EQ(size, 5000u);
    EXPECT_STREQ(OleStdGetStringProperty(loaded, PIDSI_TITLE), "plan");
    ::GlobalFree(copy);
    ::GlobalFree(picture);
    OleStdFreeSummaryInfo(&loaded);
}

TEST(SummaryInfo, ReplacesALongerOneAndKeepsOtherStreams) {
    const File file("orlo-replace.drw");
    const Storage storage = file.Create();
    WriteBytes(storage.get(), L"Contents", "the drawing");
    EXPECT_EQ(SaveSummaryInfo(storage.get(), SummaryOf(std::string(9000, 'x')).get()), S_OK);
    EXPECT_EQ(SaveSummaryInfo(storage.get(), SummaryOf("short").get()), S_OK);
    EXPECT_EQ(TitleIn(storage.get()), "short");
    IStream* stream = nullptr;
    ASSERT_EQ(storage->OpenStream(kStream, nullptr, kRead, 0, &stream), S_OK);
    STATSTG stat;
    stream->Stat(&stat, STATFLAG_NONAME);
    EXPECT_LE(stat.cbSize.QuadPart, 4096u);
    std::string rest(4096, 'x');
    ULONG read = 0;
    stream->Read(rest.data(), 4096, &read);
    EXPECT_EQ(rest.substr(0, read).find("xx"), std::string::npos) << "the longer one was removed completely";
    stream->Release();
    ASSERT_EQ(storage->OpenStream(L"Contents", nullptr, kRead, 0, &stream), S_OK);
    char text[12] = {};
    stream->Read(text, 11, nullptr);
    EXPECT_STREQ(text, "the drawing");
    stream->Release();
}

TEST(SummaryInfo, MissingStreamLeavesTheSummaryUnchanged) {
    const File file("orlo-empty.drw");
    const Storage storage = file.Create();
    const OwnedSummary summary = SummaryOf("still here");
    EXPECT_EQ(LoadSummaryInfo(storage.get(), summary.get()), STG_E_FILENOTFOUND);
    EXPECT_STREQ(OleStdGetStringProperty(summary.get(), PIDSI_TITLE), "still here");
    EXPECT_EQ(LoadSummaryInfo(storage.get(), nullptr), E_FAIL);
    EXPECT_EQ(SaveSummaryInfo(storage.get(), nullptr), E_FAIL);
}

TEST(SummaryInfo, DamagedStreamIsAnEmptySummary) {
    const File file("orlo-damaged.drw");
    WriteBytes(file.Create().get(), kStream, "no property set");
    IStorage* storage = nullptr;
    CPropertySet* summary = SummaryOf("goes too").release();
    EXPECT_EQ(GetFileSummaryInfo(file.Name().c_str(), &storage, &summary), E_FAIL);
    EXPECT_EQ(storage, nullptr);
    EXPECT_EQ(summary, nullptr);
}

TEST(SummaryInfo, FilesThatCannotBeOpenedAreReported) {
    const File missing("orlo-missing.drw");
    IStorage* storage = nullptr;
    CPropertySet* summary = nullptr;
    EXPECT_EQ(GetFileSummaryInfo(missing.Name().c_str(), &storage, &summary), STG_E_FILENOTFOUND);
    const File locked("orlo-locked.drw");
    const Storage holder = locked.Create();
    EXPECT_EQ(GetFileSummaryInfo(locked.Name().c_str(), &storage, &summary), STG_E_SHAREVIOLATION);
    EXPECT_EQ(storage, nullptr);
    EXPECT_EQ(summary, nullptr);
}

TEST(SummaryInfo, IsSavedIntoAFileThatIsNotOpen) {
    const File file("orlo-saved.drw");
    {
        const Storage storage = file.Create();
        orlo::Owned<IStream> other;
        storage->CreateStream(L"Contents", kMake, 0, 0, Receive(other));
        other->Write("drawing", 7, nullptr);
    }
    EXPECT_EQ(SaveFileSummaryInfo(file.Name().c_str(), SummaryOf("first").get()), S_OK);
    EXPECT_EQ(SaveFileSummaryInfo(file.Name().c_str(), SummaryOf(std::string(9000, 'x')).get()), S_OK);
    EXPECT_EQ(SaveFileSummaryInfo(file.Name().c_str(), SummaryOf("last").get()), S_OK);
    const Storage storage = file.Read();
    ASSERT_TRUE(storage);
    EXPECT_EQ(TitleIn(storage.get()), "last");
    orlo::Owned<IStream> other;
    ASSERT_EQ(storage->OpenStream(L"Contents", nullptr, kRead, 0, Receive(other)), S_OK);
    char text[8] = {};
    other->Read(text, 8, nullptr);
    EXPECT_STREQ(text, "drawing");
    EXPECT_EQ(SaveFileSummaryInfo(file.Name().c_str(), SummaryOf("late").get()),
              HRESULT_FROM_WIN32(ERROR_SHARING_VIOLATION));
    EXPECT_EQ(TitleIn(storage.get()), "last");
}

TEST(SummaryInfo, IsNotSavedIntoOtherFiles) {
    const File file("orlo-other.drw");
    const OwnedSummary summary = SummaryOf("title");
    EXPECT_EQ(SaveFileSummaryInfo(file.Name().c_str(), summary.get()), HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND));
    std::ofstream(file.Name()) << "not a compound file";
    EXPECT_EQ(SaveFileSummaryInfo(file.Name().c_str(), summary.get()), STG_E_DOCFILECORRUPT);
    EXPECT_EQ(fs::file_size(file.Name()), 19u);
    EXPECT_EQ(SaveFileSummaryInfo(nullptr, summary.get()), E_FAIL);
    EXPECT_EQ(SaveFileSummaryInfo(file.Name().c_str(), nullptr), E_FAIL);
}

TEST(SummaryInfo, ReadOnlyStorageKeepsItsSummary) {
    const File file("orlo-read-only.drw");
    SaveSummaryInfo(file.Create().get(), SummaryOf("first").get());
    const Storage storage = file.Read();
    EXPECT_EQ(SaveSummaryInfo(storage.get(), SummaryOf("second").get()), STG_E_ACCESSDENIED);
    EXPECT_EQ(TitleIn(storage.get()), "first");
}

TEST(SummaryInfo, IsReplacedInAWriteOnlyStorage) {
    const File file("orlo-write-only.drw");
    SaveSummaryInfo(file.Create().get(), SummaryOf("first").get());
    {
        Storage storage;
        constexpr DWORD kWrite = STGM_WRITE | STGM_SHARE_EXCLUSIVE;
        const fs::path path = file.Name();
        ASSERT_EQ(::StgOpenStorage(path.c_str(), nullptr, kWrite, nullptr, 0, Receive(storage)), S_OK);
        EXPECT_EQ(SaveSummaryInfo(storage.get(), SummaryOf("second").get()), S_OK);
    }
    EXPECT_EQ(TitleIn(file.Read().get()), "second");
}

// A property of a type without a stored form.
TEST(SummaryInfo, SetThatCannotBeWrittenKeepsTheStream) {
    const File file("orlo-unwritable.drw");
    const Storage storage = file.Create();
    SaveSummaryInfo(storage.get(), SummaryOf("first").get());
    const OwnedSummary summary = SummaryOf("second");
    auto* property = new CProperty;
    property->SetID(100);
    property->SetType(VT_DISPATCH);
    summary->AddProperty(kFormat, property);
    EXPECT_EQ(SaveSummaryInfo(storage.get(), summary.get()), E_FAIL);
    EXPECT_EQ(TitleIn(storage.get()), "first");
}

Storage OpenOn(FailingBytes& disk, DWORD mode) {
    Storage storage;
    ::StgOpenStorageOnILockBytes(&disk, nullptr, mode | STGM_SHARE_EXCLUSIVE, nullptr, 0, Receive(storage));
    return storage;
}

std::vector<uint8_t> DocumentWith(const std::string& title) {
    FailingBytes disk;
    Storage storage;
    EXPECT_EQ(::StgCreateDocfileOnILockBytes(&disk, kMake, 0, Receive(storage)), S_OK);
    WriteBytes(storage.get(), L"Contents", std::string(5000, 'c'));
    if (!title.empty()) SaveSummaryInfo(storage.get(), SummaryOf(title).get());
    storage.reset();
    return disk.bytes;
}

struct Saved {
    bool done;
    std::vector<uint8_t> file;
};

// Saves into a document on a disk with that many free bytes.
Saved SaveWithFreeSpace(const std::vector<uint8_t>& document, ULONGLONG room, DWORD mode, CPropertySet* summary) {
    FailingBytes disk(document);
    disk.capacity = document.size() + room;
    Storage storage = OpenOn(disk, STGM_READWRITE | mode);
    const bool done = SUCCEEDED(SaveSummaryInfo(storage.get(), summary)) && SUCCEEDED(storage->Commit(STGC_DEFAULT));
    storage.reset();
    return {done, disk.bytes};
}

// Removes the zeros that may pad a summary to the length of a long stream.
Streams WithoutZeros(Streams streams) {
    const auto summary = streams.find(u"\005SummaryInformation");
    while (summary != streams.end() && !summary->second.empty() && summary->second.back() == 0)
        summary->second.pop_back();
    return streams;
}

// Direct and transacted mode; a document with a short, a long and no summary, and a short or long one to save.
class Saving : public testing::TestWithParam<std::tuple<DWORD, std::string, size_t>> {
protected:
    const DWORD mode_ = std::get<0>(GetParam());
    const std::vector<uint8_t> document_ = DocumentWith(std::get<1>(GetParam()));
    const OwnedSummary summary_ = SummaryOf(std::string(std::get<2>(GetParam()), 'n'));
    const Streams before_ = StreamsOf(document_);
};

// With every number of free sectors up to the required one: all streams are unchanged, or only the summary is new, as
// the result indicates.
TEST_P(Saving, KeepsEveryByteOnAFullDisk) {
    const Streams after = StreamsOf(SaveWithFreeSpace(document_, 100000, mode_, summary_.get()).file);
    ASSERT_NE(after, before_);
    int saved = 0;
    for (ULONGLONG room = 0; room < 36000; room += 512) {
        const Saved result = SaveWithFreeSpace(document_, room, mode_, summary_.get());
        EXPECT_EQ(WithoutZeros(StreamsOf(result.file)), WithoutZeros(result.done ? after : before_))
            << room << " bytes of room";
        EXPECT_LE(ReaderOf(result.file).State(), orlo::CompoundState::damaged) << room << " bytes of room";
        saved += result.done;
    }
    EXPECT_GT(saved, 1);
}

// After any step there is no unknown stream, and other streams are unchanged; in a transacted storage the summary is
// either the old or the new one.
TEST_P(Saving, LeavesNothingElseIfKilledAnywhere) {
    FailingBytes disk(document_);
    {
        const Storage storage = OpenOn(disk, STGM_READWRITE | mode_);
        disk.keepsHistory = true;
        ASSERT_EQ(SaveSummaryInfo(storage.get(), summary_.get()), S_OK);
        ASSERT_EQ(storage->Commit(STGC_DEFAULT), S_OK);
    }
    ASSERT_GT(disk.history.size(), 1u);
    const Streams after = StreamsOf(disk.bytes);
    for (size_t step = 0; step < disk.history.size(); ++step) {
        SCOPED_TRACE(step);
        Streams streams = StreamsOf(disk.history[step]);
        EXPECT_TRUE(mode_ == STGM_DIRECT || streams == before_ || streams == after);
        streams.erase(u"\005SummaryInformation");
        EXPECT_EQ(streams, Streams({{u"Contents", before_.at(u"Contents")}}));
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, Saving,
                         testing::Combine(testing::Values(DWORD{STGM_DIRECT}, DWORD{STGM_TRANSACTED}),
                                          testing::Values("before", std::string(3000, 'm'), std::string(6000, 'b'), ""),
                                          testing::Values(size_t{3}, size_t{3000}, size_t{20000})));

} // namespace

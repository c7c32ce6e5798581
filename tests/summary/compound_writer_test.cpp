// Compound files written with a new layout: real ones, synthetic ones of every form, and damaged ones. Runs under the
// sanitizers.

#include "orlo/summary/compound_writer.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>

#include "compound_bytes.h"
#include "files/file_error.h"
#include "orlo/propset/code_page.h"
#include "orlo/summary/edited_document.h"
#include "random_damage.h"
#include "synthetic_compound_file.h"
#include "tests/support/file_bytes.h"

namespace fs = std::filesystem;
using namespace orlo::compound;
using ByteVector = std::vector<uint8_t>;

namespace {

const std::u16string kSummary = u"\005SummaryInformation";

ByteVector Rewritten(const orlo::CompoundReader* original, const orlo::StreamsToWrite& streams) {
    ByteVector bytes;
    orlo::WriteCompoundFile(
        original, streams, [&bytes](std::string_view piece) { bytes.insert(bytes.end(), piece.begin(), piece.end()); });
    return bytes;
}

ByteVector Filled(size_t size) {
    ByteVector bytes(size);
    for (size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<uint8_t>(i * 7 + size);
    return bytes;
}

bool IsWritten(const std::u16string& path, const orlo::StreamsToWrite& streams) {
    return std::any_of(streams.begin(), streams.end(),
                       [&](const auto& stream) { return orlo::CompareNames(stream.first, path) == 0; });
}

// The data that an edit preserves of an element: its bytes, and name, kind, class, state bits and times.
struct PreservedData {
    ByteVector bytes, record;
    bool operator==(const PreservedData& other) const { return bytes == other.bytes && record == other.record; }
};
std::map<std::u16string, PreservedData> PreservedDataOf(const orlo::CompoundReader& file,
                                                        const orlo::StreamsToWrite& but) {
    std::map<std::u16string, PreservedData> preserved;
    for (const orlo::CompoundElement& element : file.Elements()) {
        if (IsWritten(element.path, but)) continue;
        PreservedData& is = preserved[element.path];
        if (element.stream) is.bytes = file.Read(file.Streams()[*element.stream]);
        is.record.assign(element.record.begin(), element.record.begin() + kColor);
        is.record.insert(is.record.end(), element.record.begin() + kClassId, element.record.begin() + kStart);
    }
    return preserved;
}

// Returns the number of black entries on every path of the tree, or -1 if they differ or a red entry is below another.
// The reader has checked the order. Entries in a rewritten file have the numbers of the reader's elements.
int BlackHeight(const orlo::CompoundReader& file, uint32_t id, bool isBelowRed) {
    if (id == kNone) return 0;
    const EntryBytes& record = file.Elements().at(id).record;
    const bool isRed = record[kColor] == kRed;
    const ByteVector bytes(record.begin(), record.end());
    const int left = BlackHeight(file, Number(bytes, kLeft), isRed);
    const int right = BlackHeight(file, Number(bytes, kRight), isRed);
    return (isRed && isBelowRed) || left < 0 || left != right ? -1 : left + !isRed;
}

void ExpectRedBlackTrees(const orlo::CompoundReader& file) {
    for (const orlo::CompoundElement& element : file.Elements())
        EXPECT_GE(BlackHeight(file, Number(ByteVector(element.record.begin(), element.record.end()), kChild), true), 0);
}

void ExpectRewritten(const ByteVector& file, const orlo::StreamsToWrite& streams) {
    const orlo::CompoundReader before = ReaderOf(file);
    const ByteVector bytes = Rewritten(&before, streams);
    const orlo::CompoundReader after = ReaderOf(bytes);
    EXPECT_EQ(after.State(), orlo::CompoundState::intact) << testing::PrintToString(after.Damage());
    EXPECT_EQ(PreservedDataOf(after, streams), PreservedDataOf(before, streams));
    EXPECT_EQ(std::vector<uint8_t>(after.Header().begin(), after.Header().begin() + kDirectorySectors),
              std::vector<uint8_t>(before.Header().begin(), before.Header().begin() + kDirectorySectors));
    size_t written = 0;
    for (const orlo::CompoundStream& stream : after.Streams())
        for (const auto& [name, wanted] : streams)
            if (orlo::CompareNames(name, stream.path) == 0) {
                EXPECT_EQ(after.Read(stream), wanted);
                ++written;
            }
    EXPECT_EQ(written, streams.size());
    ExpectRedBlackTrees(after);
}

// The documents of the repository, and of the folder named by ORLO_CORPUS.
std::vector<fs::path> Documents() {
    std::vector<fs::path> documents;
    const char* corpus = std::getenv("ORLO_CORPUS");
    for (const fs::path& folder : {fs::path(ORLO_TEST_DATA) / "ole", fs::path(corpus ? corpus : "")})
        if (!folder.empty())
            for (const auto& entry : fs::directory_iterator(folder))
                documents.push_back(entry.path());
    return documents;
}

TEST(CompoundWriter, RealDocumentsKeepEverythingElse) {
    int intact = 0;
    for (const fs::path& document : Documents()) {
        SCOPED_TRACE(document);
        const ByteVector file = FileBytes(document);
        if (ReaderOf(file).State() != orlo::CompoundState::intact) continue;
        ++intact;
        ExpectRewritten(file, {});
        for (const size_t size : {0u, 1u, 64u, 4095u, 4096u, 100000u})
            ExpectRewritten(file, {{kSummary, Filled(size)}, {u"\005documentsummaryinformation", Filled(size / 2)}});
    }
    EXPECT_GT(intact, 5);
    RecordProperty("documents", intact);
}

TEST(CompoundWriter, EveryVersionAndSectorSize) {
    const struct {
        size_t sectorBytes;
        uint16_t version;
    } rows[] = {{512, 3}, {4096, 4}, {4096, 3}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.version << " " << row.sectorBytes);
        ByteVector file = SyntheticFile(row.sectorBytes, row.version, row.version == 4, 1);
        orlo::StreamsToWrite streams;
        for (const size_t size : {0u, 1u, 63u, 64u, 65u, 511u, 512u, 4095u, 4096u, 4097u, 8192u, 3000000u}) {
            streams[u"a"] = Filled(size);
            ExpectRewritten(file, streams);
        }
        // Trees with every number of entries, and directories of several sectors.
        for (char16_t name = u'b'; name <= u'z'; ++name) {
            streams[std::u16string(1 + name % 5, name)] = Filled(name * 9u);
            ExpectRewritten(file, streams);
        }
        file = SyntheticFile(row.sectorBytes, row.version, row.version == 4, 1);
        ExpectRewritten(file, {{u"Long", Filled(row.sectorBytes * 120 * row.sectorBytes / 4)}}); // a list of tables
    }
}

TEST(CompoundWriter, NewFileIsOfVersion3) {
    const ByteVector file = Rewritten(nullptr, {{kSummary, Filled(100)}});
    EXPECT_EQ(ReaderOf(file).State(), orlo::CompoundState::intact);
    EXPECT_EQ(StreamsOf(file), (Streams{{kSummary, Filled(100)}}));
    EXPECT_EQ(file[kVersion], 3);
}

TEST(CompoundWriter, ReplacedStreamsKeepTheCaseOfTheirNames) {
    const ByteVector file = Rewritten(nullptr, {{u"Ähre", Filled(10)}});
    const orlo::CompoundReader reader = ReaderOf(file);
    EXPECT_EQ(StreamsOf(Rewritten(&reader, {{u"äHRE", Filled(20)}})), (Streams{{u"Ähre", Filled(20)}}));
}

TEST(CompoundWriter, Names) {
    for (const char16_t* name : {u"a", u"\005SummaryInformation", u"1234567890123456789012345678901"})
        EXPECT_TRUE(orlo::IsStreamName(name));
    for (const char16_t* name : {u"", u"a/b", u"a\\b", u"a:b", u"a!", u"12345678901234567890123456789012"})
        EXPECT_FALSE(orlo::IsStreamName(name));
}

// A file that stores runs of a byte as their length.
class SparseFile {
public:
    void Append(std::string_view piece) {
        if (piece.empty()) return;
        const bool isUniform = std::memcmp(piece.data(), piece.data() + 1, piece.size() - 1) == 0;
        pieces_[size_] = {isUniform ? std::string(1, piece[0]) : std::string(piece), piece.size()};
        size_ += piece.size();
    }
    uint64_t Size() const { return size_; }
    bool Read(uint64_t offset, void* buffer, size_t size) const {
        if (offset > size_ || size > size_ - offset) return false;
        auto* to = static_cast<char*>(buffer);
        for (auto at = std::prev(pieces_.upper_bound(offset)); size > 0; ++at) {
            const auto inside = static_cast<size_t>(offset - at->first);
            const size_t length = std::min(size, at->second.size - inside);
            if (at->second.bytes.size() == at->second.size)
                std::memcpy(to, at->second.bytes.data() + inside, length);
            else
                std::memset(to, at->second.bytes[0], length);
            to += length, offset += length, size -= length;
        }
        return true;
    }

private:
    struct Piece {
        std::string bytes;
        size_t size;
    };
    std::map<uint64_t, Piece> pieces_;
    uint64_t size_ = 0;
};

orlo::CompoundReader SparseReaderOf(const SparseFile& file) {
    const orlo::ReadAt read = [&file](uint64_t offset, void* buffer, size_t size) {
        return file.Read(offset, buffer, size);
    };
    return orlo::CompoundReader(read, file.Size());
}

// Its only stream ends past 2 GB. Contains a list of tables, these, the directory, and the stream.
SparseFile LongFile(uint64_t streamBytes) {
    constexpr size_t kLong = 4096, kNumbers = kLong / 4;
    const auto sectors = static_cast<uint32_t>(streamBytes / kLong);
    const uint32_t tables = sectors / kNumbers + 1, directory = tables + 1;
    ByteVector file = SyntheticFile(kLong, 4, 1, 1); // for its header and directory
    const ByteVector entries(file.begin() + 2 * kLong, file.begin() + 3 * kLong);
    file.resize(kLong * (1 + directory));
    Put(file, kTableSectors, tables);
    Put(file, kDirectoryStart, directory);
    Put(file, kListStart, 0);
    Put(file, kListSectors, 1);
    for (uint32_t i = 0; i < tables; ++i)
        Put(file, i < kTablesInHeader ? kTables + 4 * i : kLong + 4 * (i - kTablesInHeader), i + 1);
    for (uint32_t i = tables - kTablesInHeader; i < kNumbers; ++i)
        Put(file, kLong + 4 * i, i + 1 < kNumbers ? kNone : orlo::kEndOfChain);
    const auto put = [&](uint32_t sector, uint32_t next) { Put(file, 2 * kLong + 4 * sector, next); };
    for (uint32_t i = 0; i < tables * kNumbers; ++i)
        put(i, i == 0 ? kListSector : i <= tables ? kTableSector : i < directory + sectors ? i + 1 : kNone);
    put(directory, orlo::kEndOfChain);
    put(directory + sectors, orlo::kEndOfChain);
    file.insert(file.end(), entries.begin(), entries.end());
    const size_t entry = kLong * (1 + directory) + 128;
    Put(file, entry + kStart, directory + 1);
    std::memcpy(file.data() + entry + kSize, &streamBytes, sizeof streamBytes);
    SparseFile sparse;
    sparse.Append({reinterpret_cast<const char*>(file.data()), file.size()});
    const std::string piece(size_t{1} << 20, 'x');
    for (uint64_t at = 0; at < streamBytes; at += piece.size())
        sparse.Append(piece);
    return sparse;
}

TEST(CompoundWriter, LeavesTheLockedSectorFree) {
    const SparseFile file = LongFile(uint64_t{0x80000000} + (1 << 20));
    const orlo::CompoundReader before = SparseReaderOf(file);
    ASSERT_EQ(before.State(), orlo::CompoundState::intact) << testing::PrintToString(before.Damage());
    SparseFile written;
    orlo::WriteCompoundFile(&before, {{kSummary, Filled(5000)}},
                            [&](std::string_view piece) { written.Append(piece); });
    const orlo::CompoundReader after = SparseReaderOf(written);
    EXPECT_EQ(after.State(), orlo::CompoundState::intact) << testing::PrintToString(after.Damage());
    ByteVector locked(4096, 1);
    ASSERT_TRUE(written.Read(0x7FFFF000, locked.data(), locked.size()));
    EXPECT_EQ(locked, ByteVector(4096)) << "no stream has zeros";
    ASSERT_EQ(after.Streams().size(), 2u);
    EXPECT_EQ(after.Read(after.Streams()[1]), Filled(5000));
    orlo::CompoundStreamReader reader(after, after.Streams()[0]);
    uint64_t same = 0;
    for (ByteVector piece; reader.Next(piece);)
        same +=
            piece[0] == 'x' && std::memcmp(piece.data(), piece.data() + 1, piece.size() - 1) == 0 ? piece.size() : 0;
    EXPECT_EQ(same, uint64_t{0x80000000} + (1 << 20));
}

class DamagedFile : public testing::TestWithParam<const char*> {};

// Either rejected without changing the file, or edited correctly.
TEST_P(DamagedFile, IsRejectedOrEdited) {
    const ByteVector whole = FileBytes(fs::path(ORLO_TEST_DATA) / "ole" / GetParam());
    const fs::path path =
        fs::temp_directory_path() /
        ("orlo-damaged-" + std::to_string(testing::UnitTest::GetInstance()->random_seed()) + GetParam());
    int edited = 0, rejected = 0;
    for (unsigned seed = 0; seed < 1000; ++seed) {
        SCOPED_TRACE(seed);
        const ByteVector file = Damaged(whole, seed);
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
        const orlo::StreamsToWrite streams = {{kSummary, Filled(seed % 3 * 4000)}};
        try {
            orlo::EditedDocument document(path);
            document.Write("\005SummaryInformation", streams.at(kSummary));
            document.Commit();
            ++edited;
            const ByteVector after = FileBytes(path);
            EXPECT_EQ(PreservedDataOf(ReaderOf(after), streams), PreservedDataOf(ReaderOf(file), streams));
        } catch (const orlo::UnfitDocument&) {
            ++rejected;
            EXPECT_EQ(FileBytes(path), file);
            EXPECT_NE(ReaderOf(file).State(), orlo::CompoundState::intact);
        }
    }
    fs::remove(path);
    EXPECT_GT(edited, 100);
    EXPECT_GT(rejected, 200);
}

INSTANTIATE_TEST_SUITE_P(Real, DamagedFile,
                         testing::Values("test11--695187.doc", "input-bw-one-band--340370.fpx", "sent--da96eb.msg",
                                         "bug55030--18fccf.ppt", "Bug48075--a2ceba.doc"));

} // namespace

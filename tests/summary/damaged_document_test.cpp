// Real documents with random damage in their structure: the system must neither hang nor crash, and no other stream may
// change.

#include "orlo/summary/summary_info.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "compound_bytes.h"
#include "failing_bytes.h"
#include "orlo/win/com_owner.h"
#include "owned_summary.h"
#include "random_damage.h"
#include "support/file_bytes.h"
#include "support/system_streams.h"

namespace fs = std::filesystem;

namespace {

using Bytes = std::vector<uint8_t>;
using orlo::Owned;
using orlo::Receive;
void ExpectSavingChangesNoOther(const Bytes& file, size_t titleLength) {
    FailingBytes disk(file);
    const OwnedSummary summary = SummaryOf(std::string(titleLength, 't'));
    {
        Owned<IStorage> storage;
        constexpr DWORD kWrite = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
        ASSERT_EQ(::StgOpenStorageOnILockBytes(&disk, nullptr, kWrite, nullptr, 0, Receive(storage)), S_OK);
        EXPECT_EQ(SaveSummaryInfo(storage.get(), summary.get()), S_OK);
    }
    EXPECT_EQ(ReaderOf(disk.bytes).State(), orlo::CompoundState::intact);
    Streams before = StreamsOf(file), after = StreamsOf(disk.bytes);
    before.erase(u"\005SummaryInformation");
    EXPECT_GE(after[u"\005SummaryInformation"].size(), titleLength);
    after.erase(u"\005SummaryInformation");
    EXPECT_EQ(before, after);
}

class DamagedDocument : public testing::TestWithParam<const char*> {};

TEST_P(DamagedDocument, IsRejectedOrRead) {
    const Bytes whole = FileBytes(fs::path(ORLO_TEST_DATA) / "ole" / GetParam());
    const fs::path path = fs::temp_directory_path() / "orlo-random-damage.doc";
    int intact = 0, rejected = 0;
    for (unsigned seed = 0; seed < 1000; ++seed) {
        SCOPED_TRACE(seed);
        const Bytes file = Damaged(whole, seed);
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
        const auto state = ReaderOf(file).State();
        Owned<IStorage> storage;
        CPropertySet* read = nullptr;
        const HRESULT result = GetFileSummaryInfo(path.string().c_str(), Receive(storage), &read);
        const OwnedSummary summary(read);
        if (state == orlo::CompoundState::unsafe) {
            EXPECT_EQ(result, STG_E_DOCFILECORRUPT);
            ++rejected;
        }
        const Streams streams = storage ? SystemStreamsOf(storage.get()) : Streams();
        if (state != orlo::CompoundState::intact) continue;
        ++intact;
        EXPECT_TRUE(!storage || streams == StreamsOf(file));
        ExpectSavingChangesNoOther(file, seed % 3 * 4000);
    }
    fs::remove(path);
    EXPECT_GT(intact, 100);
    EXPECT_GT(rejected, 200);
}

INSTANTIATE_TEST_SUITE_P(Real, DamagedDocument,
                         testing::Values("test11--695187.doc", "input-bw-one-band--340370.fpx", "sent--da96eb.msg"));

} // namespace

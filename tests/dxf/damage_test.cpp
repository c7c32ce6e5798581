// Truncated and altered files: each is read or rejected with a message, and the result can be iterated. Under the
// sanitizers this also detects accesses out of bounds.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "drawcore/src/dxf/extents.h"
#include "drawcore/src/dxf/reader.h"
#include "tests/dxf/test_files.h"

namespace {

// Small drawings that together contain every kind of record.
const char* const kFiles[] = {"made-inserts-R2000.dxf", "made-gbk-R2004.dxf",       "kabeja-hatch_1.dxf",
                              "made-escapes-R12.dxf",   "trimesh-ae.r12a.dxf",      "dxf-blocks2.dxf",
                              "vuer-linetypes.dxf",     "pyleecan-rotor-sector.dxf"};

std::string Load(const char* file) {
    return ReadBytes(kDrawings + file);
}

// Returns true if the file could be read.
bool TryRead(const std::string& bytes) {
    try {
        const dxf::Document document = dxf::Read(bytes, {});
        dxf::ExtentsOf(document);
        EXPECT_LE(document.warnings.size(), dxf::Document::kMaxWarnings + 1);
        return true;
    } catch (const dxf::ReadError& error) {
        const auto isEnd = [](char c) { return c == '\n' || c == '\r'; };
        const auto lines = static_cast<uint32_t>(std::count_if(bytes.begin(), bytes.end(), isEnd)) + 1;
        EXPECT_LE(error.Line(), lines);
        EXPECT_FALSE(error.Text().empty());
        return false;
    }
}

TEST(Damage, ATruncatedFileIsRejected) {
    for (const char* file : kFiles) {
        const std::string whole = Load(file);
        const size_t end = whole.rfind("EOF");
        ASSERT_NE(end, whole.npos) << file;
        ASSERT_TRUE(TryRead(whole)) << file;
        for (size_t size = 0; size < end + 3; size += 1 + size / 200)
            EXPECT_FALSE(TryRead(whole.substr(0, size))) << file << " cut at " << size;
    }
}

TEST(Damage, AlteredBytesDoNoHarm) {
    std::mt19937 random(20);
    int read = 0;
    for (const char* file : kFiles) {
        const std::string whole = Load(file);
        for (int round = 0; round < 150; ++round) {
            std::string altered = whole;
            for (int i = 0; i < 4; ++i)
                altered[random() % altered.size()] = static_cast<char>("0123456789-.{\\\n\r \xFF"[random() % 17]);
            read += TryRead(altered);
        }
    }
    EXPECT_GT(read, 0);
}

TEST(Damage, RemovedLinesDoNoHarm) {
    std::mt19937 random(30);
    for (const char* file : kFiles) {
        const std::string whole = Load(file);
        for (int round = 0; round < 100; ++round) {
            std::string altered = whole;
            const size_t start = altered.find('\n', random() % altered.size());
            if (start != altered.npos) altered.erase(start, altered.find('\n', start + 1) - start);
            TryRead(altered);
        }
    }
}

} // namespace

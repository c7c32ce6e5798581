// CStdioFile over real files.

#include <afx.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

class File : public ::testing::Test {
protected:
    void TearDown() override { std::remove(kName); }
    static constexpr const char* kName = "afx_file_test.tmp";

    static std::string Content() {
        CStdioFile file(kName, CStdioFile::modeRead | CStdioFile::typeBinary);
        char buffer[64];
        return std::string(buffer, file.Read(buffer, sizeof buffer));
    }
    template <class Work>
    static bool Throws(Work work) {
        try {
            work();
        } catch (CFileException* e) {
            e->Delete();
            return true;
        }
        return false;
    }
    static void Fill(LPCSTR text) {
        CStdioFile file(kName, CStdioFile::modeCreate | CStdioFile::modeWrite | CStdioFile::typeBinary);
        file.WriteString(text);
    }
};

TEST_F(File, OverwritesAfterSeekingBack) {
    CStdioFile file(kName, CStdioFile::modeCreate | CStdioFile::modeWrite);
    file.WriteString("one\n");
    const ULONGLONG place = file.GetPosition();
    file.WriteString("two\nthree");
    const ULONGLONG end = file.GetPosition();
    file.Seek(static_cast<LONGLONG>(place), CStdioFile::begin);
    file.WriteString("TWO");
    EXPECT_EQ(end, file.Seek(0, CStdioFile::end));
    file.WriteString("!");
    file.Close();

    CStdioFile again(kName, CStdioFile::modeRead);
    CString line;
    for (const char* expected : {"one", "TWO", "three!"}) {
        EXPECT_TRUE(again.ReadString(line));
        EXPECT_STREQ(expected, line);
    }
    EXPECT_FALSE(again.ReadString(line));
    EXPECT_TRUE(line.IsEmpty());
}

struct Mode {
    const char* name;
    UINT flags;
    const char* content; // after "new" was written over "old text"
};

class FileMode : public File, public ::testing::WithParamInterface<Mode> {};

TEST_P(FileMode, DeterminesWhetherAnExistingFileIsKept) {
    Fill("old text");
    CStdioFile file(kName, GetParam().flags | CStdioFile::typeBinary);
    file.WriteString("new");
    file.Close();
    EXPECT_EQ(GetParam().content, Content());
}

const Mode kModes[] = {
    {"Create", CStdioFile::modeCreate | CStdioFile::modeWrite, "new"},
    {"KeepContent", CStdioFile::modeCreate | CStdioFile::modeNoTruncate | CStdioFile::modeReadWrite, "new text"},
    {"Write", CStdioFile::modeWrite, "new text"},
};
INSTANTIATE_TEST_SUITE_P(All, FileMode, ::testing::ValuesIn(kModes), [](auto& i) { return i.param.name; });

TEST_F(File, IsCreatedWithModeNoTruncate) {
    CStdioFile file(kName, CStdioFile::modeCreate | CStdioFile::modeNoTruncate | CStdioFile::modeReadWrite);
    EXPECT_NE(file.m_pStream, nullptr);
}

TEST_F(File, ReportsWhyItCannotBeOpened) {
    CFileException reason;
    CStdioFile file;
    EXPECT_FALSE(file.Open("no such folder/file", CStdioFile::modeRead, &reason));
    EXPECT_EQ(CFileException::fileNotFound, reason.m_cause);
    EXPECT_STREQ(reason.m_strFileName, "no such folder/file");
    EXPECT_FALSE(file.Open("still no such file", CStdioFile::modeRead));
    try {
        CStdioFile other("no such file", CStdioFile::modeWrite);
        FAIL();
    } catch (CFileException* e) {
        EXPECT_EQ(CFileException::fileNotFound, e->m_cause);
        e->Delete();
    }
}

TEST_F(File, ThrowsIfItCannotWriteOrSeek) {
    Fill("text");
    CStdioFile file(kName, CStdioFile::modeRead);
    EXPECT_TRUE(Throws([&] {
        file.WriteString("no");
        file.Flush();
    }));
    EXPECT_TRUE(Throws([&] { file.Seek(-1, CStdioFile::begin); }));
}

TEST_F(File, TakesOwnershipOfAnOpenStream) {
    {
        CStdioFile file(std::fopen(kName, "wb"));
        file.Write("ab\0cd", 5);
    }
    EXPECT_EQ(Content(), std::string("ab\0cd", 5));
}

} // namespace

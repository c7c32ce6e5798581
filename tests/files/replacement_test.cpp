// Replacing files: preserved attributes, rejected targets, and temporary files.

#include "files/file_replacement.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#ifdef _WIN32
#include <windows.h>
#else
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/xattr.h>
#include <unistd.h>
#endif

#include "files/file_error.h"
#include "files/open_file.h"

namespace fs = std::filesystem;

namespace {

class Replacement : public testing::Test {
protected:
    Replacement() {
        fs::remove_all(folder);
        fs::create_directory(folder);
        Put(path, "old");
    }
    ~Replacement() override { fs::remove_all(folder); }

    static void Put(const fs::path& file, const std::string& bytes) { std::ofstream(file, std::ios::binary) << bytes; }
    static std::string Get(const fs::path& file) {
        std::ifstream stream(file, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(stream), {});
    }
    static void Replace(const fs::path& file, const std::string& bytes) {
        files::FileReplacement replacement(file);
        replacement.Write(bytes);
        replacement.Commit();
    }
    void ExpectRejected(const fs::path& file, const std::string& reason) const {
        const auto before = Count();
        try {
            Replace(file, "new");
            ADD_FAILURE() << file << " was replaced";
        } catch (const files::FileError& error) {
            EXPECT_EQ(std::string(error.what()).find(reason), 0u) << error.what();
        }
        EXPECT_EQ(Count(), before);
    }
    std::ptrdiff_t Count() const { return std::distance(fs::directory_iterator(folder), fs::directory_iterator()); }

    const fs::path folder = fs::temp_directory_path() / fs::u8path("ers\u00E4tzt \u4E57");
    const fs::path path = folder / "plan.dxf";
};

TEST_F(Replacement, ReplacesAFileOrCreatesOne) {
    const std::string large(3500000, 'n');
    for (const std::string& bytes : {large, std::string(), std::string("a\r\n\0b", 5)}) {
        Replace(path, bytes);
        EXPECT_TRUE(Get(path) == bytes) << bytes.size();
        EXPECT_TRUE(files::HasContents(path, bytes));
        EXPECT_FALSE(files::HasContents(path, bytes + "x"));
    }
    EXPECT_FALSE(files::HasContents(path, std::string("a\r\n\0c", 5)));
    Replace(folder / std::string(200, 'l'), "new");
    EXPECT_EQ(Get(folder / std::string(200, 'l')), "new");
    EXPECT_EQ(Count(), 2) << "and nothing else";
}

TEST_F(Replacement, KeepsTheOldFileUntilCommit) {
    {
        files::FileReplacement first(path), second(path);
        first.Write("first");
        second.Write("second");
        EXPECT_EQ(Get(path), "old");
        second.Commit();
        EXPECT_EQ(Get(path), "second");
    }
    EXPECT_EQ(Get(path), "second");
    std::vector<size_t> reports;
    const auto cancel = [&](size_t written) {
        reports.push_back(written);
        if (written > 2000000) throw std::string("enough");
    };
    EXPECT_THROW(files::FileReplacement(path).Write(std::string(9000000, 'n'), cancel), std::string);
    EXPECT_EQ(reports, (std::vector<size_t>{1 << 20, 2 << 20}));
    EXPECT_EQ(Get(path), "second");
    EXPECT_EQ(Count(), 1);
}

TEST_F(Replacement, RejectsTargetsThatAreNotWritableFiles) {
    constexpr char kIrregular[] = "not a regular file; it cannot be replaced";
    ExpectRejected(folder, kIrregular);
    ExpectRejected(folder / "missing" / "plan.dxf", "cannot create a file in its folder: no such folder");
    fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    ExpectRejected(path, "the file is read-only");
    EXPECT_EQ(Get(path), "old");
    fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
#ifdef _WIN32
    ExpectRejected("NUL", kIrregular);
#else
    // Its own device file, so that a fault does not replace one of the system.
    if (::mknod((folder / "null").c_str(), S_IFCHR | 0666, makedev(1, 3)) == 0) {
        ExpectRejected(folder / "null", kIrregular);
        EXPECT_TRUE(fs::is_character_file(folder / "null"));
    }
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
    ExpectRejected(folder / "pipe", kIrregular);
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
    fs::create_symlink("nothing", folder / "dangling");
    ExpectRejected(folder / "dangling", kIrregular);
    EXPECT_TRUE(fs::is_symlink(folder / "dangling"));
#endif
}

#ifdef _WIN32

TEST_F(Replacement, KeepsAttributesAndTheTimeOfCreation) {
    constexpr DWORD kAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    if (!::SetFileAttributesW(path.c_str(), kAttributes) ||
        (::GetFileAttributesW(path.c_str()) & kAttributes) != kAttributes)
        GTEST_SKIP() << "the file system has no such attributes";
    const DWORD before = ::GetFileAttributesW(path.c_str());
    Replace(path, "new");
    EXPECT_EQ(::GetFileAttributesW(path.c_str()), before);
    EXPECT_EQ(Get(path), "new");
}

TEST_F(Replacement, RejectsAFileThatAnotherProgramHasOpen) {
    const files::OpenFile held(::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(held);
    ExpectRejected(path, "the file cannot be replaced: ");
}

#else

TEST_F(Replacement, FollowsLinks) {
    fs::create_directory(folder / "inner");
    fs::create_symlink("../plan.dxf", folder / "inner" / "link");
    fs::create_symlink("inner/link", folder / "further");
    Replace(folder / "further", "new");
    EXPECT_EQ(Get(path), "new");
    EXPECT_TRUE(fs::is_symlink(folder / "further"));
    EXPECT_TRUE(fs::is_symlink(folder / "inner" / "link"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "inner"), fs::directory_iterator()), 1);
}

TEST_F(Replacement, KeepsPermissionsOwnerAndExtendedAttributes) {
    ASSERT_EQ(::chmod(path.c_str(), 0642), 0);
    const bool isRoot = ::geteuid() == 0;
    if (isRoot) {
        ASSERT_EQ(::chown(path.c_str(), 1234, 2345), 0);
    }
    const bool hasAttributes = ::setxattr(path.c_str(), "user.origin", "scan", 4, 0) == 0;
    Replace(path, "new");
    struct stat is;
    ASSERT_EQ(::stat(path.c_str(), &is), 0);
    EXPECT_EQ(is.st_mode & 07777, 0642u);
    if (isRoot) {
        EXPECT_EQ(is.st_uid, 1234u);
        EXPECT_EQ(is.st_gid, 2345u);
    }
    char value[8] = "";
    if (hasAttributes) {
        EXPECT_EQ(::getxattr(path.c_str(), "user.origin", value, sizeof value), 4);
        EXPECT_STREQ(value, "scan");
    }
}

// Other users cannot read the new contents before the file has the permissions of the old one.
TEST_F(Replacement, IsPrivateUntilItReplacesAFile) {
    const files::FileReplacement replacement(path);
    struct stat is;
    ASSERT_EQ(::stat(replacement.Path().c_str(), &is), 0);
    EXPECT_EQ(is.st_mode & 077, 0u);
}

#endif

} // namespace

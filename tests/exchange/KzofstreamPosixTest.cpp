#if !defined(_WIN32)

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <thread>
#include <vector>

#include "tests/support/TemporaryFolder.h"
#include "varnel/exchange/FileSystem.h"
#include "varnel/exchange/kzofstream.h"

namespace {

using testing::ElementsAre;
using varnel::FileSystem;
using varnel::test::TemporaryFolder;

unsigned modeOf(const std::string &path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777u;
}

bool save(const std::string &path, const std::string &content = "new") {
    kzofstream out(path);
    out.stream() << content;
    return out.commit();
}

TEST(KzofstreamPosix, KeepsTheModeOfTheOldFile) {
    const TemporaryFolder folder;
    for (const unsigned mode : {0600u, 0640u, 0644u, 0666u, 0755u, 0444u}) {
        SCOPED_TRACE(mode);
        const std::string path = folder.write("house.xml", "old");
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
        EXPECT_TRUE(save(path));
        EXPECT_EQ(modeOf(path), mode);
        ASSERT_TRUE(std::filesystem::remove(path));
    }
}

TEST(KzofstreamPosix, GivesANewFileTheModeOfAnyNewFile) {
    const TemporaryFolder folder;
    for (const unsigned mask : {022u, 077u, 0u}) {
        SCOPED_TRACE(mask);
        const mode_t before = ::umask(mask);
        const std::string path = folder.file(std::to_string(mask));
        EXPECT_TRUE(save(path));
        EXPECT_EQ(::umask(before), mask) << "the mask itself stays";
        EXPECT_EQ(modeOf(path), 0666u & ~mask);
    }
}

// The mask belongs to the whole process: to set it, were it for a moment only, is to lose it to another
// thread.
TEST(KzofstreamPosix, SeveralThreadsLeaveTheMaskOfNewFiles) {
    const TemporaryFolder folder;
    const mode_t before = ::umask(022);
    std::vector<std::thread> threads;
    for (const char *name : {"a.xml", "b.xml", "c.xml"})
        threads.emplace_back([file = folder.write(name, ""), missing = folder.file("missing")] {
            for (int i = 0; i < 3000; ++i) FileSystem::get().adoptMode(file, missing);
        });
    for (std::thread &thread : threads) thread.join();
    EXPECT_EQ(::umask(before), 022u);
    EXPECT_EQ(modeOf(folder.file("a.xml")), 0644u);
    EXPECT_THAT(folder.names(), ElementsAre("a.xml", "b.xml", "c.xml"));
}

TEST(KzofstreamPosix, ASymbolicLinkStaysOneAndItsFileIsReplaced) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.file("store"));
    folder.write("store/house-7.xml", "old");
    std::filesystem::create_symlink("house-7.xml", folder.file("store/latest.xml"));
    std::filesystem::create_symlink(folder.file("store/latest.xml"), folder.file("house.xml"));
    EXPECT_TRUE(save(folder.file("house.xml")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.file("house.xml")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.file("store/latest.xml")));
    EXPECT_FALSE(std::filesystem::is_symlink(folder.file("store/house-7.xml")));
    EXPECT_EQ(folder.read("store/house-7.xml"), "new");
}

TEST(KzofstreamPosix, ALinkToNothingGetsItsFile) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("house-7.xml", folder.file("house.xml"));
    EXPECT_TRUE(save(folder.file("house.xml")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.file("house.xml")));
    EXPECT_EQ(folder.read("house-7.xml"), "new");
}

TEST(KzofstreamPosix, ALoopOfLinksIsNotReplaced) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("b.xml", folder.file("a.xml"));
    std::filesystem::create_symlink("a.xml", folder.file("b.xml"));
    EXPECT_FALSE(save(folder.file("a.xml")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.file("a.xml")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.file("b.xml")));
}

TEST(KzofstreamPosix, AFolderAndAPipeAreNotReplaced) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.file("folder"));
    ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(save(folder.file("folder")));
    EXPECT_FALSE(save(folder.file("pipe")));
    EXPECT_TRUE(std::filesystem::is_directory(folder.file("folder")));
    EXPECT_TRUE(std::filesystem::is_fifo(folder.file("pipe")));
    EXPECT_THAT(folder.names(), ElementsAre("folder", "pipe"));
}

TEST(KzofstreamPosix, AnotherHardLinkKeepsTheOldContent) {
    const TemporaryFolder folder;
    const std::string path = folder.write("house.xml", "old");
    std::filesystem::create_hard_link(path, folder.file("archive.xml"));
    EXPECT_TRUE(save(path));
    EXPECT_EQ(folder.read("house.xml"), "new");
    EXPECT_EQ(folder.read("archive.xml"), "old");
}

TEST(KzofstreamPosix, AcrossRealFileSystemsTheTargetIsReplacedWithItsMode) {
    if (!std::filesystem::is_directory("/dev/shm") || ::access("/dev/shm", W_OK) != 0) {
        EXPECT_TRUE(save(TemporaryFolder().file("house.xml")));
        return;  // a machine with one file system only
    }
    const TemporaryFolder folder("/dev/shm");
    const std::string path = folder.write("house.xml", "old");
    ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
    EXPECT_TRUE(save(path));
    EXPECT_EQ(folder.read("house.xml"), "new");
    EXPECT_EQ(modeOf(path), 0640u);
    EXPECT_THAT(folder.names(), ElementsAre("house.xml"));
}

/// The largest size of a file that this process may write, while it lives.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

  private:
    void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before_{};
};

TEST(KzofstreamPosix, AFullDiskLeavesTheTargetAndNoTemporaryFile) {
    const TemporaryFolder folder;
    folder.write("house.xml", "old");
    {
        const FileSizeLimit limit(100000);
        for (const std::size_t size : {std::size_t{100001}, std::size_t{5000000}}) {
            SCOPED_TRACE(size);
            EXPECT_FALSE(save(folder.file("house.xml"), std::string(size, 'x')));
            EXPECT_EQ(folder.read("house.xml"), "old");
        }
        EXPECT_TRUE(save(folder.file("small.xml"), std::string(100000, 'x')));
    }
    EXPECT_EQ(folder.read("small.xml").size(), 100000u);
}

TEST(FileSystemPosix, ADeviceWithoutSpaceFailsAtTheCopy) {
    const TemporaryFolder folder;
    const std::string path = folder.write("house.xml", "old");
    EXPECT_FALSE(FileSystem::get().copy(path, "/dev/full"));
    EXPECT_EQ(folder.read("house.xml"), "old");
}

TEST(FileSystemPosix, ACopyThatFailsHalfWayLeavesNothing) {
    const TemporaryFolder folder;
    const std::string from = folder.write("large.xml", std::string(200000, 'x'));
    const std::string to = folder.write("copy.xml", "");
    {
        const FileSizeLimit limit(100000);
        EXPECT_FALSE(FileSystem::get().copy(from, to));
    }
    EXPECT_EQ(folder.read("copy.xml"), "");
    EXPECT_TRUE(FileSystem::get().copy(from, to));
    EXPECT_EQ(folder.read("copy.xml").size(), 200000u);
}

TEST(FileSystemPosix, MissingFilesAreFailures) {
    const TemporaryFolder folder;
    FileSystem &files = FileSystem::get();
    const std::string missing = folder.file("missing");
    EXPECT_FALSE(files.exists(missing));
    EXPECT_FALSE(files.copy(missing, folder.write("copy.xml", "")));
    EXPECT_FALSE(files.copy(folder.write("house.xml", "old"), missing));
    EXPECT_FALSE(files.sync(missing));
    EXPECT_FALSE(files.adoptMode(missing, missing));
    EXPECT_FALSE(files.replace(missing, folder.file("house.xml")));
    EXPECT_FALSE(files.remove(missing));
    EXPECT_EQ(files.makeTemporary(missing + "/"), "");
    EXPECT_EQ(files.makeBeside(missing + "/house.xml"), "");
    EXPECT_EQ(files.resolve(missing), missing);
    EXPECT_EQ(folder.read("house.xml"), "old");
}

TEST(FileSystemPosix, TemporaryFilesAreNewEmptyAndPrivate) {
    const TemporaryFolder folder;
    const std::string first = FileSystem::get().makeTemporary(folder.path() + "/");
    const std::string second = FileSystem::get().makeBeside(first);
    ASSERT_NE(first, "");
    EXPECT_NE(first, second);
    for (const std::string &path : {first, second}) {
        EXPECT_EQ(std::filesystem::path(path).parent_path(), folder.path());
        EXPECT_EQ(std::filesystem::file_size(path), 0u);
        EXPECT_EQ(modeOf(path), 0600u);
    }
}

}  // namespace

#endif

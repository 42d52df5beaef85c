#include <gtest/gtest.h>

#include <filesystem>
#include <type_traits>
#include <utility>

#include "tests/support/TemporaryFolder.h"
#include "varnel/contracts/Tools/Directory.h"
#include "varnel/contracts/Tools/Path.h"
#include "varnel/contracts/Tools/TempPath.h"

namespace {

TEST(ToolsPath, IsEmptyUntilItIsSet) {
    const Tools::Path path;
    EXPECT_EQ(path.path(), "");
    EXPECT_EQ(path.path(true), "");
    EXPECT_EQ(path.location(), "");
    EXPECT_EQ(path.directory(), "");
    EXPECT_EQ(path.file(), "");
}

#if !defined(_WIN32)

TEST(ToolsPath, TellsTheParts) {
    const struct {
        const char *path, *directory, *file;
    } rows[] = {
        {"house.xml", "", "house"},
        {"/house.xml", "/", "house"},
        {"/projects/house.xml", "/projects/", "house"},
        {"projects/house", "projects/", "house"},
        {"../projects.old/house", "../projects.old/", "house"},
        {"/projects/house.tar.gz", "/projects/", "house.tar"},
        {"/projects/.house", "/projects/", ".house"},
        {"/projects/.house.xml", "/projects/", ".house"},
        {"/projects/house.", "/projects/", "house"},
        {"/projects/", "/projects/", ""},
        {"/projects/..", "/projects/", ".."},
        {"/projects/.", "/projects/", "."},
        {"/", "/", ""},
        {"a b/c\\d.xml", "a b/", "c\\d"},
        {"//server/share/house.xml", "//server/share/", "house"},
        {"C:house.xml", "", "C:house"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.path);
        const Tools::Path path(row.path);
        EXPECT_EQ(path.path(), row.path);
        EXPECT_EQ(path.path(true), row.path);
        EXPECT_EQ(path.path(false), row.path);
        EXPECT_EQ(path.location(), "");
        EXPECT_EQ(path.directory(), row.directory);
        EXPECT_EQ(path.file(), row.file);
    }
}

#else

TEST(ToolsPath, TellsTheParts) {
    const struct {
        const char *path, *location, *directory, *file;
    } rows[] = {
        {"C:\\projects\\house.xml", "C:", "\\projects\\", "house"},
        {"C:house.xml", "C:", "", "house"},
        {"C:/projects/house", "C:", "/projects/", "house"},
        {"\\\\server\\share\\projects\\house.xml", "\\\\server\\share", "\\projects\\", "house"},
        {"\\\\server", "\\\\server", "", ""},
        {"projects\\.house", "", "projects\\", ".house"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.path);
        const Tools::Path path(row.path);
        EXPECT_EQ(path.path(), row.path);
        EXPECT_EQ(path.location(), row.location);
        EXPECT_EQ(path.directory(), row.directory);
        EXPECT_EQ(path.file(), row.file);
    }
}

#endif

TEST(ToolsPath, SetFileReplacesFileAndExtension) {
    Tools::Path path("/projects/house.xml");
    EXPECT_EQ(&path.setFile("garage"), &path);
    EXPECT_EQ(path.path(), "/projects/garage");
    EXPECT_EQ(path.file(), "garage");
    path.setFile("barn.txt");
    EXPECT_EQ(path.path(), "/projects/barn.txt");
    EXPECT_EQ(path.directory(), "/projects/");
    EXPECT_EQ(path.file(), "barn");
    path.setFile("");
    EXPECT_EQ(path.path(), "/projects/");
}

TEST(ToolsPath, SetFileOfAnEmptyPathIsTheFileAlone) {
    Tools::Path path;
    path.setFile("test");
    EXPECT_EQ(path.path(), "test");
    EXPECT_EQ(path.directory(), "");
    EXPECT_EQ(path.file(), "test");
}

TEST(ToolsPath, MayBeSetFromItsOwnParts) {
    Tools::Path path("/projects/house.xml");
    path.setPath(path.path());
    EXPECT_EQ(path.path(), "/projects/house.xml");
    path.setPath(path.file());
    EXPECT_EQ(path.path(), "house");
    EXPECT_EQ(path.directory(), "");
    EXPECT_EQ(path.file(), "house");
    path.setPath("/projects/house.xml").setFile(path.directory());
    EXPECT_EQ(path.path(), "/projects//projects/");
}

TEST(ToolsPath, SetPathForgetsTheFormerParts) {
    Tools::Path path("/projects/house.xml");
    EXPECT_EQ(&path.setPath(""), &path);
    EXPECT_EQ(path.path(), "");
    EXPECT_EQ(path.directory(), "");
    EXPECT_EQ(path.file(), "");
}

TEST(ToolsPath, IsAValue) {
    Tools::Path source("/projects/house.xml");
    const Tools::Path copy(source);
    Tools::Path assigned;
    assigned = source;
    source.setPath("/other/barn.xml");
    EXPECT_EQ(copy.path(), "/projects/house.xml");
    EXPECT_EQ(copy.file(), "house");
    EXPECT_EQ(assigned.directory(), "/projects/");
    assigned = std::move(source);
    EXPECT_EQ(assigned.path(), "/other/barn.xml");
    EXPECT_EQ(assigned.file(), "barn");
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<Tools::Path>);
}

TEST(ToolsPath, KeepsLongAndOddTextWhole) {
    const std::string directory = std::string(10000, 'd') + "/";
    const std::string odd("\xff\n\0 ", 4);
    Tools::Path path(directory + odd);
    EXPECT_EQ(path.directory(), directory);
    EXPECT_EQ(path.file(), odd);
}

TEST(ToolsTempPath, IsADirectoryWithTheSeparatorAtItsEnd) {
    const std::string path = Tools::getTempPath();
    EXPECT_TRUE(std::filesystem::is_directory(path));
    EXPECT_EQ(Tools::Path(path).file(), "");
    EXPECT_EQ(Tools::Path(path).setFile("test").path(), path + "test");
    EXPECT_EQ(Tools::Path(path).setFile("test").file(), "test");
}

class ToolsDirectory : public testing::Test {
  protected:
    void TearDown() override { std::filesystem::current_path(start_); }

    const std::filesystem::path start_ = std::filesystem::current_path();
    const varnel::test::TemporaryFolder folder_;
};

TEST_F(ToolsDirectory, BecomesTheWorkingDirectory) {
    EXPECT_TRUE(Tools::Directory::setCurrent(folder_.path() + "/"));
    EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::current_path(), folder_.path()));
}

TEST_F(ToolsDirectory, StaysWhenThereIsNoneOfThatName) {
    const std::string file = folder_.write("house.xml", "<VARNEL/>");
    for (const std::string &path : {folder_.file("missing"), file, std::string()}) {
        SCOPED_TRACE(path);
        EXPECT_FALSE(Tools::Directory::setCurrent(path));
        EXPECT_EQ(std::filesystem::current_path(), start_);
    }
}

}  // namespace

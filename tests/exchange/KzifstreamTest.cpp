#include "varnel/exchange/kzifstream.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <type_traits>

#include "tests/support/FailingFileSystem.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using varnel::test::FailingFileSystem;
using varnel::test::TemporaryFolder;

static_assert(!std::is_copy_constructible_v<kzifstream> && !std::is_copy_assignable_v<kzifstream>);

std::string all(kzifstream &in) {
    return {std::istreambuf_iterator<char>(in.stream()), {}};
}

TEST(Kzifstream, ReadsAFileToTheByte) {
    const TemporaryFolder folder;
    const std::string content("<VARNEL>\r\n\0\x1a\xff</VARNEL>", 23);
    kzifstream in(folder.write("house.xml", content).c_str());
    EXPECT_TRUE(in.isOpen());
    EXPECT_EQ(all(in), content);
}

TEST(Kzifstream, AnEmptyFileIsOpenAndGood) {
    const TemporaryFolder folder;
    kzifstream in(folder.write("house.xml", "").c_str());
    EXPECT_TRUE(in.isOpen());
    EXPECT_TRUE(in.stream().good());
    EXPECT_EQ(all(in), "");
}

TEST(Kzifstream, AMissingFileIsNotOpen) {
    const TemporaryFolder folder;
    kzifstream in(folder.file("missing.xml").c_str());
    EXPECT_FALSE(in.isOpen());
    EXPECT_FALSE(in.stream().good());
    EXPECT_EQ(all(in), "");
}

TEST(Kzifstream, AFolderIsNotOpen) {
    const TemporaryFolder folder;
    kzifstream in(folder.path().c_str());
    EXPECT_FALSE(in.isOpen());
    EXPECT_FALSE(in.stream().good());
}

TEST(Kzifstream, WithoutAPathIsNotOpen) {
    EXPECT_FALSE(kzifstream(nullptr).isOpen());
    EXPECT_FALSE(kzifstream("").isOpen());
}

TEST(Kzifstream, TriesTheShortPathOfAFileThatDoesNotOpen) {
    const TemporaryFolder folder;
    FailingFileSystem files(folder.path());
    files.setShortPath(folder.write("HOUSE~1.XML", "<VARNEL/>"));
    kzifstream in(folder.file("house of many names.xml").c_str());
    EXPECT_TRUE(in.isOpen());
    EXPECT_EQ(all(in), "<VARNEL/>");
    EXPECT_EQ(files.calls(), 1);
}

TEST(Kzifstream, DoesNotAskForTheShortPathOfAFileThatOpens) {
    const TemporaryFolder folder;
    FailingFileSystem files(folder.path());
    files.setShortPath(folder.write("HOUSE~1.XML", "short"));
    kzifstream in(folder.write("house.xml", "long").c_str());
    EXPECT_EQ(all(in), "long");
    EXPECT_EQ(files.calls(), 0);
}

TEST(Kzifstream, KeepsThePathWhenThereIsNoShortOne) {
    const TemporaryFolder folder;
    FailingFileSystem files(folder.path(), FailingFileSystem::OneFailure, 0);
    kzifstream in(folder.file("missing.xml").c_str());
    EXPECT_FALSE(in.isOpen());
    EXPECT_EQ(files.calls(), 1);
}

}  // namespace

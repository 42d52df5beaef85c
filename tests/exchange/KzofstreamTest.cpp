#include "varnel/exchange/kzofstream.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <type_traits>

#include "tests/support/FailingFileSystem.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using varnel::test::FailingFileSystem;
using varnel::test::TemporaryFolder;

static_assert(!std::is_copy_constructible_v<kzofstream> && !std::is_copy_assignable_v<kzofstream>);
static_assert(std::is_nothrow_destructible_v<kzofstream>);

/// A folder for the document and one for the temporary files.
class Kzofstream : public testing::Test {
  protected:
    const TemporaryFolder folder_;
    const TemporaryFolder temporary_;
    FailingFileSystem files_{temporary_.path()};
    const std::string target_ = folder_.file("house.xml");
};

TEST_F(Kzofstream, ReplacesTheTargetWhenItDies) {
    folder_.write("house.xml", "old");
    {
        kzofstream out(target_);
        out.stream() << "new";
    }
    EXPECT_EQ(folder_.read("house.xml"), "new");
    EXPECT_THAT(folder_.names(), ElementsAre("house.xml"));
    EXPECT_THAT(temporary_.names(), IsEmpty());
}

TEST_F(Kzofstream, MakesATargetThatWasNotThere) {
    { kzofstream(target_.c_str(), std::ios_base::out).stream() << "new"; }
    EXPECT_EQ(folder_.read("house.xml"), "new");
    EXPECT_THAT(temporary_.names(), IsEmpty());
}

TEST_F(Kzofstream, LeavesTheTargetAloneWhileItLives) {
    folder_.write("house.xml", "old");
    kzofstream out(target_);
    out.stream() << "new" << std::flush;
    EXPECT_TRUE(out.isOpen());
    EXPECT_EQ(folder_.read("house.xml"), "old");
    EXPECT_EQ(temporary_.names().size(), 1u);
}

TEST_F(Kzofstream, WithNothingWrittenMakesAnEmptyTarget) {
    folder_.write("house.xml", "old");
    { kzofstream out(target_); }
    EXPECT_EQ(folder_.read("house.xml"), "");
    EXPECT_THAT(folder_.names(), ElementsAre("house.xml"));
}

TEST_F(Kzofstream, AppendsToTheContentThatIsThere) {
    folder_.write("house.xml", "old,");
    { kzofstream(target_, std::ios_base::app).stream() << "new"; }
    EXPECT_EQ(folder_.read("house.xml"), "old,new");
}

TEST_F(Kzofstream, AppendingToNothingHoldsWhatWasWritten) {
    { kzofstream(target_, std::ios_base::app).stream() << "new"; }
    EXPECT_EQ(folder_.read("house.xml"), "new");
}

TEST_F(Kzofstream, AddsTheOutputFlag) {
    { kzofstream(target_, std::ios_base::openmode()).stream() << "new"; }
    EXPECT_EQ(folder_.read("house.xml"), "new");
}

TEST_F(Kzofstream, CommitTellsThatTheTargetIsReplaced) {
    kzofstream out(target_);
    out.stream() << "new";
    EXPECT_TRUE(out.commit());
    EXPECT_EQ(folder_.read("house.xml"), "new");
    EXPECT_FALSE(out.isOpen());
    out.stream() << "more";
    EXPECT_TRUE(out.commit());
    out.discard();
    EXPECT_EQ(folder_.read("house.xml"), "new");
}

TEST_F(Kzofstream, DiscardLeavesTheTargetAndNoTemporaryFile) {
    folder_.write("house.xml", "old");
    kzofstream out(target_);
    out.stream() << "new";
    out.discard();
    EXPECT_FALSE(out.isOpen());
    EXPECT_FALSE(out.commit());
    EXPECT_EQ(folder_.read("house.xml"), "old");
    EXPECT_THAT(temporary_.names(), IsEmpty());
}

TEST_F(Kzofstream, LeftByAnExceptionLeavesTheTarget) {
    folder_.write("house.xml", "old");
    try {
        kzofstream out(target_);
        out.stream() << "ne";
        throw std::runtime_error("half way");
    } catch (const std::runtime_error &) {
    }
    EXPECT_EQ(folder_.read("house.xml"), "old");
    EXPECT_THAT(temporary_.names(), IsEmpty());
}

TEST_F(Kzofstream, MadeWhileAnExceptionPassesStillReplacesTheTarget) {
    struct SavesOnTheWayOut {
        const std::string &target;
        ~SavesOnTheWayOut() { kzofstream(target).stream() << "rescued"; }
    };
    try {
        const SavesOnTheWayOut guard{target_};
        throw std::runtime_error("passing through");
    } catch (const std::runtime_error &) {
    }
    EXPECT_EQ(folder_.read("house.xml"), "rescued");
}

TEST_F(Kzofstream, AFailedStreamLeavesTheTarget) {
    folder_.write("house.xml", "old");
    kzofstream out(target_);
    out.stream() << "new";
    out.stream().setstate(std::ios_base::failbit);
    EXPECT_FALSE(out.commit());
    EXPECT_EQ(folder_.read("house.xml"), "old");
    EXPECT_THAT(temporary_.names(), IsEmpty());
}

TEST_F(Kzofstream, NothingEscapesFromAStreamThatThrows) {
    folder_.write("house.xml", "old");
    {
        kzofstream out(target_);
        out.stream() << "new";
        out.stream().exceptions(std::ios_base::badbit | std::ios_base::failbit);
        EXPECT_THROW(out.stream().setstate(std::ios_base::badbit), std::ios_base::failure);
    }
    EXPECT_EQ(folder_.read("house.xml"), "old");
}

TEST_F(Kzofstream, HoldsLargeAndBinaryContentToTheByte) {
    std::string content;
    for (int i = 0; i < 1000000; ++i) content += static_cast<char>(i * 7);
    { kzofstream(target_, std::ios_base::binary).stream() << content; }
    EXPECT_EQ(folder_.read("house.xml"), content);
}

TEST_F(Kzofstream, TwoStreamsOnOneTargetReplaceItInTheOrderOfTheirEnds) {
    kzofstream first(target_);
    kzofstream second(target_);
    first.stream() << "first";
    second.stream() << "second";
    EXPECT_TRUE(second.commit());
    EXPECT_TRUE(first.commit());
    EXPECT_EQ(folder_.read("house.xml"), "first");
}

void expectDead(kzofstream &out) {
    EXPECT_FALSE(out.isOpen());
    out.stream() << "swallowed " << 1.5 << std::endl;
    EXPECT_FALSE(out.stream().good());
    EXPECT_FALSE(out.commit());
    out.discard();
}

TEST_F(Kzofstream, WithoutAPathIsDead) {
    kzofstream null(static_cast<const char *>(nullptr));
    kzofstream empty("");
    expectDead(null);
    expectDead(empty);
    EXPECT_THAT(temporary_.names(), IsEmpty());
}

TEST_F(Kzofstream, WithoutATemporaryDirectoryIsDead) {
    folder_.write("house.xml", "old");
    const FailingFileSystem files(temporary_.path(), FailingFileSystem::OneFailure, 0);
    kzofstream out(target_);
    expectDead(out);
    EXPECT_EQ(folder_.read("house.xml"), "old");
}

TEST_F(Kzofstream, WithATemporaryDirectoryOf4096CharactersStopsThere) {
    const int asksForTheDirectory = 1;
    const std::string folder = temporary_.path() + std::string(4096 - 1 - temporary_.path().size(), '/');
    {
        const FailingFileSystem files(folder);
        kzofstream out(target_);
        expectDead(out);
        EXPECT_EQ(files.calls(), asksForTheDirectory);
    }
    const FailingFileSystem files(folder.substr(0, folder.size() - 1));
    const kzofstream out(target_);
    EXPECT_GT(files.calls(), asksForTheDirectory);
}

TEST_F(Kzofstream, WithoutATemporaryFileIsDead) {
    const FailingFileSystem files(folder_.file("missing"));
    kzofstream out(target_);
    expectDead(out);
    EXPECT_THAT(folder_.names(), IsEmpty());
}

TEST_F(Kzofstream, WithATemporaryFileThatDoesNotOpenIsDeadAndLeavesIt) {
    struct NamesAFolder : FailingFileSystem {
        using FailingFileSystem::FailingFileSystem;
        std::string makeTemporary(const std::string &) override { return made = made + "/."; }
        std::string made = std::filesystem::temp_directory_path().string();
    };
    folder_.write("house.xml", "old");
    NamesAFolder files(temporary_.path());
    kzofstream out(target_);
    expectDead(out);
    EXPECT_TRUE(files.exists(files.made));
    EXPECT_EQ(folder_.read("house.xml"), "old");
}

TEST_F(Kzofstream, AppendGoesOnWhenTheOldContentCannotBeCopied) {
    folder_.write("house.xml", "old");
    const int copy = 3;  // after the temporary directory, the temporary file, and whether there is a target
    FailingFileSystem files(temporary_.path(), FailingFileSystem::OneFailure, copy);
    kzofstream out(target_, std::ios_base::app);
    EXPECT_TRUE(files.happened());
    EXPECT_TRUE(out.isOpen());
    out.stream() << "new";
    EXPECT_TRUE(out.commit());
    EXPECT_EQ(folder_.read("house.xml"), "new");
}

TEST_F(Kzofstream, AcrossFileSystemsTheTargetIsReplacedToo) {
    folder_.write("house.xml", "old");
    files_.separateTemporaryFolder();
    kzofstream out(target_);
    out.stream() << "new";
    EXPECT_TRUE(out.commit());
    EXPECT_EQ(folder_.read("house.xml"), "new");
    EXPECT_THAT(folder_.names(), ElementsAre("house.xml"));
    EXPECT_THAT(temporary_.names(), IsEmpty());
}

// Root may write into any file; for everybody else the copy must not bear the target's rights too early.
TEST_F(Kzofstream, AcrossFileSystemsAReadOnlyTargetIsReplacedWithItsRights) {
    using Rights = std::filesystem::perms;
    struct ForbidsWriting : FailingFileSystem {
        using FailingFileSystem::FailingFileSystem;
        bool copy(const std::string &from, const std::string &to) override {
            const bool writable =
                (std::filesystem::status(to).permissions() & Rights::owner_write) != Rights::none;
            return writable && FailingFileSystem::copy(from, to);
        }
    };
    folder_.write("house.xml", "old");
    std::filesystem::permissions(target_, Rights::owner_read);
    ForbidsWriting files(temporary_.path());
    files.separateTemporaryFolder();
    kzofstream out(target_);
    out.stream() << "new";
    EXPECT_TRUE(out.commit());
    EXPECT_EQ(folder_.read("house.xml"), "new");
    EXPECT_EQ(std::filesystem::status(target_).permissions(), Rights::owner_read);
    EXPECT_THAT(folder_.names(), ElementsAre("house.xml"));
}

TEST_F(Kzofstream, ATargetInAMissingFolderLeavesTheContentUnderTheTemporaryName) {
    kzofstream out(folder_.file("missing/house.xml"));
    out.stream() << "new";
    EXPECT_FALSE(out.commit());
    ASSERT_EQ(temporary_.names().size(), 1u);
    EXPECT_EQ(temporary_.read(temporary_.names().front()), "new");
}

struct Saving {
    bool committed = false;
    int calls = 0;
    bool happened = false;
};

/// Overwrites a document "old" with an accident at one call of the file system.
Saving saveWith(const TemporaryFolder &folder, const std::string &temporary, bool separate,
                std::ios_base::openmode mode, FailingFileSystem::Accident accident, int call) {
    folder.write("house.xml", "old,");
    FailingFileSystem files(temporary, accident, call);
    if (separate) files.separateTemporaryFolder();
    Saving run;
    {
        kzofstream out(folder.file("house.xml"), mode);
        out.stream() << "new";
        run.committed = out.commit();
    }
    if (accident == FailingFileSystem::PowerLoss) files.losePower();
    run.calls = files.calls();
    run.happened = files.happened();
    return run;
}

class KzofstreamAccident : public testing::TestWithParam<FailingFileSystem::Accident> {
  protected:
    void expectOldOrNewWhole(bool separate, std::ios_base::openmode mode) {
        const bool appends = (mode & std::ios_base::app) != 0;
        const std::string whole = appends ? "old,new" : "new";
        const TemporaryFolder folder;
        int call = 0;
        for (;; ++call) {
            SCOPED_TRACE(call);
            const TemporaryFolder temporary;
            const Saving run = saveWith(folder, temporary.path(), separate, mode, GetParam(), call);
            const std::string content = folder.read("house.xml");
            const bool copyFailed = appends && content == "new";  // appending to nothing, which is its rule
            EXPECT_TRUE(content == "old," || content == whole || copyFailed) << content;
            EXPECT_EQ(run.committed, content != "old,");
            if (!run.happened) break;
        }
        EXPECT_GE(call, separate ? 9 : 5);
        EXPECT_EQ(folder.read("house.xml"), whole);
    }
};

TEST_P(KzofstreamAccident, LeavesTheOldTargetOrTheNewOneWhole) {
    expectOldOrNewWhole(false, std::ios_base::out);
}

TEST_P(KzofstreamAccident, AcrossFileSystemsLeavesTheOldTargetOrTheNewOneWhole) {
    expectOldOrNewWhole(true, std::ios_base::out);
}

TEST_P(KzofstreamAccident, InAppendModeLeavesTheOldTargetOrTheNewOneWhole) {
    expectOldOrNewWhole(false, std::ios_base::app);
    expectOldOrNewWhole(true, std::ios_base::app);
}

INSTANTIATE_TEST_SUITE_P(AtEveryCall, KzofstreamAccident,
                         testing::Values(FailingFileSystem::OneFailure, FailingFileSystem::PowerLoss),
                         [](const auto &row) {
                             return row.param == FailingFileSystem::OneFailure ? "OneFailure" : "PowerLoss";
                         });

}  // namespace

// Random projects, written and read again: what is meant to survive does, what is meant to be lost is, and
// the second document is the third.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/DocumentDifference.h"
#include "tests/support/Losses.h"
#include "tests/support/ProcessDefaults.h"
#include "tests/support/RandomModel.h"
#include "tests/support/RecordingServices.h"
#include "tests/support/Survivors.h"
#include "tests/support/TemporaryFolder.h"
#include "varnel/varnel.h"

namespace {

using varnel::test::difference;
using varnel::test::firstDifference;
using varnel::test::loadcasesOf;
using varnel::test::Losses;
using varnel::test::RandomModel;
using varnel::test::survivors;
using varnel::test::TemporaryFolder;

/// A project of its own, with services that answer something.
struct Project {
    VarnelExchangeXml &exchange() { return static_cast<VarnelExchangeXml &>(*manager.getExchange()); }

    recording::DocumentFactory factory;
    VarnelManager manager{&factory};
};

/// The parameter is the block of seeds, so that the blocks can run side by side.
class RoundTrip : public testing::TestWithParam<unsigned> {
  protected:
    // An instrumented build takes long for each project.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || defined(__clang__)
    static constexpr unsigned seedsPerBlock = 200;
#else
    static constexpr unsigned seedsPerBlock = 1000;
#endif

    /// Writes the project of that seed; every third one unchanged, with its load cases and results.
    void writeRandom(Project &project, unsigned seed) {
        RandomModel model(project.manager, seed, seed % 2 == 0);
        model.fill();
        if (seed % 4 < 2) model.setProcessDefaults();
        model.addResults();
        if (seed % 5 == 0) project.manager.setup();
        save(project, "1.xml");
        if (seed % 3 == 0) save(project, "1.xml");
        before.add(project.manager);
    }
    void save(Project &project, const char *file) {
        project.manager.output(folder.file(file).c_str());
        EXPECT_TRUE(project.exchange().lastOutputOk());
    }
    void expectLoadcases(const VarnelManager &written, const VarnelManager &read, bool unchanged) {
        if (unchanged) {
            EXPECT_EQ(firstDifference(loadcasesOf(written), loadcasesOf(read)), "");
            ++documentsWithLoadcases;
            return;
        }
        for (const SysBase::Loadcase *loadcase : read.getLoadcases())
            EXPECT_EQ(SysBase::Loadcase(loadcase->getNumber()), *loadcase)
                << "nothing but its number came back";
    }
    void expectSameAgain(unsigned seed) {
        const std::string second = folder.read("2.xml"), third = folder.read("3.xml");
        if (seed % 2 == 0) {
            EXPECT_EQ(firstDifference(second, third), "");
        } else if (third != second) {
            EXPECT_EQ(difference(second, third), "");
        }
    }

    const ProcessDefaults defaults;
    TemporaryFolder folder;
    Losses before;
    int documentsWithLoadcases = 0;
};

TEST_P(RoundTrip, KeepsWhatSurvivesLosesTheRestAndIsTheSameFromTheSecondDocumentOn) {
    for (unsigned seed = GetParam() * seedsPerBlock; seed < (GetParam() + 1) * seedsPerBlock; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const ProcessDefaults reset;
        Project first, second, third;
        writeRandom(first, seed);
        const std::string kept = survivors(first.manager);
        const bool unchanged = seed % 3 == 0 && !first.manager.modelChanged();

        resetDefaults();
        second.manager.input(folder.file("1.xml").c_str());
        EXPECT_EQ(firstDifference(kept, survivors(second.manager)), "");
        Losses after;
        after.add(second.manager);
        EXPECT_THAT(after.found, testing::IsEmpty());
        expectLoadcases(first.manager, second.manager, unchanged);
        save(second, "2.xml");

        resetDefaults();
        third.manager.input(folder.file("2.xml").c_str());
        save(third, "3.xml");
        expectSameAgain(seed);
        if (HasFailure()) break;
    }
    for (const std::string &loss : before.asked)
        EXPECT_EQ(before.found.count(loss), 1U) << "no random project has had this to lose: " << loss;
    EXPECT_GT(documentsWithLoadcases, 0);
}

// The first document has no load cases, since the model was changed; the next two have.
TEST_P(RoundTrip, UnchangedModelIsWrittenTheSameAgain) {
    for (unsigned seed = GetParam() * seedsPerBlock; seed < (GetParam() + 1) * seedsPerBlock; seed += 10) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const ProcessDefaults reset;
        Project project;
        RandomModel(project.manager, seed, false).fill();
        for (const char *file : {"1.xml", "2.xml", "3.xml"}) save(project, file);
        EXPECT_EQ(firstDifference(folder.read("2.xml"), folder.read("3.xml")), "");
    }
}

INSTANTIATE_TEST_SUITE_P(RandomProjects, RoundTrip, testing::Range(0u, 10u));

TEST(RoundTripOfNumbers, RoundedNumbersMayDifferInTheLastDigitsOnly) {
    const std::string angle = "<V><PBOUND ANGLE=\"30\"/></V>";
    EXPECT_EQ(difference(angle, "<V><PBOUND ANGLE=\"30.000000000000004\"/></V>"), "");
    EXPECT_NE(difference(angle, "<V><PBOUND ANGLE=\"30.0000000001\"/></V>"), "");
    EXPECT_NE(difference("<V><BEAM ANGLE=\"30\"/></V>", "<V><BEAM ANGLE=\"30.000000000000004\"/></V>"), "");
    EXPECT_NE(difference("<V><A/></V>", "<V><A/><A/></V>"), "");
}

}  // namespace

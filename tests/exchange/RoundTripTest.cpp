// Random projects, written and read again: what survives is the same, and the second document is the third.

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "tests/support/CompleteProject.h"
#include "tests/support/Document.h"
#include "tests/support/RandomModel.h"
#include "tests/support/Survivors.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using varnel::test::RandomModel;
using varnel::test::survivors;
using varnel::test::TemporaryFolder;

/// Numbers that a frame or a change of units rounds: the sizes of rectangles, angles and directions.
bool isRounded(const KzXmlData &element, const std::string &key) {
    const std::string &name = element.getName();
    if (key.empty()) return element.getParent()->getName().rfind("LOCSYS", 0) == 0;
    return name == "RECTAN" || (name == "DESIGN" && key == "THETA") || (name == "PBOUND" && key == "ANGLE");
}

bool areNear(const std::string &a, const std::string &b) {
    const double x = std::stod(a), y = std::stod(b);
    return std::fabs(x - y) <= 1e-12 * std::fmax(1.0, std::fabs(x));
}

/// Empty, or where two elements differ by more than rounding.
std::string difference(const KzXmlData &a, const KzXmlData &b) {
    const auto attributesA = a.getAttributes(), attributesB = b.getAttributes();
    const std::string here = "/" + a.getName();
    if (a.getName() != b.getName() || attributesA.size() != attributesB.size() ||
        a.getChildren().size() != b.getChildren().size())
        return here;
    if (a.getData() != b.getData() && !(isRounded(a, "") && areNear(a.getData(), b.getData())))
        return here + ": " + a.getData() + " and " + b.getData();
    for (std::size_t i = 0; i < attributesA.size(); ++i) {
        const std::string &key = attributesA[i]->getKey();
        if (key != attributesB[i]->getKey()) return here + "@" + key;
        const std::string &x = attributesA[i]->getData(), &y = attributesB[i]->getData();
        if (x != y && !(isRounded(a, key) && areNear(x, y))) return here + "@" + key + ": " + x + " and " + y;
    }
    for (std::size_t i = 0; i < a.getChildren().size(); ++i) {
        const std::string below = difference(*a.getChildren()[i], *b.getChildren()[i]);
        if (!below.empty()) return here + below;
    }
    return "";
}

std::string difference(const std::string &a, const std::string &b) {
    KzXmlTree first("A"), second("B");
    std::istringstream streamA(a), streamB(b);
    first.buildOfStream(streamA);
    second.buildOfStream(streamB);
    return difference(*first.getRoot(), *second.getRoot());
}

/// Empty, or the first lines that differ.
std::string firstDifference(const std::string &a, const std::string &b) {
    std::istringstream linesA(a), linesB(b);
    std::string lineA, lineB;
    while (std::getline(linesA, lineA) && std::getline(linesB, lineB))
        if (lineA != lineB) return lineA + "\n" + lineB;
    return a == b ? "" : "one of them ends";
}

/// The parameter is the block of seeds, so that the blocks can run side by side.
class RoundTrip : public testing::TestWithParam<unsigned> {
  protected:
    static constexpr unsigned seedsPerBlock = 125;

    RoundTrip() { resetDefaults(); }
    ~RoundTrip() override { resetDefaults(); }

    /// Reads a document into a fresh project and writes it again.
    std::string readAndWrite(const std::string &from, const char *to, std::string *read) {
        resetDefaults();
        Document next;
        next.manager.input(from.c_str());
        if (read) *read = survivors(next.manager);
        next.manager.output(folder.file(to).c_str());
        EXPECT_TRUE(next.exchange().lastOutputOk());
        return folder.read(to);
    }
    /// Writes the project of that seed and tells what is to survive of it.
    std::string writeRandom(unsigned seed, bool exact) {
        Document first;
        RandomModel(first.manager, seed, exact).fill();
        first.manager.output(folder.file("1.xml").c_str());
        return survivors(first.manager);
    }

    TemporaryFolder folder;
};

TEST_P(RoundTrip, SecondDocumentIsTheThird) {
    for (unsigned seed = GetParam() * seedsPerBlock; seed < (GetParam() + 1) * seedsPerBlock; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const bool exact = seed % 2 == 0;
        const std::string before = writeRandom(seed, exact);
        std::string after;
        const std::string second = readAndWrite(folder.file("1.xml"), "2.xml", &after);
        EXPECT_EQ(firstDifference(before, after), "");
        const std::string third = readAndWrite(folder.file("2.xml"), "3.xml", nullptr);
        if (exact) {
            EXPECT_EQ(firstDifference(second, third), "");
        } else if (third != second) {
            EXPECT_EQ(difference(second, third), "");
        }
    }
}

// The first document has no load cases, since the model was changed; the next two have.
TEST_P(RoundTrip, UnchangedModelIsWrittenTheSameAgain) {
    for (unsigned seed = GetParam() * seedsPerBlock; seed < (GetParam() + 1) * seedsPerBlock; seed += 10) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Document document;
        RandomModel(document.manager, seed, false).fill();
        for (const char *file : {"1.xml", "2.xml", "3.xml"})
            document.manager.output(folder.file(file).c_str());
        EXPECT_EQ(firstDifference(folder.read("2.xml"), folder.read("3.xml")), "");
    }
}

INSTANTIATE_TEST_SUITE_P(RandomProjects, RoundTrip, testing::Range(0u, 8u));

TEST(RoundTripOfNumbers, RoundedNumbersMayDifferInTheLastDigitsOnly) {
    const std::string angle = "<V><PBOUND ANGLE=\"30\"/></V>";
    EXPECT_EQ(difference(angle, "<V><PBOUND ANGLE=\"30.000000000000004\"/></V>"), "");
    EXPECT_NE(difference(angle, "<V><PBOUND ANGLE=\"30.0000000001\"/></V>"), "");
    EXPECT_NE(difference("<V><BEAM ANGLE=\"30\"/></V>", "<V><BEAM ANGLE=\"30.000000000000004\"/></V>"), "");
    EXPECT_NE(difference("<V><A/></V>", "<V><A/><A/></V>"), "");
}

}  // namespace

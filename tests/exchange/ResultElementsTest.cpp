#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <stdexcept>

#include "tests/support/CommaLocale.h"
#include "tests/support/Document.h"
#include "tests/support/RecordingServices.h"
#include "varnel/contracts/SysBase/BeamDeformationsLocation.h"
#include "varnel/contracts/SysBase/BeamResultState.h"
#include "varnel/contracts/SysBase/BeamStressResultantsLocation.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/results/VarnelLineResult.h"

namespace {

/// A designer that answers what a test tells it to.
class Designer : public recording::Designer {
  public:
    using recording::Designer::Designer;

    void getLineBoundaryResult(SysBase::Loadcase *loadcase, VarnelLineBoundaryData *boundary,
                               VarnelLineResult &result) override {
        if (lines) lines(loadcase->getNumber(), boundary, result);
    }
    std::map<VarnelPointBoundary *, VarnelPointResultData> getPointBoundaryResults(
        SysBase::Loadcase *loadcase) override {
        asked.push_back(loadcase->getNumber());
        return points ? points(loadcase->getNumber())
                      : std::map<VarnelPointBoundary *, VarnelPointResultData>();
    }

    std::function<void(int, VarnelLineBoundaryData *, VarnelLineResult &)> lines;
    std::function<std::map<VarnelPointBoundary *, VarnelPointResultData>(int)> points;
    std::vector<int> asked;
};

/// A host with that designer and our exchange.
class Host : public recording::Factory {
  public:
    VarnelDesigner *giveDesigner() const override {
        return hasDesigner ? designer = new Designer(script) : nullptr;
    }
    VarnelExchange *giveExchange() const override { return new VarnelExchangeXml; }

    mutable Designer *designer = nullptr;
};

VarnelLineResultData support(double position, double minimum, double maximum) {
    VarnelLineResultData data;
    data.setPos(position);
    data.setMinFz(minimum);
    data.setMaxFz(maximum);
    return data;
}

class ResultElements : public testing::Test {
  protected:
    ResultElements() {
        beam = model().giveBeam(true);
        column = model().givePointBoundary(KzVector3D(), 7);
        column->setNumber(1);
        wall = new VarnelLineBoundary(new VarnelStraight(KzVector3D(), KzVector3D(4, 0, 0)));
        wall->setNumber(1);
        model().add(wall);
        manager.getDesigner();
    }
    Varnel &model() { return *manager.getDatabase(); }
    VarnelExchangeXml &exchange() { return static_cast<VarnelExchangeXml &>(*manager.getExchange()); }
    Designer &designer() { return *host.designer; }
    void addCase(int number, bool primary = true) {
        manager.giveLoadcaseToNumber(number, true)->setPrimary(primary);
    }
    /// The element in the list after system and results were written.
    KzXmlData *written(const char *list) {
        exchange().updateSystem(&manager);
        return updated(list);
    }
    /// The same after the results alone were written.
    KzXmlData *updated(const char *list) {
        exchange().updateResults(&manager);
        KzXmlTree &tree = *exchange().getTree();
        EXPECT_EQ(tree.getCursor(), tree.getRoot());
        return tree.getRoot()->findChild("SUBSYSTEM")->findChild(list)->getChildren().front();
    }
    std::string results(const char *list) { return textOf(written(list)->findChild("LOADCASES")); }

    Host host;
    VarnelManager manager{&host};
    VarnelBeam *beam = nullptr;
    VarnelPointBoundary *column = nullptr;
    VarnelLineBoundary *wall = nullptr;
};

TEST_F(ResultElements, BeamHasItsDisplacementsAndMomentsForEachCase) {
    addCase(1);
    addCase(2, false);  // primary or not
    SysBase::BeamResultState *state = beam->giveResultState(2);
    state->add(new SysBase::BeamDeformationsLocation(0.0, KzVector3D(0.001, 0.002, -0.0125)));
    state->add(new SysBase::BeamDeformationsLocation(2.5, KzVector3D(0, 0, 0)));
    state->add(new SysBase::BeamStressResultantsLocation(1.25, 84.5));
    // Children of "STRESS" are named like their list.
    EXPECT_EQ(results("BEAMS"),
              "<LOADCASES><LOADCASE NUMBER=\"1\"><DISPS></DISPS><STRESS></STRESS></LOADCASE>"
              "<LOADCASE NUMBER=\"2\"><DISPS><DISP POS=\"0\" DX=\"0.001\" DY=\"0.002\" DZ=\"-0.0125\"></DISP>"
              "<DISP POS=\"2.5\" DX=\"0\" DY=\"0\" DZ=\"0\"></DISP></DISPS>"
              "<STRESS><STRESS POS=\"1.25\" MY=\"84.5\"></STRESS></STRESS></LOADCASE></LOADCASES>");
}

TEST_F(ResultElements, RecordsNearerThanAThousandthMeetInOneElement) {
    addCase(1);
    SysBase::BeamResultState *state = beam->giveResultState(1);
    for (const double position : {1.0, 1.0009, 1.0011, 2.0, 2.0009765625}) {
        state->add(new SysBase::BeamDeformationsLocation(position, KzVector3D(position, 0, 0)));
        state->add(new SysBase::BeamStressResultantsLocation(position, position));
    }
    EXPECT_EQ(results("BEAMS"),
              "<LOADCASES><LOADCASE NUMBER=\"1\"><DISPS><DISP POS=\"1\" DX=\"1.0009\" DY=\"0\" DZ=\"0\">"
              "</DISP><DISP POS=\"1.0011\" DX=\"1.0011\" DY=\"0\" DZ=\"0\"></DISP>"
              "<DISP POS=\"2\" DX=\"2.0009765625\" DY=\"0\" DZ=\"0\"></DISP></DISPS>"
              "<STRESS><STRESS POS=\"1\" MY=\"1.0009\"></STRESS><STRESS POS=\"1.0011\" MY=\"1.0011\">"
              "</STRESS><STRESS POS=\"2\" MY=\"2.0009765625\"></STRESS></STRESS></LOADCASE></LOADCASES>");
}

TEST_F(ResultElements, OldCasesOfABeamDisappear) {
    addCase(1);
    written("BEAMS");
    manager.remove(manager.giveLoadcaseToNumber(1, false), true);
    addCase(2);
    EXPECT_EQ(textOf(updated("BEAMS")->findChild("LOADCASES")),
              "<LOADCASES><LOADCASE NUMBER=\"2\"><DISPS></DISPS><STRESS></STRESS></LOADCASE></LOADCASES>");
}

TEST_F(ResultElements, OldCasesOfSupportsDisappear) {
    addCase(1);
    written("PBOUNDS");
    manager.remove(manager.giveLoadcaseToNumber(1, false), true);
    addCase(2);
    EXPECT_EQ(textOf(updated("PBOUNDS")->findChild("LOADCASES")),
              "<LOADCASES><LOADCASE NUMBER=\"2\"><SUP FX=\"0\" FY=\"0\" FZ=\"0\" MX=\"0\" MY=\"0\" MZ=\"0\">"
              "</SUP></LOADCASE></LOADCASES>");
    EXPECT_EQ(textOf(updated("LBOUNDS")->findChild("LOADCASES")),
              "<LOADCASES><LOADCASE NUMBER=\"2\"></LOADCASE></LOADCASES>");
}

TEST_F(ResultElements, NullEntriesOfTheListsAreSkipped) {
    addCase(1);
    model().add(static_cast<VarnelBeam *>(nullptr));
    model().add(static_cast<VarnelPointBoundary *>(nullptr));
    model().add(static_cast<VarnelLineBoundary *>(nullptr));
    for (const char *list : {"BEAMS", "PBOUNDS", "LBOUNDS"})
        EXPECT_EQ(written(list)->getParent()->getChildren().size(), 1u) << list;
}

TEST_F(ResultElements, SupportHasItsReactionsForPrimaryCases) {
    addCase(1, false);
    addCase(2);
    addCase(3);
    // The maps count all cases, so each primary case keeps its own.
    designer().points = [this](int number) {
        return std::map<VarnelPointBoundary *, VarnelPointResultData>{
            {column, VarnelPointResultData(number, number + 0.5, -1, 4, 5, 6)}};
    };
    EXPECT_EQ(results("PBOUNDS"),
              "<LOADCASES><LOADCASE NUMBER=\"2\"><SUP FX=\"2\" FY=\"2.5\" FZ=\"-1\" MX=\"4\" MY=\"5\" "
              "MZ=\"6\"></SUP></LOADCASE><LOADCASE NUMBER=\"3\"><SUP FX=\"3\" FY=\"3.5\" FZ=\"-1\" MX=\"4\" "
              "MY=\"5\" MZ=\"6\"></SUP></LOADCASE></LOADCASES>");
    EXPECT_EQ(designer().asked, (std::vector<int>{1, 2, 3}));
}

TEST_F(ResultElements, DesignerIsAskedOnceForEachCaseHoweverManySupportsThereAre) {
    addCase(1);
    addCase(2, false);
    for (int i = 0; i < 5; ++i) model().givePointBoundary(KzVector3D(i, 0, 0), 7)->setNumber(i + 2);
    written("PBOUNDS");
    EXPECT_EQ(designer().asked, (std::vector<int>{1, 2}));
}

TEST_F(ResultElements, SupportThatTheDesignerDoesNotKnowHasZeros) {
    addCase(1);
    EXPECT_EQ(results("PBOUNDS"),
              "<LOADCASES><LOADCASE NUMBER=\"1\"><SUP FX=\"0\" FY=\"0\" FZ=\"0\" MX=\"0\" MY=\"0\" MZ=\"0\">"
              "</SUP></LOADCASE></LOADCASES>");
}

TEST_F(ResultElements, SupportWithoutPrimaryCasesHasAnEmptyList) {
    addCase(1, false);
    EXPECT_EQ(results("PBOUNDS"), "<LOADCASES></LOADCASES>");
}

TEST_F(ResultElements, LineSupportHasTheMaximaForAllCases) {
    addCase(1, false);
    addCase(2);
    designer().lines = [this](int number, VarnelLineBoundaryData *boundary, VarnelLineResult &result) {
        EXPECT_EQ(boundary, &wall->getData());
        EXPECT_TRUE(result.getSupports().empty());  // a fresh one for each case
        if (number == 2) return;
        result.add(support(0.0, -3.0, 12.5));
        result.add(support(0.0625, -4.0, 13.5));
    };
    EXPECT_EQ(results("LBOUNDS"),
              "<LOADCASES><LOADCASE NUMBER=\"1\"><LOC IND=\"0\" POS=\"0\" FZ=\"12.5\"></LOC>"
              "<LOC IND=\"1\" POS=\"0.0625\" FZ=\"13.5\"></LOC></LOADCASE><LOADCASE NUMBER=\"2\"></LOADCASE>"
              "</LOADCASES>");
}

TEST_F(ResultElements, WithoutCasesBeamsKeepTheirListAndSupportsLoseIt) {
    exchange().updateSystem(&manager);
    KzXmlData *subSystem = exchange().getTree()->getRoot()->findChild("SUBSYSTEM");
    for (const char *list : {"BEAMS", "PBOUNDS", "LBOUNDS"})
        subSystem->findChild(list)->getChildren().front()->makeChild("LOADCASES")->makeChild("OLD");
    EXPECT_EQ(textOf(updated("BEAMS")->findChild("LOADCASES")), "<LOADCASES><OLD></OLD></LOADCASES>");
    EXPECT_EQ(updated("PBOUNDS")->findChild("LOADCASES"), nullptr);
    EXPECT_EQ(updated("LBOUNDS")->findChild("LOADCASES"), nullptr);
    EXPECT_TRUE(designer().asked.empty());
}

TEST_F(ResultElements, NoDesignerIsMadeWithoutCases) {
    manager.reset();
    host.designer = nullptr;
    model().givePointBoundary(KzVector3D(), 7);
    exchange().updateSystem(&manager);
    exchange().updateResults(&manager);
    EXPECT_EQ(host.designer, nullptr);
    addCase(1);
    exchange().updateResults(&manager);
    EXPECT_NE(host.designer, nullptr);
}

TEST_F(ResultElements, WritingTheSystemRemovesAllResults) {
    addCase(1);
    exchange().updateSystem(&manager);
    const std::string before = textOf(exchange().getTree()->getRoot());
    exchange().updateResults(&manager);
    EXPECT_NE(textOf(exchange().getTree()->getRoot()), before);
    exchange().updateSystem(&manager);
    EXPECT_EQ(textOf(exchange().getTree()->getRoot()), before);
}

TEST_F(ResultElements, SecondWritingOfResultsChangesNothing) {
    addCase(1);
    addCase(2, false);
    beam->giveResultState(1)->add(new SysBase::BeamStressResultantsLocation(1.25, 84.5));
    written("BEAMS");
    const std::string before = textOf(exchange().getTree()->getRoot());
    updated("BEAMS");
    EXPECT_EQ(textOf(exchange().getTree()->getRoot()), before);
}

TEST_F(ResultElements, OtherContentOfTheElementsStays) {
    addCase(1);
    const KzXmlData *element = written("PBOUNDS");
    EXPECT_NE(element->findAttribute("DOF"), nullptr);
    EXPECT_EQ(element->getChildren().back()->getName(), "LOADCASES");
    EXPECT_EQ(exchange().getTree()->getRoot()->findChild("SUBSYSTEM")->findAttribute("NAME")->getData(),
              "System");
}

TEST_F(ResultElements, ListsThatAreMissingAreMadeEmpty) {
    model().removeAll();
    exchange().updateResults(&manager);
    EXPECT_EQ(textOf(exchange().getTree()->getRoot()),
              "<VARNEL><SUBSYSTEM NAME=\"System\"><BEAMS></BEAMS><PBOUNDS></PBOUNDS><LBOUNDS></LBOUNDS>"
              "</SUBSYSTEM></VARNEL>");
}

TEST_F(ResultElements, NestedSubSystemsHaveTheirOwn) {
    addCase(1);
    VarnelSubSystem *child = manager.giveSubSystem("A", manager.getCurrentSubSystem());
    VarnelBeam *inner = child->getDatabase()->giveBeam(true);
    inner->setNumber(8);
    inner->giveResultState(1)->add(new SysBase::BeamStressResultantsLocation(0.5, 3.0));
    written("BEAMS");
    const KzXmlData *element = exchange()
                                   .getTree()
                                   ->getRoot()
                                   ->findChild("SUBSYSTEM")
                                   ->findChild("SUBSYSTEMS")
                                   ->getChildren()
                                   .front();
    EXPECT_EQ(
        textOf(element->findChild("BEAMS")->getChildren().front()->findChild("LOADCASES")),
        "<LOADCASES><LOADCASE NUMBER=\"1\"><DISPS></DISPS><STRESS><STRESS POS=\"0.5\" MY=\"3\"></STRESS>"
        "</STRESS></LOADCASE></LOADCASES>");
    EXPECT_NE(element->findChild("PBOUNDS"), nullptr);
}

// The top element is always named "System", so a top subsystem of another name is not found again.
TEST_F(ResultElements, TopSubSystemOfAnotherNameGetsASecondElement) {
    addCase(1);
    manager.getCurrentSubSystem()->setName("House");
    exchange().updateSystem(&manager);
    exchange().updateResults(&manager);
    const auto &children = exchange().getTree()->getRoot()->getChildren();
    EXPECT_EQ(children.back()->getName(), "SUBSYSTEM");
    EXPECT_EQ(children.back()->findAttribute("NAME")->getData(), "House");
}

TEST_F(ResultElements, BeamIsFoundByItsNumberAsText) {
    addCase(1);
    exchange().updateSystem(&manager);
    KzXmlData *list = exchange().getTree()->getRoot()->findChild("SUBSYSTEM")->findChild("BEAMS");
    list->getChildren().front()->setAttribute("NUMBER", " 1");  // the same integer, but another text
    exchange().updateResults(&manager);
    ASSERT_EQ(list->getChildren().size(), 2u);
    EXPECT_EQ(list->getChildren().back()->findAttribute("NUMBER")->getData(), "1");
}

TEST_F(ResultElements, WithoutADesignerSupportsHaveDefaultResults) {
    host.hasDesigner = false;
    manager.reset();
    addCase(1);
    EXPECT_EQ(results("PBOUNDS"),
              "<LOADCASES><LOADCASE NUMBER=\"1\"><SUP FX=\"0\" FY=\"0\" FZ=\"0\" MX=\"0\" MY=\"0\" MZ=\"0\">"
              "</SUP></LOADCASE></LOADCASES>");
    EXPECT_EQ(results("LBOUNDS"), "<LOADCASES><LOADCASE NUMBER=\"1\"></LOADCASE></LOADCASES>");
}

TEST_F(ResultElements, DesignerThatThrowsLeavesTheCursorOnTheRoot) {
    addCase(1);
    designer().points = [](int) -> std::map<VarnelPointBoundary *, VarnelPointResultData> {
        throw std::runtime_error("designer");
    };
    exchange().updateSystem(&manager);
    EXPECT_THROW(exchange().updateResults(&manager), std::runtime_error);
    EXPECT_EQ(exchange().getTree()->getCursor(), exchange().getTree()->getRoot());
}

TEST_F(ResultElements, HostOverridesTheResultsOfALineSupport) {
    class Own : public VarnelExchangeXml {
      public:
        void updateOneLineBoundaryResult(Varnel *model, VarnelLineBoundaryData *boundary) override {
            setAttribute("OWN", boundary->getNumber());
            seen = model;
        }
        Varnel *seen = nullptr;
    } own;
    own.updateResults(&manager);
    EXPECT_EQ(own.seen, &model());
    EXPECT_NE(textOf(own.getTree()->getRoot()).find("<LBOUND NUMBER=\"1\" OWN=\"1\"></LBOUND>"),
              std::string::npos);
    EXPECT_EQ(own.getManager(), &manager);
}

TEST_F(ResultElements, HostOverridesTheResultsOfEverySubSystem) {
    class Own : public VarnelExchangeXml {
      public:
        void updateResultsToSubSystem(VarnelSubSystem *subSystem) override {
            names += subSystem->getName() + " ";
            VarnelExchangeXml::updateResultsToSubSystem(subSystem);
        }
        std::string names;
    } own;
    VarnelSubSystem *child = manager.giveSubSystem("A", manager.getCurrentSubSystem());
    manager.giveSubSystem("B", child);
    manager.giveSubSystem("C", manager.getCurrentSubSystem());
    own.updateResults(&manager);
    EXPECT_EQ(own.names, "System A B C ");
}

TEST_F(ResultElements, ResultsAreNeverReadBack) {
    addCase(1);
    beam->giveResultState(1)->add(new SysBase::BeamStressResultantsLocation(1.25, 84.5));
    written("BEAMS");
    std::ostringstream text;
    exchange().getTree()->putToStream(text, true);
    Document other;
    other.read(text.str());
    EXPECT_TRUE(other.model().getBeams().front()->getResultStates().empty());
}

TEST_F(ResultElements, OddNumbersAreWrittenAsTheyAre) {
    addCase(1);
    SysBase::BeamResultState *state = beam->giveResultState(1);
    state->add(new SysBase::BeamStressResultantsLocation(std::numeric_limits<double>::quiet_NaN(), 1.0));
    state->add(new SysBase::BeamStressResultantsLocation(std::numeric_limits<double>::quiet_NaN(), 2.0));
    state->add(new SysBase::BeamStressResultantsLocation(std::numeric_limits<double>::infinity(), -0.0));
    EXPECT_EQ(textOf(written("BEAMS")->findChild("LOADCASES")->getChildren().front()->findChild("STRESS")),
              "<STRESS><STRESS POS=\"nan\" MY=\"1\"></STRESS><STRESS POS=\"nan\" MY=\"2\"></STRESS>"
              "<STRESS POS=\"inf\" MY=\"-0\"></STRESS></STRESS>");
}

TEST_F(ResultElements, LocaleOfTheProcessChangesNothing) {
    addCase(1);
    beam->giveResultState(1)->add(new SysBase::BeamStressResultantsLocation(1234.5, 84.5));
    const std::string before = results("BEAMS");
    const varnel::test::CommaLocale comma;
    EXPECT_EQ(results("BEAMS"), before);
}

TEST_F(ResultElements, ManagerWritesResultsOfAnUnchangedProjectOnly) {
    addCase(1);
    manager.setSystemChanged(false);
    manager.setLoadChanged(false);
    manager.output("/no/such/folder/a.xml");
    const KzXmlData *list = exchange().getTree()->getRoot()->findChild("SUBSYSTEM")->findChild("BEAMS");
    EXPECT_NE(list->getChildren().front()->findChild("LOADCASES"), nullptr);
    model().setLoadChanged(true);
    manager.output("/no/such/folder/a.xml");
    EXPECT_EQ(list->getChildren().front()->findChild("LOADCASES"), nullptr);
}

}  // namespace

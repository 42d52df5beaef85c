#include <gtest/gtest.h>

#include "tests/support/BeamDocument.h"
#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/Found/FoundationManager.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelFoundedPart.h"

namespace {

std::string span(const std::string &start, const std::string &end) {
    return "<FSPAN><LOCA " + start + "</LOCA><LOCE " + end + "</LOCE></FSPAN>";
}

class BeamSpanElements : public BeamDocument {};

TEST_F(BeamSpanElements, EverySpanHasAnElementWithoutAttributes) {
    VarnelBeam *beam = addBeam();
    beam->addFoundation(KzVector3D(0, 0, 1), 0.0, KzVector3D(0, 0, 2), 0.5, &document.manager);
    beam->addFoundation(KzVector3D(0, 0, 2), 0.5, KzVector3D(0, 0, 1), 1.0, &document.manager);
    EXPECT_EQ(
        textOf(writtenBeam()->findChild("FOUNDB")),
        "<FOUNDB><FSPAN><LOCA POS=\"0\" FOUND=\"1\"></LOCA><LOCE POS=\"0.5\" FOUND=\"2\"></LOCE></FSPAN>"
        "<FSPAN><LOCA POS=\"0.5\" FOUND=\"2\"></LOCA><LOCE POS=\"1\" FOUND=\"1\"></LOCE></FSPAN>"
        "</FOUNDB>");
}

TEST_F(BeamSpanElements, SpansAreRead) {
    const VarnelBeam *beam = readBeam(
        "", "<FOUNDB>" + span("POS=\"0.25\" FOUND=\"9\"><Z>100</Z>", "POS=\"1\"><X>5</X><Z>200</Z>") +
                "<ANY><LOCE POS=\"0.5\"/></ANY></FOUNDB>");
    ASSERT_EQ(beam->getFoundations().size(), 2u);
    const VarnelFoundedPart *part = beam->getFoundations().front();
    EXPECT_DOUBLE_EQ(part->getPosA(), 0.25);
    EXPECT_DOUBLE_EQ(part->getPosE(), 1.0);
    KzVector3D stiffness;
    part->getFStart()->getDispLine(stiffness);
    EXPECT_TRUE(stiffness == KzVector3D(0, 0, 100));
    part->getFEnd()->getDispLine(stiffness);
    EXPECT_TRUE(stiffness == KzVector3D(5, 0, 200));
    EXPECT_DOUBLE_EQ(beam->getFoundations().back()->getPosA(), 0.0);
    EXPECT_DOUBLE_EQ(beam->getFoundations().back()->getPosE(), 0.5);
}

TEST_F(BeamSpanElements, SpanWithoutAnEndIsNone) {
    EXPECT_TRUE(readBeam("", "<FOUNDB><FSPAN/><FSPAN><LOCA POS=\"0.5\"/></FSPAN></FOUNDB>")
                    ->getFoundations()
                    .empty());
}

TEST_F(BeamSpanElements, SpanEndWithoutAStationLosesItsVector) {
    const VarnelBeam *beam = readBeam("", "<FOUNDB>" + span("><Z>100</Z>", "><Z>200</Z>") + "</FOUNDB>");
    ASSERT_EQ(beam->getFoundations().size(), 1u);
    const VarnelFoundedPart *part = beam->getFoundations().front();
    EXPECT_DOUBLE_EQ(part->getPosA(), 0.0);
    EXPECT_DOUBLE_EQ(part->getPosE(), 0.0);
    KzVector3D stiffness(1, 1, 1);
    part->getFEnd()->getDispLine(stiffness);
    EXPECT_TRUE(stiffness == KzVector3D());
}

TEST_F(BeamSpanElements, SpansOutsideOfTheBeamAreDropped) {
    for (const char *station : {"nan", "1.1", "-0.1", "inf", "-inf", "1.0000000000000002"}) {
        SCOPED_TRACE(station);
        const std::string bad = "POS=\"" + std::string(station) + "\">";
        EXPECT_TRUE(
            readBeam("", "<FOUNDB>" + span(bad, "POS=\"0.5\">") + span("POS=\"0.5\">", bad) + "</FOUNDB>")
                ->getFoundations()
                .empty());
    }
    EXPECT_TRUE(document.manager.getFoundationManager()->getFoundations().empty());
    EXPECT_EQ(
        readBeam("", "<FOUNDB>" + span("POS=\"0\">", "POS=\"1\">") + "</FOUNDB>")->getFoundations().size(),
        1u);
}

TEST_F(BeamSpanElements, SpanThatIsReadTwiceIsAddedUp) {
    const std::string spans = "<FOUNDB>" + span("POS=\"0\"><Z>1</Z>", "POS=\"1\"><Z>2</Z>") + "</FOUNDB>";
    readBeam("NUMBER=\"1\"", spans);
    const VarnelBeam *beam = readBeam("NUMBER=\"1\"", spans);
    ASSERT_EQ(beam->getFoundations().size(), 1u);
    KzVector3D stiffness;
    beam->getFoundations().front()->getFEnd()->getDispLine(stiffness);
    EXPECT_TRUE(stiffness == KzVector3D(0, 0, 4));
}

// Meant: numbers of foundations are written and not read, so values of spans do not survive, and the
// foundation without stiffness enters the project.
TEST_F(BeamSpanElements, SpansComeBackWithoutTheirValues) {
    addBeam()->addFoundation(KzVector3D(0, 0, 10), 0.25, KzVector3D(0, 0, 20), 0.75, &document.manager);
    Document again;
    again.read(document.write());
    const VarnelBeam *beam = again.model().getBeams().front();
    ASSERT_EQ(beam->getFoundations().size(), 1u);
    EXPECT_DOUBLE_EQ(beam->getFoundations().front()->getPosA(), 0.25);
    KzVector3D stiffness(1, 1, 1);
    beam->getFoundations().front()->getFStart()->getDispLine(stiffness);
    EXPECT_TRUE(stiffness == KzVector3D());
    EXPECT_EQ(again.manager.getFoundationManager()->getFoundations().size(), 3u);
}

}  // namespace

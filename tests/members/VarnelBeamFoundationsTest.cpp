#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelFoundedPart.h"
#include "varnel/process/VarnelFactory.h"
#include "varnel/process/VarnelManager.h"

namespace {

class VarnelBeamFoundations : public testing::Test {
  protected:
    KzVector3D dispLine(const Found::Foundation *foundation) {
        KzVector3D line;
        if (foundation) foundation->getDispLine(line);
        return line;
    }

    VarnelFactory factory_;
    VarnelManager manager_{&factory_};
    VarnelBeam beam_;
    const KzVector3D one_{0.0, 0.0, 1.0};
    const KzVector3D two_{0.0, 0.0, 2.0};
};

TEST_F(VarnelBeamFoundations, AreGivenByTheManagerAtBothEnds) {
    beam_.setChanged(false);
    beam_.addFoundation(one_, 0.0, two_, 1.0, &manager_);
    EXPECT_FALSE(beam_.getChanged());
    ASSERT_EQ(1u, beam_.getFoundations().size());
    const VarnelFoundedPart &part = *beam_.getFoundations().front();
    EXPECT_EQ(0.0, part.getPosA());
    EXPECT_EQ(1.0, part.getPosE());
    EXPECT_EQ(one_, dispLine(part.getFStart()));
    EXPECT_EQ(two_, dispLine(part.getFEnd()));
    EXPECT_EQ(part.getFStart()->getNumber() + 1, part.getFEnd()->getNumber()) << "the start comes first";
    EXPECT_TRUE(beam_.checkUsed(part.getFStart()));
    EXPECT_TRUE(beam_.checkUsed(part.getFEnd()));
    const Found::Foundation stranger(one_);
    EXPECT_FALSE(beam_.checkUsed(&stranger));
}

TEST_F(VarnelBeamFoundations, AtEqualStationsAddUpInOnePart) {
    beam_.addFoundation(one_, 0.25, two_, 0.75, &manager_);
    beam_.addFoundation(one_, 0.25, one_, 0.75, &manager_);
    ASSERT_EQ(1u, beam_.getFoundations().size());
    EXPECT_EQ(two_, dispLine(beam_.getFoundations().front()->getFStart()));
    EXPECT_EQ(KzVector3D(0.0, 0.0, 3.0), dispLine(beam_.getFoundations().front()->getFEnd()));
}

TEST_F(VarnelBeamFoundations, AtOtherStationsMakeAnotherPart) {
    beam_.addFoundation(one_, 0.25, two_, 0.75, &manager_);
    beam_.addFoundation(one_, 0.25, two_, std::nextafter(0.75, 1.0), &manager_);
    beam_.addFoundation(one_, std::nextafter(0.25, 1.0), two_, 0.75, &manager_);
    EXPECT_EQ(3u, beam_.getFoundations().size());
}

TEST_F(VarnelBeamFoundations, OffTheBeamAreIgnored) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (double pos :
         {1.1, -0.1, std::nextafter(1.0, 2.0), -std::numeric_limits<double>::denorm_min(), nan, infinity}) {
        SCOPED_TRACE(pos);
        beam_.addFoundation(one_, pos, two_, 1.0, &manager_);
        beam_.addFoundation(one_, 0.0, two_, pos, &manager_);
        EXPECT_TRUE(beam_.getFoundations().empty());
    }
}

TEST_F(VarnelBeamFoundations, MayRunBackwards) {
    beam_.addFoundation(one_, 1.0, two_, 0.0, &manager_);
    ASSERT_EQ(1u, beam_.getFoundations().size());
    EXPECT_EQ(1.0, beam_.getFoundations().front()->getPosA());
}

TEST_F(VarnelBeamFoundations, AreRemovedTogether) {
    beam_.addFoundation(one_, 0.0, two_, 1.0, &manager_);
    const Found::Foundation *used = beam_.getFoundations().front()->getFEnd();
    beam_.removeFoundations();
    EXPECT_TRUE(beam_.getFoundations().empty());
    EXPECT_FALSE(beam_.checkUsed(used));
}

TEST_F(VarnelBeamFoundations, AreSharedWithAMemberWiseCopy) {
    VarnelBeam copy;
    beam_.addFoundation(one_, 0.0, two_, 1.0, &manager_);
    copy = beam_;
    beam_.removeFoundations();
    ASSERT_EQ(1u, copy.getFoundations().size());
    EXPECT_EQ(two_, dispLine(copy.getFoundations().front()->getFEnd()));
}

}  // namespace

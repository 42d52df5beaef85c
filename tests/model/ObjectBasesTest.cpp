#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/support/RecordingObjectVisitor.h"
#include "varnel/varnel.h"

// Which of the three small bases each class of a model has, and in which order they stand in its objects.
namespace {

template <class Class>
std::string basesOf() {
    std::string bases;
    if (std::is_base_of<VarnelObject, Class>::value) bases += 'O';
    if (std::is_base_of<VarnelPosition, Class>::value) bases += 'P';
    if (std::is_base_of<VarnelStateObject, Class>::value) bases += 'S';
    return bases;
}

/// Whether the parts of an object lie one behind the other as its bases are named.
template <class... Bases, class Class>
bool standInOrder(const Class &object) {
    const std::vector<const char *> places{
        reinterpret_cast<const char *>(static_cast<const Bases *>(&object))...};
    return std::adjacent_find(places.begin(), places.end(), std::greater_equal<const char *>()) ==
           places.end();
}

TEST(ObjectBases, EachClassTakesOnlyTheConcernsThatItHas) {
    EXPECT_EQ("O", basesOf<VarnelPoint>());
    EXPECT_EQ("O", basesOf<VarnelLine>());
    EXPECT_EQ("O", basesOf<VarnelLineHolder>());
    EXPECT_EQ("O", basesOf<VarnelLineBoundary>());
    EXPECT_EQ("P", basesOf<VarnelLineBoundaryData>());
    EXPECT_EQ("P", basesOf<VarnelResultSection>());
    EXPECT_EQ("OP", basesOf<VarnelPolyObject>());
    EXPECT_EQ("OP", basesOf<VarnelHole>());
    EXPECT_EQ("OP", basesOf<VarnelAttributeArea>());
    EXPECT_EQ("OP", basesOf<VarnelLoadDistributionArea>());
    EXPECT_EQ("OP", basesOf<VarnelLoad>());
    EXPECT_EQ("OP", basesOf<VarnelAreaLoad>());
    EXPECT_EQ("OP", basesOf<VarnelBeamLoad>());
    EXPECT_EQ("OPS", basesOf<VarnelPlate>());
    EXPECT_EQ("OPS", basesOf<VarnelBeam>());
    EXPECT_EQ("OPS", basesOf<VarnelPointBoundary>());
    EXPECT_EQ("OPS", basesOf<VarnelLineLoad>());
    EXPECT_EQ("OPS", basesOf<VarnelPointLoad>());
}

TEST(ObjectBases, KindsDeriveFromTheirCommonClass) {
    EXPECT_TRUE((std::is_base_of<VarnelPoint, VarnelPlatePosition>::value));
    EXPECT_TRUE((std::is_base_of<VarnelPlatePosition, VarnelNodeResultLocation>::value));
    EXPECT_TRUE((std::is_base_of<VarnelLine, VarnelStraight>::value));
    EXPECT_TRUE((std::is_base_of<VarnelLine, VarnelCircle>::value));
    EXPECT_TRUE((std::is_base_of<VarnelLineHolder, VarnelBeamGeo>::value));
    EXPECT_TRUE((std::is_base_of<VarnelLineHolder, VarnelArea>::value));
    EXPECT_TRUE((std::is_base_of<VarnelArea, VarnelAreaPolygon>::value));
    EXPECT_TRUE((std::is_base_of<VarnelArea, VarnelAreaRectangle>::value));
    EXPECT_TRUE((std::is_base_of<VarnelPolyObject, VarnelPlate>::value));
    EXPECT_TRUE((std::is_base_of<VarnelPolyObject, VarnelHole>::value));
    EXPECT_TRUE((std::is_base_of<VarnelPolyObject, VarnelAttributeArea>::value));
    EXPECT_TRUE((std::is_base_of<VarnelPolyObject, VarnelLoadDistributionArea>::value));
    EXPECT_TRUE((std::is_base_of<VarnelPointBoundary, VarnelPointBoundaryCircle>::value));
    EXPECT_TRUE((std::is_base_of<VarnelPointBoundary, VarnelPointBoundaryRectan>::value));
    EXPECT_TRUE((std::is_base_of<VarnelLoad, VarnelPointLoad>::value));
    EXPECT_TRUE((std::is_base_of<VarnelLoad, VarnelLineLoad>::value));
    EXPECT_TRUE((std::is_base_of<VarnelLoad, VarnelAreaLoad>::value));
    EXPECT_TRUE((std::is_base_of<VarnelLoad, VarnelBeamLoad>::value));
}

TEST(ObjectBases, StandInTheOrderInWhichHostsKnowThem) {
    EXPECT_TRUE((standInOrder<VarnelObject, VarnelPosition>(VarnelHole())));
    EXPECT_TRUE((standInOrder<VarnelObject, VarnelPosition, VarnelStateObject>(VarnelPlate(nullptr))));
    EXPECT_TRUE((standInOrder<VarnelStateObject, VarnelPosition, VarnelObject>(VarnelBeam())));
    EXPECT_TRUE((standInOrder<VarnelStateObject, VarnelObject, VarnelPosition>(
        VarnelPointBoundary(KzVector3D(), 0, nullptr))));
    EXPECT_TRUE((standInOrder<VarnelPosition, VarnelBoundaryData>(VarnelLineBoundaryData())));
    EXPECT_TRUE((standInOrder<VarnelObject, VarnelPosition>(VarnelAreaLoad())));
    EXPECT_TRUE((standInOrder<VarnelObject, VarnelPosition>(VarnelBeamLoad())));
    EXPECT_TRUE((standInOrder<VarnelObject, VarnelPosition, VarnelStateObject>(VarnelLineLoad(nullptr))));
    EXPECT_TRUE((standInOrder<VarnelObject, VarnelPosition, VarnelStateObject>(VarnelPointLoad())));
    EXPECT_FALSE((standInOrder<VarnelObject, VarnelStateObject>(VarnelBeam()))) << "the test can fail";
}

TEST(ObjectBases, ANodeResultIsVisitedAsAPoint) {
    VarnelNodeResultLocation node(KzVector3D(1.0, 2.0, 3.0));
    VarnelObject &object = node;
    varnel::RecordingObjectVisitor visitor;
    EXPECT_EQ(7, object.getVisited(&visitor));
    EXPECT_EQ("point", visitor.kind);
    EXPECT_EQ(static_cast<VarnelPoint *>(&node), visitor.object);
}

}  // namespace

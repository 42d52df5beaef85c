#include "varnel/members/VarnelPlate.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>

#include "tests/support/Noted.h"
#include "tests/support/Places.h"
#include "tests/support/RecordingObjectVisitor.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzReinfSteel.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelPlateEdgeData.h"
#include "varnel/members/VarnelPlateProperties.h"
#include "varnel/model/VarnelDB.h"

namespace {

using varnel::isNear;
using varnel::Noted;
using varnel::planeAtHeight;
using varnel::virtualSlot;

constexpr auto dead = SysBase::LoadcaseData::DEAD;
constexpr auto live = SysBase::LoadcaseData::LIVE;

/// Four metres by three, supported at edge 0, unchanged until it is touched.
std::unique_ptr<VarnelPlate> quietPlate() {
    auto plate = std::make_unique<VarnelPlate>(nullptr);
    plate->setArea(new VarnelAreaRectangle(KzVector3D(), 4.0, 3.0, 0.0));
    plate->setBoundary(0, VarnelLineBoundaryData(7, "support"));
    plate->setChanged(false);
    return plate;
}

/// What the const question answers: it asks the outline only.
bool outlineChanged(const VarnelPlate &plate) {
    return plate.getChanged();
}

TEST(VarnelPlate, IsBornChangedActiveAndEmpty) {
    VarnelPlate plate(nullptr);
    EXPECT_TRUE(plate.getChanged());
    EXPECT_FALSE(outlineChanged(plate));
    EXPECT_TRUE(plate.getActive());
    EXPECT_EQ(0, plate.getNumber());
    EXPECT_EQ(0, plate.getPlateType());
    EXPECT_EQ(nullptr, plate.getParent());
    EXPECT_EQ(nullptr, plate.getGeo());
    EXPECT_TRUE(plate.getAreaLoads().empty());
    EXPECT_TRUE(plate.getResultPositions().empty());
    EXPECT_EQ(nullptr, plate.getEdgeData(0));
}

TEST(VarnelPlate, IsBornWithDefaults) {
    const VarnelPlate plate(nullptr);
    EXPECT_EQ(0.2, plate.getThick());
    EXPECT_EQ(0.5, plate.getMeshSizeX());
    EXPECT_EQ(0.5, plate.getMeshSizeY());
    EXPECT_EQ(0.0, plate.getMinMeshSize());
    EXPECT_TRUE(plate.getAutoMeshSize());
    EXPECT_EQ(0, plate.getElementType());
    EXPECT_EQ(2, plate.getMeshType());
    EXPECT_EQ(120.0, plate.getMeshAngle());
    EXPECT_EQ("", plate.getName());
    EXPECT_EQ(nullptr, plate.getMaterial(0));
    EXPECT_EQ(nullptr, plate.getConcrete(0));
    EXPECT_EQ(nullptr, plate.getFoundation());
    EXPECT_EQ(nullptr, plate.getDesign());
}

TEST(VarnelPlate, RefersToItsModelOnly) {
    VarnelDB model(nullptr);
    VarnelPlate plate(&model);
    EXPECT_EQ(&model, plate.getParent());
    plate.setParent(nullptr);
    EXPECT_EQ(nullptr, plate.getParent());
}

TEST(VarnelPlate, MarksAChangeWhereAndAsFarAsItIsMeantTo) {
    struct Row {
        const char *setter;
        std::function<void(VarnelPlate &)> call;
        bool plate;
        bool outlineAndSupports;
    };
    static Found::Foundation foundation{KzVector3D(1.0, 2.0, 3.0)};
    static KzConcrete concrete("C", 2500.0, 25.0);
    const Row rows[] = {
        {"thickness", [](VarnelPlate &p) { p.setThick(0.3); }, true, false},
        {"the old thickness", [](VarnelPlate &p) { p.setThick(p.getThick()); }, true, false},
        {"mesh size x", [](VarnelPlate &p) { p.setMeshSizeX(0.3); }, true, false},
        {"mesh size y", [](VarnelPlate &p) { p.setMeshSizeY(0.3); }, true, false},
        {"least mesh size", [](VarnelPlate &p) { p.setMinMeshSize(0.3); }, true, false},
        {"plate type", [](VarnelPlate &p) { p.setPlateType(1); }, true, false},
        {"element type", [](VarnelPlate &p) { p.setElementType(1); }, true, true},
        {"mesh type", [](VarnelPlate &p) { p.setMeshType(1); }, true, true},
        {"mesh angle", [](VarnelPlate &p) { p.setMeshAngle(60.0); }, true, true},
        {"no design", [](VarnelPlate &p) { p.setDesign(nullptr); }, true, true},
        {"another foundation", [](VarnelPlate &p) { p.setFoundation(&foundation); }, true, true},
        {"the same foundation", [](VarnelPlate &p) { p.setFoundation(nullptr); }, false, false},
        {"add a load", [](VarnelPlate &p) { p.add(new VarnelAreaLoad); }, true, false},
        {"add a null load", [](VarnelPlate &p) { p.add(static_cast<VarnelAreaLoad *>(nullptr)); }, true,
         false},
        {"give a load", [](VarnelPlate &p) { p.giveAreaLoad(dead, nullptr); }, true, false},
        {"remove a load", [](VarnelPlate &p) { p.remove(static_cast<VarnelAreaLoad *>(nullptr)); }, false,
         false},
        {"automatic mesh size", [](VarnelPlate &p) { p.setAutoMeshSize(false); }, false, false},
        {"material", [](VarnelPlate &p) { p.setMaterial(&concrete, 0); }, false, false},
        {"properties", [](VarnelPlate &p) { p.setData(VarnelPlateProperties()); }, false, false},
        {"name", [](VarnelPlate &p) { p.setName("P"); }, false, false},
        {"default name", [](VarnelPlate &p) { p.setDefaultName(); }, false, false},
        {"number", [](VarnelPlate &p) { p.setNumber(3); }, false, false},
        {"active", [](VarnelPlate &p) { p.setActive(false); }, false, false},
        {"model", [](VarnelPlate &p) { p.setParent(nullptr); }, false, false},
        {"add a position", [](VarnelPlate &p) { p.add(new VarnelPlatePosition(0, 0, 0)); }, false, false},
        {"give a position", [](VarnelPlate &p) { p.giveResultPosition(1, 0, 0); }, false, false},
        {"remove results", [](VarnelPlate &p) { p.removeResults(); }, false, false},
        {"edge joint", [](VarnelPlate &p) { p.setEdgeJoint(1, 3); }, false, false},
        {"cycle", [](VarnelPlate &p) { p.cycle(1); }, false, false},
        {"swap", [](VarnelPlate &p) { p.swap(); }, false, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        const auto plate = quietPlate();
        ASSERT_FALSE(plate->getChanged());
        row.call(*plate);
        EXPECT_EQ(row.plate, plate->getChanged());
        EXPECT_EQ(row.outlineAndSupports, outlineChanged(*plate));
        EXPECT_EQ(row.outlineAndSupports, plate->getBoundary(0)->getChanged());
    }
}

TEST(VarnelPlate, IsChangedWithItsOutlineAndItsSupports) {
    const auto plate = quietPlate();
    plate->getBoundary(0)->setWidth(0.3);
    EXPECT_TRUE(plate->getChanged());
    EXPECT_FALSE(outlineChanged(*plate));
    plate->setChanged(false);
    EXPECT_FALSE(plate->getBoundary(0)->getChanged());
    plate->getGeo()->setCoor(0, KzVector3D(-1, 0, 0));
    EXPECT_TRUE(plate->getChanged());
    EXPECT_TRUE(outlineChanged(*plate));
    plate->setChanged(false);
    EXPECT_FALSE(plate->getChanged());
    plate->setChanged(true);
    EXPECT_TRUE(plate->getBoundary(0)->getChanged());
    EXPECT_TRUE(outlineChanged(*plate));
}

TEST(VarnelPlate, AsksAsManySupportsAsEdgesAreKnownAndNoneBehindAGap) {
    const auto plate = quietPlate();
    plate->setBoundary(2, VarnelLineBoundaryData(1, ""));
    VarnelLineBoundaryData *behindTheGap = plate->getBoundary(2);
    ASSERT_TRUE(behindTheGap->getChanged());
    EXPECT_FALSE(plate->getChanged());
    plate->setChanged(false);
    EXPECT_TRUE(behindTheGap->getChanged());
    plate->setEdgeJoint(1, 1);
    EXPECT_TRUE(plate->getChanged());
    plate->setChanged(false);
    EXPECT_FALSE(behindTheGap->getChanged());
}

TEST(VarnelPlate, ItsOwnLoadsDoNotCountAsItsChange) {
    const auto plate = quietPlate();
    plate->giveAreaLoad(dead, nullptr);
    plate->setChanged(false);
    plate->getAreaLoads().front()->setChanged(true);
    EXPECT_FALSE(plate->getChanged());
    plate->setChanged(false);
    EXPECT_TRUE(plate->getAreaLoads().front()->getChanged());
}

TEST(VarnelPlate, KeepsWhatItIsGiven) {
    VarnelPlate plate(nullptr);
    Found::Foundation foundation{KzVector3D(1.0, 2.0, 3.0)};
    plate.setThick(0.31);
    plate.setMeshSizeX(0.32);
    plate.setMeshSizeY(0.33);
    plate.setMinMeshSize(0.34);
    plate.setAutoMeshSize(false);
    plate.setElementType(5);
    plate.setMeshType(6);
    plate.setMeshAngle(70.0);
    plate.setPlateType(8);
    plate.setFoundation(&foundation);
    EXPECT_EQ(0.31, plate.getThick());
    EXPECT_EQ(0.32, plate.getMeshSizeX());
    EXPECT_EQ(0.33, plate.getMeshSizeY());
    EXPECT_EQ(0.34, plate.getMinMeshSize());
    EXPECT_FALSE(plate.getAutoMeshSize());
    EXPECT_EQ(5, plate.getElementType());
    EXPECT_EQ(6, plate.getMeshType());
    EXPECT_EQ(70.0, plate.getMeshAngle());
    EXPECT_EQ(8, plate.getPlateType());
    EXPECT_EQ(&foundation, plate.getFoundation());
    EXPECT_EQ(0.31, plate.getData().getThick());
    EXPECT_EQ(&foundation, plate.getData().getFoundation());
}

TEST(VarnelPlate, AssignsToTheRecordItHas) {
    VarnelPlate plate(nullptr);
    const VarnelPlateProperties &seen = plate.getData();
    VarnelPlateProperties properties;
    properties.setThick(0.7);
    properties.setName("P");
    plate.setData(properties);
    EXPECT_EQ(&seen, &plate.getData());
    EXPECT_EQ(0.7, seen.getThick());
    EXPECT_EQ("P", plate.getName());
}

TEST(VarnelPlate, CopiesTheDesignItIsGiven) {
    VarnelPlate plate(nullptr);
    VarnelDesignData design;
    design.setTheta(0.5);
    plate.setDesign(&design);
    const VarnelDesignData *own = plate.getDesign();
    ASSERT_NE(nullptr, own);
    EXPECT_NE(&design, own);
    EXPECT_EQ(0.5, own->getTheta());
    design.setTheta(0.6);
    plate.setDesign(&design);
    EXPECT_EQ(own, plate.getDesign());
    EXPECT_EQ(0.6, own->getTheta());
    plate.setDesign(nullptr);
    EXPECT_EQ(nullptr, plate.getDesign());
}

TEST(VarnelPlate, IgnoresTheNumberOfAMaterial) {
    VarnelPlate plate(nullptr);
    KzConcrete concrete("C", 2500.0, 25.0);
    KzMaterial timber("T", 420.0, 4.2);
    plate.setMaterial(&concrete, 5);
    EXPECT_EQ(&concrete, plate.getMaterial(-1));
    EXPECT_EQ(&concrete, plate.getConcrete(99));
    plate.setMaterial(&timber, 0);
    EXPECT_EQ(&timber, plate.getMaterial(0));
    EXPECT_EQ(nullptr, plate.getConcrete(0));
}

TEST(VarnelPlate, TheNameOfAGroupIsItsOwnOrMadeOfTheNumber) {
    VarnelPlate plate(nullptr);
    const std::pair<int, const char *> rows[] = {
        {0, "PL000"},       {7, "PL007"},
        {42, "PL042"},      {999, "PL999"},
        {1234, "PL1234"},   {-1, "PL0-1"},
        {-1234, "PL-1234"}, {std::numeric_limits<int>::min(), "PL-2147483648"}};
    for (const auto &[number, name] : rows) {
        plate.setNumber(number);
        EXPECT_EQ(name, plate.getGroupName());
    }
    plate.setName("Roof");
    EXPECT_EQ("Roof", plate.getGroupName());
}

TEST(VarnelPlate, TheDefaultNameIsThePlainNumber) {
    VarnelPlate plate(nullptr);
    plate.setNumber(7);
    plate.setDefaultName();
    EXPECT_EQ("Platte 7", plate.getName());
    plate.setNumber(-12);
    plate.setDefaultName();
    EXPECT_EQ("Platte -12", plate.getName());
}

TEST(VarnelPlate, TellsItsModelOfItsName) {
    VarnelDB model(nullptr);
    VarnelPlate plate(&model);
    plate.setName("First");
    EXPECT_TRUE(model.hasPlatewithName("First"));
    plate.setName("Second");
    EXPECT_FALSE(model.hasPlatewithName("First"));
    EXPECT_TRUE(model.hasPlatewithName("Second"));
    plate.setName(plate.getName());
    EXPECT_EQ("Second", plate.getName());
    EXPECT_TRUE(model.hasPlatewithName("Second"));
}

TEST(VarnelPlate, VolumeAndWeightFollowFromOutlineThicknessAndDensity) {
    const auto plate = quietPlate();
    KzConcrete concrete("C", 2500.0, 25.0);
    EXPECT_DOUBLE_EQ(2.4, plate->getVolumen());
    EXPECT_EQ(0.0, plate->getWeight());
    plate->setMaterial(&concrete, 0);
    EXPECT_DOUBLE_EQ(6000.0, plate->getWeight());
    plate->setThick(0.1);
    EXPECT_DOUBLE_EQ(3000.0, plate->getWeight());
    VarnelPlate bare(nullptr);
    bare.setMaterial(&concrete, 0);
    EXPECT_EQ(0.0, bare.getVolumen());
    EXPECT_EQ(0.0, bare.getWeight());
}

TEST(VarnelPlate, WidensABoxByItsOutline) {
    const auto plate = quietPlate();
    KzVector3D min(1, 1, 1), max(1, 1, 1);
    plate->updateMinMax(&min, &max, planeAtHeight(2.0));
    EXPECT_TRUE(isNear(KzVector3D(0, 0, 1), min));
    EXPECT_TRUE(isNear(KzVector3D(4, 3, 2), max));
    const VarnelPlate bare(nullptr);
    bare.updateMinMax(&min, &max, KzMatrix44());
    plate->updateMinMax(nullptr, nullptr, KzMatrix44());
    EXPECT_TRUE(isNear(KzVector3D(4, 3, 2), max));
}

TEST(VarnelPlate, IsVisitedAsAPlate) {
    VarnelPlate plate(nullptr);
    varnel::RecordingObjectVisitor visitor;
    VarnelObject &object = plate;
    EXPECT_EQ(7, object.getVisited(&visitor));
    EXPECT_EQ("plate", visitor.kind);
    EXPECT_EQ(&plate, visitor.object);
    EXPECT_EQ(0, object.getVisited(nullptr));
}

TEST(VarnelPlate, IsAskedThroughItsBases) {
    const auto plate = quietPlate();
    plate->setNumber(2);
    VarnelPosition &position = *plate;
    position.setName("P");
    EXPECT_EQ("P", plate->getName());
    EXPECT_EQ("P", position.getName());
    VarnelPolyObject &outlined = *plate;
    plate->setThick(0.3);
    EXPECT_FALSE(outlined.getChanged());
    outlined.setChanged(false);
    EXPECT_FALSE(plate->getChanged());
    EXPECT_TRUE(outlined.isInPlane(KzMatrix44()));
    EXPECT_FALSE(outlined.touchesPlane(planeAtHeight(1.0)));
    EXPECT_TRUE(outlined.isIn(nullptr));
}

TEST(VarnelPlate, FindsTheFirstLoadOfATypeAndACase) {
    VarnelPlate plate(nullptr);
    SysBase::Loadcase first(1), second(2);
    plate.add(static_cast<VarnelAreaLoad *>(nullptr));
    EXPECT_EQ(nullptr, plate.findAreaLoad(dead, nullptr));
    VarnelAreaLoad *one = plate.giveAreaLoad(dead, &first);
    VarnelAreaLoad *two = plate.giveAreaLoad(dead, &second);
    VarnelAreaLoad *three = plate.giveAreaLoad(live, &first);
    EXPECT_NE(one, two);
    EXPECT_EQ(one, plate.findAreaLoad(dead, &first));
    EXPECT_EQ(two, plate.findAreaLoad(dead, &second));
    EXPECT_EQ(one, plate.findAreaLoad(dead, nullptr));
    EXPECT_EQ(three, plate.findAreaLoad(live, nullptr));
    EXPECT_EQ(nullptr, plate.findAreaLoad(live, &second));
    EXPECT_EQ(one, plate.giveAreaLoad(dead, nullptr));
    EXPECT_EQ(4u, plate.getAreaLoads().size());
}

TEST(VarnelPlate, ALoadThatItGivesLiesOnItsOutlineWithoutOwningIt) {
    const auto plate = quietPlate();
    SysBase::Loadcase loadcase(1);
    const VarnelAreaLoad *load = plate->giveAreaLoad(live, &loadcase);
    EXPECT_EQ(plate->getGeo(), load->getArea());
    EXPECT_FALSE(load->getOwnsArea());
    EXPECT_EQ(&loadcase, load->getLoadcase());
    EXPECT_EQ(live, load->getLcType());
    EXPECT_EQ(load, plate->getAreaLoads().back());
    VarnelPlate bare(nullptr);
    EXPECT_EQ(nullptr, bare.giveAreaLoad(dead, nullptr)->getArea());
    EXPECT_EQ(nullptr, bare.giveAreaLoad(dead, nullptr)->getLoadcase());
}

TEST(VarnelPlate, ARemovedLoadIsTheCallers) {
    const auto plate = quietPlate();
    const std::unique_ptr<VarnelAreaLoad> load(plate->giveAreaLoad(dead, nullptr));
    plate->add(new VarnelAreaLoad);
    plate->setChanged(false);
    plate->remove(load.get());
    EXPECT_FALSE(plate->getChanged());
    EXPECT_EQ(1u, plate->getAreaLoads().size());
    VarnelAreaLoad stranger;
    plate->remove(&stranger);
    EXPECT_EQ(1u, plate->getAreaLoads().size());
    EXPECT_EQ(dead, load->getLcType());
}

TEST(VarnelPlate, DiesFromItsEdgesOverItsLoadsToItsOutline) {
    std::string notes;
    {
        VarnelPlate plate(nullptr);
        plate.setArea(new Noted<VarnelAreaRectangle>(notes, 'O', KzVector3D(), 4.0, 3.0, 0.0));
        plate.add(new Noted<VarnelAreaLoad>(notes, 'L'));
        plate.setEdgeJoint(0, 1);
        plate.getEdgeData(0)->setBoundary(new Noted<VarnelLineBoundaryData>(notes, 'E'));
    }
    EXPECT_EQ("ELO", notes);
}

TEST(VarnelPlate, DyingShowsNoDeadEdgesToALoadThatAsks) {
    class Asking : public VarnelAreaLoad {
      public:
        Asking(const VarnelPlate &plate, bool &seen) : plate_(plate), seen_(seen) {}
        ~Asking() override { seen_ = plate_.getEdgeData(0) != nullptr; }

      private:
        const VarnelPlate &plate_;
        bool &seen_;
    };
    bool seen = true;
    {
        const auto plate = quietPlate();
        ASSERT_NE(nullptr, plate->getEdgeData(0));
        plate->add(new Asking(*plate, seen));
    }
    EXPECT_FALSE(seen);
}

TEST(VarnelPlate, AppendsItsVirtualOperationsToThoseOfAnOutlinedObject) {
    EXPECT_EQ(7, virtualSlot<bool() const>(&VarnelPlate::getChanged));
    EXPECT_EQ(8, virtualSlot(&VarnelPlate::setChanged));
    EXPECT_EQ(9, virtualSlot<bool()>(&VarnelPlate::getChanged));
    EXPECT_EQ(10, virtualSlot(&VarnelPlate::giveResultPosition));
    EXPECT_EQ(11, virtualSlot(&VarnelPlate::removeResults));
    EXPECT_EQ(12, virtualSlot(&VarnelPlate::setDefaultName));
    EXPECT_EQ(-1, virtualSlot(&VarnelPlate::findPlatePosition));
}

}  // namespace

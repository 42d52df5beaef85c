#include "varnel/results/VarnelResultSection.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <utility>

#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/model/Varnel.h"
#include "varnel/process/VarnelDatabaseFactory.h"
#include "varnel/results/VarnelResultSectionLocation.h"

namespace {

/// A location that counts the living ones.
class CountedLocation : public VarnelResultSectionLocation {
  public:
    explicit CountedLocation(int &living) : VarnelResultSectionLocation(0.5), living_(living) { ++living_; }
    ~CountedLocation() override { --living_; }

  private:
    int &living_;
};

/// A location that looks, when it dies, whether its section still has its line, and where that ends.
class LateLocation : public VarnelResultSectionLocation {
  public:
    LateLocation(VarnelResultSection &section, bool &lineThere, KzVector3D &lastEnd)
        : VarnelResultSectionLocation(0.5), section_(section), lineThere_(lineThere), lastEnd_(lastEnd) {}
    ~LateLocation() override {
        lineThere_ = section_.getGeo() != nullptr;
        section_.setP1(section_.getP1());
        section_.setP2(section_.getP2());
        lastEnd_ = section_.getP2();
    }

  private:
    VarnelResultSection &section_;
    bool &lineThere_;
    KzVector3D &lastEnd_;
};

/// A host's factory, which may decline to make a section.
class HostFactory final : public VarnelDatabaseFactory {
  public:
    VarnelResultSection *giveResultSection(Varnel *model) override {
        asked = model;
        return declines ? nullptr : made = new VarnelResultSection(model);
    }

    Varnel *asked = nullptr;
    VarnelResultSection *made = nullptr;
    bool declines = false;
};

class HostModel : public Varnel {
  public:
    explicit HostModel(std::shared_ptr<VarnelDatabaseFactory> factory) : Varnel(nullptr) {
        setDBaseFactory(std::move(factory));
    }
};

const KzVector3D start(1.0, 2.0, 3.0);
const KzVector3D end(4.0, 5.0, 6.0);

TEST(VarnelResultSectionLocation, HoldsItsStation) {
    VarnelResultSectionLocation location(0.25);
    EXPECT_EQ(0.25, location.getXi());
    location.setXi(0.75);
    EXPECT_EQ(0.75, VarnelResultSectionLocation(location).getXi());
    EXPECT_TRUE(std::has_virtual_destructor<VarnelResultSectionLocation>::value);
}

TEST(VarnelResultSection, WithAModelAloneIsBornAtTheOriginWithTheNormalZ) {
    const VarnelResultSection section(nullptr);
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), section.getNormal());
    EXPECT_TRUE(section.getInPlane());
    EXPECT_EQ("", section.getName());
    EXPECT_EQ(0, section.getNumber());
    EXPECT_EQ(KzVector3D(), section.getP1());
    EXPECT_EQ(KzVector3D(), section.getP2());
    EXPECT_TRUE(section.getLocations().empty());
}

TEST(VarnelResultSection, WithPointsIsBornBetweenThemWithoutANormal) {
    const VarnelResultSection section(nullptr, start, end);
    EXPECT_EQ(KzVector3D(), section.getNormal());
    EXPECT_TRUE(section.getInPlane());
    EXPECT_EQ(start, section.getP1());
    EXPECT_EQ(end, section.getP2());
    ASSERT_NE(nullptr, section.getGeo());
    EXPECT_EQ(2U, section.getGeo()->getNumLines());
}

TEST(VarnelResultSection, SettingAPointMovesThatEndOfTheLine) {
    VarnelResultSection section(nullptr);
    section.setP1(start);
    EXPECT_EQ(start, section.getP1());
    EXPECT_EQ(KzVector3D(), section.getP2());
    section.setP2(end);
    EXPECT_EQ(start, section.getP1());
    EXPECT_EQ(end, section.getP2());
}

TEST(VarnelResultSection, HoldsNameAndFlag) {
    VarnelResultSection section(nullptr);
    section.setName("S1");
    section.setInPlane(false);
    EXPECT_EQ("S1", section.getName());
    EXPECT_FALSE(section.getInPlane());
}

TEST(VarnelResultSection, ALineWithoutEdgesHasItsEndsAtTheOrigin) {
    VarnelResultSection section(nullptr, start, end);
    section.getGeo()->reset();
    section.setP1(start);
    EXPECT_EQ(KzVector3D(), section.getP1());
    EXPECT_EQ(KzVector3D(), section.getP2());
}

TEST(VarnelResultSection, ResetFreesTheLocationsAndLeavesTheLine) {
    int living = 0;
    VarnelResultSection section(nullptr, start, end);
    section.getLocations().push_back(new CountedLocation(living));
    section.getLocations().push_back(nullptr);
    section.getLocations().push_back(new CountedLocation(living));
    const VarnelArea *line = section.getGeo();
    section.reset();
    EXPECT_EQ(0, living);
    EXPECT_TRUE(section.getLocations().empty());
    EXPECT_EQ(line, section.getGeo());
    EXPECT_EQ(end, section.getP2());
}

TEST(VarnelResultSection, WhenItDiesTheLineGoesBeforeTheLocations) {
    bool lineThere = false;
    KzVector3D lastEnd;
    {
        VarnelResultSection section(nullptr, start, end);
        section.getLocations().push_back(new LateLocation(section, lineThere, lastEnd));
        section.reset();
        EXPECT_TRUE(lineThere);
        EXPECT_EQ(end, lastEnd);
        section.getLocations().push_back(new LateLocation(section, lineThere, lastEnd));
    }
    EXPECT_FALSE(lineThere);
    EXPECT_EQ(KzVector3D(), lastEnd);
}

TEST(VarnelResultSection, OfTheFactoryMovesItsFirstEndWithTheFirstPoint) {
    VarnelDatabaseFactory factory;
    const std::unique_ptr<VarnelResultSection> section(factory.giveResultSection(nullptr));
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), section->getNormal());
    section->setP1(start);
    EXPECT_EQ(start, section->getGeo()->getLine(0)->getStartVec());
    EXPECT_EQ(KzVector3D(), section->getGeo()->getLine(0)->getEndVec());
}

TEST(VarnelResultSection, OfAModelIsMadeByTheFactoryOfTheHost) {
    const auto factory = std::make_shared<HostFactory>();
    HostModel model(factory);
    const std::unique_ptr<VarnelResultSection> section(model.giveResultSection(start, end));
    EXPECT_EQ(&model, factory->asked);
    EXPECT_EQ(factory->made, section.get());
    EXPECT_EQ(start, section->getP1());
    EXPECT_EQ(end, section->getP2());
    EXPECT_EQ(1, section->getNumber());
    factory->declines = true;
    EXPECT_EQ(nullptr, model.giveResultSection(start, end));
}

TEST(VarnelResultSection, FreesItsLocationsWhenItDies) {
    int living = 0;
    {
        VarnelResultSection section(nullptr);
        section.getLocations().push_back(new CountedLocation(living));
        EXPECT_EQ(1, living);
    }
    EXPECT_EQ(0, living);
}

TEST(VarnelResultSection, CopiesShareLineAndLocationsUntilTheLastOneDies) {
    int living = 0;
    auto source = std::make_unique<VarnelResultSection>(nullptr, start, end);
    source->setNumber(7);
    source->setName("S1");
    source->setInPlane(false);
    source->getLocations().push_back(new CountedLocation(living));
    auto copy = std::make_unique<VarnelResultSection>(*source);
    auto assigned = std::make_unique<VarnelResultSection>(nullptr);
    int replaced = 0;
    assigned->getLocations().push_back(new CountedLocation(replaced));
    *assigned = *source;
    EXPECT_EQ(0, replaced);
    for (const VarnelResultSection *section : {copy.get(), assigned.get()}) {
        EXPECT_EQ(7, section->getNumber());
        EXPECT_EQ("S1", section->getName());
        EXPECT_FALSE(section->getInPlane());
        EXPECT_EQ(source->getGeo(), section->getGeo());
        EXPECT_EQ(source->getLocations(), section->getLocations());
    }
    source.reset();
    EXPECT_EQ(1, living);
    EXPECT_EQ(start, copy->getP1());
    copy->setP1(KzVector3D());
    EXPECT_EQ(KzVector3D(), assigned->getP1());
    copy.reset();
    EXPECT_EQ(1, living);
    assigned.reset();
    EXPECT_EQ(0, living);
}

TEST(VarnelResultSection, WhatIsAddedToACopyIsTheCopysAlone) {
    int living = 0;
    VarnelResultSection source(nullptr);
    {
        VarnelResultSection copy(source);
        copy.getLocations().push_back(new CountedLocation(living));
        EXPECT_TRUE(source.getLocations().empty());
    }
    EXPECT_EQ(0, living);
}

TEST(VarnelResultSection, CopiesDoNotTakeTheNormal) {
    const VarnelResultSection source(nullptr);
    const VarnelResultSection copy(source);
    EXPECT_EQ(KzVector3D(), copy.getNormal());
    VarnelResultSection assigned(nullptr, start, end);
    assigned = source;
    EXPECT_EQ(KzVector3D(), assigned.getNormal());
}

TEST(VarnelResultSection, AssigningItselfKeepsAll) {
    int living = 0;
    VarnelResultSection section(nullptr, start, end);
    section.getLocations().push_back(new CountedLocation(living));
    const VarnelResultSection &same = section;
    section = same;
    EXPECT_EQ(1, living);
    EXPECT_EQ(end, section.getP2());
}

TEST(VarnelResultSection, ItsOperationsKeepTheirSlots) {
    EXPECT_EQ(2, varnel::virtualSlot(&VarnelResultSection::setName));
    EXPECT_EQ(3, varnel::virtualSlot(&VarnelResultSection::getName));
}

}  // namespace

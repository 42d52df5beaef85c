#include "varnel/members/VarnelBeamProperties.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <memory>
#include <type_traits>

#include "varnel/contracts/FireDesign/TemperatureDistribution.h"
#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterial.h"
#include "varnel/contracts/KzReinfLine.h"
#include "varnel/contracts/KzReinfSteel.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelFoundedPart.h"

namespace {

/// A distribution with a value of its own, which counts its objects.
class Fire : public FireDesign::TemperatureDistribution {
  public:
    explicit Fire(int value) : degrees(value) { ++alive; }
    Fire(const Fire &other) : TemperatureDistribution(other), degrees(other.degrees) { ++alive; }
    ~Fire() override { --alive; }
    Fire *clone() const override { return new Fire(*this); }

    int degrees;
    static int alive;
};
int Fire::alive = 0;

int degreesOf(const VarnelBeamProperties &data) {
    const auto *fire = dynamic_cast<const Fire *>(data.getTemperatureDistribution());
    return fire ? fire->degrees : 0;
}

TEST(VarnelBeamProperties, IsBornWithDefaults) {
    const VarnelBeamProperties data;
    EXPECT_EQ(nullptr, data.getSection(0));
    EXPECT_EQ(nullptr, data.getSection(1));
    EXPECT_EQ(KzVector3D(), data.getOffset(0));
    EXPECT_EQ(KzVector3D(), data.getOffset(1));
    EXPECT_FALSE(data.hasOffset());
    EXPECT_EQ("", data.getName());
    EXPECT_EQ(1, data.getParts());
    EXPECT_EQ(1, data.getElementType());
    EXPECT_EQ(0, data.getBeamType());
    EXPECT_EQ(0.0, data.getAngle());
    EXPECT_EQ(nullptr, data.getDesign());
    EXPECT_EQ(nullptr, data.getMaterial());
    EXPECT_EQ(nullptr, data.getConcrete());
    EXPECT_EQ(nullptr, data.getReinfLine());
    EXPECT_EQ(nullptr, data.getReinSteel());
    EXPECT_EQ(nullptr, data.getFoundation());
    EXPECT_EQ(nullptr, data.getTemperatureDistribution());
}

TEST(VarnelBeamProperties, HasSectionsAndOffsetsAtBothEndsOnly) {
    SDBSectionLine section("R", 0.06);
    VarnelBeamProperties data;
    data.setSection(&section, 1);
    EXPECT_EQ(nullptr, data.getSection(0));
    EXPECT_EQ(&section, data.getSection(1));
    for (int index : {-1, 2, INT_MAX, INT_MIN}) {
        data.setSection(&section, index);
        EXPECT_EQ(nullptr, data.getSection(index)) << index;
    }
    EXPECT_EQ(nullptr, data.getSection(0));
    for (unsigned index : {2u, UINT_MAX}) {
        data.setOffset(KzVector3D(1.0, 0.0, 0.0), index);
        EXPECT_EQ(KzVector3D(), data.getOffset(index)) << index;
    }
    EXPECT_FALSE(data.hasOffset());
}

TEST(VarnelBeamProperties, HasAnOffsetIfOneEndHas) {
    for (unsigned index : {0u, 1u}) {
        VarnelBeamProperties data;
        data.setOffset(KzVector3D(0.0, 0.0, 0.1), index);
        EXPECT_EQ(KzVector3D(0.0, 0.0, 0.1), data.getOffset(index));
        EXPECT_TRUE(data.hasOffset());
        data.setOffset(KzVector3D(), index);
        EXPECT_FALSE(data.hasOffset());
    }
}

TEST(VarnelBeamProperties, TakesOffsetsUpToTheToleranceForNone) {
    VarnelBeamProperties data;
    data.setOffset(KzVector3D(1e-12, -1e-12, 1e-12), 0);
    EXPECT_FALSE(data.hasOffset());
    data.setOffset(KzVector3D(0.0, 0.0, std::nextafter(1e-12, 1.0)), 1);
    EXPECT_TRUE(data.hasOffset());
}

TEST(VarnelBeamProperties, KnowsAConcreteFromAnotherMaterial) {
    KzMaterial steel("S235", 7850.0, 78.5);
    KzConcrete concrete("C30/37", 2500.0, 25.0);
    VarnelBeamProperties data;
    data.setMaterial(&steel);
    EXPECT_EQ(&steel, data.getMaterial());
    EXPECT_EQ(nullptr, data.getConcrete());
    data.setMaterial(&concrete);
    EXPECT_EQ(&concrete, data.getConcrete());
}

TEST(VarnelBeamProperties, OwnsACopyOfTheDesignData) {
    VarnelDesignData design;
    design.setCnom(0.07);
    VarnelBeamProperties data;
    data.setDesign(&design);
    const VarnelDesignData *own = data.getDesign();
    ASSERT_NE(nullptr, own);
    EXPECT_NE(&design, own);
    EXPECT_EQ(0.07, own->getCnom());
    design.setCnom(0.05);
    data.setDesign(&design);
    EXPECT_EQ(own, data.getDesign());
    EXPECT_EQ(0.05, own->getCnom());
    data.setDesign(data.getDesign());
    EXPECT_EQ(0.05, data.getDesign()->getCnom());
    data.setDesign(nullptr);
    EXPECT_EQ(nullptr, data.getDesign());
}

TEST(VarnelBeamProperties, OwnsACloneOfTheTemperatureDistribution) {
    {
        VarnelBeamProperties data;
        const Fire fire(300);
        data.setTemperatureDistribution(&fire);
        EXPECT_NE(&fire, data.getTemperatureDistribution());
        EXPECT_EQ(300, degreesOf(data));
        data.setTemperatureDistribution(data.getTemperatureDistribution());
        EXPECT_EQ(300, degreesOf(data));
        EXPECT_EQ(2, Fire::alive);
        data.setTemperatureDistribution(nullptr);
        EXPECT_EQ(nullptr, data.getTemperatureDistribution());
        EXPECT_EQ(1, Fire::alive);
    }
    EXPECT_EQ(0, Fire::alive);
}

TEST(VarnelBeamProperties, CopiesAllValuesAndOwnedParts) {
    SDBSectionLine section("R", 0.06), other("S", 0.07);
    KzConcrete concrete("C30/37", 2500.0, 25.0);
    KzReinfLine line(3, "line");
    KzReinfSteel steel("B500", 7850.0, 78.5);
    Found::Foundation foundation(KzVector3D(0.0, 0.0, 1.0));
    VarnelDesignData design;
    design.setCnom(0.07);
    const Fire fire(500);
    auto source = std::make_unique<VarnelBeamProperties>();
    source->setSection(&section, 0);
    source->setSection(&other, 1);
    source->setOffset(KzVector3D(1.0, 0.0, 0.0), 0);
    source->setOffset(KzVector3D(0.0, 1.0, 0.0), 1);
    source->setName("n");
    source->setParts(4);
    source->setElementType(7);
    source->setBeamType(8);
    source->setAngle(30.0);
    source->setDesign(&design);
    source->setMaterial(&concrete);
    source->setReinfLine(&line);
    source->setReinfSteel(&steel);
    source->setFoundation(&foundation);
    source->setTemperatureDistribution(&fire);
    const VarnelBeamProperties copy(*source);
    VarnelBeamProperties assigned;
    assigned = *source;
    source.reset();
    for (const VarnelBeamProperties *data : {&copy, static_cast<const VarnelBeamProperties *>(&assigned)}) {
        EXPECT_EQ(&section, data->getSection(0));
        EXPECT_EQ(&other, data->getSection(1));
        EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), data->getOffset(0));
        EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), data->getOffset(1));
        EXPECT_EQ("n", data->getName());
        EXPECT_EQ(4, data->getParts());
        EXPECT_EQ(7, data->getElementType());
        EXPECT_EQ(8, data->getBeamType());
        EXPECT_EQ(30.0, data->getAngle());
        EXPECT_EQ(0.07, data->getDesign()->getCnom());
        EXPECT_EQ(&concrete, data->getMaterial());
        EXPECT_EQ(&line, data->getReinfLine());
        EXPECT_EQ(&steel, data->getReinSteel());
        EXPECT_EQ(&foundation, data->getFoundation());
        EXPECT_EQ(500, degreesOf(*data));
    }
    const VarnelBeamProperties &same = assigned;
    assigned = same;
    EXPECT_EQ(500, degreesOf(assigned));
    EXPECT_EQ(0.07, assigned.getDesign()->getCnom());
    assigned = VarnelBeamProperties();
    EXPECT_EQ(nullptr, assigned.getDesign());
    EXPECT_EQ(nullptr, assigned.getTemperatureDistribution());
}

TEST(VarnelFoundedPart, IsBornEmptyAndKnowsItsFoundations) {
    Found::Foundation a(KzVector3D(0.0, 0.0, 1.0)), b(KzVector3D(0.0, 0.0, 2.0)), c{KzVector3D()};
    EXPECT_FALSE(std::is_polymorphic<VarnelFoundedPart>::value);
    VarnelFoundedPart part;
    EXPECT_EQ(0.0, part.getPosA());
    EXPECT_EQ(0.0, part.getPosE());
    EXPECT_EQ(nullptr, part.getFStart());
    EXPECT_EQ(nullptr, part.getFEnd());
    EXPECT_TRUE(part.checkUsed(nullptr));
    part.setPosA(0.25);
    part.setPosE(0.75);
    part.setFStart(&a);
    part.setFEnd(&b);
    const VarnelFoundedPart copy(part);
    EXPECT_EQ(0.25, copy.getPosA());
    EXPECT_EQ(0.75, copy.getPosE());
    EXPECT_EQ(&a, copy.getFStart());
    EXPECT_EQ(&b, copy.getFEnd());
    EXPECT_TRUE(copy.checkUsed(&a));
    EXPECT_TRUE(copy.checkUsed(&b));
    EXPECT_FALSE(copy.checkUsed(&c));
    EXPECT_FALSE(copy.checkUsed(nullptr));
}

}  // namespace

#include "varnel/members/VarnelPlateProperties.h"

#include <gtest/gtest.h>

#include <memory>

#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/members/VarnelDesignData.h"

namespace {

class VarnelPlatePropertiesTest : public testing::Test {
  protected:
    std::unique_ptr<VarnelPlateProperties> filled() {
        auto properties = std::make_unique<VarnelPlateProperties>();
        properties->setThick(0.31);
        properties->setMeshSizeX(0.32);
        properties->setMeshSizeY(0.33);
        properties->setMinMeshSize(0.34);
        properties->setAutoMeshSize(false);
        properties->setElementType(5);
        properties->setMeshType(6);
        properties->setName("P");
        properties->setMeshAngle(70.0);
        properties->setMaterial(&concrete_);
        properties->setFoundation(&foundation_);
        VarnelDesignData design;
        design.setTheta(0.5);
        properties->setDesign(&design);
        return properties;
    }

    void expectFilled(const VarnelPlateProperties &properties) {
        EXPECT_EQ(0.31, properties.getThick());
        EXPECT_EQ(0.32, properties.getMeshSizeX());
        EXPECT_EQ(0.33, properties.getMeshSizeY());
        EXPECT_EQ(0.34, properties.getMinMeshSize());
        EXPECT_FALSE(properties.getAutoMeshSize());
        EXPECT_EQ(5, properties.getElementType());
        EXPECT_EQ(6, properties.getMeshType());
        EXPECT_EQ("P", properties.getName());
        EXPECT_EQ(70.0, properties.getMeshAngle());
        EXPECT_EQ(&concrete_, properties.getMaterial());
        EXPECT_EQ(&foundation_, properties.getFoundation());
        ASSERT_NE(nullptr, properties.getDesign());
        EXPECT_EQ(0.5, properties.getDesign()->getTheta());
    }

    KzConcrete concrete_{"C", 2500.0, 25.0};
    Found::Foundation foundation_{KzVector3D(1.0, 2.0, 3.0)};
};

TEST_F(VarnelPlatePropertiesTest, AreBornWithDefaults) {
    const VarnelPlateProperties properties;
    EXPECT_EQ(0.2, properties.getThick());
    EXPECT_EQ(0.5, properties.getMeshSizeX());
    EXPECT_EQ(0.5, properties.getMeshSizeY());
    EXPECT_EQ(0.0, properties.getMinMeshSize());
    EXPECT_TRUE(properties.getAutoMeshSize());
    EXPECT_EQ(0, properties.getElementType());
    EXPECT_EQ(2, properties.getMeshType());
    EXPECT_EQ("", properties.getName());
    EXPECT_EQ(120.0, properties.getMeshAngle());
    EXPECT_EQ(nullptr, properties.getMaterial());
    EXPECT_EQ(nullptr, properties.getFoundation());
    EXPECT_EQ(nullptr, properties.getDesign());
}

TEST_F(VarnelPlatePropertiesTest, KeepWhatTheyAreGiven) {
    expectFilled(*filled());
}

TEST_F(VarnelPlatePropertiesTest, CopiesHaveADesignOfTheirOwn) {
    auto source = filled();
    const VarnelPlateProperties copy(*source);
    VarnelPlateProperties assigned;
    assigned = *source;
    EXPECT_NE(source->getDesign(), copy.getDesign());
    EXPECT_NE(source->getDesign(), assigned.getDesign());
    source.reset();
    expectFilled(copy);
    expectFilled(assigned);
    const VarnelPlateProperties &same = assigned;
    assigned = same;
    expectFilled(assigned);
}

TEST_F(VarnelPlatePropertiesTest, AssigningFillsTheDesignRecordThatIsThereOrRemovesIt) {
    const auto source = filled();
    VarnelPlateProperties target;
    const VarnelDesignData plain;
    target.setDesign(&plain);
    const VarnelDesignData *own = target.getDesign();
    target = *source;
    EXPECT_EQ(own, target.getDesign());
    EXPECT_EQ(0.5, own->getTheta());
    target.setDesign(target.getDesign());
    EXPECT_EQ(0.5, own->getTheta());
    target = VarnelPlateProperties();
    EXPECT_EQ(nullptr, target.getDesign());
}

}  // namespace

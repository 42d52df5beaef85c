#include "varnel/contracts/KzMaterial.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzMaterialUser.h"
#include "varnel/contracts/KzMaterialUtil.h"
#include "varnel/contracts/KzPreStressSteel.h"
#include "varnel/contracts/KzReinfSteel.h"
#include "varnel/contracts/Tools/Error.h"

namespace {

class OneMaterialUser : public KzMaterialUser {
  public:
    bool checkUsed(const KzMaterial *material) override {
        ++asked;
        return material == used;
    }

    const KzMaterial *used = nullptr;
    int asked = 0;
};

}  // namespace

TEST(KzMaterial, HoldsNameDensityAndWeight) {
    const KzMaterial material("Brick", 1800.0, 18.0);
    EXPECT_EQ(material.getName(), "Brick");
    EXPECT_EQ(material.getRho(), 1800.0);
    EXPECT_EQ(material.getGammaValue(), 18.0);
    EXPECT_EQ(material.getKind(), KzMaterial::OTHER);
    EXPECT_TRUE(material.getChanged());
}

TEST(KzMaterial, KindsHaveTheirClasses) {
    EXPECT_EQ(KzConcrete("C", 1.0, 2.0).getKind(), KzMaterial::CONCRETE);
    EXPECT_EQ(KzMaterialReinforcement("B", 1.0, 2.0).getKind(), KzMaterial::REINFORCEMENT);
    EXPECT_EQ(KzReinfSteel("B", 1.0, 2.0).getKind(), KzMaterial::REINFORCEMENT);
    EXPECT_EQ(KzPreStressSteel("S", 1.0, 2.0).getKind(), KzMaterial::PRESTRESS);
    EXPECT_EQ(KzMaterial("S", 1.0, 2.0, KzMaterial::STEEL).getKind(), KzMaterial::STEEL);
}

TEST(KzMaterial, ClonesTheDerivedKind) {
    KzReinfSteel steel("B500", 7850.0, 78.5);
    steel.setVariant(2);
    const KzMaterial &base = steel;
    const std::unique_ptr<KzMaterial> clone(base.clone());
    ASSERT_NE(dynamic_cast<KzReinfSteel *>(clone.get()), nullptr);
    EXPECT_EQ(dynamic_cast<KzReinfSteel &>(*clone).getVariant(), 2);
    EXPECT_EQ(clone->getName(), "B500");
    const std::unique_ptr<KzMaterial> concrete(KzConcrete("C", 1.0, 2.0).clone());
    EXPECT_NE(dynamic_cast<KzConcrete *>(concrete.get()), nullptr);
    const std::unique_ptr<KzMaterial> prestress(KzPreStressSteel("S", 1.0, 2.0).clone());
    EXPECT_NE(dynamic_cast<KzPreStressSteel *>(prestress.get()), nullptr);
    const std::unique_ptr<KzMaterial> plain(KzMaterial("W", 1.0, 2.0, KzMaterial::TIMBER).clone());
    EXPECT_EQ(plain->getKind(), KzMaterial::TIMBER);
}

TEST(KzMaterial, SettersRaiseBothFlagsWhenTheValueDiffers) {
    const struct {
        const char *name;
        std::function<void(KzMaterialReinforcement &)> apply;
        bool counts;
    } rows[] = {
        {"name", [](KzMaterialReinforcement &steel) { steel.setName("other"); }, true},
        {"same name", [](KzMaterialReinforcement &steel) { steel.setName("B"); }, false},
        {"rho", [](KzMaterialReinforcement &steel) { steel.setRho(7.0); }, true},
        {"same rho", [](KzMaterialReinforcement &steel) { steel.setRho(1.0); }, false},
        {"gamma", [](KzMaterialReinforcement &steel) { steel.setGammaValue(7.0); }, true},
        {"same gamma", [](KzMaterialReinforcement &steel) { steel.setGammaValue(2.0); }, false},
        {"variant", [](KzMaterialReinforcement &steel) { steel.setVariant(1); }, true},
        {"same variant", [](KzMaterialReinforcement &steel) { steel.setVariant(0); }, false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        KzMaterialManager manager("List");
        auto *steel = new KzMaterialReinforcement("B", 1.0, 2.0);
        manager.add(steel);
        steel->setChanged(false);
        manager.setChangedFlag(false);
        row.apply(*steel);
        EXPECT_EQ(steel->getChanged(), row.counts);
        EXPECT_EQ(manager.getChangedFlag(), row.counts);
    }
}

TEST(KzMaterial, VirtualOperationsStandInTheirSlots) {
    // The table begins with the destructor; counted from 0 the name is number 9.
    EXPECT_EQ(varnel::virtualSlot(&KzMaterial::clone), 2);
    EXPECT_EQ(varnel::virtualSlot(&KzMaterial::getName) - 1, 9);
    EXPECT_EQ(varnel::virtualSlot(&KzConcrete::getName) - 1, 9);
    EXPECT_EQ(varnel::virtualSlot(
                  static_cast<bool (KzMaterialUser::*)(const KzMaterial *)>(&KzMaterialUser::checkUsed)),
              2);
}

TEST(KzMaterialManager, BeginsEmptyAndUnchanged) {
    KzMaterialManager manager("List");
    EXPECT_EQ(manager.getName(), "List");
    EXPECT_TRUE(manager.getMaterials().empty());
    EXPECT_FALSE(manager.getChangedFlag());
    EXPECT_EQ(manager.findMaterialToName(""), nullptr);
}

TEST(KzMaterialManager, FindsByNameAndKind) {
    KzMaterialManager manager("List");
    auto *concrete = new KzConcrete("C30/37", 2500.0, 25.0);
    auto *steel = new KzMaterialReinforcement("B500", 7850.0, 78.5);
    manager.add(concrete);
    manager.add(steel);
    EXPECT_TRUE(manager.getChangedFlag());
    EXPECT_EQ(manager.findMaterialToName("C30/37", 0), concrete);
    EXPECT_EQ(manager.findMaterialToName("B500", 0), steel);
    EXPECT_EQ(manager.findConcreteToName("C30/37", 0), concrete);
    EXPECT_EQ(manager.findConcreteToName("B500", 0), nullptr);
    EXPECT_EQ(manager.findReinforcementToName("B500", 0), steel);
    EXPECT_EQ(manager.findReinforcementToName("C30/37", 0), nullptr);
    for (const char *unknown : {"", "C30/3", "C30/377", "c30/37"}) {
        SCOPED_TRACE(unknown);
        EXPECT_EQ(manager.findMaterialToName(unknown), nullptr);
        EXPECT_EQ(manager.findConcreteToName(unknown), nullptr);
        EXPECT_EQ(manager.findReinforcementToName(unknown), nullptr);
    }
}

TEST(KzMaterialManager, FirstOfANameWinsAndNewNamesAreFound) {
    KzMaterialManager manager("List");
    auto *first = new KzConcrete("C", 1.0, 1.0);
    auto *second = new KzConcrete("C", 2.0, 2.0);
    manager.add(first);
    manager.add(second);
    EXPECT_EQ(manager.findMaterialToName("C"), first);
    first->setName("D");
    EXPECT_EQ(manager.findMaterialToName("C"), second);
    EXPECT_EQ(manager.findMaterialToName("D"), first);
}

TEST(KzMaterialManager, RemovesNothingThatAUserNeeds) {
    KzMaterialManager manager("List");
    OneMaterialUser user;
    auto *needed = new KzConcrete("C", 1.0, 1.0);
    auto *spare = new KzConcrete("D", 1.0, 1.0);
    KzConcrete stranger("E", 1.0, 1.0);
    manager.add(needed);
    manager.add(spare);
    manager.addUser(&user);
    manager.addUser(&user);
    manager.addUser(nullptr);
    user.used = needed;
    manager.setChangedFlag(false);
    EXPECT_FALSE(manager.remove(needed));
    EXPECT_EQ(user.asked, 1);
    EXPECT_FALSE(manager.getChangedFlag());
    EXPECT_EQ(manager.findMaterialToName("C"), needed);
    EXPECT_TRUE(manager.remove(spare));
    EXPECT_TRUE(manager.getChangedFlag());
    EXPECT_EQ(manager.findMaterialToName("D"), nullptr);
    EXPECT_FALSE(manager.remove(&stranger));
    EXPECT_FALSE(manager.remove(nullptr));
    manager.removeUser(&user);
    EXPECT_TRUE(manager.remove(needed));
    EXPECT_TRUE(manager.getMaterials().empty());
}

TEST(KzMaterialManager, AsksNobodyWhileItDies) {
    OneMaterialUser user;
    {
        KzMaterialManager manager("List");
        manager.add(new KzConcrete("C", 1.0, 1.0));
        manager.addUser(&user);
    }
    EXPECT_EQ(user.asked, 0);
}

TEST(KzMaterialManager, LookUpsTakeTheFirstSlots) {
    EXPECT_EQ(varnel::virtualSlot(&KzMaterialManager::findMaterialToName), 0);
    EXPECT_EQ(varnel::virtualSlot(&KzMaterialManager::findConcreteToName), 1);
    EXPECT_EQ(varnel::virtualSlot(&KzMaterialManager::findReinforcementToName), 2);
}

TEST(KzMaterialUtil, ThrowsForAnUnknownMaterial) {
    try {
        KzMaterialUtil::throwMaterialFoundError();
        FAIL() << "returned";
    } catch (const Tools::Error &error) {
        EXPECT_STREQ(error.what(), "material not found");
    }
}

#include "varnel/contracts/KzMaterialHandler.h"

#include <gtest/gtest.h>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzPreStressSteel.h"
#include "varnel/contracts/KzReinfSteel.h"

namespace {

KzMaterialHandler &stock() {
    KzMaterialHandler::get()->setDatabase();
    return *KzMaterialHandler::get();
}

}  // namespace

TEST(KzMaterialHandler, MakesTheStockOnce) {
    EXPECT_TRUE(KzMaterialHandler::get()->setDatabase());
    const auto before = KzMaterialHandler::get()->getMaterials();
    EXPECT_TRUE(KzMaterialHandler::get()->setDatabase());
    EXPECT_EQ(KzMaterialHandler::get()->getMaterials(), before);
    EXPECT_EQ(before.size(), 18U);
}

TEST(KzMaterialHandler, KnowsThePredefinedMaterials) {
    const struct {
        std::vector<const char *> names;
        KzMaterial::Kind kind;
        double rho;
        double gamma;
    } rows[] = {
        {{"C12/15", "C16/20", "C20/25", "C25/30", "C30/37", "C35/45", "C40/50", "C45/55", "C50/60"},
         KzMaterial::CONCRETE,
         2500.0,
         25.0},
        {{"B500M", "B500A", "B500B"}, KzMaterial::REINFORCEMENT, 7850.0, 78.5},
        {{"St1570/1770", "St1660/1860"}, KzMaterial::PRESTRESS, 7850.0, 78.5},
        {{"S235", "S275", "S355"}, KzMaterial::STEEL, 7850.0, 78.5},
        {{"C24"}, KzMaterial::TIMBER, 420.0, 4.2},
    };
    for (const auto &row : rows)
        for (const char *name : row.names) {
            SCOPED_TRACE(name);
            KzMaterial *material = stock().findMaterialToName(name, 0);
            ASSERT_NE(material, nullptr);
            EXPECT_EQ(material->getName(), name);
            EXPECT_EQ(material->getKind(), row.kind);
            EXPECT_EQ(material->getRho(), row.rho);
            EXPECT_EQ(material->getGammaValue(), row.gamma);
            EXPECT_EQ(stock().findConcreteToName(name, 0) != nullptr, row.kind == KzMaterial::CONCRETE);
            EXPECT_EQ(stock().findReinforcementToName(name, 0) != nullptr,
                      row.kind == KzMaterial::REINFORCEMENT);
            EXPECT_EQ(stock().findReinfSteelToName(name, 0) != nullptr,
                      row.kind == KzMaterial::REINFORCEMENT);
            EXPECT_EQ(stock().findPreStressSteelToName(name, 0) != nullptr,
                      row.kind == KzMaterial::PRESTRESS);
        }
}

TEST(KzMaterialHandler, DoesNotKnowTheVariantsByName) {
    for (const char *name : {"B500N", "B500H", "", "C31/37"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(stock().findMaterialToName(name), nullptr);
        EXPECT_EQ(stock().findReinforcementToName(name), nullptr);
        EXPECT_EQ(stock().findConcreteToName(name), nullptr);
        EXPECT_EQ(stock().findReinforcementVariant(name, 1), nullptr);
    }
}

TEST(KzMaterialHandler, KeepsOneObjectForEachVariant) {
    KzMaterialReinforcement *plain = stock().findReinforcementToName("B500M");
    KzMaterialReinforcement *normal = stock().findReinforcementVariant("B500M", 1);
    KzMaterialReinforcement *high = stock().findReinforcementVariant("B500M", 2);
    EXPECT_EQ(stock().findReinforcementVariant("B500M", 0), plain);
    EXPECT_EQ(stock().findReinforcementVariant("B500M", 1), normal);
    EXPECT_NE(normal, high);
    EXPECT_NE(normal, plain);
    EXPECT_EQ(plain->getVariant(), 0);
    EXPECT_EQ(normal->getVariant(), 1);
    EXPECT_EQ(high->getVariant(), 2);
    EXPECT_EQ(high->getName(), "B500M");
    EXPECT_EQ(high->getRho(), 7850.0);
    EXPECT_EQ(stock().findReinforcementVariant("C30/37", 1), nullptr);
    EXPECT_EQ(stock().findMaterialToName("B500M"), plain);
}

TEST(KzMaterialHandler, LookUpsStandInTheirSlots) {
    EXPECT_EQ(varnel::virtualSlot(&KzMaterialHandler::findMaterialToName), 0);
    EXPECT_EQ(varnel::virtualSlot(&KzMaterialHandler::findConcreteToName), 4);
}

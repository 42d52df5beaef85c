#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/XmlText.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzMaterialReadXML.h"
#include "varnel/contracts/KzMaterialWriteXML.h"
#include "varnel/contracts/KzPreStressSteel.h"
#include "varnel/contracts/KzReinfSteel.h"

using testsupport::build;
using testsupport::textOf;

namespace {

int read(KzMaterialManager &manager, const std::string &text) {
    KzXmlTree tree("MATERIALS");
    build(tree, text);
    return KzMaterialReadXML(&manager).read(tree.getRoot());
}

void fill(KzMaterialManager &manager) {
    manager.add(new KzConcrete("C 1", 2400.5, 24.25));
    auto *steel = new KzMaterialReinforcement("B 1", 7850.0, 78.5);
    steel->setVariant(2);
    manager.add(steel);
    manager.add(new KzPreStressSteel("P 1", 7850.0, 78.5));
    manager.add(new KzMaterial("S 1", 7850.0, 78.5, KzMaterial::STEEL));
    manager.add(new KzMaterial("T 1", 420.0, 4.2, KzMaterial::TIMBER));
    manager.add(new KzMaterial("M 1", 1800.0, 18.0, KzMaterial::MASONRY));
    manager.add(new KzMaterial("O <1>", 0.1, 0.2, KzMaterial::OTHER));
}

}  // namespace

TEST(KzMaterialXml, WritesEveryKind) {
    KzMaterialManager manager("List");
    fill(manager);
    KzXmlTree tree("MATERIALS");
    KzMaterialWriteXML(&manager).write(tree.getRoot());
    const std::string text = textOf(tree, false);
    for (const char *part :
         {R"(<MATERIAL NAME="C 1" KIND="CONCRETE" RHO="2400.5" GAMMA="24.25"/>)",
          R"(<MATERIAL NAME="B 1" KIND="REINFORCEMENT" RHO="7850" GAMMA="78.5" VARIANT="2"/>)",
          R"(NAME="P 1" KIND="PRESTRESS")", R"(NAME="S 1" KIND="STEEL")", R"(NAME="T 1" KIND="TIMBER")",
          R"(NAME="M 1" KIND="MASONRY")", R"(KIND="OTHER" RHO="0.1" GAMMA="0.2")"}) {
        SCOPED_TRACE(part);
        EXPECT_NE(text.find(part), std::string::npos) << text;
    }
}

TEST(KzMaterialXml, ReadsWhatItWrote) {
    KzMaterialManager source("List");
    fill(source);
    KzXmlTree tree("MATERIALS");
    KzMaterialWriteXML(&source).write(tree.getRoot());
    KzMaterialManager target("List");
    EXPECT_EQ(KzMaterialReadXML(&target).read(tree.getRoot()), 7);
    ASSERT_EQ(target.getMaterials().size(), source.getMaterials().size());
    for (std::size_t i = 0; i < source.getMaterials().size(); ++i) {
        const KzMaterial &expected = *source.getMaterials()[i];
        const KzMaterial &material = *target.getMaterials()[i];
        SCOPED_TRACE(expected.getName());
        EXPECT_EQ(material.getName(), expected.getName());
        EXPECT_EQ(material.getKind(), expected.getKind());
        EXPECT_EQ(material.getRho(), expected.getRho());
        EXPECT_EQ(material.getGammaValue(), expected.getGammaValue());
    }
    EXPECT_NE(target.findConcreteToName("C 1"), nullptr);
    ASSERT_NE(target.findReinforcementToName("B 1"), nullptr);
    EXPECT_EQ(target.findReinforcementToName("B 1")->getVariant(), 2);
    const std::string before = textOf(tree);
    KzMaterialWriteXML(&target).write(tree.getRoot());
    EXPECT_EQ(textOf(tree), before);
}

TEST(KzMaterialXml, FillsAMaterialThatExistsAndKeepsItsKind) {
    KzMaterialManager manager("List");
    auto *concrete = new KzConcrete("C", 2500.0, 25.0);
    manager.add(concrete);
    EXPECT_EQ(read(manager, R"(<MATERIALS><MATERIAL NAME="C" KIND="STEEL" RHO="2300"/></MATERIALS>)"), 1);
    EXPECT_EQ(manager.getMaterials().size(), 1U);
    EXPECT_EQ(concrete->getKind(), KzMaterial::CONCRETE);
    EXPECT_EQ(concrete->getRho(), 2300.0);
    EXPECT_EQ(concrete->getGammaValue(), 25.0);
}

TEST(KzMaterialXml, ReadsHostileElementsSafely) {
    KzMaterialManager manager("List");
    EXPECT_EQ(read(manager, R"(<MATERIALS><MATERIAL/><MATERIAL KIND="CONCRETE"/><OTHER NAME="x"/>)"
                            R"(<MATERIAL NAME="a" KIND="GOLD" RHO="nan" GAMMA="1e999"/>)"
                            R"(<MATERIAL NAME="b" KIND="REINFORCEMENT" VARIANT="99999999999"/>)"
                            R"(<MATERIAL NAME="b" RHO="5"/></MATERIALS>)"),
              3);
    ASSERT_EQ(manager.getMaterials().size(), 2U);
    EXPECT_EQ(manager.getMaterials()[0]->getKind(), KzMaterial::OTHER);
    EXPECT_TRUE(std::isnan(manager.getMaterials()[0]->getRho()));
    EXPECT_TRUE(std::isinf(manager.getMaterials()[0]->getGammaValue()));
    EXPECT_EQ(manager.findReinforcementToName("b")->getVariant(), 2147483647);
    EXPECT_EQ(manager.findReinforcementToName("b")->getRho(), 5.0);
}

TEST(KzMaterialXml, WritesFurtherMaterialsBehindThoseOfTheManager) {
    KzMaterialManager manager("List");
    manager.add(new KzConcrete("C", 2400.0, 24.0));
    KzConcrete stock("C30/37", 2500.0, 25.0);
    KzConcrete namesake("C", 1.0, 1.0);
    KzXmlTree tree("MATERIALS");
    KzMaterialWriteXML(&manager).write(tree.getRoot(), {nullptr, &namesake, &stock, &stock});
    ASSERT_EQ(tree.getRoot()->getChildren().size(), 2U);
    EXPECT_EQ(tree.getRoot()->getChildren()[0]->findAttribute("RHO")->getDouble(), 2400.0);
    EXPECT_EQ(tree.getRoot()->getChildren()[1]->findAttribute("NAME")->getData(), "C30/37");
    EXPECT_EQ(stock.getName(), "C30/37");
    KzMaterialWriteXML(&manager).write(tree.getRoot());
    EXPECT_EQ(tree.getRoot()->getChildren().size(), 1U);
}

TEST(KzMaterialXml, DropsMaterialsThatAreGoneAndLeavesForeignElements) {
    KzMaterialManager manager("List");
    manager.add(new KzConcrete("C", 2400.0, 24.0));
    KzXmlTree tree("MATERIALS");
    build(tree,
          R"(<MATERIALS><MATERIAL NAME="gone"/><NOTE>n</NOTE><MATERIAL NAME="C" COLOUR="red"/></MATERIALS>)");
    KzMaterialWriteXML(&manager).write(tree.getRoot());
    const auto &children = tree.getRoot()->getChildren();
    ASSERT_EQ(children.size(), 2U);
    EXPECT_EQ(children[0]->getData(), "n");
    EXPECT_EQ(children[1]->findAttribute("COLOUR")->getData(), "red");
    EXPECT_EQ(children[1]->findAttribute("KIND")->getData(), "CONCRETE");
}

TEST(KzMaterialXml, BearsNullArguments) {
    KzMaterialManager manager("List");
    KzXmlTree tree("MATERIALS");
    EXPECT_EQ(KzMaterialReadXML(nullptr).read(tree.getRoot()), 0);
    EXPECT_EQ(KzMaterialReadXML(&manager).read(nullptr), 0);
    KzMaterialWriteXML(&manager).write(nullptr);
    KzMaterialWriteXML(nullptr).write(tree.getRoot());
    EXPECT_TRUE(tree.getRoot()->getChildren().empty());
}

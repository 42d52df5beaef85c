#include "varnel/contracts/KzReinfMeshList.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/VirtualSlot.h"
#include "tests/support/XmlText.h"
#include "varnel/contracts/KzReinfMeshExchangeXml.h"
#include "varnel/contracts/KzReinfMeshHandler.h"
#include "varnel/contracts/KzReinfMeshUser.h"
#include "varnel/contracts/KzReinfStockMesh.h"

using testsupport::build;
using testsupport::textOf;

namespace {

class OneMeshUser : public KzReinfMeshUser {
  public:
    bool checkUsed(const KzReinfStockMesh *mesh) override {
        ++asked;
        return mesh == used;
    }

    const KzReinfStockMesh *used = nullptr;
    int asked = 0;
};

}  // namespace

TEST(KzReinfMesh, HoldsNameAndSteel) {
    KzReinfStockMesh mesh("Q", 1.5, 2.5);
    EXPECT_EQ(mesh.getName(), "Q");
    EXPECT_EQ(mesh.getAsX(), 1.5);
    EXPECT_EQ(mesh.getAsY(), 2.5);
    mesh.setName("P");
    mesh.setAsX(3.0);
    mesh.setAsY(4.0);
    EXPECT_EQ(mesh.getName(), "P");
    EXPECT_EQ(mesh.getAsX(), 3.0);
    EXPECT_EQ(mesh.getAsY(), 4.0);
}

TEST(KzReinfMesh, IsClonedWithoutItsList) {
    KzReinfMeshList list;
    auto *mesh = new KzReinfStockMesh("Q", 1.5, 2.5);
    list.addMesh(mesh);
    const std::unique_ptr<KzReinfStockMesh> clone(mesh->clone());
    EXPECT_EQ(clone->getName(), "Q");
    EXPECT_EQ(clone->getAsY(), 2.5);
    clone->setName("P");
    EXPECT_EQ(list.findMesh("Q"), mesh);
    EXPECT_EQ(list.findMesh("P"), nullptr);
}

TEST(KzReinfMeshList, FindsTheFirstOfAName) {
    KzReinfMeshList list;
    auto *first = new KzReinfStockMesh("Q", 1.0, 1.0);
    auto *second = new KzReinfStockMesh("Q", 2.0, 2.0);
    list.addMesh(first);
    list.add(second);
    list.addMesh(first);
    list.addMesh(nullptr);
    EXPECT_EQ(list.getMeshes(), (std::vector<KzReinfStockMesh *>{first, second}));
    EXPECT_EQ(list.findMesh("Q"), first);
    EXPECT_EQ(list.findMesh(""), nullptr);
    first->setName("P");
    EXPECT_EQ(list.findMesh("Q"), second);
    EXPECT_EQ(list.findMesh("P"), first);
}

TEST(KzReinfMeshList, RemovesNothingThatAUserNeeds) {
    OneMeshUser user;
    {
        KzReinfMeshList list;
        list.addUser(&user);
        auto *needed = new KzReinfStockMesh("Q", 1.0, 1.0);
        auto *spare = new KzReinfStockMesh("R", 1.0, 1.0);
        KzReinfStockMesh stranger("S", 1.0, 1.0);
        list.addMesh(needed);
        list.addMesh(spare);
        user.used = needed;
        EXPECT_FALSE(list.remove(needed));
        EXPECT_TRUE(list.remove(spare));
        EXPECT_FALSE(list.remove(&stranger));
        EXPECT_FALSE(list.remove(nullptr));
        EXPECT_EQ(user.asked, 2);
        list.removeUser(&user);
        EXPECT_TRUE(list.remove(needed));
        list.addMesh(new KzReinfStockMesh("Q", 1.0, 1.0));
        list.addUser(&user);
    }
    EXPECT_EQ(user.asked, 2);  // nobody is asked while the list dies
}

TEST(KzReinfMeshHandler, KnowsThePredefinedMeshes) {
    const struct {
        const char *name;
        double asX;
    } rows[] = {{"Q188A", 1.88}, {"Q257A", 2.57}, {"Q335A", 3.35}, {"Q424A", 4.24},
                {"Q524A", 5.24}, {"Q636A", 6.36}, {"R188A", 1.88}, {"R257A", 2.57},
                {"R335A", 3.35}, {"R424A", 4.24}, {"R524A", 5.24}};
    EXPECT_EQ(KzReinfMeshHandler::get()->getMeshes().size(), 11U);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const KzReinfStockMesh *mesh = KzReinfMeshHandler::get()->findMeshToName(row.name);
        ASSERT_NE(mesh, nullptr);
        EXPECT_EQ(mesh->getAsX(), row.asX);
        EXPECT_GT(mesh->getAsY(), 0.0);
        EXPECT_LE(mesh->getAsY(), mesh->getAsX());
    }
    EXPECT_EQ(KzReinfMeshHandler::get()->findMeshToName(""), nullptr);
    EXPECT_EQ(KzReinfMeshHandler::get()->findMeshToName("Q188"), nullptr);
}

TEST(KzReinfMeshExchangeXml, WritesAndReadsItsElement) {
    KzReinfMeshList source;
    source.addMesh(new KzReinfStockMesh("Q188A", 1.88, 1.88));
    source.addMesh(new KzReinfStockMesh("own", 0.1, 0.2));
    source.addMesh(new KzReinfStockMesh("own", 7.0, 7.0));
    KzXmlTree tree("VARNEL");
    KzReinfMeshExchangeXml(&source, &tree).updateReinfMeshes();
    EXPECT_EQ(tree.getCursor(), tree.getRoot());
    const std::string text = textOf(tree);
    EXPECT_NE(textOf(tree, false)
                  .find(R"(<MESHES><MESH NAME="Q188A" ASX="1.88" ASY="1.88"/>)"
                        R"(<MESH NAME="own" ASX="0.1" ASY="0.2"/></MESHES>)"),
              std::string::npos)
        << text;
    KzReinfMeshList target;
    KzReinfMeshExchangeXml(&target, nullptr).createReinfMeshes(tree.getRoot());
    ASSERT_EQ(target.getMeshes().size(), 2U);
    EXPECT_EQ(target.findMesh("own")->getAsY(), 0.2);
    KzReinfMeshExchangeXml(&target, &tree).updateReinfMeshes();
    EXPECT_EQ(textOf(tree), text);
}

TEST(KzReinfMeshExchangeXml, DropsMeshesThatAreGoneAndLeavesForeignElements) {
    KzReinfMeshList list;
    list.addMesh(new KzReinfStockMesh("Q", 1.0, 2.0));
    KzXmlTree tree("VARNEL");
    build(tree,
          R"(<VARNEL><MESHES><MESH NAME="gone"/><NOTE/><MESH NAME="Q" X="1"/><MESH/></MESHES></VARNEL>)");
    KzReinfMeshExchangeXml(&list, &tree).updateReinfMeshes();
    const auto &children = tree.getRoot()->findChild("MESHES")->getChildren();
    ASSERT_EQ(children.size(), 2U);
    EXPECT_EQ(children[0]->getName(), "NOTE");
    EXPECT_EQ(children[1]->findAttribute("X")->getData(), "1");
    EXPECT_EQ(children[1]->findAttribute("ASY")->getDouble(), 2.0);
}

TEST(KzReinfMeshExchangeXml, ReadsHostileElementsSafely) {
    KzReinfMeshList list;
    KzXmlTree tree("VARNEL");
    build(tree, R"(<VARNEL><MESHES><MESH/><OTHER NAME="o"/><MESH NAME="a" ASX="x"/><MESH NAME="a" ASY="2"/>)"
                R"(</MESHES></VARNEL>)");
    KzReinfMeshExchangeXml exchange(&list, nullptr);
    exchange.createReinfMeshes(tree.getRoot());
    exchange.createReinfMeshes(nullptr);
    exchange.updateReinfMeshes();
    KzReinfMeshExchangeXml(nullptr, &tree).createReinfMeshes(tree.getRoot());
    ASSERT_EQ(list.getMeshes().size(), 1U);
    EXPECT_EQ(list.findMesh("a")->getAsX(), 0.0);
    EXPECT_EQ(list.findMesh("a")->getAsY(), 2.0);
}

TEST(KzReinfMeshUser, AsksThroughItsSecondSlot) {
    EXPECT_EQ(varnel::virtualSlot(&KzReinfMeshUser::checkUsed), 2);
}

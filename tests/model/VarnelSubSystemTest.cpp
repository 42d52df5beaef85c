#include "varnel/model/VarnelSubSystem.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <list>
#include <memory>
#include <random>
#include <string>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/process/VarnelFactory.h"
#include "varnel/stages/VarnelBeamState.h"
#include "varnel/stages/VarnelConstructionStage.h"

namespace {

std::string dead;  // what died, in order

class Model : public VarnelDB {
  public:
    Model() : VarnelDB(nullptr) {}
    ~Model() override { dead += "model "; }
    void initInstance() override {
        ++initialised;
        mode = getSystemMode();
        name = getDescription();
    }
    void copy(const Varnel &source) override {
        copied = &source;
        VarnelDB::copy(source);
    }
    int initialised = 0;
    int mode = -1;
    std::string name;
    const Varnel *copied = nullptr;
};

class Factory : public VarnelFactory {
  public:
    Varnel *giveDatabase() const override { return new Model; }
    Varnel::SystemMode getMode() const override { return static_cast<Varnel::SystemMode>(7); }
};

class Stage : public SysBase::ConstructionStage {
  public:
    ~Stage() override { dead += "stage "; }
};

class State : public VarnelBeamState {
  public:
    using VarnelBeamState::VarnelBeamState;
    ~State() override { dead += "state "; }
};

class StageWithStates : public VarnelConstructionStage {
  public:
    ~StageWithStates() override { dead += "stage "; }

  protected:
    using VarnelConstructionStage::createState;
    VarnelBeamState *createState(VarnelBeam *beam) override { return new State(beam); }
};

class Child : public VarnelSubSystem {
  public:
    using VarnelSubSystem::VarnelSubSystem;
    ~Child() override { dead += getDatabase() ? "child " : "empty child "; }
};

}  // namespace

TEST(VarnelSubSystem, MakesItsModelOnTheFactory) {
    Factory factory;
    VarnelSubSystem node("House", &factory, nullptr);
    const auto *model = dynamic_cast<Model *>(node.getDatabase());
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->initialised, 1);
    EXPECT_EQ(model->mode, 7) << "the mode is set before the model is initialised";
    EXPECT_EQ(model->name, "") << "the name is set afterwards";
    EXPECT_EQ(model->getDescription(), "House");
    EXPECT_EQ(node.getOffset(), KzVector3D());
    EXPECT_TRUE(node.getChildren().empty());
    EXPECT_TRUE(node.getConstructionStages().empty());
}

TEST(VarnelSubSystem, AModelThatCannotBeInitialisedIsFreed) {
    class Failing : public VarnelDB {
      public:
        Failing() : VarnelDB(nullptr) {}
        ~Failing() override { dead += "model "; }
        void initInstance() override { throw Tools::Error("no licence"); }
    };
    class FailingFactory : public VarnelFactory {
        Varnel *giveDatabase() const override { return new Failing; }
    };
    const FailingFactory factory;
    dead.clear();
    EXPECT_THROW(VarnelSubSystem("House", &factory, nullptr), Tools::Error);
    EXPECT_EQ(dead, "model ");
}

TEST(VarnelSubSystem, TheNameIsTheDescriptionOfTheModel) {
    const VarnelFactory factory;
    VarnelSubSystem node("", &factory, nullptr);
    node.setName("a");
    EXPECT_EQ(node.getDatabase()->getDescription(), "a");
    node.getDatabase()->setDescription("b");
    EXPECT_EQ(node.getName(), "b");
}

TEST(VarnelSubSystem, AMissingFactoryIsHarmless) {
    VarnelSubSystem node("a", nullptr, nullptr);
    EXPECT_EQ(node.getDatabase(), nullptr);
    node.setName("b");
    EXPECT_EQ(node.getName(), "");
    EXPECT_FALSE(node.contains(nullptr, true));
    KzVector3D min, max;
    node.updateMinMax(min, max, KzMatrix44());
    const std::unique_ptr<VarnelSubSystem> cloned(node.clone(nullptr));
    EXPECT_EQ(cloned->getDatabase(), nullptr);
}

TEST(VarnelSubSystem, TheOffsetIsTheOriginOfTheFrame) {
    const VarnelFactory factory;
    VarnelSubSystem node("", &factory, nullptr);
    node.setOffset(KzVector3D(1, 2, 3));
    EXPECT_EQ(node.getOffset(), KzVector3D(1, 2, 3));
    EXPECT_EQ(node.getBase().getVector(3), KzVector3D(1, 2, 3));
}

TEST(VarnelSubSystem, FindsDirectChildrenOnly) {
    VarnelFactory factory;
    VarnelSubSystem root("root", &factory, nullptr);
    auto *child = new VarnelSubSystem("child", &factory, &root);
    auto *grandchild = new VarnelSubSystem("grandchild", &factory, child);
    root.addChild(nullptr);
    root.addChild(child);
    child->addChild(grandchild);
    EXPECT_EQ(root.findChild("child", false), child);
    EXPECT_EQ(root.findChild("grandchild", true), nullptr);
    EXPECT_EQ(root.giveChild("child", true, &factory, &root), child);
    const std::unique_ptr<VarnelSubSystem> first(root.giveChild("new", true, &factory, &root));
    const std::unique_ptr<VarnelSubSystem> second(root.giveChild("new", true, &factory, &root));
    EXPECT_NE(first, second) << "a given child is not added";
    EXPECT_EQ(root.getChildren().size(), 2U);
}

namespace {

/// `keyless`: also nodes without a model and views, among which a list cannot but walk.
void findAmongManyChildren(bool keyless) {
    const VarnelFactory factory;
    VarnelSubSystem node("top", &factory, nullptr);
    std::list<VarnelSubSystem *> plain;
    const auto walk = [&plain](const std::string &name) {
        const auto found = std::find_if(plain.begin(), plain.end(),
                                        [&name](VarnelSubSystem *child) { return child->getName() == name; });
        return found == plain.end() ? nullptr : *found;
    };
    std::mt19937 random(5);
    std::list<std::unique_ptr<VarnelSubSystem>> removed;
    for (int step = 0; step < 20000; ++step) {
        const std::string name(random() % 7, "ab"[random() % 2]);
        VarnelSubSystem *child = walk(name);
        switch (plain.size() < 40 ? 0 : random() % 12) {
            case 0:  // now and then a node without a model, whose name stays empty
                child = new VarnelSubSystem(name, keyless && random() % 40 == 0 ? nullptr : &factory, &node);
                node.addChild(child);
                plain.push_back(child);
                break;
            case 1:
                if (!child || plain.size() < 45) break;
                EXPECT_EQ(node.removeChild(child, false), 1);
                plain.remove(child);
                removed.emplace_back(child);
                break;
            case 2:
                if (child) child->setName(name + "a");
                break;
            case 3:
                if (child && child->getDatabase()) child->getDatabase()->setDescription("b");
                break;
            case 4:
                if (keyless && child && random() % 200 == 0)
                    *child = *plain.back();  // has the model of another one now
                break;
            default:
                ASSERT_EQ(node.findChild(name, false), child) << name;
        }
    }
    EXPECT_EQ(node.getChildren(), plain);
}

}  // namespace

TEST(VarnelSubSystem, FindsAmongManyChildrenAsAPlainWalkDoes) {
    findAmongManyChildren(false);
    findAmongManyChildren(true);
}

TEST(VarnelSubSystem, RemovingDetaches) {
    const VarnelFactory factory;
    VarnelSubSystem root("root", &factory, nullptr);
    auto *child = new VarnelSubSystem("child", &factory, &root);
    const auto grandchild = std::make_unique<VarnelSubSystem>("grandchild", &factory, child);
    root.addChild(child);
    child->addChild(grandchild.get());
    EXPECT_EQ(root.removeChild(grandchild.get(), false), 0);
    EXPECT_EQ(root.removeChild(&root, true), 0);
    EXPECT_EQ(root.removeChild(grandchild.get(), true), 1);
    EXPECT_EQ(root.removeChild(grandchild.get(), true), 0);
    EXPECT_TRUE(child->getChildren().empty());
    EXPECT_EQ(grandchild->getName(), "grandchild");
}

TEST(VarnelSubSystem, ContainsBeamsOfTheTree) {
    const VarnelFactory factory;
    VarnelSubSystem root("root", &factory, nullptr);
    auto *child = new VarnelSubSystem("child", &factory, &root);
    root.addChild(nullptr);
    root.addChild(child);
    const VarnelBeam *own = root.getDatabase()->giveBeam(true);
    const VarnelBeam *below = child->getDatabase()->giveBeam(true);
    VarnelHole *hole = root.getDatabase()->giveHole();
    root.getDatabase()->add(hole);
    EXPECT_TRUE(root.contains(own, false));
    EXPECT_FALSE(root.contains(below, false));
    EXPECT_TRUE(root.contains(below, true));
    EXPECT_FALSE(root.contains(hole, true));
}

TEST(VarnelSubSystem, FoldsNestedFramesIntoOneBox) {
    const VarnelFactory factory;
    VarnelSubSystem root("root", &factory, nullptr);
    auto *child = new VarnelSubSystem("child", &factory, &root);
    auto *grandchild = new VarnelSubSystem("grandchild", &factory, child);
    root.addChild(child);
    root.addChild(nullptr);
    child->addChild(grandchild);
    root.setOffset(KzVector3D(1000, 0, 0));
    child->setOffset(KzVector3D(10, 0, 0));
    grandchild->setOffset(KzVector3D(0, 5, 0));
    grandchild->getDatabase()->givePoint(KzVector3D(1, 1, 1));
    KzVector3D min, max;
    root.updateMinMax(min, max, KzMatrix44());
    EXPECT_EQ(max, KzVector3D(11, 6, 1)) << "the node's own frame is the caller's matter";
}

TEST(VarnelSubSystem, TheFrameOfTheParentTurnsThePlaceOfTheChild) {
    const VarnelFactory factory;
    VarnelSubSystem root("root", &factory, nullptr);
    auto *child = new VarnelSubSystem("child", &factory, &root);
    root.addChild(child);
    child->setOffset(KzVector3D(10, 0, 0));
    child->getDatabase()->givePoint(KzVector3D(1, 2, 0));
    KzMatrix44 turned;  // its x is the global y
    turned.setVector(0, KzVector3D(0, 1, 0));
    turned.setVector(1, KzVector3D(-1, 0, 0));
    KzVector3D min, max;
    root.updateMinMax(min, max, turned);
    EXPECT_EQ(min, KzVector3D(-2, 0, 0));
    EXPECT_EQ(max, KzVector3D(0, 11, 0));
}

TEST(VarnelSubSystem, ACloneHasTheModelAndNoChildrenOrStages) {
    VarnelFactory factory;
    VarnelSubSystem root("root", &factory, nullptr);
    root.addChild(new VarnelSubSystem("child", &factory, &root));
    root.giveConstructionStageToNumber(1);
    root.setOffset(KzVector3D(1, 0, 0));
    root.getDatabase()->giveBeam(true);
    const std::unique_ptr<VarnelSubSystem> cloned(root.clone(&factory));
    EXPECT_EQ(cloned->getName(), "root");
    EXPECT_EQ(cloned->getDatabase()->getNumberOfBeams(), 1);
    EXPECT_NE(cloned->getDatabase()->getBeams(), root.getDatabase()->getBeams());
    EXPECT_TRUE(cloned->getChildren().empty());
    EXPECT_TRUE(cloned->getConstructionStages().empty());
    EXPECT_EQ(cloned->getOffset(), KzVector3D());
    EXPECT_EQ(root.getChildren().size(), 1U);
}

TEST(VarnelSubSystem, ACloneIsFilledByTheModelsOwnWayOfCopying) {
    const Factory factory;
    VarnelSubSystem node("House", &factory, nullptr);
    const std::unique_ptr<VarnelSubSystem> cloned(node.clone(&factory));
    const auto *model = dynamic_cast<Model *>(cloned->getDatabase());
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->copied, node.getDatabase());
    EXPECT_EQ(model->mode, 7);
}

TEST(VarnelSubSystem, StagesAreGivenToNumbers) {
    const VarnelFactory factory;
    VarnelSubSystem node("", &factory, nullptr);
    node.add(new SysBase::ConstructionStage);
    node.add(new SysBase::ConstructionStage);
    SysBase::ConstructionStage *third = node.giveConstructionStageToNumber(0);
    EXPECT_EQ(third->getNumber(), 3);
    EXPECT_EQ(dynamic_cast<VarnelConstructionStage *>(third), nullptr);
    SysBase::ConstructionStage *seventh = node.giveConstructionStageToNumber(7);
    EXPECT_EQ(seventh->getNumber(), 7);
    EXPECT_EQ(node.giveConstructionStageToNumber(7), seventh);
    EXPECT_EQ(node.giveConstructionStageToNumber(-3)->getNumber(), 5);
    EXPECT_EQ(node.findConstructionStageToNumber(0), node.getConstructionStages().front());
    EXPECT_EQ(node.findConstructionStageToNumber(99), nullptr);
    const std::unique_ptr<SysBase::ConstructionStage> plain(node.giveConstructionStage());
    EXPECT_EQ(node.getConstructionStages().size(), 5U);
}

TEST(VarnelSubSystem, FindsAStageByTheNumberThatItHasNow) {
    const VarnelFactory factory;
    VarnelSubSystem node("top", &factory, nullptr);
    for (int number = 1; number <= 40; ++number) node.giveConstructionStageToNumber(number);
    SysBase::ConstructionStage *stage = node.findConstructionStageToNumber(30);
    stage->setNumber(300);
    EXPECT_EQ(node.findConstructionStageToNumber(30), nullptr);
    EXPECT_EQ(node.findConstructionStageToNumber(300), stage);
    EXPECT_EQ(node.giveConstructionStageToNumber(0)->getNumber(), 41);
    node.remove(stage, true);
    EXPECT_EQ(node.findConstructionStageToNumber(300), nullptr);
    delete stage;
}

TEST(VarnelSubSystem, ARemovedStagePassesToTheCaller) {
    const VarnelFactory factory;
    VarnelSubSystem node("", &factory, nullptr);
    const std::unique_ptr<SysBase::ConstructionStage> stage(node.giveConstructionStageToNumber(4));
    node.add(stage.get());
    node.remove(stage.get(), true);
    EXPECT_TRUE(node.getConstructionStages().empty()) << "every entry of it is taken out";
    EXPECT_EQ(stage->getNumber(), 4);
    node.add(stage.get());
    node.remove(stage.get(), false);
    EXPECT_TRUE(node.getConstructionStages().empty());
}

TEST(VarnelSubSystem, DiesModelFirstThenChildrenThenStages) {
    Factory factory;
    dead.clear();
    {
        VarnelSubSystem node("", &factory, nullptr);
        node.add(new Stage);
        node.add(nullptr);
        node.addChild(nullptr);
        auto *child = new VarnelSubSystem("", &factory, &node);
        child->add(new Stage);
        child->addChild(new Child("", &factory, child));
        node.addChild(child);
    }
    EXPECT_EQ(dead, "model model child model stage stage ");
}

TEST(VarnelSubSystem, StatesOutliveTheObjectsOfTheModel) {
    const VarnelFactory factory;
    VarnelSubSystem node("", &factory, nullptr);
    auto *stage = new VarnelConstructionStage;
    node.add(stage);
    node.getDatabase()->giveBeam(true);
    node.getDatabase()->storeCurrentCSTProperties(stage);
    EXPECT_EQ(stage->getObjectStates().size(), 1U);
}

TEST(VarnelSubSystem, AllStatesDieBeforeTheFirstStage) {
    const Factory factory;
    dead.clear();
    {
        VarnelSubSystem node("", &factory, nullptr);
        VarnelBeam *beam = node.getDatabase()->giveBeam(true);
        for (int i = 0; i < 2; ++i) {
            auto *stage = new StageWithStates;
            node.add(stage);
            stage->giveState(beam);
        }
    }
    EXPECT_EQ(dead, "model state state stage stage ");
}

TEST(VarnelSubSystem, ADeepTreeNeedsNoDeepStack) {
    const VarnelFactory factory;
    VarnelSubSystem root("", nullptr, nullptr);
    VarnelSubSystem *leaf = &root;
    for (int i = 0; i < 200000; ++i) {
        auto *child = new VarnelSubSystem("", nullptr, leaf);
        leaf->addChild(child);
        leaf = child;
    }
    EXPECT_FALSE(root.contains(nullptr, true));
    EXPECT_EQ(root.removeChild(&root, true), 0);
    KzVector3D min, max;
    root.updateMinMax(min, max, KzMatrix44());
}

TEST(VarnelSubSystem, CopiesAreViews) {
    VarnelFactory factory;
    VarnelSubSystem node("a", &factory, nullptr);
    node.addChild(new VarnelSubSystem("child", &factory, &node));
    node.giveConstructionStageToNumber(1);
    node.setOffset(KzVector3D(1, 0, 0));
    VarnelSubSystem added("added", &factory, nullptr);
    {
        VarnelSubSystem view(node);
        EXPECT_EQ(view.getDatabase(), node.getDatabase());
        EXPECT_EQ(view.getChildren(), node.getChildren());
        EXPECT_EQ(view.getConstructionStages(), node.getConstructionStages());
        EXPECT_EQ(view.getOffset(), KzVector3D(1, 0, 0));
        view.addChild(&added);
        VarnelSubSystem assigned("b", &factory, nullptr);
        assigned.addChild(new VarnelSubSystem("lost", &factory, &assigned));
        assigned = view;
        assigned = view;
        EXPECT_EQ(assigned.getName(), "a");
        EXPECT_EQ(assigned.getChildren().size(), 2U);
    }
    EXPECT_EQ(node.getChildren().size(), 1U);
    EXPECT_EQ(added.getName(), "added");
    const VarnelSubSystem view(node);
    node = view;
    EXPECT_EQ(node.getName(), "a");
}

TEST(VarnelSubSystem, AViewMayBeAssignedAfterItsNodeDied) {
    const VarnelFactory factory;
    auto node = std::make_unique<VarnelSubSystem>("a", &factory, nullptr);
    const VarnelSubSystem other("b", &factory, nullptr);
    VarnelSubSystem view(*node);
    node.reset();
    view = other;
    EXPECT_EQ(view.getName(), "b");
}

TEST(VarnelSubSystem, AmongManyChildrenAViewIsFoundByTheNameThatItHasNow) {
    const VarnelFactory factory;
    VarnelSubSystem node("", &factory, nullptr);
    for (int i = 0; i < 40; ++i) node.addChild(new VarnelSubSystem("c" + std::to_string(i), &factory, &node));
    const VarnelSubSystem other("b", &factory, nullptr);
    VarnelSubSystem *child = node.findChild("c20", false);
    *child = other;
    EXPECT_EQ(node.findChild("c20", false), nullptr);
    EXPECT_EQ(node.findChild("b", false), child);
    other.getDatabase()->setDescription("d");
    EXPECT_EQ(node.findChild("d", false), child);
    EXPECT_EQ(node.removeChild(child, false), 1);
    delete child;
    EXPECT_EQ(node.findChild("d", false), nullptr);
    EXPECT_EQ(node.findChild("c21", false)->getName(), "c21");
}

TEST(VarnelSubSystem, AmongManyChildrenOneThatTheHostDeletedCanBeTakenOut) {
    const VarnelFactory factory;
    VarnelSubSystem node("", &factory, nullptr);
    for (int i = 0; i < 40; ++i) node.addChild(new VarnelSubSystem("c" + std::to_string(i), &factory, &node));
    VarnelSubSystem *child = node.findChild("c20", false);
    delete child;
    EXPECT_EQ(node.removeChild(child, false), 1);
    EXPECT_EQ(node.findChild("c20", false), nullptr);
    EXPECT_NE(node.findChild("c21", false), nullptr);
}

TEST(VarnelSubSystem, HasNoVirtualOperationButTheDestructor) {
    EXPECT_EQ(varnel::virtualSlot(&VarnelSubSystem::clone), -1);
    EXPECT_EQ(varnel::virtualSlot(&VarnelSubSystem::addChild), -1);
    EXPECT_TRUE(std::has_virtual_destructor_v<VarnelSubSystem>);
}

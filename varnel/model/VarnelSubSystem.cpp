#include "varnel/model/VarnelSubSystem.h"

#include <algorithm>
#include <limits>
#include <typeinfo>
#include <utility>
#include <vector>

#include "varnel/contracts/Lists.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/model/Varnel.h"
#include "varnel/process/VarnelFactory.h"
#include "varnel/stages/VarnelConstructionStage.h"

VarnelSubSystem::VarnelSubSystem(const std::string &name, const VarnelFactory *factory,
                                 VarnelSubSystem *parent)
    : parent_(parent) {
    std::unique_ptr<Varnel> model(factory ? factory->giveDatabase() : nullptr);
    if (!model) return;
    model->setSystemMode(factory->getMode());
    model->initInstance();
    model->setDescription(name);
    database_ = model.release();
}

VarnelSubSystem::VarnelSubSystem(const VarnelSubSystem &other)
    : base_(other.base_),
      constructionStages_(other.constructionStages_),
      database_(other.database_),
      children_(other.children_),
      parent_(other.parent_),
      view_(true) {}

VarnelSubSystem &VarnelSubSystem::operator=(const VarnelSubSystem &other) {
    if (this == &other) return *this;
    if (!view_) {
        if (database_) database_->indexedDescription().spoilIndex();  // the name becomes another model's
        former_ = std::make_unique<VarnelSubSystem>(std::string(), nullptr, nullptr);
        former_->constructionStages_.swap(constructionStages_);
        former_->children_.swap(children_);
        std::swap(former_->database_, database_);
        view_ = true;
    }
    base_ = other.base_;
    constructionStages_ = other.constructionStages_;
    database_ = other.database_;
    children_ = other.children_;
    parent_ = other.parent_;
    return *this;
}

VarnelSubSystem::~VarnelSubSystem() {
    if (view_) return;
    delete std::exchange(database_, nullptr);
    deleteChildren();
    deleteStages();
}

/// The children first lose their models, then their own children, then die, so that a deep tree is taken down
/// without a call stack as deep as itself.
void VarnelSubSystem::deleteChildren() {
    struct Level {
        VarnelSubSystem *node;
        std::list<VarnelSubSystem *> children;
    };
    std::vector<Level> path;
    path.push_back({this, children_.take()});
    while (!path.empty()) {
        auto &[node, children] = path.back();
        if (children.empty()) {
            if (node != this) delete node;
            path.pop_back();
            continue;
        }
        VarnelSubSystem *child = children.front();
        children.pop_front();
        if (!child) continue;
        if (child->view_ || typeid(*child) != typeid(VarnelSubSystem)) {
            delete child;  // a derived class may want its model in its own destructor
            continue;
        }
        delete std::exchange(child->database_, nullptr);
        path.push_back({child, child->children_.take()});
    }
}

void VarnelSubSystem::deleteStages() {
    std::list<SysBase::ConstructionStage *> stages = constructionStages_.take();
    for (SysBase::ConstructionStage *stage : stages)
        if (auto *withStates = dynamic_cast<VarnelConstructionStage *>(stage)) withStates->removeStates();
    varnel::deleteAll(stages);
}

const std::string &VarnelSubSystem::getName() const {
    static const std::string none;
    return database_ ? database_->getDescription() : none;
}

void VarnelSubSystem::setName(const std::string &name) {
    if (database_) database_->setDescription(name);
}

const varnel::IndexedKey<std::string> *VarnelSubSystem::indexedName() const {
    return database_ && !view_ ? &database_->indexedDescription() : nullptr;
}

VarnelSubSystem *VarnelSubSystem::clone(const VarnelFactory *factory) const {
    auto node = std::make_unique<VarnelSubSystem>(getName(), factory, parent_);
    if (node->database_ && database_) node->database_->copy(*database_);
    return node.release();
}

VarnelSubSystem *VarnelSubSystem::findChild(const std::string &name, bool) const {
    return children_.find(name);
}

VarnelSubSystem *VarnelSubSystem::giveChild(const std::string &name, bool recursive, VarnelFactory *factory,
                                            VarnelSubSystem *parent) {
    if (VarnelSubSystem *child = findChild(name, recursive)) return child;
    return new VarnelSubSystem(name, factory, parent);
}

void VarnelSubSystem::addChild(VarnelSubSystem *child) {
    children_.append(child);
}

int VarnelSubSystem::removeChild(VarnelSubSystem *child, bool recursive) {
    struct Level {
        VarnelSubSystem *node;
        std::list<VarnelSubSystem *>::const_iterator next;
    };
    std::vector<Level> path{{this, getChildren().begin()}};
    while (!path.empty()) {
        auto &[node, next] = path.back();
        if (next == node->getChildren().end()) {
            path.pop_back();
            continue;
        }
        VarnelSubSystem *entry = *next++;
        if (entry == child) return node->children_.eraseFirst(child);
        if (recursive && entry) path.push_back({entry, entry->getChildren().begin()});
    }
    return 0;
}

bool VarnelSubSystem::contains(const VarnelObject *object, bool recursive) const {
    std::vector<const VarnelSubSystem *> waiting{this};
    while (!waiting.empty()) {
        const VarnelSubSystem *node = waiting.back();
        waiting.pop_back();
        if (!node) continue;
        if (node->database_ && node->database_->contains(object)) return true;
        if (recursive)
            waiting.insert(waiting.end(), node->getChildren().rbegin(), node->getChildren().rend());
    }
    return false;
}

void VarnelSubSystem::updateMinMax(KzVector3D &min, KzVector3D &max, const KzMatrix44 &frame) const {
    struct Waiting {
        const VarnelSubSystem *node;
        KzMatrix44 frame;
    };
    std::vector<Waiting> waiting{{this, frame}};
    while (!waiting.empty()) {
        const auto [node, place] = waiting.back();
        waiting.pop_back();
        if (node->database_) node->database_->updateMinMax(&min, &max, place);
        const auto &children = node->getChildren();
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            if (*child) waiting.push_back({*child, place * (*child)->base_});
    }
}

void VarnelSubSystem::add(SysBase::ConstructionStage *stage) {
    constructionStages_.append(stage);
}

void VarnelSubSystem::remove(SysBase::ConstructionStage *stage, bool) {
    constructionStages_.erase(stage);
}

SysBase::ConstructionStage *VarnelSubSystem::findConstructionStageToNumber(int number) {
    return constructionStages_.find(number);
}

SysBase::ConstructionStage *VarnelSubSystem::giveConstructionStage() {
    return new SysBase::ConstructionStage;
}

SysBase::ConstructionStage *VarnelSubSystem::giveConstructionStageToNumber(int number) {
    if (number > 0) {
        if (SysBase::ConstructionStage *found = findConstructionStageToNumber(number)) return found;
    }
    SysBase::ConstructionStage *stage = giveConstructionStage();
    constexpr auto highest = static_cast<std::size_t>(std::numeric_limits<int>::max());
    stage->setNumber(number > 0 ? number
                                : static_cast<int>(std::min(getConstructionStages().size() + 1, highest)));
    add(stage);
    return stage;
}

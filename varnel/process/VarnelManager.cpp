#include "varnel/process/VarnelManager.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/Found/FoundationManager.h"
#include "varnel/contracts/Found/FoundationUser.h"
#include "varnel/contracts/KzDiagramManager.h"
#include "varnel/contracts/KzMaterialHandler.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzMaterialUser.h"
#include "varnel/contracts/KzReinfLineList.h"
#include "varnel/contracts/KzReinfLineUser.h"
#include "varnel/contracts/KzReinfMeshHandler.h"
#include "varnel/contracts/KzReinfMeshList.h"
#include "varnel/contracts/KzReinfMeshUser.h"
#include "varnel/contracts/KzReinfStockMesh.h"
#include "varnel/contracts/Lists.h"
#include "varnel/contracts/SDBSection.h"
#include "varnel/contracts/SDBSectionManager.h"
#include "varnel/contracts/SDBSectionUser.h"
#include "varnel/contracts/Tools/TempPath.h"
#include "varnel/exchange/VarnelExchange.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelDefaultProperties.h"
#include "varnel/process/SubSystemWalk.h"
#include "varnel/process/VarnelCalculator.h"
#include "varnel/process/VarnelConverter.h"
#include "varnel/process/VarnelDataChecker.h"
#include "varnel/process/VarnelDesigner.h"
#include "varnel/process/VarnelErrorHandler.h"
#include "varnel/process/VarnelFactory.h"

/// Answers the resource managers whether something is in use. Only the current subsystem's model is asked,
/// not the tree: what other subsystems use is not protected, and hosts rely on that.
class VarnelManager::Implementation : public SDBSectionUser,
                                      public KzMaterialUser,
                                      public Found::FoundationUser,
                                      public KzReinfMeshUser,
                                      public KzReinfLineUser {
  public:
    explicit Implementation(VarnelManager *manager) : manager_(manager) {}

    bool checkUsed(const SDBSection *section) override { return used(section); }
    bool checkUsed(const KzMaterial *material) override { return used(material); }
    bool checkUsed(const Found::Foundation *foundation) override { return used(foundation); }
    bool checkUsed(const KzReinfStockMesh *mesh) override { return used(mesh); }
    bool checkUsed(const KzReinfLine *) override { return false; }

  private:
    template <class Resource>
    bool used(const Resource *resource) {
        Varnel *model = manager_->getDatabase();
        return model && model->check(resource);
    }

    VarnelManager *manager_;
};

VarnelManager::VarnelManager(VarnelFactory *factory)
    : implementation_(std::make_unique<Implementation>(this)),
      factory_(factory),
      projectPath_(Tools::getTempPath()) {
    VarnelDefaultProperties::get();  // made first, so that they outlive this manager
    if (factory_) factory_->setManager(this);
    projectPath_.setFile("test");
    materialManager_ = std::make_unique<KzMaterialManager>("List");
    materialManager_->addUser(implementation_.get());
    KzMaterialHandler::get()->setDatabase();
    sectionManager_ = std::make_unique<SDBSectionManager>();
    sectionManager_->addUser(implementation_.get());
    dgnList_ = std::make_unique<KzReinfLineList>(sectionManager_.get());
    dgnList_->addUser(implementation_.get());
    dgnMeshList_ = std::make_unique<KzReinfMeshList>();
    dgnMeshList_->addUser(implementation_.get());
    getFoundationManager()->addUser(implementation_.get());
    if (factory_) {
        auto root = std::make_unique<VarnelSubSystem>("System", factory_, nullptr);
        subSystems_.push_back(root.get());
        currentSubSystem_ = root.release();
    }
    reset();
    diagramManager_ = std::make_unique<KzDiagramManager>();
}

VarnelManager::~VarnelManager() {
    VarnelDefaultProperties::get()->forget(*this);
    errorList_.clear();
    deleteServices();
    currentSubSystem_ = nullptr;  // models that die have nobody to ask
    varnel::deleteAll(subSystems_);
    deleteServices();  // those that a dying model has asked for
    materialManager_->removeUser(implementation_.get());
    materialManager_.reset();
    sectionManager_->removeUser(implementation_.get());
    sectionManager_->removeNotUserDefined();
    // The lists of meshes and lines and the foundations ask nobody while they die, so they need no
    // deregistration. The list of lines may outlive its sections.
    sectionManager_.reset();
    dgnMeshList_.reset();
    dgnList_.reset();
    diagramManager_.reset();
    implementation_.reset();
}

/// A service that dies, and a model that dies after it, finds none that is gone.
void VarnelManager::deleteServices() {
    delete std::exchange(designer_, nullptr);
    delete std::exchange(calculator_, nullptr);
    delete std::exchange(converter_, nullptr);
    delete std::exchange(exchange_, nullptr);
    delete std::exchange(dataChecker_, nullptr);
}

VarnelConverter *VarnelManager::getConverter() {
    if (!converter_ && factory_) {
        converter_ = factory_->giveConverter();
        if (converter_) {
            converter_->initInstance(this);
            converter_->setProjectPath(projectPath_.path());
        }
    }
    return converter_;
}

VarnelCalculator *VarnelManager::getCalculator() {
    if (!calculator_ && factory_) {
        calculator_ = factory_->giveCalculator();
        if (calculator_) calculator_->initInstance(this);
    }
    return calculator_;
}

VarnelDataChecker *VarnelManager::getDataChecker() {
    if (!dataChecker_ && factory_) dataChecker_ = factory_->giveDataChecker();
    return dataChecker_;
}

VarnelDesigner *VarnelManager::getDesigner() {
    if (!designer_ && factory_) {
        designer_ = factory_->giveDesigner();
        if (designer_) {
            designer_->initInstance(this);
            designer_->setProjectPath(projectPath_.path());
            designer_->setDoOutput(doOutput_);
        }
    }
    return designer_;
}

VarnelErrorHandler *VarnelManager::getErrorHandler() {
    if (!errorHandler_ && factory_) errorHandler_ = factory_->giveErrorHandler();
    return errorHandler_;
}

VarnelExchange *VarnelManager::getExchange() {
    if (!exchange_ && factory_) exchange_ = factory_->giveExchange();
    return exchange_;
}

void VarnelManager::reset() {
    delete std::exchange(converter_, nullptr);
    delete std::exchange(calculator_, nullptr);
    delete std::exchange(designer_, nullptr);
}

void VarnelManager::setFactory(VarnelFactory *factory) {
    reset();
    factory_ = factory;  // the factory is not told of this manager: its models are made for the first one
    Varnel *model = getDatabase();
    if (factory_ && model) model->setSystemMode(factory_->getMode());
}

KzReinfStockMesh *VarnelManager::getStockMesh(const std::string &name) {
    if (KzReinfStockMesh *mesh = dgnMeshList_->findMesh(name)) return mesh;
    if (name.empty()) return nullptr;
    const KzReinfStockMesh *stock = KzReinfMeshHandler::get()->findMeshToName(name);
    if (!stock) return nullptr;
    KzReinfStockMesh *mesh = stock->clone();
    dgnMeshList_->addMesh(mesh);
    return mesh;
}

Found::Foundation *VarnelManager::giveFoundation(const Found::Foundation *pattern,
                                                 const KzVector3D &displacement) {
    KzVector3D sum;
    if (pattern) pattern->getDispLine(sum);
    sum += displacement;
    const Found::Foundation wanted(sum);
    return getFoundationManager()->giveFoundation(wanted, true);
}

double VarnelManager::getTolerance() {
    VarnelConverter *converter = getConverter();
    return converter ? converter->getTolerance() : 0.0;
}

void VarnelManager::setTolerance(double tolerance) {
    if (VarnelConverter *converter = getConverter()) converter->setTolerance(tolerance);
}

Varnel *VarnelManager::getDatabase() const {
    return currentSubSystem_ ? currentSubSystem_->getDatabase() : nullptr;
}

VarnelSubSystem *VarnelManager::giveSubSystem(const std::string &name, VarnelSubSystem *parent) {
    if (!parent) return nullptr;
    if (VarnelSubSystem *child = parent->findChild(name, false)) return child;
    auto child = std::make_unique<VarnelSubSystem>(name, factory_, parent);
    parent->addChild(child.get());
    return child.release();
}

VarnelSubSystem *VarnelManager::findSubSystem(const std::string &name, bool recursive) {
    VarnelSubSystem *parent = nullptr;
    return findSubSystem(name, nullptr, parent, recursive);
}

VarnelSubSystem *VarnelManager::findSubSystem(const std::string &name, VarnelSubSystem *start,
                                              VarnelSubSystem *&parent, bool recursive) {
    VarnelSubSystem *node = start ? start : subSystems_.empty() ? nullptr : subSystems_.front();
    VarnelSubSystem *asked = start;
    while (node) {
        VarnelSubSystem *next = nullptr;
        for (VarnelSubSystem *child : node->getChildren()) {
            if (!child) continue;
            if (child->getName() == name) {
                parent = asked;
                return child;
            }
            // A recursive search goes into the first child and stays there: it always answers something, so
            // the second child is never asked. Callers compare names.
            if (recursive) {
                next = child;
                break;
            }
        }
        if (!next) return node;
        node = asked = next;
    }
    return nullptr;
}

int VarnelManager::removeSubSystem(VarnelSubSystem *subSystem, bool recursive) {
    for (auto place = subSystems_.begin(); place != subSystems_.end(); ++place) {
        if (*place == subSystem) {
            subSystems_.erase(place);
            return 1;
        }
        if (recursive && *place && (*place)->removeChild(subSystem, true) != 0) return 1;
    }
    return 0;
}

void VarnelManager::add(VarnelSubSystem *subSystem, VarnelSubSystem *parent) {
    if (parent)
        parent->addChild(subSystem);
    else
        subSystems_.push_back(subSystem);
}

bool VarnelManager::modelChanged() const {
    return loadChanged() || systemChanged() || sectionChanged() || materialChanged() || foundationChanged();
}

bool VarnelManager::loadChanged() const {
    const bool changed =
        varnel::anyModel(currentSubSystem_, [](const Varnel &model) { return model.loadChanged(); });
    return changed || hasLoadChanged();
}

bool VarnelManager::systemChanged() const {
    return varnel::anyModel(currentSubSystem_, [](const Varnel &model) { return model.systemChanged(); });
}

bool VarnelManager::sectionChanged() const {
    const auto &sections = sectionManager_->getSections();
    return std::any_of(sections.begin(), sections.end(),
                       [](const SDBSection *section) { return section->getChanged(); });
}

bool VarnelManager::materialChanged() const {
    return materialManager_->getChangedFlag();
}

bool VarnelManager::foundationChanged() const {
    const auto &foundations = getFoundationManager()->getFoundations();
    return std::any_of(foundations.begin(), foundations.end(),
                       [](const Found::Foundation *foundation) { return foundation->getChanged(); });
}

void VarnelManager::setSystemChanged(bool value) {
    varnel::eachModel(currentSubSystem_, [value](Varnel &model) { model.setSystemChanged(value); });
}

void VarnelManager::setLoadChanged(bool value) {
    varnel::eachModel(currentSubSystem_, [value](Varnel &model) { model.setLoadChanged(value); });
    SysBase::Manager::setLoadChanged(value);
}

void VarnelManager::setSectionChanged(bool value) {
    for (SDBSection *section : sectionManager_->getSections()) section->setChanged(value);
}

void VarnelManager::setMaterialChanged(bool value) {
    materialManager_->setChangedFlag(value);
}

void VarnelManager::setFoundationChanged(bool value) {
    for (Found::Foundation *foundation : getFoundationManager()->getFoundations())
        foundation->setChanged(value);
}

std::string VarnelManager::getDocumentPath() const {
    return projectPath_.location() + projectPath_.directory() + projectPath_.file() + "/";
}

void VarnelManager::loadProjectSettings(const std::string &path) {
    VarnelExchange *exchange = getExchange();
    if (!exchange) return;
    exchange->setManager(this);
    exchange->loadProjectSettings(path);
}

void VarnelManager::saveProjectSettings(const std::string &path) {
    VarnelExchange *exchange = getExchange();
    if (!exchange) return;
    exchange->updateSystem(this);
    exchange->saveProjectSettings(path);
}

void VarnelManager::fileRemove(const std::string &path) {
    static_cast<void>(std::remove(path.c_str()));
}

void VarnelManager::updateResultSections() {
    varnel::eachModel(currentSubSystem_, [](Varnel &model) { model.updateSections(); });
}

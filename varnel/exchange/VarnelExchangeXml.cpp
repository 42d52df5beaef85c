#include "varnel/exchange/VarnelExchangeXml.h"

#include "varnel/contracts/KzStandard.h"
#include "varnel/contracts/KzXmlTree.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/UnchangedMemory.h"
#include "varnel/exchange/VarnelExchangeXmlBeam.h"
#include "varnel/exchange/kzifstream.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelSubSystem.h"
#include "varnel/process/VarnelManager.h"

VarnelExchangeXml::VarnelExchangeXml() = default;

VarnelExchangeXml::~VarnelExchangeXml() = default;

VarnelExchangeXmlBeam *VarnelExchangeXml::getExchangeBeam() {
    if (!exBeam_) exBeam_ = std::make_unique<VarnelExchangeXmlBeam>(this);
    return exBeam_.get();
}

void VarnelExchangeXml::setExBeam(VarnelExchangeXmlBeam *exBeam) {
    if (exBeam != exBeam_.get()) exBeam_.reset(exBeam);
}

KzMaterialManager *VarnelExchangeXml::getMaterialManager() const {
    return getManager() ? getManager()->getMaterialManager() : nullptr;
}

void VarnelExchangeXml::get(VarnelManager *manager) {
    setManager(manager);
    treeToDatabase();
}

void VarnelExchangeXml::updateSystem(VarnelManager *manager) {
    const RootCursor guard(tree());
    const UnchangedMemory memory(unchanged_);
    setManager(manager);
    updateSettings(manager);
    updateMaterials(manager);
    updateSections(manager);
    updateDesignMeshes(manager);
    updateDesigns(manager);
    updateFoundations(manager);
    VarnelSubSystem *root =
        manager && !manager->getSubSystems().empty() ? manager->getSubSystems().front() : nullptr;
    open("SUBSYSTEM");
    setAttribute("NAME", "System");  // whatever the root is named: results are found again by this name
    if (root) {
        updateOneSubSystem(root);
        updateConstructionStages(root);
    }
    close();
    updateLoadcases(manager);
    if (tree().findRoot("SUBSYSTEMS", false)) tree().getRoot()->remove("SUBSYSTEMS");
    updateThumbnail(root);
}

void VarnelExchangeXml::updateThumbnail(VarnelSubSystem *) {}

void VarnelExchangeXml::updateOneSubSystem(VarnelSubSystem *subSystem) {
    if (!subSystem) return;
    updateVectorToKey("OFFSET", subSystem->getOffset());
    if (Varnel *model = subSystem->getDatabase()) updateModel(model);
    // A subsystem that has lost its last child keeps the old element: foreign readers may still refer to it.
    if (!subSystem->getChildren().empty()) updateSubSystems(subSystem->getChildren());
    setAttribute("STANDARD", KzStandard::get()->getMode());
}

void VarnelExchangeXml::updateModel(Varnel *model) {
    getExchangeBeam()->update(model);
    updatePlates(model);
    updateHoles(model);
    updateAttributeAreas(model);
    updateGaps(model);
    updatePointBoundaries(model);
    updateLineBoundaries(model);
    updatePointLoads(model);
    updateLineLoads(model);
    updateAreaLoads(model);
    updateResultSections(model);
    if (writePoints_) updatePoints(model);
    if (writeLines_) updateLines(model);
    updateLoadDistributionAreas(model);
    updateObjectGroups(model);
}

void VarnelExchangeXml::updateSubSystems(const std::list<VarnelSubSystem *> &children) {
    open("SUBSYSTEMS");
    flush();
    for (VarnelSubSystem *child : children) {
        if (!child) continue;
        openToAttribute("SUBSYSTEM", "NAME", child->getName());
        updateOneSubSystem(child);
        close();
    }
    close();
}

void VarnelExchangeXml::treeToDatabase() {
    const RootCursor guard(tree());
    KzXmlData *root = tree().findRoot("VARNEL", false);
    VarnelManager *manager = getManager();
    if (!root || !manager) return;
    readStandard(root);
    createMaterialList(root);
    createSections(root);
    createDesignMeshes(root);
    createDesigns(root);
    createFoundations(root);
    createSettings(root);
    if (KzXmlData *subSystem = root->findTree("SUBSYSTEM", true)) {
        VarnelSubSystem *target = manager->getCurrentSubSystem();
        createOneSubSystem(subSystem, target);
        createConstructionStages(subSystem, target);
    }
    if (KzXmlData *loadcases = root->findTree("LOADCASES", false)) createLoadcases(loadcases, manager);
}

void VarnelExchangeXml::readStandard(KzXmlData *root) {
    const KzXmlData *subSystem = root ? root->findTree("SUBSYSTEM", true) : nullptr;
    varnel::ifInt(subSystem, "STANDARD", [this](int value) {
        const auto mode = static_cast<Standard::Mode>(value);
        KzStandard::get()->setMode(mode);
        Varnel *model = getManager() ? getManager()->getDatabase() : nullptr;
        if (model) model->setStandardMode(mode);
    });
}

void VarnelExchangeXml::createOneSubSystem(KzXmlData *element, VarnelSubSystem *subSystem) {
    Varnel *model = subSystem ? subSystem->getDatabase() : nullptr;
    if (!element || !model) return;
    using varnel::eachChild;
    // Supports come before members and members before loads, since later ones refer to earlier ones.
    eachChild(element->findTree("PBOUNDS", false),
              [this, model](KzXmlData *child) { createOnePointBoundary(child, model); });
    getExchangeBeam()->create(element, model);
    createPlates(element, model);
    eachChild(element->findTree("LBOUNDS", false),
              [this, model](KzXmlData *child) { createOneLineBoundary(child, model); });
    createAttributeAreas(element, model);
    eachChild(element->findTree("HOLES", false),
              [this, model](KzXmlData *child) { createOneHole(child, model); });
    createGaps(element, model);
    eachChild(element->findChild("POINTLOADS"),
              [this, model](KzXmlData *child) { createOnePointLoad(child, model); });
    eachChild(element->findChild("LINELOADS"),
              [this, model](KzXmlData *child) { createOneLineLoad(child, model); });
    eachChild(element->findChild("AREALOADS"),
              [this, model](KzXmlData *child) { createOneAreaLoad(child, model); });
    createRefinePolygons(element, model);
    createResultSections(element, model);
    createLoadDistributionAreas(element, model);
    createObjectGroups(element, model);
    if (KzXmlData *children = element->findTree("SUBSYSTEMS", false)) createSubSystems(children, subSystem);
}

void VarnelExchangeXml::createSubSystems(KzXmlData *element, VarnelSubSystem *parent) {
    VarnelManager *manager = getManager();
    if (!manager) return;
    varnel::eachChild(element, [this, manager, parent](KzXmlData *child) {
        const KzXmlAttributeData *name = child->findAttribute("NAME");
        if (!name) return;
        VarnelSubSystem *subSystem = manager->giveSubSystem(name->getData(), parent);
        if (!subSystem) return;
        if (const KzXmlData *offset = child->findChild("OFFSET")) subSystem->setOffset(getVector(offset));
        createOneSubSystem(child, subSystem);
    });
}

void VarnelExchangeXml::saveProjectSettings(const std::string &path) {
    putToFile(path);
}

void VarnelExchangeXml::loadProjectSettings(const std::string &path) {
    KzXmlTree settings("SETT");
    kzifstream file(path.c_str());
    if (file.isOpen()) settings.buildOfStream(file.stream());
    loadProjectSettings(settings.getRoot());
}

void VarnelExchangeXml::loadProjectSettings(KzXmlData *root) {
    readStandard(root);
    createMaterialList(root);
    createSections(root);
    createDesignMeshes(root);
    createFoundations(root);
    createSettings(root);
}

bool VarnelExchangeXml::modelUnchanged() const {
    const auto ask = [this] {
        return getManager() && !getManager()->systemChanged() && !getManager()->loadChanged();
    };
    return unchanged_ ? unchanged_->answer(ask) : ask();
}

#include "varnel/model/VarnelDefaultProperties.h"

#include <algorithm>

#include "varnel/contracts/Found/FoundationManager.h"
#include "varnel/contracts/Found/FoundationUser.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzMaterialReinforcement.h"
#include "varnel/contracts/KzMaterialUser.h"
#include "varnel/contracts/KzPreStressSteel.h"
#include "varnel/contracts/KzReinfLineList.h"
#include "varnel/contracts/KzReinfMeshList.h"
#include "varnel/contracts/KzReinfSteel.h"
#include "varnel/contracts/KzReinfStockMesh.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SDBSectionManager.h"
#include "varnel/contracts/SDBSectionUser.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelLineLoadData.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeamProperties.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlateProperties.h"
#include "varnel/members/VarnelPointBoundaryData.h"
#include "varnel/process/VarnelManager.h"

/// Answers the resource managers for the default records.
class VarnelDefaultProperties::CImpl : public KzMaterialUser,
                                       public SDBSectionUser,
                                       public Found::FoundationUser {
  public:
    explicit CImpl(VarnelDefaultProperties *properties) : properties_(properties) {}

    bool checkUsed(const KzMaterial *material) override { return properties_->check(material); }
    bool checkUsed(const SDBSection *section) override { return properties_->check(section); }
    bool checkUsed(const Found::Foundation *foundation) override { return properties_->check(foundation); }

  private:
    VarnelDefaultProperties *properties_;
};

namespace {

/// Final, since the base has no virtual destructor.
class SupportRecord final : public VarnelPointBoundaryData {};

/// Whether a list of a manager holds this very thing.
template <class List, class T>
bool holds(const List &list, const T *thing) {
    return thing && std::any_of(list.begin(), list.end(), [thing](const auto *one) { return one == thing; });
}

void forgetIn(VarnelDesignData *design, const VarnelManager &dying) {
    if (!design) return;
    const auto &materials = dying.getMaterialManager()->getMaterials();
    const auto &meshes = dying.getDgnMeshList()->getMeshes();
    if (holds(materials, design->getReinforcement())) design->setReinforcement(nullptr);
    if (holds(materials, design->getPrestressingSteel())) design->setPrestressingSteel(nullptr);
    if (holds(meshes, design->getBasicMeshL())) design->setBasicMeshL(nullptr);
    if (holds(meshes, design->getBasicMeshU())) design->setBasicMeshU(nullptr);
}

void forgetIn(VarnelPlateProperties &plate, const VarnelManager &dying) {
    if (holds(dying.getMaterialManager()->getMaterials(), plate.getMaterial())) plate.setMaterial(nullptr);
    if (holds(dying.getFoundationManager()->getFoundations(), plate.getFoundation()))
        plate.setFoundation(nullptr);
    forgetIn(plate.getDesign(), dying);
}

void forgetIn(VarnelBeamProperties &beam, const VarnelManager &dying) {
    const auto &materials = dying.getMaterialManager()->getMaterials();
    if (holds(materials, beam.getMaterial())) beam.setMaterial(nullptr);
    if (holds(materials, beam.getReinSteel())) beam.setReinfSteel(nullptr);
    if (holds(dying.getDgnList()->getLines(), beam.getReinfLine())) beam.setReinfLine(nullptr);
    if (holds(dying.getFoundationManager()->getFoundations(), beam.getFoundation()))
        beam.setFoundation(nullptr);
    for (int i = 0; i < 2; ++i)
        if (holds(dying.getSectionManager()->getSections(), beam.getSection(i))) beam.setSection(nullptr, i);
    forgetIn(beam.getDesign(), dying);
}

}  // namespace

VarnelDefaultProperties *VarnelDefaultProperties::get() {
    static VarnelDefaultProperties instance;
    return &instance;
}

VarnelDefaultProperties::VarnelDefaultProperties()
    : impl_(std::make_shared<CImpl>(this)),
      lbData_(std::make_shared<VarnelLineBoundaryData>(0, std::string())),
      plateProp_(std::make_shared<VarnelPlateProperties>()),
      lineLoad_(std::make_shared<VarnelLineLoadData>()),
      pointLoad_(std::make_shared<VarnelPointLoad>()),
      areaLoad_(std::make_shared<VarnelAreaLoad>()),
      beamProp_(std::make_shared<VarnelBeamProperties>()),
      pbData_(std::make_shared<SupportRecord>()),
      hole_(std::make_shared<VarnelHole>()),
      lda_(std::make_shared<VarnelLoadDistributionArea>()) {}

VarnelDefaultProperties &VarnelDefaultProperties::operator=(const VarnelDefaultProperties &) = default;

VarnelDefaultProperties::~VarnelDefaultProperties() {
    impl_.reset();
    lbData_.reset();
    plateProp_.reset();
    lineLoad_.reset();
    pointLoad_.reset();
    areaLoad_.reset();
    beamProp_.reset();
    pbData_.reset();
    hole_.reset();
    lda_.reset();
}

const VarnelLineBoundaryData &VarnelDefaultProperties::getLBData() const {
    return *lbData_;
}

void VarnelDefaultProperties::setLBData(const VarnelLineBoundaryData &data) {
    *lbData_ = data;
}

const VarnelPlateProperties &VarnelDefaultProperties::getPlateProp() const {
    return *plateProp_;
}

void VarnelDefaultProperties::setPlateProp(const VarnelPlateProperties &properties) {
    *plateProp_ = properties;
}

const VarnelLineLoadData &VarnelDefaultProperties::getLineLoad() const {
    return *lineLoad_;
}

void VarnelDefaultProperties::setLineLoad(const VarnelLineLoadData &data) {
    *lineLoad_ = data;
}

const VarnelPointLoad &VarnelDefaultProperties::getPointLoad() const {
    return *pointLoad_;
}

void VarnelDefaultProperties::setPointLoad(const VarnelPointLoad &load) {
    *pointLoad_ = load;
}

const VarnelAreaLoad &VarnelDefaultProperties::getAreaLoad() const {
    return *areaLoad_;
}

void VarnelDefaultProperties::setAreaLoad(const VarnelAreaLoad &load) {
    *areaLoad_ = load;
}

const VarnelBeamProperties &VarnelDefaultProperties::getBeamProp() const {
    return *beamProp_;
}

void VarnelDefaultProperties::setBeamProp(const VarnelBeamProperties &properties) {
    *beamProp_ = properties;
}

const VarnelPointBoundaryData &VarnelDefaultProperties::getPBData() const {
    return *pbData_;
}

void VarnelDefaultProperties::setPBData(const VarnelPointBoundaryData &data) {
    *pbData_ = data;
}

const VarnelHole &VarnelDefaultProperties::getHole() const {
    return *hole_;
}

void VarnelDefaultProperties::setHole(const VarnelHole &hole) {
    *hole_ = hole;
}

const VarnelLoadDistributionArea &VarnelDefaultProperties::getLDA() const {
    return *lda_;
}

void VarnelDefaultProperties::setLDA(const VarnelLoadDistributionArea &area) {
    *lda_ = area;
}

bool VarnelDefaultProperties::check(const KzMaterial *material) const {
    return beamProp_->getMaterial() == material || plateProp_->getMaterial() == material;
}

bool VarnelDefaultProperties::check(const SDBSection *section) const {
    return beamProp_->getSection(0) == section;  // the section at the end is meant not to count
}

bool VarnelDefaultProperties::check(const Found::Foundation *foundation) const {
    return plateProp_->getFoundation() == foundation || beamProp_->getFoundation() == foundation;
}

void VarnelDefaultProperties::addToAsUser(VarnelManager *manager) {
    if (!manager) return;
    manager->getMaterialManager()->addUser(impl_.get());
    manager->getSectionManager()->addUser(impl_.get());
    manager->getFoundationManager()->addUser(impl_.get());
}

void VarnelDefaultProperties::removeAsUser(VarnelManager *manager) {
    if (!manager) return;
    manager->getMaterialManager()->removeUser(impl_.get());
    manager->getSectionManager()->removeUser(impl_.get());
    manager->getFoundationManager()->removeUser(impl_.get());
}

void VarnelDefaultProperties::forget(const VarnelManager &dying) {
    forgetIn(*plateProp_, dying);
    forgetIn(*beamProp_, dying);
    for (const SysBase::Loadcase *loadcase : dying.getLoadcases()) forget(loadcase);
}

void VarnelDefaultProperties::forget(const SysBase::Loadcase *dying) {
    if (lineLoad_->getLoadcase() == dying) lineLoad_->setLoadcase(nullptr);
    pointLoad_->forgetLoadcase(dying);
    areaLoad_->forgetLoadcase(dying);
}

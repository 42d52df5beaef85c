#include "varnel/members/VarnelBeamProperties.h"

#include "varnel/contracts/FireDesign/TemperatureDistribution.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/members/VarnelDesignData.h"

VarnelBeamProperties::VarnelBeamProperties() = default;

VarnelBeamProperties::VarnelBeamProperties(const VarnelBeamProperties &other) : Shared(other) {
    *this = other;
}

VarnelBeamProperties &VarnelBeamProperties::operator=(const VarnelBeamProperties &other) {
    sections_ = other.sections_;
    offsets_ = other.offsets_;
    name_ = other.name_;
    parts_ = other.parts_;
    elementType_ = other.elementType_;
    beamType_ = other.beamType_;
    angle_ = other.angle_;
    setDesign(other.getDesign());
    material_ = other.material_;
    reinfLine_ = other.reinfLine_;
    reinfSteel_ = other.reinfSteel_;
    foundation_ = other.foundation_;
    setTemperatureDistribution(other.getTemperatureDistribution());
    return *this;
}

VarnelBeamProperties::~VarnelBeamProperties() = default;

SDBSectionLine *VarnelBeamProperties::getSection(int index) const {
    const auto i = static_cast<unsigned>(index);
    return i < sections_.size() ? sections_[i] : nullptr;
}

void VarnelBeamProperties::setSection(SDBSectionLine *section, int index) {
    const auto i = static_cast<unsigned>(index);
    if (i < sections_.size()) sections_[i] = section;
}

KzVector3D VarnelBeamProperties::getOffset(unsigned index) const {
    return index < offsets_.size() ? offsets_[index] : KzVector3D();
}

void VarnelBeamProperties::setOffset(const KzVector3D &offset, unsigned index) {
    if (index < offsets_.size()) offsets_[index] = offset;
}

bool VarnelBeamProperties::hasOffset() const {
    return !offsets_[0].isNull() || !offsets_[1].isNull();
}

void VarnelBeamProperties::setDesign(const VarnelDesignData *design) {
    if (!design)
        design_.reset();
    else if (design_)
        *design_ = *design;
    else
        design_ = std::make_unique<VarnelDesignData>(*design);
}

KzConcrete *VarnelBeamProperties::getConcrete() const {
    return dynamic_cast<KzConcrete *>(material_);
}

void VarnelBeamProperties::setTemperatureDistribution(
    const FireDesign::TemperatureDistribution *distribution) {
    std::unique_ptr<FireDesign::TemperatureDistribution> clone;
    if (distribution) clone = std::unique_ptr<FireDesign::TemperatureDistribution>(distribution->clone());
    temperatureDistribution_ = std::move(clone);
}

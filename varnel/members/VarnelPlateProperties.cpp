#include "varnel/members/VarnelPlateProperties.h"

#include "varnel/members/VarnelDesignData.h"

VarnelPlateProperties::VarnelPlateProperties() = default;

VarnelPlateProperties::VarnelPlateProperties(const VarnelPlateProperties &other) {
    *this = other;
}

VarnelPlateProperties::~VarnelPlateProperties() = default;

VarnelPlateProperties &VarnelPlateProperties::operator=(const VarnelPlateProperties &other) {
    thick_ = other.thick_;
    meshSizeX_ = other.meshSizeX_;
    meshSizeY_ = other.meshSizeY_;
    minMeshSize_ = other.minMeshSize_;
    autoMeshSize_ = other.autoMeshSize_;
    elementType_ = other.elementType_;
    meshType_ = other.meshType_;
    name_ = other.name_;
    meshAngle_ = other.meshAngle_;
    material_ = other.material_;
    foundation_ = other.foundation_;
    setDesign(other.getDesign());
    return *this;
}

void VarnelPlateProperties::setDesign(const VarnelDesignData *design) {
    if (!design)
        design_.reset();
    else if (design_)
        *design_ = *design;
    else
        design_ = std::make_unique<VarnelDesignData>(*design);
}

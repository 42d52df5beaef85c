#include "varnel/members/VarnelDesignData.h"

#include <functional>

VarnelDesignData::VarnelDesignData(double theta, double coverXu, double coverYu, double coverXl,
                                   double coverYl)
    : theta_(theta),
      coverXu_(coverXu),
      coverYu_(coverYu),
      coverXl_(coverXl),
      coverYl_(coverYl),
      cnom_(3.0) {}  // not the default 0.03: records made this way are in use with it

bool VarnelDesignData::operator==(const VarnelDesignData &other) const {
    return reinforcement_ == other.reinforcement_ && prestressingSteel_ == other.prestressingSteel_ &&
           theta_ == other.theta_ && coverXu_ == other.coverXu_ && coverYu_ == other.coverYu_ &&
           coverXl_ == other.coverXl_ && coverYl_ == other.coverYl_ && cnom_ == other.cnom_ &&
           minimumSteel_ == other.minimumSteel_ && basicMeshL_ == other.basicMeshL_ &&
           basicMeshU_ == other.basicMeshU_ && minShearReinforcement_ == other.minShearReinforcement_ &&
           shearAngle_ == other.shearAngle_ && strutAngle_ == other.strutAngle_ &&
           shearJointSurface_ == other.shearJointSurface_ && jointPosition_ == other.jointPosition_ &&
           bondReinfAngle_ == other.bondReinfAngle_ && shearReinfStrength_ == other.shearReinfStrength_ &&
           stressDesignType_ == other.stressDesignType_ && reinforcementLayout_ == other.reinforcementLayout_;
}

std::size_t varnel::DesignDataHash::operator()(const VarnelDesignData &data) const noexcept {
    std::size_t hash = 0;
    const auto add = [&hash](std::size_t value) { hash = hash * 1099511628211U + value; };
    for (const double value : {data.getTheta(), data.getCoverXu(), data.getCoverYu(), data.getCoverXl(),
                               data.getCoverYl(), data.getCnom(), data.getMinimumSteel(),
                               data.getMinShearReinforcement(), data.getShearAngle(), data.getStrutAngle()})
        add(std::hash<double>()(value));
    add(std::hash<const void *>()(data.getReinforcement()));
    add(std::hash<const void *>()(data.getBasicMeshL()));
    add(std::hash<const void *>()(data.getBasicMeshU()));
    return hash;
}

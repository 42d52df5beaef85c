#ifndef VARNEL_MEMBERS_VARNELDESIGNDATA_H
#define VARNEL_MEMBERS_VARNELDESIGNDATA_H

#include <cstddef>

#include "varnel/contracts/Design/ShearData.h"
#include "varnel/contracts/Export.h"
#include "varnel/contracts/StressManager/DesignType.h"
#include "varnel/members/DesignDataLink.h"

class KzMaterialReinforcement;
class KzPreStressSteel;
class KzReinfMesh;

namespace Reinforcement {
namespace Schemes {
class Layout;
}
}  // namespace Reinforcement
namespace varnel {
class DesignDataIndex;
}

/// What the host's designer needs to know of a plate or a beam: a plain record. The things it points to are
/// shared: they live in the project.
class VARNEL_EXPORT VarnelDesignData {
  public:
    VarnelDesignData() = default;
    /// Angle (rad) and covers (m); the nominal cover is 3 then, not the default.
    VarnelDesignData(double theta, double coverXu, double coverYu, double coverXl, double coverYl);

    /// Angle of the reinforcement (rad).
    double getTheta() const { return theta_; }
    void setTheta(double value) { set(theta_, value); }
    /// Concrete covers (m): x and y direction, upper (u) and lower (l) face.
    double getCoverXu() const { return coverXu_; }
    void setCoverXu(double value) { set(coverXu_, value); }
    double getCoverYu() const { return coverYu_; }
    void setCoverYu(double value) { set(coverYu_, value); }
    double getCoverXl() const { return coverXl_; }
    void setCoverXl(double value) { set(coverXl_, value); }
    double getCoverYl() const { return coverYl_; }
    void setCoverYl(double value) { set(coverYl_, value); }
    double getMinimumSteel() const { return minimumSteel_; }
    void setMinimumSteel(double value) { set(minimumSteel_, value); }
    /// Nominal cover (m).
    double getCnom() const { return cnom_; }
    void setCnom(double value) { set(cnom_, value); }
    KzMaterialReinforcement *getReinforcement() const { return reinforcement_; }
    void setReinforcement(KzMaterialReinforcement *steel) { set(reinforcement_, steel); }
    KzPreStressSteel *getPrestressingSteel() const { return prestressingSteel_; }
    void setPrestressingSteel(KzPreStressSteel *steel) { set(prestressingSteel_, steel); }
    /// Basic meshes of the lower (L) and upper (U) face.
    const KzReinfMesh *getBasicMeshL() const { return basicMeshL_; }
    void setBasicMeshL(const KzReinfMesh *mesh) { set(basicMeshL_, mesh); }
    const KzReinfMesh *getBasicMeshU() const { return basicMeshU_; }
    void setBasicMeshU(const KzReinfMesh *mesh) { set(basicMeshU_, mesh); }
    double getMinShearReinforcement() const { return minShearReinforcement_; }
    void setMinShearReinforcement(double value) { set(minShearReinforcement_, value); }
    double getShearAngle() const { return shearAngle_; }
    void setShearAngle(double value) { set(shearAngle_, value); }
    double getStrutAngle() const { return strutAngle_; }
    void setStrutAngle(double value) { set(strutAngle_, value); }
    Design::ShearData::SurfaceType getShearJointSurface() const { return shearJointSurface_; }
    void setShearJointSurface(Design::ShearData::SurfaceType value) { set(shearJointSurface_, value); }
    void setShearJointSurface(int value) {
        setShearJointSurface(static_cast<Design::ShearData::SurfaceType>(value));
    }
    double getJointPosition() const { return jointPosition_; }
    void setJointPosition(double value) { set(jointPosition_, value); }
    double getBondReinfAngle() const { return bondReinfAngle_; }
    void setBondReinfAngle(double value) { set(bondReinfAngle_, value); }
    double getShearReinfStrength() const { return shearReinfStrength_; }
    void setShearReinfStrength(double value) { set(shearReinfStrength_, value); }
    StressManager::DesignType getStressDesignType() const { return stressDesignType_; }
    void setStressDesignType(StressManager::DesignType value) { set(stressDesignType_, value); }
    void setStressDesignType(int value) {
        setStressDesignType(static_cast<StressManager::DesignType>(value));
    }
    Reinforcement::Schemes::Layout *getReinforcementLayout() const { return reinforcementLayout_; }
    void setReinforcementLayout(Reinforcement::Schemes::Layout *layout) { set(reinforcementLayout_, layout); }

    /// All fields, numbers exactly, things by their address: a record with a NaN is unequal to itself.
    bool operator==(const VarnelDesignData &other) const;
    bool operator!=(const VarnelDesignData &other) const { return !(*this == other); }

  private:
    friend class varnel::DesignDataIndex;

    template <class T>
    void set(T &field, T value) {
        field = value;
        link_.alter();
    }

    double theta_ = 0.0;
    double coverXu_ = 0.03;
    double coverYu_ = 0.03;
    double coverXl_ = 0.03;
    double coverYl_ = 0.03;
    double minimumSteel_ = 0.2;
    double cnom_ = 0.03;
    KzMaterialReinforcement *reinforcement_ = nullptr;
    KzPreStressSteel *prestressingSteel_ = nullptr;
    const KzReinfMesh *basicMeshL_ = nullptr;
    const KzReinfMesh *basicMeshU_ = nullptr;
    double minShearReinforcement_ = 0.6;
    double shearAngle_ = 90.0;
    double strutAngle_ = 0.0;
    Design::ShearData::SurfaceType shearJointSurface_ = static_cast<Design::ShearData::SurfaceType>(1);
    double jointPosition_ = 0.0;
    double bondReinfAngle_ = 0.0;
    double shearReinfStrength_ = 0.0;
    StressManager::DesignType stressDesignType_ = static_cast<StressManager::DesignType>(0);
    Reinforcement::Schemes::Layout *reinforcementLayout_ = nullptr;
    varnel::DesignDataLink link_;
};

namespace varnel {

/// Equal records have equal hashes.
struct DesignDataHash {
    std::size_t operator()(const VarnelDesignData &data) const noexcept;
};

}  // namespace varnel

#endif

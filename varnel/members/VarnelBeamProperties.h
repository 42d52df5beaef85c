#ifndef VARNEL_MEMBERS_VARNELBEAMPROPERTIES_H
#define VARNEL_MEMBERS_VARNELBEAMPROPERTIES_H

#include <array>
#include <memory>
#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/members/VarnelBeam.h"

class KzReinfSteel;

/// Section, material and element data of a beam; a value that is copied as a whole. Sections, materials,
/// reinforcement and foundation are shared; design data and temperature distribution are owned.
class VARNEL_EXPORT VarnelBeamProperties : public varnel::Shared {
  public:
    VarnelBeamProperties();
    /// Has design data and a temperature distribution of its own.
    VarnelBeamProperties(const VarnelBeamProperties &other);
    VarnelBeamProperties &operator=(const VarnelBeamProperties &other);
    ~VarnelBeamProperties();

    /// Section at the start (0) and at the end (1) of the beam; null for any other index.
    SDBSectionLine *getSection(int index) const;
    /// Any other index is ignored.
    void setSection(SDBSectionLine *section, int index);

    /// Offset (m) of the axis at the start (0) and at the end (1); zero for any other index.
    KzVector3D getOffset(unsigned index) const;
    /// Any other index is ignored.
    void setOffset(const KzVector3D &offset, unsigned index);
    bool hasOffset() const;

    const std::string &getName() const { return name_; }
    void setName(const std::string &name) { name_ = name; }
    /// Division of the first line of the axis.
    int getParts() const { return parts_; }
    void setParts(int parts) { parts_ = parts; }
    VarnelBeam::ElementType getElementType() const { return elementType_; }
    void setElementType(VarnelBeam::ElementType type) { elementType_ = type; }
    void setElementType(int type) { elementType_ = static_cast<VarnelBeam::ElementType>(type); }
    VarnelBeam::Type getBeamType() const { return beamType_; }
    void setBeamType(VarnelBeam::Type type) { beamType_ = type; }
    void setBeamType(int type) { beamType_ = static_cast<VarnelBeam::Type>(type); }
    /// Turning of the section about the axis, in degrees.
    double getAngle() const { return angle_; }
    void setAngle(double degrees) { angle_ = degrees; }

    /// Design data, owned; null if there are none.
    VarnelDesignData *getDesign() const { return design_.get(); }
    /// Copies the data into this record's own; null takes them away.
    void setDesign(const VarnelDesignData *design);

    KzMaterial *getMaterial() const { return material_; }
    void setMaterial(KzMaterial *material) { material_ = material; }
    /// The material if it is a concrete, else null.
    KzConcrete *getConcrete() const;
    KzReinfLine *getReinfLine() const { return reinfLine_; }
    void setReinfLine(KzReinfLine *line) { reinfLine_ = line; }
    KzReinfSteel *getReinSteel() const { return reinfSteel_; }
    void setReinfSteel(KzReinfSteel *steel) { reinfSteel_ = steel; }
    Found::Foundation *getFoundation() const { return foundation_; }
    void setFoundation(Found::Foundation *foundation) { foundation_ = foundation; }

    /// Temperatures over the section in fire, owned; null if there are none.
    const FireDesign::TemperatureDistribution *getTemperatureDistribution() const {
        return temperatureDistribution_.get();
    }
    /// Stores a clone; null takes the distribution away.
    void setTemperatureDistribution(const FireDesign::TemperatureDistribution *distribution);

  private:
    std::array<SDBSectionLine *, 2> sections_{};
    std::array<KzVector3D, 2> offsets_{};
    std::string name_;
    int parts_ = 1;
    VarnelBeam::ElementType elementType_ = VarnelBeam::BeamElement;
    VarnelBeam::Type beamType_ = VarnelBeam::DefaultType;
    double angle_ = 0.0;
    std::unique_ptr<VarnelDesignData> design_;
    KzMaterial *material_ = nullptr;
    KzReinfLine *reinfLine_ = nullptr;
    KzReinfSteel *reinfSteel_ = nullptr;
    Found::Foundation *foundation_ = nullptr;
    std::unique_ptr<FireDesign::TemperatureDistribution> temperatureDistribution_;
};

#endif

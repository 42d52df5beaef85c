#ifndef VARNEL_STAGES_VARNELPLATESTATE_H
#define VARNEL_STAGES_VARNELPLATESTATE_H

#include "varnel/contracts/Export.h"
#include "varnel/stages/VarnelObjectState.h"

class KzMaterial;
class VarnelPlate;

/// What a construction stage records of a plate: whether it is active, and its material. Both the plate and
/// the material are shared.
class VARNEL_EXPORT VarnelPlateState : public VarnelObjectState {
  public:
    explicit VarnelPlateState(VarnelPlate *plate);

    /// Null if the state stands for nothing.
    VarnelPlate *getPlate() const { return plate_; }
    /// Null for a stage that leaves the plate the material it has.
    KzMaterial *getMaterial() const { return material_; }
    void setMaterial(KzMaterial *material) { material_ = material; }

    void update() override;
    void setup() override;
    void getVisited(VarnelObjectStateVisitor *visitor) override;

  private:
    VarnelPlate *plate_;
    KzMaterial *material_ = nullptr;
};

#endif

#ifndef VARNEL_STAGES_VARNELBEAMSTATE_H
#define VARNEL_STAGES_VARNELBEAMSTATE_H

#include "varnel/contracts/Export.h"
#include "varnel/stages/VarnelObjectState.h"

class KzMaterial;
class VarnelBeam;

/// What a construction stage records of a beam: whether it is active, and its material. Both the beam and the
/// material are shared.
class VARNEL_EXPORT VarnelBeamState : public VarnelObjectState {
  public:
    explicit VarnelBeamState(VarnelBeam *beam);

    /// Null if the state stands for nothing.
    VarnelBeam *getBeam() const { return beam_; }
    /// Null for a stage that leaves the beam the material it has.
    KzMaterial *getMaterial() const { return material_; }
    void setMaterial(KzMaterial *material) { material_ = material; }

    void update() override;
    void setup() override;
    void getVisited(VarnelObjectStateVisitor *visitor) override;

  private:
    VarnelBeam *beam_;
    KzMaterial *material_ = nullptr;
};

#endif

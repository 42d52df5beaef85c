#ifndef VARNEL_PROCESS_VARNELDATABASEFACTORY_H
#define VARNEL_PROCESS_VARNELDATABASEFACTORY_H

#include "varnel/contracts/Export.h"

class Varnel;
class VarnelBeam;
class VarnelConstructionStage;
class VarnelPlate;
class VarnelResultSection;

/// Makes the objects of a model that a host may want to derive from. Everything made here passes to the
/// caller. A derived factory is freed as the class that it was stored as.
class VARNEL_EXPORT VarnelDatabaseFactory {
  public:
    /// A copy of the plate.
    virtual VarnelPlate *givePlate(const VarnelPlate &plate);
    /// A new plate without a model; the model sets itself as its parent.
    virtual VarnelPlate *givePlate();
    /// A new stage that can hold object states.
    virtual VarnelConstructionStage *giveConstructionStage();
    /// A copy of the beam.
    virtual VarnelBeam *giveBeam(const VarnelBeam &beam);
    /// A new beam with one line of zero length.
    virtual VarnelBeam *giveBeam();
    /// A new result section for the model.
    virtual VarnelResultSection *giveResultSection(Varnel *model);
};

#endif

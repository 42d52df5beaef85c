#include "varnel/process/VarnelDatabaseFactory.h"

#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/results/VarnelResultSection.h"
#include "varnel/stages/VarnelConstructionStage.h"

VarnelPlate *VarnelDatabaseFactory::givePlate(const VarnelPlate &plate) {
    return new VarnelPlate(plate);
}

VarnelPlate *VarnelDatabaseFactory::givePlate() {
    return new VarnelPlate(nullptr);
}

VarnelConstructionStage *VarnelDatabaseFactory::giveConstructionStage() {
    return new VarnelConstructionStage;
}

VarnelBeam *VarnelDatabaseFactory::giveBeam(const VarnelBeam &beam) {
    return new VarnelBeam(beam);
}

VarnelBeam *VarnelDatabaseFactory::giveBeam() {
    return new VarnelBeam;
}

VarnelResultSection *VarnelDatabaseFactory::giveResultSection(Varnel *model) {
    return new VarnelResultSection(model);
}

#include "varnel/exchange/StateObjects.h"

#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/Varnel.h"
#include "varnel/process/SubSystemWalk.h"
#include "varnel/process/VarnelManager.h"

namespace varnel {

bool StateObjects::contains(StateKind kind, const VarnelStateObject *object) {
    if (!gathered_) {
        gathered_ = true;
        if (manager_)
            for (VarnelSubSystem *root : manager_->getSubSystems()) gather(root);
        gather(subSystem_);
    }
    const auto place = kinds_.find(object);
    return place != kinds_.end() && place->second == kind;
}

void StateObjects::gather(VarnelSubSystem *subSystem) {
    eachModel(subSystem, [this](const Varnel &model) {
        gather(StateKind::Beam, model.getBeams());
        gather(StateKind::Plate, model.getPlates());
        gather(StateKind::PointBoundary, model.getPointBoundaries());
        gather(StateKind::PointLoad, model.getPointLoads());
        gather(StateKind::LineLoad, model.getLineLoads());
    });
}

template <class List>
void StateObjects::gather(StateKind kind, const List &objects) {
    for (const auto *object : objects)
        if (object) kinds_.emplace(object, kind);
}

}  // namespace varnel

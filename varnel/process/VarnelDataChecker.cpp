#include "varnel/process/VarnelDataChecker.h"

#include "varnel/model/Varnel.h"
#include "varnel/process/VarnelManager.h"

VarnelDataChecker::~VarnelDataChecker() = default;

bool VarnelDataChecker::checkSystem(VarnelManager *manager) {
    const Varnel *model = manager ? manager->getDatabase() : nullptr;
    return model && (model->getNumberOfPlates() > 0 || model->getNumberOfBeams() > 0);
}

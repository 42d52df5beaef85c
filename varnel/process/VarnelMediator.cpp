#include "varnel/process/VarnelMediator.h"

void VarnelMediator::updateSubSystem(VarnelSubSystem *) {}

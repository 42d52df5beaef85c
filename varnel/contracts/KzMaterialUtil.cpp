#include "varnel/contracts/KzMaterialUtil.h"

#include "varnel/contracts/Tools/Error.h"

void KzMaterialUtil::throwMaterialFoundError() {
    throw Tools::Error("material not found");
}

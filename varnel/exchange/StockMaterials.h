#ifndef VARNEL_EXCHANGE_STOCKMATERIALS_H
#define VARNEL_EXCHANGE_STOCKMATERIALS_H

#include <vector>

class KzMaterial;
class VarnelManager;

namespace varnel {

/// The stock materials, each once and in order of first use, that attribute areas and the states of stages
/// refer to: their readers look for materials in the project only.
std::vector<KzMaterial *> usedStockMaterials(const VarnelManager &manager);

}  // namespace varnel

#endif

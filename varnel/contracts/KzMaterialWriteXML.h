#ifndef VARNEL_CONTRACTS_KZMATERIALWRITEXML_H
#define VARNEL_CONTRACTS_KZMATERIALWRITEXML_H

#include <vector>

#include "varnel/contracts/Export.h"

class KzMaterial;
class KzMaterialManager;
class KzXmlData;

/// Writes the element MATERIALS.
class VARNEL_EXPORT KzMaterialWriteXML {
  public:
    /// The manager is shared; null has no materials.
    explicit KzMaterialWriteXML(KzMaterialManager *manager) : manager_(manager) {}

    /// Brings one MATERIAL for each name up to date: those of the manager, then the further ones whose name
    /// did not occur. Drops every other MATERIAL and leaves other elements alone.
    void write(KzXmlData *element, const std::vector<KzMaterial *> &further = {});

  private:
    KzMaterialManager *manager_;
};

#endif

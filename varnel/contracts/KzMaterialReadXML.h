#ifndef VARNEL_CONTRACTS_KZMATERIALREADXML_H
#define VARNEL_CONTRACTS_KZMATERIALREADXML_H

#include "varnel/contracts/Export.h"

class KzMaterialManager;
class KzXmlData;

/// Reads the element MATERIALS.
class VARNEL_EXPORT KzMaterialReadXML {
  public:
    /// The manager is shared; null reads nothing.
    explicit KzMaterialReadXML(KzMaterialManager *manager) : manager_(manager) {}

    /// Finds or makes one material for each MATERIAL with a NAME and answers how many that were. A material
    /// that exists keeps its kind; an unknown kind makes a material of the kind OTHER.
    int read(KzXmlData *element);

  private:
    KzMaterialManager *manager_;
};

#endif

#ifndef VARNEL_CONTRACTS_KZREINFMESHEXCHANGEXML_H
#define VARNEL_CONTRACTS_KZREINFMESHEXCHANGEXML_H

#include "varnel/contracts/Export.h"

class KzReinfMeshList;
class KzXmlData;
class KzXmlTree;

/// Reads and writes the element MESHES below the root.
class VARNEL_EXPORT KzReinfMeshExchangeXml {
  public:
    /// Both are shared and may be null, which leaves nothing to do.
    KzReinfMeshExchangeXml(KzReinfMeshList *list, KzXmlTree *tree) : list_(list), tree_(tree) {}

    /// Finds or makes one mesh for each MESH with a NAME below the root's MESHES.
    void createReinfMeshes(KzXmlData *root);
    /// Brings one MESH for each name up to date, drops every other MESH and leaves other elements alone. The
    /// cursor stays.
    void updateReinfMeshes();

  private:
    KzReinfMeshList *list_;
    KzXmlTree *tree_;
};

#endif

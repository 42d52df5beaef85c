#ifndef VARNEL_CONTRACTS_KZREINFMESHLIST_H
#define VARNEL_CONTRACTS_KZREINFMESHLIST_H

#include <string>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/NamedList.h"
#include "varnel/contracts/Users.h"

class KzReinfMeshUser;
class KzReinfStockMesh;

/// The meshes of a project: owned, found by name without a walk, protected by their users. Not copyable.
class VARNEL_EXPORT KzReinfMeshList {
  public:
    KzReinfMeshList();
    KzReinfMeshList(const KzReinfMeshList &) = delete;
    KzReinfMeshList &operator=(const KzReinfMeshList &) = delete;
    /// Deletes the meshes without asking a user.
    ~KzReinfMeshList();

    /// The first mesh of that name, or null.
    KzReinfStockMesh *findMesh(const std::string &name) const;
    const std::vector<KzReinfStockMesh *> &getMeshes() const { return meshes_.items(); }
    /// Takes a mesh over. Null and one that is owned by a list already are ignored.
    void addMesh(KzReinfStockMesh *mesh);
    void add(KzReinfStockMesh *mesh) { addMesh(mesh); }
    /// Deletes the mesh unless a user needs it; true if it is gone. False for one of another list.
    bool remove(KzReinfStockMesh *mesh);
    void addUser(KzReinfMeshUser *user) { users_.add(user); }
    void removeUser(KzReinfMeshUser *user) { users_.remove(user); }

  private:
    varnel::NamedList<KzReinfStockMesh> meshes_;
    varnel::Users<KzReinfMeshUser> users_;
};

#endif

#ifndef VARNEL_CONTRACTS_KZMATERIALMANAGER_H
#define VARNEL_CONTRACTS_KZMATERIALMANAGER_H

#include <string>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/NamedList.h"
#include "varnel/contracts/Users.h"

class KzConcrete;
class KzMaterial;
class KzMaterialReinforcement;
class KzMaterialUser;

/// The materials of a project: owned, found by name without a walk, protected by their users. Not copyable.
class VARNEL_EXPORT KzMaterialManager {
  public:
    explicit KzMaterialManager(const std::string &name);
    KzMaterialManager(const KzMaterialManager &) = delete;
    KzMaterialManager &operator=(const KzMaterialManager &) = delete;

    /// The first material of that name, or null. The second argument of the look-ups has no meaning.
    virtual KzMaterial *findMaterialToName(const std::string &name, int = 0);
    /// The first material of that name if it is a concrete, else null.
    virtual KzConcrete *findConcreteToName(const std::string &name, int = 0);
    /// The first material of that name if it is reinforcement, else null.
    virtual KzMaterialReinforcement *findReinforcementToName(const std::string &name, int = 0);
    /// Deletes the materials without asking a user. Declared behind the look-ups, whose slots come first.
    virtual ~KzMaterialManager();

    const std::string &getName() const { return name_; }
    const std::vector<KzMaterial *> &getMaterials() const { return materials_.items(); }
    /// Takes a material over. Null and one that is owned by a manager already are ignored.
    void add(KzMaterial *material);
    /// Deletes the material unless a user needs it; true if it is gone. False for one of another manager.
    bool remove(KzMaterial *material);
    void addUser(KzMaterialUser *user) { users_.add(user); }
    void removeUser(KzMaterialUser *user) { users_.remove(user); }
    /// Raised by add, remove and each setter of a material.
    bool getChangedFlag() const { return materials_.changed(); }
    void setChangedFlag(bool value) { materials_.setChanged(value); }

  private:
    std::string name_;
    varnel::NamedList<KzMaterial> materials_;
    varnel::Users<KzMaterialUser> users_;
};

#endif

#ifndef VARNEL_CONTRACTS_KZMATERIALHANDLER_H
#define VARNEL_CONTRACTS_KZMATERIALHANDLER_H

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/NamedList.h"

class KzConcrete;
class KzMaterial;
class KzMaterialReinforcement;
class KzPreStressSteel;
class KzReinfSteel;

/// The predefined materials of the process; empty until setDatabase is called. All of them are owned here and
/// shared by all projects, which may live on different threads. Hosts rely on the order of the look-ups:
/// materials are number 0, concretes number 4.
class VARNEL_EXPORT KzMaterialHandler {
  public:
    static KzMaterialHandler *get();
    KzMaterialHandler(const KzMaterialHandler &) = delete;
    KzMaterialHandler &operator=(const KzMaterialHandler &) = delete;

    /// The predefined material of that name, or null. The second argument of the look-ups has no meaning.
    virtual KzMaterial *findMaterialToName(const std::string &name, int = 0);
    virtual KzMaterialReinforcement *findReinforcementToName(const std::string &name, int = 0);
    virtual KzPreStressSteel *findPreStressSteelToName(const std::string &name, int = 0);
    virtual KzReinfSteel *findReinfSteelToName(const std::string &name, int = 0);
    virtual KzConcrete *findConcreteToName(const std::string &name, int = 0);
    virtual ~KzMaterialHandler();

    /// Makes the predefined materials, once. Always true.
    bool setDatabase();
    /// Null for an unknown name. Otherwise the one object of the process for that reinforcement and variant,
    /// so that whoever needs a variant alters no shared material.
    KzMaterialReinforcement *findReinforcementVariant(const std::string &name, int variant);
    const std::vector<KzMaterial *> &getMaterials() const { return materials_.items(); }

  private:
    KzMaterialHandler();
    bool addStock();

    varnel::NamedList<KzMaterial> materials_;
    std::map<std::pair<std::string, int>, std::unique_ptr<KzMaterialReinforcement>> variants_;
};

#endif

#ifndef VARNEL_CONTRACTS_SYSBASE_MANAGER_H
#define VARNEL_CONTRACTS_SYSBASE_MANAGER_H

#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/FirstByKey.h"

namespace Found {
class FoundationManager;
}

namespace SysBase {

class Loadcase;

/// Base of a project's manager: load cases and foundations, which outlive everything that a derived class
/// owns. Cases are found by number and by name without a walk; among several of one number or name the first
/// in the list wins. Not copyable.
class VARNEL_EXPORT Manager {
  public:
    Manager();
    Manager(const Manager &) = delete;
    Manager &operator=(const Manager &) = delete;
    /// Deletes all load cases and the foundations.
    virtual ~Manager();

    /// A new load case of that number, the caller's to add.
    virtual Loadcase *giveLoadcase(int number);
    /// Takes the case out of the list and deletes it if asked; it is no longer the current one then. A case
    /// of no list is only deleted. Null is ignored.
    virtual void removeLoadcase(Loadcase *loadcase, bool destroy);
    /// The case of that number; if absent, null or, with `create`, one made by giveLoadcase and added.
    virtual Loadcase *giveLoadcaseToNumber(int number, bool create);
    /// Makes the case of that number the current one, none for -1 or an unknown number.
    virtual void setCurrentLoadcase(int number);
    /// The case of that name; if absent, one made by giveLoadcase with the highest number + 1 and added.
    virtual Loadcase *giveLoadcaseToName(const std::string &name);
    /// As removeLoadcase here; a derived class also takes the loads of the case away.
    virtual void remove(Loadcase *loadcase, bool destroy);

    /// Appends a case, which is owned from then on. Null and a case that a manager lists already are ignored.
    void add(Loadcase *loadcase);
    const std::list<Loadcase *> &getLoadcases() const { return loadcases_; }
    /// Null without one.
    Loadcase *getCurrentLoadcase() const { return currentLoadcase_; }
    /// Whether a setter altered a listed case, or the flag was set, since it was last cleared.
    bool hasLoadChanged() const { return loadChanged_; }
    void setLoadChanged(bool value);
    /// Bit mask of the support directions that make an edge a wall.
    int getSystemBoundary() const { return systemBoundary_; }
    void setSystemBoundary(int value) { systemBoundary_ = value; }
    /// Owned, never null.
    Found::FoundationManager *getFoundationManager() const { return foundationManager_.get(); }

  protected:
    /// Deletes all load cases; none is current afterwards. Sets no flag.
    void removeAllLoadcases();

  private:
    friend class Loadcase;

    struct Place {
        Loadcase *loadcase;
        std::list<Loadcase *>::iterator position;
    };

    int nextNumber() const;

    std::list<Loadcase *> loadcases_;
    Loadcase *currentLoadcase_ = nullptr;
    bool loadChanged_ = false;
    int systemBoundary_ = 0;
    std::unique_ptr<Found::FoundationManager> foundationManager_;
    std::map<std::pair<int, std::uint64_t>, Place> numbers_;  // by number, then in list order
    varnel::FirstByKey<std::string, Loadcase> names_;
    std::uint64_t lastSequence_ = 0;
};

}  // namespace SysBase

#endif

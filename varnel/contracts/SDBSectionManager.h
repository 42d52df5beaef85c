#ifndef VARNEL_CONTRACTS_SDBSECTIONMANAGER_H
#define VARNEL_CONTRACTS_SDBSECTIONMANAGER_H

#include <memory>
#include <string>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/NamedList.h"
#include "varnel/contracts/Users.h"

class SDBSection;
class SDBSectionUser;

/// The cross-sections of a project: owned, found by name without a walk, protected by their users. Not
/// copyable.
class VARNEL_EXPORT SDBSectionManager {
  public:
    SDBSectionManager();
    SDBSectionManager(const SDBSectionManager &) = delete;
    SDBSectionManager &operator=(const SDBSectionManager &) = delete;
    /// Deletes the sections without asking a user.
    virtual ~SDBSectionManager();

    /// The first section of that name, or null.
    SDBSection *findSectionToName(const std::string &name) const;
    const std::vector<SDBSection *> &getSections() const { return sections_.items(); }
    /// Takes a section over. Null and one that is owned by a manager already are ignored.
    void add(SDBSection *section);
    /// Deletes the section unless a user needs it; true if it is gone. False for one of another manager.
    bool remove(SDBSection *section);
    /// Deletes the sections that no user defined, apart from those that are needed.
    void removeNotUserDefined();
    void addUser(SDBSectionUser *user) { users_.add(user); }
    void removeUser(SDBSectionUser *user) { users_.remove(user); }
    /// Expires with the manager, for those that refer to it and may outlive it.
    std::weak_ptr<const void> lifetime() const { return life_; }

  private:
    varnel::NamedList<SDBSection> sections_;
    varnel::Users<SDBSectionUser> users_;
    std::shared_ptr<const void> life_;
};

#endif

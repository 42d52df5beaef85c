#ifndef VARNEL_CONTRACTS_FOUND_FOUNDATIONMANAGER_H
#define VARNEL_CONTRACTS_FOUND_FOUNDATIONMANAGER_H

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "varnel/contracts/CoordinateHash.h"
#include "varnel/contracts/Export.h"
#include "varnel/contracts/FirstByKey.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/NamedList.h"
#include "varnel/contracts/Users.h"

class KzXmlData;
class KzXmlTree;

namespace Found {

class Foundation;
class FoundationUser;

/// The foundations of a project: owned, found by name, number and value without a walk, protected by their
/// users. Of several that match, the first one wins. Not copyable.
class VARNEL_EXPORT FoundationManager {
  public:
    FoundationManager();
    FoundationManager(const FoundationManager &) = delete;
    FoundationManager &operator=(const FoundationManager &) = delete;
    /// Deletes the foundations without asking a user.
    ~FoundationManager();

    /// Null if there is none.
    Foundation *findFoundation(const std::string &name) const;
    Foundation *findFoundation(int number) const;
    /// The foundation with an equal displacement line. If there is none: null or, with `create`, a new one
    /// with the highest number + 1 and the name "F" and that number.
    Foundation *giveFoundation(const Foundation &wanted, bool create);
    const std::vector<Foundation *> &getFoundations() const { return foundations_.items(); }
    /// Takes a foundation over. Null and one that is owned by a manager already are ignored.
    void add(Foundation *foundation);
    /// Deletes the foundation unless a user needs it; true if it is gone. False for one of another manager.
    bool remove(Foundation *foundation);
    /// Finds or makes one foundation for each FOUNDATION with a NUMBER below the root's FOUNDATIONS.
    void createFromXml(KzXmlData *root);
    /// Brings one FOUNDATION for each number below the root's FOUNDATIONS up to date, drops every other
    /// FOUNDATION and leaves other elements alone. The cursor stays.
    void updateXml(KzXmlTree *tree) const;
    void addUser(FoundationUser *user) { users_.add(user); }
    void removeUser(FoundationUser *user) { users_.remove(user); }

  private:
    friend class Foundation;

    int nextNumber() const;
    void createOneFoundation(const KzXmlData *element);
    void fileLine(Foundation *foundation);
    void dropLine(const Foundation &foundation);

    std::map<std::pair<int, std::uint64_t>, Foundation *> numbers_;  // by number, then in list order
    varnel::FirstByKey<KzVector3D, Foundation, varnel::CoordinateHash> lines_;
    varnel::NamedList<Foundation> foundations_;  // dies before the tables, which dying ones may still ask
    varnel::Users<FoundationUser> users_;
};

}  // namespace Found

#endif

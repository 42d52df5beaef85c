#ifndef VARNEL_CONTRACTS_USERS_H
#define VARNEL_CONTRACTS_USERS_H

#include <algorithm>
#include <cstddef>
#include <vector>

namespace varnel {

/// Those that a resource manager asks before it gives a resource up. They are shared: each leaves the list
/// before it dies, or outlives the manager.
template <class User>
class Users {
  public:
    /// Null and a user that is listed already are ignored.
    void add(User *user) {
        if (user && std::find(users_.begin(), users_.end(), user) == users_.end()) users_.push_back(user);
    }
    void remove(User *user) { users_.erase(std::remove(users_.begin(), users_.end(), user), users_.end()); }
    /// Whether one of them uses the resource.
    template <class Resource>
    bool use(const Resource *resource) const {
        for (std::size_t i = 0; i < users_.size(); ++i)  // a user may register another one meanwhile
            if (users_[i]->checkUsed(resource)) return true;
        return false;
    }

  private:
    std::vector<User *> users_;
};

}  // namespace varnel

#endif

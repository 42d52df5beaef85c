#ifndef VARNEL_MODEL_FREENAMES_H
#define VARNEL_MODEL_FREENAMES_H

#include <string>
#include <unordered_set>
#include <utility>

namespace varnel {

/// Finds the lowest number from 1 that makes a free name behind a prefix. Only names of the form prefix and
/// number, as the proposals have it, stand in the way.
class FreeNames {
  public:
    explicit FreeNames(std::string prefix) : prefix_(std::move(prefix)) {}

    /// Takes note of a name that is in use.
    void use(const std::string &name);
    /// The same for the names of all objects of a list.
    template <class List>
    void useAll(const List &list) {
        for (const auto *object : list)
            if (object) use(object->getName());
    }
    /// The first free name. The search goes on where it ended, since names in use stay in use.
    std::string next();

  private:
    std::string prefix_;
    std::unordered_set<int> used_;
    int lowest_ = 1;
};

}  // namespace varnel

#endif

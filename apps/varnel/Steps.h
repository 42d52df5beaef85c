#ifndef VARNEL_APPS_VARNEL_STEPS_H
#define VARNEL_APPS_VARNEL_STEPS_H

#include <string>
#include <unordered_map>

#include "varnel/contracts/KzXmlData.h"

namespace varnel::tool {

/// The last steps of the places (XPath) of a list's children: the name, with an index where there are
/// several.
class Steps {
  public:
    explicit Steps(const KzXmlData &list) {
        for (const KzXmlData *child : list.getChildren()) ++totals_[child->getName()];
    }

    /// Asked of one child after the other.
    std::string next(const KzXmlData &child) {
        const std::string &name = child.getName();
        if (totals_[name] == 1) return "/" + name;
        return "/" + name + "[" + std::to_string(++counts_[name]) + "]";
    }

  private:
    std::unordered_map<std::string, int> totals_;
    std::unordered_map<std::string, int> counts_;
};

}  // namespace varnel::tool

#endif

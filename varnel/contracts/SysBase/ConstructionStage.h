#ifndef VARNEL_CONTRACTS_SYSBASE_CONSTRUCTIONSTAGE_H
#define VARNEL_CONTRACTS_SYSBASE_CONSTRUCTIONSTAGE_H

#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KeyIndex.h"

namespace SysBase {

/// A step of a staged analysis: number (0 at first) and name.
class VARNEL_EXPORT ConstructionStage {
  public:
    ConstructionStage() = default;
    ConstructionStage(const ConstructionStage &) = default;
    ConstructionStage &operator=(const ConstructionStage &) = default;
    virtual ~ConstructionStage() = default;

    int getNumber() const { return number_.get(); }
    void setNumber(int number) { number_.set(number); }
    /// For the list that finds this stage by its number.
    const varnel::IndexedKey<int> &indexedNumber() const { return number_; }
    const std::string &getName() const { return name_; }
    void setName(const std::string &name) { name_ = name; }

  private:
    varnel::IndexedKey<int> number_;
    std::string name_;
};

}  // namespace SysBase

#endif

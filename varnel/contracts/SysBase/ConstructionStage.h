#ifndef VARNEL_CONTRACTS_SYSBASE_CONSTRUCTIONSTAGE_H
#define VARNEL_CONTRACTS_SYSBASE_CONSTRUCTIONSTAGE_H

#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"

namespace SysBase {

/// A step of a staged analysis: number (0 at first) and name.
class VARNEL_EXPORT ConstructionStage : public varnel::Shared {
  public:
    ConstructionStage() = default;
    ConstructionStage(const ConstructionStage &) = default;
    ConstructionStage &operator=(const ConstructionStage &) = default;
    virtual ~ConstructionStage() = default;

    int getNumber() const { return number_; }
    void setNumber(int number) { number_ = number; }
    const std::string &getName() const { return name_; }
    void setName(const std::string &name) { name_ = name; }

  private:
    int number_ = 0;
    std::string name_;
};

}  // namespace SysBase

#endif

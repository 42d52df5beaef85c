#ifndef VARNEL_LOADS_VARNELLOADDATA_H
#define VARNEL_LOADS_VARNELLOADDATA_H

#include <string>

#include "varnel/contracts/Export.h"

namespace SysBase {
class Loadcase;
}

/// What every load record holds: a name, a type and the load case. A plain value that can be copied, added
/// to another record and handed around without a load; the load case is shared and lives above the model.
class VARNEL_EXPORT VarnelLoadData {
  public:
    /// Axes that the components of a line or area load follow: its local base or, for any other value, the
    /// global axes.
    enum loadType : int { GlobalLoad = 0, LocalLoad = 1 };

    const std::string &getName() const { return name_; }
    void setName(const std::string &name) { name_ = name; }

    loadType getType() const { return type_; }
    void setType(loadType type) { type_ = type; }
    void setType(int type) { type_ = static_cast<loadType>(type); }

    /// The load case, shared; null for none.
    SysBase::Loadcase *getLoadcase() const { return loadcase_; }
    void setLoadcase(SysBase::Loadcase *loadcase) { loadcase_ = loadcase; }

  private:
    std::string name_;
    loadType type_ = GlobalLoad;
    SysBase::Loadcase *loadcase_ = nullptr;
};

#endif

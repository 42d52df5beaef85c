#include "varnel/contracts/SysBase/Loadcase.h"

#include "varnel/contracts/SysBase/Manager.h"

namespace SysBase {

Loadcase::Loadcase(const Loadcase &other)
    : number_(other.number_),
      name_(other.name_),
      type_(other.type_),
      ownWeight_(other.ownWeight_),
      primary_(other.primary_),
      calculateEigen_(other.calculateEigen_),
      flag_(other.flag_),
      changed_(other.changed_) {}

int Loadcase::operator==(const Loadcase &other) const {
    const bool equal = number_ == other.number_ && name_ == other.name_ && type_ == other.type_ &&
                       ownWeight_ == other.ownWeight_ && primary_ == other.primary_ &&
                       calculateEigen_ == other.calculateEigen_;
    return equal ? 1 : 0;
}

void Loadcase::setName(const std::string &name) {
    if (name == name_) return;
    if (manager_) manager_->names_.rename(name_, sequence_, name);
    name_ = name;
    markChanged();
}

void Loadcase::markChanged() {
    changed_ = true;
    if (manager_) manager_->loadChanged_ = true;
}

}  // namespace SysBase

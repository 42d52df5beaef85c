#ifndef VARNEL_CONTRACTS_SYSBASE_LOADCASE_H
#define VARNEL_CONTRACTS_SYSBASE_LOADCASE_H

#include <cstdint>
#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/SysBase/LoadcaseData.h"

namespace SysBase {

class Manager;

/// A load case. Its number is fixed, so that the manager can find it by number without a walk; loads refer to
/// it by pointer. Setters raise the load-change flag of the manager that lists the case when the value
/// differs; the automation's mark (setFlag) does not.
class VARNEL_EXPORT Loadcase {
  public:
    explicit Loadcase(int number) : number_(number) {}
    /// The copy has the same properties and is in no list.
    Loadcase(const Loadcase &other);
    Loadcase &operator=(const Loadcase &) = delete;
    virtual ~Loadcase() = default;
    /// 1 if number and all properties but the automation's mark agree, else 0.
    virtual int operator==(const Loadcase &other) const;

    int getNumber() const { return number_; }
    const std::string &getName() const { return name_; }
    void setName(const std::string &name);
    LoadcaseData::Type getType() const { return type_; }
    void setType(LoadcaseData::Type type) { assign(type_, type); }
    void setType(int type) { setType(static_cast<LoadcaseData::Type>(type)); }
    /// Whether the own weight of the structure acts in this case.
    bool isOwnWeight() const { return ownWeight_; }
    void setOwnWeight(bool value) { assign(ownWeight_, value); }
    bool isPrimary() const { return primary_; }
    void setPrimary(bool value) { assign(primary_, value); }
    /// Whether eigenvalues are wanted for this case.
    bool doCalculateEigen() const { return calculateEigen_; }
    void enableCalculateEigen(bool value) { assign(calculateEigen_, value); }
    /// The automation's mark: 1 no load uses the case, 0 it is in use.
    int getFlag() const { return flag_; }
    void setFlag(int flag) { flag_ = flag; }

  private:
    friend class Manager;

    template <class Value>
    void assign(Value &field, Value value) {
        if (field == value) return;
        field = value;
        markChanged();
    }
    void markChanged();

    int number_;
    std::string name_;
    LoadcaseData::Type type_ = LoadcaseData::DEAD;
    bool ownWeight_ = false;
    bool primary_ = true;
    bool calculateEigen_ = false;
    int flag_ = 1;
    bool changed_ = false;
    Manager *manager_ = nullptr;  // the one that lists the case
    std::uint64_t sequence_ = 0;  // rises along that list
};

}  // namespace SysBase

#endif

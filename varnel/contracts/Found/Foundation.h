#ifndef VARNEL_CONTRACTS_FOUND_FOUNDATION_H
#define VARNEL_CONTRACTS_FOUND_FOUNDATION_H

#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/NamedList.h"

namespace Found {

class FoundationManager;

/// The bedding of a member: a displacement line, three stiffnesses. Its number is fixed. Born changed;
/// setters raise the flag when the value differs.
class VARNEL_EXPORT Foundation {
  public:
    /// Without number (0) and name, to look for the managed one that is equal.
    explicit Foundation(const KzVector3D &dispLine) : Foundation(0, std::string(), dispLine) {}
    Foundation(int number, const std::string &name, const KzVector3D &dispLine)
        : number_(number), name_(name), dispLine_(dispLine) {}
    /// The copy belongs to no manager.
    Foundation(const Foundation &other);
    Foundation &operator=(const Foundation &) = delete;
    virtual ~Foundation() = default;
    /// Equal displacement lines, exactly.
    bool operator==(const Foundation &other) const { return dispLine_ == other.dispLine_; }
    bool operator!=(const Foundation &other) const { return !(*this == other); }

    /// Assigns the displacement line; always true.
    bool getDispLine(KzVector3D &dispLine) const;
    void setDispLine(const KzVector3D &dispLine);
    const std::string &getName() const { return name_.get(); }
    void setName(const std::string &name);
    int getNumber() const { return number_; }
    bool getChanged() const { return changed_; }
    void setChanged(bool value) { changed_ = value; }

  private:
    friend class FoundationManager;
    friend class varnel::NamedList<Foundation>;

    int number_;
    varnel::ListedName<Foundation> name_;
    KzVector3D dispLine_;
    bool changed_ = true;
    FoundationManager *manager_ = nullptr;  // the one that owns this foundation
};

}  // namespace Found

#endif

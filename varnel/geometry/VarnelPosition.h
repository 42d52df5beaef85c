#ifndef VARNEL_GEOMETRY_VARNELPOSITION_H
#define VARNEL_GEOMETRY_VARNELPOSITION_H

#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KeyIndex.h"

/// Base of everything that has a number and a name. Numbers are given by the numbering of a model and
/// copied with the object; where the name is kept is each class's own affair.
class VARNEL_EXPORT VarnelPosition {
  public:
    VarnelPosition(const VarnelPosition &) = default;
    VarnelPosition &operator=(const VarnelPosition &) = default;
    virtual ~VarnelPosition() = default;

    int getNumber() const noexcept { return number_.get(); }
    /// Sets no change flag.
    void setNumber(int number) noexcept { number_.set(number); }
    /// For the list that finds this object by its number.
    const varnel::IndexedKey<int> &indexedNumber() const { return number_; }

    virtual void setName(const std::string &name) = 0;
    virtual const std::string &getName() const = 0;

  protected:
    VarnelPosition() noexcept = default;

  private:
    varnel::IndexedKey<int> number_;
};

#endif

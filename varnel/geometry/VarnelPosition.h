#ifndef VARNEL_GEOMETRY_VARNELPOSITION_H
#define VARNEL_GEOMETRY_VARNELPOSITION_H

#include <cstdint>
#include <string>

#include "varnel/contracts/Export.h"

namespace varnel {
class NumberIndex;
}

/// Base of everything that has a number and a name. Numbers are given by the numbering of a model and
/// copied with the object; where the name is kept is each class's own affair.
class VARNEL_EXPORT VarnelPosition {
  public:
    VarnelPosition(const VarnelPosition &other) noexcept : number_(other.number_) {}
    VarnelPosition &operator=(const VarnelPosition &other) noexcept {
        setNumber(other.number_);
        return *this;
    }
    virtual ~VarnelPosition() {
        if (index_) leaveIndex();
    }

    int getNumber() const noexcept { return number_; }
    /// Sets no change flag.
    void setNumber(int number) noexcept {
        if (index_) refile(number);
        number_ = number;
    }

    virtual void setName(const std::string &name) = 0;
    virtual const std::string &getName() const = 0;

  protected:
    VarnelPosition() noexcept = default;

  private:
    friend class varnel::NumberIndex;

    void leaveIndex() noexcept;
    void refile(int number) noexcept;

    int number_ = 0;
    // The index that finds this very object by its number, if any: no copy takes that over.
    mutable std::uint32_t place_ = 0;
    mutable varnel::NumberIndex *index_ = nullptr;
};

#endif

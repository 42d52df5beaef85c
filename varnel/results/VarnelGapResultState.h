#ifndef VARNEL_RESULTS_VARNELGAPRESULTSTATE_H
#define VARNEL_RESULTS_VARNELGAPRESULTSTATE_H

#include <list>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"

namespace SysBase {
class InterfaceStressLocation;
}

/// Stresses in a gap in one state. Copies share the locations, which are owned by all of them together.
class VARNEL_EXPORT VarnelGapResultState : public varnel::Shared {
  public:
    explicit VarnelGapResultState(int number) : number_(number) {}
    VarnelGapResultState(const VarnelGapResultState &other);
    VarnelGapResultState &operator=(const VarnelGapResultState &other);
    ~VarnelGapResultState();

    int getNumber() const { return number_; }
    void setNumber(int number) { number_ = number; }

    /// Locations in the order in which they were added.
    const std::list<SysBase::InterfaceStressLocation *> &getStressLocations() const {
        return stressLocations_;
    }
    /// Appends a location, which is owned from then on. Null is ignored.
    void add(SysBase::InterfaceStressLocation *location);
    /// Gives up all locations; those that a copy shares live on there.
    void removeStressLocations();

  private:
    int number_;
    std::list<SysBase::InterfaceStressLocation *> stressLocations_;
};

#endif

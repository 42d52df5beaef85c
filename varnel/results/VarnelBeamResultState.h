#ifndef VARNEL_RESULTS_VARNELBEAMRESULTSTATE_H
#define VARNEL_RESULTS_VARNELBEAMRESULTSTATE_H

#include <list>

#include "varnel/contracts/Export.h"

class KzBeamStressResultantsLocation;
class VarnelBeamDisplacementLocation;

/// Results of a beam in one state, for the host's use: beams keep records of their own. Copies share the
/// locations, which are owned by all of them together.
class VARNEL_EXPORT VarnelBeamResultState {
  public:
    VarnelBeamResultState() = default;
    VarnelBeamResultState(int number, bool th2) : th2_(th2), number_(number) {}
    VarnelBeamResultState(const VarnelBeamResultState &other);
    VarnelBeamResultState &operator=(const VarnelBeamResultState &other);
    virtual ~VarnelBeamResultState();

    /// Whether the state comes from a second-order calculation.
    bool getTh2() const { return th2_; }
    void setTh2(bool th2) { th2_ = th2; }
    int getNumber() const { return number_; }
    void setNumber(int number) { number_ = number; }

    /// Locations in the order in which they were added.
    const std::list<VarnelBeamDisplacementLocation *> &getDisplacementLocations() const {
        return displacementLocations_;
    }
    const std::list<KzBeamStressResultantsLocation *> &getStressLocations() const { return stressLocations_; }
    /// Appends a location, which is owned from then on. Null is ignored.
    void add(VarnelBeamDisplacementLocation *location);
    void add(KzBeamStressResultantsLocation *location);

  private:
    bool th2_ = false;
    int number_ = 0;
    std::list<VarnelBeamDisplacementLocation *> displacementLocations_;
    std::list<KzBeamStressResultantsLocation *> stressLocations_;
};

#endif

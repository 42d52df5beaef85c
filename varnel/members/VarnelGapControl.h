#ifndef VARNEL_MEMBERS_VARNELGAPCONTROL_H
#define VARNEL_MEMBERS_VARNELGAPCONTROL_H

#include <list>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"

class VarnelGapResultState;

/// Width and results of a gap: of a line of the model or of one end of a beam. Copies share the result
/// states, which live until the last of them lets go.
class VARNEL_EXPORT VarnelGapControl : public varnel::Shared {
  public:
    VarnelGapControl();
    /// Takes the width and shares the states.
    VarnelGapControl(const VarnelGapControl &other);
    VarnelGapControl &operator=(const VarnelGapControl &other);
    ~VarnelGapControl();

    /// Width (m).
    double getThick() const { return thick_; }
    void setThick(double thick) { thick_ = thick; }

    /// Result states, owned together with the copies of this record, in the order of their creation.
    const std::list<VarnelGapResultState *> &getResultStates() const { return resultStates_; }
    /// The first state of that number; made if absent.
    VarnelGapResultState *giveResultState(int number);
    /// The first state of that number, or null.
    VarnelGapResultState *findResultState(int number) const;
    void removeResults();

  private:
    double thick_ = 0.01;
    std::list<VarnelGapResultState *> resultStates_;
};

#endif

#ifndef VARNEL_STAGES_STATEWATCH_H
#define VARNEL_STAGES_STATEWATCH_H

#include "varnel/contracts/Shared.h"

namespace varnel {

/// Told by states when they come to stand for another object, so that the stages that list them know their
/// tables to be out of date. Owned together by stages that share states and by those states.
class StateWatch : public Shared {
  public:
    void objectReplaced() noexcept { ++replacements_; }
    unsigned long replacements() const noexcept { return replacements_; }

  private:
    unsigned long replacements_ = 0;
};

}  // namespace varnel

#endif

#ifndef VARNEL_CONTRACTS_SYSBASE_BEAMRESULTSTATE_H
#define VARNEL_CONTRACTS_SYSBASE_BEAMRESULTSTATE_H

#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"

namespace SysBase {

class BeamDeformationsLocation;
class BeamStressResultantsLocation;

/// The results of a beam in one state, which bears the number of its load case. Not copyable.
class VARNEL_EXPORT BeamResultState : public varnel::Shared {
  public:
    explicit BeamResultState(int number) : stateNumber_(number) {}
    BeamResultState(const BeamResultState &) = delete;
    BeamResultState &operator=(const BeamResultState &) = delete;
    virtual ~BeamResultState();

    int getStateNumber() const { return stateNumber_; }
    const std::vector<BeamStressResultantsLocation *> &getStressResultantsLocations() const {
        return stressResultantsLocations_;
    }
    const std::vector<BeamDeformationsLocation *> &getDeformationsLocations() const {
        return deformationsLocations_;
    }
    /// Appends a record, which is owned from then on. Null is ignored.
    void add(BeamStressResultantsLocation *location);
    void add(BeamDeformationsLocation *location);

  private:
    int stateNumber_;
    std::vector<BeamStressResultantsLocation *> stressResultantsLocations_;
    std::vector<BeamDeformationsLocation *> deformationsLocations_;
};

}  // namespace SysBase

#endif

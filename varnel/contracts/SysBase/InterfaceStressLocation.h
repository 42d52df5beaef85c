#ifndef VARNEL_CONTRACTS_SYSBASE_INTERFACESTRESSLOCATION_H
#define VARNEL_CONTRACTS_SYSBASE_INTERFACESTRESSLOCATION_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"

namespace SysBase {

/// The stress at one place of the interface at a beam's end, in kN/m2.
class VARNEL_EXPORT InterfaceStressLocation : public varnel::Shared {
  public:
    InterfaceStressLocation() = default;
    InterfaceStressLocation(const KzVector3D &position, double stress)
        : position_(position), stress_(stress) {}
    InterfaceStressLocation(const InterfaceStressLocation &) = default;
    InterfaceStressLocation &operator=(const InterfaceStressLocation &) = default;
    virtual ~InterfaceStressLocation() = default;

    const KzVector3D &getPosition() const { return position_; }
    double getStress() const { return stress_; }

  private:
    KzVector3D position_;
    double stress_ = 0.0;
};

}  // namespace SysBase

#endif

#ifndef VARNEL_LOADS_VARNELAREALOADDATA_H
#define VARNEL_LOADS_VARNELAREALOADDATA_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/loads/VarnelLoadData.h"

/// The values of an area load: the load per area (kN/m2) and how it passes to the structure.
class VARNEL_EXPORT VarnelAreaLoadData : public VarnelLoadData {
  public:
    /// The kinds are the host's; the library stores their numbers.
    enum TransmissionType : int { DefaultTransmission = 0 };

    /// The load per area; a new record has (0, 0, 1), so it is not null.
    KzVector3D getP() const { return p_; }
    void getP(double &x, double &y, double &z) const { p_.getXYZ(x, y, z); }
    void setP(const KzVector3D &p) { p_ = p; }
    void setP(double x, double y, double z) { p_.setXYZ(x, y, z); }

    TransmissionType getTransmissionType() const { return transmissionType_; }
    void setTransmissionType(TransmissionType type) { transmissionType_ = type; }
    void setTransmissionType(int type) { transmissionType_ = static_cast<TransmissionType>(type); }

    bool isNull() const { return p_.isNull(); }
    /// Adds the load per area; all else stays.
    VarnelAreaLoadData &operator+=(const VarnelAreaLoadData &other) {
        p_ += other.p_;
        return *this;
    }

  private:
    KzVector3D p_{0.0, 0.0, 1.0};
    TransmissionType transmissionType_ = DefaultTransmission;
};

#endif

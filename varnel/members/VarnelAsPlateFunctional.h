#ifndef VARNEL_MEMBERS_VARNELASPLATEFUNCTIONAL_H
#define VARNEL_MEMBERS_VARNELASPLATEFUNCTIONAL_H

#include "varnel/contracts/KzVector3D.h"
#include "varnel/members/VarnelAsFunctional.h"

/// The reinforcement result at one position of a plate, as the host's designer fills it. A host derives from
/// it or copies one.
class VARNEL_EXPORT VarnelAsPlateFunctional : public VarnelAsFunctional {
  public:
    /// The host's values.
    enum ResultIndex : int {};
    enum AsLoopMode : int {};

    /// Reinforcement along x and y, and of shear (cm2/m).
    double getAsX() const { return asX_; }
    void setAsX(double value) { asX_ = value; }
    double getAsY() const { return asY_; }
    void setAsY(double value) { asY_ = value; }
    double getAsW() const { return asW_; }
    void setAsW(double value) { asW_ = value; }
    bool isShearCapacityExceeded() const { return shearCapacityExceeded_; }
    void setShearCapacityExceeded(bool value) { shearCapacityExceeded_ = value; }
    double getDeltaAsj() const { return deltaAsj_; }
    void setDeltaAsj(double value) { deltaAsj_ = value; }
    /// Directions of the reinforcement in degrees.
    double getAngleX() const { return angleX_; }
    void setAngleX(double value) { angleX_ = value; }
    double getAngleY() const { return angleY_; }
    void setAngleY(double value) { angleY_ = value; }
    ResultIndex getResultIndex() const { return resultIndex_; }
    void setResultIndex(ResultIndex index) { resultIndex_ = index; }
    void setResultIndex(int index) { resultIndex_ = static_cast<ResultIndex>(index); }
    bool getRespectBasicReinforcement() const { return respectBasicReinforcement_; }
    void setRespectBasicReinforcement(bool value) { respectBasicReinforcement_ = value; }
    AsLoopMode getAsLoopMode() const { return asLoopMode_; }
    void setAsLoopMode(AsLoopMode mode) { asLoopMode_ = mode; }
    void setAsLoopMode(int mode) { asLoopMode_ = static_cast<AsLoopMode>(mode); }
    /// What decided the reinforcement of each direction: minimum, maximum, compression, punching.
    bool getAsXIsMin() const { return asXIsMin_; }
    void setAsXIsMin(bool value) { asXIsMin_ = value; }
    bool getAsYIsMin() const { return asYIsMin_; }
    void setAsYIsMin(bool value) { asYIsMin_ = value; }
    bool getAsXIsMax() const { return asXIsMax_; }
    void setAsXIsMax(bool value) { asXIsMax_ = value; }
    bool getAsYIsMax() const { return asYIsMax_; }
    void setAsYIsMax(bool value) { asYIsMax_ = value; }
    bool getAsXIsPres() const { return asXIsPres_; }
    void setAsXIsPres(bool value) { asXIsPres_ = value; }
    bool getAsYIsPres() const { return asYIsPres_; }
    void setAsYIsPres(bool value) { asYIsPres_ = value; }
    bool getAsXIsPunch() const { return asXIsPunch_; }
    void setAsXIsPunch(bool value) { asXIsPunch_ = value; }
    bool getAsYIsPunch() const { return asYIsPunch_; }
    void setAsYIsPunch(bool value) { asYIsPunch_ = value; }
    const KzVector3D &getPosition() const { return position_; }
    void setPosition(const KzVector3D &position) { position_ = position; }
    void setPosition(double x, double y, double z) { position_ = KzVector3D(x, y, z); }

  protected:
    VarnelAsPlateFunctional() = default;

  private:
    double asX_ = 0.0;
    double asY_ = 0.0;
    double asW_ = 0.0;
    bool shearCapacityExceeded_ = false;
    double deltaAsj_ = 0.0;
    double angleX_ = 0.0;
    double angleY_ = 90.0;
    ResultIndex resultIndex_ = static_cast<ResultIndex>(0);
    bool respectBasicReinforcement_ = false;
    AsLoopMode asLoopMode_ = static_cast<AsLoopMode>(0);
    bool asXIsMin_ = false;
    bool asYIsMin_ = false;
    bool asXIsMax_ = false;
    bool asYIsMax_ = false;
    bool asXIsPres_ = false;
    bool asYIsPres_ = false;
    bool asXIsPunch_ = false;
    bool asYIsPunch_ = false;
    KzVector3D position_;
};

#endif

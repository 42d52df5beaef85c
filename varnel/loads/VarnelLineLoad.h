#ifndef VARNEL_LOADS_VARNELLINELOAD_H
#define VARNEL_LOADS_VARNELLINELOAD_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelStateObject.h"
#include "varnel/loads/VarnelLineLoadData.h"
#include "varnel/loads/VarnelLoad.h"

/// A load along one line, with force and moment at each end. A line that is missing is harmless: the load
/// then stands nowhere.
class VARNEL_EXPORT VarnelLineLoad : public VarnelLoad, public VarnelStateObject {
  public:
    /// The kinds of local system are the host's; the library stores their numbers.
    enum locsysType : int { DefaultLocsys = 0 };

    /// Takes over the line. A new line load is changed, unlike other loads.
    explicit VarnelLineLoad(VarnelLine *line);
    /// Has a clone of the source's line. The type of the local system is meant to be lost: copies start at 0.
    VarnelLineLoad(const VarnelLineLoad &other);
    /// Assigns the source's line to this load's line, which must be of the same kind: otherwise throws
    /// std::bad_cast before anything is changed. A missing line here becomes a clone; one missing in the
    /// source leaves this load's line.
    VarnelLineLoad &operator=(const VarnelLineLoad &other);

    const VarnelLineLoadData &getData() const { return data_; }
    VarnelLineLoadData &getData() { return data_; }
    /// Assigns the record. Meant to mark no change, as all setters of the record's values here.
    void setData(const VarnelLineLoadData &data) { data_ = data; }

    /// The line, owned; may be null.
    VarnelLine *getLine() const { return line_.get(); }
    VarnelLine *getGeo() const { return line_.get(); }

    /// Direction that fixes the local system about the line; setting it marks the load as changed.
    KzVector3D getLocsys() const { return locsys_; }
    void getLocsys(double &x, double &y, double &z) const { locsys_.getXYZ(x, y, z); }
    void setLocsys(const KzVector3D &locsys);
    void setLocsys(double x, double y, double z) { setLocsys(KzVector3D(x, y, z)); }
    locsysType getLocsysType() const { return locsysType_; }
    void setLocsysType(locsysType type) { locsysType_ = type; }
    void setLocsysType(int type) { locsysType_ = static_cast<locsysType>(type); }

    /// The record's force and moment at the start (1) and the end (2); setting them marks no change.
    KzVector3D getP1() const { return data_.getP1(); }
    void getP1(double &x, double &y, double &z) const { data_.getP1(x, y, z); }
    void setP1(const KzVector3D &force) { data_.setP1(force); }
    void setP1(double x, double y, double z) { data_.setP1(x, y, z); }
    KzVector3D getP2() const { return data_.getP2(); }
    void getP2(double &x, double &y, double &z) const { data_.getP2(x, y, z); }
    void setP2(const KzVector3D &force) { data_.setP2(force); }
    void setP2(double x, double y, double z) { data_.setP2(x, y, z); }
    KzVector3D getM1() const { return data_.getM1(); }
    void getM1(double &x, double &y, double &z) const { data_.getM1(x, y, z); }
    void setM1(const KzVector3D &moment) { data_.setM1(moment); }
    void setM1(double x, double y, double z) { data_.setM1(x, y, z); }
    KzVector3D getM2() const { return data_.getM2(); }
    void getM2(double &x, double &y, double &z) const { data_.getM2(x, y, z); }
    void setM2(const KzVector3D &moment) { data_.setM2(moment); }
    void setM2(double x, double y, double z) { data_.setM2(x, y, z); }

    /// Axes of the record's vectors: the line's base about locsys for a local record, else the identity.
    KzMatrix44 getBase() const;

    int getVisited(VarnelObjectVisitor *visitor) override;
    /// As the line answers; false without a line.
    bool isInPlane(const KzMatrix44 &plane) const override;
    bool touchesPlane(const KzMatrix44 &plane) const override;
    /// The middle of the chord: meant for arcs, too.
    KzVector3D getCOG() override;

  private:
    VarnelLoadData *getBaseData() override { return &data_; }

  public:
    bool isNull() override { return data_.isNull(); }

  private:
    KzVector3D locsys_{0.0, 0.0, 1.0};
    locsysType locsysType_ = DefaultLocsys;
    varnel::Held<VarnelLine> line_;
    VarnelLineLoadData data_;
};

#endif

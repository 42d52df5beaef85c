#ifndef VARNEL_LOADS_VARNELBEAMLOAD_H
#define VARNEL_LOADS_VARNELBEAMLOAD_H

#include <memory>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Link.h"
#include "varnel/loads/VarnelBeamLoadData.h"
#include "varnel/loads/VarnelLoad.h"

class VarnelBeam;
class VarnelBeamGeo;

/// A load on a beam. The beam is shared: it belongs to a model and outlives the load, except that a copied
/// load has a clone of its source's beam, which it owns.
class VARNEL_EXPORT VarnelBeamLoad : public VarnelLoad {
  public:
    VarnelBeamLoad();
    /// Has a clone of the source's beam, if there is one.
    VarnelBeamLoad(const VarnelBeamLoad &other);
    /// Without a beam in the source, this load's beam is forgotten (a clone of its own dies); with one, this
    /// load's beam stays or, if it has none, becomes a clone. The record is assigned in any case.
    VarnelBeamLoad &operator=(const VarnelBeamLoad &other);
    ~VarnelBeamLoad() override;

    const VarnelBeamLoadData &getData() const { return data_; }
    VarnelBeamLoadData &getData() { return data_; }
    /// Assigns the record and marks load and beam as changed.
    void setData(const VarnelBeamLoadData &data);

    /// Shared; null without one, and when the beam has died.
    VarnelBeam *getBeam() const { return beam_.get(); }
    /// Stores a beam (shared; null: none) and marks the load as changed. A clone that this load owns lives
    /// on until the load dies or makes another.
    void setBeam(VarnelBeam *beam);
    /// The axis of the beam; null without a beam.
    VarnelBeamGeo *getGeo() const;

    /// The record's vectors; setting one marks load and beam as changed.
    KzVector3D getForce() const { return data_.getForce(); }
    void getForce(double &x, double &y, double &z) const { data_.getForce(x, y, z); }
    void setForce(const KzVector3D &force);
    void setForce(double x, double y, double z) { setForce(KzVector3D(x, y, z)); }
    KzVector3D getMoment() const { return data_.getMoment(); }
    void getMoment(double &x, double &y, double &z) const { data_.getMoment(x, y, z); }
    void setMoment(const KzVector3D &moment);
    void setMoment(double x, double y, double z) { setMoment(KzVector3D(x, y, z)); }

    int getVisited(VarnelObjectVisitor *visitor) override;
    /// As the beam answers; false without a beam.
    bool isInPlane(const KzMatrix44 &plane) const override;
    bool touchesPlane(const KzMatrix44 &plane) const override;
    /// Whether the load or its beam is changed.
    bool getChanged() const override;
    /// Stores the flag and passes it to the beam: meant, so that a changed load is calculated with its beam.
    void setChanged(bool changed) override;
    KzVector3D getCOG() override;

  private:
    VarnelLoadData *getBaseData() override { return &data_; }

  public:
    bool isNull() override { return data_.isNull(); }

  private:
    varnel::Link<VarnelBeam> beam_;
    VarnelBeamLoadData data_;
    std::unique_ptr<VarnelBeam> clonedBeam_;  // the one beam that this load may free
};

#endif

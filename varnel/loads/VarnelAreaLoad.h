#ifndef VARNEL_LOADS_VARNELAREALOAD_H
#define VARNEL_LOADS_VARNELAREALOAD_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/loads/VarnelAreaLoadData.h"
#include "varnel/loads/VarnelLoad.h"

class VarnelArea;

/// A load on an area. The outline is owned unless setOwnsArea(false) says that it is shared, as a plate's
/// own loads share the outline of their plate. A missing outline is harmless.
class VARNEL_EXPORT VarnelAreaLoad : public VarnelLoad {
  public:
    VarnelAreaLoad();
    /// Has a copy of the source's outline, which it owns.
    VarnelAreaLoad(const VarnelAreaLoad &other);
    /// Without an outline in the source, this load's outline goes (it is freed only if owned); with one,
    /// this load's outline stays or, if it has none, becomes an owned copy. The record is assigned.
    VarnelAreaLoad &operator=(const VarnelAreaLoad &other);
    ~VarnelAreaLoad() override;

    const VarnelAreaLoadData &getData() const { return data_; }
    VarnelAreaLoadData &getData() { return data_; }
    /// Assigns the record. Meant to mark no change.
    void setData(const VarnelAreaLoadData &data) { data_ = data; }

    /// The outline; null for a load of the whole plate.
    VarnelArea *getArea() const { return area_; }
    VarnelArea *getGeo() const { return area_; }
    /// Stores an outline and marks the load as changed. The former outline is not deleted: it is the
    /// caller's from then on.
    void setArea(VarnelArea *area);
    /// Whether the outline, present or to come, dies with the load; born true, marks no change. An outline
    /// that is not owned is never freed, only forgotten.
    bool getOwnsArea() const { return ownsArea_; }
    void setOwnsArea(bool ownsArea);

    /// The record's load per area; setting it marks no change.
    KzVector3D getP() const { return data_.getP(); }
    void getP(double &x, double &y, double &z) const { data_.getP(x, y, z); }
    void setP(const KzVector3D &p) { data_.setP(p); }
    void setP(double x, double y, double z) { data_.setP(x, y, z); }

    /// Axes of the load: the outline's base for a local record, else the identity.
    KzMatrix44 getBase() const;

    int getVisited(VarnelObjectVisitor *visitor) override;
    /// As the outline answers; false without an outline.
    bool isInPlane(const KzMatrix44 &plane) const override;
    bool touchesPlane(const KzMatrix44 &plane) const override;
    KzVector3D getCOG() override;

  private:
    VarnelLoadData *getBaseData() override { return &data_; }

  public:
    bool isNull() override { return data_.isNull(); }

  private:
    void dropArea();

    bool ownsArea_ = true;
    VarnelAreaLoadData data_;
    VarnelArea *area_ = nullptr;  // counted as owner only while ownsArea_ holds
};

#endif

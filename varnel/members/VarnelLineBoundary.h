#ifndef VARNEL_MEMBERS_VARNELLINEBOUNDARY_H
#define VARNEL_MEMBERS_VARNELLINEBOUNDARY_H

#include <string>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelObject.h"
#include "varnel/members/VarnelLineBoundaryData.h"

/// A free line support: a wall or a downstand along a line of its own. The line may be null, which every
/// operation takes as no place at all.
class VARNEL_EXPORT VarnelLineBoundary : public VarnelObject {
  public:
    /// Takes the line over.
    explicit VarnelLineBoundary(VarnelLine *line) : geometry_(line) {}
    /// An unchanged support on a copy of the line.
    VarnelLineBoundary(VarnelLineBoundary &other);
    /// Flag and values; shares the line.
    VarnelLineBoundary &operator=(const VarnelLineBoundary &other) = default;
    ~VarnelLineBoundary() override;

    /// Owned, shared with supports that were assigned from this one.
    VarnelLine *getGeo() const { return geometry_.get(); }
    const VarnelLineBoundaryData &getData() const { return data_; }
    VarnelLineBoundaryData &getData() { return data_; }
    /// Assigns; marks a change of the values.
    void setData(const VarnelLineBoundaryData &data) { data_ = data; }

    const std::string &getName() const { return data_.getName(); }
    void setName(const std::string &name) { data_.setName(name); }
    int getNumber() const { return data_.getNumber(); }
    void setNumber(int number) { data_.setNumber(number); }
    /// For the list that finds this support by its number.
    const varnel::IndexedKey<int> &indexedNumber() const { return data_.indexedNumber(); }
    /// Setting marks a change.
    bool getLocal() const { return data_.getLocal(); }
    void setLocal(bool local);
    /// Marks no change.
    const KzVector3D &getLocsys() const { return data_.getLocsys(); }
    void setLocsys(const KzVector3D &direction) { data_.setLocsys(direction); }
    void setLocsys(double x, double y, double z) { data_.setLocsys(x, y, z); }
    /// See VarnelBoundaryData; what is set does not show as a change here.
    std::vector<double> getStiffness() const { return data_.getStiffness(); }
    void setStiffness(const std::vector<double> &values) { data_.setStiffness(values); }
    VarnelBoundaryStiffnessData *getStiffnessData() const { return data_.getStiffnessData(); }
    /// The frame of the line with the local direction; the identity for an arc and without a line.
    KzMatrix44 getBase() const;

    int getVisited(VarnelObjectVisitor *visitor) override;
    bool isInPlane(const KzMatrix44 &plane) const override;
    bool touchesPlane(const KzMatrix44 &plane) const override;
    /// Whether the support, its values or its line was changed.
    virtual bool getChanged() const;
    virtual void setChanged(bool changed);

  private:
    bool changed_ = false;
    varnel::Held<VarnelLine> geometry_;
    VarnelLineBoundaryData data_;
};

#endif

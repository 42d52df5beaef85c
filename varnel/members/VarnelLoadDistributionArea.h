#ifndef VARNEL_MEMBERS_VARNELLOADDISTRIBUTIONAREA_H
#define VARNEL_MEMBERS_VARNELLOADDISTRIBUTIONAREA_H

#include <string>

#include "varnel/members/VarnelPolyObject.h"

/// A region over which loads are distributed.
class VARNEL_EXPORT VarnelLoadDistributionArea : public VarnelPolyObject {
  public:
    VarnelLoadDistributionArea() = default;
    /// Name and an outline of its own; changed, with number 0.
    VarnelLoadDistributionArea(const VarnelLoadDistributionArea &other);
    /// The name; the outline only if this area has none.
    VarnelLoadDistributionArea &operator=(const VarnelLoadDistributionArea &other);
    ~VarnelLoadDistributionArea() override;

    /// The area itself, and its assignment.
    const VarnelLoadDistributionArea &getData() const { return *this; }
    void setData(const VarnelLoadDistributionArea &area) { *this = area; }

    void updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const override;
    int getVisited(VarnelObjectVisitor *visitor) override;
    bool getChanged() const override;
    void setChanged(bool changed) override;
    /// Marks a change.
    void setName(const std::string &name) override;
    const std::string &getName() const override { return name_; }

  private:
    void copy(const VarnelLoadDistributionArea &other);

    std::string name_;
    bool changed_ = true;
};

#endif

#ifndef VARNEL_GEOMETRY_VARNELSTRAIGHT_H
#define VARNEL_GEOMETRY_VARNELSTRAIGHT_H

#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"

/// A straight edge between two points.
class VARNEL_EXPORT VarnelStraight : public VarnelLine {
  public:
    /// Makes both points.
    VarnelStraight(const KzVector3D &start, const KzVector3D &end);
    /// Takes over both points.
    VarnelStraight(VarnelPoint *start, VarnelPoint *end);
    /// Continues a chain: starts on the end of `previous`, shared with it, and takes over `end`.
    VarnelStraight(const VarnelLine &previous, VarnelPoint *end);
    /// Makes points of its own with number 0 and takes the division into parts; the copy is changed.
    VarnelStraight(const VarnelStraight &other);
    /// Member by member: afterwards both lines share the points of `other`, and the former ones are released.
    VarnelStraight &operator=(const VarnelStraight &other) = default;
    ~VarnelStraight() override = default;

    /// End minus start (m), not normalised; zero if a point is missing.
    KzVector3D getDir() const;

    using VarnelLine::getVisited;

    void updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const override;
    bool isInPlane(const KzMatrix44 &plane) const override;
    bool touchesPlane(const KzMatrix44 &plane) const override;
    int operator==(const VarnelLine &other) const override;
    int operator!=(const VarnelLine &other) const override { return !(other == *this); }
    /// Moves this line's own points, so lines that share them follow, and marks a change.
    VarnelLine &operator=(const VarnelLine &other) override;
    void setStart(const KzVector3D &coordinates) override;
    void setEnd(const KzVector3D &coordinates) override;
    void setP1(VarnelPoint *point) override { start_.replace(point); }
    KzVector3D getStartVec() const override;
    KzVector3D getEndVec() const override;
    VarnelPoint *getStart() const override { return start_.get(); }
    VarnelPoint *getEnd() const override { return end_.get(); }
    KzVector3D getCoor(double xi) const override;
    /// Two: start and end.
    std::vector<KzVector3D> getCoors() const override;
    void setCoors(const std::vector<KzVector3D> &coordinates) override;
    /// A ratio of lengths: a place behind the start counts as its mirror image beyond the start.
    int checkPointOn(const KzVector3D &place, double &xi) const override;
    bool getChanged() const override;
    void setChanged(bool changed) override;
    double getLength() const override;
    void swap() override { start_.swap(end_); }
    bool distance(const KzVector3D &point, const KzVector3D &direction, const KzMatrix44 &plane,
                  double &result) const override;
    KzMatrix44 getBase(bool localBase, bool useReference, const KzVector3D &reference) override;
    bool hasSamePoints(const VarnelLine *other) const override;
    int getVisited(VarnelLineVisitor *visitor) override;
    VarnelLine *clone() const override { return new VarnelStraight(*this); }

  private:
    friend struct VarnelStraightInspector;  // lets the tests ask for the span

    void copyGeometry(const VarnelStraight &other);
    void maxSpan(double *span, const KzVector3D *other, double *otherValue) const;

    bool changed_ = true;
    varnel::Held<VarnelPoint> start_;
    varnel::Held<VarnelPoint> end_;
};

#endif

#ifndef VARNEL_GEOMETRY_VARNELCIRCLE_H
#define VARNEL_GEOMETRY_VARNELCIRCLE_H

#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"

/// A piece of a circle, at most half of it, from start to end about a centre. Start and end are meant to lie
/// at the same distance from the centre, but nothing keeps them there; the radius is that of the start.
class VARNEL_EXPORT VarnelCircle : public VarnelLine {
  public:
    /// Makes all three points. Centre first.
    VarnelCircle(const KzVector3D &centre, const KzVector3D &start, const KzVector3D &end);
    /// Makes points of its own with number 0; the copy is changed and has no division into parts.
    VarnelCircle(const VarnelCircle &other);
    /// Member by member: afterwards both arcs share the points of `other`, and the former ones are released.
    VarnelCircle &operator=(const VarnelCircle &other) = default;
    ~VarnelCircle() override = default;

    /// Moves the centre and marks it as changed.
    void setCenter(const KzVector3D &coordinates) { centre_->setCoor(coordinates); }
    KzVector3D getCenterVec() const { return centre_->getCoor(); }
    /// Distance of the start from the centre (m).
    double getRadius() const;
    /// Unit normal (start - centre) x (end - centre): the arc runs right-handed about it. Null for half a
    /// circle and for coincident or missing ends.
    KzVector3D getNormal() const;
    /// Opening angle (rad), 0 to pi; 0 if an end is missing.
    double getPhi() const;

    using VarnelLine::getVisited;

    /// Widens the box by start and end alone: the bulge of the arc does not count.
    void updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const override;
    /// The centre counts as well.
    bool isInPlane(const KzMatrix44 &plane) const override;
    /// Only if the centre's height over the plane is exactly the radius, so not for an arc in the plane.
    bool touchesPlane(const KzMatrix44 &plane) const override;
    int operator==(const VarnelLine &other) const override;
    int operator!=(const VarnelLine &other) const override { return !(other == *this); }
    /// Moves this arc's own points, so lines that share them follow, and marks a change. The division into
    /// parts stays.
    VarnelLine &operator=(const VarnelLine &other) override;
    void setStart(const KzVector3D &coordinates) override;
    void setEnd(const KzVector3D &coordinates) override;
    void setP1(VarnelPoint *point) override { start_.replace(point); }
    KzVector3D getStartVec() const override;
    KzVector3D getEndVec() const override;
    VarnelPoint *getStart() const override { return start_.get(); }
    VarnelPoint *getEnd() const override { return end_.get(); }
    KzVector3D getCoor(double xi) const override;
    /// Three: centre, start and end.
    std::vector<KzVector3D> getCoors() const override;
    void setCoors(const std::vector<KzVector3D> &coordinates) override;
    /// A place up to 1e-7 m off the circle counts as on it, on whichever side of the start it lies.
    int checkPointOn(const KzVector3D &place, double &xi) const override;
    bool getChanged() const override;
    void setChanged(bool changed) override;
    double getLength() const override { return getPhi() * getRadius(); }
    void swap() override { start_.swap(end_); }
    /// An arc is never hit: always false.
    bool distance(const KzVector3D &point, const KzVector3D &direction, const KzMatrix44 &plane,
                  double &result) const override;
    /// Always the identity frame.
    KzMatrix44 getBase(bool localBase, bool useReference, const KzVector3D &reference) override;
    /// The same ends about different centres; an arc has not the same points as itself.
    bool hasSamePoints(const VarnelLine *other) const override;
    int getVisited(VarnelLineVisitor *visitor) override;
    VarnelLine *clone() const override { return new VarnelCircle(*this); }

  private:
    friend struct VarnelCircleInspector;  // lets the tests ask for the invariant

    void copyGeometry(const VarnelCircle &other);
    bool checkInvariant() const;

    bool changed_ = true;
    varnel::Held<VarnelPoint> start_;
    varnel::Held<VarnelPoint> end_;
    varnel::Held<VarnelPoint> centre_;  // never missing
};

#endif

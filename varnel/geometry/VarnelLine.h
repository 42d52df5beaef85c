#ifndef VARNEL_GEOMETRY_VARNELLINE_H
#define VARNEL_GEOMETRY_VARNELLINE_H

#include <memory>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelObject.h"

class VarnelLineVisitor;
class VarnelPoint;

/// A single edge with its division into parts. Lines own their points together with the lines that share
/// them; a point that was taken away by setP1() is missing: it counts as the origin where coordinates are
/// asked, and as nothing for lengths, boxes and planes.
class VARNEL_EXPORT VarnelLine : public VarnelObject, public varnel::Shared {
  public:
    /// What a copy takes over is decided by each kind of line.
    VarnelLine(const VarnelLine &) = delete;
    ~VarnelLine() override;

    /// Number of equal parts; with stations one less than their count, without a division 0.
    int getNumberOfParts() const;
    /// Stored beside the stations, so it has no effect as long as there are any.
    void setNumberOfParts(int parts);
    /// Enters a relative station in ascending order. A station within 0.01 of one that is there already is
    /// dropped: the first one stays. The number of parts is 10 if none was set.
    void addXi(double xi);
    /// Removes the stations; the number of parts stays.
    void clearXis();
    bool hasXis() const;
    /// The station at an index from 0; 0.0 if there is none.
    double xiToPosition(int index) const;
    /// Takes over the other line's division into parts, or its absence.
    void copy(const VarnelLine &other);

    /// Lines are no objects of a model: answers 0 and calls nothing.
    int getVisited(VarnelObjectVisitor *visitor) override;
    bool isInPlane(const KzMatrix44 &plane) const override = 0;
    bool touchesPlane(const KzMatrix44 &plane) const override = 0;
    /// 1 for lines of one kind through the same places; the direction does not count.
    virtual int operator==(const VarnelLine &other) const = 0;
    virtual int operator!=(const VarnelLine &other) const = 0;
    /// Takes the division into parts; the kinds of line take the coordinates too, into the points they have,
    /// and throw std::bad_cast for a line of another kind.
    virtual VarnelLine &operator=(const VarnelLine &other);
    /// Move the point and mark it as changed, and with it every line that shares it.
    virtual void setStart(const KzVector3D &coordinates) = 0;
    virtual void setEnd(const KzVector3D &coordinates) = 0;
    /// Puts another start point in place, which is shared from then on. The former one is let go without
    /// being deleted: it is the caller's unless another line holds it. No flag is set.
    virtual void setP1(VarnelPoint *point) = 0;
    virtual KzVector3D getStartVec() const = 0;
    virtual KzVector3D getEndVec() const = 0;
    /// The points themselves, shared; null if missing.
    virtual VarnelPoint *getStart() const = 0;
    virtual VarnelPoint *getEnd() const = 0;
    /// The place at a relative station: 0 is the start, 1 the end; other values run on.
    virtual KzVector3D getCoor(double xi) const = 0;
    /// The defining coordinates; setCoors takes them in the same order and ignores a vector too short.
    virtual std::vector<KzVector3D> getCoors() const = 0;
    virtual void setCoors(const std::vector<KzVector3D> &coordinates) = 0;
    /// 1 with the relative station `xi` for a place on the line, else 0.
    virtual int checkPointOn(const KzVector3D &place, double &xi) const = 0;
    /// True if the line or one of its points is changed.
    virtual bool getChanged() const = 0;
    /// Passes the value to the points as well.
    virtual void setChanged(bool changed) = 0;
    virtual double getLength() const = 0;
    /// Exchanges start and end. The division into parts is not mirrored.
    virtual void swap() = 0;
    /// Measures from `point` along `direction`, in multiples of it, to this line, in the frame `plane`.
    /// False with `result` untouched if the line is not hit.
    virtual bool distance(const KzVector3D &point, const KzVector3D &direction, const KzMatrix44 &plane,
                          double &result) const = 0;
    /// True if an end of this line lies exactly where an end of the other one does.
    virtual bool isConnected(const VarnelLine &other) const;
    /// Local frame of the line, origin zero: along the line, with `reference` towards z. Identity unless both
    /// a local frame is wanted and the reference is to be used.
    virtual KzMatrix44 getBase(bool localBase, bool useReference, const KzVector3D &reference) = 0;
    /// Whether two lines of one kind have the same ends. Null is harmless.
    virtual bool hasSamePoints(const VarnelLine *other) const = 0;
    virtual int getVisited(VarnelLineVisitor *visitor) = 0;
    /// A copy with points of its own; owned by the caller.
    virtual VarnelLine *clone() const = 0;

  protected:
    VarnelLine() noexcept;

  private:
    struct Parts;

    Parts &giveParts();

    std::unique_ptr<Parts> parts_;  // made on first demand
};

#endif

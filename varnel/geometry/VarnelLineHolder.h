#ifndef VARNEL_GEOMETRY_VARNELLINEHOLDER_H
#define VARNEL_GEOMETRY_VARNELLINEHOLDER_H

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelObject.h"

class VarnelLine;
class VarnelPoint;

/// A chain of owned lines whose consecutive ends are one and the same point. Without lines every question is
/// answered by zeros, the identity frame or a point at the origin.
class VARNEL_EXPORT VarnelLineHolder : public VarnelObject, public varnel::Shared {
  public:
    VarnelLineHolder &operator=(const VarnelLineHolder &) = delete;
    ~VarnelLineHolder() override;

    std::size_t getNumLines() const noexcept { return lines_.size(); }
    /// The line, or null past the end.
    VarnelLine *getLine(std::size_t index) const;
    /// Start of the line `index`; past the last line its end.
    const VarnelPoint &getPoint(std::size_t index) const;
    const KzVector3D &getCoor(std::size_t index) const;
    /// Moves a point that lines share and marks a change. From the number of lines n on it moves the end of
    /// line (index + 3) % n.
    void setCoor(std::size_t index, const KzVector3D &coordinates) const;
    /// Start and end of a line; zeros past the end.
    std::pair<KzVector3D, KzVector3D> getEdgeCoor(std::size_t index) const;
    /// Appends a line, owned from now on; its points stay its own. Null is ignored.
    void addLine(VarnelLine *line);
    /// Passes the value to every line.
    void setChanged(bool changed);
    /// Sets the number of parts of a line; an index past the end is ignored.
    void setNumParts(std::size_t index, int parts) const;
    double getLength() const;
    /// Sets the corners to the box around the points, in global coordinates. Without points it is inside out
    /// (largest double to lowest). Nothing happens if a corner is null.
    void getMinMax(KzVector3D *min, KzVector3D *max) const;
    /// Whether the starts of all lines lie in the plane of the first three. The last point of an open chain
    /// does not count.
    bool isPlanar() const;
    /// Frame of the chain: x along the first line, y towards the first point off it, origin in point 0.
    /// Identity for up to two lines.
    KzMatrix44 getBase() const;
    /// Unit normal, opposite to the z axis of getBase(); null for up to two lines and along one straight.
    KzVector3D getNormal() const;
    /// 1 if both chains, taken as rings, have equal lines in the same order, whatever their first line and
    /// direction.
    int operator==(const VarnelLineHolder &other) const;

    void updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const override;
    /// Line holders are no objects of a model: answers 0 and calls nothing.
    int getVisited(VarnelObjectVisitor *visitor) override;
    /// A height of exactly 0.01 m is still in the plane, unlike for a single point.
    bool isInPlane(const KzMatrix44 &plane) const override;
    bool touchesPlane(const KzMatrix44 &plane) const override;
    /// Lengthens the chain by a straight line to a new point. The first call only remembers the place.
    virtual void addVertex(const KzVector3D &coordinates) = 0;
    /// True if any line is changed; never without lines.
    virtual bool getChanged() const;
    virtual std::size_t getNumPoints() const = 0;
    /// Removes all lines and frees those that nobody else holds.
    virtual void reset();
    virtual bool isDegenerated() const = 0;
    /// A copy of straight lines between new points; owned by the caller.
    virtual VarnelLineHolder *clone() const = 0;

  protected:
    VarnelLineHolder() noexcept;
    /// Copies nothing: the copying class calls copy() once its own operations are in place.
    VarnelLineHolder(const VarnelLineHolder &) noexcept;

    /// Whether the first line has no length, or two of at least four lines end on one point.
    bool hasZeroLine() const;
    /// Builds the chain anew of straight lines between the other's points: arcs become their chords, and the
    /// division into parts is lost. Copying a holder into itself does nothing.
    void copy(const VarnelLineHolder &other);

    const std::vector<VarnelLine *> &lines() const noexcept { return lines_; }
    std::vector<VarnelLine *> &lines() noexcept { return lines_; }
    /// Inserts a line before the one at `index`, owned from now on.
    void insertLine(std::size_t index, VarnelLine *line);
    /// The place that the first vertex gave, or null.
    const KzVector3D *firstVertex() const noexcept { return firstVertex_.get(); }
    void setFirstVertex(const KzVector3D &coordinates);
    /// Starts of all lines in their order.
    std::vector<KzVector3D> starts() const;

  private:
    const VarnelPoint *findPoint(std::size_t index) const;
    std::size_t countPoints() const { return lines_.empty() ? 0 : getNumPoints(); }
    bool continuesForward(const VarnelLineHolder &other, std::size_t offset) const;
    bool continuesBackward(const VarnelLineHolder &other, std::size_t offset) const;

    std::vector<VarnelLine *> lines_;  // owned
    std::unique_ptr<KzVector3D> firstVertex_;
};

#endif

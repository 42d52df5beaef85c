#ifndef VARNEL_GEOMETRY_VARNELAREA_H
#define VARNEL_GEOMETRY_VARNELAREA_H

#include <cstddef>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/geometry/VarnelLineHolder.h"

/// A closed chain of lines anywhere in space: the outline of a plate, a hole, a load. n lines have n points.
class VARNEL_EXPORT VarnelArea : public VarnelLineHolder {
  public:
    VarnelArea() noexcept = default;
    /// All edges of the copy are straight.
    VarnelArea(const VarnelArea &other);
    ~VarnelArea() override = default;

    int operator==(const VarnelArea &other) const { return VarnelLineHolder::operator==(other); }
    int operator!=(const VarnelArea &other) const { return !(*this == other); }
    /// A copy of the list of lines; the lines themselves stay owned by the area.
    const std::vector<VarnelLine *> getEdges() const { return lines(); }
    /// Centre of gravity of the area between the chords.
    KzVector3D getCOG() const;
    /// The points and then the first one again; empty without lines.
    std::vector<KzVector3D> getCoordinatesOfPoints() const;
    /// Measures from `point` along `direction`, in multiples of it, to the nearest edge by magnitude; the
    /// result keeps its sign. Arcs are never hit. False with `result` untouched if no edge is.
    bool distance(const KzVector3D &point, const KzVector3D &direction, const KzMatrix44 &plane,
                  double &result) const;
    /// Makes point `steps` the first one, counted round the ring. The ring itself stays.
    void cycle(std::size_t steps);
    /// Reverses the direction. Of an odd number of lines the middle one keeps its own.
    void swap();
    /// Closes a chain of lines that were added one by one: the first line starts where the last one ends. The
    /// former start is freed if no other line holds it.
    void meltFirstAndLast();

    /// From the second vertex on the ring is closed after each call, always by the same last line.
    void addVertex(const KzVector3D &coordinates) override;
    std::size_t getNumPoints() const override { return getNumLines(); }
    /// True for an area below the squared tolerance of KzVector3D or with a zero line.
    bool isDegenerated() const override;
    /// Always a plain area, whatever the class of this one.
    VarnelLineHolder *clone() const override { return new VarnelArea(*this); }
    /// Rebuilds the area of straight edges between new points; the former lines are released.
    virtual VarnelArea &operator=(const VarnelArea &other);
    /// Area between the chords (m2); 0 below two lines.
    virtual double getArea() const;
    /// Whether a place lies inside or within 0.001 m of the outline, seen along global z: heights do not
    /// count.
    virtual bool checkPointOn(const KzVector3D &place) const;
    /// Whether the ring runs anticlockwise seen from global +z.
    virtual bool checkRightHandedXY() const;
};

#endif

#ifndef VARNEL_GEOMETRY_POINTWATCH_H
#define VARNEL_GEOMETRY_POINTWATCH_H

class VarnelPoint;

namespace varnel {

/// Told by each point under watch when it moves, so that a table of places is known to be out of date. A
/// point has at most one watch, which outlives the watching; copies of a point have none.
class PointWatch {
  public:
    PointWatch() = default;
    PointWatch(const PointWatch &) = delete;
    PointWatch &operator=(const PointWatch &) = delete;

    /// False if somebody else watches the point.
    bool watch(const VarnelPoint &point);
    /// Does nothing unless this is the point's watch.
    void unwatch(const VarnelPoint &point);

    bool hasMoved() const { return moved_; }
    void pointMoved() { moved_ = true; }
    void reset() { moved_ = false; }

  private:
    bool moved_ = false;
};

}  // namespace varnel

#endif

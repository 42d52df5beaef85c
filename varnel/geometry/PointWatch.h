#ifndef VARNEL_GEOMETRY_POINTWATCH_H
#define VARNEL_GEOMETRY_POINTWATCH_H

class VarnelPoint;

namespace varnel {

/// Told by each point under watch when it moves or gets another number, so that tables are known to be out of
/// date. A point has at most one watch, which outlives the watching; copies of a point have none.
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
    bool hasNewNumbers() const { return newNumbers_; }
    void pointNumbered() { newNumbers_ = true; }
    void forgetNumbers() { newNumbers_ = false; }
    void reset() { moved_ = newNumbers_ = false; }

  private:
    bool moved_ = false;
    bool newNumbers_ = false;
};

}  // namespace varnel

#endif

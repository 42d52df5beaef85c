#ifndef VARNEL_GEOMETRY_POINTWATCH_H
#define VARNEL_GEOMETRY_POINTWATCH_H

namespace varnel {

/// Told by the points of one list when one of them moves, so that a table of their places is known to be out
/// of date.
class PointWatch {
  public:
    PointWatch() = default;
    PointWatch(const PointWatch &) = delete;
    PointWatch &operator=(const PointWatch &) = delete;

    bool hasMoved() const { return moved_; }
    void pointMoved() { moved_ = true; }
    void reset() { moved_ = false; }

  private:
    bool moved_ = false;
};

}  // namespace varnel

#endif

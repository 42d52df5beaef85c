#ifndef VARNEL_TESTS_SUPPORT_STUBBORNPOINT_H
#define VARNEL_TESTS_SUPPORT_STUBBORNPOINT_H

#include "varnel/geometry/VarnelPoint.h"

namespace varnel {

/// A point that answers what it was told to, wherever it lies, and counts the boxes that it was to widen.
class StubbornPoint : public VarnelPoint {
  public:
    explicit StubbornPoint(const KzVector3D &coordinates) : VarnelPoint(coordinates) {}
    void updateMinMax(KzVector3D *, KzVector3D *, const KzMatrix44 &) const override { ++boxes; }
    bool isInPlane(const KzMatrix44 &) const override { return inPlane; }
    bool getChanged() const override { return changed; }
    void setChanged(bool value) override { changed = value; }

    mutable int boxes = 0;
    bool inPlane = false;
    bool changed = false;
};

}  // namespace varnel

#endif

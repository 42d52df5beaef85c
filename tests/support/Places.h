#ifndef VARNEL_TESTS_SUPPORT_PLACES_H
#define VARNEL_TESTS_SUPPORT_PLACES_H

#include <gtest/gtest.h>

#include <ostream>

#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzVector3D.h"

/// Lets failing comparisons show coordinates instead of bytes.
inline void PrintTo(const KzVector3D &v, std::ostream *out) {
    *out << '(' << v.getX() << ", " << v.getY() << ", " << v.getZ() << ')';
}

namespace varnel {

/// Whether two places are at most `tolerance` apart.
inline testing::AssertionResult isNear(const KzVector3D &expected, const KzVector3D &actual,
                                       double tolerance = 1e-12) {
    if (expected.distanceTo(actual) <= tolerance) return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << testing::PrintToString(actual) << " is not near " << testing::PrintToString(expected);
}

/// The global x-y plane moved up to a height.
inline KzMatrix44 planeAtHeight(double height) {
    KzMatrix44 plane = KzMatrix44::getId();
    plane.setVector(3, KzVector3D(0.0, 0.0, height));
    return plane;
}

}  // namespace varnel

#endif

#ifndef VARNEL_CONTRACTS_MATH_DISTRIBUTEDVALUES_H
#define VARNEL_CONTRACTS_MATH_DISTRIBUTEDVALUES_H

#include <vector>

#include "varnel/contracts/Export.h"

namespace Math {

/// Values given at stations of a line, for integration along it. Beyond its outer stations a distribution
/// is constant; two records at one station are a jump.
class VARNEL_EXPORT DistributedValues {
  public:
    /// Ordinates `values` at the rising relative stations `xi` (0 to 1) of a line of `length` m.
    DistributedValues(const std::vector<double> &xi, const std::vector<double> &values, double length);

    /// Integral along the line between two relative stations, straight between neighbours, in `result`;
    /// in `second` the first moment about station 0. False, with both outputs untouched, if the stations
    /// are none, not rising, not finite or not as many as the values.
    bool integrateLinearly(double from, double to, double &result, double &second) const;
    /// The same with parabolas over three stations each: exact for values that lie on a parabola.
    bool integrateQuadratically(double from, double to, double &result, double &second) const;

  private:
    bool integrate(double from, double to, double &result, double &second, bool linear) const;
    bool isUsable() const;

    std::vector<double> xi_;
    std::vector<double> values_;
    double length_;
};

}  // namespace Math

#endif

#include "varnel/contracts/Math/DistributedValues.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace {

/// A polynomial of degree two at most through stations and their values (Newton's form).
class Parabola {
  public:
    explicit Parabola(double value) : value_(value) {}
    Parabola(double x0, double y0, double x1, double y1)
        : x0_(x0), x1_(x1), value_(y0), slope_((y1 - y0) / (x1 - x0)) {}
    Parabola(double x0, double y0, double x1, double y1, double x2, double y2) : Parabola(x0, y0, x1, y1) {
        curvature_ = ((y2 - y1) / (x2 - x1) - slope_) / (x2 - x0);
    }

    double at(double x) const { return value_ + (x - x0_) * (slope_ + (x - x1_) * curvature_); }

  private:
    double x0_ = 0.0;
    double x1_ = 0.0;
    double value_;
    double slope_ = 0.0;
    double curvature_ = 0.0;
};

/// Integral and first moment of pieces of curves. Simpson's rule is exact for both.
class Sum {
  public:
    Sum(double from, double to) : from_(from), to_(to) {}

    /// Adds the part of the curve between a and b that lies within the limits.
    void add(const Parabola &curve, double a, double b) {
        a = std::max(a, from_);
        b = std::min(b, to_);
        if (!(a < b)) return;
        const double middle = 0.5 * (a + b);
        const double atA = curve.at(a);
        const double atMiddle = 4.0 * curve.at(middle);
        const double atB = curve.at(b);
        integral += (b - a) * (atA + atMiddle + atB) / 6.0;
        moment += (b - a) * (a * atA + middle * atMiddle + b * atB) / 6.0;
    }

    double integral = 0.0;
    double moment = 0.0;

  private:
    double from_;
    double to_;
};

/// The curve over the interval from station i to i + 1 of the smooth run from `first` to `last`.
Parabola curveOver(const std::vector<double> &xi, const std::vector<double> &values, std::size_t first,
                   std::size_t last, std::size_t i, bool linear) {
    if (linear || last - first < 2) return {xi[i], values[i], xi[i + 1], values[i + 1]};
    // Pairs of intervals share a parabola; an odd interval at the end takes that through the last three.
    const std::size_t k = std::min(i - (i - first) % 2, last - 2);
    return {xi[k], values[k], xi[k + 1], values[k + 1], xi[k + 2], values[k + 2]};
}

}  // namespace

namespace Math {

DistributedValues::DistributedValues(const std::vector<double> &xi, const std::vector<double> &values,
                                     double length)
    : xi_(xi), values_(values), length_(length) {}

bool DistributedValues::integrateLinearly(double from, double to, double &result, double &second) const {
    return integrate(from, to, result, second, true);
}

bool DistributedValues::integrateQuadratically(double from, double to, double &result, double &second) const {
    return integrate(from, to, result, second, false);
}

bool DistributedValues::integrate(double from, double to, double &result, double &second, bool linear) const {
    if (!isUsable() || !std::isfinite(from) || !std::isfinite(to)) return false;
    const double sign = from <= to ? 1.0 : -1.0;
    Sum sum(std::min(from, to), std::max(from, to));
    sum.add(Parabola(values_.front()), std::min(from, to), xi_.front());
    std::size_t first = 0;
    while (first < xi_.size()) {
        std::size_t last = first;
        while (last + 1 < xi_.size() && xi_[last] < xi_[last + 1]) ++last;
        for (std::size_t i = first; i < last; ++i)
            sum.add(curveOver(xi_, values_, first, last, i, linear), xi_[i], xi_[i + 1]);
        first = last + 1;
    }
    sum.add(Parabola(values_.back()), xi_.back(), std::max(from, to));
    result = sign * length_ * sum.integral;
    second = sign * length_ * length_ * sum.moment;
    return true;
}

bool DistributedValues::isUsable() const {
    if (xi_.empty() || xi_.size() != values_.size()) return false;
    const auto finite = [](double station) { return std::isfinite(station); };
    return std::all_of(xi_.begin(), xi_.end(), finite) && std::is_sorted(xi_.begin(), xi_.end());
}

}  // namespace Math

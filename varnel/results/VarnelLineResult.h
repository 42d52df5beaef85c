#ifndef VARNEL_RESULTS_VARNELLINERESULT_H
#define VARNEL_RESULTS_VARNELLINERESULT_H

#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/results/VarnelLineResultData.h"

/// Results along a line support: envelopes at its start, middle and end, and values along it.
class VARNEL_EXPORT VarnelLineResult {
  public:
    VarnelLineResult() = default;
    VarnelLineResult(const VarnelLineResult &other) { copy(other); }
    VarnelLineResult &operator=(const VarnelLineResult &other) {
        if (this != &other) copy(other);
        return *this;
    }
    virtual ~VarnelLineResult() = default;

    VarnelLineResultData &getStart() { return start_; }
    const VarnelLineResultData &getStart() const { return start_; }
    VarnelLineResultData &getMid() { return mid_; }
    const VarnelLineResultData &getMid() const { return mid_; }
    VarnelLineResultData &getEnd() { return end_; }
    const VarnelLineResultData &getEnd() const { return end_; }

    /// Values along the line, rising in position; the last one stands at its end.
    const std::vector<VarnelLineResultData> &getSupports() const { return supports_; }
    void add(const VarnelLineResultData &data) { supports_.push_back(data); }
    void removeSupports() { supports_.clear(); }

    /// Resultant (kN) of the minima of Fz, straight between the values or along parabolas. 0.0 without
    /// values, and for values whose positions do not rise or end at zero.
    double getResultant(bool linear) const;

  private:
    void copy(const VarnelLineResult &other);

    VarnelLineResultData start_;
    VarnelLineResultData mid_;
    VarnelLineResultData end_;
    std::vector<VarnelLineResultData> supports_;
};

#endif

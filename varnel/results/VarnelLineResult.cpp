#include "varnel/results/VarnelLineResult.h"

#include "varnel/contracts/Math/DistributedValues.h"

double VarnelLineResult::getResultant(bool linear) const {
    if (supports_.empty()) return 0.0;
    const double length = supports_.back().getPos();
    std::vector<double> positions;
    std::vector<double> values;
    positions.reserve(supports_.size());
    values.reserve(supports_.size());
    for (const VarnelLineResultData &support : supports_) {
        positions.push_back(support.getPos() / length);
        // The minima are meant, although the document shows the maxima as the force of a support: for a
        // support that is not an envelope both are one value.
        values.push_back(support.getMinFz());
    }
    const Math::DistributedValues distribution(positions, values, length);
    double resultant = 0.0;
    double moment = 0.0;
    if (linear)
        distribution.integrateLinearly(0.0, 1.0, resultant, moment);
    else
        distribution.integrateQuadratically(0.0, 1.0, resultant, moment);
    return resultant;
}

void VarnelLineResult::copy(const VarnelLineResult &other) {
    start_ = other.start_;
    mid_ = other.mid_;
    end_ = other.end_;
    supports_ = other.supports_;
}

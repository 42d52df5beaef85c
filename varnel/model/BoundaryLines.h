#ifndef VARNEL_MODEL_BOUNDARYLINES_H
#define VARNEL_MODEL_BOUNDARYLINES_H

#include <unordered_map>

#include "varnel/contracts/CoordinateHash.h"
#include "varnel/contracts/KzVector3D.h"

class VarnelLine;
class VarnelLineBoundaryData;

namespace varnel {

/// Answers for many lines which boundary comes first among those on a line with the same points, exactly as a
/// walk with VarnelLine::hasSamePoints does, as long as there are straight lines and arcs with proper
/// coordinates only. Lines are lent.
class BoundaryLines {
  public:
    /// Enters a boundary behind all others. From the first line on of which too little is known, isComplete()
    /// is false, and the caller walks.
    void append(const VarnelLine *line, VarnelLineBoundaryData *boundary);
    bool isComplete() const { return complete_; }
    /// Null if there is none. The line is one of those that were entered.
    VarnelLineBoundaryData *find(const VarnelLine &line) const;

  private:
    struct Ends {
        KzVector3D low, high;
        friend bool operator==(const Ends &a, const Ends &b) { return a.low == b.low && a.high == b.high; }
    };
    struct EndsHash {
        std::size_t operator()(const Ends &ends) const noexcept {
            return CoordinateHash()(ends.low) * 31 + CoordinateHash()(ends.high);
        }
    };
    struct Arcs {
        KzVector3D centre;
        VarnelLineBoundaryData *first = nullptr;
        VarnelLineBoundaryData *firstOfAnotherCentre = nullptr;
    };

    static Ends endsOf(const VarnelLine &line);

    std::unordered_map<Ends, VarnelLineBoundaryData *, EndsHash> straights_;
    std::unordered_map<Ends, Arcs, EndsHash> arcs_;
    bool complete_ = true;
};

}  // namespace varnel

#endif

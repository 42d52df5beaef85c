#ifndef VARNEL_MODEL_BOUNDARYLINES_H
#define VARNEL_MODEL_BOUNDARYLINES_H

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "varnel/contracts/CoordinateHash.h"
#include "varnel/contracts/KzVector3D.h"

class VarnelLine;
class VarnelLineBoundaryData;

namespace varnel {

/// Answers for all boundaries of a model which one comes first on a line with the same points, exactly as
/// walks with VarnelLine::hasSamePoints do, as long as there are straight lines and arcs with proper
/// coordinates only. Lines and boundaries are lent.
class BoundaryLines {
  public:
    /// Makes room for about that many boundaries.
    void expect(std::size_t count) {
        straights_.reserve(count);
        entries_.reserve(count);
    }
    /// Enters a boundary behind all others. From the first line on of which too little is known, isComplete()
    /// is false, and the caller walks.
    void append(const VarnelLine *line, VarnelLineBoundaryData *boundary);
    bool isComplete() const { return complete_; }
    /// Lets each boundary refer to the first one on its line, or to none.
    void setReferences() const;

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
    /// All lines of one kind between the same ends.
    struct Bundle {
        KzVector3D centre;  // of the first arc
        VarnelLineBoundaryData *first = nullptr;
        VarnelLineBoundaryData *firstOfAnotherCentre = nullptr;
    };
    struct Entry {
        VarnelLineBoundaryData *boundary;
        const Bundle *bundle;  // null for a boundary without a line
        bool refersToFirst;
    };
    using Bundles = std::unordered_map<Ends, Bundle, EndsHash>;

    static Ends endsOf(const VarnelLine &line);

    Bundles straights_;
    Bundles arcs_;
    std::vector<Entry> entries_;
    bool complete_ = true;
};

}  // namespace varnel

#endif

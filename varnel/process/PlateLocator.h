#ifndef VARNEL_PROCESS_PLATELOCATOR_H
#define VARNEL_PROCESS_PLATELOCATOR_H

#include <cstddef>
#include <list>
#include <vector>

#include "varnel/contracts/KzVector3D.h"

class VarnelArea;
class VarnelPlate;

namespace varnel {

/// Answers many questions "which plate is first in the list to contain this place?" on a list that does not
/// change meanwhile, exactly as Varnel::findPlateToCoor() does with a walk. A tree of the outlines' boxes in
/// the global x-y plane keeps the number of outlines that are looked at small.
class PlateLocator {
  public:
    /// The plates are shared: they outlive the locator.
    explicit PlateLocator(const std::list<VarnelPlate *> &plates);

    /// Null where no plate is.
    VarnelPlate *find(const KzVector3D &place) const;

  private:
    struct Box {
        double minX, minY, maxX, maxY;
        bool contains(double x, double y) const { return minX <= x && x <= maxX && minY <= y && y <= maxY; }
    };
    struct Entry {
        Box box;
        std::size_t position;  // in the list: the first one that contains the place wins
        VarnelPlate *plate;
    };
    struct Node {
        Box box;
        std::size_t first, last;  // entries [first, last) below this node
        std::size_t smallest;     // smallest list position below this node
        std::size_t left, right;  // nodes; 0 for a leaf
    };

    static bool findBox(const VarnelArea &area, Box &box);
    std::size_t build(std::size_t first, std::size_t last);

    std::vector<Entry> entries_;
    std::vector<Entry> unbounded_;  // outlines whose box says nothing about what they contain, in list order
    std::vector<Node> nodes_;
};

}  // namespace varnel

#endif

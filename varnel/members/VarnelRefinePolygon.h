#ifndef VARNEL_MEMBERS_VARNELREFINEPOLYGON_H
#define VARNEL_MEMBERS_VARNELREFINEPOLYGON_H

#include "varnel/contracts/Export.h"

class VarnelArea;

/// An area in which the mesh is refined: a plain record. The area is shared: a model frees those of the
/// polygons that it owns.
class VARNEL_EXPORT VarnelRefinePolygon {
  public:
    int getNumber() const { return number_; }
    void setNumber(int number) { number_ = number; }
    int getRefineLevel() const { return refineLevel_; }
    void setRefineLevel(int level) { refineLevel_ = level; }
    const VarnelArea *getArea() const { return area_; }
    void setArea(VarnelArea *area) { area_ = area; }

  private:
    int number_ = 0;
    int refineLevel_ = 1;
    VarnelArea *area_ = nullptr;
};

#endif

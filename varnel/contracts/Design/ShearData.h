#ifndef VARNEL_CONTRACTS_DESIGN_SHEARDATA_H
#define VARNEL_CONTRACTS_DESIGN_SHEARDATA_H

#include "varnel/contracts/Export.h"

namespace Design {

/// Scope of the surface of a joint between concretes.
class VARNEL_EXPORT ShearData {
  public:
    enum SurfaceType : int { INTENDED = 0, ROUGH = 1, SMOOTH = 2, VERY_SMOOTH = 3 };
};

}  // namespace Design

#endif

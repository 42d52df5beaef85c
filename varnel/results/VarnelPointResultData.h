#ifndef VARNEL_RESULTS_VARNELPOINTRESULTDATA_H
#define VARNEL_RESULTS_VARNELPOINTRESULTDATA_H

#include "varnel/contracts/Export.h"
#include "varnel/contracts/SysBase/PointSupportResult.h"

/// The reactions of a point boundary, held by value in the model's containers.
class VARNEL_EXPORT VarnelPointResultData : public SysBase::PointSupportResult {
  public:
    using PointSupportResult::PointSupportResult;
    VarnelPointResultData() = default;
    VarnelPointResultData(const VarnelPointResultData &) = default;
    VarnelPointResultData &operator=(const VarnelPointResultData &) = default;
    ~VarnelPointResultData() override = default;
};

#endif

#ifndef VARNEL_PROCESS_VARNELDATACHECKER_H
#define VARNEL_PROCESS_VARNELDATACHECKER_H

#include "varnel/contracts/Export.h"

class VarnelManager;

/// Decides before each analysis whether the model is fit for one. A host's checker tells what it finds
/// through VarnelManager::addError.
class VARNEL_EXPORT VarnelDataChecker {
  public:
    VarnelDataChecker() = default;
    VarnelDataChecker(const VarnelDataChecker &) = default;
    VarnelDataChecker &operator=(const VarnelDataChecker &) = default;
    virtual ~VarnelDataChecker();

    /// True if the manager's current model has at least one plate or beam; false for a null manager or one
    /// without a model.
    virtual bool checkSystem(VarnelManager *manager);
};

#endif

#ifndef VARNEL_MODEL_VARNELDB_H
#define VARNEL_MODEL_VARNELDB_H

#include "varnel/contracts/Export.h"
#include "varnel/model/Varnel.h"

/// The model that a factory hands out: it has a database factory, so it can make plates, beams and result
/// sections. Copies share that factory.
class VARNEL_EXPORT VarnelDB : public Varnel {
  public:
    explicit VarnelDB(VarnelManager *manager);
    VarnelDB(const VarnelDB &other) = default;
    VarnelDB &operator=(const VarnelDB &other) = default;
    ~VarnelDB() override;
};

#endif

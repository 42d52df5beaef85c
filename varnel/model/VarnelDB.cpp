#include "varnel/model/VarnelDB.h"

#include "varnel/process/VarnelDatabaseFactory.h"

namespace {

/// Final, since the base has no virtual destructor.
class Factory final : public VarnelDatabaseFactory {};

}  // namespace

VarnelDB::VarnelDB(VarnelManager *manager) : Varnel(manager) {
    setDBaseFactory(std::make_shared<Factory>());
}

VarnelDB::~VarnelDB() {
    setDBaseFactory(nullptr);
}

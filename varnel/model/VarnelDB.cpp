#include "varnel/model/VarnelDB.h"

#include "varnel/process/VarnelDatabaseFactory.h"

VarnelDB::VarnelDB(VarnelManager *manager) : Varnel(manager) {
    setDBaseFactory(std::make_shared<VarnelDatabaseFactory>());
}

VarnelDB::~VarnelDB() {
    setDBaseFactory(nullptr);
}

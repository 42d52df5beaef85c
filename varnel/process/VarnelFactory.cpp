#include "varnel/process/VarnelFactory.h"

#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/process/VarnelDataChecker.h"
#include "varnel/process/VarnelErrorHandler.h"

VarnelFactory::~VarnelFactory() = default;

VarnelCalculator *VarnelFactory::giveCalculator() const {
    return nullptr;
}

VarnelConverter *VarnelFactory::giveConverter() const {
    return nullptr;
}

VarnelDesigner *VarnelFactory::giveDesigner() const {
    return nullptr;
}

Varnel::SystemMode VarnelFactory::getMode() const {
    return static_cast<Varnel::SystemMode>(2);
}

VarnelExchange *VarnelFactory::giveExchange() const {
    return new VarnelExchangeXml;
}

Varnel *VarnelFactory::giveDatabase() const {
    return new VarnelDB(manager_);
}

VarnelDataChecker *VarnelFactory::giveDataChecker() {
    return new VarnelDataChecker;
}

VarnelErrorHandler *VarnelFactory::giveErrorHandler() const {
    return new VarnelErrorHandler;
}

VarnelDatabaseFactory *VarnelFactory::giveDatabaseFactory() const {
    return nullptr;
}

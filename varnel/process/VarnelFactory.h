#ifndef VARNEL_PROCESS_VARNELFACTORY_H
#define VARNEL_PROCESS_VARNELFACTORY_H

#include "varnel/contracts/Export.h"
#include "varnel/model/Varnel.h"

class VarnelCalculator;
class VarnelConverter;
class VarnelDatabaseFactory;
class VarnelDataChecker;
class VarnelDesigner;
class VarnelErrorHandler;
class VarnelExchange;
class VarnelManager;

/// Makes every service of a manager. A host derives from it and overrides what it has to offer; as it stands
/// it yields a model, an XML exchange, a data checker and an error handler, and no analysis. Everything made
/// here passes to the caller. The factory outlives the managers made on it. It makes models for the manager
/// that was made on it last, so managers that live side by side want a factory each.
class VARNEL_EXPORT VarnelFactory {
  public:
    VarnelFactory() = default;
    VarnelFactory(const VarnelFactory &) = default;
    VarnelFactory &operator=(const VarnelFactory &) = default;
    virtual ~VarnelFactory();

    /// Called by the manager while it is being made; shared.
    void setManager(VarnelManager *manager) { manager_ = manager; }
    VarnelManager *getManager() const { return manager_; }

    /// The solver; null when the host offers none, which makes the calculation step fail.
    virtual VarnelCalculator *giveCalculator() const;
    /// The mesher; null when the host offers none, which makes the conversion step fail.
    virtual VarnelConverter *giveConverter() const;
    /// Hands results back; null when the host offers none, which makes the result step fail.
    virtual VarnelDesigner *giveDesigner() const;
    /// The mode that every new model takes over; 2 here.
    virtual Varnel::SystemMode getMode() const;
    /// The document; a new VarnelExchangeXml here.
    virtual VarnelExchange *giveExchange() const;
    /// The model of one subsystem; a new VarnelDB on the manager here.
    virtual Varnel *giveDatabase() const;
    /// The check before each analysis; a new VarnelDataChecker here.
    virtual VarnelDataChecker *giveDataChecker();
    /// Shows messages; a new VarnelErrorHandler here. The host deletes it, since the manager does not.
    virtual VarnelErrorHandler *giveErrorHandler() const;
    /// Null here. Never called by the library: a VarnelDB makes its own database factory.
    virtual VarnelDatabaseFactory *giveDatabaseFactory() const;

  private:
    VarnelManager *manager_ = nullptr;
};

#endif

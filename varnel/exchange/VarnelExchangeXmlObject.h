#ifndef VARNEL_EXCHANGE_VARNELEXCHANGEXMLOBJECT_H
#define VARNEL_EXCHANGE_VARNELEXCHANGEXMLOBJECT_H

#include <string>

#include "varnel/contracts/Export.h"

class KzXmlData;
class Varnel;
class VarnelExchangeXml;

/// Base of exchange classes that take over one kind of object from the exchange.
class VARNEL_EXPORT VarnelExchangeXmlObject {
  public:
    /// The exchange is shared: it owns this object.
    explicit VarnelExchangeXmlObject(VarnelExchangeXml *exXml) : exXml_(exXml) {}

    /// Reads the objects below the subsystem's element into the model.
    virtual void create(KzXmlData *subSystem, Varnel *model) = 0;
    /// Writes the model's objects below the element at the cursor.
    virtual void update(Varnel *model) = 0;

    VarnelExchangeXml *getExXml() const { return exXml_; }
    /// The exchange's own operations.
    void open(const std::string &name);
    void close();
    void openToAttribute(const std::string &name, const std::string &key, int value);
    void openToAttribute(const std::string &name, const std::string &key, double value);
    void openToAttribute(const std::string &name, const std::string &key, const std::string &value);
    void setAttribute(const std::string &key, int value);
    void setAttribute(const std::string &key, const std::string &value);
    void setAttribute(const std::string &key, double value);

  private:
    VarnelExchangeXml *exXml_;
};

#endif

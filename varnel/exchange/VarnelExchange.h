#ifndef VARNEL_EXCHANGE_VARNELEXCHANGE_H
#define VARNEL_EXCHANGE_VARNELEXCHANGE_H

#include <string>

#include "varnel/contracts/Export.h"

class KzVector3D;
class VarnelManager;

namespace Tools {
class Path;
}

/// What the manager asks of a project document: one element after the other is opened below a cursor,
/// filled and closed again. VarnelExchangeXml is the document as XML.
class VARNEL_EXPORT VarnelExchange {
  public:
    VarnelExchange() = default;
    VarnelExchange(const VarnelExchange &) = default;
    VarnelExchange &operator=(const VarnelExchange &) = default;
    virtual ~VarnelExchange();

    /// Shared: the manager owns the exchange and outlives it.
    VarnelManager *getManager() const { return manager_; }
    void setManager(VarnelManager *manager) { manager_ = manager; }
    /// Whether the last output into a file put the new content in place; true before the first one. The
    /// operations themselves stay silent about it.
    bool lastOutputOk() const { return lastOutputOk_; }

    /// Writes the document into the file, which is replaced only when everything has been written.
    virtual void fileOutput(const Tools::Path &path) = 0;
    /// Reads the document from the file; false if that cannot be opened. Throws Tools::Error with line and
    /// column for a malformed document; the earlier document stays whole in both cases.
    virtual bool fileInput(const Tools::Path &path) = 0;
    /// Document to model.
    virtual void get(VarnelManager *manager) = 0;
    /// Results of the model into the document.
    virtual void updateResults(VarnelManager *manager) = 0;
    /// Model to document.
    virtual void updateSystem(VarnelManager *manager) = 0;
    /// Takes the project-wide data of another file over.
    virtual void loadProjectSettings(const std::string &path) = 0;
    /// Writes the whole document to another file.
    virtual void saveProjectSettings(const std::string &path) = 0;
    /// Switches and default properties into the document.
    virtual void updateSettings(VarnelManager *manager) = 0;
    /// Moves the cursor to the child of that name, made if absent.
    virtual void open(const std::string &name) = 0;
    /// Moves the cursor to its parent.
    virtual void close() = 0;
    /// Writes the three components at the cursor.
    virtual void updateVector(const KzVector3D &vector) = 0;
    /// Moves the cursor to the first child of that name whose attribute `key` has the value, made if absent.
    virtual void openToAttribute(const std::string &name, const std::string &key,
                                 const std::string &value) = 0;
    virtual void openToAttribute(const std::string &name, const std::string &key, double value) = 0;
    virtual void openToAttribute(const std::string &name, const std::string &key, int value) = 0;
    /// Empties the element at the cursor.
    virtual void flush() = 0;

  protected:
    void setLastOutputOk(bool ok) { lastOutputOk_ = ok; }

  private:
    VarnelManager *manager_ = nullptr;
    bool lastOutputOk_ = true;
};

#endif

#ifndef VARNEL_APPS_VARNEL_DOCUMENT_H
#define VARNEL_APPS_VARNEL_DOCUMENT_H

#include <list>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "varnel/contracts/KzXmlTree.h"
#include "varnel/process/VarnelErrorHandler.h"
#include "varnel/process/VarnelFactory.h"
#include "varnel/process/VarnelManager.h"

class Varnel;
class VarnelExchangeXml;
class VarnelSubSystem;

namespace varnel::tool {

/// What ends a subcommand: no document, or one that cannot be written.
class Failure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Control characters as "\n" or "\x1b", so that a message stays one line whatever the document holds.
std::string oneLine(const std::string &text);

/// Says nothing and asks nothing: what goes wrong is thrown.
class SilentErrorHandler : public VarnelErrorHandler {
  public:
    void display(const std::list<std::string> &) const override {}
    void display(const std::string &) const override {}
};

/// Services of a program that reads and writes and never calculates. The handler is the factory's.
class Factory : public VarnelFactory {
  public:
    VarnelExchange *giveExchange() const override;
    VarnelErrorHandler *giveErrorHandler() const override;

  private:
    mutable std::unique_ptr<VarnelErrorHandler> errorHandler_;
};

/// A project document: the tree as it was read, the model built from it, and the tree that would be written.
class Document {
  public:
    /// Reads and parses the file. Throws Failure for one that cannot be read or is no project document, and
    /// Tools::Error with line and column for a malformed one.
    explicit Document(const std::string &path);
    Document(const Document &) = delete;
    Document &operator=(const Document &) = delete;
    ~Document();

    /// Builds the model. Throws Tools::Error for a reference to something that is not there; to the text for
    /// a material it adds the names and their places.
    void build();
    /// Numbers the model and brings the tree to what is written. The load cases stay, since the model is
    /// taken to be as it was when they were written; results go, since they are not read.
    void bringUpToDate();
    /// Puts the tree in the place of the file in one step. Throws Failure and leaves the file as it was.
    void save(const std::string &path);

    const KzXmlData &asRead() const { return *asRead_.getRoot(); }
    const KzXmlData &toBeWritten() const;
    const VarnelManager &manager() const { return *manager_; }
    const VarnelSubSystem &root() const { return *manager_->getSubSystems().front(); }

  private:
    std::string unknownMaterials() const;
    void markUnchanged();

    Factory factory_;
    std::unique_ptr<VarnelManager> manager_;
    VarnelExchangeXml *exchange_;  // the manager's
    KzXmlTree asRead_{"VARNEL"};
};

/// The subsystem and all below it, parents first.
std::vector<const VarnelSubSystem *> subSystems(const VarnelSubSystem &root);

}  // namespace varnel::tool

#endif

#include "varnel/exchange/VarnelExchangeXmlBase.h"

#include "varnel/contracts/KzXmlData.h"
#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/contracts/KzXmlTree.h"
#include "varnel/contracts/Tools/Path.h"
#include "varnel/exchange/kzifstream.h"
#include "varnel/exchange/kzofstream.h"

namespace {

constexpr const char *rootName = "VARNEL";

void updateComponents(VarnelExchangeXmlBase &exchange, const KzVector3D &vector) {
    exchange.updateValueToKey("X", vector.getX());
    exchange.updateValueToKey("Y", vector.getY());
    exchange.updateValueToKey("Z", vector.getZ());
}

/// The one keyed open behind all forms: the first match, or a new child with that key.
template <class Value>
void openKeyed(KzXmlTree &tree, const std::string &name, const std::string &key, const Value &value) {
    if (KzXmlData *cursor = tree.getCursor())
        tree.setCursor(KzXmlDataUtil::openToAttribute(cursor, name, key, value));
}

}  // namespace

VarnelExchangeXmlBase::RootCursor::RootCursor(KzXmlTree &tree) : tree_(tree) {
    tree_.setCursor(tree_.getRoot());
}

VarnelExchangeXmlBase::RootCursor::~RootCursor() {
    tree_.setCursor(tree_.getRoot());
}

VarnelExchangeXmlBase::VarnelExchangeXmlBase() : tree_(std::make_unique<KzXmlTree>(rootName)) {}

VarnelExchangeXmlBase::~VarnelExchangeXmlBase() = default;

void VarnelExchangeXmlBase::fileOutput(const Tools::Path &path) {
    putToFile(path.path());
}

void VarnelExchangeXmlBase::putToFile(const std::string &path) {
    setLastOutputOk(false);
    kzofstream file(path, std::ios_base::out);
    tree_->putToStream(file.stream(), true);
    setLastOutputOk(file.commit());
}

bool VarnelExchangeXmlBase::fileInput(const Tools::Path &path) {
    kzifstream file(path.path(true).c_str());
    if (!file.isOpen()) return false;
    // The tree is replaced as a whole once the document has been read: a malformed one throws and leaves the
    // earlier tree and its cursor as they were.
    if (!tree_->buildOfStream(file.stream())) return false;
    if (tree_->getName().empty()) tree_->setName(rootName);
    return true;
}

void VarnelExchangeXmlBase::open(const std::string &name) {
    tree_->open(name, false);
}

void VarnelExchangeXmlBase::close() {
    tree_->close();
}

void VarnelExchangeXmlBase::flush() {
    tree_->flush();
}

void VarnelExchangeXmlBase::remove(const std::string &name) {
    tree_->remove(name);
}

void VarnelExchangeXmlBase::openToAttribute(const std::string &name, const std::string &key,
                                            const std::string &value) {
    openKeyed(*tree_, name, key, value);
}

void VarnelExchangeXmlBase::openToAttribute(const std::string &name, const std::string &key, int value) {
    openKeyed(*tree_, name, key, value);
}

void VarnelExchangeXmlBase::openToAttribute(const std::string &name, const std::string &key, double value) {
    openKeyed(*tree_, name, key, value);
}

void VarnelExchangeXmlBase::openToAttribute(const std::string &name, const std::string &key,
                                            std::uint64_t value) {
    openKeyed(*tree_, name, key, value);
}

void VarnelExchangeXmlBase::updateVector(const KzVector3D &vector) {
    updateComponents(*this, vector);
}

void VarnelExchangeXmlBase::updateVectorToKey(const std::string &key, const KzVector3D &vector) {
    open(key);
    // Not through updateVector(): a derived exchange that overrides it changes free-standing vectors only.
    updateComponents(*this, vector);
    close();
}

KzVector3D VarnelExchangeXmlBase::getVector(const KzXmlData *element) const {
    double x = 0.0, y = 0.0, z = 0.0;
    KzXmlDataUtil::getVector(element, x, y, z);
    return {x, y, z};
}

bool VarnelExchangeXmlBase::getVectorToKey(const KzXmlData *element, const std::string &key,
                                           KzVector3D &out) const {
    const KzXmlData *child = element ? element->findChild(key) : nullptr;
    if (!child) return false;
    out = getVector(child);
    return true;
}

void VarnelExchangeXmlBase::setAttribute(const std::string &key, double value) {
    if (tree_->getCursor()) tree_->setAttribute(key, value);
}

void VarnelExchangeXmlBase::setAttribute(const std::string &key, int value) {
    if (KzXmlData *cursor = tree_->getCursor()) cursor->setAttribute(key, value, true);
}

void VarnelExchangeXmlBase::setAttribute(const std::string &key, bool value) {
    setAttribute(key, value ? 1 : 0);
}

void VarnelExchangeXmlBase::setAttribute(const std::string &key, const std::string &value) {
    if (KzXmlData *cursor = tree_->getCursor()) cursor->setAttribute(key, value, true);
}

void VarnelExchangeXmlBase::setAttribute(const std::string &key, const char *value) {
    setAttribute(key, std::string(value ? value : ""));
}

void VarnelExchangeXmlBase::setDataValue(double value) {
    if (KzXmlData *cursor = tree_->getCursor()) cursor->setData(value);
}

void VarnelExchangeXmlBase::setDataValue(const std::string &value) {
    if (KzXmlData *cursor = tree_->getCursor()) cursor->setData(value);
}

void VarnelExchangeXmlBase::setDataValue(const char *value) {
    setDataValue(std::string(value ? value : ""));
}

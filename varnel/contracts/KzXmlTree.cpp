#include "varnel/contracts/KzXmlTree.h"

#include <istream>
#include <ostream>

#include "varnel/contracts/XmlReader.h"
#include "varnel/contracts/XmlStore.h"
#include "varnel/contracts/XmlWriter.h"

KzXmlTree::KzXmlTree(std::string_view name)
    : store_(std::make_unique<varnel::XmlStore>()),
      root_(store_->makeElement(store_->names().give(name), nullptr)),
      cursor_(root_) {}

KzXmlTree::~KzXmlTree() {
    KzXmlData::destroy(root_);
}

KzXmlData *KzXmlTree::open(std::string_view name, bool) {
    if (!cursor_) return nullptr;
    auto *child = cursor_->findChild(name);
    return cursor_ = child ? child : cursor_->makeChild(name);
}

void KzXmlTree::close() {
    if (cursor_) cursor_ = cursor_->getParent();
}

void KzXmlTree::flush() {
    if (cursor_) cursor_->flush();
}

void KzXmlTree::flushRoot() {
    root_->flush();
    cursor_ = root_;
}

void KzXmlTree::remove(std::string_view name) {
    if (cursor_) cursor_->remove(name);
}

KzXmlData *KzXmlTree::findRoot(std::string_view name, bool deep) const {
    return root_->getName() == name ? root_ : root_->findTree(name, deep);
}

void KzXmlTree::setName(std::string_view name) {
    root_->setName(name);
}

void KzXmlTree::setAttribute(std::string_view key, double value) {
    if (cursor_) cursor_->setAttribute(key, value);
}

void KzXmlTree::putToStream(std::ostream &stream, bool indent) const {
    varnel::XmlWriter(stream, indent).write(*root_);
}

bool KzXmlTree::buildOfStream(std::istream &stream) {
    auto store = std::make_unique<varnel::XmlStore>();
    KzXmlData *root = varnel::XmlReader(stream, *store).read();
    if (!root) return false;
    KzXmlData::destroy(root_);
    store_ = std::move(store);
    cursor_ = root_ = root;
    return true;
}

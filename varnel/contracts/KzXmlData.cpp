#include "varnel/contracts/KzXmlData.h"

#include <cmath>
#include <limits>

#include "varnel/contracts/TextNumbers.h"
#include "varnel/contracts/XmlParts.h"
#include "varnel/contracts/XmlStore.h"

using varnel::NumberText;
using varnel::XmlName;

namespace {

constexpr std::size_t longList = 16;  // more children than this are worth an index

XmlName *nameFor(std::string_view text, varnel::XmlStore *store) {
    return store ? store->names().give(text) : new XmlName(text, 0);
}

/// A hint that this memory is wanted in a moment: freeing a large tree mostly waits for memory.
void fetchSoon([[maybe_unused]] const void *place) {
#if defined(__GNUC__)
    __builtin_prefetch(place);
#endif
}

/// First child of that name whose attribute `key` satisfies the test.
template <class Test>
KzXmlData *walk(const std::vector<KzXmlData *> &children, std::string_view name, std::string_view key,
                Test test) {
    for (auto *child : children) {
        if (child->getName() != name) continue;
        const auto *attribute = child->findAttribute(key);
        if (attribute && test(*attribute)) return child;
    }
    return nullptr;
}

}  // namespace

KzXmlData::KzXmlData(std::string_view name, KzXmlData *parent)
    : name_(nameFor(name, parent ? parent->nearStore() : nullptr)), parent_(parent) {}

KzXmlData::~KzXmlData() {
    if (!parts_) return;
    freeChildren();
    parts_->attributes.clear(ownArena());
    if (auto *store = ownStore())
        store->freeParts(parts_);
    else
        delete parts_;
}

void KzXmlData::destroy(KzXmlData *element) {
    if (auto *store = element->ownStore())
        store->freeElement(element, element->offset_);
    else
        delete element;
}

/// Down to the last leaf and back up, so that neither depth nor memory matters and a list that is written
/// anew finds its old places in document order.
void KzXmlData::freeChildren() {
    KzXmlData *element = this;
    for (;;) {
        while (element->parts_ && !element->parts_->children.empty()) {
            const auto &children = element->parts_->children;
            const std::size_t count = children.size();
            if (count > 2) fetchSoon(&children[count - 3]->parts_);
            if (count > 1) fetchSoon(children[count - 2]->parts_);
            element = children.back();
        }
        if (element == this) return;
        KzXmlData *parent = element->parent_;
        parent->parts_->children.pop_back();
        destroy(element);
        element = parent;
    }
}

varnel::XmlStore *KzXmlData::ownStore() const {
    return offset_ ? &varnel::XmlArena::storeAt(this, offset_) : nullptr;
}

varnel::XmlArena *KzXmlData::ownArena() const {
    auto *store = ownStore();
    return store ? &store->arena() : nullptr;
}

/// The memory of the document that this element is part of, as far as a few steps show it. An element that
/// was not added yet is part of none: it may outlive the document.
varnel::XmlStore *KzXmlData::nearStore() const {
    const KzXmlData *element = this;
    for (int steps = 0; steps < 8 && !element->offset_ && element->order_; ++steps)
        element = element->parent_;
    return element->ownStore();
}

varnel::XmlParts &KzXmlData::giveParts() {
    if (!parts_) {
        auto *store = ownStore();
        parts_ = store ? store->makeParts() : new varnel::XmlParts;
    }
    return *parts_;
}

void KzXmlData::addChild(KzXmlData *child) {
    if (!child || child->order_) return;
    auto &parts = giveParts();
    auto &children = parts.children;
    std::uint32_t order = children.empty() ? 0 : children.back()->order_;
    if (order == std::numeric_limits<std::uint32_t>::max()) {
        parts.index.reset();
        order = 0;
        for (auto *other : children) other->order_ = ++order;
    }
    children.push_back(child);
    child->parent_ = this;
    child->order_ = order + 1;
    if (parts.index) parts.index->add(*child);
}

KzXmlData *KzXmlData::makeChild(std::string_view name) {
    auto &children = giveParts().children;
    if (children.size() == children.capacity()) children.reserve(children.empty() ? 4 : children.size() * 2);
    auto *store = nearStore();
    XmlName *shared = nameFor(name, store);
    auto *child = store ? store->makeElement(shared, this) : new KzXmlData(shared, this, 0);
    addChild(child);
    return child;
}

void KzXmlData::remove(std::string_view name) {
    if (!parts_) return;
    auto &children = parts_->children;
    for (auto at = children.begin(); at != children.end(); ++at) {
        KzXmlData *child = *at;
        if (child->getName() != name) continue;
        if (parts_->index) parts_->index->remove(*child);
        children.erase(at);
        destroy(child);
        return;
    }
}

void KzXmlData::flush() {
    data_.clear();
    if (!parts_) return;
    if (auto *index = indexAbove()) index->remove(*this);
    parts_->index.reset();
    freeChildren();
    parts_->attributes.clear(ownArena());
}

void KzXmlData::setName(std::string_view name) {
    name_.reset(nameFor(name, nearStore()));
}

void KzXmlData::setData(std::string_view value) {
    data_.assign(value);
}

void KzXmlData::setData(double value) {
    data_.assign(NumberText(value).view());
}

const std::vector<KzXmlData *> &KzXmlData::getChildren() const {
    static const std::vector<KzXmlData *> none;
    return parts_ ? parts_->children : none;
}

void KzXmlData::setAttribute(std::string_view key, std::string_view value, bool) {
    auto *index = indexAbove();
    auto *attribute = findAttribute(key);
    if (!attribute) {
        const varnel::Held<XmlName> name(nameFor(key, nearStore()));
        attribute = giveParts().attributes.append(name.get(), value, ownArena());
    } else if (attribute->data_ != value) {
        if (index) index->removeValue(*this, *attribute);
        attribute->data_.assign(value);
    } else {
        return;
    }
    if (index) index->addValue(*this, *attribute);
}

void KzXmlData::setAttribute(std::string_view key, int value, bool) {
    setAttribute(key, NumberText(value).view());
}

void KzXmlData::setAttribute(std::string_view key, std::uint64_t value, bool) {
    setAttribute(key, NumberText(value).view());
}

void KzXmlData::setAttribute(std::string_view key, double value) {
    setAttribute(key, NumberText(value).view());
}

KzXmlAttributeData *KzXmlData::findAttribute(std::string_view key) const {
    return parts_ ? parts_->attributes.find(key) : nullptr;
}

std::vector<const KzXmlAttributeData *> KzXmlData::getAttributes() const {
    std::vector<const KzXmlAttributeData *> attributes;
    if (parts_)
        parts_->attributes.each(
            [&](const KzXmlAttributeData &attribute) { attributes.push_back(&attribute); });
    return attributes;
}

KzXmlData *KzXmlData::findChild(std::string_view name) const {
    for (auto *child : getChildren())
        if (child->getName() == name) return child;
    return nullptr;
}

varnel::XmlChildIndex *KzXmlData::indexAbove() const {
    return order_ && parent_->parts_ ? parent_->parts_->index.get() : nullptr;
}

/// Null for a short list, which is walked.
varnel::XmlChildIndex *KzXmlData::giveIndex() const {
    if (getChildren().size() <= longList) return nullptr;
    if (!parts_->index) parts_->index = std::make_unique<varnel::XmlChildIndex>(parts_->children);
    return parts_->index.get();
}

KzXmlData *KzXmlData::findChildToAttribute(std::string_view name, std::string_view key,
                                           std::string_view value) const {
    if (auto *index = giveIndex()) return index->find(name, key, value);
    return walk(getChildren(), name, key,
                [value](const KzXmlAttributeData &attribute) { return attribute.checkValue(value); });
}

KzXmlData *KzXmlData::findChildToAttribute(std::string_view name, std::string_view key, int value) const {
    if (auto *index = giveIndex()) return index->find(name, key, varnel::wholeInteger(value));
    return walk(getChildren(), name, key,
                [value](const KzXmlAttributeData &attribute) { return attribute.checkValue(value); });
}

KzXmlData *KzXmlData::findChildToAttribute(std::string_view name, std::string_view key,
                                           std::uint64_t value) const {
    if (auto *index = giveIndex()) return index->find(name, key, varnel::WholeInteger{false, value});
    return walk(getChildren(), name, key,
                [value](const KzXmlAttributeData &attribute) { return attribute.checkValue(value); });
}

KzXmlData *KzXmlData::findChildToAttribute(std::string_view name, std::string_view key, double value,
                                           double tolerance) const {
    if (auto *index = giveIndex()) return index->find(name, key, value, tolerance);
    return walk(getChildren(), name, key, [=](const KzXmlAttributeData &attribute) {
        return std::fabs(attribute.getDouble() - value) < tolerance;
    });
}

KzXmlData *KzXmlData::findTree(std::string_view name, bool deep) const {
    if (!deep) return findChild(name);
    std::vector<const KzXmlData *> level{this};
    std::vector<const KzXmlData *> next;
    while (!level.empty()) {
        for (const auto *element : level) {
            if (auto *found = element->findChild(name)) return found;
            for (const auto *child : element->getChildren())
                if (!child->getChildren().empty()) next.push_back(child);
        }
        level.swap(next);
        next.clear();
    }
    return nullptr;
}

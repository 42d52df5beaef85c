#include "varnel/contracts/KzXmlDataUtil.h"

#include "varnel/contracts/KzXmlData.h"
#include "varnel/contracts/TextNumbers.h"

namespace {

constexpr double keyTolerance = 0.001;

const KzXmlAttributeData *attributeOf(const KzXmlData *data, std::string_view key) {
    return data ? data->findAttribute(key) : nullptr;
}

const KzXmlData *childOf(const KzXmlData *data, std::string_view name) {
    return data ? data->findChild(name) : nullptr;
}

/// The child that was found, or a new one with that attribute.
template <class Value>
KzXmlData *keyed(KzXmlData *found, KzXmlData *data, std::string_view name, std::string_view key,
                 Value value) {
    if (found) return found;
    KzXmlData *child = data->makeChild(name);
    child->setAttribute(key, value);
    return child;
}

}  // namespace

bool KzXmlDataUtil::getVector(const KzXmlData *data, double &x, double &y, double &z) {
    const bool hasX = readValToChild(data, "X", x);
    const bool hasY = readValToChild(data, "Y", y);
    const bool hasZ = readValToChild(data, "Z", z);
    return hasX || hasY || hasZ;
}

std::string KzXmlDataUtil::getAttributeString(const KzXmlData *data, std::string_view key) {
    const auto *attribute = attributeOf(data, key);
    return attribute ? attribute->getData() : std::string();
}

int KzXmlDataUtil::getChildInt(const KzXmlData *data, std::string_view key) {
    const auto *child = childOf(data, key);
    return child ? varnel::readInteger(child->getData()) : 0;
}

double KzXmlDataUtil::getChildDouble(const KzXmlData *data, std::string_view key) {
    const auto *child = childOf(data, key);
    return child ? varnel::readDouble(child->getData()) : 0.0;
}

bool KzXmlDataUtil::readValToAttribute(const KzXmlData *data, std::string_view key, double &value) {
    const auto *attribute = attributeOf(data, key);
    if (attribute) value = attribute->getDouble();
    return attribute;
}

bool KzXmlDataUtil::readValToAttribute(const KzXmlData *data, std::string_view key, bool &value) {
    const auto *attribute = attributeOf(data, key);
    if (attribute) value = attribute->getInteger() != 0;
    return attribute;
}

bool KzXmlDataUtil::readValToAttribute(const KzXmlData *data, std::string_view key, int &value) {
    const auto *attribute = attributeOf(data, key);
    if (attribute) value = attribute->getInteger();
    return attribute;
}

bool KzXmlDataUtil::readValToAttribute(const KzXmlData *data, std::string_view key, std::string &value) {
    const auto *attribute = attributeOf(data, key);
    if (attribute) value = attribute->getData();
    return attribute;
}

bool KzXmlDataUtil::readValToChild(const KzXmlData *data, std::string_view key, double &value) {
    const auto *child = childOf(data, key);
    if (child) value = varnel::readDouble(child->getData());
    return child;
}

KzXmlData *KzXmlDataUtil::openToAttribute(KzXmlData *data, std::string_view name, std::string_view key,
                                          std::uint64_t value) {
    return data ? keyed(data->findChildToAttribute(name, key, value), data, name, key, value) : nullptr;
}

KzXmlData *KzXmlDataUtil::openToAttribute(KzXmlData *data, std::string_view name, std::string_view key,
                                          int value) {
    return data ? keyed(data->findChildToAttribute(name, key, value), data, name, key, value) : nullptr;
}

KzXmlData *KzXmlDataUtil::openToAttribute(KzXmlData *data, std::string_view name, std::string_view key,
                                          double value) {
    return data ? keyed(data->findChildToAttribute(name, key, value, keyTolerance), data, name, key, value)
                : nullptr;
}

KzXmlData *KzXmlDataUtil::openToAttribute(KzXmlData *data, std::string_view name, std::string_view key,
                                          std::string_view value) {
    return data ? keyed(data->findChildToAttribute(name, key, value), data, name, key, value) : nullptr;
}

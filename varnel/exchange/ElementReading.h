#ifndef VARNEL_EXCHANGE_ELEMENTREADING_H
#define VARNEL_EXCHANGE_ELEMENTREADING_H

#include <cstddef>

#include "varnel/contracts/KzXmlAttributeData.h"
#include "varnel/contracts/KzXmlData.h"

/// How readers take values: what is there is handed on, what is missing leaves everything as it was.
namespace varnel {

inline int readInt(const KzXmlData *element, const char *key, int missing) {
    const KzXmlAttributeData *attribute = element ? element->findAttribute(key) : nullptr;
    return attribute ? attribute->getInteger() : missing;
}

inline double readDouble(const KzXmlData *element, const char *key, double missing) {
    const KzXmlAttributeData *attribute = element ? element->findAttribute(key) : nullptr;
    return attribute ? attribute->getDouble() : missing;
}

template <class Setter>
bool ifInt(const KzXmlData *element, const char *key, Setter setter) {
    const KzXmlAttributeData *attribute = element ? element->findAttribute(key) : nullptr;
    if (attribute) setter(attribute->getInteger());
    return attribute != nullptr;
}

/// Any number but 0 is true.
template <class Setter>
bool ifBool(const KzXmlData *element, const char *key, Setter setter) {
    return ifInt(element, key, [&setter](int value) { setter(value != 0); });
}

template <class Setter>
bool ifDouble(const KzXmlData *element, const char *key, Setter setter) {
    const KzXmlAttributeData *attribute = element ? element->findAttribute(key) : nullptr;
    if (attribute) setter(attribute->getDouble());
    return attribute != nullptr;
}

template <class Setter>
bool ifText(const KzXmlData *element, const char *key, Setter setter) {
    const KzXmlAttributeData *attribute = element ? element->findAttribute(key) : nullptr;
    if (attribute) setter(attribute->getData());
    return attribute != nullptr;
}

/// Calls `reader` for every child of the element; null has none. A reader of a host may add or remove
/// children meanwhile: those behind the present one are read as they then stand.
template <class Reader>
void eachChild(KzXmlData *element, Reader reader) {
    if (!element) return;
    for (std::size_t i = 0; i < element->getChildren().size(); ++i) reader(element->getChildren()[i]);
}

template <class Reader>
void eachChild(KzXmlData *element, const char *name, Reader reader) {
    eachChild(element, [&reader, name](KzXmlData *child) {
        if (child->getName() == name) reader(child);
    });
}

}  // namespace varnel

#endif

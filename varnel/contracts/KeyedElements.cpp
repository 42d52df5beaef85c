#include "varnel/contracts/KeyedElements.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "varnel/contracts/KzXmlData.h"
#include "varnel/contracts/KzXmlDataUtil.h"

namespace varnel {

namespace {

void copyElement(const KzXmlData &from, KzXmlData &to) {
    to.setData(from.getData());
    for (const KzXmlAttributeData *attribute : from.getAttributes())
        to.setAttribute(attribute->getKey(), attribute->getData());
}

/// Copies text, attributes and all that is below, apart from the direct children that the test picks.
template <class Test>
void copyContent(const KzXmlData &from, KzXmlData &to, Test dropped) {
    copyElement(from, to);
    std::vector<std::pair<const KzXmlData *, KzXmlData *>> open;
    for (const KzXmlData *child : from.getChildren())
        if (!dropped(child)) open.emplace_back(child, to.makeChild(child->getName()));
    while (!open.empty()) {
        const auto [source, target] = open.back();
        open.pop_back();
        copyElement(*source, *target);
        for (const KzXmlData *child : source->getChildren())
            open.emplace_back(child, target->makeChild(child->getName()));
    }
}

}  // namespace

KzXmlData *giveChild(KzXmlData &element, std::string_view name) {
    KzXmlData *child = element.findChild(name);
    return child ? child : element.makeChild(name);
}

KzXmlData *KeyedElements::give(std::string_view value) {
    return once(KzXmlDataUtil::openToAttribute(parent_, name_, key_, value));
}

KzXmlData *KeyedElements::give(int value) {
    return once(KzXmlDataUtil::openToAttribute(parent_, name_, key_, value));
}

KzXmlData *KeyedElements::once(KzXmlData *element) {
    return given_.insert(element).second ? element : nullptr;
}

void KeyedElements::dropOthers() {
    const auto dropped = [this](const KzXmlData *child) {
        return child->getName() == name_ && given_.count(child) == 0;
    };
    const auto &children = parent_->getChildren();
    if (std::none_of(children.begin(), children.end(), dropped)) return;
    KzXmlData rest(parent_->getName(), nullptr);
    copyContent(*parent_, rest, dropped);
    parent_->flush();
    copyContent(rest, *parent_, [](const KzXmlData *) { return false; });
    given_.clear();
}

}  // namespace varnel

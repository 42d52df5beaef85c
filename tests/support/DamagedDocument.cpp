#include "tests/support/DamagedDocument.h"

#include <algorithm>

#include "varnel/contracts/KzXmlAttributeData.h"
#include "varnel/contracts/KzXmlData.h"

namespace varnel::test {

namespace {

constexpr std::size_t mostElements = 4000;  // copies of copies grow without bounds

void printEscaped(const std::string &value, std::string &text) {
    for (const char letter : value) {
        switch (letter) {
            case '<':
                text += "&lt;";
                break;
            case '&':
                text += "&amp;";
                break;
            case '"':
                text += "&quot;";
                break;
            case '\t':
                text += "&#9;";
                break;
            case '\n':
                text += "&#10;";
                break;
            case '\r':
                text += "&#13;";
                break;
            default:
                text += letter;
        }
    }
}

}  // namespace

DamagedDocument::DamagedDocument(const KzXmlData *root) {
    if (root) root_ = copyOf(*root);
}

DamagedDocument::Element DamagedDocument::copyOf(const KzXmlData &element) {
    Element copy{element.getName(), element.getData(), {}, {}};
    for (const KzXmlAttributeData *attribute : element.getAttributes())
        copy.attributes.emplace_back(attribute->getKey(), attribute->getData());
    for (const KzXmlData *child : element.getChildren()) copy.children.push_back(copyOf(*child));
    return copy;
}

void DamagedDocument::collect(Element &element, std::vector<Element *> &all) {
    all.push_back(&element);
    for (Element &child : element.children) collect(child, all);
}

void DamagedDocument::print(const Element &element, std::string &text) {
    text += '<' + element.name;
    for (const auto &[key, value] : element.attributes) {
        text += ' ' + key + "=\"";
        printEscaped(value, text);
        text += '"';
    }
    text += '>';
    printEscaped(element.text, text);
    for (const Element &child : element.children) print(child, text);
    text += "</" + element.name + '>';
}

std::string DamagedDocument::text() const {
    std::string text;
    if (!root_.name.empty()) print(root_, text);
    return text;
}

void DamagedDocument::damage(Random &random) {
    std::vector<Element *> all;
    collect(root_, all);
    Element &element = *random.of(all);
    if (random.oneIn(2))
        damageValue(random, all, element);
    else
        damageStructure(random, all, element);
}

/// A number that is hard on readers, or a value from elsewhere in the document.
std::string DamagedDocument::value(Random &random, const std::vector<Element *> &all) {
    static const std::vector<std::string> values = {
        "",    "0",   "-1",    "1",   "2",    "7",     "2147483647", "-2147483648", "99999999999999999999",
        "0.5", "1.1", "-0.0",  "nan", "-inf", "1e308", "1e-320",     "0x10",        "twelve",
        " 3 ", "C30", "CIRCLE"};
    if (random.oneIn(2)) return random.of(values);
    const Element &other = *random.of(all);
    return other.attributes.empty() ? other.text : random.of(other.attributes).second;
}

void DamagedDocument::damageValue(Random &random, const std::vector<Element *> &all, Element &element) {
    auto &attributes = element.attributes;
    if (attributes.empty() || random.oneIn(4)) {
        element.text = value(random, all);
        return;
    }
    const auto attribute = attributes.begin() + random.below(static_cast<int>(attributes.size()));
    switch (random.below(4)) {
        case 0:
            attributes.erase(attribute);
            break;
        case 1: {
            const Element &other = *random.of(all);
            if (other.attributes.empty()) break;
            const std::string key = random.of(other.attributes).first;
            const bool known = std::any_of(attributes.begin(), attributes.end(),
                                           [&key](const auto &one) { return one.first == key; });
            if (!known) attributes.emplace_back(key, value(random, all));
            break;
        }
        default:
            attribute->second = value(random, all);
    }
}

void DamagedDocument::damageStructure(Random &random, const std::vector<Element *> &all, Element &element) {
    auto &children = element.children;
    if (children.empty()) {
        element.name = random.of(all)->name;
        return;
    }
    const int count = static_cast<int>(children.size());
    const auto child = children.begin() + random.below(count);
    switch (random.below(5)) {
        case 0:
            children.erase(child);
            break;
        case 1:
            if (all.size() < mostElements) children.push_back(Element(*child));
            break;
        case 2: {
            if (all.size() > mostElements) break;
            const Element other = *random.of(all);
            children.insert(children.begin() + random.below(count), other);
            break;
        }
        case 3:
            child->name = random.of(all)->name;
            break;
        default:
            std::swap(*child, children[static_cast<std::size_t>(random.below(count))]);
    }
}

}  // namespace varnel::test

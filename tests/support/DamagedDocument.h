#ifndef VARNEL_TESTS_SUPPORT_DAMAGEDDOCUMENT_H
#define VARNEL_TESTS_SUPPORT_DAMAGEDDOCUMENT_H

#include <string>
#include <utility>
#include <vector>

#include "tests/support/RandomModel.h"

class KzXmlData;

namespace varnel::test {

/// A document that is damaged piece by piece and stays well-formed: elements are lost, doubled, moved and
/// renamed, values become ones that nobody expects.
class DamagedDocument {
  public:
    /// Null makes an empty document.
    explicit DamagedDocument(const KzXmlData *root);

    /// Does one harm.
    void damage(Random &random);
    std::string text() const;

  private:
    struct Element {
        std::string name;
        std::string text;
        std::vector<std::pair<std::string, std::string>> attributes;
        std::vector<Element> children;
    };

    static Element copyOf(const KzXmlData &element);
    static void collect(Element &element, std::vector<Element *> &all);
    static void print(const Element &element, std::string &text);
    static std::string value(Random &random, const std::vector<Element *> &all);
    static void damageValue(Random &random, const std::vector<Element *> &all, Element &element);
    static void damageStructure(Random &random, const std::vector<Element *> &all, Element &element);

    Element root_;
};

}  // namespace varnel::test

#endif

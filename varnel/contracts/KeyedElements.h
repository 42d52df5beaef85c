#ifndef VARNEL_CONTRACTS_KEYEDELEMENTS_H
#define VARNEL_CONTRACTS_KEYEDELEMENTS_H

#include <string_view>
#include <unordered_set>

class KzXmlData;

namespace varnel {

/// The first child of that name, made if there is none.
KzXmlData *giveChild(KzXmlData &element, std::string_view name);

/// Writes a list of elements of one name, which differ in a key attribute, over what is there already:
/// elements that stay keep their place and what others wrote into them.
class KeyedElements {
  public:
    /// The elements `name` below `parent`, which is lent and not null. `name` and `key` are literals.
    KeyedElements(KzXmlData *parent, std::string_view name, std::string_view key)
        : parent_(parent), name_(name), key_(key) {}

    /// The element with that key, found or made. Null if the key was given before: the first object wins.
    KzXmlData *give(std::string_view value);
    KzXmlData *give(int value);
    /// Drops the elements of the name that were not given.
    void dropOthers();

  private:
    KzXmlData *once(KzXmlData *element);

    KzXmlData *parent_;
    std::string_view name_;
    std::string_view key_;
    std::unordered_set<const KzXmlData *> given_;
};

}  // namespace varnel

#endif

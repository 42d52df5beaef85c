#ifndef VARNEL_CONTRACTS_KZXMLDATA_H
#define VARNEL_CONTRACTS_KZXMLDATA_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzXmlAttributeData.h"
#include "varnel/contracts/XmlName.h"

namespace varnel {
class XmlArena;
class XmlAttributes;
class XmlChildIndex;
class XmlReader;
class XmlStore;
class XmlWriter;
struct XmlParts;
}  // namespace varnel

/// One element of a document: a name, a text, attributes and children. All text is UTF-8.
/// Children are owned. Nothing here recurses, so elements may be nested to any depth.
class VARNEL_EXPORT KzXmlData {
  public:
    /// An element that knows its parent (null for a root) but is not among its children yet.
    KzXmlData(std::string_view name, KzXmlData *parent);
    KzXmlData(const KzXmlData &) = delete;
    KzXmlData &operator=(const KzXmlData &) = delete;
    virtual ~KzXmlData();

    /// Appends a child, which is owned from then on. Null and one that an element owns already are ignored.
    void addChild(KzXmlData *child);
    /// Makes an element and appends it: as `addChild(new KzXmlData(name, this))`, from the document's own
    /// memory where there is one.
    KzXmlData *makeChild(std::string_view name);
    /// Frees the first child of that name, if there is one.
    void remove(std::string_view name);
    /// Frees all children and drops text and attributes.
    void flush();

    const std::string &getName() const { return name_->text; }
    const std::string &getData() const { return data_; }
    void setData(std::string_view value);
    /// The shortest text that reads back as the same number.
    void setData(double value);
    /// Null for a root.
    KzXmlData *getParent() const { return parent_; }
    /// The direct children in document order.
    const std::vector<KzXmlData *> &getChildren() const;

    /// Sets an attribute; one of the same key takes the new value in its place. The flag has no meaning.
    void setAttribute(std::string_view key, std::string_view value, bool flag = true);
    void setAttribute(std::string_view key, int value, bool flag = true);
    void setAttribute(std::string_view key, std::uint64_t value, bool flag = true);
    void setAttribute(std::string_view key, double value);
    /// Null without such an attribute.
    KzXmlAttributeData *findAttribute(std::string_view key) const;
    /// The attributes in the order in which they were first set.
    std::vector<const KzXmlAttributeData *> getAttributes() const;

    /// First direct child of that name, or null.
    KzXmlData *findChild(std::string_view name) const;
    /// First direct child of that name whose attribute `key` has the value, in the sense of
    /// KzXmlAttributeData::checkValue, or null. Long lists answer from an index.
    KzXmlData *findChildToAttribute(std::string_view name, std::string_view key,
                                    std::string_view value) const;
    KzXmlData *findChildToAttribute(std::string_view name, std::string_view key, int value) const;
    KzXmlData *findChildToAttribute(std::string_view name, std::string_view key, std::uint64_t value) const;
    /// First direct child of that name whose attribute `key`, as a number, is nearer to the value than the
    /// tolerance; a child at the tolerance is none.
    KzXmlData *findChildToAttribute(std::string_view name, std::string_view key, double value,
                                    double tolerance) const;
    /// Looks below this element: first direct child of that name; deep: the nearest descendant, level by
    /// level. Null when there is none.
    KzXmlData *findTree(std::string_view name, bool deep) const;

  private:
    friend class KzXmlTree;
    friend class varnel::XmlChildIndex;
    friend class varnel::XmlReader;
    friend class varnel::XmlStore;
    friend class varnel::XmlWriter;

    KzXmlData(varnel::XmlName *name, KzXmlData *parent, std::uint32_t offset, std::string_view text = {})
        : name_(name), parent_(parent), data_(text), offset_(offset) {}

    static void destroy(KzXmlData *element);
    varnel::XmlStore *ownStore() const;
    varnel::XmlArena *ownArena() const;
    varnel::XmlStore *nearStore() const;
    varnel::XmlParts &giveParts();
    void freeChildren();
    void setName(std::string_view name);
    varnel::XmlChildIndex *indexAbove() const;
    varnel::XmlChildIndex *giveIndex() const;

    varnel::Held<varnel::XmlName> name_;
    KzXmlData *parent_;
    std::string data_;
    varnel::XmlParts *parts_ = nullptr;  // owned; most elements are leaves and need none
    std::uint32_t order_ = 0;            // rises from child to child; 0: not among the parent's children
    std::uint32_t offset_ = 0;           // place in a chunk of the document's memory; 0: an object by itself
};

#endif

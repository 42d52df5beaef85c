#ifndef VARNEL_CONTRACTS_KZXMLTREE_H
#define VARNEL_CONTRACTS_KZXMLTREE_H

#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzXmlData.h"

/// A document: one root element and a cursor, the current element, at which writers work. The cursor may be
/// null; every operation on it then does nothing. Not copyable.
class VARNEL_EXPORT KzXmlTree {
  public:
    /// A root of that name with the cursor on it.
    explicit KzXmlTree(std::string_view name);
    KzXmlTree(const KzXmlTree &) = delete;
    KzXmlTree &operator=(const KzXmlTree &) = delete;
    virtual ~KzXmlTree();

    KzXmlData *getCursor() const { return cursor_; }
    /// Null or an element of this tree.
    void setCursor(KzXmlData *cursor) { cursor_ = cursor; }

    /// Moves the cursor to its first child of that name, which is made if there is none. The flag has no
    /// meaning.
    KzXmlData *open(std::string_view name, bool flag = false);
    /// Moves the cursor to its parent: null above the root.
    void close();
    /// Frees the children of the cursor and drops its text and attributes.
    void flush();
    /// Empties the root in the same way and puts the cursor on it.
    void flushRoot();
    /// Frees the first child of the cursor that has this name.
    void remove(std::string_view name);

    /// The root itself if it has that name, else what KzXmlData::findTree of the root finds.
    KzXmlData *findRoot(std::string_view name, bool deep = false) const;
    /// Owned by the tree; replaced when a document was read.
    KzXmlData *getRoot() const { return root_; }
    /// The root's name.
    std::string getName() const { return root_->getName(); }
    void setName(std::string_view name);

    /// Sets an attribute of the cursor.
    void setAttribute(std::string_view key, double value);

    /// Writes the document as UTF-8; without the flag on one line. A failure shows in the stream's state.
    void putToStream(std::ostream &stream, bool indent = true) const;
    /// Replaces this tree by the document in the stream, with the cursor on its root; an empty stream gives
    /// a root without a name. Throws Tools::Error with line and column if the document is malformed; false
    /// if the stream cannot be read. In both cases the tree and its cursor stay as they were, so that there
    /// is no need to empty the tree first.
    bool buildOfStream(std::istream &stream);

  private:
    std::unique_ptr<varnel::XmlStore> store_;  // memory of the elements: outlives them
    KzXmlData *root_;
    KzXmlData *cursor_;
};

#endif

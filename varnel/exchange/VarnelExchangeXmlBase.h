#ifndef VARNEL_EXCHANGE_VARNELEXCHANGEXMLBASE_H
#define VARNEL_EXCHANGE_VARNELEXCHANGEXMLBASE_H

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>

#include "varnel/contracts/KzVector3D.h"
#include "varnel/exchange/VarnelExchange.h"

class KzXmlData;
class KzXmlTree;

/// The XML tree of a project document with the cursor operations by which every writer works. The tree lives
/// as long as the exchange: what no writer touches survives from reading to writing.
class VARNEL_EXPORT VarnelExchangeXmlBase : public VarnelExchange {
  public:
    /// A tree with the root "VARNEL", cursor on the root.
    VarnelExchangeXmlBase();
    VarnelExchangeXmlBase(const VarnelExchangeXmlBase &) = delete;
    VarnelExchangeXmlBase &operator=(const VarnelExchangeXmlBase &) = delete;
    ~VarnelExchangeXmlBase() override;

    void fileOutput(const Tools::Path &path) override;
    bool fileInput(const Tools::Path &path) override;
    void open(const std::string &name) override;
    void close() override;
    /// The components as children "X", "Y" and "Z" with the number as text.
    void updateVector(const KzVector3D &vector) override;
    /// All forms do nothing when the cursor is null. An integer or a text matches exactly, a double within
    /// 0.001.
    void openToAttribute(const std::string &name, const std::string &key, const std::string &value) override;
    void openToAttribute(const std::string &name, const std::string &key, double value) override;
    void openToAttribute(const std::string &name, const std::string &key, int value) override;
    void flush() override;
    virtual void openToAttribute(const std::string &name, const std::string &key, std::uint64_t value);

    /// A child `key` with the three components.
    void updateVectorToKey(const std::string &key, const KzVector3D &vector);
    /// The children "X", "Y", "Z"; missing ones and a null element count as 0.
    KzVector3D getVector(const KzXmlData *element) const;
    /// The vector of the child `key`; without one false, and `out` stays.
    bool getVectorToKey(const KzXmlData *element, const std::string &key, KzVector3D &out) const;
    /// Removes the child of that name of the element at the cursor.
    void remove(const std::string &name);

    /// Attributes and text of the element at the cursor; nothing when the cursor is null. A bool is written
    /// as 1 or 0, an enumeration as its number.
    void setAttribute(const std::string &key, double value);
    void setAttribute(const std::string &key, int value);
    void setAttribute(const std::string &key, bool value);
    void setAttribute(const std::string &key, const std::string &value);
    void setAttribute(const std::string &key, const char *value);
    template <class Enum, class = std::enable_if_t<std::is_enum<Enum>::value>>
    void setAttribute(const std::string &key, Enum value) {
        setAttribute(key, static_cast<int>(value));
    }
    void setDataValue(double value);
    void setDataValue(const std::string &value);
    void setDataValue(const char *value);
    /// A child `key` with the value as its text.
    template <class Value>
    void updateValueToKey(const std::string &key, const Value &value) {
        open(key);
        setDataValue(value);
        close();
    }

  protected:
    /// Puts the cursor on the root now and, however the scope is left, at its end.
    class RootCursor {
      public:
        explicit RootCursor(KzXmlTree &tree);
        RootCursor(const RootCursor &) = delete;
        RootCursor &operator=(const RootCursor &) = delete;
        ~RootCursor();

      private:
        KzXmlTree &tree_;
    };

    KzXmlTree &tree() const { return *tree_; }
    /// The document into a file that is replaced only when everything has been written.
    void putToFile(const std::string &path);

  private:
    std::unique_ptr<KzXmlTree> tree_;
};

#endif

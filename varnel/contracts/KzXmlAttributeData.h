#ifndef VARNEL_CONTRACTS_KZXMLATTRIBUTEDATA_H
#define VARNEL_CONTRACTS_KZXMLATTRIBUTEDATA_H

#include <cstdint>
#include <string>
#include <string_view>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/XmlName.h"

namespace varnel {
class XmlWriter;
}

/// One attribute of an element: a key and a text. It stays where it is as long as its element keeps it.
class VARNEL_EXPORT KzXmlAttributeData {
  public:
    KzXmlAttributeData(varnel::XmlName *key, std::string_view value) : key_(key), data_(value) {}
    KzXmlAttributeData(const KzXmlAttributeData &) = delete;
    KzXmlAttributeData &operator=(const KzXmlAttributeData &) = delete;

    const std::string &getKey() const { return key_->text; }
    const std::string &getData() const { return data_; }
    /// The longest integer at the start of the text, 0 without one; values out of range saturate.
    int getInteger() const;
    /// The longest number at the start of the text, 0 without one; too large is infinite.
    double getDouble() const;

    /// Whether the whole text, blanks around it aside, is that integer ("7", " +07 ").
    bool checkValue(int value) const;
    bool checkValue(std::uint64_t value) const;
    /// Whether the text equals the string, byte by byte.
    bool checkValue(std::string_view value) const { return data_ == value; }

  private:
    friend class KzXmlData;
    friend class varnel::XmlWriter;

    varnel::Held<varnel::XmlName> key_;
    std::string data_;
};

#endif

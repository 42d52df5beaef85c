#ifndef VARNEL_CONTRACTS_XMLWRITER_H
#define VARNEL_CONTRACTS_XMLWRITER_H

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

class KzXmlData;

namespace varnel {

class XmlAttributes;
struct XmlName;

/// Writes elements as a document that is well-formed whatever they hold.
class XmlWriter {
  public:
    XmlWriter(std::ostream &stream, bool indent);
    XmlWriter(const XmlWriter &) = delete;
    XmlWriter &operator=(const XmlWriter &) = delete;

    void write(const KzXmlData &root);

  private:
    bool begin(const KzXmlData &element, std::size_t level, bool inRow);
    bool putPlainLeaf(const XmlName &name, const std::string &text, bool inRow);
    void putEndTag(const XmlName &name, bool inRow);
    void putAttributes(const XmlAttributes &attributes);
    bool putPlainAttribute(const XmlName &key, const std::string &value);
    void putIndent(std::size_t level);
    void putName(const XmlName &name);
    void putEscaped(std::string_view text, bool inAttribute);
    const char *putSpecial(const char *at, const char *end, bool inAttribute);
    void put(std::string_view text);
    void put(char c);
    void giveRoom(std::size_t size);
    void flush();

    std::ostream &stream_;
    const bool indent_;
    std::unique_ptr<char[]> buffer_;
    char *at_;
    char *const end_;
};

}  // namespace varnel

#endif

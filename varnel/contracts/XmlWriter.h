#ifndef VARNEL_CONTRACTS_XMLWRITER_H
#define VARNEL_CONTRACTS_XMLWRITER_H

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string_view>

class KzXmlData;

namespace varnel {

/// Writes elements as a document that is well-formed whatever they hold.
class XmlWriter {
  public:
    XmlWriter(std::ostream &stream, bool indent);
    XmlWriter(const XmlWriter &) = delete;
    XmlWriter &operator=(const XmlWriter &) = delete;

    void write(const KzXmlData &root);

  private:
    bool begin(const KzXmlData &element, std::size_t level, bool inRow);
    void end(const KzXmlData &element);
    void putAttributes(const KzXmlData &element);
    void putIndent(std::size_t level);
    void putName(std::string_view name);
    void putEscaped(std::string_view text, bool inAttribute);
    const char *putSpecial(const char *at, const char *end, bool inAttribute);
    void put(std::string_view text);
    void put(char c);
    void flush();

    std::ostream &stream_;
    const bool indent_;
    std::unique_ptr<char[]> buffer_;
    std::size_t size_ = 0;
};

}  // namespace varnel

#endif

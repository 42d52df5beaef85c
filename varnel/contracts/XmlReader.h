#ifndef VARNEL_CONTRACTS_XMLREADER_H
#define VARNEL_CONTRACTS_XMLREADER_H

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "varnel/contracts/TextWindow.h"
#include "varnel/contracts/XmlStore.h"

class KzXmlData;

namespace varnel {

/// Reads one document into elements. Each piece of it (a tag, a run of text, a comment) is taken in whole: if
/// the window ends within one, nothing has happened yet and the piece is read anew in a larger window.
class XmlReader {
  public:
    XmlReader(std::istream &stream, XmlStore &store) : window_(stream), store_(store) {}
    XmlReader(const XmlReader &) = delete;
    XmlReader &operator=(const XmlReader &) = delete;
    ~XmlReader();

    /// The root, which is the caller's, made from the store; one without a name if there is no text but
    /// blanks. Null if the stream cannot be read. Throws Tools::Error if the document is malformed.
    KzXmlData *read();

    /// Elements may be nested to this depth.
    static constexpr std::size_t deepest = 1000;

  private:
    struct Open {
        KzXmlData *element;
        std::size_t firstChild;  // in children_
    };
    struct Attribute {
        XmlName *key;
        const char *begin;
        const char *end;
        bool plain;  // stands for itself
    };

    bool readPiece() { return open_.empty() ? readOutside() : readInside(); }
    bool readOutside();
    bool readInside();
    bool readText(const char *at);
    bool readMarkup();
    bool readStartTag();
    bool readEndTag();
    bool readComment();
    bool readCharacterData();
    bool readInstruction();
    void readDeclaration(std::string_view content);
    void checkEncoding(std::string_view name);

    bool passText(const char *&at, bool &plain) const;
    bool passAttributes(const char *&at);
    bool passAttribute(const char *&at);
    bool passValue(const char *&at, char quote, bool &plain) const;
    bool passBlanks(const char *&at) const;
    bool passName(const char *&at) const;
    XmlName *takeName(const char *&at);
    bool passContent(const char *&at, std::string_view mark) const;
    bool startsWith(std::string_view text, bool &cut) const;

    void settleText(std::string_view text, bool plain, bool blanks, bool closing);
    void appendDecoded(std::string &to, std::string_view text, bool inAttribute) const;
    const char *appendReference(std::string &to, const char *at, const char *end) const;
    char32_t numberedCharacter(std::string_view digits, const char *at) const;
    bool readPlainLeaf(XmlName &name, const char *at);
    void openElement(XmlName *name);
    void fillAttributes(KzXmlData &element) const;
    void closeElement();

    [[noreturn]] void fail(const char *at, const std::string &what) const;
    [[noreturn]] void failAtCharacter(const char *at, const std::string &expected) const;

    TextWindow window_;
    XmlStore &store_;
    const char *at_ = nullptr;  // all before it has been taken in
    bool begun_ = false;        // something but blanks was found
    bool mayDeclare_ = false;   // the document begins with a declaration, which is still to come
    KzXmlData *root_ = nullptr;
    std::vector<Open> open_;
    std::vector<KzXmlData *> children_;  // closed elements whose parents are still open
    std::vector<Attribute> attributes_;
    std::string pending_;  // text since the last tag, up to a comment or the like
    XmlName *lastName_ = nullptr;
    std::uint64_t tag_ = 0;
};

}  // namespace varnel

#endif

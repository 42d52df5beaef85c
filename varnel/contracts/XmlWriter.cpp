#include "varnel/contracts/XmlWriter.h"

#include <algorithm>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "varnel/contracts/KzXmlData.h"
#include "varnel/contracts/TextEncoding.h"
#include "varnel/contracts/XmlCharacters.h"
#include "varnel/contracts/XmlParts.h"
#include "varnel/contracts/XmlReader.h"
#include "varnel/contracts/XmlScan.h"

namespace varnel {

using xml::is;

namespace {

constexpr std::size_t capacity = std::size_t{1} << 16;
constexpr std::ptrdiff_t behind = 128;  // beyond the end there is room for short pieces together
constexpr std::string_view replacement = "\xEF\xBF\xBD";

struct Level {
    const KzXmlData *element;
    KzXmlData *const *next;  // child
    KzXmlData *const *last;
    bool inRow;  // the children follow one another without line ends
};

Level levelOf(const KzXmlData &element, bool inRow) {
    const auto &children = element.getChildren();
    return {&element, children.data(), children.data() + children.size(), inRow};
}

using xml::word::load;

/// Whether one of eight bytes is a control character, beyond ASCII, or one of < > & ".
bool anySpecial(std::uint64_t bytes) {
    using namespace xml::word;
    return ((bytes & highs) | markBelow(bytes, 0x20) | markEither(bytes, '>', 0x02) |
            markEither(bytes, '&', 0x04)) != 0;
}

/// Copies a text of at most sixteen bytes, in overlapping halves so that no loop depends on its length. False
/// if a byte needs a look.
inline bool copyShort(char *to, const char *from, std::size_t size) {
    if (size >= 8) {
        const auto first = load<std::uint64_t>(from);
        const auto last = load<std::uint64_t>(from + size - 8);
        std::memcpy(to, &first, 8);
        std::memcpy(to + size - 8, &last, 8);
        return !anySpecial(first) && !anySpecial(last);
    }
    if (size >= 4) {
        const auto first = load<std::uint32_t>(from);
        const auto last = load<std::uint32_t>(from + size - 4);
        std::memcpy(to, &first, 4);
        std::memcpy(to + size - 4, &last, 4);
        return !anySpecial(first | std::uint64_t{last} << 32);
    }
    bool plain = true;
    for (const std::size_t place : {std::size_t{0}, size / 2, size - 1}) {
        to[place] = from[place];
        plain = plain && !is(from[place], xml::mayBeEscaped);
    }
    return plain;
}

/// Copies up to the first byte that needs a look.
char *copyPlain(char *to, const char *&at, const char *end) {
    for (; end - at >= 8; at += 8, to += 8) {
        const auto word = load<std::uint64_t>(at);
        if (anySpecial(word)) break;
        std::memcpy(to, &word, sizeof word);
    }
    while (at != end && !is(*at, xml::mayBeEscaped)) *to++ = *at++;
    return to;
}

/// The first 64 are always written: a fixed length is quicker than the right one.
inline char *copyBlanks(char *to, std::size_t size) {
    std::memset(to, ' ', 64);
    if (size > 64) std::memset(to + 64, ' ', size - 64);
    return to + size;
}

constexpr std::size_t longestShort = 16;  // texts that are copied whole

bool isQuick(const XmlName &name, const std::string &text) {
    return name.quick && !text.empty() && text.size() <= longestShort;
}

}  // namespace

XmlWriter::XmlWriter(std::ostream &stream, bool indent)
    : stream_(stream),
      indent_(indent),
      buffer_(new char[capacity + behind]),
      at_(buffer_.get()),
      end_(at_ + capacity) {}

/// For that many bytes and a few short pieces beside them.
inline void XmlWriter::giveRoom(std::size_t size) {
    if (static_cast<std::ptrdiff_t>(size) > end_ - at_) flush();
}

inline void XmlWriter::put(char c) {
    giveRoom(0);
    *at_++ = c;
}

void XmlWriter::write(const KzXmlData &root) {
    put("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    std::vector<Level> levels;
    if (begin(root, 0, false)) levels.push_back(levelOf(root, !indent_ || !xml::isBlank(root.getData())));
    while (!levels.empty()) {
        Level &top = levels.back();
        if (top.next != top.last) {
            const KzXmlData &child = **top.next++;
            const bool inRow = top.inRow;
            if (begin(child, levels.size(), inRow))
                levels.push_back(levelOf(child, inRow || !xml::isBlank(child.getData())));
            continue;
        }
        const KzXmlData &element = *top.element;
        if (!top.inRow) putIndent(levels.size() - 1);
        levels.pop_back();
        putEndTag(*element.name_, !levels.empty() && levels.back().inRow);
    }
    flush();
}

/// Writes a leaf whole, of other elements the start tag; true if the children are to follow.
bool XmlWriter::begin(const KzXmlData &element, std::size_t level, bool inRow) {
    if (!inRow) putIndent(level);
    const XmlName &name = *element.name_;
    const std::string &text = element.data_;
    const XmlParts *parts = element.parts_;
    if (!parts && putPlainLeaf(name, text, inRow)) return false;
    put('<');
    putName(name);
    if (parts) putAttributes(parts->attributes);
    if (parts && !parts->children.empty()) {
        put('>');
        // Blank text beside children would not be read back: the lines are laid out instead.
        if (!xml::isBlank(text))
            putEscaped(text, false);
        else if (!inRow && indent_)
            put('\n');
        return true;
    }
    if (text.empty()) {
        put(inRow ? "/>" : "/>\n");
    } else {
        put('>');
        putEscaped(text, false);
        putEndTag(name, inRow);
    }
    return false;
}

/// A leaf of the usual kind at one go: short name and text, no attributes. False if it is of another kind.
bool XmlWriter::putPlainLeaf(const XmlName &name, const std::string &text, bool inRow) {
    if (!isQuick(name, text)) return false;
    giveRoom(0);
    char *to = at_;
    *to++ = '<';
    to = name.copyTo(to);
    *to++ = '>';
    if (!copyShort(to, text.data(), text.size())) return false;
    to += text.size();
    *to++ = '<';
    *to++ = '/';
    to = name.copyTo(to);
    to[0] = '>';
    to[1] = '\n';
    at_ = to + (inRow ? 1 : 2);
    return true;
}

void XmlWriter::putEndTag(const XmlName &name, bool inRow) {
    giveRoom(0);
    at_[0] = '<';
    at_[1] = '/';
    at_ += 2;
    putName(name);
    giveRoom(0);
    at_[0] = '>';
    at_[1] = '\n';
    at_ += inRow ? 1 : 2;
}

void XmlWriter::putAttributes(const XmlAttributes &attributes) {
    attributes.each([this](const KzXmlAttributeData &attribute) {
        if (putPlainAttribute(*attribute.key_, attribute.data_)) return;
        put(' ');
        putName(*attribute.key_);
        put("=\"");
        putEscaped(attribute.data_, true);
        put('"');
    });
}

bool XmlWriter::putPlainAttribute(const XmlName &key, const std::string &value) {
    if (!isQuick(key, value)) return false;
    giveRoom(0);
    char *to = at_;
    *to++ = ' ';
    to = key.copyTo(to);
    *to++ = '=';
    *to++ = '"';
    if (!copyShort(to, value.data(), value.size())) return false;
    to += value.size();
    *to++ = '"';
    at_ = to;
    return true;
}

/// Two blanks a level. Beyond what can be read again it stays the same: a very deep document would be
/// nothing but blanks.
void XmlWriter::putIndent(std::size_t level) {
    const std::size_t size = 2 * std::min(level, XmlReader::deepest);
    giveRoom(size);
    at_ = copyBlanks(at_, size);
}

/// What cannot be a name becomes one.
void XmlWriter::putName(const XmlName &name) {
    const std::string &text = name.text;
    if (name.quick) {
        giveRoom(0);
        at_ = name.copyTo(at_);
        return;
    }
    if (xml::isPlainName(text)) {
        put(text);
        return;
    }
    std::string sound;
    if (text.empty() || !is(text.front(), xml::nameStart)) sound.push_back('_');
    for (const char c : text) sound.push_back(is(c, xml::namePart) ? c : '_');
    putEscaped(sound, false);
}

void XmlWriter::putEscaped(std::string_view text, bool inAttribute) {
    constexpr std::ptrdiff_t step = 4096;
    const char *at = text.data();
    const char *end = at + text.size();
    while (at != end) {
        const char *stop = at + std::min(end - at, step);
        giveRoom(static_cast<std::size_t>(stop - at));
        at_ = copyPlain(at_, at, stop);
        if (at != stop) at = putSpecial(at, end, inAttribute);
    }
}

const char *XmlWriter::putSpecial(const char *at, const char *end, bool inAttribute) {
    const char c = *at;
    if (static_cast<unsigned char>(c) >= 0x80) {
        const std::size_t length = utf8Length(at, end);
        if (!length) {
            std::string repaired;
            appendUtf8(repaired, windows1252Character(c));
            put(repaired);
            return at + 1;
        }
        put(length == 3 && isNoncharacter(at) ? replacement : std::string_view(at, length));
        return at + length;
    }
    switch (c) {
        case '<':
            put("&lt;");
            break;
        case '>':
            put("&gt;");
            break;
        case '&':
            put("&amp;");
            break;
        case '\r':
            put("&#13;");
            break;
        case '"':
            put(inAttribute ? "&quot;" : "\"");
            break;
        case '\n':
            put(inAttribute ? "&#10;" : "\n");
            break;
        case '\t':
            put(inAttribute ? "&#9;" : "\t");
            break;
        default:
            put(replacement);
    }
    return at + 1;
}

void XmlWriter::put(std::string_view text) {
    if (text.size() > capacity) {
        flush();
        stream_.write(text.data(), static_cast<std::streamsize>(text.size()));
        return;
    }
    giveRoom(text.size());
    std::memcpy(at_, text.data(), text.size());
    at_ += text.size();
}

void XmlWriter::flush() {
    stream_.write(buffer_.get(), at_ - buffer_.get());
    at_ = buffer_.get();
}

}  // namespace varnel

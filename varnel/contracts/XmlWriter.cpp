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

namespace varnel {

using xml::is;

namespace {

constexpr std::size_t capacity = std::size_t{1} << 16;
constexpr std::string_view replacement = "\xEF\xBF\xBD";

struct Level {
    const KzXmlData *element;
    std::size_t next;
    bool inRow;  // its children follow one another without line ends
};

}  // namespace

XmlWriter::XmlWriter(std::ostream &stream, bool indent)
    : stream_(stream), indent_(indent), buffer_(new char[capacity]) {}

void XmlWriter::write(const KzXmlData &root) {
    put("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    std::vector<Level> levels;
    if (begin(root, 0, false)) levels.push_back({&root, 0, !indent_ || !xml::isBlank(root.getData())});
    while (!levels.empty()) {
        Level &top = levels.back();
        const auto &children = top.element->getChildren();
        if (top.next < children.size()) {
            const KzXmlData &child = *children[top.next++];
            const bool inRow = top.inRow;
            if (begin(child, levels.size(), inRow))
                levels.push_back({&child, 0, inRow || !xml::isBlank(child.getData())});
            continue;
        }
        const KzXmlData &element = *top.element;
        if (!top.inRow) putIndent(levels.size() - 1);
        levels.pop_back();
        end(element);
        if (levels.empty() || !levels.back().inRow) put('\n');
    }
    flush();
}

/// Writes a leaf whole, of other elements the start tag; true if the children are to follow.
bool XmlWriter::begin(const KzXmlData &element, std::size_t level, bool inRow) {
    if (!inRow) putIndent(level);
    put('<');
    putName(element.getName());
    if (element.parts_) putAttributes(element);
    const std::string &text = element.getData();
    if (!element.getChildren().empty()) {
        put('>');
        // Blank text beside children would not be read back: the lines are laid out instead.
        if (!xml::isBlank(text))
            putEscaped(text, false);
        else if (!inRow && indent_)
            put('\n');
        return true;
    }
    if (text.empty()) {
        put("/>");
    } else {
        put('>');
        putEscaped(text, false);
        end(element);
    }
    if (!inRow) put('\n');
    return false;
}

void XmlWriter::end(const KzXmlData &element) {
    put("</");
    putName(element.getName());
    put('>');
}

void XmlWriter::putAttributes(const KzXmlData &element) {
    element.parts_->attributes.each([this](const KzXmlAttributeData &attribute) {
        put(' ');
        putName(attribute.getKey());
        put("=\"");
        putEscaped(attribute.getData(), true);
        put('"');
    });
}

/// Two blanks a level. Beyond what can be read again it stays the same: a very deep document would be
/// nothing but blanks.
void XmlWriter::putIndent(std::size_t level) {
    static const std::string blanks(2 * XmlReader::deepest, ' ');
    put(std::string_view(blanks).substr(0, 2 * std::min(level, XmlReader::deepest)));
}

/// What cannot be a name becomes one.
void XmlWriter::putName(std::string_view name) {
    if (xml::isPlainName(name)) {
        put(name);
        return;
    }
    std::string sound;
    if (name.empty() || !is(name.front(), xml::nameStart)) sound.push_back('_');
    for (const char c : name) sound.push_back(is(c, xml::namePart) ? c : '_');
    putEscaped(sound, false);
}

void XmlWriter::putEscaped(std::string_view text, bool inAttribute) {
    const char *at = text.data();
    const char *end = at + text.size();
    while (at != end) {
        const char *run = at;
        while (at != end && !is(*at, xml::mayBeEscaped)) ++at;
        put({run, static_cast<std::size_t>(at - run)});
        if (at != end) at = putSpecial(at, end, inAttribute);
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
    if (c == '<')
        put("&lt;");
    else if (c == '>')
        put("&gt;");
    else if (c == '&')
        put("&amp;");
    else if (c == '"')
        inAttribute ? put("&quot;") : put('"');
    else if (c == '\r')
        put("&#13;");
    else if (c == '\n')
        inAttribute ? put("&#10;") : put('\n');
    else if (c == '\t')
        inAttribute ? put("&#9;") : put('\t');
    else
        put(replacement);
    return at + 1;
}

void XmlWriter::put(std::string_view text) {
    if (text.size() > capacity - size_) {
        flush();
        if (text.size() > capacity) {
            stream_.write(text.data(), static_cast<std::streamsize>(text.size()));
            return;
        }
    }
    std::memcpy(buffer_.get() + size_, text.data(), text.size());
    size_ += text.size();
}

void XmlWriter::put(char c) {
    if (size_ == capacity) flush();
    buffer_[size_++] = c;
}

void XmlWriter::flush() {
    stream_.write(buffer_.get(), static_cast<std::streamsize>(size_));
    size_ = 0;
}

}  // namespace varnel

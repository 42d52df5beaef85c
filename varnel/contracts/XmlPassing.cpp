#include <charconv>
#include <cstring>
#include <utility>

#include "varnel/contracts/XmlCharacters.h"
#include "varnel/contracts/XmlReader.h"

namespace varnel {

using xml::between;
using xml::is;

namespace {

bool isNameAt(const XmlName &name, const char *at) {
    return name.standsAt(at) && !is(at[name.text.size()], xml::namePart);
}

struct Entity {
    std::string_view name;
    char character;
};

constexpr Entity entities[] = {{"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}};

}  // namespace

/// To the next '<'; false if the window ends before.
bool XmlReader::passText(const char *&at, bool &plain) const {
    for (;; ++at) {
        while (!is(*at, xml::textStop)) ++at;
        if (*at == '<') return true;
        if (at == window_.end()) return false;
        if (*at == '&') plain = false;
        if (is(*at, xml::forbidden) || isNoncharacter(at)) fail(at, "a character that XML does not allow");
        if (*at == ']' && at[1] == ']' && at[2] == '>') fail(at, "]]> within text");
    }
}

bool XmlReader::passAttributes(const char *&at) {
    ++tag_;
    for (;;) {
        const char *begin = at;
        if (!passBlanks(at)) return false;
        if (*at == '>' || *at == '/') return true;
        if (!is(*at, xml::nameStart)) failAtCharacter(at, "an attribute, > or /> is expected");
        if (at == begin) fail(at, "a blank is expected before an attribute");
        if (!passAttribute(at)) return false;
    }
}

bool XmlReader::passAttribute(const char *&at) {
    const char *begin = at;
    XmlName *key = takeName(at);
    if (!key) return false;
    if (key->tag == tag_) fail(begin, "attribute " + key->text + " is there twice");
    key->tag = tag_;
    if (*at != '=') {
        if (!passBlanks(at)) return false;
        if (*at != '=') failAtCharacter(at, "= is expected after an attribute's name");
    }
    ++at;
    if (!passBlanks(at)) return false;
    const char quote = *at;
    if (quote != '"' && quote != '\'') failAtCharacter(at, "a quoted value is expected");
    const char *value = ++at;
    bool plain = true;
    if (!passValue(at, quote, plain)) return false;
    auto &attribute = attributes_.emplace_back();
    attribute.key = key;
    attribute.begin = value;
    attribute.end = at;
    attribute.plain = plain;
    ++at;
    return true;
}

/// To the closing quote.
bool XmlReader::passValue(const char *&at, char quote, bool &plain) const {
    for (;; ++at) {
        while (!is(*at, xml::valueStop)) ++at;
        if (*at == quote) return true;
        if (at == window_.end()) return false;
        if (*at == '<') fail(at, "< within an attribute's value");
        if (*at == '&' || is(*at, xml::blank)) plain = false;
        if (is(*at, xml::forbidden) || isNoncharacter(at)) fail(at, "a character that XML does not allow");
    }
}

/// False if the window ends with them.
bool XmlReader::passBlanks(const char *&at) const {
    while (is(*at, xml::blank)) ++at;
    return at != window_.end();
}

/// False if the window ends with it, so that it may go on.
bool XmlReader::passName(const char *&at) const {
    while (is(*at, xml::namePart)) ++at;
    return at != window_.end();
}

/// The shared name that stands here; null if the window ends with it. Names mostly follow one another as they
/// did before, so that one comparison replaces looking for the end and for the name.
XmlName *XmlReader::takeName(const char *&at) {
    if (lastName_) {
        XmlName *&first = lastName_->followers[0];
        if (first && !isNameAt(*first, at)) std::swap(first, lastName_->followers[1]);
        if (first && isNameAt(*first, at)) {
            at += first->text.size();
            return at == window_.end() ? nullptr : lastName_ = first;
        }
    }
    const char *begin = at;
    if (!passName(at)) return nullptr;
    XmlName *name = store_.names().give(between(begin, at));
    if (lastName_) lastName_->followers[0] = name;
    return lastName_ = name;
}

/// To the mark that ends a comment, an instruction or character data.
bool XmlReader::passContent(const char *&at, std::string_view mark) const {
    const auto size = static_cast<std::ptrdiff_t>(mark.size());
    for (; window_.end() - at >= size; ++at) {
        if (*at == mark.front() && std::memcmp(at, mark.data(), mark.size()) == 0) return true;
        if (is(*at, xml::forbidden) || isNoncharacter(at)) fail(at, "a character that XML does not allow");
    }
    return false;
}

/// Whether the text goes on so; `cut` is set if it does as far as the window reaches.
bool XmlReader::startsWith(std::string_view text, bool &cut) const {
    const std::string_view rest = between(at_, window_.end());
    if (rest.size() < text.size()) {
        cut = cut || text.substr(0, rest.size()) == rest;
        return false;
    }
    return rest.substr(0, text.size()) == text;
}

/// Text with its references replaced; line ends and tabs of an attribute's value are blanks.
void XmlReader::appendDecoded(std::string &to, std::string_view text, bool inAttribute) const {
    const char *at = text.data();
    const char *end = at + text.size();
    while (at != end) {
        const char *run = at;
        while (at != end && *at != '&' && !(inAttribute && (*at == '\n' || *at == '\t'))) ++at;
        to.append(run, at);
        if (at == end) return;
        if (*at == '&') {
            at = appendReference(to, at, end);
        } else {
            to.push_back(' ');
            ++at;
        }
    }
}

const char *XmlReader::appendReference(std::string &to, const char *at, const char *end) const {
    const char *semicolon = at + 1;
    while (semicolon != end && (*semicolon == '#' || is(*semicolon, xml::namePart))) ++semicolon;
    if (semicolon == end || *semicolon != ';') fail(at, "& without a reference");
    const std::string_view name = between(at + 1, semicolon);
    if (!name.empty() && name.front() == '#') {
        appendUtf8(to, numberedCharacter(name.substr(1), at));
        return semicolon + 1;
    }
    for (const auto &entity : entities) {
        if (entity.name != name) continue;
        to.push_back(entity.character);
        return semicolon + 1;
    }
    fail(at, "unknown entity &" + std::string(name) + ";");
}

char32_t XmlReader::numberedCharacter(std::string_view digits, const char *at) const {
    const bool hexadecimal = !digits.empty() && digits.front() == 'x';
    if (hexadecimal) digits.remove_prefix(1);
    std::uint32_t value = 0;
    const char *end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, value, hexadecimal ? 16 : 10);
    if (result.ec != std::errc{} || result.ptr != end || !xml::isAllowed(value))
        fail(at, "a reference to a character that XML does not allow");
    return value;
}

/// The content of `<?xml ... ?>`: version, encoding, standalone.
void XmlReader::readDeclaration(std::string_view content) {
    static constexpr std::string_view keys[] = {"version", "encoding", "standalone"};
    std::size_t next = 0;
    const char *at = content.data();
    const char *end = at + content.size();
    for (;;) {
        const char *begin = at;
        while (at != end && is(*at, xml::blank)) ++at;
        if (at == end) break;
        const char *name = at;
        while (at != end && is(*at, xml::namePart)) ++at;
        const std::string_view key = between(name, at);
        while (next < 3 && keys[next] != key && next != 0) ++next;
        if (begin == name || next == 3 || keys[next] != key) fail(name, "malformed XML declaration");
        while (at != end && is(*at, xml::blank)) ++at;
        if (at == end || *at != '=') fail(at, "malformed XML declaration");
        for (++at; at != end && is(*at, xml::blank);) ++at;
        const char *value = at + 1;
        const char *close =
            at == end
                ? nullptr
                : static_cast<const char *>(std::memchr(value, *at, static_cast<std::size_t>(end - value)));
        if (!close || (*at != '"' && *at != '\'')) fail(at, "malformed XML declaration");
        const std::string_view text = between(value, close);
        if (next == 0 && text.substr(0, 2) != "1.") fail(value, "unknown XML version");
        if (next == 1) checkEncoding(text);
        if (next == 2 && text != "yes" && text != "no") fail(value, "malformed XML declaration");
        ++next;
        at = close + 1;
    }
    if (next == 0) fail(content.data(), "malformed XML declaration");
}

void XmlReader::checkEncoding(std::string_view name) {
    std::string lower(name);
    for (char &c : lower)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    const bool wide =
        window_.encoding() == TextEncoding::utf16Little || window_.encoding() == TextEncoding::utf16Big;
    if (lower == "utf-8" || lower == "iso-8859-1" || lower == "windows-1252") return;
    if (lower == "utf-16" && wide) return;
    fail(name.data(), "encoding " + std::string(name) +
                          (lower == "utf-16" ? " without a byte order mark" : " is not supported"));
}

}  // namespace varnel

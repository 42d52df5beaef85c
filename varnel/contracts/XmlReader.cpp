#include "varnel/contracts/XmlReader.h"

#include <utility>

#include "varnel/contracts/KzXmlData.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/contracts/XmlCharacters.h"
#include "varnel/contracts/XmlParts.h"
#include "varnel/contracts/XmlScan.h"

namespace varnel {

using xml::between;
using xml::is;

XmlReader::~XmlReader() {
    for (auto *element : children_)
        if (element) KzXmlData::destroy(element);
    while (!open_.empty()) {
        if (open_.back().element) KzXmlData::destroy(open_.back().element);
        open_.pop_back();
    }
    if (root_) KzXmlData::destroy(root_);
}

KzXmlData *XmlReader::read() {
    at_ = window_.begin();
    bool first = true;
    while (window_.refill(at_)) {
        if (std::exchange(first, false)) mayDeclare_ = window_.startsWith("<?xml");
        while (readPiece()) continue;
    }
    if (window_.failed()) return nullptr;
    if (!open_.empty())
        fail(window_.end(), "the document ends within <" + open_.back().element->getName() + ">");
    if (at_ != window_.end()) fail(window_.end(), "the document ends within a tag, comment or instruction");
    if (begun_ && !root_) fail(window_.end(), "the document has no element");
    if (!root_) root_ = store_.makeElement(store_.names().give({}), nullptr);
    return std::exchange(root_, nullptr);
}

bool XmlReader::readOutside() {
    if (!passBlanks(at_)) return false;
    if (*at_ != '<') failAtCharacter(at_, "text outside the root element");
    return readMarkup();
}

bool XmlReader::readInside() {
    const char *at = xml::passIndent(at_);
    if (*at != '<' || !pending_.empty()) return readText(at);
    const bool child = is(at[1], xml::nameStart);
    const bool lastTag = at[1] == '/' && (at == at_ || children_.size() != open_.back().firstChild);
    if (!child && !lastTag) return readText(at);
    at_ = at;  // past blanks that only lay out the document
    return child ? readStartTag() : readEndTag();
}

/// A run of text of which the blanks up to `at` have been seen, and the markup behind it.
bool XmlReader::readText(const char *at) {
    const bool blanks = *at == '<';
    bool plain = true;
    if (!blanks && !passText(at, plain)) return false;
    const std::string_view text = between(at_, at);
    if (at[1] == '!' || at[1] == '?') {
        appendDecoded(pending_, text, false);
    } else if (at + 1 == window_.end()) {
        return false;
    } else if (!text.empty() || !pending_.empty()) {
        settleText(text, plain, blanks, at[1] == '/');
    }
    at_ = at;
    return readMarkup();
}

/// Decides what a run of text between two tags is. Blanks next to a child only lay out the document.
void XmlReader::settleText(std::string_view text, bool plain, bool blanks, bool closing) {
    const Open &top = open_.back();
    const bool leaf = closing && children_.size() == top.firstChild;
    std::string &data = top.element->data_;
    if (!pending_.empty()) {
        appendDecoded(pending_, text, false);
        if (leaf || !xml::isBlank(pending_)) data += pending_;
        pending_.clear();
    } else if (plain) {
        if (leaf || !blanks) data.append(text);
    } else {
        appendDecoded(pending_, text, false);
        if (leaf || !xml::isBlank(pending_)) data += pending_;
        pending_.clear();
    }
}

bool XmlReader::readMarkup() {
    const char next = at_[1];
    if (is(next, xml::nameStart)) return readStartTag();
    if (next == '/') return readEndTag();
    if (next == '?') return readInstruction();
    if (next != '!') {
        if (at_ + 1 == window_.end()) return false;
        failAtCharacter(at_ + 1, "a name is expected after <");
    }
    bool cut = false;
    if (startsWith("<!--", cut)) return readComment();
    if (startsWith("<![CDATA[", cut)) return readCharacterData();
    if (startsWith("<!DOCTYPE", cut)) fail(at_, "a document type declaration is not accepted");
    if (cut) return false;
    fail(at_, "unknown markup");
}

bool XmlReader::readStartTag() {
    if (open_.empty() && root_) fail(at_, "a second root element");
    if (open_.size() == deepest) fail(at_, "elements are nested more than 1000 deep");
    const char *at = at_ + 1;
    XmlName *name = takeName(at);
    if (!name) return false;
    attributes_.clear();
    if (*at == '>' && readPlainLeaf(*name, at + 1)) return true;
    if (*at != '>' && !passAttributes(at)) return false;
    const bool empty = *at == '/';
    if (empty && at[1] != '>') {
        if (at + 1 == window_.end()) return false;
        failAtCharacter(at + 1, "> is expected after /");
    }
    openElement(name);
    at_ = at + (empty ? 2 : 1);
    if (empty) closeElement();
    return true;
}

/// Most elements have a short name, no attributes and a text that stands for itself: they are taken in with
/// their end tag at one go. False, and nothing has happened, for all others.
bool XmlReader::readPlainLeaf(XmlName &name, const char *at) {
    const char *begin = at;
    while (!is(*at, xml::textStop)) ++at;
    const std::size_t size = name.text.size();
    if (at == begin || *at != '<' || at[1] != '/' || open_.empty()) return false;
    if (window_.end() - at < static_cast<std::ptrdiff_t>(size + 3)) return false;
    if (!name.standsAt(at + 2) || at[size + 2] != '>') return false;
    const Open &top = open_.back();
    children_.push_back(nullptr);
    KzXmlData *element = children_.back() = store_.makeElement(&name, top.element, between(begin, at));
    element->order_ = static_cast<std::uint32_t>(children_.size() - top.firstChild);
    at_ = at + size + 3;
    return true;
}

bool XmlReader::readEndTag() {
    const char *at = at_ + 2;
    if (open_.empty()) fail(at_, "an end tag without a start tag");
    const XmlName &expected = *open_.back().element->name_;
    if (expected.standsAt(at) && at[expected.text.size()] == '>') {
        at_ = at + expected.text.size() + 1;
        closeElement();
        return true;
    }
    const std::string &name = expected.text;
    if (!is(*at, xml::nameStart) && at != window_.end()) failAtCharacter(at, "a name is expected after </");
    if (!passName(at)) return false;
    if (between(at_ + 2, at) != name)
        fail(at_, "</" + std::string(at_ + 2, at) + "> where </" + name + "> is expected");
    if (!passBlanks(at)) return false;
    if (*at != '>') failAtCharacter(at, "> is expected");
    at_ = at + 1;
    closeElement();
    return true;
}

bool XmlReader::readComment() {
    const char *at = at_ + 4;
    if (!passContent(at, "--")) return false;
    if (at + 2 == window_.end()) return false;
    if (at[2] != '>') fail(at, "-- within a comment");
    begun_ = true;
    at_ = at + 3;
    return true;
}

bool XmlReader::readCharacterData() {
    if (open_.empty()) fail(at_, "text outside the root element");
    const char *begin = at_ + 9;
    const char *at = begin;
    if (!passContent(at, "]]>")) return false;
    pending_.append(begin, at);
    at_ = at + 3;
    return true;
}

bool XmlReader::readInstruction() {
    const char *begin = at_ + 2;
    const char *at = begin;
    if (at != window_.end() && !is(*at, xml::nameStart)) failAtCharacter(at, "a name is expected after <?");
    if (!passName(at)) return false;
    const std::string_view target = between(begin, at);
    if (*at != '?' && !is(*at, xml::blank)) failAtCharacter(at, "a blank is expected");
    const char *content = at;
    if (!passContent(at, "?>")) return false;
    if (target == "xml" && mayDeclare_) {
        readDeclaration(between(content, at));
    } else if (target.size() == 3 && (target[0] | 32) == 'x' && (target[1] | 32) == 'm' &&
               (target[2] | 32) == 'l') {
        fail(at_, "an XML declaration is only accepted at the very beginning");
    }
    mayDeclare_ = false;
    begun_ = true;
    at_ = at + 2;
    return true;
}

void XmlReader::openElement(XmlName *name) {
    KzXmlData *parent = open_.empty() ? nullptr : open_.back().element;
    open_.push_back({nullptr, children_.size()});
    KzXmlData *element = open_.back().element = store_.makeElement(name, parent);
    begun_ = true;
    if (!attributes_.empty()) fillAttributes(*element);
}

void XmlReader::fillAttributes(KzXmlData &element) const {
    auto &list = element.giveParts().attributes;
    XmlArena *arena = &store_.arena();
    list.reserve(attributes_.size(), arena);
    for (const auto &attribute : attributes_) {
        const std::string_view text = between(attribute.begin, attribute.end);
        if (attribute.plain) {
            list.append(attribute.key, text, arena);
        } else {
            std::string value;
            appendDecoded(value, text, true);
            list.append(attribute.key, value, arena);
        }
    }
}

void XmlReader::closeElement() {
    const Open top = open_.back();
    const auto first = children_.begin() + static_cast<std::ptrdiff_t>(top.firstChild);
    if (first != children_.end()) {
        top.element->giveParts().children.assign(first, children_.end());
        children_.erase(first, children_.end());
    }
    if (open_.size() == 1) {
        root_ = top.element;
    } else {
        children_.push_back(top.element);
        top.element->order_ =
            static_cast<std::uint32_t>(children_.size() - open_[open_.size() - 2].firstChild);
    }
    open_.pop_back();
}

void XmlReader::fail(const char *at, const std::string &what) const {
    const TextPosition position = window_.position(at);
    throw Tools::Error("line " + std::to_string(position.line) + ", column " +
                       std::to_string(position.column) + ": " + what);
}

/// The same, unless it is a character that is the trouble.
void XmlReader::failAtCharacter(const char *at, const std::string &expected) const {
    if (is(*at, xml::forbidden) || isNoncharacter(at)) fail(at, "a character that XML does not allow");
    fail(at, expected);
}

}  // namespace varnel

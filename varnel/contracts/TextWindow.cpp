#include "varnel/contracts/TextWindow.h"

#include <algorithm>
#include <cstring>
#include <istream>
#include <string_view>

#include "varnel/contracts/XmlCharacters.h"

namespace varnel {

namespace {

constexpr std::size_t portion = std::size_t{1} << 18;
constexpr std::size_t behind = 17;  // the zero byte and what may be read after it

bool startsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

/// The value after `encoding=` in an XML declaration, empty without one.
std::string declaredEncoding(std::string_view head) {
    if (!startsWith(head, "<?xml") || head.size() == 5 || !xml::is(head[5], xml::blank)) return {};
    head = head.substr(0, head.find("?>"));
    const std::size_t word = head.find("encoding");
    if (word == std::string_view::npos) return {};
    const std::size_t open = head.find_first_of("\"'", word);
    if (open == std::string_view::npos) return {};
    const std::size_t close = head.find(head[open], open + 1);
    if (close == std::string_view::npos) return {};
    std::string name(head.substr(open + 1, close - open - 1));
    for (char &c : name)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return name;
}

/// Recognises the encoding and removes a byte order mark.
TextEncoding detect(std::string &bytes) {
    if (startsWith(bytes, "\xEF\xBB\xBF")) {
        bytes.erase(0, 3);
        return TextEncoding::utf8;
    }
    const bool little = startsWith(bytes, "\xFF\xFE");
    if (little || startsWith(bytes, "\xFE\xFF")) {
        bytes.erase(0, 2);
        return little ? TextEncoding::utf16Little : TextEncoding::utf16Big;
    }
    const std::string name = declaredEncoding(bytes);
    if (name == "iso-8859-1") return TextEncoding::latin1;
    return name == "windows-1252" ? TextEncoding::windows1252 : TextEncoding::utf8;
}

}  // namespace

TextWindow::TextWindow(std::istream &stream) : stream_(stream) {
    giveRoom(portion);
}

/// Reads past the stream's own formatting and state, so that a host's exception mask does not matter.
std::size_t TextWindow::read(char *to, std::size_t size) {
    std::ios_base::iostate state = std::ios_base::goodbit;
    std::size_t got = 0;
    try {
        got = static_cast<std::size_t>(stream_.rdbuf()->sgetn(to, static_cast<std::streamsize>(size)));
    } catch (...) {
        failed_ = true;
        state = std::ios_base::badbit;
    }
    if (got < size) {
        ended_ = true;
        if (!failed_) state = std::ios_base::eofbit;
    }
    if (state && !(stream_.exceptions() & state)) stream_.setstate(state);
    return got;
}

void TextWindow::open() {
    opened_ = true;
    if (!stream_.good() || !stream_.rdbuf()) {
        failed_ = ended_ = true;
        return;
    }
    raw_.resize(4096);
    raw_.resize(read(raw_.data(), raw_.size()));
    encoding_ = detect(raw_);
}

void TextWindow::giveRoom(std::size_t size) {
    if (size_ + size <= capacity_) return;
    const std::size_t capacity = std::max(size_ + size, capacity_ * 2);
    std::unique_ptr<char[]> larger(new char[capacity + behind]);
    if (size_) std::memcpy(larger.get(), text_.get(), size_);
    larger[size_] = '\0';
    text_.swap(larger);
    capacity_ = capacity;
}

bool TextWindow::refill(const char *&keep) {
    if (!opened_) open();
    if (failed_ || (ended_ && raw_.empty())) return false;
    start_ = position(keep);
    const auto dropped = static_cast<std::size_t>(keep - begin());
    std::memmove(text_.get(), keep, size_ - dropped);
    size_ -= dropped;
    text_[size_] = '\0';
    bool more = false;
    while (!more && !failed_ && !(ended_ && raw_.empty()))
        more = encoding_ == TextEncoding::utf8 ? appendUtf8Bytes() : appendOtherBytes();
    keep = begin();
    return more && !failed_;
}

/// Reads straight into the window; only text that is not UTF-8 takes a detour.
bool TextWindow::appendUtf8Bytes() {
    giveRoom(portion / 2);
    const std::size_t from = size_;
    char *to = text_.get() + from;
    std::memcpy(to, raw_.data(), raw_.size());
    std::size_t bytes = raw_.size();
    raw_.clear();
    if (!ended_) bytes += read(to + bytes, capacity_ - from - bytes);
    if (!ended_) {
        const std::size_t unfinished = unfinishedUtf8({to, bytes});
        bytes -= unfinished;
        raw_.assign(to + bytes, unfinished);
    }
    const char *invalid = findInvalidUtf8(to, to + bytes);
    if (invalid != to + bytes) {
        decoded_.assign(to, static_cast<std::size_t>(invalid - to));
        appendRepaired(decoded_, {invalid, static_cast<std::size_t>(to + bytes - invalid)});
        giveRoom(decoded_.size());
        std::memcpy(text_.get() + from, decoded_.data(), decoded_.size());
        bytes = decoded_.size();
    }
    size_ = from + bytes;
    finish(from);
    return size_ != from;
}

bool TextWindow::appendOtherBytes() {
    const std::size_t had = raw_.size();
    if (!ended_) {
        const std::size_t more = std::max(portion / 8, size_);  // doubles what is kept of a piece too long
        raw_.resize(had + more);
        raw_.resize(had + read(raw_.data() + had, more));
    }
    decoded_.clear();
    raw_.erase(0, appendDecoded(decoded_, raw_, encoding_, ended_));
    giveRoom(decoded_.size());
    const std::size_t from = size_;
    std::memcpy(text_.get() + from, decoded_.data(), decoded_.size());
    size_ += decoded_.size();
    finish(from);
    return size_ != from;
}

/// Turns the line ends of the new text (CR LF, CR) into LF and closes it with a zero byte.
void TextWindow::finish(std::size_t from) {
    char *to = text_.get() + from;
    char *end = text_.get() + size_;
    if (afterReturn_ && to != end && *to == '\n') {
        std::memmove(to, to + 1, static_cast<std::size_t>(end - to) - 1);
        --end;
    }
    if (from != size_) afterReturn_ = false;
    char *at =
        to == end ? nullptr : static_cast<char *>(std::memchr(to, '\r', static_cast<std::size_t>(end - to)));
    if (at) {
        afterReturn_ = end[-1] == '\r';
        char *out = at;
        for (; at != end; ++at) {
            const bool isReturn = *at == '\r';
            *out++ = isReturn ? '\n' : *at;
            if (isReturn && at + 1 != end && at[1] == '\n') ++at;
        }
        end = out;
    }
    size_ = static_cast<std::size_t>(end - text_.get());
    *end = '\0';
}

/// Counts in portions of fixed length with small counters, which compilers turn into vector code: every
/// document is counted through, though few have an error.
std::size_t TextWindow::countLines(const char *at, const char *end) {
    constexpr std::ptrdiff_t step = 128;
    std::size_t lines = 0;
    for (; end - at >= step; at += step) {
        unsigned char ends = 0;
        for (std::ptrdiff_t i = 0; i < step; ++i) ends = static_cast<unsigned char>(ends + (at[i] == '\n'));
        lines += ends;
    }
    return lines + static_cast<std::size_t>(std::count(at, end, '\n'));
}

TextPosition TextWindow::position(const char *at) const {
    TextPosition position = start_;
    const char *line = at;
    while (line != begin() && line[-1] != '\n') --line;
    if (line != begin()) {
        position.line += countLines(begin(), line);
        position.column = 1;
    }
    position.column += static_cast<std::size_t>(
        std::count_if(line, at, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
    return position;
}

}  // namespace varnel

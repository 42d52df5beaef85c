#ifndef VARNEL_CONTRACTS_TEXTWINDOW_H
#define VARNEL_CONTRACTS_TEXTWINDOW_H

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

#include "varnel/contracts/TextEncoding.h"

namespace varnel {

struct TextPosition {
    std::size_t line;    // from 1
    std::size_t column;  // from 1, in characters
};

/// A window on the text of a stream: UTF-8 with LF as the only line end, whatever the stream holds. It moves
/// forward over the text and grows only when one piece does not fit. A zero byte stands behind its end, and
/// sixteen more may be read.
class TextWindow {
  public:
    explicit TextWindow(std::istream &stream);
    TextWindow(const TextWindow &) = delete;
    TextWindow &operator=(const TextWindow &) = delete;

    const char *begin() const { return text_.get(); }
    const char *end() const { return text_.get() + size_; }
    bool startsWith(std::string_view text) const {
        return std::string_view(begin(), size_).substr(0, text.size()) == text;
    }
    /// Drops the text before `keep`, which is set to where the rest lies then, and brings in more. False at
    /// the end of the stream, when there is no more.
    bool refill(const char *&keep);
    /// Whether the stream could not be read.
    bool failed() const { return failed_; }
    TextEncoding encoding() const { return encoding_; }
    TextPosition position(const char *at) const;

  private:
    std::size_t read(char *to, std::size_t size);
    void open();
    void giveRoom(std::size_t size);
    bool appendUtf8Bytes();
    bool appendOtherBytes();
    void finish(std::size_t from);
    static std::size_t countLines(const char *at, const char *end);

    std::istream &stream_;
    TextEncoding encoding_ = TextEncoding::utf8;
    std::unique_ptr<char[]> text_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
    std::string raw_;      // bytes that were read and are not decoded yet
    std::string decoded_;  // room for decoding, kept between calls
    TextPosition start_{1, 1};
    bool opened_ = false;
    bool ended_ = false;
    bool failed_ = false;
    bool afterReturn_ = false;  // an LF that comes next belongs to the CR before it
};

}  // namespace varnel

#endif

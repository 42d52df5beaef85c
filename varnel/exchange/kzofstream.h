#ifndef VARNEL_EXCHANGE_KZOFSTREAM_H
#define VARNEL_EXCHANGE_KZOFSTREAM_H

#include <fstream>
#include <memory>
#include <ostream>
#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/exchange/FileSystem.h"

/// Writes a file so that its target is at any moment either the old or the new one, whole: everything goes
/// into a temporary file, which takes the target's place when the stream dies or is committed. A stream that
/// failed, was discarded, or is left by an exception leaves the target as it was. A stream that could not
/// start is dead: it swallows what is written, and there is no report.
class VARNEL_EXPORT kzofstream {
  public:
    /// `mode` is that of a standard stream; the output flag is added. With the append flag the present
    /// content of the target comes first. A null or empty path makes a dead stream.
    explicit kzofstream(const char *path, std::ios_base::openmode mode = std::ios_base::out);
    explicit kzofstream(const std::string &path, std::ios_base::openmode mode = std::ios_base::out);
    kzofstream(const kzofstream &) = delete;
    kzofstream &operator=(const kzofstream &) = delete;
    /// Commits, unless an exception is passing through. Nothing escapes.
    ~kzofstream();

    /// Where to write. The reference is good until `commit` or `discard`.
    std::ostream &stream() { return stream_ ? *stream_ : dead_; }
    /// False for a stream that could not start, and after `commit` or `discard`.
    bool isOpen() const { return stream_ != nullptr; }

    /// Puts what was written in the target's place and ends the stream. Whether the target now holds it;
    /// asked again, the same answer.
    bool commit() noexcept;
    /// Ends the stream, removes the temporary file and leaves the target as it was.
    void discard() noexcept;

  private:
    void open(const std::string &path, std::ios_base::openmode mode);
    bool finishWriting();
    bool putInPlace();
    bool putInPlaceByCopy(const std::string &place);
    bool moveTo(const std::string &place, const std::string &file);
    void end() noexcept;

    std::string target_;
    std::string temporary_;
    std::unique_ptr<std::ofstream> stream_;
    std::ostream dead_{nullptr};
    varnel::FileSystem &files_ = varnel::FileSystem::get();
    int exceptionsAtStart_;
    bool committed_ = false;
};

#endif

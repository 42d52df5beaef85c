#include "varnel/exchange/kzofstream.h"

#include <exception>

namespace {

constexpr std::size_t longestDirectory = 4096;

}  // namespace

kzofstream::kzofstream(const char *path, std::ios_base::openmode mode)
    : kzofstream(std::string(path ? path : ""), mode) {}

kzofstream::kzofstream(const std::string &path, std::ios_base::openmode mode)
    : exceptionsAtStart_(std::uncaught_exceptions()) {
    open(path, mode);
}

kzofstream::~kzofstream() {
    if (std::uncaught_exceptions() > exceptionsAtStart_)
        discard();
    else
        commit();
}

void kzofstream::open(const std::string &path, std::ios_base::openmode mode) {
    mode |= std::ios_base::out | std::ios_base::binary;  // line ends are the writer's, on every platform
    if (path.empty()) return;
    const std::string directory = files_.temporaryDirectory();
    if (directory.empty() || directory.size() >= longestDirectory) return;
    const std::string temporary = files_.makeTemporary(directory);
    if (temporary.empty()) return;
    target_ = path;
    temporary_ = temporary;
    // A copy that fails is no reason to stop: the stream then starts empty, as if there were no target.
    if ((mode & std::ios_base::app) && files_.exists(target_)) files_.copy(target_, temporary_);
    stream_ = std::make_unique<std::ofstream>(temporary_, mode);
    if (!stream_->good()) end();  // the empty temporary file stays where it is
}

bool kzofstream::commit() noexcept {
    if (!stream_) return committed_;
    try {
        if (finishWriting()) {
            committed_ = putInPlace();
            end();
        } else {
            discard();
        }
    } catch (...) {
        discard();
    }
    return committed_;
}

void kzofstream::discard() noexcept {
    if (!stream_) return;
    try {
        stream_.reset();
        files_.remove(temporary_);
    } catch (...) {  // out of memory: the temporary file stays, the target is not touched
    }
    end();
}

/// True if every byte that was written has gone to the temporary file.
bool kzofstream::finishWriting() {
    stream_->exceptions(std::ios_base::goodbit);
    stream_->flush();
    const bool written = !stream_->fail();
    stream_->close();
    return written && !stream_->fail();
}

/// If the target cannot be replaced, the whole new content stays under the temporary name.
bool kzofstream::putInPlace() {
    const std::string place = files_.resolve(target_);
    if (place.empty() || !files_.sync(temporary_)) return false;
    return moveTo(place, temporary_) || putInPlaceByCopy(place);
}

/// The way across a border between file systems: a copy beside the target, and from there in one step.
bool kzofstream::putInPlaceByCopy(const std::string &place) {
    const std::string beside = files_.makeBeside(place);
    if (beside.empty()) return false;
    const bool placed = files_.copy(temporary_, beside) && files_.sync(beside) && moveTo(place, beside);
    files_.remove(placed ? temporary_ : beside);
    return placed;
}

/// The access rights come last: under those of a read-only target nothing could be written any more. Rights
/// that a file system does not know are no reason to lose the document.
bool kzofstream::moveTo(const std::string &place, const std::string &file) {
    files_.adoptMode(file, place);
    return files_.replace(file, place);
}

void kzofstream::end() noexcept {
    stream_.reset();
    temporary_.clear();
    target_.clear();
}

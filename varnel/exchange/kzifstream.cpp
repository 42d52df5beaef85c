#include "varnel/exchange/kzifstream.h"

#include "varnel/exchange/FileSystem.h"

namespace {

/// Some platforms open a directory like a file and fail at the first byte only. The mode is binary since the
/// document may hold any encoding.
std::unique_ptr<std::ifstream> openReadable(const std::string &path) {
    auto stream = std::make_unique<std::ifstream>(path, std::ios_base::in | std::ios_base::binary);
    if (!stream->good()) return stream;
    stream->peek();
    if (stream->bad())
        stream->close();
    else
        stream->clear();  // an empty file is open and good
    return stream;
}

}  // namespace

kzifstream::kzifstream(const char *path) {
    const std::string wanted = path ? path : "";
    stream_ = openReadable(wanted);
    if (stream_->is_open()) return;
    const std::string other = varnel::FileSystem::get().shortPath(wanted);
    stream_ = openReadable(other.empty() ? wanted : other);
}

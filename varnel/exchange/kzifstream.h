#ifndef VARNEL_EXCHANGE_KZIFSTREAM_H
#define VARNEL_EXCHANGE_KZIFSTREAM_H

#include <fstream>
#include <istream>
#include <memory>

#include "varnel/contracts/Export.h"

/// Reads a file; one that does not open under its path is tried under its short path, where the platform has
/// such names. Destroying it closes the file.
class VARNEL_EXPORT kzifstream {
  public:
    /// A null path counts as an empty one: nothing is opened.
    explicit kzifstream(const char *path);
    kzifstream(const kzifstream &) = delete;
    kzifstream &operator=(const kzifstream &) = delete;

    /// Reads nothing when it is not open.
    std::istream &stream() { return *stream_; }
    /// False if there is no such file, or what is there cannot be read, such as a directory.
    bool isOpen() const { return stream_->is_open(); }

  private:
    std::unique_ptr<std::ifstream> stream_;
};

#endif

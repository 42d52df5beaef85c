#ifndef VARNEL_CONTRACTS_TOOLS_PATH_H
#define VARNEL_CONTRACTS_TOOLS_PATH_H

#include <string>

#include "varnel/contracts/Export.h"

namespace Tools {

/// A file path and its parts, all as plain text: nothing here asks the disk. A directory is told from a file
/// by the separator at its end.
class VARNEL_EXPORT Path {
  public:
    Path() = default;
    explicit Path(const std::string &path) { setPath(path); }

    /// Sets the whole path.
    Path &setPath(const std::string &path);
    /// Replaces the file together with its extension; location and directory stay.
    Path &setFile(const std::string &file);

    /// The whole path as it was given, empty if none was.
    const std::string &path() const { return path_; }
    /// The same text by value.
    std::string path(bool) const { return path_; }
    /// Drive or network root ("C:", "\\server\share"); always empty where the platform knows none.
    const std::string &location() const { return location_; }
    /// The directories with the separator at their end, empty if the path names a file alone.
    const std::string &directory() const { return directory_; }
    /// The last component without its extension; the dot of a hidden file starts no extension.
    const std::string &file() const { return file_; }

  private:
    std::string path_;
    std::string location_;
    std::string directory_;
    std::string file_;
};

}  // namespace Tools

#endif

#ifndef VARNEL_EXCHANGE_FILESYSTEM_H
#define VARNEL_EXCHANGE_FILESYSTEM_H

#include <string>

#include "varnel/contracts/Export.h"

namespace varnel {

/// The calls of the platform that files of documents need, one operation a call: FileSystemPosix.cpp and
/// FileSystemWindows.cpp implement them, a test puts a double in their place. Nothing here throws for a
/// file's sake: a failure is an empty name or false.
class VARNEL_EXPORT FileSystem {
  public:
    virtual ~FileSystem() = default;

    /// The file system that streams opened from now on use: the platform's unless another was set.
    static FileSystem &get();
    /// Lent; null brings the platform's back. An open stream keeps the one that it was opened with.
    static void set(FileSystem *files);

    /// The directory for temporary files, empty if there is none.
    virtual std::string temporaryDirectory() = 0;
    /// Makes an empty file of a unique name in a directory and answers its path, empty on failure.
    virtual std::string makeTemporary(const std::string &directory) = 0;
    virtual bool exists(const std::string &path) = 0;
    /// Gives the present file `to` the content of `from`; empty after a failure, never half of it.
    virtual bool copy(const std::string &from, const std::string &to) = 0;
    /// The file that a path leads to: symbolic links at its end are followed, also to a file that is not
    /// there.
    virtual std::string resolve(const std::string &path) = 0;
    /// Gives a file the access rights of the target, or those of any new file if there is no target.
    virtual bool adoptMode(const std::string &file, const std::string &target) = 0;
    /// Returns once the content of a file has reached the disk.
    virtual bool sync(const std::string &file) = 0;
    /// Moves a file onto the target, in one step where the platform has it.
    virtual bool replace(const std::string &file, const std::string &target) = 0;
    /// Makes an empty file of a unique name beside the target, from which `replace` crosses no border between
    /// file systems; empty on failure, and where `replace` crosses them itself.
    virtual std::string makeBeside(const std::string &target) = 0;
    virtual bool remove(const std::string &path) = 0;
    /// Another, short name of a file, empty if it has none.
    virtual std::string shortPath(const std::string &path) = 0;

  protected:
    FileSystem() = default;
    FileSystem(const FileSystem &) = default;
    FileSystem &operator=(const FileSystem &) = default;

  private:
    static FileSystem &platform();
};

}  // namespace varnel

#endif

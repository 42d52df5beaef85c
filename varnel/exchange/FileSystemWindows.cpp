#if defined(_WIN32)

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "varnel/exchange/FileSystem.h"

namespace varnel {
namespace {

constexpr DWORD pathBuffer = 4096;

class FileSystemWindows final : public FileSystem {
  public:
    std::string temporaryDirectory() override {
        char directory[pathBuffer] = "";
        const DWORD length = GetTempPathA(pathBuffer, directory);
        return length > 0 && length < pathBuffer ? std::string(directory) : std::string();
    }

    std::string makeTemporary(const std::string &directory) override {
        char name[pathBuffer] = "";
        const UINT number = GetTempFileNameA(directory.c_str(), "kzofstream", 0, name);
        return number != 0 ? std::string(name) : std::string();
    }

    bool exists(const std::string &path) override {
        return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
    }

    bool copy(const std::string &from, const std::string &to) override {
        return CopyFileA(from.c_str(), to.c_str(), FALSE) != 0;
    }

    std::string resolve(const std::string &path) override { return path; }

    bool adoptMode(const std::string &, const std::string &) override { return true; }

    bool sync(const std::string &) override { return true; }

    /// MoveFileA replaces nothing, so the old file goes first; a move that fails leaves the new content under
    /// its temporary name.
    bool replace(const std::string &file, const std::string &target) override {
        DeleteFileA(target.c_str());
        return MoveFileA(file.c_str(), target.c_str()) != 0;
    }

    std::string makeBeside(const std::string &) override { return {}; }  // MoveFileA crosses volumes itself

    bool remove(const std::string &path) override { return DeleteFileA(path.c_str()) != 0; }

    std::string shortPath(const std::string &path) override {
        char name[pathBuffer] = "";
        const DWORD length = GetShortPathNameA(path.c_str(), name, pathBuffer);
        return length > 0 && length < pathBuffer ? std::string(name) : std::string();
    }
};

}  // namespace

FileSystem &FileSystem::platform() {
    static FileSystemWindows files;
    return files;
}

}  // namespace varnel

#endif

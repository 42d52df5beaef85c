#if !defined(_WIN32)

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <vector>

#include "varnel/contracts/Tools/TempPath.h"
#include "varnel/exchange/FileSystem.h"

namespace varnel {
namespace {

constexpr int mostLinks = 40;  // as many as the kernel itself follows

/// An open file, closed at the latest when it goes out of scope.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor() { close(); }

    int number() const { return number_; }
    bool isOpen() const { return number_ >= 0; }
    bool close() {
        const int number = number_;
        number_ = -1;
        return number >= 0 && ::close(number) == 0;
    }

  private:
    int number_;
};

std::string directoryOf(const std::string &path) {
    const std::size_t last = path.rfind('/');
    return last == std::string::npos ? std::string() : path.substr(0, last + 1);
}

bool writeAll(int file, const char *data, std::size_t size) {
    while (size > 0) {
        const ssize_t written = ::write(file, data, size);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        data += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool copyContent(int from, int to) {
    std::vector<char> buffer(1 << 16);
    for (;;) {
        const ssize_t count = ::read(from, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return count == 0;
        if (!writeAll(to, buffer.data(), static_cast<std::size_t>(count))) return false;
    }
}

/// The access rights of a new file, seen on one that is made beside the given file and goes again: to ask for
/// the mask itself is to set it, for all threads of the process. Private ones if none can be made.
mode_t modeOfNewFiles(const std::string &file) {
    const std::string probe = file + "~";
    const Descriptor made(::open(probe.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!made.isOpen()) return 0600;
    struct stat status {};
    const bool known = ::fstat(made.number(), &status) == 0;
    ::unlink(probe.c_str());
    return known ? status.st_mode & 0777 : 0600;
}

std::string makeUnique(std::string pattern) {
    const Descriptor file(::mkstemp(pattern.data()));
    return file.isOpen() ? pattern : std::string();
}

/// Text of a symbolic link, empty if the path is none.
std::string readLink(const std::string &path) {
    std::vector<char> text(4096);
    const ssize_t length = ::readlink(path.c_str(), text.data(), text.size());
    return length > 0 ? std::string(text.data(), static_cast<std::size_t>(length)) : std::string();
}

class FileSystemPosix final : public FileSystem {
  public:
    std::string temporaryDirectory() override { return Tools::getTempPath(); }

    std::string makeTemporary(const std::string &directory) override {
        return makeUnique(directory + "kzofstreamXXXXXX");
    }

    bool exists(const std::string &path) override { return ::access(path.c_str(), F_OK) == 0; }

    bool copy(const std::string &from, const std::string &to) override {
        const Descriptor source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
        Descriptor copy(::open(to.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC));
        if (!source.isOpen() || !copy.isOpen()) return false;
        if (copyContent(source.number(), copy.number()) && copy.close()) return true;
        static_cast<void>(::truncate(to.c_str(), 0) == 0);
        return false;
    }

    std::string resolve(const std::string &path) override {
        std::string place = path;
        for (int links = 0; links < mostLinks; ++links) {
            const std::string next = readLink(place);
            if (next.empty()) return place;
            place = next.front() == '/' ? next : directoryOf(place) + next;
        }
        return {};  // a loop
    }

    bool adoptMode(const std::string &file, const std::string &target) override {
        struct stat old {};
        const bool present = ::stat(target.c_str(), &old) == 0;
        return ::chmod(file.c_str(), present ? old.st_mode & 07777 : modeOfNewFiles(file)) == 0;
    }

    bool sync(const std::string &file) override {
        Descriptor content(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
        return content.isOpen() && ::fsync(content.number()) == 0 && content.close();
    }

    /// Only a regular file is replaced: a document never takes the place of a device or a pipe.
    bool replace(const std::string &file, const std::string &target) override {
        struct stat old {};
        if (::stat(target.c_str(), &old) == 0 && !S_ISREG(old.st_mode)) return false;
        return std::rename(file.c_str(), target.c_str()) == 0;
    }

    std::string makeBeside(const std::string &target) override {
        return makeUnique(directoryOf(target) + ".kzofstreamXXXXXX");
    }

    bool remove(const std::string &path) override { return ::unlink(path.c_str()) == 0; }

    std::string shortPath(const std::string &) override { return {}; }
};

}  // namespace

FileSystem &FileSystem::platform() {
    static FileSystemPosix files;
    return files;
}

}  // namespace varnel

#endif

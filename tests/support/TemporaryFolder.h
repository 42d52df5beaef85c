#ifndef VARNEL_TESTS_SUPPORT_TEMPORARYFOLDER_H
#define VARNEL_TESTS_SUPPORT_TEMPORARYFOLDER_H

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace varnel::test {

/// A folder of its own for one test, gone with everything in it when the test ends.
class TemporaryFolder {
  public:
    explicit TemporaryFolder(const std::filesystem::path &parent = std::filesystem::temp_directory_path()) {
        static std::atomic<unsigned> count{0};
        do {
            const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
            folder_ = parent / ("varnel-test-" + std::to_string(now) + "-" + std::to_string(count++));
        } while (!std::filesystem::create_directory(folder_));
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    /// Path of the folder, without a separator at its end.
    std::string path() const { return folder_.string(); }
    /// Path of a file in it, which need not be there.
    std::string file(const std::string &name) const { return (folder_ / name).string(); }

    /// Makes or overwrites a file and answers its path.
    std::string write(const std::string &name, const std::string &content) const {
        std::ofstream(folder_ / name, std::ios::binary) << content;
        return file(name);
    }
    /// Content of a file, empty if there is none.
    std::string read(const std::string &name) const {
        std::ifstream stream(folder_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }
    /// Names of everything in it, sorted.
    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto &entry : std::filesystem::directory_iterator(folder_))
            found.push_back(entry.path().filename().string());
        std::sort(found.begin(), found.end());
        return found;
    }

  private:
    std::filesystem::path folder_;
};

}  // namespace varnel::test

#endif

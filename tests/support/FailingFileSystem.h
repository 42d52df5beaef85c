#ifndef VARNEL_TESTS_SUPPORT_FAILINGFILESYSTEM_H
#define VARNEL_TESTS_SUPPORT_FAILINGFILESYSTEM_H

#include <climits>
#include <filesystem>
#include <set>
#include <string>
#include <utility>

#include "varnel/exchange/FileSystem.h"

namespace varnel::test {

/// The platform's file system with an accident at one call, in force while it lives. Every call is counted,
/// from 0. Temporary files go to a folder of the test's choice.
class FailingFileSystem : public FileSystem {
  public:
    enum Accident : int {
        None,
        OneFailure,  ///< that call fails, the later ones work again
        PowerLoss,   ///< that call and all later ones do nothing; content that was not synced is lost
    };

    explicit FailingFileSystem(std::string temporaryFolder, Accident accident = None, int call = INT_MAX)
        : temporaryFolder_(std::move(temporaryFolder)), accident_(accident), call_(call) {
        FileSystem::set(this);
    }
    FailingFileSystem(const FailingFileSystem &) = delete;
    FailingFileSystem &operator=(const FailingFileSystem &) = delete;
    ~FailingFileSystem() override { FileSystem::set(&inner_); }

    int calls() const { return calls_; }
    bool happened() const { return calls_ > call_; }
    /// Refuses moves out of the temporary folder, as between two file systems.
    void separateTemporaryFolder() { separate_ = true; }
    void setShortPath(const std::string &path) { shortPath_ = path; }

    std::string temporaryDirectory() override { return fails() ? "" : temporaryFolder_ + "/"; }
    std::string makeTemporary(const std::string &directory) override {
        return fails() ? "" : unsynced(inner_.makeTemporary(directory));
    }
    bool exists(const std::string &path) override { return !fails() && inner_.exists(path); }
    bool copy(const std::string &from, const std::string &to) override {
        if (fails()) return false;
        unsynced_.insert(to);
        return inner_.copy(from, to);
    }
    std::string resolve(const std::string &path) override { return fails() ? "" : inner_.resolve(path); }
    bool adoptMode(const std::string &file, const std::string &target) override {
        return !fails() && inner_.adoptMode(file, target);
    }
    bool sync(const std::string &file) override {
        if (fails()) return false;
        unsynced_.erase(file);
        return inner_.sync(file);
    }
    bool replace(const std::string &file, const std::string &target) override {
        const bool crosses = separate_ && file.rfind(temporaryFolder_, 0) == 0;
        if (fails() || crosses || !inner_.replace(file, target)) return false;
        if (unsynced_.erase(file) != 0) unsynced_.insert(target);
        return true;
    }
    std::string makeBeside(const std::string &target) override {
        return fails() ? "" : unsynced(inner_.makeBeside(target));
    }
    bool remove(const std::string &path) override { return !fails() && inner_.remove(path); }
    std::string shortPath(const std::string &) override { return fails() ? "" : shortPath_; }

    /// What a power loss leaves of the files whose content never reached the disk.
    void losePower() const {
        for (const std::string &file : unsynced_)
            if (std::filesystem::exists(file)) std::filesystem::resize_file(file, 0);
    }

  private:
    bool fails() {
        const int call = calls_++;
        return (accident_ == OneFailure && call == call_) || (accident_ == PowerLoss && call >= call_);
    }
    std::string unsynced(const std::string &file) {
        unsynced_.insert(file);
        return file;
    }

    FileSystem &inner_ = FileSystem::get();
    std::string temporaryFolder_;
    Accident accident_;
    int call_;
    int calls_ = 0;
    bool separate_ = false;
    std::string shortPath_;
    std::set<std::string> unsynced_;
};

}  // namespace varnel::test

#endif

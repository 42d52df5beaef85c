#include "varnel/exchange/FileSystem.h"

namespace varnel {
namespace {

FileSystem *replacement = nullptr;

}  // namespace

FileSystem &FileSystem::get() {
    return replacement ? *replacement : platform();
}

void FileSystem::set(FileSystem *files) {
    replacement = files;
}

}  // namespace varnel

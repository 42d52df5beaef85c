#include "varnel/contracts/Tools/Directory.h"

#include <filesystem>
#include <system_error>

namespace Tools {

bool Directory::setCurrent(const std::string &path) {
    std::error_code failure;
    std::filesystem::current_path(path, failure);
    return !failure;
}

}  // namespace Tools

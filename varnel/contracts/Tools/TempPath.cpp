#include "varnel/contracts/Tools/TempPath.h"

#include <filesystem>
#include <system_error>

namespace Tools {

std::string getTempPath() {
    std::error_code failure;
    const std::filesystem::path directory = std::filesystem::temp_directory_path(failure);
    if (failure || directory.empty()) return {};
    return (directory / "").string();  // joining with nothing adds the separator once
}

}  // namespace Tools

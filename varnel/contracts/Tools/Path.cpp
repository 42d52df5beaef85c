#include "varnel/contracts/Tools/Path.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

namespace Tools {
namespace {

constexpr bool hasDrives = std::filesystem::path::preferred_separator == '\\';
constexpr std::string_view separators = hasDrives ? "\\/" : "/";

bool isSeparator(char c) {
    return separators.find(c) != std::string_view::npos;
}

/// Length of "C:" or of "\\server\share" at the start of the path.
std::size_t locationLength(std::string_view path) {
    if (!hasDrives || path.size() < 2) return 0;
    if (path[1] == ':') return 2;
    if (!isSeparator(path[0]) || !isSeparator(path[1])) return 0;
    const std::size_t server = path.find_first_of(separators, 2);
    if (server == std::string_view::npos) return path.size();
    return std::min(path.find_first_of(separators, server + 1), path.size());
}

std::string_view withoutExtension(std::string_view file) {
    const std::size_t dot = file.rfind('.');
    const bool plain = dot == std::string_view::npos || dot == 0 || file == "..";
    return plain ? file : file.substr(0, dot);
}

}  // namespace

Path &Path::setPath(const std::string &path) {
    std::string whole = path;  // the argument may be one of this path's own parts
    const std::string_view text = whole;
    const std::size_t location = locationLength(text);
    const std::size_t last = text.substr(location).find_last_of(separators);
    const std::size_t file = last == std::string_view::npos ? location : location + last + 1;
    location_ = text.substr(0, location);
    directory_ = text.substr(location, file - location);
    file_ = withoutExtension(text.substr(file));
    path_ = std::move(whole);
    return *this;
}

Path &Path::setFile(const std::string &file) {
    return setPath(location_ + directory_ + file);
}

}  // namespace Tools

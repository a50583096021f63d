#include "shell/Paths.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>

#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

PathParts SplitPath(std::string_view path) {
    const std::string text = WithSlashes(path);
    const std::size_t slash = text.rfind('/');
    if (slash == std::string::npos) return {{}, text};
    return {slash == 0 ? "/" : text.substr(0, slash), text.substr(slash + 1)};
}

std::string WithSlashes(std::string_view path) {
    return Replace(path, "\\", "/");
}

bool IsFullPath(std::string_view path) {
    return path.starts_with('/') || path.find(':') == 1;
}

std::string AbsolutePath(std::string_view path) {
    std::string text = WithSlashes(path);
    if (text.empty() || IsFullPath(text)) return text;
    std::error_code failed;
    const std::filesystem::path whole = std::filesystem::absolute(text, failed);
    return failed ? text : whole.lexically_normal().string();
}

std::string WithEnding(std::string path, std::string_view ending) {
    const std::string title = SplitPath(path).Title;
    if (title.empty()) return path;
    const auto isLetter = [](unsigned char c) { return std::isalpha(c) != 0; };
    const auto isPart = [](unsigned char c) { return std::isalnum(c) != 0; };
    const std::size_t point = title.rfind('.');
    const std::string_view present = point == title.npos || point == 0
                                         ? std::string_view()
                                         : std::string_view(title).substr(point + 1);
    if (std::ranges::all_of(present, isPart) && std::ranges::any_of(present, isLetter)) return path;
    if (path.back() == '.') path.pop_back();
    return path.append(ending);
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.empty() && path.back() != '/') path += '/';
    return path.append(name);
}

std::string UserHomeFolder() {
    const char* home = std::getenv("HOME");
    return home != nullptr && *home != '\0' ? home : "/";
}

std::string DocumentOfCommandLine(std::string_view commandLine) {
    std::string_view rest = Trim(commandLine);
    const std::size_t first = rest.find('"');
    if (first == std::string_view::npos) return std::string(rest);
    rest.remove_prefix(first + 1);
    return std::string(rest.substr(0, rest.find('"')));
}

bool FileOrFolderExists(const std::string& path) {
    return !path.empty() && ui::TheDesktop().Files().Exists(path);
}

} // namespace vexora

#include "host/WriteReach.h"

#include <algorithm>
#include <filesystem>

namespace vexora::host {

namespace {

namespace fs = std::filesystem;

/// Whole, with "/" between folders.
fs::path Whole(const std::string& path) {
    std::string text = path;
    std::ranges::replace(text, '\\', '/');
    std::error_code error;
    const fs::path whole = fs::absolute(text.empty() ? "." : text, error);
    return error ? fs::path(text) : whole;
}

bool IsIn(const std::string& path, const std::string& folder) {
    if (!path.starts_with(folder)) return false;
    return folder.ends_with('/') || path.size() == folder.size() || path[folder.size()] == '/';
}

} // namespace

void WriteReach::AllowFolder(const std::string& folder) {
    std::string resolved = files_.Resolve(Whole(folder).string());
    if (resolved.size() > 1 && resolved.ends_with('/')) resolved.pop_back();
    folders_.push_back(std::move(resolved));
}

void WriteReach::AllowFolderOf(const std::string& document) {
    const std::string whole = Whole(document).string();
    if (!files_.Exists(whole) || files_.IsFolder(whole)) return;
    AllowFolder(fs::path(whole).parent_path().string());
}

std::string WriteReach::WhyNot(const std::string& path) const {
    return isBounded_ ? WhyNotResolved(files_.Resolve(Whole(path).string())) : std::string();
}

std::string WriteReach::WhyNotName(const std::string& path) const {
    if (!isBounded_) return {};
    const fs::path whole = Whole(path);
    // What ends in "..", "." or "/" names no entry of its folder.
    if (!whole.has_filename() || whole.filename() == ".." || whole.filename() == ".")
        return WhyNot(path);
    return WhyNotResolved(
        (fs::path(files_.Resolve(whole.parent_path().string())) / whole.filename()).string());
}

std::string WriteReach::WhyNotResolved(const std::string& path) const {
    const bool isReached = std::ranges::any_of(
        folders_, [&](const std::string& folder) { return IsIn(path, folder); });
    if (isReached) return {};
    return "A script may write there only when it is played with --allow-files " +
           fs::path(path).parent_path().string();
}

std::string ReachedFileSystem::WhyNotWritable(const std::string& path) {
    std::string why = reach_.WhyNot(path);
    return why.empty() ? files_.WhyNotWritable(path) : why;
}

std::unique_ptr<ui::OutputFile> ReachedFileSystem::CreateBeside(const std::string& target,
                                                                std::string& temporaryPath,
                                                                std::string& error) {
    error = reach_.WhyNotName(target);
    return error.empty() ? files_.CreateBeside(target, temporaryPath, error) : nullptr;
}

std::vector<std::string> ReachedFileSystem::Leftovers(const std::string& target) {
    if (!reach_.WhyNotName(target).empty()) return {};
    return files_.Leftovers(target);
}

std::string ReachedFileSystem::MakeFolder(const std::string& path) {
    std::string why = reach_.WhyNot(path);
    return why.empty() ? files_.MakeFolder(path) : why;
}

std::string ReachedFileSystem::Remove(const std::string& path) {
    std::string why = reach_.WhyNotName(path);
    return why.empty() ? files_.Remove(path) : why;
}

std::string ReachedFileSystem::Rename(const std::string& source, const std::string& target) {
    std::string why = reach_.WhyNotName(source);
    if (why.empty()) why = reach_.WhyNotName(target);
    return why.empty() ? files_.Rename(source, target) : why;
}

std::string ReachedFileSystem::Link(const std::string& source, const std::string& name) {
    std::string why = reach_.WhyNotName(name);
    return why.empty() ? files_.Link(source, name) : why;
}

std::string ReachedFileSystem::Copy(const std::string& source, const std::string& target) {
    std::string why = reach_.WhyNotName(target);
    return why.empty() ? files_.Copy(source, target) : why;
}

} // namespace vexora::host

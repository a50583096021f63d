#include "cli/DocumentList.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "reference/Text.h"

namespace vexora {

namespace {

namespace fs = std::filesystem;

bool IsRecordFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    constexpr std::streamsize longest = 4096; // a file without line ends is none
    std::string start(longest, '\0');
    file.read(start.data(), longest);
    start.resize(static_cast<std::size_t>(file.gcount()));
    std::string_view text = start;
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    return Trim(text).starts_with("^R");
}

std::string NameBelow(const fs::path& path, const fs::path& folder) {
    return path.lexically_relative(folder).replace_extension().generic_string();
}

std::vector<ListedDocument> RecordFilesIn(const fs::path& folder) {
    std::vector<ListedDocument> found;
    std::error_code error; // what cannot be looked into holds nothing for us
    constexpr auto options = fs::directory_options::skip_permission_denied;
    for (fs::recursive_directory_iterator entry(folder, options, error), end;
         !error && entry != end; entry.increment(error)) {
        if (entry->is_regular_file(error) && IsRecordFile(entry->path()))
            found.push_back({entry->path().string(), NameBelow(entry->path(), folder), false});
    }
    std::sort(found.begin(), found.end(),
              [](const auto& a, const auto& b) { return a.path < b.path; });
    return found;
}

} // namespace

std::vector<ListedDocument> ListDocuments(const std::vector<std::string>& paths) {
    std::vector<ListedDocument> documents;
    for (const std::string& path : paths) {
        std::error_code error;
        std::vector<ListedDocument> found;
        const bool isFolder = fs::is_directory(path, error);
        if (isFolder) found = RecordFilesIn(path);
        // A folder without any is told like a file that cannot be read.
        if (found.empty()) found.push_back({path, fs::path(path).stem().string(), isFolder});
        std::move(found.begin(), found.end(), std::back_inserter(documents));
    }
    return documents;
}

} // namespace vexora

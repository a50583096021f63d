#include "reference/SafeFile.h"

#include <memory>

namespace vexora {

namespace {

/// Removes a file at the end of the scope unless it was kept.
class TemporaryFile {
public:
    TemporaryFile(ui::FileSystem& files, std::string path)
        : files_(files), path_(std::move(path)) {}
    ~TemporaryFile() {
        if (!path_.empty() && files_.Exists(path_)) files_.Remove(path_);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    const std::string& Path() const { return path_; }
    void Keep() { path_.clear(); }

private:
    ui::FileSystem& files_;
    std::string path_;
};

/// Both slashes part folders, whatever the platform that wrote the path.
std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.find_last_of("/\\");
    return slash == std::string::npos ? "." : slash == 0 ? "/" : path.substr(0, slash);
}

std::string Fill(ui::OutputFile& file, std::string_view content) {
    // A full disk may be told at any of the three; the first reason is the one to show.
    std::string error = file.Write(content);
    if (error.empty()) error = file.Flush();
    const std::string closing = file.Close();
    return error.empty() ? closing : error;
}

/// Gives the file a second name; where links are not to be had, a copy.
std::string SecondName(ui::FileSystem& files, const std::string& path, const std::string& name) {
    if (files.Exists(name)) files.Remove(name);
    // A link costs no room and cannot be half done.
    return files.Link(path, name).empty() ? std::string() : files.Copy(path, name);
}

/// Puts the finished file in the place of the target; the present one becomes the backup. Both
/// happen or neither.
std::string Exchange(ui::FileSystem& files, TemporaryFile& finished, const std::string& target,
                     const std::string& backup) {
    if (backup.empty()) {
        std::string error = files.Rename(finished.Path(), target);
        if (error.empty()) finished.Keep();
        return error;
    }
    // Under a temporary name first: the old backup is gone only when there is a new one.
    TemporaryFile present(files, backup + ".tmp");
    std::string error = SecondName(files, target, present.Path());
    if (error.empty()) error = files.Rename(finished.Path(), target);
    if (!error.empty()) return error;
    finished.Keep();
    // If the backup cannot be put in place, what stood there comes back and the save has failed.
    error = files.Rename(present.Path(), backup);
    if (!error.empty() && !files.Rename(present.Path(), target).empty()) present.Keep();
    return error;
}

} // namespace

std::string WriteSafely(ui::FileSystem& files, const std::string& path, std::string_view content,
                        bool keepBackup) {
    const std::string target = files.Resolve(path);
    // Before anything is written: a rename would replace a write-protected file without asking.
    if (std::string reason = files.WhyNotWritable(target); !reason.empty()) return reason;
    std::string temporaryPath;
    std::string error;
    const std::unique_ptr<ui::OutputFile> file = files.CreateBeside(target, temporaryPath, error);
    if (!file) return error.empty() ? "The file cannot be made: " + target : error;
    TemporaryFile temporary(files, temporaryPath);
    error = Fill(*file, content);
    if (!error.empty()) return error;
    // On a full disk writing has been seen to report success for a file cut short.
    if (files.Size(temporaryPath) != static_cast<long long>(content.size()))
        return "The file was not written whole: " + target;
    const std::string backup = keepBackup && files.Exists(target) ? path + ".bak" : "";
    error = Exchange(files, temporary, target, backup);
    if (!error.empty()) return error;
    // A rename lives in the folder; without this a power cut may bring back the old file.
    files.FlushFolder(FolderOf(target));
    return {};
}

} // namespace vexora

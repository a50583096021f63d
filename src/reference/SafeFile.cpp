#include "reference/SafeFile.h"

#include <exception>
#include <memory>

namespace vexora {

namespace {

constexpr const char* BackupEnding = ".bak";

/// Removes a file at the end of the scope unless it was kept.
class TemporaryFile {
public:
    TemporaryFile(ui::FileSystem& files, std::string path)
        : files_(files), path_(std::move(path)) {}
    ~TemporaryFile() {
        try {
            if (!path_.empty() && files_.Exists(path_)) files_.Remove(path_);
        } catch (const std::exception&) { // the next save removes it
        }
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

/// Of which the size is told as well.
std::string Fill(ui::OutputFile& file, const Printing& print, long long& size) {
    // A full disk may be told at any of the three; the first reason is the one to show.
    std::string error;
    print([&](std::string_view part) {
        size += static_cast<long long>(part.size());
        if (error.empty()) error = file.Write(part);
    });
    if (error.empty()) error = file.Flush();
    const std::string closing = file.Close();
    return error.empty() ? closing : error;
}

/// Gives the file a second name; where links are not to be had, a copy.
std::string SecondName(ui::FileSystem& files, const std::string& path, const std::string& name) {
    // A link costs no room and cannot be half done.
    return files.Link(path, name).empty() ? std::string() : files.Copy(path, name);
}

bool Holds(ui::FileSystem& files, const std::string& path, std::string_view content) {
    std::string error;
    const auto present = files.Read(path, error);
    return present && *present == content;
}

/// Puts the finished file in the place of the target; the present one becomes the backup, if a name
/// for that is given. Both happen or neither. A renaming over a network may report a fault and have
/// happened all the same, so it is looked at what stands.
SaveOutcome Exchange(ui::FileSystem& files, const TemporaryFile& finished,
                     const std::string& target, const std::function<bool()>& stands,
                     const std::string& backup) {
    // Under a temporary name first: the old backup is gone only when there is a new one.
    TemporaryFile present(files, backup.empty() ? std::string()
                                                : backup + finished.Path().substr(target.size()));
    std::string error;
    if (!backup.empty()) error = SecondName(files, target, present.Path());
    if (!error.empty()) return {false, error};
    error = files.Rename(finished.Path(), target);
    if (!error.empty() && (files.Exists(finished.Path()) || !stands())) return {false, error};
    if (backup.empty()) return {true, {}};
    error = files.Rename(present.Path(), backup);
    if (error.empty() || !files.Exists(present.Path())) return {true, {}};
    // What stood there comes back, and the save has failed.
    files.Rename(present.Path(), target);
    if (!files.Exists(present.Path())) return {false, error};
    error += "\nThe version before is " + present.Path();
    present.Keep();
    return {true, error};
}

/// A rename lives in the folder; without this a power cut may bring back the old file.
std::string FlushFolders(ui::FileSystem& files, const std::string& target,
                         const std::string& backup) {
    std::string error = files.FlushFolder(FolderOf(target));
    if (backup.empty() || FolderOf(backup) == FolderOf(target)) return error;
    const std::string ofBackup = files.FlushFolder(FolderOf(backup));
    return error.empty() ? ofBackup : error;
}

/// One that cannot be removed is no reason not to save.
void RemoveLeftovers(ui::FileSystem& files, const std::string& target) {
    for (const std::string& path : files.Leftovers(target))
        files.Remove(path);
}

/// stands tells whether the target holds the content of this size.
SaveOutcome Save(ui::FileSystem& files, const std::string& path, const Printing& print,
                 const std::function<bool(const std::string& target, long long size)>& stands,
                 bool keepBackup) {
    const std::string target = files.Resolve(path);
    // Before anything is written: a rename would replace a write-protected file without asking.
    if (const std::string reason = files.WhyNotWritable(target); !reason.empty())
        return {false, reason};
    RemoveLeftovers(files, target);
    if (keepBackup) RemoveLeftovers(files, path + BackupEnding);
    std::string temporaryPath;
    std::string error;
    const std::unique_ptr<ui::OutputFile> file = files.CreateBeside(target, temporaryPath, error);
    if (!file) return {false, error.empty() ? "The file cannot be made: " + target : error};
    const TemporaryFile temporary(files, temporaryPath);
    long long size = 0;
    error = Fill(*file, print, size);
    // On a full disk writing has been seen to report success for a file cut short.
    if (error.empty() && files.Size(temporaryPath) != size)
        error = "The file was not written whole: " + target;
    if (!error.empty()) return {false, error};
    const std::string backup = keepBackup && files.Exists(target) ? path + BackupEnding : "";
    SaveOutcome outcome = Exchange(
        files, temporary, target, [&] { return stands(target, size); }, backup);
    if (!outcome.isSaved) return outcome;
    error = FlushFolders(files, target, backup);
    if (outcome.fault.empty()) outcome.fault = error;
    return outcome;
}

} // namespace

std::string SaveOutcome::Told(const std::string& file) const {
    if (fault.empty()) return {};
    return file +
           (isSaved ? " is saved, but the disk reports a fault.\n" : " cannot be written.\n") +
           fault;
}

SaveOutcome WriteSafely(ui::FileSystem& files, const std::string& path, std::string_view content,
                        bool keepBackup) {
    return Save(
        files, path, [content](const auto& taker) { taker(content); },
        [&](const std::string& target, long long) { return Holds(files, target, content); },
        keepBackup);
}

SaveOutcome WriteSafely(ui::FileSystem& files, const std::string& path, const Printing& print,
                        bool keepBackup) {
    return Save(
        files, path, print,
        [&](const std::string& target, long long size) { return files.Size(target) == size; },
        keepBackup);
}

} // namespace vexora

#include "host/PosixFileSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <new>
#include <system_error>

namespace vexora::host {

namespace {

namespace fs = std::filesystem;

constexpr mode_t NewFileMode = 0666; // before the umask of the user

// A temporary file is the name of its target with this and six letters or digits behind it, so that
// it is known again and never taken for a file of the user.
constexpr std::string_view TemporaryMark = ".vxr-";
constexpr std::size_t TemporaryLetters = 6;
constexpr std::time_t LeftoverAge = 60; // [s] no save takes as long

/// What stands behind the name of the target; a copy of a temporary file carries the mark twice.
bool IsTemporaryEnding(std::string_view ending) {
    const std::size_t length = TemporaryMark.size() + TemporaryLetters;
    if (ending.size() < length || !ending.starts_with(TemporaryMark)) return false;
    for (const char c : ending.substr(TemporaryMark.size(), TemporaryLetters)) {
        if (std::isalnum(static_cast<unsigned char>(c)) == 0) return false;
    }
    return ending.size() == length || IsTemporaryEnding(ending.substr(length));
}

/// A second name is as young as its making, however old the file is.
bool IsLeftover(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
    const std::time_t made = status.st_nlink > 1 ? status.st_ctime : status.st_mtime;
    return std::time(nullptr) - made > LeftoverAge;
}

std::string Reason(int error) {
    return std::generic_category().message(error);
}

std::string FolderOf(const std::string& path) {
    const std::string folder = fs::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

struct FolderCloser {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

class PosixOutputFile : public ui::OutputFile {
public:
    explicit PosixOutputFile(int file) : file_(file) {}
    ~PosixOutputFile() override { Close(); }
    PosixOutputFile(const PosixOutputFile&) = delete;
    PosixOutputFile& operator=(const PosixOutputFile&) = delete;

    std::string Write(std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t written = ::write(file_, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) return Reason(errno);
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return {};
    }

    std::string Flush() override { return ::fsync(file_) == 0 ? std::string() : Reason(errno); }

    std::string Close() override {
        if (file_ < 0) return {};
        const int file = file_;
        file_ = -1;
        return ::close(file) == 0 ? std::string() : Reason(errno);
    }

private:
    int file_;
};

/// The mode that a file in the place of target has to have.
mode_t ModeFor(const std::string& target) {
    struct stat status {};
    if (::stat(target.c_str(), &status) == 0) return status.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return NewFileMode & ~mask;
}

int OpenRetrying(const std::string& path, int flags) {
    int file = -1;
    do {
        file = ::open(path.c_str(), flags | O_CLOEXEC);
    } while (file < 0 && errno == EINTR);
    return file;
}

/// Why nothing is read from there or written over it: a pipe has no end, a device no content of
/// its own. Empty for a file.
std::string WhyNoFile(mode_t mode) {
    if (S_ISREG(mode)) return {};
    if (S_ISDIR(mode)) return Reason(EISDIR);
    if (S_ISFIFO(mode)) return "It is no file but a pipe";
    return S_ISSOCK(mode) ? "It is no file but a socket" : "It is no file but a device";
}

std::string TooLarge(long long most) {
    constexpr long long mebi = 1024LL * 1024;
    const bool isWhole = most % mebi == 0;
    return "It is larger than " + std::to_string(isWhole ? most / mebi : most) +
           (isWhole ? " MiB" : " bytes");
}

/// Reads to the end; the reason of a failure, empty when it went well. A file may grow meanwhile.
std::string ReadAll(int file, std::string& into, long long most) {
    char buffer[65536];
    for (;;) {
        const ssize_t count = ::read(file, buffer, sizeof buffer);
        if (count == 0) return {};
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return Reason(errno);
        into.append(buffer, static_cast<std::size_t>(count));
        if (static_cast<long long>(into.size()) > most) return TooLarge(most);
    }
}

/// The same of a file that was just opened.
std::string ReadOpened(int file, std::string& into, long long most) {
    struct stat status {};
    if (::fstat(file, &status) != 0) return Reason(errno);
    if (std::string reason = WhyNoFile(status.st_mode); !reason.empty()) return reason;
    if (status.st_size > most) return TooLarge(most);
    try {
        into.reserve(static_cast<std::size_t>(status.st_size));
        return ReadAll(file, into, most);
    } catch (const std::bad_alloc&) {
        return Reason(ENOMEM);
    }
}

} // namespace

bool PosixFileSystem::Exists(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0; // needs no memory: it is asked for when that is gone
}

bool PosixFileSystem::IsFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::optional<std::string> PosixFileSystem::Read(const std::string& path, std::string& error) {
    // A pipe that nobody writes to would keep the program waiting.
    const int file = OpenRetrying(path, O_RDONLY | O_NONBLOCK);
    if (file < 0) {
        error = Reason(errno);
        return {};
    }
    std::string text;
    error = ReadOpened(file, text, mostBytes_);
    ::close(file);
    if (!error.empty()) return {};
    return text;
}

long long PosixFileSystem::Size(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? static_cast<long long>(status.st_size) : -1;
}

std::string PosixFileSystem::Resolve(const std::string& path) {
    std::error_code error;
    fs::path place(path);
    // A link to a file that is not there yet is followed too; the count ends a circle of links.
    for (int links = 0; links < 40 && fs::is_symlink(place, error); ++links) {
        const fs::path next = fs::read_symlink(place, error);
        if (error) break;
        place = next.is_absolute() ? next : place.parent_path() / next;
    }
    const fs::path whole = fs::weakly_canonical(place, error);
    return error ? path : whole.string();
}

std::string PosixFileSystem::WhyNotWritable(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) {
        if (std::string reason = WhyNoFile(status.st_mode); !reason.empty()) return reason;
    }
    if (Exists(path) && ::access(path.c_str(), W_OK) != 0) return Reason(errno);
    const std::string folder = FolderOf(path);
    if (!IsFolder(folder)) return Reason(Exists(folder) ? ENOTDIR : ENOENT);
    return ::access(folder.c_str(), W_OK | X_OK) == 0 ? std::string() : Reason(errno);
}

std::unique_ptr<ui::OutputFile> PosixFileSystem::CreateBeside(const std::string& target,
                                                              std::string& temporaryPath,
                                                              std::string& error) {
    std::string path = target + std::string(TemporaryMark) + std::string(TemporaryLetters, 'X');
    const int file = ::mkstemp(path.data());
    if (file < 0) {
        error = Reason(errno);
        return nullptr;
    }
    ::fcntl(file, F_SETFD, FD_CLOEXEC);
    if (::fchmod(file, ModeFor(target)) != 0) {
        error = Reason(errno);
        ::close(file);
        ::unlink(path.c_str());
        return nullptr;
    }
    temporaryPath = path;
    return std::make_unique<PosixOutputFile>(file);
}

std::vector<std::string> PosixFileSystem::Leftovers(const std::string& target) {
    const std::string title = fs::path(target).filename().string();
    const std::string folder = FolderOf(target);
    std::vector<std::string> found;
    // An iterator of the standard library ends the program when there is no memory for it.
    const std::unique_ptr<DIR, FolderCloser> entries(::opendir(folder.c_str()));
    while (const dirent* entry = entries ? ::readdir(entries.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (!name.starts_with(title) || !IsTemporaryEnding(name.substr(title.size()))) continue;
        std::string path = folder + "/" + entry->d_name;
        if (IsLeftover(path)) found.push_back(std::move(path));
    }
    return found;
}

std::string PosixFileSystem::MakeFolder(const std::string& path) {
    std::error_code error;
    fs::create_directories(path, error);
    return error ? error.message() : std::string();
}

std::string PosixFileSystem::Remove(const std::string& path) {
    return ::unlink(path.c_str()) == 0 || errno == ENOENT ? std::string() : Reason(errno);
}

std::string PosixFileSystem::Rename(const std::string& source, const std::string& target) {
    return ::rename(source.c_str(), target.c_str()) == 0 ? std::string() : Reason(errno);
}

std::string PosixFileSystem::Link(const std::string& source, const std::string& name) {
    return ::link(source.c_str(), name.c_str()) == 0 ? std::string() : Reason(errno);
}

std::string PosixFileSystem::Copy(const std::string& source, const std::string& target) {
    std::string error;
    const auto text = Read(source, error);
    if (!text) return error;
    std::string temporary;
    auto file = CreateBeside(target, temporary, error);
    if (!file) return error;
    error = file->Write(*text);
    if (error.empty()) error = file->Flush();
    if (const std::string closing = file->Close(); error.empty()) error = closing;
    if (error.empty()) error = Rename(temporary, target);
    if (!error.empty()) Remove(temporary);
    return error;
}

std::string PosixFileSystem::FlushFolder(const std::string& folder) {
    const int file = OpenRetrying(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
    if (file < 0) return Reason(errno);
    // Some file systems know no flush of a folder; that is no loss of data.
    const int answer = ::fsync(file) == 0 || errno == EINVAL || errno == ENOSYS ? 0 : errno;
    ::close(file);
    return answer == 0 ? std::string() : Reason(answer);
}

} // namespace vexora::host

#include "host/PosixRecoveryFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <set>
#include <system_error>
#include <utility>

namespace vexora::host {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view CopyEnding = ".recovery";
constexpr std::string_view LockEnding = ".lock";
constexpr int MostCopies = 1000; // of one process number

std::string LockOf(const std::string& copy) {
    return copy + std::string(LockEnding);
}

/// The open lock of a copy, -1 when another program has it or, with the reason, when there can be
/// none.
int Lock(const std::string& copy, std::string& error) {
    const std::string path = LockOf(copy);
    for (;;) {
        const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        if (file < 0) {
            error = std::generic_category().message(errno);
            return -1;
        }
        if (::flock(file, LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK) error = std::generic_category().message(errno);
            ::close(file);
            return -1;
        }
        // The program before may have removed it between the two calls.
        struct stat locked {
        }, present{};
        if (::fstat(file, &locked) == 0 && ::stat(path.c_str(), &present) == 0 &&
            locked.st_ino == present.st_ino && locked.st_dev == present.st_dev)
            return file;
        ::close(file);
    }
}

bool Exists(const std::string& path) {
    std::error_code error;
    return fs::exists(path, error);
}

/// What stands in the folder, by the names of copies that it belongs to.
std::set<std::string> NamesOfCopies(const std::string& folder) {
    std::set<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const std::size_t end = name.find(CopyEnding);
        if (end != name.npos) names.insert(name.substr(0, end + CopyEnding.size()));
    }
    return names;
}

/// What a program has left that was killed while it wrote its copy.
void RemoveHalfWritten(const std::string& copy) {
    std::vector<fs::path> found;
    std::error_code error;
    fs::directory_iterator entry(fs::path(copy).parent_path(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        if (entry->path().string().starts_with(copy + ".vxr-")) found.push_back(entry->path());
    for (const fs::path& path : found)
        fs::remove(path, error);
}

fs::file_time_type TimeOf(const std::string& path) {
    std::error_code error;
    return fs::last_write_time(path, error);
}

} // namespace

PosixRecoveryFolder::PosixRecoveryFolder(std::string folder) : folder_(std::move(folder)) {}

PosixRecoveryFolder::~PosixRecoveryFolder() {
    LeaveOthers();
    Release(own_);
}

/// The lock goes before it is opened, so that nobody can take it for that of a program that lives.
void PosixRecoveryFolder::Release(const Held& held) {
    if (held.lock < 0) return;
    if (!Exists(held.copy)) ::unlink(LockOf(held.copy).c_str());
    ::close(held.lock);
}

std::string PosixRecoveryFolder::Own(std::string& error) {
    if (own_.lock >= 0) return own_.copy;
    std::error_code fault;
    fs::create_directories(folder_, fault);
    if (fault) error = fault.message();
    for (int n = 1; n <= MostCopies && error.empty(); ++n) {
        const std::string copy = folder_ + "/" + std::to_string(::getpid()) + "-" +
                                 std::to_string(n) + std::string(CopyEnding);
        if (Exists(copy)) continue; // of a program before that had the same number
        const int lock = Lock(copy, error);
        if (lock < 0) continue;
        own_ = {copy, lock};
        return copy;
    }
    if (error.empty()) error = "There are too many copies";
    return {};
}

std::vector<std::string> PosixRecoveryFolder::Orphans() {
    for (const std::string& name : NamesOfCopies(folder_)) {
        const std::string copy = folder_ + "/" + name;
        std::string error;
        const int lock = Lock(copy, error);
        if (lock < 0) continue;
        RemoveHalfWritten(copy);
        orphans_.push_back({copy, lock});
    }
    std::ranges::sort(orphans_,
                      [](const Held& a, const Held& b) { return TimeOf(a.copy) > TimeOf(b.copy); });
    std::vector<std::string> copies;
    for (const Held& one : orphans_)
        if (Exists(one.copy)) copies.push_back(one.copy);
    return copies;
}

void PosixRecoveryFolder::Adopt(const std::string& copy) {
    const auto found = std::ranges::find(orphans_, copy, &Held::copy);
    if (found == orphans_.end()) return;
    Release(std::exchange(own_, *found));
    orphans_.erase(found);
}

void PosixRecoveryFolder::LeaveOthers() {
    for (const Held& one : orphans_)
        Release(one);
    orphans_.clear();
}

std::shared_ptr<RecoveryFolder> RecoveryBelow(const std::string& home) {
    return std::make_shared<PosixRecoveryFolder>(home + "/recovery");
}

} // namespace vexora::host

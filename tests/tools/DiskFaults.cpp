// Loaded in front of the C library by scripts/faults: makes the n-th call that changes a file below
// a folder fail, so that the real program is seen on a broken disk. Named by the environment:
// VXR_FAULT_FOLDER, VXR_FAULT_CALL (counted from 1), VXR_FAULT_KIND (count, kill, once, ever, full,
// short), VXR_FAULT_ERROR (the number of the error), VXR_FAULT_NO_LINKS, VXR_FAULT_COUNT (a file
// that takes the count of the calls).

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

struct Plan {
    std::string folder = Text("VXR_FAULT_FOLDER");
    std::string kind = Text("VXR_FAULT_KIND");
    std::string count = Text("VXR_FAULT_COUNT");
    int call = std::atoi(Text("VXR_FAULT_CALL").c_str());
    int error = std::atoi(Text("VXR_FAULT_ERROR").c_str());
    bool hasNoLinks = !Text("VXR_FAULT_NO_LINKS").empty(); // a disk that knows none
    int calls = 0;

    static std::string Text(const char* name) {
        const char* value = std::getenv(name);
        return value ? value : "";
    }
    ~Plan() {
        if (count.empty()) return;
        if (std::FILE* file = std::fopen(count.c_str(), "w")) {
            std::fprintf(file, "%d\n", calls);
            std::fclose(file);
        }
    }
};

Plan& ThePlan() {
    static Plan plan;
    return plan;
}

template <class TFunction>
TFunction* Real(const char* name) {
    return reinterpret_cast<TFunction*>(dlsym(RTLD_NEXT, name));
}

bool IsWatched(std::string_view path) {
    const std::string& folder = ThePlan().folder;
    return !folder.empty() && path.starts_with(folder + "/");
}

bool IsWatched(int file) {
    char path[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = ::readlink(link.c_str(), path, sizeof path);
    return length > 0 && IsWatched(std::string_view(path, static_cast<std::size_t>(length)));
}

/// True when this call has to fail; errno is set. Kills the program where that is the plan.
bool Fails(bool isRemoval = false) {
    Plan& plan = ThePlan();
    ++plan.calls;
    const bool isLater = plan.calls > plan.call;
    const bool isHit = plan.calls == plan.call || (isLater && plan.kind == "ever") ||
                       (isLater && plan.kind == "full" && !isRemoval);
    if (plan.call == 0 || !isHit || plan.kind == "count") return false;
    if (plan.kind == "kill") ::kill(::getpid(), SIGKILL);
    errno = plan.error;
    return true;
}

} // namespace

extern "C" {

int mkstemp(char* pattern) {
    if (IsWatched(pattern) && Fails()) return -1;
    return Real<int(char*)>("mkstemp")(pattern);
}

ssize_t write(int file, const void* bytes, size_t size) {
    const auto real = Real<ssize_t(int, const void*, size_t)>("write");
    if (!IsWatched(file)) return real(file, bytes, size);
    // In pieces as a disk takes them, so that a file fails in its middle too.
    const size_t part = std::min(size, std::max<size_t>(4096, size / 8));
    if (!Fails()) return real(file, bytes, part);
    if (ThePlan().kind != "short") return -1;
    const int error = errno;
    real(file, bytes, part / 2);
    errno = error;
    return -1;
}

int fsync(int file) {
    if (IsWatched(file) && Fails()) return -1;
    return Real<int(int)>("fsync")(file);
}

int fchmod(int file, mode_t mode) {
    if (IsWatched(file) && Fails()) return -1;
    return Real<int(int, mode_t)>("fchmod")(file, mode);
}

int close(int file) {
    const auto real = Real<int(int)>("close");
    // Only of what was written: a file that was read changes nothing.
    const bool isWritten = IsWatched(file) && (::fcntl(file, F_GETFL) & O_ACCMODE) != O_RDONLY;
    const bool fails = isWritten && Fails();
    const int error = errno;
    const int answer = real(file);
    if (!fails) return answer;
    errno = error;
    return -1;
}

int rename(const char* source, const char* target) {
    if (IsWatched(target) && Fails()) return -1;
    return Real<int(const char*, const char*)>("rename")(source, target);
}

int link(const char* source, const char* name) {
    if (IsWatched(name) && Fails()) return -1;
    if (IsWatched(name) && ThePlan().hasNoLinks) {
        errno = EPERM;
        return -1;
    }
    return Real<int(const char*, const char*)>("link")(source, name);
}

int unlink(const char* path) {
    if (IsWatched(path) && Fails(true)) return -1;
    return Real<int(const char*)>("unlink")(path);
}
}

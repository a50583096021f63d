#include "host/FindPlaces.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace vexora::host {

namespace {

namespace fs = std::filesystem;

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string FullPath(const fs::path& path) {
    std::error_code error;
    fs::path full = fs::absolute(path, error).lexically_normal();
    if (!full.has_filename() && full.has_parent_path()) full = full.parent_path();
    return error ? path.string() : full.string();
}

fs::path ProgramFolder(const std::string& argv0) {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    return (error ? fs::absolute(argv0, error) : program).parent_path();
}

bool IsHome(const fs::path& folder) {
    std::error_code error;
    const bool hasDatabases =
        fs::exists(folder / "VXRLocal.mdb", error) && fs::exists(folder / "VXR.mdb", error);
    return (hasDatabases || fs::exists(folder / "VXR.ini", error)) &&
           ::access(folder.c_str(), W_OK | X_OK) == 0;
}

fs::path UserDataFolder() {
    const std::string data = Environment("XDG_DATA_HOME");
    if (data.starts_with('/')) return fs::path(data) / "vexora";
    return fs::path(Environment("HOME")) / ".local/share/vexora";
}

fs::path HomeFolder(const std::optional<std::string>& home, const fs::path& program) {
    if (home) return *home;
    if (const std::string set = Environment("VEXORA_HOME"); !set.empty()) return set;
    return IsHome(program) ? program : UserDataFolder();
}

} // namespace

Places FindPlaces(const std::optional<std::string>& home, const std::string& argv0) {
    const fs::path program = ProgramFolder(argv0);
    const fs::path installed = program.parent_path() / "share/vexora";
    std::error_code error;
    Places places;
    places.Home = FullPath(HomeFolder(home, program));
    if (fs::is_directory(installed, error)) places.Installed = FullPath(installed);
    return places;
}

} // namespace vexora::host

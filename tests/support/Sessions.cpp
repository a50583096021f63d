#include "support/Sessions.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "host/Actor.h"
#include "host/PlayMain.h"
#include "host/WorkbenchProgram.h"
#include "reference/Text.h"
#include "support/ScratchFolder.h"

namespace vexora::test {

namespace {

const char* const sessionsFolder = VEXORA_SOURCE_DIR "/tests/sessions";

} // namespace

std::vector<std::string> SessionFiles() {
    std::vector<std::string> files;
    if (!std::filesystem::is_directory(sessionsFolder)) return files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sessionsFolder)) {
        if (entry.path().extension() == ".vxs") files.push_back(entry.path().string());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string SessionName(const std::string& path) {
    std::string name = std::filesystem::relative(path, sessionsFolder).replace_extension().string();
    std::replace_if(
        name.begin(), name.end(),
        [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
}

SessionPlay PlaySession(const std::string& path) {
    const ScratchFolder folder;
    const std::string home = folder.Path("home");
    const std::string out = folder.Path("out");
    std::filesystem::create_directory(out);
    std::ostringstream transcript;
    std::ostringstream errors;
    host::Actor actor;
    const int status =
        host::PlayMain({"--home", home, "--date", "2026-01-15", "--var", "OUT=" + out, path},
                       {actor, transcript, errors, "vexora-tests", host::WorkbenchIn});
    const auto named = [&](const std::string& text) {
        return Replace(Replace(text, home, "HOME"), out, "OUT");
    };
    SessionPlay play{status, named(transcript.str()), named(errors.str()), {}};
    for (const auto& entry : std::filesystem::recursive_directory_iterator(out)) {
        if (!entry.is_regular_file()) continue;
        std::ostringstream content;
        content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
        play.files[std::filesystem::relative(entry.path(), out).string()] = content.str();
    }
    return play;
}

} // namespace vexora::test

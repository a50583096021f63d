#include "host/PlayMain.h"

#include <filesystem>
#include <optional>

#include "host/FindPlaces.h"
#include "host/HostClock.h"
#include "host/Player.h"
#include "host/PosixFileSystem.h"
#include "host/PosixRecoveryFolder.h"
#include "shell/Places.h"

namespace vexora::host {

namespace {

enum Status { allHeld = 0, notHeld = 1, malformed = 2 };

constexpr const char* Usage = "play [--home DIR] [--date YYYY-MM-DD] [--var NAME=TEXT]... "
                              "[--allow-files DIR]... [--keep-going] [--recovery] [--shots DIR] "
                              "FILE...";

struct Request {
    std::optional<std::string> home;
    ScriptVariables variables{{"OUT", "."}};
    PlayOptions options;
    std::vector<std::string> files;
    bool recovery = false;            // copies are written and offered as to a person
    std::vector<std::string> allowed; // folders
};

/// Takes the command line apart; throws ScriptError with what is wrong.
class RequestReader {
public:
    explicit RequestReader(const std::vector<std::string>& arguments) : arguments_(arguments) {}

    Request Read() {
        while (at_ < arguments_.size())
            TakeArgument(arguments_[at_++]);
        if (request_.files.empty()) throw ScriptError("no script is named");
        return request_;
    }

private:
    void TakeArgument(const std::string& argument) {
        if (!argument.starts_with("--")) {
            request_.files.push_back(argument);
            return;
        }
        const std::string name = argument.substr(0, argument.find('='));
        if (argument == "--keep-going")
            request_.options.keepGoing = true;
        else if (argument == "--recovery")
            request_.recovery = true;
        else if (name == "--home")
            request_.home = Value(argument);
        else if (name == "--shots")
            request_.options.shots = Value(argument);
        else if (name == "--date")
            TakeDate(Value(argument));
        else if (name == "--allow-files")
            request_.allowed.push_back(Value(argument));
        else if (name == "--var")
            TakeVariable(Value(argument));
        else
            throw ScriptError("unknown option " + argument);
    }

    std::string Value(const std::string& argument) {
        const std::size_t sign = argument.find('=');
        if (sign != argument.npos) return argument.substr(sign + 1);
        if (at_ >= arguments_.size()) throw ScriptError(argument + " needs a value");
        return arguments_[at_++];
    }

    void TakeDate(const std::string& text) {
        request_.options.today = ParseDate(text);
        if (!request_.options.today) throw ScriptError("no date yyyy-mm-dd: " + text);
    }

    void TakeVariable(const std::string& text) {
        const std::size_t sign = text.find('=');
        if (sign == text.npos || sign == 0) throw ScriptError("no NAME=TEXT: " + text);
        request_.variables[text.substr(0, sign)] = text.substr(sign + 1);
    }

    const std::vector<std::string>& arguments_;
    std::size_t at_ = 0;
    Request request_;
};

bool MakeShotsFolder(const std::string& folder) {
    std::error_code error;
    if (!folder.empty()) std::filesystem::create_directories(folder, error);
    return !error;
}

/// Where all of the scripts may change files: what the command line names, and the home.
std::vector<std::string> Reach(const Request& request, const Places& places) {
    std::vector<std::string> folders = request.allowed;
    folders.push_back(places.Home);
    folders.push_back(request.variables.at("OUT"));
    if (!request.options.shots.empty()) folders.push_back(request.options.shots);
    std::error_code unknown;
    for (const auto& [name, text] : request.variables)
        if (std::filesystem::is_directory(text, unknown)) folders.push_back(text);
    return folders;
}

std::string FolderOf(const std::string& file) {
    return std::filesystem::absolute(file).parent_path().string();
}

} // namespace

int PlayMain(const std::vector<std::string>& arguments, const PlayFront& front) {
    Request request;
    Places places;
    std::vector<Script> scripts;
    try {
        request = RequestReader(arguments).Read();
        places = FindPlaces(request.home, front.argv0);
        request.variables["HOME_DIR"] = places.Home;
        request.variables["TODAY"] = DateText(request.options.today.value_or(ClockToday()));
        for (const std::string& file : request.files)
            scripts.push_back(ReadScript(file, request.variables));
    } catch (const ScriptError& error) {
        front.err << error.what();
        if (scripts.empty() && request.files.empty()) front.err << "; usage: " << Usage;
        front.err << '\n';
        return malformed;
    }
    PosixFileSystem files;
    std::string error = PrepareHome(places, files);
    if (error.empty() && !MakeShotsFolder(request.options.shots)) error = "no folder for pictures";
    if (!error.empty()) {
        front.err << error << '\n';
        return notHeld;
    }
    bool held = true;
    const std::vector<std::string> reach = Reach(request, places);
    for (std::size_t i = 0; i < scripts.size(); ++i) {
        // Each program that a script starts is one of its own, whatever became of the one before.
        const MakeProgram make = [&](ui::Desktop& desktop) {
            Places own = places;
            if (request.recovery) own.Recovery = RecoveryBelow(places.Home);
            return front.program(own)(desktop);
        };
        PlayOptions options = request.options;
        options.reach = reach;
        options.reach->push_back(FolderOf(request.files[i]));
        Player player(front.actor, files, make, options, front.out, front.err);
        held = player.Play(scripts[i]) && held;
    }
    return held ? allHeld : notHeld;
}

} // namespace vexora::host

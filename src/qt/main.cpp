#include <algorithm>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include <QTimer>

#include "host/FindPlaces.h"
#include "host/PlayMain.h"
#include "host/WorkbenchProgram.h"
#include "qt/Application.h"
#include "qt/Icons.h"
#include "qt/Look.h"
#include "qt/QtActor.h"
#include "qt/RunInteractive.h"

namespace {

constexpr const char* Usage =
    "vexora [--home DIR] [--look dark|light] [DOCUMENT]\n"
    "vexora --play FILE [--home DIR] [--date YYYY-MM-DD] [--var NAME=TEXT]...\n"
    "       [--allow-files DIR]... [--keep-going] [--recovery] [--shots DIR]\n"
    "vexora --help | --version\n";

struct Request {
    std::optional<std::string> home;
    std::string look;
    std::string document;
    std::vector<std::string> play; // what is meant for the player
    bool plays = false;
    std::string wrongWord; // an option that nobody knows, or one that lacks its value
};

/// Takes "--name VALUE" or "--name=VALUE" off the list.
std::optional<std::string> TakeOption(std::vector<std::string>& words, const std::string& name) {
    for (auto word = words.begin(); word != words.end(); ++word) {
        std::optional<std::string> value;
        if (word->starts_with(name + "=")) {
            value = word->substr(name.size() + 1);
            words.erase(word);
        } else if (*word == name && word + 1 != words.end()) {
            value = *(word + 1);
            words.erase(word, word + 2);
        }
        if (value) return value;
    }
    return {};
}

Request Read(std::vector<std::string> words) {
    Request request;
    const char* look = std::getenv("VEXORA_LOOK");
    request.look = TakeOption(words, "--look").value_or(look ? look : "");
    if (const auto play = std::ranges::find(words, "--play"); play != words.end()) {
        request.plays = true;
        words.erase(play);
        request.play = words;
        return request;
    }
    request.home = TakeOption(words, "--home");
    for (const std::string& word : words) { // a path whose blanks were not quoted comes in pieces
        request.document += (request.document.empty() ? "" : " ") + word;
        if (word.starts_with("-")) request.wrongWord = word;
    }
    return request;
}

int Play(const Request& request, const std::string& argv0) {
    int status = 0;
    QTimer::singleShot(0, qApp, [&] {
        vexora::qt::QtActor actor;
        status = vexora::host::PlayMain(
            request.play, {actor, std::cout, std::cerr, argv0, vexora::host::WorkbenchIn});
        QCoreApplication::exit(status);
    });
    QApplication::setQuitOnLastWindowClosed(false);
    return QApplication::exec();
}

} // namespace

int main(int count, char** arguments) {
    const std::vector<std::string> first(arguments + 1, arguments + count);
    for (const auto& [option, told] :
         {std::pair("--help", Usage), std::pair("--version", "vexora " VEXORA_VERSION "\n")}) {
        if (std::ranges::find(first, option) == first.end()) continue;
        std::cout << told;
        return 0;
    }
    vexora::qt::Application application(count, arguments);
    // The toolkit has taken its own options off by now.
    const Request request = Read({arguments + 1, arguments + count});
    if (!request.wrongWord.empty()) {
        std::cerr << "error: unexpected argument " << request.wrongWord << "; see vexora --help\n";
        return 2;
    }
    vexora::qt::TakeLook(request.look);
    QApplication::setWindowIcon(vexora::qt::ApplicationIcon());
    if (request.plays) return Play(request, arguments[0]);
    const auto places = vexora::host::FindPlaces(request.home, arguments[0]);
    return vexora::qt::RunInteractive(application, places, request.document, request.look);
}

#include "cli/OpenedDocument.h"

#include <iostream>

#include "cli/ExitCodes.h"
#include "host/FindPlaces.h"
#include "records/clsR.h"
#include "reference/Text.h"
#include "shell/DocumentText.h"
#include "shell/StartUp.h"

namespace vexora {

OpenedDocument::OpenedDocument(bool withTree, bool isQuiet)
    : isQuiet_(isQuiet), desktop_([this](const ui::Message& message) {
          Tell(globals_.LineInHand, Severity::Warning, message.text);
      }),
      forms_(desktop_) {
    if (withTree) globals_.tvwTree = &form_.tvwTree;
}

void OpenedDocument::Tell(int line, Severity severity, const std::string& text) {
    findings_.push_back({line, severity, Replace(text, "\n", " ")});
    if (isQuiet_) return;
    std::cerr << path_;
    if (line > 0) std::cerr << ':' << line;
    std::cerr << ": " << SeverityWord(severity) << ": " << findings_.back().text << '\n';
}

int OpenedDocument::OpenDatabases(const std::optional<std::string>& home,
                                  const std::string& argv0) {
    const Places places = host::FindPlaces(home, argv0);
    InitGlobals(places); // the user's name stands in the export, and the databases may be elsewhere
    const auto find = [&](const std::string& own, const std::string& name) {
        return Files().Exists(own) ? own : places.Installed + "/" + name;
    };
    const auto fault = globals_.Databases.OpenBoth(find(globals_.LocalDbPath, "VXRLocal.mdb"),
                                                   find(globals_.CompoundDbPath, "VXR.mdb"));
    if (!fault) return kExitClean;
    std::cerr << "error: " << *fault << '\n';
    return kExitUnreadable;
}

void OpenedDocument::Forget() {
    findings_.clear();
    passedOver_ = {};
    globals_.ForgetCurrent();
    globals_.recR.Clear();
    form_.tvwTree.Clear();
}

int OpenedDocument::Refuse(const std::string& path, const std::string& fault) {
    Forget();
    path_ = path;
    Tell(0, Severity::Error, fault);
    return kExitUnreadable;
}

int OpenedDocument::Read(const std::string& path) {
    std::string error;
    const std::optional<std::string> text = Files().Read(path, error);
    if (!text) return Refuse(path, error);
    Forget();
    path_ = path;
    ReadResult result = ReadDocument(*text, ReadPurpose::Look);
    if (!result.whole) {
        Tell(result.faultLine, Severity::Error, "the document was not read: " + result.fault);
        return kExitUnreadable;
    }
    if (globals_.recR.IsEmpty()) {
        Tell(0, Severity::Error, "this is no record file: it holds no source");
        return kExitUnreadable;
    }
    passedOver_ = {result.linesNotKept, std::move(result.lost), {}};
    return kExitClean;
}

int OpenedDocument::Open(const std::string& path, const std::optional<std::string>& home,
                         const std::string& argv0) {
    const int exitCode = OpenDatabases(home, argv0);
    return exitCode == kExitClean ? Read(path) : exitCode;
}

} // namespace vexora

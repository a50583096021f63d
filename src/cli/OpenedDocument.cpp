#include "cli/OpenedDocument.h"

#include <iostream>

#include "cli/ExitCodes.h"
#include "host/FindPlaces.h"
#include "records/clsR.h"
#include "reference/Text.h"
#include "shell/DocumentText.h"
#include "shell/StartUp.h"

namespace vexora {

OpenedDocument::OpenedDocument(std::string path, bool withTree)
    : path_(std::move(path)), desktop_([this](const ui::Message& message) {
          Tell(globals_.LineInHand, false, message.text);
      }),
      forms_(desktop_) {
    if (withTree) globals_.tvwTree = &form_.tvwTree;
}

void OpenedDocument::Tell(int line, bool isError, const std::string& text) {
    ++findings_;
    std::cerr << path_;
    if (line > 0) std::cerr << ':' << line;
    std::cerr << (isError ? ": error: " : ": warning: ") << Replace(text, "\n", " ") << '\n';
}

std::string OpenedDocument::OpenDatabases(const std::optional<std::string>& home,
                                          const std::string& argv0) {
    const Places places = host::FindPlaces(home, argv0);
    InitGlobals(places); // the user's name stands in the export, and the databases may be elsewhere
    const auto find = [&](const std::string& own, const std::string& name) {
        return Files().Exists(own) ? own : places.Installed + "/" + name;
    };
    return globals_.Databases
        .OpenBoth(find(globals_.LocalDbPath, "VXRLocal.mdb"),
                  find(globals_.CompoundDbPath, "VXR.mdb"))
        .value_or("");
}

int OpenedDocument::Open(const std::optional<std::string>& home, const std::string& argv0) {
    if (const std::string fault = OpenDatabases(home, argv0); !fault.empty()) {
        std::cerr << "error: " << fault << '\n';
        return kExitUnreadable;
    }
    std::string error;
    const std::optional<std::string> text = Files().Read(path_, error);
    if (!text) {
        std::cerr << path_ << ": error: " << error << '\n';
        return kExitUnreadable;
    }
    ReadResult result = ReadDocument(*text, ReadPurpose::Look);
    if (!result.whole) {
        Tell(result.faultLine, true, "the document was not read: " + result.fault);
        return kExitUnreadable;
    }
    if (globals_.recR.IsEmpty()) {
        Tell(0, true, "this is no record file: it holds no source");
        return kExitUnreadable;
    }
    linesNotKept_ = result.linesNotKept;
    linesLost_ = std::move(result.lost);
    return kExitClean;
}

} // namespace vexora

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/QuietDesktop.h"
#include "globals/KVOGlobal.h"
#include "records/Notice.h"
#include "ui/Forms.h"

namespace vexora {

/// A record file opened without the workbench around it, for the commands that only look at it.
/// What the reader tells the user becomes a line "file:line: error|warning: text" on standard
/// error.
class OpenedDocument {
public:
    /// The tree takes as much memory as the records, so it is made only when it is asked for.
    OpenedDocument(std::string path, bool withTree);

    /// Opens the databases of the application folder, or those installed, and reads the document.
    /// The answer is an exit code; with anything but kExitClean there is no document.
    int Open(const std::optional<std::string>& home, const std::string& argv0);

    /// Writes one diagnostic; line 0 is left out.
    void Tell(int line, bool isError, const std::string& text);
    int Findings() const { return findings_; }
    int LinesNotKept() const { return linesNotKept_; }
    const std::vector<LineLost>& LinesLost() const { return linesLost_; }
    ui::TreeView& Tree() { return form_.tvwTree; }
    ui::FileSystem& Files() { return desktop_.Files(); }

private:
    struct TreeForm : ui::Form {
        TreeForm() : Form("frmDocumentTree", "") {}
        ui::TreeView tvwTree{*this, "tvwTree"};
    };

    std::string OpenDatabases(const std::optional<std::string>& home, const std::string& argv0);

    std::string path_;
    int findings_ = 0;
    int linesNotKept_ = 0;
    std::vector<LineLost> linesLost_;
    QuietDesktop desktop_;
    ui::Forms forms_;
    TreeForm form_;
    KVOGlobal globals_;
};

} // namespace vexora

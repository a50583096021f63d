#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/QuietDesktop.h"
#include "globals/KVOGlobal.h"
#include "records/DocumentCheck.h"
#include "ui/Forms.h"

namespace vexora {

/// What there is to say about a document; line 0 for no line of the file.
struct Diagnostic {
    int line = 0;
    Severity severity = Severity::Warning;
    std::string text;
};

/// Record files opened without the workbench around them, one after the other, for the commands
/// that only look at them. What the reader tells the user becomes a diagnostic.
class OpenedDocument {
public:
    /// The tree takes as much memory as the records, so it is made only when it is asked for.
    /// Diagnostics are written at once, as lines "file:line: error|warning|hint: text" on standard
    /// error, unless they are to be collected only.
    explicit OpenedDocument(bool withTree, bool isQuiet = false);

    /// Opens the databases of the application folder, or those installed; an exit code. To be
    /// called once, before anything is read.
    int OpenDatabases(const std::optional<std::string>& home, const std::string& argv0);
    /// Reads a document in place of the one before. The answer is an exit code; with anything but
    /// kExitClean there is no document.
    int Read(const std::string& path);
    /// Tells that there is no document, and why; the answer is kExitUnreadable.
    int Refuse(const std::string& path, const std::string& fault);
    /// Both, for a command about one document.
    int Open(const std::string& path, const std::optional<std::string>& home,
             const std::string& argv0);

    void Tell(int line, Severity severity, const std::string& text);
    /// What was told of the document.
    const std::vector<Diagnostic>& Findings() const { return findings_; }
    const std::string& Path() const { return path_; }
    /// What of the file the document does not hold.
    const PassedOver& LinesPassedOver() const { return passedOver_; }
    ui::TreeView& Tree() { return form_.tvwTree; }
    ui::FileSystem& Files() { return desktop_.Files(); }

private:
    struct TreeForm : ui::Form {
        TreeForm() : Form("frmDocumentTree", "") {}
        ui::TreeView tvwTree{*this, "tvwTree"};
    };

    void Forget();

    std::string path_;
    bool isQuiet_;
    std::vector<Diagnostic> findings_;
    PassedOver passedOver_;
    QuietDesktop desktop_;
    ui::Forms forms_;
    TreeForm form_;
    KVOGlobal globals_;
};

} // namespace vexora

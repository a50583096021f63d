// Comparing the open document with another record file.

#include <utility>

#include "globals/KVOGlobal.h"
#include "records/Differences.h"
#include "records/Outline.h"
#include "records/clsR.h"
#include "shell/Deletion.h"
#include "shell/DocumentAside.h"
#include "shell/DocumentText.h"
#include "shell/frmCompare.h"
#include "shell/frmMain.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* EarlierFiles = "Record files (*.txt *.bak)";

/// The open document stays aside as long as this lives, and comes back as it was, whatever the read
/// has left or thrown. Its tree is not touched: what is read has no nodes.
class ReadingScope {
public:
    ReadingScope(std::string& fileName, KnownFile& known)
        : fileName_(fileName), known_(known), accepted_(Globals().DialogAccepted),
          tree_(std::exchange(Globals().tvwTree, nullptr)), aside_(fileName, known) {}
    ~ReadingScope() {
        Globals().recR.Clear();
        aside_.PutBack(fileName_, known_);
        Globals().tvwTree = tree_;
        Globals().DialogAccepted = accepted_;
    }
    ReadingScope(const ReadingScope&) = delete;
    ReadingScope& operator=(const ReadingScope&) = delete;

private:
    std::string& fileName_;
    KnownFile& known_;
    bool accepted_;
    ui::TreeView* tree_;
    DocumentAside aside_;
};

} // namespace

/// What the file at path says; nothing, which is told, when it cannot be read. Lines that it loses
/// in the read are told too: they take no part.
std::optional<Outline> frmMain::ReadOutline(const std::string& path) {
    std::string error;
    const auto text = ui::TheDesktop().Files().Read(path, error);
    if (!text) {
        ui::Say("The file " + path + " cannot be read.\n" + error);
        return {};
    }
    std::optional<Outline> outline;
    ReadResult result;
    {
        const ReadingScope reading(FileName, known_);
        result = ReadDocument(*text, ReadPurpose::Look, SplitPath(path).Title);
        if (!Globals().recR.IsEmpty()) outline = OutlineOfDocument();
    }
    if (!outline && result.whole) ui::Say("The file " + path + " holds no source record.");
    if (outline && (result.linesNotKept > 0 || !result.lost.empty()))
        ui::Say("Some lines of the file " + path + " are not kept. They are not compared.");
    return outline;
}

void frmMain::mnuCompare_Click() {
    if (Globals().recR.IsEmpty()) return;
    const auto path = ui::TheDesktop().Choose({false, StartFolder(), FileName, EarlierFiles});
    if (!path || path->empty()) return;
    const std::string whole = AbsolutePath(*path);
    const auto before = ReadOutline(whole);
    SelectNode(); // what was current is so again
    if (!before) return;
    auto differences = DifferencesOf(*before, OutlineOfDocument());
    if (differences.empty())
        return ui::Say("The open document says the same as the file " + whole + ".");
    auto& form = ui::Forms::Current().Get<frmCompare>("frmCompare");
    form.Take(whole, std::move(differences));
    form.ShowModal();
    if (form.HasLed()) SelectBy(true);
}

} // namespace vexora

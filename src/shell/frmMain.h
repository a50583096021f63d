#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "export/ExportDocument.h"
#include "plot/PlotPicture.h"
#include "shell/KnownFile.h"
#include "shell/Paths.h"
#include "ui/DocumentForm.h"
#include "ui/Form.h"
#include "ui/StepButton.h"

namespace vexora {

class DocumentAside;
class Recovery;
class RecoveryFolder;
struct RecoveryCopy;
struct Outline;
struct ReadResult;
class DeletedRecords;
class Record;

/// The main form: the open document as a tree, the toolbar that offers what the selected node
/// allows, the selected record in plain words, and a line that says how things stand. It opens and
/// saves the document and opens every dialog. It is open as long as the program runs.
class frmMain : public ui::Form, public ui::DocumentForm {
public:
    frmMain();
    ~frmMain() override;

    ui::MenuItem mnuFile{*this, "mnuFile", "&File"};
    ui::MenuItem New{*this, "New", "&New", &mnuFile, "Ctrl+N"};
    ui::MenuItem mnuFindRef{*this, "mnuFindRef", "&Find reference...", &mnuFile, "Ctrl+Shift+F"};
    ui::MenuItem Open{*this, "Open", "&Open", &mnuFile, "Ctrl+O"};
    ui::MenuItem SaveEntry{*this, "Save", "&Save", &mnuFile, "Ctrl+S"};
    ui::MenuItem SaveAsEntry{*this, "SaveAs", "Save &as...", &mnuFile, "Ctrl+Shift+S"};
    ui::MenuItem mnuCompare{*this, "mnuCompare", "&Compare with...", &mnuFile};
    ui::MenuItem mnuExportXML{*this, "mnuExportXML", "&Export as ThermoML", &mnuFile, "Ctrl+E"};
    ui::MenuItem mnuExportStrict{*this, "mnuExportStrict", "Export for strict readers", &mnuFile};
    ui::MenuItem mnuFileExit{*this, "mnuFileExit", "E&xit", &mnuFile, "Ctrl+Q"};
    ui::MenuItem mnuEdit{*this, "mnuEdit", "&Edit"};
    ui::MenuItem mnuFind{*this, "mnuFind", "&Find in the tree", &mnuEdit, "Ctrl+F"};
    ui::MenuItem mnuNextPane{*this, "mnuNextPane", "Next pane", &mnuEdit, "F6"};
    ui::MenuItem mnuLastPane{*this, "mnuLastPane", "Previous pane", &mnuEdit, "Shift+F6"};
    ui::MenuItem mnuExpandNode{*this, "mnuExpandNode", "Expand Node", &mnuEdit};
    ui::MenuItem mnuEditNode{*this, "mnuEditNode", "Edit Node (Double Click)", &mnuEdit, "F2"};
    ui::MenuItem mnuNewLike{*this, "mnuNewLike", "New set like this", &mnuEdit, "Ctrl+L"};
    ui::MenuItem mnuDelete{*this, "mnuDelete", "Delete Node", &mnuEdit, "Delete"};
    ui::MenuItem mnuUndoDelete{*this, "mnuUndoDelete", "Undo delete", &mnuEdit, "Ctrl+Z"};
    ui::MenuItem mnuUndoProcess{*this, "mnuUndoProcess", "Undo process", &mnuEdit};
    ui::MenuItem mnuTools{*this, "mnuTools", "T&ools"};
    ui::MenuItem mnuToolsConfigure{*this, "mnuToolsConfigure", "C&onfigure", &mnuTools};
    ui::MenuItem mnuToolsTables{*this, "mnuToolsTables", "&Add to the compound tables...",
                                &mnuTools};
    ui::MenuItem mnuCheck{*this, "mnuCheck", "Check the document", &mnuTools, "F7"};
    ui::MenuItem mnuDetect{*this, "mnuDetect", "Detect Hidden Properties", &mnuTools};
    ui::MenuItem mnuMerge{*this, "mnuMerge", "Merge/Rearrange sets", &mnuTools};
    ui::MenuItem mnuInvert{*this, "mnuInvert", "Invert binary LLE", &mnuTools};
    ui::MenuItem mnuBio{*this, "mnuBio", "Compact Bio sets", &mnuTools};
    ui::MenuItem mnuPreLoad{*this, "mnuPreLoad", "Pre-load test", &mnuTools};
    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    ui::MenuItem mnuIntro{*this, "mnuIntro", "Introduction", &mnuHelp};
    ui::MenuItem mnuScope{*this, "mnuScope", "Scope of the Data to be Captured", &mnuHelp};
    ui::MenuItem mnuList{*this, "mnuList", "Property List", &mnuHelp};
    ui::MenuItem mnuWhats{*this, "mnuWhats", "What's new in this version", &mnuHelp};
    ui::MenuItem mnuHelpPurpose{*this, "mnuHelpPurpose", "Purpose of this form", &mnuHelp, "F1"};
    ui::MenuItem mnuHelpSequence{*this, "mnuHelpSequence",
                                 "Sequence of Operations for Data Capture", &mnuHelp};
    ui::MenuItem mnuHelpActions{*this, "mnuHelpActions", "Editing && Deletion Procedures",
                                &mnuHelp};
    ui::MenuItem mnuHelpDisplay{*this, "mnuHelpDisplay", "Compound Name Display Options", &mnuHelp};
    ui::MenuItem mnuHelpBio{*this, "mnuHelpBio", "Biothermodynamic Data Capture", &mnuHelp};
    ui::MenuItem mnuAbout{*this, "mnuAbout", "About", &mnuHelp};

    ui::StepBar Toolbar1{*this, "Toolbar1"};
    ui::StepButton AddRef{*this, "AddRef", "Start", "New reference"};
    ui::StepButton AddComp{*this, "AddComp", "Compound", "New compound"};
    ui::StepButton AddComplex{*this, "AddComplex", "Complex", "Define Gas Hydrate, etc"};
    ui::StepButton AddSample{*this, "AddSample", "Sample", "New sample"};
    ui::StepButton AddMixt{*this, "AddMixt", "Mixture", "New mixture"};
    ui::StepButton AddReact{*this, "AddReact", "Reaction", "Reaction"};
    ui::StepButton AddProp{*this, "AddProp", "Property", ""};
    ui::StepButton AddTable{*this, "AddTable", "Data Tables", "Process a table of data"};
    ui::StepButton AddBio{*this, "AddBio", "Bio", "Biothermodynamic properties"};

    ui::TextBox txtFind{*this, "txtFind"}; // words that the nodes shown have to hold
    ui::TreeView tvwTree{*this, "tvwTree"};
    ui::RichText rtfReading{*this, "rtfReading"};
    ui::Picture picReading{*this, "picReading", SmallPlotSize.width, SmallPlotSize.height};
    ui::Label lblStatus{*this, "lblStatus"};

    std::string FileName;       // full path, empty for a document without a file
    bool MouseSelected = false; // the last selection came from a mouse click on a node

    void Load() override;
    /// The activation step, run after everything that may have changed the document or the
    /// selection; it does nothing while a chain of dialogs is open.
    void Activate() override;
    bool QueryUnload() override;
    void Unload() override;

    /// File name with its ending.
    std::string FileTitle() const { return SplitPath(FileName).Title; }

    std::string DocumentName() const override;
    bool IsChanged() const override;
    std::string AskedAbout() const override { return askedAbout_; }
    const ui::TreeNode* NewNode() const override;
    std::string WelcomePage(const std::vector<std::string>& recent) const override;
    void FollowLink(const std::string& link) override;

    /// Makes toolbar and menus match the selection; the shell is live then.
    void Enable() { SetLocked(false); }
    /// Locks the shell for a chain of dialogs.
    void DisableShell() { SetLocked(true); }

    /// Offers to save, then clears the document; false when the user would rather keep it.
    bool NewProc();
    /// Clears the document without asking, its names included.
    void EmptyDocument();
    void OpenDocument();
    /// Opens the document of the command line; an empty path only shows the empty workbench.
    void OpenFromCommandLine(const std::string& path);
    void Save();
    /// True when the document stands under the chosen name.
    bool SaveAs();
    void ExportDocument(ExportFor readers = ExportFor::House);
    /// Keeps a recovery copy of the document there from now on; null keeps none.
    void KeepRecovery(std::shared_ptr<RecoveryFolder> folder);
    /// Offers the copies that programs before have left; true when the document is one of them now.
    bool RestoreDocument();

private:
    // frmMain.cpp
    void WireMenus();
    void WireTree();
    void SelectNode();
    void SelectBy(bool mouse);
    void SelectRoot();
    bool HasClickedNode() const;
    void mnuToolsConfigure_Click();
    void ShowOptionalButtons();
    void RefreshTexts();
    std::string StatusText() const;

    // frmMain_desk.cpp
    void WireDesk();
    std::string NewNodeText() const;
    void ForgetAdded() { added_ = nullptr; }
    void OpenCopy(const std::string& path);
    void GoToPane(bool backwards);
    void TellWhy();
    const ui::TreeNode* added_ = nullptr; // by the chain that is open or was the last one
    std::string copyOf_;                  // the example that the document began as
    std::string askedAbout_;              // the document, while it is asked whether to save it
    std::string lastDone_; // a save or an export, told in front of the name until the next action
    static constexpr const char* LastSaved = "Saved to ";

    // frmMain_document.cpp
    void FindReference();
    void PutAside();
    void SettleAside();
    void TakeBack();
    bool MayDiscard();
    void DropFile(const std::string& path);
    void OpenFile(const std::string& path, bool moveOutDir);
    ReadResult ReadAside(const std::string& text, const std::string& name);
    bool TakeFile(const std::string& path);
    bool RefuseReadOnly();
    bool RefuseComplexes();
    bool WriteDocument();
    bool LeaveFile(bool saveElsewhere);
    bool MayExport();
    void WriteExport(const std::string& target, ExportFor readers);
    std::string StartFolder() const;
    std::string ChooseTarget(const std::string& proposed, const std::string& filter,
                             const char* ending);
    KnownFile known_; // the file of the document as this program left it
    /// The document before, while it is open whether another one takes its place.
    std::unique_ptr<DocumentAside> aside_;

    // frmMain_recovery.cpp
    std::string Restore(const RecoveryCopy& copy);
    void FollowDocument();
    std::unique_ptr<Recovery> recovery_;

    // frmMain_toolbar.cpp
    void WireToolbar();
    static void RenewCurrentMethod();
    std::vector<ui::StepButton*> Steps();
    void ToolbarClick(const ui::ToolButton& button);
    bool OpenFromToolbar(std::string_view button);
    void SetLocked(bool locked);
    bool OpenDialog(std::string_view dialog);

    // frmMain_edit.cpp
    void mnuEditNode_Click();
    void EditNode();
    void RefreshEdited(std::string_view nodeKey);
    bool HasMouseSelection();
    void mnuNewLike_Click();
    bool MayRepeat() const;

    // frmMain_check.cpp
    void mnuCheck_Click();

    // frmMain_delete.cpp
    void mnuDelete_Click();
    void DeleteNode();
    static bool MayDelete(const Record& record);
    void mnuUndoDelete_Click();
    void mnuUndoProcess_Click();

    // frmMain_detect.cpp
    void mnuDetect_Click();
    static bool MayDetect();

    // frmMain_bio.cpp
    void mnuBio_Click();
    static bool MayCompact();

    // frmMain_compare.cpp
    void mnuCompare_Click();
    std::optional<Outline> ReadOutline(const std::string& path);

    // frmMain_find.cpp
    void WireFind();
    void txtFind_Change();
    void LeaveFind(ui::Key& key);
    void EndFind();
    std::vector<ui::Captioned*> OffersOfNode();

    std::unique_ptr<DeletedRecords> deleted_; // the last one, until the next deletion or save
};

} // namespace vexora

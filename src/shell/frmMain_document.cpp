// Opening, saving and emptying the document.

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "globals/KVOGlobal.h"
#include "records/DocumentCheck.h"
#include "records/LineWriter.h"
#include "records/clsR.h"
#include "reference/Database.h"
#include "reference/SafeFile.h"
#include "shell/Deletion.h"
#include "shell/DocumentAside.h"
#include "shell/DocumentText.h"
#include "shell/Recovery.h"
#include "shell/frmMain.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* RecordFiles = "Record files (*.txt)";
constexpr const char* XmlFiles = "ThermoML files (*.xml)";

const clsR& Source() {
    return *Globals().recR.Item(std::size_t{1});
}

/// Prints what is to be written; nothing with the reason in error when that fails, or without one
/// when the person has stopped it. Printing looks into the databases, and may ask the user, so it
/// goes without the hourglass.
std::optional<std::string> Printed(const std::function<std::string()>& print, std::string& error) {
    try {
        return print();
    } catch (const SaveRefused& refused) {
        error = refused.what();
    } catch (const DatabaseError& damaged) {
        error = damaged.what();
    } catch (const WorkStopped&) { // nothing has been touched
    }
    return {};
}

SaveOutcome WriteText(const std::string& path, std::string_view text, bool keepBackup) {
    const ui::HourglassScope hourglass;
    return WriteSafely(ui::TheDesktop().Files(), path, text, keepBackup);
}

void Tell(const SaveOutcome& outcome, const std::string& path) {
    if (const std::string told = outcome.Told("The file " + path); !told.empty()) ui::Say(told);
}

/// Yes to write over it, No to take another name.
ui::Answer AskAboutChange() {
    return ui::TheDesktop().Show(
        {"The file has been changed by another program since it was opened.",
         {},
         ui::MessageButtons::YesNoCancel,
         ui::Answer::Cancel,
         "&Save anyway",
         "Save &as..."});
}

/// From its first save on the source and its authors are known to the next document. The file is
/// written by then, so a database that refuses is told of and no more.
void RegisterSaved() {
    try {
        RegisterDocument();
    } catch (const DatabaseError& error) {
        ui::Say(error.what());
    }
}

} // namespace

bool frmMain::MayDiscard() {
    const KVOGlobal& globals = Globals();
    if (globals.recR.IsEmpty() || globals.Saved) return true;
    askedAbout_ = DocumentName();
    const ui::Answer answer = ui::AskYesNoCancel("Do you want to save your work?");
    askedAbout_.clear();
    if (answer == ui::Answer::Yes) Save();
    return answer == ui::Answer::No || (answer == ui::Answer::Yes && globals.Saved);
}

bool frmMain::NewProc() {
    if (!MayDiscard()) return false;
    const ui::HourglassScope hourglass;
    EmptyDocument();
    recovery_->Discard();
    txtFind.Text({});
    return true;
}

void frmMain::EmptyDocument() {
    KVOGlobal& globals = Globals();
    globals.Saved = true;
    globals.ReadOnly = false;
    globals.ForgetCurrent();
    deleted_.reset();
    globals.Processed.reset();
    globals.recR.Clear();
    tvwTree.Clear();
    globals.DialogAccepted = false;
    MouseSelected = false;
    FileName.clear();
    copyOf_.clear();
    lastDone_.clear();
    known_.Forget();
    if (!globals.ShellLocked) Enable();
}

/// The present document comes back unless the dialogs leave another one.
void frmMain::FindReference() {
    if (!MayDiscard()) return;
    PutAside();
    OpenDialog("frmRef");
}

void frmMain::PutAside() {
    aside_ = std::make_unique<DocumentAside>(FileName, known_);
    // They may come back with the document.
    auto deleted = std::move(deleted_);
    auto processed = std::move(Globals().Processed);
    std::string copyOf = copyOf_;
    EmptyDocument();
    copyOf_ = std::move(copyOf);
    deleted_ = std::move(deleted);
    Globals().Processed = std::move(processed);
}

/// A document that was put aside goes when there is another one, and else comes back.
void frmMain::SettleAside() {
    if (Globals().recR.IsEmpty()) return TakeBack();
    if (!std::exchange(aside_, nullptr)) return;
    Globals().Processed.reset();
    deleted_.reset();
    copyOf_.clear();
    txtFind.Text({});
}

/// What stands in its place goes.
void frmMain::TakeBack() {
    const auto before = std::move(aside_);
    if (!before) return;
    before->PutBack(FileName, known_);
    MouseSelected = true;
    SelectNode();
}

std::string frmMain::StartFolder() const {
    return Globals().OutDir.empty() ? UserHomeFolder() : Globals().OutDir;
}

void frmMain::OpenDocument() {
    if (!MayDiscard()) return;
    const auto path = ui::TheDesktop().Choose({false, StartFolder(), FileName, RecordFiles});
    if (path && !path->empty()) OpenFile(*path, false);
    Activate();
}

void frmMain::OpenFromCommandLine(const std::string& path) {
    if (!path.empty()) OpenFile(path, true);
    Activate();
}

/// While a dialog is open a dropped file would take the document from under it.
void frmMain::DropFile(const std::string& path) {
    const KVOGlobal& globals = Globals();
    if (globals.ShellLocked || !globals.OpenForms.empty() || !IsReachable()) return;
    if (!MayDiscard()) return;
    OpenFile(path, true);
    Activate();
}

/// Opens a document in place of the present one, which goes only when the read left a source.
void frmMain::OpenFile(const std::string& path, bool moveOutDir) {
    const std::string whole = AbsolutePath(path);
    if (!TakeFile(whole)) return Refused.Emit(whole);
    recovery_->Discard();
    Taken.Emit(whole);
    if (moveOutDir) Globals().OutDir = SplitPath(whole).Folder;
    SelectRoot();
    SelectBy(true);
    tvwTree.SetFocus();
}

/// Reads while the present document is put aside. Of a read that cannot go on nothing stays.
ReadResult frmMain::ReadAside(const std::string& text, const std::string& name) {
    try {
        PutAside();
        return ReadDocument(text, ReadPurpose::Work, name);
    } catch (...) {
        TakeBack();
        throw;
    }
}

bool frmMain::TakeFile(const std::string& path) {
    KVOGlobal& globals = Globals();
    std::string error;
    const auto text = ui::TheDesktop().Files().Read(path, error);
    if (!text) {
        ui::Say("The file " + path + " cannot be read.\n" + error);
        return false;
    }
    std::string name = path; // by now, for a document is never without it
    const ReadResult result = ReadAside(*text, SplitPath(path).Title);
    globals.DialogAccepted = false;
    const bool isEmpty = globals.recR.IsEmpty();
    if (!isEmpty) FileName = std::move(name);
    if (isEmpty && result.whole) ui::Say("The file " + path + " holds no source record.");
    SettleAside();
    if (isEmpty) return false;
    known_.Note(path, *text);
    known_.Lines = {result.linesNotKept, result.lost, result.told};
    if (result.linesNotKept > 0) globals.ReadOnly = globals.Saved = true;
    const Notice notice = NoticeOfReading(result);
    if (!notice.text.empty()) ui::Say(notice.text, notice.title);
    return true;
}

bool frmMain::RefuseReadOnly() {
    if (!Globals().ReadOnly) return false;
    ui::Say("This document is open for reading only: it can be neither changed nor saved.",
            "Read only");
    return true;
}

void frmMain::Save() {
    if (Globals().recR.IsEmpty() || RefuseReadOnly()) return;
    if (FileName.empty())
        SaveAs();
    else
        WriteDocument();
}

/// Leads to a sample that its complex does not fit; true when there is one.
bool frmMain::RefuseComplexes() {
    const Record* const sample = SampleBesideSystem();
    if (sample == nullptr) return false;
    ui::Say(BesideSystemText);
    if (sample->tNode == nullptr) return true;
    sample->tNode->EnsureVisible();
    tvwTree.Select(sample->tNode);
    SelectBy(true);
    return true;
}

bool frmMain::WriteDocument() {
    if (RefuseComplexes()) return false;
    KVOGlobal& globals = Globals();
    for (const auto& source : globals.recR)
        for (const std::string& text : LeftOutOfSave(*source))
            ui::Say(text);
    SaveOutcome outcome;
    // It may be stopped, but no later.
    const auto text = Printed([] { return DocumentAsRecords(); }, outcome.fault);
    // Printing may ask, and meanwhile the file may change; so it is looked at last of all.
    if (text && known_.IsChanged(ui::TheDesktop().Files(), FileName)) {
        askedAbout_ = DocumentName();
        const ui::Answer answer = AskAboutChange();
        askedAbout_.clear();
        if (answer != ui::Answer::Yes) return LeaveFile(answer == ui::Answer::No);
    }
    if (text) outcome = WriteText(FileName, *text, true);
    if (outcome.isSaved) {
        known_.Note(FileName, *text);
        globals.Saved = true;
        copyOf_.clear();
        lastDone_ = LastSaved;
        globals.DialogAccepted = false;
        recovery_->Discard();
        RegisterSaved();
        deleted_.reset();
        globals.Processed.reset();
        mnuUndoDelete.Enabled(false);
        mnuUndoProcess.Enabled(false);
    }
    Tell(outcome, FileName);
    RefreshTexts();
    if (outcome.isSaved) Taken.Emit(FileName);
    return outcome.isSaved;
}

/// The file is left to the other program; under another name the document may stand beside it.
bool frmMain::LeaveFile(bool saveElsewhere) {
    Globals().Saved = false;
    RefreshTexts();
    return saveElsewhere && SaveAs();
}

/// The full path of a file to be written, after the question about an existing one; empty on
/// Cancel. A name typed without an ending gets the given one.
std::string frmMain::ChooseTarget(const std::string& proposed, const std::string& filter,
                                  const char* ending) {
    for (;;) {
        const auto path = ui::TheDesktop().Choose({true, StartFolder(), proposed, filter});
        if (!path || path->empty()) return {};
        std::string whole = WithEnding(AbsolutePath(*path), ending);
        const std::string title = SplitPath(whole).Title;
        if (!FileOrFolderExists(whole) ||
            ui::AskYesNo("File " + title + " exists\nDo you want to re-write " + title + "?"))
            return whole;
    }
}

/// The document keeps its present name when it cannot be written under the new one.
bool frmMain::SaveAs() {
    if (Globals().recR.IsEmpty() || RefuseReadOnly()) return false;
    const std::string target = ChooseTarget(
        FileName.empty() ? Source().ProposedName() + ".txt" : FileTitle(), RecordFiles, ".txt");
    if (target.empty()) return false;
    const std::string presentName = std::exchange(FileName, target);
    if (!WriteDocument()) {
        FileName = presentName;
        RefreshTexts();
        return false;
    }
    // Under yet another name it may stand in yet another folder.
    Globals().OutDir = SplitPath(FileName).Folder;
    return true;
}

/// What a read-only document holds beyond this edition would be missing from the export.
bool frmMain::MayExport() {
    if (Globals().recR.IsEmpty()) return false;
    return !Globals().ReadOnly ||
           ui::AskYesNo("This document holds data that this edition does not keep.\n"
                        "They would be missing from the export. Do you want to export the rest?",
                        "Read only");
}

void frmMain::ExportDocument(ExportFor readers) {
    if (!MayExport()) return;
    try {
        DisableShell();
        const std::string target = ChooseTarget(Source().IdentityName() + ".xml", XmlFiles, ".xml");
        if (!target.empty()) WriteExport(target, readers);
    } catch (...) { // nothing that fails leaves the shell dead
        Enable();
        throw;
    }
    Enable();
}

/// An export keeps no copy of what it replaces, so it may not take the place of the document.
void frmMain::WriteExport(const std::string& target, ExportFor readers) {
    ui::FileSystem& files = ui::TheDesktop().Files();
    if (!FileName.empty() && files.Resolve(target) == files.Resolve(FileName))
        return ui::Say("The export cannot take the place of the record file " + FileName + ".");
    SaveOutcome outcome;
    const auto text = Printed(
        [readers] { return DocumentAsXml(ui::TheDesktop().Today(), readers); }, outcome.fault);
    if (text) outcome = WriteText(target, *text, false);
    if (outcome.isSaved) lastDone_ = "Exported to " + SplitPath(target).Title + " - ";
    Tell(outcome, target);
}

} // namespace vexora

// The table becomes data sets.

#include <algorithm>

#include "entry/DeletionQuestion.h"
#include "globals/KVOGlobal.h"
#include "records/ProcessedSets.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "tables/ColumnValues.h"
#include "tables/frmProcess_outlook.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* NoData =
    "There are no data to process\n"
    "For mixtures, compositions of at least two phases are required\n"
    "For pure compounds, temperature and at least one thermal property is required\n"
    "Other cases should be entered through the \"Property\" tool";
constexpr const char* DataErrors = "Data errors detected";
constexpr const char* Processed =
    "Your data have been processed\n"
    "Now you can enter or paste data for another phase and process them";

} // namespace

void frmProcess::Process() {
    table_.EndTyping();
    CleanCells();
    if (!Now().table.HasUsedRow()) {
        ui::Say(NoData);
        tblData.SetFocus();
        return;
    }
    if (!CheckPhase()) return;
    if (!Now().Ok()) {
        ui::Say(Now().Message().empty() ? DataErrors : Now().Message());
        tblData.SetFocus();
        return;
    }
    if (!Check(Now()) || !CheckNamed()) return;
    if (const auto processed = IsPure() ? FunctionSets(Now()) : MixtureSets(Now()))
        Finish(processed);
}

/// Commas and blanks that came with typing and pasting go; what is no number stays to be seen.
void frmProcess::CleanCells() {
    const int last = table_.History().LastFilledRow();
    table_.History().Do([&](TableEdit& edit) {
        for (int row = HeadRows(); row <= last; ++row)
            for (int column = 1; column < tblData.Columns(); ++column) {
                if (tblData.Cell(HeadRow::Quantity, column).empty()) continue;
                const std::string& cell = tblData.Cell(row, column);
                const std::string clean = NormalizeNumber(cell);
                if (clean.empty() || IsNumeric(clean)) edit.Cell(row, column, clean);
            }
    });
}

bool frmProcess::CheckPhase() {
    if (!IsPure() || !system_.phase.empty()) return true;
    return Form::Refuse(lstPhase, "Select the phase");
}

/// Leads to the cell; what is asked about may stand when a person says so.
bool frmProcess::Check(const Outlook& outlook) {
    const auto fault = std::ranges::find_if(outlook.findings, &Finding::isFault);
    if (fault != outlook.findings.end()) return Refuse(*fault);
    SuspicionsOfRun suspicions;
    for (const Finding& finding : outlook.findings) {
        if (suspicions.Confirm(DoubtOf(finding))) continue;
        table_.Findings().GoTo(finding);
        tblData.SetFocus();
        return false;
    }
    return true;
}

/// Rows are asked about one by one, values of a column each once.
ValueDoubt frmProcess::DoubtOf(const Finding& finding) const {
    if (finding.text == RowLeftOut)
        return {finding.text, static_cast<double>(finding.row),
                finding.text + "\nDo you want to process the other rows?", true};
    return {ColumnName(finding.column), Val(tblData.Cell(finding.row, finding.column)),
            finding.text + "\nIs that all right?", true};
}

/// What stands under no quantity becomes no data and goes with the table: that has to be wanted.
bool frmProcess::CheckNamed() {
    std::vector<int> unnamed;
    const int last = table_.History().LastFilledRow();
    for (int column = 1; column < tblData.Columns(); ++column) {
        if (!tblData.Cell(HeadRow::Quantity, column).empty()) continue;
        for (int row = HeadRows(); row <= last; ++row) {
            if (TrimBlanks(tblData.Cell(row, column)).empty()) continue;
            unnamed.push_back(column);
            break;
        }
    }
    if (unnamed.empty()) return true;
    std::string numbers;
    for (const int column : unnamed)
        numbers += (numbers.empty() ? "" : ", ") + std::to_string(column);
    if (ui::AskYesNo("Columns without a heading hold values, which would be lost: " + numbers +
                     "\nDo you want to process the other columns?"))
        return true;
    MoveToHead(HeadRow::Quantity, unnamed.front());
    tblData.SetFocus();
    return false;
}

bool frmProcess::Refuse(const Finding& finding) {
    // A copy: the list may be made anew on the way.
    const Finding told = finding;
    table_.Findings().GoTo(told);
    tblData.SetFocus();
    ui::Say(told.text);
    return false;
}

/// False when the question is cancelled; it may be left empty.
bool frmProcess::AskConstant(const std::string& title, const std::string& quantity,
                             const std::string& unit, std::string& answer) const {
    for (;;) {
        const auto typed = ui::TheDesktop().Ask(
            {"Enter the constant " + quantity + " in " + unit + ", or leave it empty", title, ""});
        if (!typed) return false;
        answer = NormalizeNumber(*typed);
        if (answer.empty() || (IsNumeric(answer) && Val(answer) > 0)) return true;
    }
}

/// Null when it ends here, and nothing has changed then.
std::shared_ptr<ProcessedSets> frmProcess::MixtureSets(const Outlook& outlook) {
    AskedConstants constants;
    if (outlook.phases.asksT && !AskConstant("Temperature", "temperature", "K", constants.T))
        return nullptr;
    if (outlook.phases.asksP && !AskConstant("Pressure", "pressure", "kPa", constants.P))
        return nullptr;
    constants.isAsked = true;
    const PhaseAnalysis analysis = AnalyseVLE(outlook.table, constants);
    if (!analysis.Ok) {
        ui::Say(analysis.message.empty() ? DataErrors : analysis.message);
        return nullptr;
    }
    const auto made = [&] {
        const ui::HourglassScope hourglass;
        return MakeSets(outlook.table, analysis, system_);
    }();
    if (made.empty()) {
        ui::Say(DataErrors);
        return nullptr;
    }
    const auto shown =
        filled_.origin ? filled_.origin->sets : std::vector<std::shared_ptr<clsMV>>();
    return ProcessedSets::Attach(*system_.mixture, made, shown, [](clsMV& unused) {
        return AskToDelete(unused, unused.ShowKey());
    });
}

std::shared_ptr<ProcessedSets> frmProcess::FunctionSets(const Outlook& outlook) {
    const auto made = [&] {
        const ui::HourglassScope hourglass;
        return ProcessTwo(outlook.table, outlook.functions, system_);
    }();
    if (made.empty()) {
        ui::Say(DataErrors);
        return nullptr;
    }
    return ProcessedSets::Attach(*system_.sample, made);
}

/// The new sets come into sight, the first of them selected. A table of a mixture has done its
/// work; a pure compound mostly has another phase.
void frmProcess::Finish(const std::shared_ptr<ProcessedSets>& processed) {
    KVOGlobal& globals = Globals();
    globals.Processed = processed;
    globals.Saved = false;
    globals.DialogAccepted = true;
    for (auto at = processed->Made().rbegin(); at != processed->Made().rend(); ++at)
        if ((*at)->tNode) (*at)->tNode->EnsureVisible();
    if (globals.tvwTree && !processed->Made().empty() && processed->Made().front()->tNode)
        globals.tvwTree->Select(processed->Made().front()->tNode);
    if (!IsPure()) {
        stored_ = true;
        Close();
        return;
    }
    table_.Blocks().Clear();
    ui::Say(Processed);
    tblData.SetFocus();
}

} // namespace vexora

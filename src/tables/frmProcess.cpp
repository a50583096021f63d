#include "tables/frmProcess.h"

#include "entry/Explanations.h"
#include "entry/PhaseLists.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsS.h"
#include "tables/FillTable.h"
#include "tables/ProcessPreview.h"
#include "tables/frmProcess_outlook.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr int HelpAbout = 370;

constexpr const char* FirstRunText =
    "Numerical data are entered in an electronic table\n"
    "Tabular data can be transferred from another application or document with standard\n"
    "Copy and Paste commands. Direct typing is possible, but not recommended.\n"
    "The variable(s) and property should each be in one column.\n"
    "(The electronic table provides useful operations for transformation of common\n"
    "original-table layouts, e.g., multi-column, 2-dimensional. See HELP for details.)";

/// A table of a mixture names the phase of each column, one of a pure compound has one phase.
int FixedRows() {
    const KVOGlobal& globals = Globals();
    return globals.SetsToShow.empty() && globals.SystemClass == "Pure" ? 2 : 3;
}

} // namespace

frmProcess::frmProcess()
    : Form("frmProcess", "Table to process"), TableMenu(static_cast<ui::Form&>(*this)),
      tblData(*this, "tblData", FixedRows() + FirstRows, FirstColumns + 1, FixedRows(), 1) {
    ArrangeControls();
    WireEvents();
    WireHeads();
    CancelButton = &cmdCancel;
    HelpContext = HelpAbout;
    lblHeads.Visible(false);
    cmdUseHeads.Visible(false);
}

frmProcess::~frmProcess() = default;

void frmProcess::ArrangeControls() {
    using namespace ui;
    Layout table = Column({tblData, Row({lblHeads, cmdUseHeads}), lblNotice, lstFindings});
    table.columns = 100;
    Layout preview = Column({lblPreview, lstPreview});
    preview.columns = 70;
    Arrangement = Column({Row({Field(lblPhase, Narrow(lstPhase, 30)), Stretch()}),
                          Split(std::move(table), std::move(preview)),
                          ButtonRow({cmdDiagram, cmdGraph, cmdClear, cmdProcess, cmdCancel})});
    PreferredColumns = 176;
    PreferredRows = 40;
    const char* const labels[] = {"Property", "Units", "Phase"};
    for (int row = 0; row < HeadRows(); ++row)
        tblData.Cell(row, 0, labels[row]);
    tblData.HeadLists = {&cboCell, &cboUnit, &cboPhase};
    tblData.HeadLists.resize(static_cast<std::size_t>(HeadRows()));
    table_.History().KeepRows(HeadRows() + FirstRows);
}

void frmProcess::WireEvents() {
    // What the table tells has to be made anew before it is asked for.
    table_.History().OnChange = [this, follows = table_.History().OnChange] {
        outlook_.reset();
        follows();
        ShowOutlook();
    };
    mnuHelpAbout.OnClick = [] { ui::TheDesktop().ShowHelp(HelpAbout); };
    lstPhase.OnClick = [this] {
        if (Filling) return;
        system_.phase = PhaseChosen(lstPhase);
        outlook_.reset();
        table_.Findings().FindAgain();
        ShowOutlook();
    };
    cmdUseHeads.OnClick = [this] { UseHeads(); };
    cmdDiagram.OnClick = [this] { Diagram(); };
    cmdGraph.OnClick = [this] { Graph(); };
    cmdClear.OnClick = [this] {
        table_.EndTyping();
        table_.Blocks().Clear();
    };
    cmdProcess.OnClick = [this] { Process(); };
    cmdCancel.OnClick = [this] { Close(); };
}

void frmProcess::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    const std::vector<std::shared_ptr<clsMV>> sets = std::exchange(globals.SetsToShow, {});
    if (!sets.empty() && sets.front()->Parent) {
        system_.mixture = sets.front()->Parent->As<clsM>();
        for (int n = 1; n <= sets.front()->MixType; ++n)
            system_.samples.at(static_cast<std::size_t>(n - 1)) = sets.front()->SMPNM(n);
    } else {
        TakeSystem();
    }
    heads_.emplace(system_.mixture.get());
    Caption(CaptionText());
    {
        const ui::FillingScope filling(*this);
        for (const HeadEntry& phase : HeadPhases(nullptr))
            lstPhase.Add(phase.text);
    }
    lblPhase.Visible(IsPure());
    lstPhase.Visible(IsPure());
    cmdDiagram.Visible(!IsPure());
    table_.MoveTo(HeadRows(), 1);
    if (!sets.empty()) TakeSets(sets);
    firstText_ = table_.Blocks().Text();
    firstHeads_ = AllHeads();
    ExplainOnce(FirstRunText);
}

/// As frmSelect has chosen.
void frmProcess::TakeSystem() {
    const KVOGlobal& globals = Globals();
    if (HeadRows() == 2) {
        system_.sample = CurrentCompoundSample();
        return;
    }
    system_.mixture = globals.CurrentM;
    for (std::size_t n = 0; n < system_.samples.size() && n < globals.ChosenSamples.size(); ++n)
        system_.samples[n] = globals.ChosenSamples[n];
}

/// Shows stored sets; what cannot stand in one table is told, and nothing can be processed.
void frmProcess::TakeSets(const std::vector<std::shared_ptr<clsMV>>& sets) {
    FilledTable filled = FillTable(sets);
    if (!filled.refusal.empty()) {
        tblData.Enabled(false);
        cmdProcess.Enabled(false);
        ui::Say(filled.refusal);
        return;
    }
    filled_ = std::move(filled.table);
    const ui::Grid::Batch batch(tblData);
    const int columns = static_cast<int>(filled_.columns.size());
    const int rows = static_cast<int>(filled_.rows.size());
    tblData.Resize(HeadRows() + std::max(rows + 1, FirstRows), std::max(columns, FirstColumns) + 1);
    for (int column = 0; column < columns; ++column) {
        const auto texts = heads_->TextsOf(filled_.columns[static_cast<std::size_t>(column)]);
        for (int row = 0; row < HeadRows(); ++row)
            tblData.Cell(row, column + 1, texts.at(static_cast<std::size_t>(row)));
        for (int row = 0; row < rows; ++row)
            tblData.Cell(HeadRows() + row, column + 1, std::string(filled_.Cell(row, column)));
    }
    table_.History().Clear();
}

std::string frmProcess::CaptionText() const {
    if (!IsPure()) return "VLE and LLE in " + system_.mixture->ShowKey();
    if (!system_.sample || !system_.sample->Parent) return Caption();
    return "Thermal functions of " + system_.sample->Parent->ShowKey() + ", sample " +
           system_.sample->SMPNM;
}

/// Behind the first look at the form, whose pane is to keep its room when it holds little.
void frmProcess::Activate() {
    if (!outlook_) ShowOutlook();
    tblData.SetFocus();
}

/// Heads alone are chosen again in no time.
bool frmProcess::IsChanged() const {
    const std::string text = table_.Blocks().Text();
    return text != firstText_ || (!text.empty() && AllHeads() != firstHeads_);
}

bool frmProcess::QueryUnload() {
    if (stored_) return true;
    table_.EndTyping();
    return !IsChanged() || ui::AskYesNo("The table has been changed\nDiscard the changes?");
}

void frmProcess::Unload() {
    CloseForm();
}

/// Follows every change: the sets that the table would become, and what is to be said of its cells.
void frmProcess::ShowOutlook() {
    if (!heads_) return;
    const Outlook& now = Now();
    // The editor asks for the findings of what was typed; other heads change those of all rows.
    if (const std::string heads = AllHeads(); shownHeads_ != heads) {
        shownHeads_ = heads;
        table_.Findings().FindAgain();
    }
    ProposeHeads();
    const ui::FillingScope filling(*this);
    std::vector<std::string> lines = IsPure() ? PreviewOf(now.table, now.functions, *heads_)
                                              : PreviewOf(now.table, now.phases, *heads_);
    if (IsPure() && system_.phase.empty()) lines.push_back("Select the phase");
    if (!now.Ok() && !tblData.Proposed().empty())
        lines.insert(lines.begin(), "Take the proposed heads, or choose others");
    if (lines != lstPreview.Items()) lstPreview.Assign(std::move(lines));
    lblPreview.Caption(now.Ok() ? "Process would make:" : "Process cannot make sets yet:");
}

} // namespace vexora

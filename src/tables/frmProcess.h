#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "entry/ValueQuestions.h"
#include "grid/TableEditor.h"
#include "grid/TableMenu.h"
#include "tables/HeadingGuess.h"
#include "tables/ProcessHeads.h"
#include "ui/Form.h"

namespace vexora {

class ProcessedSets;
struct PlotTable;
class Record;

/// A whole table of a paper, pasted once: its columns are named, and all its data sets are made in
/// one step. A pane beside it tells at any time what these would be. frmSelect says before what the
/// table is about, or stored sets come to be shown in it.
class frmProcess : public ui::Form, public TableMenu, private TableRules {
public:
    frmProcess();
    ~frmProcess() override;

    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    ui::MenuItem mnuHelpAbout{*this, "mnuHelpAbout", "&About this form", &mnuHelp};

    ui::Label lblPhase{*this, "lblPhase", "Phase:"};
    ui::ComboBox lstPhase{*this, "lstPhase"};
    ui::Grid tblData;
    ui::TextBox txtCell{*this, "txtCell"};
    ui::ComboBox cboCell{*this, "cboCell", ui::ComboBox::Style::Editable};
    ui::ComboBox cboUnit{*this, "cboUnit", ui::ComboBox::Style::Editable};
    ui::ComboBox cboPhase{*this, "cboPhase", ui::ComboBox::Style::Editable};
    ui::Label lblHeads{*this, "lblHeads"};
    ui::CommandButton cmdUseHeads{*this, "cmdUseHeads", "Use these heads"};
    ui::Label lblNotice{*this, "lblNotice"};
    ui::Label lblPreview{*this, "lblPreview", "Process would make:"};
    ui::ListBox lstPreview{*this, "lstPreview"};
    ui::ListBox lstFindings{*this, "lstFindings"};
    ui::CommandButton cmdDiagram{*this, "cmdDiagram", "Phase &diagram..."};
    ui::CommandButton cmdGraph{*this, "cmdGraph", "&View plot ..."};
    ui::CommandButton cmdClear{*this, "cmdClear", "Clear the Table"};
    ui::CommandButton cmdProcess{*this, "cmdProcess", "Process"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    void Activate() override;
    bool QueryUnload() override;
    void Unload() override;

private:
    static constexpr int FirstColumns = 20;
    static constexpr int FirstRows = 100;
    using HeadRow = ProcessHeads::Row;

    /// What the table tells as it stands, made once for each state of it.
    struct Outlook;

    void ArrangeControls();
    void WireEvents();
    void WireHeads();
    void TakeSystem();
    void TakeSets(const std::vector<std::shared_ptr<clsMV>>& sets);
    std::string CaptionText() const;
    bool IsPure() const { return system_.MixType() == 1; }
    bool IsChanged() const;
    void ShowOutlook();

    // The heads and their lists (frmProcess_heads.cpp).
    int HeadRows() const { return tblData.FixedRows(); }
    ProcessHeads::Texts HeadsOf(int column) const;
    std::string AllHeads() const;
    void WriteHeads(TableEdit& edit, int column, const ProcessHeads::Texts& texts) const;
    bool HeadKey(ui::Key& key);
    void OpenHeadList(int row, int column);
    void CloseHeadList();
    void OfferTyped();
    void ListKeys(ui::Key& key);
    void ListLeft();
    void TakeEntry(const std::string& entry);
    std::string EntryMeant() const;
    std::optional<std::string> AskFactor(const ProcessColumn& column) const;
    void MoveToHead(int row, int column);
    void ProposeHeads();
    void UseHeads();
    std::vector<PasteNotice> UnreadHeadings() const;

    // What the editor of the table asks (frmProcess_rules.cpp).
    std::vector<int> ValueColumns() const override { return {}; }
    bool IsTypedInto(int column) const override;
    std::string ColumnName(int column) const override;
    std::vector<Finding> FindingsOf(int) const override { return {}; }
    std::vector<Finding> Hints() const override;
    std::vector<int> HintColumns() const override;
    bool GrowsEverywhere() const override { return true; }
    CellParting Parting() const override { return CellParting::AtTabsAlone; }
    bool IsWanted(const PastedTable& block) const override;
    ProcessTable Table() const;
    ProcessColumn ColumnAt(int column) const;
    int FirstPlaceOf(int row) const;
    const Outlook& Now() const;
    std::vector<Finding> FindingsIn(const Outlook& outlook) const;

    // Its pictures (frmProcess_plot.cpp).
    bool HasPoints();
    void Diagram();
    void Graph();
    void ShowPictures(const std::shared_ptr<PlotTable>& pictures);

    // Processing (frmProcess_accept.cpp).
    void Process();
    bool CheckPhase();
    bool Check(const Outlook& outlook);
    ValueDoubt DoubtOf(const Finding& finding) const;
    bool CheckNamed();
    bool Refuse(const Finding& finding);
    bool AskConstant(const std::string& title, const std::string& quantity, const std::string& unit,
                     std::string& answer) const;
    std::shared_ptr<ProcessedSets> MixtureSets(const Outlook& outlook);
    std::shared_ptr<ProcessedSets> FunctionSets(const Outlook& outlook);
    void CleanCells();
    void Finish(const std::shared_ptr<ProcessedSets>& processed);

    ProcessSystem system_;
    ProcessTable filled_; // from stored sets, to keep what they know of rows and columns
    std::optional<ProcessHeads> heads_;
    std::string firstText_, firstHeads_;    // to tell whether the table has changed
    std::optional<std::string> shownHeads_; // that the findings go by
    GuessedHeads guess_;                    // what the first rows say of the columns
    int guessedRow_ = 0;                    // where these rows begin in the grid
    ui::ComboBox* list_ = nullptr;          // the one that lies over a head
    int listRow_ = 0, listColumn_ = 0;      // and over which
    std::vector<std::string> offered_;      // all of its entries
    bool isTyped_ = false;                  // something was typed into it
    bool stored_ = false;
    mutable std::unique_ptr<Outlook> outlook_;
    TableEditor table_{*this, {tblData, txtCell, lblNotice, lstFindings}, *this};
};

} // namespace vexora

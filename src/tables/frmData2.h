#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "chem/clsProperty.h"
#include "entry/FractionSums.h"
#include "entry/RowChecks.h"
#include "entry/StatementMemory.h"
#include "grid/TableEditor.h"
#include "grid/TableMenu.h"
#include "plot/PlotBeside.h"
#include "records/DataSet.h"
#include "records/RowMasses.h"
#include "ui/Form.h"

namespace vexora {

struct PlotTable;

/// The table of the rows of a data set: typed, pasted or read from a file, checked while it is
/// filled, stored when it is accepted. It works on the current set; a table that is cancelled
/// leaves the set as it was.
class frmData2 : public ui::Form, public TableMenu, private TableRules {
public:
    frmData2();
    ~frmData2() override;

    ui::MenuItem mnuTable{*this, "mnuTable", "&Table"};
    ui::MenuItem mnuAction2D{*this, "mnuAction2D", "2D to 1D", &mnuTable};
    ui::MenuItem mnuSplit{*this, "mnuSplit", "Split", &mnuTable};
    ui::MenuItem mnuSystemUnits{*this, "mnuSystemUnits", "To &system units", &mnuTable};
    ui::MenuItem mnuPlotBeside{*this, "mnuPlotBeside", "Plot &beside the table", &mnuTable, "F9"};
    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    ui::MenuItem mnuHelpAbout{*this, "mnuHelpAbout", "&About this form", &mnuHelp};
    ui::MenuItem mnuHelpSeq{*this, "mnuHelpSeq", "&Sequence of work", &mnuHelp};
    ui::MenuItem mnuHelpList{*this, "mnuHelpList", "&Keys of the table", &mnuHelp};
    ui::MenuItem mnuHelpHow{*this, "mnuHelpHow", "&How to enter a table", &mnuHelp};
    ui::MenuItem mnuUnc{*this, "mnuUnc", "&Uncertainty Definitions", &mnuHelp};

    ui::Label lblColumns{*this, "lblColumns"};
    ui::Grid tblData{*this, "tblData", 2, 1};
    ui::TextBox txtCell{*this, "txtCell"};
    ui::Picture picBeside{*this, "picBeside", BesideSize.width, BesideSize.height};
    ui::Label lblNotice{*this, "lblNotice"};
    ui::ListBox lstFindings{*this, "lstFindings"};
    ui::CheckBox chkSup{*this, "chkSup", "Suppress calculation of derivatives"};
    ui::Label lblStated{*this, "lblStated"};
    ui::CommandButton cmdLastUnc{*this, "cmdLastUnc", "Use &last"};
    ui::CommandButton cmdView{*this, "cmdView", "View plot"};
    ui::CommandButton cmdAssign{*this, "cmdAssign", "Evaluate Uncertainties"};
    ui::CommandButton cmdClear{*this, "cmdClear", "Clear the Table"};
    ui::CommandButton cmdSave{*this, "cmdSave", "Accept"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};

    void Load() override;
    void Activate() override;
    bool QueryUnload() override;
    void Unload() override;

    /// The rows down to the last one that holds something, cells parted by tabs.
    std::string TableText() const { return table_.Blocks().Text(); }

private:
    static constexpr const char* NoMolarMass = "Please revise the way of property formulation\n"
                                               "Unable to calculate average molar mass";

    void ArrangeControls();
    void WireEvents();
    void WireMenus();

    // What the editor of the table asks (frmData2_rules.cpp).
    std::vector<int> ValueColumns() const override;
    bool IsTypedInto(int column) const override;
    std::string ColumnName(int column) const override;
    std::vector<Finding> FindingsOf(int row) const override;
    std::vector<Finding> Hints() const override;
    std::vector<int> HintColumns() const override;
    void Follow(TableEdit& edit, int row, int column, const std::string& before,
                const EnteredColumns& entered) const override;
    bool MayGrowFor(int columns) const override;
    std::string Remark(int rows) const override;
    bool IsWanted(const PastedTable& block) const override;

    // The table turned into rows.
    void Action2D();
    void Split();

    // What the table shows at first (frmData2_fill.cpp).
    void TakeSet();
    void TakeRows();
    void AnalyseCurrentProperty();
    TableColumns ColumnsOfSet() const;
    void FillHeader();
    void ShowStatements();
    void FillRows();
    bool IsChanged() const;
    std::string CaptionText() const;
    std::string ColumnsText() const;
    const DataSet& SetOfCells() const { return adjusted_ ? *adjusted_ : *set_; }
    void NameQuantities();

    // The units of the cells (frmData2_units.cpp).
    void AdjustUnits();
    std::shared_ptr<DataSet> Adjusted(const std::vector<int>& rows) const;
    void TakeUnits(const std::shared_ptr<DataSet>& adjusted, const StatementsOfSet& statements,
                   const RowList& rows);
    void ShowUnits();

    // What only the whole table tells (frmData2_look.cpp).
    struct Points;
    Points WholeRows() const;
    std::string RowNumber(int row) const;
    void HintAtFarRows(const Points& points, std::vector<Finding>& hints) const;
    void HintAtRepeatedRows(const Points& points, std::vector<Finding>& hints) const;
    void HintAtRepeatedTies(std::vector<Finding>& hints) const;

    // The statements of the set beside the entries of its rows (frmData2_statements.cpp).
    void Assign();
    bool AssignAccepted();
    bool AssignBy(const std::function<bool()>& change);
    void TakeLast(const std::vector<clsX>& items);
    std::vector<clsX> Statements() const;
    bool MayLoseColumns() const;
    struct Signs {
        OwnSigns own;
        std::vector<int> marked; // columns whose cells get their own sign
    };
    Signs SignsAfter(const StatementsOfSet& before) const;
    bool ChangesMeaning(int column, bool toPercent) const;
    bool HasEntries(TableColumn::Kind kind, int item) const;
    void UseStatements(const StatementsOfSet& statements);
    void TakeSelectedRow();
    void DropIdleMarks();
    bool MakeRoom(BlockToPut& put);
    void PassTies(BlockToPut& put) const;
    bool MayBeTwoDimensional(const PastedTable& block) const;
    std::vector<int> ItemsWithoutUncertainty(int from) const;

    // Checks, evaluation and storing (frmData2_accept.cpp).
    bool Check();
    bool CheckUnits();
    bool CheckUnc();
    void CleanCells();
    void Calc_unc(int row, bool& ok, const ConfirmValue& confirm);
    void TakeStatements(clsProperty& item, int place, int row) const;
    bool Refuse(const Finding& finding, const std::string& title = {});
    void Save();
    void Store();
    std::vector<const clsData*> OldRows() const;
    const clsData* OldRowHere(int row) const;
    std::string VariablesOf(const clsData& row) const;
    std::string VariablesOf(int row) const;
    clsData NewRow(int row, const clsData* old) const;
    double MolarMassOf(int row) const;
    int RowWithoutMolarMass() const;
    void TellOfMolarMass();

    // The plot (frmData2_plot.cpp); its names stand with the other texts of the set.
    void View();
    void GoToRow(int row);
    PlotTable PointsOfTable(bool withUncertainties = true) const;
    std::shared_ptr<PlotTable> PointsBeside() const;
    std::shared_ptr<PlotTable> FirstPicture(const std::shared_ptr<PlotTable>& own) const;
    double UncertaintyOf(int row) const;
    double CombinedOf(int row, double value) const;

    std::shared_ptr<DataSet> set_;
    std::shared_ptr<DataSet> adjusted_; // the set as brought to system units, or null
    StatementsOfSet statementsBefore_;  // restored when the table is cancelled
    StatementsOfSet firstStatements_;   // as first shown, with their names
    std::string firstText_;             // of the table, to tell whether it has changed
    RowList rows_;                      // as they stood at the beginning
    std::shared_ptr<clsProperty> chain_;
    std::vector<FractionSum> sums_;           // of the compositions of a mixture
    mutable std::optional<RowMasses> masses_; // made once for the set
    double molarMass_ = 0; // [g/mol] that all rows go by, unless it follows their composition
    bool toldOfMolarMass_ = false;
    bool original_ = true; // cells stand in the units of the paper
    bool hasBothKinds_ =
        false;              // rows with counts of digits and rows without, which stay as they are
    bool isMixed_ = false;  // rows in units of both kinds, of which those of the paper stay
    bool assigned_ = false; // uncertainties have been looked at
    bool stored_ = false;
    StatementOffer offer_{lblStated, cmdLastUnc, [this] { return Statements(); },
                          [this](const std::vector<clsX>& items) { TakeLast(items); }};
    TableColumns columns_;
    OwnSigns ownSigns_;         // columns whose cells are not all per cent, though the
                                // set says so
    TableColumns firstColumns_; // those that the table began with
    TableEditor table_{*this, {tblData, txtCell, lblNotice, lstFindings}, *this};
    PlotBeside beside_{picBeside, mnuPlotBeside};
};

} // namespace vexora

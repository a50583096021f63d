#pragma once

#include <memory>
#include <string>
#include <vector>

#include "chem/clsProperty.h"
#include "entry/StatementMemory.h"
#include "entry/TableColumns.h"
#include "grid/TableEditor.h"
#include "grid/TableMenu.h"
#include "plot/PlotBeside.h"
#include "records/clsX.h"
#include "ui/Form.h"

namespace vexora {

class BioSet;
class clsBD;
struct ColumnsToPlot;

/// The table of the rows of a bio set (BioSetInHand of the globals): any number of properties
/// against any number of variables. Rows and statements go into the set when the table is accepted;
/// one that is cancelled leaves the set as it was.
class frmBioData : public ui::Form, public TableMenu, private TableRules {
public:
    frmBioData();
    ~frmBioData() override;

    ui::MenuItem mnuTable{*this, "mnuTable", "&Table"};
    ui::MenuItem mnuAction2D{*this, "mnuAction2D", "2D to 1D", &mnuTable};
    ui::MenuItem mnuSplit{*this, "mnuSplit", "Split", &mnuTable};
    ui::MenuItem mnuPlotBeside{*this, "mnuPlotBeside", "Plot &beside the table", &mnuTable, "F9"};
    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    ui::MenuItem mnuHelpAbout{*this, "mnuHelpAbout", "&About this form", &mnuHelp};
    ui::MenuItem mnuHelpList{*this, "mnuHelpList", "&Keys of the table", &mnuHelp};
    ui::MenuItem mnuUnc{*this, "mnuUnc", "&Uncertainty Definitions", &mnuHelp};

    ui::Label lblColumns{*this, "lblColumns"};
    ui::Grid tblData{*this, "tblData", 2, 1};
    ui::TextBox txtCell{*this, "txtCell"};
    ui::Picture picBeside{*this, "picBeside", BesideSize.width, BesideSize.height};
    ui::Label lblNotice{*this, "lblNotice"};
    ui::ListBox lstFindings{*this, "lstFindings"};
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

private:
    void WireEvents();
    void WireMenus();
    void TakeSet();
    void FillRows();
    bool IsChanged() const;
    std::string CaptionText() const;
    int CountOfProperties() const;

    // What the editor of the table asks (frmBioData_rules.cpp).
    std::vector<int> ValueColumns() const override;
    bool IsTypedInto(int column) const override { return column < columns_.Count(); }
    std::string ColumnName(int column) const override;
    std::vector<Finding> FindingsOf(int row) const override;
    std::vector<Finding> Hints() const override;
    bool MayGrowFor(int columns) const override;
    std::string Remark(int rows) const override;
    bool IsWanted(const PastedTable& block) const override;
    void HintAtFarRows(int property, std::vector<Finding>& hints) const;
    void HintAtRepeatedRows(std::vector<Finding>& hints) const;
    bool MayBeTwoDimensional() const;
    void Action2D();
    void Split();

    // Statements, checks and storing (frmBioData_accept.cpp).
    void Assign();
    bool AssignAccepted();
    void AssignTo(const std::vector<clsX>& after);
    void UseStatements(const std::vector<clsX>& statements);
    void TakeRow(int row);
    bool Check();
    bool CheckUnc();
    int Calc_unc(int row, const ConfirmValue& confirm);
    bool Refuse(const Finding& finding, const std::string& title = {});
    void Save();
    void Store();
    const clsBD* OldRowHere(int row) const;
    clsBD NewRow(int row) const;

    // The plot (frmBioData_plot.cpp).
    void View();
    ColumnsToPlot PlotOfTable();
    std::shared_ptr<PlotTable> PointsBeside();

    std::shared_ptr<BioSet> set_;
    std::vector<clsX> statements_, firstStatements_; // with the names of their quantities
    std::string firstText_;                          // of the table, to tell whether it has changed
    std::shared_ptr<clsProperty> chain_;
    bool assigned_ = false; // uncertainties have been looked at
    bool stored_ = false;
    StatementOffer offer_{lblStated, cmdLastUnc, [this] { return statements_; },
                          [this](const std::vector<clsX>& items) {
                              table_.EndTyping();
                              AssignTo(items);
                              tblData.SetFocus();
                          }};
    TableColumns columns_;
    TableEditor table_{*this, {tblData, txtCell, lblNotice, lstFindings}, *this};
    PlotBeside beside_{picBeside, mnuPlotBeside};
};

} // namespace vexora

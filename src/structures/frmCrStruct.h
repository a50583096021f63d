#pragma once

#include <array>
#include <memory>
#include <string>

#include "chem/UnitCell.h"
#include "globals/FormChain.h"
#include "grid/TableEditor.h"
#include "grid/TableMenu.h"
#include "records/clsCrS.h"
#include "structures/CellPicture.h"
#include "structures/CrystalTables.h"

namespace vexora {

class clsComplexSample;
struct CifStructure;

/// The crystal structure of a complex sample: space group, cell, atoms and distances. What follows
/// from them is shown while they are typed, and a CIF fills the form for review.
class frmCrStruct : public ChainForm, public TableMenu {
public:
    frmCrStruct();

    ui::MenuItem mnuOpenCif{*this, "mnuOpenCif", "Open &CIF...", &mnuFile, "Ctrl+O"};
    ui::MenuItem mnuSavePicture{*this, "mnuSavePicture", "Save the &picture...", &mnuFile};
    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    ui::MenuItem mnuHelpAbout{*this, "mnuHelpAbout", "&About this form", &mnuHelp};
    ui::MenuItem mnuUnc{*this, "mnuUnc", "&Uncertainty Definitions", &mnuHelp};

    ui::ComboBox cboGroup{*this, "cboGroup", ui::ComboBox::Style::Editable};
    ui::Label lblSystem{*this, "lblSystem"};
    ui::ComboBox cboMethod{*this, "cboMethod", ui::ComboBox::Style::Editable};
    ui::TextBox txtA{*this, "txtA"};
    ui::TextBox txtDA{*this, "txtDA"};
    ui::TextBox txtB{*this, "txtB"};
    ui::TextBox txtDB{*this, "txtDB"};
    ui::TextBox txtC{*this, "txtC"};
    ui::TextBox txtDC{*this, "txtDC"};
    ui::TextBox txtAlpha{*this, "txtAlpha"};
    ui::TextBox txtDalpha{*this, "txtDalpha"};
    ui::TextBox txtBeta{*this, "txtBeta"};
    ui::TextBox txtDbeta{*this, "txtDbeta"};
    ui::TextBox txtGamma{*this, "txtGamma"};
    ui::TextBox txtDgamma{*this, "txtDgamma"};
    ui::Label lblContradiction{*this, "lblContradiction"};
    ui::Label lblVolume{*this, "lblVolume"};
    ui::Label lblDensity{*this, "lblDensity"};
    ui::ComboBox cboView{*this, "cboView"};
    ui::Picture picCell{*this, "picCell", CellPictureWidth, CellPictureHeight};
    ui::Frame frmProcessed{*this, "frmProcessed", "Atoms: parts of the cell lengths, occupancy"};
    ui::Grid tblFinal{*this, "tblFinal", 2, 8};
    ui::TextBox txtCellF{*this, "txtCellF"};
    ui::Label lblNoticeF{*this, "lblNoticeF"};
    ui::ListBox lstFindingsF{*this, "lstFindingsF"};
    ui::Frame frmRaw{*this, "frmRaw", "Interatomic distances"};
    ui::Grid tblRaw{*this, "tblRaw", 2, 4};
    ui::TextBox txtCellR{*this, "txtCellR"};
    ui::Label lblNoticeR{*this, "lblNoticeR"};
    ui::ListBox lstFindingsR{*this, "lstFindingsR"};
    ui::CommandButton cmdSave{*this, "cmdSave", "Accept"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};

    void Load() override;
    bool QueryUnload() override;

private:
    /// A constant of the cell with its uncertainty, in the order of a, b, c, alpha, beta, gamma.
    struct Constant {
        ui::TextBox &value, &uncertainty;
    };

    void ArrangeControls();
    void WireEvents();
    void WireMenus();
    void WireTable(TableEditor& table, const CrystalTable& rules);
    bool IsChanged() const;
    /// What the form says as it stands.
    CrystalContent Typed() const;

    // What it shows (frmCrStruct_fill.cpp).
    void FillLists();
    void Fill(const CrystalContent& content);
    void ChooseGroup();
    void PartOff(const Constant& constant);
    CellConstants Cell() const;
    void ShowWhatFollows();
    std::string SystemText(const CellConstants& cell) const;
    std::string VolumeCaption(double volume) const;
    std::string DensityText(double volume) const;
    void OpenCif();
    void Take(const CifStructure& structure);

    // Checks and storing (frmCrStruct_accept.cpp).
    bool Check();
    bool CheckNumbers();
    bool CheckCell();
    bool CheckTable(TableEditor& table, const CrystalTable& rules, const ui::Grid& grid);
    void Save();
    void Store();

    std::shared_ptr<clsCrS> record_; // null while a new one is entered
    std::shared_ptr<clsComplexSample> sample_;
    CrystalContent first_; // as first shown
    double units_ = 0;     // formula units a cell, as a CIF has told
    std::string formula_;  // of one of them
    bool stored_ = false;
    const std::array<Constant, 6> constants_{{{txtA, txtDA},
                                              {txtB, txtDB},
                                              {txtC, txtDC},
                                              {txtAlpha, txtDalpha},
                                              {txtBeta, txtDbeta},
                                              {txtGamma, txtDgamma}}};
    AtomTable atoms_{tblFinal};
    DistanceTable distances_{tblRaw};
    TableEditor atomEditor_{atoms_, {tblFinal, txtCellF, lblNoticeF, lstFindingsF}, *this};
    TableEditor distanceEditor_{distances_, {tblRaw, txtCellR, lblNoticeR, lstFindingsR}, *this};
};

} // namespace vexora

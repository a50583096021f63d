#include "structures/frmCrStruct.h"

#include "entry/Explanations.h"
#include "globals/KVOGlobal.h"
#include "plot/PictureSvg.h"
#include "records/clsComplexSample.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr int HelpAbout = 580;
constexpr int HelpUncertainty = 345;

constexpr const char* FirstRunText =
    "Numerical data are entered in an electronic table\n"
    "Tabular data can be transferred from another application or document with standard\n"
    "Copy and Paste commands. Direct typing is possible, but not recommended.\n"
    "The variable(s) and property should each be in one column.\n"
    "(The electronic table provides useful operations for transformation of common\n"
    "original-table layouts, e.g., multi-column, 2-dimensional. See HELP for details.)";

} // namespace

frmCrStruct::frmCrStruct()
    : ChainForm("frmCrStruct", "Crystal Structure"), TableMenu(static_cast<ui::Form&>(*this)) {
    ArrangeControls();
    FillLists();
    WireEvents();
    WireMenus();
    UseButtons(cmdSave, cmdFinish, [this] { Save(); });
    HelpContext = HelpAbout;
}

void frmCrStruct::ArrangeControls() {
    using namespace ui;
    const auto constant = [](const char* name, TextBox& value, TextBox& uncertainty) {
        return Field(name, Row({Narrow(value, 10), Field("+-", Narrow(uncertainty, 8))}));
    };
    Layout left = Column(
        {Field("Space group:", Row({Narrow(cboGroup, 20), lblSystem})), Field("Method:", cboMethod),
         Group("Cell: lengths, A, and angles, degree",
               {Row({Column({constant("a:", txtA, txtDA), constant("b:", txtB, txtDB),
                             constant("c:", txtC, txtDC)}),
                     Column({constant("alpha:", txtAlpha, txtDalpha),
                             constant("beta:", txtBeta, txtDbeta),
                             constant("gamma:", txtGamma, txtDgamma)}),
                     Stretch()})}),
         lblContradiction, lblVolume, lblDensity,
         Row({Field("The cell is seen", Narrow(cboView, 14)), Stretch()}), picCell});
    Layout right = Column({Group(frmProcessed, {tblFinal, lblNoticeF, lstFindingsF}),
                           Group(frmRaw, {tblRaw, lblNoticeR, lstFindingsR})});
    left.columns = 92;
    right.columns = 110;
    Arrangement =
        Column({Split(std::move(left), std::move(right)), ButtonRow({cmdSave, cmdFinish})});
    PreferredColumns = 206;
    PreferredRows = 36;
    picCell.KeepsShape(true);
}

void frmCrStruct::WireEvents() {
    for (const Constant& constant : constants_) {
        for (ui::TextBox* box : {&constant.value, &constant.uncertainty})
            box->OnChange = [this] { ShowWhatFollows(); };
        constant.value.OnLostFocus = [this, &constant] { PartOff(constant); };
    }
    cboGroup.OnClick = [this] { ChooseGroup(); };
    cboGroup.OnChange = [this] { ShowWhatFollows(); };
    cboView.OnClick = [this] { ShowWhatFollows(); };
    WireTable(atomEditor_, atoms_);
    WireTable(distanceEditor_, distances_);
}

void frmCrStruct::WireTable(TableEditor& table, const CrystalTable& rules) {
    table.Blocks().OnPut = [&rules](BlockToPut& put) { return rules.Prepare(put); };
    table.History().OnChange = [this, follows = table.History().OnChange] {
        follows();
        ShowWhatFollows();
    };
}

void frmCrStruct::WireMenus() {
    mnuOpenCif.OnClick = [this] { OpenCif(); };
    mnuSavePicture.OnClick = [this] { SavePicture(picCell, Caption(), "cell.svg"); };
    mnuHelpAbout.OnClick = [] { ui::TheDesktop().ShowHelp(HelpAbout); };
    mnuUnc.OnClick = [] { ui::TheDesktop().ShowHelp(HelpUncertainty); };
}

void frmCrStruct::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    record_ = globals.EditCrystal ? globals.CurrentCrS : nullptr;
    sample_ = record_ && record_->Parent ? record_->Parent->As<clsComplexSample>()
                                         : globals.CurrentComplexSample;
    cmdSave.Enabled(sample_ != nullptr);
    if (record_) Caption(record_->ShowKey());
    Fill(record_ ? *record_ : CrystalContent());
    for (TableEditor* table : {&atomEditor_, &distanceEditor_}) {
        table->History().Clear();
        table->Findings().FindAgain();
    }
    first_ = Typed();
    cboGroup.SetFocus();
    ExplainOnce(FirstRunText);
}

CrystalContent frmCrStruct::Typed() const {
    const auto text = [](const auto& box) { return std::string(Trim(box.Text())); };
    CrystalContent content;
    content.SpaceGroup = text(cboGroup);
    content.Method = text(cboMethod);
    std::string* const values[] = {&content.A, &content.B, &content.C, &content.Alpha,
                                   &content.Beta};
    std::string* const uncertainties[] = {&content.dA, &content.dB, &content.dC, &content.dAlpha,
                                          &content.dBeta};
    for (std::size_t n = 0; n < 5; ++n) {
        *values[n] = text(constants_[n].value);
        *uncertainties[n] = text(constants_[n].uncertainty);
    }
    content.GammaText(text(txtGamma));
    content.DGammaText(text(txtDgamma));
    content.Distances = distances_.Rows();
    content.Atoms = atoms_.Rows();
    return content;
}

bool frmCrStruct::IsChanged() const {
    return !(Typed() == first_);
}

bool frmCrStruct::QueryUnload() {
    if (stored_) return true;
    for (TableEditor* table : {&atomEditor_, &distanceEditor_})
        table->EndTyping();
    return !IsChanged() || ui::AskYesNo("The structure has been changed\nDiscard the changes?");
}

} // namespace vexora

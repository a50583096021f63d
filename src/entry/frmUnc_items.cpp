#include "entry/frmUnc.h"

#include "chem/clsProperty.h"
#include "entry/RowChecks.h"
#include "globals/KVOGlobal.h"
#include "records/PropertyChain.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr const char* OfTheMean = "Standard Deviation of the Mean";
constexpr const char* OfSingleMeasurement = "Standard Deviation of a Single Measurement";
constexpr const char* Propagation = "Propagation of Assessed Std. Deviations";
constexpr const char* Comparison = "Comparison with Other Measurements";

/// Shows a statement; the sign of per cent stands beside it.
void ShowStatement(std::string_view text, ui::TextBox& box, ui::CheckBox& perCent) {
    text = TrimBlanks(text);
    const bool isPerCent = text.ends_with('%');
    if (isPerCent) text.remove_suffix(1);
    box.Text(std::string(TrimBlanks(text)));
    perCent.Value(isPerCent);
}

/// The text of the record: the figure as typed, "%" behind it when marked.
std::string Statement(const ui::TextBox& box, const ui::CheckBox& perCent) {
    const std::string text = NormalizeNumber(box.Text());
    return perCent.Value() && !text.empty() ? text + "%" : text;
}

/// The unit of a quantity in the chain, the head being item 0.
std::string UnitInChain(int i) {
    const auto& chain = Globals().CurrentProperty;
    const clsProperty* const item = chain ? ItemOf(*chain, i) : nullptr;
    return item ? item->ConversionCode : std::string();
}

/// A record holds the place in the list, or a name that was typed.
void ShowEvaluator(ui::ComboBox& list, const std::string& evaluator) {
    const int index = IsNumeric(evaluator) ? static_cast<int>(Val(evaluator)) : -1;
    if (index >= 0 && index < list.Count())
        list.Index(index);
    else
        list.Text(evaluator);
}

std::string Evaluator(const ui::ComboBox& list) {
    if (list.Index() >= 0) return std::to_string(list.Index());
    return std::string(TrimBlanks(list.Text()));
}

} // namespace

void frmUnc::FillLists() {
    for (int i = 0; i < frameCount; ++i) {
        // The place in this list is what is stored; new ones go behind.
        cboDSEvaluator(i).Assign({"Manufacturer", "Third party", "Author"});
    }
}

void frmUnc::TakeItems() {
    if (const auto stated = Globals().CurrentUX)
        for (const clsX& item : *stated)
            // Files state figures of variables in system units, a person thinks in those of the
            // paper.
            items_.push_back(item.Name.empty() ? item : InEnteredUnit(item, UnitInChain(item.N)));
    shown_ = entered_ = items_;
    wasShown_.resize(items_.size());
}

/// Nothing is left of the quantity that the frame showed before.
void frmUnc::ClearFrame(int i) {
    for (ui::CheckBox* box :
         {&chkDS(i), &chkDSPerCent(i), &chkRep(i), &chkRPerCent(i), &chkUnc(i), &chkUPerCent(i)})
        box->Value(false);
    for (ui::TextBox* box : {&txtDSValue(i), &txtDSLevel(i), &txtRValue(i), &txtRepetitions(i),
                             &txtUValue(i), &txtULevel(i)})
        box->Text("");
    cboDSEvaluator(i).Index(-1);
    cboDSEvaluator(i).Text("");
    cboRType(i).FirstIsPrompt = true;
    cboRType(i).Assign({"SELECT REPRESENTATION OF REPEATABILITY", OfTheMean, OfSingleMeasurement});
    cboRType(i).Index(0);
    if (i > 0) return;
    for (ui::CheckBox* box : {&chkComb, &chkCUPerCent, &chkCD, &chkRMSPerCent})
        box->Value(false);
    for (ui::TextBox* box : {&txtCalibrError, &txtCUValue, &txtCULevel, &txtEq, &txtRMS, &txtKVOU})
        box->Text("");
    cboCUType.FirstIsPrompt = true;
    cboCUType.Assign({"SELECT TYPE OF EVALUATION", Propagation, Comparison});
    cboCUType.Index(0);
}

void frmUnc::ShowItem(int i, const clsX& item) {
    ShowCaption(i, item);
    Frame(i).Visible(true);
    if (IsCalibrated(i)) {
        chkDS(i).Caption("Calibration constant");
        lblDSEvaluator(i).Caption("Uncertainty of the constant:");
        txtCalibrError.Text(item.DSEvaluator);
    } else {
        ShowEvaluator(cboDSEvaluator(i), item.DSEvaluator);
    }
    chkDS(i).Value(item.iDS || item.HasUnmarkedDS());
    ShowStatement(item.DSValue, txtDSValue(i), chkDSPerCent(i));
    txtDSLevel(i).Text(item.DSLevel);
    chkRep(i).Value(item.iRep || item.HasUnmarkedRep());
    ShowStatement(item.RValue, txtRValue(i), chkRPerCent(i));
    txtRepetitions(i).Text(item.Repetitions);
    if (item.RType == 0 || item.RType == 1)
        cboRType(i).Choose(item.RType == 0 ? OfTheMean : OfSingleMeasurement);
    chkUnc(i).Value(item.iUnc || item.HasUnmarkedUnc());
    ShowStatement(item.UValue, txtUValue(i), chkUPerCent(i));
    txtULevel(i).Text(item.ULevel);
    if (i == 0) ShowPropertyItem(item);
}

void frmUnc::ShowCaption(int i, const clsX& item) {
    // A set may have several constraints, which are told apart by their names.
    const int properties = Globals().PropertiesInUX;
    const std::string number = std::to_string(item.N - properties + 1);
    const std::string kind = i == 0        ? "Property"
                             : item.Constr ? "Constraint"
                                           : "Variable " + number;
    Frame(i).Caption(kind + ": " + item.Name + (item.Unit.empty() ? "" : " (" + item.Unit + ")"));
}

void frmUnc::ShowPropertyItem(const clsX& item) {
    chkComb.Value(item.iCU || item.HasUnmarkedCU());
    ShowStatement(item.CValue, txtCUValue, chkCUPerCent);
    txtCULevel.Text(item.CLevel);
    if (item.CType == "A") cboCUType.Choose(Propagation);
    if (item.CType == "B") cboCUType.Choose(Comparison);
    chkCD.Value(item.iCD || item.HasUnmarkedCD());
    txtKVOU.Text(item.KVOUValue);
    txtEq.Text(item.CDSpec);
    ShowStatement(item.CDRms, txtRMS, chkRMSPerCent);
}

/// The item as the controls of its frame say it.
clsX frmUnc::FromControls(int i) const {
    clsX item = *ItemOf(i);
    item.iDS = chkDS(i).Value();
    item.DSEvaluator = item.DSLevel = item.DSValue = "";
    if (item.iDS) {
        item.DSEvaluator =
            IsCalibrated(i) ? NormalizeNumber(txtCalibrError.Text()) : Evaluator(cboDSEvaluator(i));
        item.DSLevel = NormalizeNumber(txtDSLevel(i).Text());
        item.DSValue = Statement(txtDSValue(i), chkDSPerCent(i));
    }
    item.iRep = chkRep(i).Value();
    // The value line of a record has a repeatability by itself, which the mark of this block is not
    // about.
    if (item.iRep || !item.repOfValueLine) {
        item.Repetitions = item.iRep ? NormalizeNumber(txtRepetitions(i).Text()) : "";
        item.RValue = item.iRep ? Statement(txtRValue(i), chkRPerCent(i)) : "";
    }
    const std::string& type = cboRType(i).Chosen();
    item.RType = !item.iRep ? -1 : type == OfTheMean ? 0 : type == OfSingleMeasurement ? 1 : -1;
    item.iUnc = chkUnc(i).Value();
    item.ULevel = item.iUnc ? NormalizeNumber(txtULevel(i).Text()) : "";
    item.UValue = item.iUnc ? Statement(txtUValue(i), chkUPerCent(i)) : "";
    if (i == 0) ReadPropertyBlocks(item);
    return item;
}

void frmUnc::ReadPropertyBlocks(clsX& item) const {
    item.iCU = chkComb.Value();
    item.CLevel = item.iCU ? NormalizeNumber(txtCULevel.Text()) : "";
    item.CValue = item.iCU ? Statement(txtCUValue, chkCUPerCent) : "";
    const std::string& type = cboCUType.Chosen();
    item.CType = !item.iCU ? "" : type == Propagation ? "A" : type == Comparison ? "B" : item.CType;
    item.KVOUValue = txtKVOU.Text();
    item.iCD = chkCD.Value();
    item.CDSpec = item.iCD ? std::string(TrimBlanks(txtEq.Text())) : "";
    item.CDRms = item.iCD ? Statement(txtRMS, chkRMSPerCent) : "";
}

const clsX* frmUnc::ItemOf(int i) const {
    if (pages_.empty()) return nullptr;
    const int place = pages_[page_][static_cast<std::size_t>(i)];
    return place < 0 ? nullptr : &items_[static_cast<std::size_t>(place)];
}

/// A calorimeter is stated by its calibration constant: heats of reactions.
bool frmUnc::IsCalibrated(int i) const {
    if (i != 0 || Globals().DataContext != "React" || items_.empty()) return false;
    if (Globals().BioSetInHand) return false;
    return items_.front().N == 0 && items_.front().PRPCODE.starts_with('H');
}

} // namespace vexora

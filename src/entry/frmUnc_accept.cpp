#include "entry/frmUnc.h"

#include <cmath>

#include "chem/clsMethod.h"
#include "entry/RowChecks.h"
#include "entry/ValueQuestions.h"
#include "globals/KVOGlobal.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr const char* InvalidNumber = "Invalid numerical value";
// More digits of an uncertainty say nothing (JCGM 100:2008, 7.2.6, has two as a rule).
constexpr int ShownDigits = 3;

/// Single values state all of it at once; in a table the rows may do it.
bool IsSingleValue() {
    const std::string& key = Globals().CurrentKey;
    return key == "RMZ" || key == "RLSZ" || key == "RQC";
}

/// [per cent]; 0, for a standard deviation, where none is given.
double Level(const std::string& text) {
    return IsNumeric(text) ? Val(text) : 0;
}

} // namespace

bool frmUnc::CheckValue(ui::TextBox& box) {
    if (!CheckLevel(box)) return false;
    // In a table the cell of a row may give the figure.
    const bool isMissing = box.Enabled() && box.IsEmpty() && IsSingleValue();
    return !isMissing || Refuse(box, "Please enter the value");
}

bool frmUnc::CheckLevel(ui::TextBox& box) {
    if (!box.Enabled()) return true;
    box.Text(NormalizeNumber(box.Text()));
    return box.IsEmpty() || IsNumeric(box.Text()) || Refuse(box, InvalidNumber);
}

bool frmUnc::CheckRepetitions(ui::TextBox& box) {
    if (!CheckLevel(box)) return false;
    // One measurement: the figure is not divided by anything.
    if (box.Enabled() && box.IsEmpty() && IsSingleValue()) box.Text("1");
    return true;
}

namespace {

/// The sign of per cent may be typed behind the figure.
void TakeSign(ui::TextBox& box, ui::CheckBox& perCent) {
    const std::string_view text = TrimBlanks(box.Text());
    if (!box.Enabled() || !text.ends_with('%')) return;
    box.Text(std::string(TrimBlanks(text.substr(0, text.size() - 1))));
    perCent.Value(true);
}

} // namespace

void frmUnc::TakeSigns() {
    for (int i = 0; i < frameCount; ++i) {
        TakeSign(txtUValue(i), chkUPerCent(i));
        TakeSign(txtDSValue(i), chkDSPerCent(i));
        TakeSign(txtRValue(i), chkRPerCent(i));
    }
    TakeSign(txtCUValue, chkCUPerCent);
    TakeSign(txtRMS, chkRMSPerCent);
}

bool frmUnc::CheckEntries() {
    TakeSigns();
    if (!CheckValue(txtCUValue) || !CheckLevel(txtCULevel) || !CheckValue(txtRMS)) return false;
    if (txtCalibrError.Enabled()) {
        txtCalibrError.Text(NormalizeNumber(txtCalibrError.Text()));
        if (!IsNumeric(txtCalibrError.Text()))
            return Refuse(txtCalibrError, "Invalid calibration constant uncertainty");
    }
    for (int i = 0; i < frameCount; ++i) {
        if (Frame(i).Visible() && !CheckFrame(i)) return false;
    }
    return true;
}

bool frmUnc::CheckFrame(int i) {
    const ui::ComboBox& type = cboRType(i);
    if (type.Enabled() && (type.Index() < 0 || type.Chosen().starts_with("SELECT ")))
        return Refuse(cboRType(i), "SELECT REPRESENTATION OF REPEATABILITY");
    return CheckValue(txtUValue(i)) && CheckLevel(txtULevel(i)) && CheckValue(txtDSValue(i)) &&
           CheckLevel(txtDSLevel(i)) && CheckValue(txtRValue(i)) &&
           CheckRepetitions(txtRepetitions(i));
}

/// Evaluates a copy of the chain, so that giving up leaves it as it was.
void frmUnc::Calculate() {
    if (!CheckEntries()) return;
    lblFigures.Caption("");
    const auto& given = Globals().CurrentProperty;
    const int property = PropertyOfPage();
    const clsProperty* const of = given ? vexora::ItemOf(*given, property) : nullptr;
    if (!of || of->Text.empty()) {
        lblFigures.Caption("The figures are those of a value: enter one first");
        return;
    }
    clsProperty head;
    head.Copy(*of);
    KeepPage();
    int n = property;
    for (clsProperty* quantity = &head; quantity;
         quantity = quantity->isLast ? nullptr : quantity->NextItem.get())
        TakeEntries(*quantity, n++);
    const auto& method = Globals().CurrentMethod;
    const std::string result = EvaluateUncertainty(head, method ? method->MMass : 0, ConfirmInBox);
    TakeEvaluated(head);
    ShowFigures(head, result);
}

/// The evaluated figure of the value: that of a file stays until the operator's combined
/// uncertainty is the larger one.
void frmUnc::TakeEvaluated(const clsProperty& head) {
    const clsX item = Entered(PropertyOfPage());
    if (!item.iCU || item.CValue.empty() || !ItemOf(0)) return;
    const double stated = std::abs(StatedFigure(item.CValue, head.Value));
    if (Val(txtKVOU.Text()) >= stated) return;
    txtKVOU.Text(item.CValue.ends_with('%') ? NumberText(stated) : item.CValue);
}

void frmUnc::TakeEntries(clsProperty& quantity, int n) const {
    const clsX item = Entered(n);
    // What stands on the form is the whole statement; defaults of the set would hide a cleared one.
    quantity.masterds = quantity.masterrep = quantity.masterunc = "";
    quantity.masternrep = 0;
    quantity.DS = item.DSValue;
    quantity.DSLevel = Level(item.DSLevel);
    if (n == 0 && IsCalibrated(0) && item.iDS) {
        const double constant = Val(item.DSValue);
        // The relative uncertainty of the constant is that of every heat measured with it.
        const bool known = IsNumeric(item.DSEvaluator) && constant > 0;
        quantity.DS = known ? NumberText(Val(item.DSEvaluator) * 100 / constant) + "%" : "";
    }
    quantity.Rep = item.iRep ? item.RValue : "";
    quantity.nRep = item.iRep && IsNumeric(item.Repetitions) ? item.Repetitions : "";
    quantity.replevel = item.iRep && item.RType > 0 ? item.RType : 0;
    quantity.Unc = item.UValue;
    quantity.unclevel = Level(item.ULevel);
    // A deviation is that of a whole curve; this is the figure of one value.
    quantity.CD = "";
    quantity.Der = 0;
}

/// The combined uncertainty of the operator stands for the evaluated one when it is the larger.
void frmUnc::ShowFigures(const clsProperty& head, const std::string& result) {
    if (!result.empty()) {
        lblFigures.Caption(result);
        return;
    }
    const clsX item = Entered(PropertyOfPage());
    const double stated = item.iCU ? std::abs(StatedFigure(item.CValue, head.Value)) : 0;
    if (stated > head.PRECISION) {
        lblFigures.Caption("Combined uncertainty as stated: " +
                           NumberWithUnit(FormatValue(stated, ShownDigits), item.Unit));
        return;
    }
    if (head.PRECISION == 0) {
        lblFigures.Caption("No figure follows for the property: nothing is stated about it");
        return;
    }
    std::string text = "Expanded uncertainty of " + head.Text + ": " +
                       NumberWithUnit(FormatValue(head.PRECISION, ShownDigits), item.Unit);
    // Bio data have codes of their own, which this table would take for others.
    if (!Globals().BioSetInHand) {
        const auto row = FindProperty(item.PRPCODE);
        const std::string systemUnit = row && head.Relation != "R" ? row->Unit : std::string();
        text += "; in the system unit " +
                NumberWithUnit(FormatValue(head.SystemPrecision, ShownDigits), systemUnit);
    }
    lblFigures.Caption(text);
}

/// A page is whole before another one is shown.
bool frmUnc::CheckPage() {
    if (!CheckEntries()) return false;
    const bool typeOpen = cboCUType.Index() < 0 || cboCUType.Chosen().starts_with("SELECT ");
    return !Frame(0).Visible() || !chkComb.Value() || !typeOpen ||
           Refuse(cboCUType, "SELECT TYPE OF EVALUATION");
}

void frmUnc::Accept() {
    if (!CheckPage()) return;
    if (txtKVOU.Enabled() && !IsNumeric(txtKVOU.Text())) {
        Refuse(txtKVOU, InvalidNumber);
        return;
    }
    KeepPage();
    std::vector<clsX>& stated = *Globals().CurrentUX;
    for (std::size_t k = 0; k < stated.size(); ++k) {
        // What was not shown cannot have been changed; the rest keeps the unit that it was read in.
        if (wasShown_[k] && entered_[k] != shown_[k]) stated[k] = entered_[k];
    }
    Globals().DialogAccepted = true;
    Close();
}

} // namespace vexora

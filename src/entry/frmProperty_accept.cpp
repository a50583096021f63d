#include "entry/frmProperty.h"

#include "chem/CommentTags.h"
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"

namespace vexora {

void frmProperty::Enter(const Entry& entry) {
    if (!Check()) return;
    Store(entry.variableCount);
    LeadOn(Name(), EntryForm(Globals().DataContext, entry.kind, entry.variableCount));
}

void frmProperty::Accept() {
    if (!IsModal() && Chosen()) {
        // Enter leads on where only one way is open, as if its button had been pressed.
        if (ui::CommandButton* entry = OnlyEntry()) entry->UserClick();
        return;
    }
    if (!Check()) return;
    Store(Globals().VariableCount);
    accepted_ = true;
    Close();
}

bool frmProperty::Check() {
    txtFactor.Text(NormalizeNumber(txtFactor.Text()));
    if (!Chosen()) return Refuse(lstProp, "Please select the property");
    if (optOriginal.Value() && lstConv.Index() < 0)
        return Refuse(lstConv, "Please select original units of the property");
    if (lstExpPurpose.Index() <= 0)
        return Refuse(lstExpPurpose, "Please select the experiment purpose");
    if (lstMethod.Index() < 0) return Refuse(lstMethod, "Select the method of measurement");
    // A method outside the table is worth nothing without a word about it.
    if (ChosenMethod() == "OTHER" && Trim(txtMethod.Text()).empty())
        return Refuse(txtMethod, "Please describe the method of measurement in comment");
    const std::string& factor = txtFactor.Text();
    if (!factor.empty() && !(IsNumeric(factor) && Val(factor) > 0))
        return Refuse(txtFactor, "The uncertainty factor is a number greater than 0");
    return true;
}

void frmProperty::Store(int variableCount) {
    KVOGlobal& globals = Globals();
    clsMethod& method = *globals.CurrentMethod;
    const PropertyRow& row = *Chosen();
    DropForeignTags();
    globals.VariableCount = variableCount;
    globals.OriginalUnits = optOriginal.Value();
    globals.ExpPurpose =
        CodeAt(ExperimentPurposes, static_cast<std::size_t>(lstExpPurpose.Index()));
    globals.PropertyComment = txtComment.Text();
    method.Method = ChosenMethod();
    method.sMethod = method.Method == "OTHER" ? std::string(Trim(txtMethod.Text())) : "";
    // It is stored for the reader of the record and enters no calculation.
    method.f = txtFactor.IsEmpty() ? 1 : Val(txtFactor.Text());
    method.Context = row.CONTEXT;
    StoreStatements();
    StoreUnit(row);
}

/// The unit and with it the head of the property chain, which keeps its precision as long as it is
/// the same property.
void frmProperty::StoreUnit(const PropertyRow& row) {
    KVOGlobal& globals = Globals();
    clsMethod& method = *globals.CurrentMethod;
    // A record that holds no more than the factor of its unit goes on doing so.
    const bool same = globals.PropertyCode == row.Code &&
                      FactorInUnit(globals.PropertyUnit, method.Factor) > 0 &&
                      lstConv.Chosen() == UnitText(row.Unit, globals.PropertyUnit, method.Factor);
    // The operator's own unit stands in front of the entry that asks for one.
    const bool ownUnit = factor_ > 0 && lstConv.Index() == lstConv.Count() - 2;
    if (!same) {
        method.Factor = ownUnit ? factor_ : 0;
        globals.PropertyUnit = ownUnit ? "*" : UnitCode(row, lstConv.Chosen());
    }
    globals.PropertyText = globals.OriginalUnits
                               ? UnitText(row.Unit, globals.PropertyUnit, method.Factor)
                               : UnitText(row.Unit, "S", 0);
    // A precision belongs to the property that it was stated for.
    if (!globals.CurrentProperty || globals.PropertyCode != row.Code)
        globals.CurrentProperty = std::make_shared<clsProperty>();
    globals.PropertyCode = row.Code;
    clsProperty& head = *globals.CurrentProperty;
    head.PropertyCode = row.Code;
    head.ConversionCode = globals.OriginalUnits ? globals.PropertyUnit : "S";
    head.Factor = globals.OriginalUnits ? method.Factor : 0;
    head.Relation = "A";
    head.Name = PropertyInWords(row);
}

void frmProperty::StoreStatements() {
    KVOGlobal& globals = Globals();
    CommentTags tags = CommentTags::OfTags(globals.KeyRest);
    // Bits that are not offered keep their state.
    int bits = FlagBits(globals.PropertyFlags);
    for (std::size_t i = 0; i < statements_.size(); ++i) {
        const Statement& statement = statements_[i];
        const bool on = lstNote.Selected(static_cast<int>(i));
        if (statement.flag == 0)
            tags.Set(statement.key, on);
        else
            bits = on ? bits | statement.flag : bits & ~statement.flag;
    }
    globals.KeyRest = tags.Stored();
    globals.PropertyFlags = std::to_string(bits);
}

/// Tags belong to a property and a method: another choice starts without any.
void frmProperty::DropForeignTags() {
    const PropertyRow* row = Chosen();
    const std::string code = row ? row->Code : std::string();
    const auto differs = [](const std::string& before, const std::string& now) {
        return !before.empty() && now != before;
    };
    if (differs(tagsProperty_, code) || differs(tagsMethod_, ChosenMethod()))
        Globals().KeyRest = ":";
    tagsProperty_ = code;
    tagsMethod_ = ChosenMethod();
}

} // namespace vexora

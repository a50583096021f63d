#include "pure/frmTwo.h"

#include <algorithm>

#include "chem/CommentTags.h"
#include "chem/clsMethod.h"
#include "entry/CodeLists.h"
#include "entry/PhaseLists.h"
#include "entry/PropertyContext.h"
#include "entry/PropertyRules.h"
#include "globals/KVOGlobal.h"
#include "records/PropertyChain.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"

namespace vexora {

namespace {

// First entries of the lists in which nothing is chosen at first.
constexpr const char* SelectVariable = "SELECT VARIABLE";

} // namespace

void frmTwo::FillLists() {
    lstCONSTRAINT.Assign(Texts(ConstraintKinds));
    lstPROPERTY_FUNCT.Assign(Texts(ResultFunctions()));
    lstRelation.Assign(Texts(ResultRelations()));
    lstNumerical.Assign(Texts(Presentation::Kinds()));
    lstREF_PHASE.Assign({});
    for (const std::string& code : OfferPhases({}, 0, {}, Globals().DataContext).Phase1)
        lstREF_PHASE.Add(PhaseName(code));
}

void frmTwo::UseSample() {
    choice_.PutInContext(record_ ? record_->MolarMass() : as_ ? as_->FallbackMolarMass : 0);
    ProposeSetNumber();
}

/// Brings the form in line with the property in force.
void frmTwo::ShowProperty() {
    const KVOGlobal& globals = Globals();
    row_ = PropertyInForce();
    variables_ = VariablesOf(globals.DataContext);
    std::erase_if(variables_,
                  [this](const auto& v) { return IsSameQuantity(row_.Code, v.IndVarCode); });
    const bool two = globals.VariableCount > 1;
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&lblVar2, &cboVar2, &lstVar2_Unit})
        control->Visible(two);
    OfferVariables(cboVar1);
    OfferVariables(cboVar2);
    PreSet();
    ProposeSetNumber();
    OfferLast();
}

void frmTwo::ShowCaption() {
    std::string variables = VariableName(VariableOf(cboVar1));
    const std::string second = cboVar2.Visible() ? VariableName(VariableOf(cboVar2)) : "";
    if (!variables.empty() && !second.empty()) variables += " and ";
    variables += second;
    if (variables.empty()) variables = "state variables";
    Caption((record_ ? "Edit: " : "") + row_.Property + " (" + Globals().PropertyText +
            ") as function of " + variables);
}

void frmTwo::OfferVariables(ui::ComboBox& list) const {
    std::vector<std::string> names = {SelectVariable};
    for (const VariableRow& row : variables_)
        names.push_back(row.IndVariable);
    list.FirstIsPrompt = true;
    list.Assign(std::move(names));
    list.Index(0);
}

/// The units of the paper or the system unit alone; one that the form came with stays on offer.
void frmTwo::ShowUnits(int n) {
    ui::ComboBox& units = n == 1 ? lstVariable_Unit : lstVar2_Unit;
    const std::string chosen = units.Chosen();
    const std::string code = VariableOf(n == 1 ? cboVar1 : cboVar2);
    const bool original = Globals().OriginalUnits;
    units.Clear();
    if (code.empty()) return;
    if (const auto row = FindVariable(code))
        units.Assign(original ? UnitList(row->Unit, code) : FixedUnitList(row->Unit));
    if (as_ && as_->VARIABLE(n) == code && as_->isOriginalUnit == original) {
        const std::string own = UnitShown(*as_, n);
        if (!own.empty() && units.Find(own) < 0) units.Add(own);
    }
    units.Index(units.Count() == 1 ? 0 : units.Find(chosen));
}

/// A single phase has no second one; a phase chosen here is not offered there.
void frmTwo::ShowPhases() {
    const ui::FillingScope filling(*this);
    const TwoDraft draft = Draft();
    const bool boundary = draft.constraint == "PB" || draft.constraint.empty();
    lblPhase2.Visible(boundary);
    lstPhase2.Visible(boundary);
    const PhaseOffer offer = OfferSetPhases(draft);
    FillPromptedPhaseList(lstPhase1, offer.Phase1);
    FillPromptedPhaseList(lstPhase2, offer.Phase2);
}

void frmTwo::ShowVar3() {
    const ConstantVariable open = OpenVariable(Draft());
    const QuantityText* quantity = QuantityByCode(StateVariables, open.code);
    const bool same = quantity && lblVar3.Caption() == std::string(quantity->text) + ":";
    for (ui::Control* control : std::initializer_list<ui::Control*>{&lblVar3, &txtVar3, &lblUnit3})
        control->Visible(quantity != nullptr);
    lblVar3.Caption(quantity ? std::string(quantity->text) + ":" : "");
    lblUnit3.Caption(quantity ? std::string(quantity->unit) : "");
    txtVar3.ToolTip(open.isObligatory ? "The value that all rows have in common"
                                      : "The value that all rows have in common, if it is stated");
    if (!same) txtVar3.Text(CommentTags::OfTags(Globals().KeyRest).Constant(open.code));
}

/// The columns of digits follow in the table, those of both variables together.
void frmTwo::ShowDigits() {
    chkIncludeDigit.ToolTip(chkIncludeDigit.Value()
                                ? "The table shows a column of digits for each quantity"
                                : "The digits are counted on the typed texts");
}

/// What a definition does not ask for cannot be entered.
void frmTwo::ShowDefinition() {
    const TwoDraft draft = Draft();
    const bool relative = NeedsRelation(draft.function);
    lstRelation.Enabled(relative);
    txtREF_TEMP.Enabled(relative && draft.Definition().FixesTemperature());
    txtREF_PRESSURE.Enabled(relative && draft.Definition().FixesPressure());
    lstREF_PHASE.Enabled(relative && draft.Definition().NamesPhase());
}

void frmTwo::PreSet() {
    const TwoDraft preset = PresetTwo(row_.Code);
    cboVar1.Choose(VariableName(preset.variable1));
    if (cboVar1.Index() < 0) cboVar1.Index(0);
    for (ui::ComboBox* list : {&lstPhase1, &lstPhase2})
        list->Clear();
    ChooseCode(lstCONSTRAINT, ConstraintKinds, preset.constraint);
    ShowPhases();
    ChoosePhase(lstPhase2, preset.phase2);
    ShowPhases();
    ChooseCode(lstPROPERTY_FUNCT, ResultFunctions(), preset.function);
    ChooseCode(lstRelation, ResultRelations(), preset.relation);
    lstREF_PHASE.Index(-1);
    ChoosePhase(lstREF_PHASE, preset.refPhase);
    txtREF_TEMP.Text(preset.refTemp);
    txtREF_PRESSURE.Text(preset.refPressure);
    ShowDefinition();
    ShowVar3();
    ShowDigits();
    // The method has said already how the numbers came about.
    const auto& method = Globals().CurrentMethod;
    if (lstNumerical.Index() < 0 && method && method->Method == "CALCEOS")
        ChooseCode(lstNumerical, Presentation::Kinds(), "C");
}

/// The number of a set that keeps its property does not change.
void frmTwo::ProposeSetNumber() {
    const auto sample = choice_.Sample();
    const TwoDraft draft = Draft();
    const std::string code = StoredPropertyCode(row_.Code, draft.phase1, draft.phase2);
    if (!sample || code.empty())
        txtPrpSetNo.Text("");
    else if (record_ && record_->PRPCODE == code)
        txtPrpSetNo.Text(record_->PRPSETNO);
    else
        txtPrpSetNo.Text(std::to_string(sample->NextTwoNumber(code, draft.nVar)));
}

/// The set of the sample that was entered last with as many variables, when all its variables can
/// be variables here.
std::shared_ptr<const clsTwo> frmTwo::LastSet() const {
    const auto sample = choice_.Sample();
    if (!sample || as_) return nullptr;
    std::shared_ptr<const clsTwo> last;
    for (const auto& set : sample->recTwo)
        if (set->nVar == Globals().VariableCount) last = set;
    for (int n = 1; last && n <= last->nVar; ++n)
        if (std::ranges::find(variables_, last->VARIABLE(n), &VariableRow::IndVarCode) ==
            variables_.end())
            return nullptr;
    return last;
}

void frmTwo::OfferLast() {
    const auto last = LastSet();
    cmdAsLast.Visible(last != nullptr);
    if (last)
        cmdAsLast.ToolTip("Variables, constraint, phases and presentation as in " +
                          last->ShowKey());
}

void frmTwo::ShowRecord(const clsTwo& record) {
    Globals().CurrentProperty = BuildChain(record); // the tags of the comment name its quantities
    txtComment.Text(TakeComment(record.Header.DATACOMMENT));
    ShowVariables(record);
    ChooseCode(lstCONSTRAINT, ConstraintKinds, record.CONSTRAINT);
    lstPhase1.Index(0);
    lstPhase2.Index(0);
    ChoosePhase(lstPhase1, record.PHASE1);
    ShowPhases();
    ChoosePhase(lstPhase2, record.PHASE2);
    ShowDefinitionOf(record);
    ShowPresentation(record);
    txtVar3.Text("");
    lblVar3.Caption("");
    ShowVar3();
    ProposeSetNumber();
}

void frmTwo::ShowVariables(const clsTwo& record) {
    for (int n = 1; n <= record.nVar && n <= 2; ++n) {
        ui::ComboBox& variable = n == 1 ? cboVar1 : cboVar2;
        std::string name = VariableName(record.VARIABLE(n));
        if (name.empty()) name = record.VARIABLE(n);
        if (variable.Find(name) < 0) variable.Add(name);
        variable.Choose(name);
        ShowUnits(n);
        (n == 1 ? lstVariable_Unit : lstVar2_Unit).Choose(UnitShown(record, n));
    }
}

/// The unit of a variable as the list shows it; what no table knows is shown as its code.
std::string frmTwo::UnitShown(const clsTwo& record, int n) const {
    const std::string& code = record.VAR_UNIT(n);
    const auto row = FindVariable(record.VARIABLE(n));
    if (!row) return code;
    return UnitText(row->Unit, record.isOriginalUnit ? code : "S", 0);
}

void frmTwo::ShowDefinitionOf(const clsTwo& record) {
    const ResultDefinition definition = ResultDefinition::Of(record.PROPERTY_FUNCT);
    ChooseCode(lstPROPERTY_FUNCT, ResultFunctions(), definition.function);
    const bool isFixed = definition.relation == "FX"; // another code of the same relation
    ChooseCode(lstRelation, ResultRelations(), isFixed ? "TF" : definition.relation);
    txtREF_TEMP.Text(IsBlankField(record.REF_TEMP) ? "" : record.REF_TEMP);
    txtREF_PRESSURE.Text(IsBlankField(record.REF_PRESSURE) ? "" : record.REF_PRESSURE);
    lstREF_PHASE.Index(-1);
    ChoosePhase(lstREF_PHASE, record.REF_PHASE);
    ShowDefinition();
}

void frmTwo::ShowPresentation(const clsTwo& record) {
    const Presentation presentation = Presentation::Of(record.DATATYPE);
    ChooseCode(lstNumerical, Presentation::Kinds(), presentation.numerical);
    chkCalc.Value(presentation.calculated);
    chkEqu.Value(presentation.equation);
    chkGraph.Value(presentation.graph);
    chkIncludeDigit.Value(std::any_of(record.recData.begin(), record.recData.end(),
                                      [](const clsData& row) { return row.isDigit; }));
    ShowDigits();
}

/// Code of the variable chosen behind the first entry, empty for none.
std::string frmTwo::VariableOf(const ui::ComboBox& list) const {
    if (list.Index() <= 0) return {};
    const std::string code = VariableCode(list.Chosen());
    return code.empty() ? list.Chosen() : code;
}

TwoDraft frmTwo::Draft() const {
    TwoDraft draft;
    draft.nVar = Globals().VariableCount;
    draft.context = Globals().DataContext;
    draft.property = row_.Code;
    draft.hasSample = choice_.Sample() != nullptr;
    draft.variable1 = VariableOf(cboVar1);
    draft.unit1 = lstVariable_Unit.Chosen();
    draft.variable2 = VariableOf(cboVar2);
    draft.unit2 = lstVar2_Unit.Chosen();
    draft.constant = txtVar3.Text();
    draft.function = CodeChosen(lstPROPERTY_FUNCT, ResultFunctions());
    draft.relation = CodeChosen(lstRelation, ResultRelations());
    draft.refPhase = PhaseChosen(lstREF_PHASE);
    draft.refTemp = txtREF_TEMP.Text();
    draft.refPressure = txtREF_PRESSURE.Text();
    draft.constraint = CodeChosen(lstCONSTRAINT, ConstraintKinds);
    draft.phase1 = PhaseChosen(lstPhase1);
    draft.phase2 = lstPhase2.Visible() ? PhaseChosen(lstPhase2) : std::string();
    draft.numerical = CodeChosen(lstNumerical, Presentation::Kinds());
    return draft;
}

} // namespace vexora

#include "entry/frmProperty.h"

#include <algorithm>

#include "chem/CommentTags.h"
#include "chem/clsMethod.h"
#include "entry/CodeLists.h"
#include "globals/KVOGlobal.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* OtherMethod = "Other experimental method (please, describe below)";
constexpr const char* MethodNotStated = "The method is not stated in the document";

} // namespace

/// A new datum begins without tags, flags or figures of the last one.
void frmProperty::BeginSelection() {
    KVOGlobal& globals = Globals();
    globals.KeyRest = ":";
    globals.PropertyCode.clear();
    globals.PropertyFlags = "0";
    globals.PropertyComment.clear();
    globals.CurrentProperty = nullptr;
    FillGroups();
    lstPropGroup.Index(0);
    optOriginal.Value(true);
    lstExpPurpose.Index(0);
    txtFactor.Text("1");
}

void frmProperty::FillGroups() {
    groups_ = PropertyGroups(Globals().DataContext);
    // A group whose properties cannot be entered would be a dead end.
    std::erase_if(groups_, [this](const auto& group) { return OfferedIn(group).empty(); });
    lstPropGroup.FirstIsPrompt = true;
    lstPropGroup.Assign({"SELECT PROPERTY GROUP"});
    for (const PropertyGroupRow& group : groups_)
        lstPropGroup.Add(group.GroupName);
    lstExpPurpose.Assign(Texts(ExperimentPurposes));
}

/// A review offers what suits the entry dialog that asked for it, and what it came with.
std::vector<PropertyRow> frmProperty::OfferedIn(const PropertyGroupRow& group) const {
    const KVOGlobal& globals = Globals();
    auto rows = PropertiesOfGroup(group.GROUP, globals.DataContext);
    if (!IsModal()) return rows;
    const int count = globals.VariableCount;
    const bool ofTable = IsEntryFormOpen(globals.DataContext, EntryKind::Table, count);
    const EntryKind kind = ofTable ? EntryKind::Table : EntryKind::Value;
    std::erase_if(rows, [&](const PropertyRow& row) {
        return row.Code != globals.PropertyCode &&
               !AllowsEntry(row, kind, count, globals.DataContext);
    });
    return rows;
}

/// Shows the choice that is in force.
void frmProperty::Fill() {
    const KVOGlobal& globals = Globals();
    const clsMethod& method = *globals.CurrentMethod;
    const ui::FillingScope filling(*this);
    FillGroups();
    const auto property = FindProperty(globals.PropertyCode, globals.DataContext, method.Context);
    const auto group = property
                           ? std::ranges::find(groups_, property->GROUP, &PropertyGroupRow::GROUP)
                           : groups_.end();
    lstPropGroup.Index(group == groups_.end() ? 0 : static_cast<int>(group - groups_.begin()) + 1);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        // One code stands for several kinds of equilibrium.
        const bool isIt =
            property && rows_[i].Code == property->Code && rows_[i].CONTEXT == property->CONTEXT;
        if (isIt) lstProp.Index(static_cast<int>(i) + 1);
    }
    optOriginal.Value(globals.OriginalUnits);
    optSystem.Value(!globals.OriginalUnits);
    lstExpPurpose.Index(std::max(0, IndexOfCode(ExperimentPurposes, globals.ExpPurpose)));
    txtMethod.Text(method.sMethod);
    txtFactor.Text(NumberText(method.f));
    txtComment.Text(globals.PropertyComment);
    if (const PropertyRow* row = Chosen()) ShowUnit(*row);
    SelectMethod(method.Method.empty() && !method.sMethod.empty() ? "OTHER" : method.Method);
    tagsProperty_ = globals.PropertyCode;
    tagsMethod_ = ChosenMethod();
    const CommentTags tags = CommentTags::OfTags(globals.KeyRest);
    for (std::size_t i = 0; i < statements_.size(); ++i) {
        const Statement& statement = statements_[i];
        const bool on = statement.flag != 0 ? (FlagBits(globals.PropertyFlags) & statement.flag)
                                            : tags.Has(statement.key);
        lstNote.Selected(static_cast<int>(i), on);
    }
}

void frmProperty::FillUnits(const PropertyRow& row) {
    const ui::FillingScope filling(*this);
    factor_ = 0;
    lstConv.Assign(UnitList(row.Unit, row.Code));
    // Several units: none is preset, for a wrong unit is the gravest slip and the least seen.
    const bool only = lstConv.Count() == 1;
    lstConv.Add(AllOtherUnits);
    lstConv.Index(only ? 0 : -1);
    unitBefore_ = lstConv.Index();
}

void frmProperty::FillMethods(const PropertyRow& row) {
    methods_ = MethodsOf(row.Code);
    // Behind those of the table, for every property.
    methods_.push_back({"UNKNOWN", MethodNotStated});
    methods_.push_back({"OTHER", OtherMethod});
    for (const MethodRow& method : methods_)
        lstMethod.Add(method.Method);
}

/// A method that the table does not list, as a file may have it, is offered under its code.
void frmProperty::SelectMethod(const std::string& code) {
    if (code.empty()) return;
    const auto found = std::ranges::find(methods_, code, &MethodRow::MethodCode);
    const bool isListed = found != methods_.end();
    const int index = isListed ? static_cast<int>(found - methods_.begin()) : 0;
    if (!isListed) {
        methods_.insert(methods_.begin(), {code, code});
        lstMethod.Insert(0, code);
    }
    lstMethod.Index(index);
}

void frmProperty::NoteList() {
    lstNote.Clear();
    statements_.clear();
    if (const PropertyRow* row = Chosen())
        statements_ = StatementsFor(row->Code, Globals().DataContext);
    for (const Statement& statement : statements_)
        lstNote.Add(statement.text);
}

void frmProperty::Details_Check() {
    const bool any = !Questions(ChosenMethod(), Globals().DataContext).empty();
    cmdDetails.Enabled(any && ui::Forms::Current().Knows("frmKey"));
}

void frmProperty::ShowEntries() {
    const PropertyRow* row = Chosen();
    const std::string& context = Globals().DataContext;
    for (const Entry& entry : entries_) {
        // A point at a fixed variable is entered of pure compounds only.
        const bool ofPure = !IsMixtureContext(context) && context != "React";
        const bool exists = ofPure || &entry.button != &cmdFixed;
        OfferEntry(entry,
                   row ? AllowsEntry(*row, entry.kind, entry.variableCount, context) : exists);
    }
    fraInvariant.Visible(!IsModal() && (cmdSingle.Visible() || cmdFixed.Visible()));
    fraVariable.Visible(!IsModal() && (cmdOne.Visible() || cmdTwo.Visible() || cmdThree.Visible()));
    // Enter needs one meaning.
    cmdOK.Enabled(row && (IsModal() || OnlyEntry() != nullptr));
    cmdOK.WhyDisabled(row ? "Press one of the buttons above to say what you are entering"
                          : "Choose a property first");
}

/// A button is offered by the columns of the property and lives when its form exists.
void frmProperty::OfferEntry(const Entry& entry, bool offered) {
    const std::string_view form = EntryForm(Globals().DataContext, entry.kind, entry.variableCount);
    const bool exists = ui::Forms::Current().Knows(form);
    entry.button.Visible(offered);
    entry.button.Enabled(exists);
    entry.button.WhyDisabled(entry.variableCount > 2 && !IsMixtureContext(Globals().DataContext)
                                 ? "A pure compound has no more than two state variables"
                                 : "Data of this kind have no form of their own");
}

/// The one button that leads on, or null when there is none or a choice of several.
ui::CommandButton* frmProperty::OnlyEntry() {
    ui::CommandButton* only = nullptr;
    for (const Entry& entry : entries_) {
        if (!entry.button.Visible() || !entry.button.Enabled()) continue;
        if (only) return nullptr;
        only = &entry.button;
    }
    return only;
}

void frmProperty::ShowUnit(const PropertyRow& row) {
    const KVOGlobal& globals = Globals();
    const std::string& code = globals.PropertyUnit;
    const double factor = globals.CurrentMethod->Factor;
    if (!lstConv.Choose(UnitText(row.Unit, code, factor)) && FactorInUnit(code, factor) > 0)
        OfferFactor(FactorInUnit(code, factor));
    unitBefore_ = lstConv.Index();
}

/// Only a method that no list knows is described in words.
void frmProperty::ShowMethod() {
    txtMethod.Enabled(ChosenMethod() == "OTHER");
}

void frmProperty::OfferFactor(double factor) {
    const int last = lstConv.Count() - 1;
    // There is one own unit at most.
    if (factor_ > 0) lstConv.Remove(last - 1);
    factor_ = 0;
    const std::string text = UnitText(Chosen()->Unit, "*", factor);
    if (lstConv.Choose(text)) return; // the factor of a listed unit
    factor_ = factor;
    lstConv.Insert(lstConv.Count() - 1, text);
    lstConv.Index(lstConv.Count() - 2);
}

std::optional<double> frmProperty::AskFactor(const PropertyRow& row) const {
    const std::string prompt =
        "Property value in the original units multiplied by a conversion "
        "factor is property value in " +
        row.Unit + "\n(Original Value) * (Conversion Factor) = (Converted Value) in " + row.Unit;
    const auto answer = ui::TheDesktop().Ask(
        {prompt, "Non-standard conversion factor", "Enter the Conversion Factor here"});
    const std::string text = NormalizeNumber(answer.value_or(""));
    // Nothing typed, or Cancel: the unit stays as it was.
    if (text.empty()) return std::nullopt;
    if (IsNumeric(text) && Val(text) > 0) return Val(text);
    ui::Say("Invalid conversion factor");
    return std::nullopt;
}

const PropertyRow* frmProperty::Chosen() const {
    const int index = lstProp.Index();
    return index > 0 ? &rows_[static_cast<std::size_t>(index - 1)] : nullptr;
}

std::string frmProperty::ChosenMethod() const {
    const int index = lstMethod.Index();
    return index < 0 ? std::string() : methods_[static_cast<std::size_t>(index)].MethodCode;
}

} // namespace vexora

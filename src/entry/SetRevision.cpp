#include "entry/SetRevision.h"

#include "globals/KVOGlobal.h"
#include "records/DataSet.h"
#include "records/LineWriter.h"
#include "records/clsE.h"
#include "records/clsMV.h"
#include "records/clsTwo.h"
#include "reference/Text.h"
#include "ui/Forms.h"

#include <algorithm>
#include <utility>

namespace vexora {

namespace {

constexpr const char* TableForm = "frmData2";
constexpr const char* TiedTableForm = "frmProcess";

/// The set of the table as the current one of its kind, and those before it again at the end.
class SetScope {
public:
    explicit SetScope(const std::shared_ptr<DataSet>& set)
        : two_(Globals().CurrentTwo), mixture_(Globals().CurrentMV),
          equilibrium_(Globals().CurrentE) {
        Globals().CurrentTwo = std::dynamic_pointer_cast<clsTwo>(set);
        Globals().CurrentMV = std::dynamic_pointer_cast<clsMV>(set);
        Globals().CurrentE = std::dynamic_pointer_cast<clsE>(set);
    }
    ~SetScope() {
        KVOGlobal& globals = Globals();
        globals.CurrentTwo = two_;
        globals.CurrentMV = mixture_;
        globals.CurrentE = equilibrium_;
    }
    SetScope(const SetScope&) = delete;
    SetScope& operator=(const SetScope&) = delete;

private:
    std::shared_ptr<clsTwo> two_;
    std::shared_ptr<clsMV> mixture_;
    std::shared_ptr<clsE> equilibrium_;
};

/// The working context as it was before a table opened.
class ContextScope {
public:
    ContextScope() : head_(Globals().CurrentProperty), depth_(Globals().OpenForms.size()) {}
    ~ContextScope() {
        KVOGlobal& globals = Globals();
        globals.CurrentProperty = head_;
        if (globals.OpenForms.size() > depth_) globals.OpenForms.resize(depth_);
    }
    ContextScope(const ContextScope&) = delete;
    ContextScope& operator=(const ContextScope&) = delete;

private:
    std::shared_ptr<clsProperty> head_;
    std::size_t depth_;
};

} // namespace

bool HasStatements(const clsData& row, int item) {
    if (!row.StatementsOf(item).IsEmpty()) return true;
    if (item > 0) return false;
    const bool combined = row.Extras && (!row.Extras->userCU.empty() || !row.Extras->CD.empty());
    return combined || !IsBlankField(row.PRPUNCERTY);
}

bool HasStatements(const DataSet& set, int item) {
    return std::ranges::any_of(set.recData,
                               [item](const clsData& row) { return HasStatements(row, item); });
}

void DropStatements(clsData& row, int item) {
    if (row.Extras) row.Statements(item) = {};
    if (item > 0) return;
    if (row.Extras) row.Extras->userCU = row.Extras->CD = "";
    row.PRPUNCERTY = "";
}

bool AskToDropStatements(ui::Control& field, const std::string& names) {
    return field.Owner().Confirm(field, "Rows of the table state uncertainties of " + names +
                                            ", which go with it\nGo on?");
}

bool AskToDropRows(ui::Control& field, std::size_t rows) {
    return field.Owner().Confirm(field, "The table of this set has " + std::to_string(rows) +
                                            (rows == 1 ? " row" : " rows") +
                                            " of numerical data.\nAre they to be deleted?");
}

bool EnterTable(ui::Control& field, std::string_view table) {
    KVOGlobal& globals = Globals();
    ui::Form& opener = field.Owner();
    if (!ui::Forms::Current().Knows(table)) return opener.Refuse(field, "There is no table dialog");
    const ContextScope scope;
    globals.DialogAccepted = false;
    globals.OpenForms.push_back(opener.Name());
    ui::Forms::Current().Get(table).ShowModal();
    return std::exchange(globals.DialogAccepted, false);
}

bool EnterRows(ui::Control& field, const std::shared_ptr<DataSet>& set, bool includeDigits) {
    Globals().IncludeDigits = includeDigits;
    const SetScope scope(set);
    return EnterTable(field, TableForm);
}

bool EnterTiedRows(ui::Control& field, const std::vector<std::shared_ptr<clsMV>>& sets) {
    if (sets.empty()) return false;
    Globals().SetsToShow = sets;
    const SetScope scope(sets.front());
    const bool isAccepted = EnterTable(field, TiedTableForm);
    Globals().SetsToShow.clear();
    return isAccepted;
}

} // namespace vexora

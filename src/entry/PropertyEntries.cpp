#include "entry/PropertyEntries.h"

#include "ui/Forms.h"

namespace vexora {

namespace {

struct PropertyEntry {
    std::string_view context;
    EntryKind kind;
    int variableCount;
    std::string_view form;
};

// Data of complexes and hydrates are entered as those of pure compounds.
constexpr PropertyEntry Entries[] = {
    {"Pure", EntryKind::Value, 0, "frmSingle"},    {"Pure", EntryKind::Value, 1, "frmSingle"},
    {"Pure", EntryKind::Table, 1, "frmTwo"},       {"Pure", EntryKind::Table, 2, "frmTwo"},
    {"Complex", EntryKind::Value, 0, "frmSingle"}, {"Complex", EntryKind::Value, 1, "frmSingle"},
    {"Complex", EntryKind::Table, 1, "frmTwo"},    {"Complex", EntryKind::Table, 2, "frmTwo"},
    {"Bin", EntryKind::Value, 0, "frmMixtSingle"}, {"Tern", EntryKind::Value, 0, "frmMixtSingle"},
    {"Bin", EntryKind::Table, 1, "frmMixtVar"},    {"Tern", EntryKind::Table, 1, "frmMixtVar"},
    {"Bin", EntryKind::Table, 2, "frmMixtVar"},    {"Tern", EntryKind::Table, 2, "frmMixtVar"},
    {"Bin", EntryKind::Table, 3, "frmMixtVar"},    {"Tern", EntryKind::Table, 3, "frmMixtVar"},
    {"React", EntryKind::Value, 0, "frmChanged"},  {"React", EntryKind::Table, 1, "frmEquil"},
    {"React", EntryKind::Table, 2, "frmEquil"},    {"React", EntryKind::Table, 3, "frmEquil"},
};

} // namespace

std::string_view EntryForm(std::string_view context, EntryKind kind, int variableCount) {
    for (const PropertyEntry& entry : Entries) {
        if (entry.context == context && entry.kind == kind && entry.variableCount == variableCount)
            return entry.form;
    }
    return {};
}

bool IsEntryFormOpen(std::string_view context, EntryKind kind, int variableCount) {
    const std::string_view form = EntryForm(context, kind, variableCount);
    return !form.empty() && ui::Forms::Current().Find(form) != nullptr;
}

bool IsMixtureContext(std::string_view context) {
    return context == "Bin" || context == "Tern";
}

bool AllowsEntry(const PropertyRow& row, EntryKind kind, int variableCount,
                 std::string_view context) {
    if (context == "React") {
        // Codes of equilibrium constants begin so; all others are changes between two states.
        const bool isTable = row.Code.starts_with('K');
        const EntryKind its = isTable ? EntryKind::Table : EntryKind::Value;
        const int least = isTable ? 1 : 0, most = isTable ? 3 : 0;
        return row.REACT && kind == its && variableCount >= least && variableCount <= most;
    }
    if (IsMixtureContext(context)) {
        if (kind == EntryKind::Table) return variableCount >= 1 && variableCount <= 3 && row.MixV;
        // A single value of a property of tables is one at a stated temperature or pressure.
        return variableCount == 0 && (row.MixZ || row.MixV);
    }
    if (kind == EntryKind::Value)
        return variableCount == 0 ? row.Single : variableCount == 1 && row.Fixed;
    return variableCount == 1 ? row.One : variableCount == 2 && row.Two;
}

} // namespace vexora

// Which form takes the data of a property: by the context of the data, by whether a value or a
// table is entered, and by the number of variables. frmProperty leads on to it, and offers what
// suits it when it asks for a review.
// A table and no chain of questions: a new kind of data brings its row.
#pragma once

#include <string_view>

#include "reference/Vocabulary.h"

namespace vexora {

enum class EntryKind {
    Value, // one value, by itself or at fixed variables
    Table  // rows against variables
};

/// Name of the form for a context; empty where data of that kind cannot be entered.
/// A form that is named here may still be missing in an edition: ask Forms::Knows.
std::string_view EntryForm(std::string_view context, EntryKind kind, int variableCount);

/// Whether that form is the one that stands open.
bool IsEntryFormOpen(std::string_view context, EntryKind kind, int variableCount);

/// True for the data of binary and ternary mixtures.
bool IsMixtureContext(std::string_view context);

/// Whether the columns of the property let data of it be entered so. Pure data: a value at 0 or 1
/// fixed variables, a table against 1 or 2, as many as the phase rule leaves. Mixtures: a value, or
/// a table against 1 to 3. Reactions: a value of a property change, a table of an equilibrium
/// against 1 to 3.
bool AllowsEntry(const PropertyRow& row, EntryKind kind, int variableCount,
                 std::string_view context = "Pure");

} // namespace vexora

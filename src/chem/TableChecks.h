#pragma once

#include <string>
#include <utility>
#include <vector>

#include "chem/TableRows.h"
#include "reference/ReferenceDatabases.h"

namespace vexora {

// What must hold in the reference tables so that every code can be looked up both ways, every
// property can be entered, and every record can be exported. Each function looks at some tables
// and appends what it finds. The databases must be the installed ones: formulas are read with them.
// They are run on the tables as installed, not while data are entered: the dialogs trust the
// tables.

/// All rules over both databases. Throws DatabaseError when a table cannot be read.
RowRemarks CheckTables(const ReferenceDatabases& databases);

void CheckProperties(const Database& vocabulary, RowRemarks& findings);
/// Those that the rules know by code must be there; each has a group of the export.
void CheckVariables(const Database& vocabulary, RowRemarks& findings);
void CheckConversions(const Database& vocabulary, RowRemarks& findings);
void CheckPhases(const Database& vocabulary, RowRemarks& findings);
/// Methods of each property, and the statements that each method carries in a context.
void CheckMethods(const Database& vocabulary, RowRemarks& findings);
/// Journals, publishers, reactions, purification, purity determination.
void CheckLists(const Database& vocabulary, RowRemarks& findings);
void CheckAtomicMasses(const Database& vocabulary, RowRemarks& findings);
/// Registry numbers with their check digits, names, and formulas in canonical form.
void CheckCompounds(const Database& compounds, RowRemarks& findings);
/// Structure texts and keys, each of a compound and of its formula; the table may be missing.
void CheckIdentifiers(const Database& compounds, RowRemarks& findings);
/// Sources and authors; both tables may be empty.
void CheckSources(const Database& compounds, RowRemarks& findings);

/// True for the system units that properties and variables of the tables are kept in.
bool IsUnitOfTables(std::string_view unit);
/// Where the row names no such unit, or its export name does not end with it, that is told.
void CheckUnitAndExportName(TableRows& row);
/// A code goes into record lines and tags: no blank, none of the marks of a line.
void CheckCode(TableRows& row, const std::string& code);
/// Codes and texts that a list offers: filled, each once whatever the case.
void CheckListRow(TableRows& row, std::string_view codeField, std::string_view textField);

/// How much the tables hold: what is counted, and how many, in the order to print.
std::vector<std::pair<std::string, int>> CountTables(const ReferenceDatabases& databases);

} // namespace vexora

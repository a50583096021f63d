#include "reference/Schema.h"

#include "reference/Text.h"

namespace vexora {

namespace {

using enum ColumnType;

// Single, Fixed, One and Two open the ways to enter pure data, MixZ and MixV those of mixtures.
constexpr ColumnSchema PropertiesTable[] = {
    {"Code", Text},    {"Property", Text},    {"Unit", Text},      {"GROUP", Text},
    {"CONTEXT", Text}, {"IndVarFixed", Text}, {"PureAvail", Text}, {"MixtAvail", Text},
    {"MixZ", Flag},    {"MixV", Flag},        {"Single", Flag},    {"Fixed", Flag},
    {"One", Flag},     {"Two", Flag},         {"Bin", Flag},       {"Tern", Flag},
    {"REACT", Flag},   {"XMLNAME", Text}};
constexpr ColumnSchema PropertyGroupsTable[] = {
    {"GROUP", Text}, {"GroupName", Text}, {"XMLGroup", Text}, {"Pure", Flag},
    {"Bin", Flag},   {"Tern", Flag},      {"React", Flag}};
constexpr ColumnSchema IndVariablesTable[] = {
    {"IndVarCode", Text}, {"IndVariable", Text}, {"Unit", Text}, {"Constr", Flag},
    {"Pure", Flag},       {"Bin", Flag},         {"Tern", Flag}, {"XMLGroup", Text},
    {"XMLNAME", Text},    {"NeedSolvent", Flag}};
// A value times FACTOR is the value in Unit, the system unit.
constexpr ColumnSchema ConversionsTable[] = {
    {"ConversionCode", Text}, {"Conversion", Text}, {"Unit", Text}, {"FACTOR", Real}};
constexpr ColumnSchema PhasesTable[] = {{"Code", Text}, {"Phase", Text}, {"Pure", Flag},
                                        {"Bin", Flag},  {"Tern", Flag},  {"React", Flag},
                                        {"GH", Flag}};
constexpr ColumnSchema MethodsTable[] = {{"Code", Text}, {"MethodCode", Text}, {"Method", Text}};
constexpr ColumnSchema QuestionsTable[] = {
    {"Question", Text}, {"Method", Text}, {"Context", Text}, {"Key", Text}};
constexpr ColumnSchema ReactionsTable[] = {{"RCode", Text}, {"RType", Text}};
constexpr ColumnSchema JournalsTable[] = {{"ShortTitle", Text}, {"Title", Text}};
constexpr ColumnSchema PublishersTable[] = {{"Publisher", Text}};
constexpr ColumnSchema PurificationTable[] = {{"Code", Text}, {"Method", Text}};
constexpr ColumnSchema PurityDeterminationTable[] = {
    {"Code", Text}, {"Method", Text}, {"Rating", Integer}};
constexpr ColumnSchema Amass[] = {{"SYMBOL", Text}, {"AMASS", Real}};

// A compound has a row for each of its names.
// NEW marks what was added to it here.
constexpr ColumnSchema AllName[] = {
    {"RN", Integer}, {"NAME", Text}, {"FORMULA", Text}, {"NEW", Flag}};
// What other programs know a compound by, a row a number at most. These texts mind their case.
constexpr ColumnSchema IdentifiersTable[] = {
    {"RN", Integer}, {"InChI", ExactText}, {"InChIKey", ExactText}, {"SMILES", ExactText}};
constexpr ColumnSchema SourceRefInfo[] = {
    {"YEARPUB", Integer}, {"AUTHOR1", Text}, {"AUTHOR2", Text}, {"AUTHORN", Integer},
    {"SOURCE", Text},     {"TITLE", Text},   {"NEW", Flag}};
constexpr ColumnSchema SourceAuthor[] = {
    {"LASTNM", Text}, {"INITNM", Text}, {"FULLNM", Text}, {"NEW", Flag}};

} // namespace

constexpr std::array<TableSchema, 13> LocalTables{
    {{"Properties", PropertiesTable,
      "create index PropertiesCode on Properties(Code);"
      "create index PropertiesGroup on Properties(\"GROUP\")"},
     {"PropertyGroups", PropertyGroupsTable, ""},
     {"IndVariables", IndVariablesTable, ""},
     {"Conversions", ConversionsTable,
      "create index ConversionsCode on Conversions(ConversionCode);"
      "create index ConversionsUnit on Conversions(Unit);"
      "create index ConversionsText on Conversions(Conversion)"},
     {"Phases", PhasesTable, ""},
     {"Methods", MethodsTable, "create index MethodsCode on Methods(Code)"},
     {"Questions", QuestionsTable, ""},
     {"Reactions", ReactionsTable, ""},
     {"Journals", JournalsTable, ""},
     {"Publishers", PublishersTable, ""},
     {"Purification", PurificationTable, ""},
     {"PurityDetermination", PurityDeterminationTable, ""},
     {"AMASS", Amass, ""}}};

constexpr std::array<TableSchema, 4> CompoundTables{
    {{"ALLNAME", AllName,
      "create index AllNameRN on ALLNAME(RN);"
      "create index AllNameName on ALLNAME(NAME)"},
     {"Identifiers", IdentifiersTable, "create unique index IdentifiersRN on Identifiers(RN)"},
     {"SOURCE_REFINFO", SourceRefInfo,
      "create index SourceYear on SOURCE_REFINFO(YEARPUB, AUTHOR1)"},
     {"SOURCE_AUTHOR", SourceAuthor, "create index AuthorName on SOURCE_AUTHOR(LASTNM)"}}};

namespace {

std::string_view SqlType(ColumnType type) {
    switch (type) {
    case Text:
        // Names are typed in any case; look-ups of codes compare again with exact case.
        return "text collate nocase";
    case ExactText:
        return "text";
    case Integer:
        return "integer";
    case Flag:
        return "integer not null default 0";
    case Real:
        return "real";
    }
    return "";
}

} // namespace

std::optional<ColumnSchema> FindColumn(const TableSchema& table, std::string_view name) {
    for (const ColumnSchema& column : table.columns)
        if (EqualNoCase(column.name, name)) return column;
    return std::nullopt;
}

void CreateTables(Database& database, std::span<const TableSchema> tables) {
    for (const TableSchema& table : tables) {
        std::string columns;
        for (const ColumnSchema& column : table.columns) {
            if (!columns.empty()) columns += ", ";
            columns += '"' + std::string(column.name) + "\" ";
            columns += SqlType(column.type);
        }
        database.Execute("create table " + std::string(table.name) + " (" + columns + ")");
    }
}

void CreateIndexes(Database& database, std::span<const TableSchema> tables) {
    for (const TableSchema& table : tables)
        for (const std::string& statement : Split(table.indexes, ';'))
            if (!statement.empty()) database.Execute(statement);
}

} // namespace vexora

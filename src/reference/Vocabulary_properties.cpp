#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "reference/VocabularyQuery.h"

namespace vexora {

namespace {

constexpr std::string_view kByCode =
    "select * from Properties where Code=? collate binary order by rowid";
constexpr std::string_view kByName = "select * from Properties where Property=? order by rowid";

PropertyRow ReadProperty(const Recordset& row) {
    PropertyRow property;
    property.Code = row.Text("Code");
    property.Property = row.Text("Property");
    property.Unit = row.Text("Unit");
    property.GROUP = row.Text("GROUP");
    property.CONTEXT = row.Text("CONTEXT");
    property.IndVarFixed = row.Text("IndVarFixed");
    property.PureAvail = row.Text("PureAvail");
    property.MixtAvail = row.Text("MixtAvail");
    property.XMLNAME = row.Text("XMLNAME");
    property.MixZ = row.Flag("MixZ");
    property.MixV = row.Flag("MixV");
    property.Single = row.Flag("Single");
    property.Fixed = row.Flag("Fixed");
    property.One = row.Flag("One");
    property.Two = row.Flag("Two");
    property.REACT = row.Flag("REACT");
    return property;
}

bool OpenForPure(const Recordset& row) {
    return row.Flag("Single") || row.Flag("Fixed") || row.Flag("One") || row.Flag("Two");
}

bool PropertyOffered(const Recordset& row, std::string_view context) {
    const std::string_view column = ContextColumn(context);
    if (column == "Pure") return OpenForPure(row);
    if (column == "React") return row.Flag("REACT");
    if (column.empty()) return true;
    return row.Flag(column) && (row.Flag("MixZ") || row.Flag("MixV"));
}

/// How well a row fits, 0 best.
int Misfit(const Recordset& row, std::string_view context, std::string_view propertyContext) {
    const std::string own = row.Text("CONTEXT");
    if (!PropertyOffered(row, context)) return 3;
    if (EqualNoCase(own, propertyContext)) return 0;
    return own.empty() ? 1 : 2;
}

std::optional<PropertyRow> BestProperty(std::string_view sql, std::string_view value,
                                        std::string_view context,
                                        std::string_view propertyContext) {
    std::optional<PropertyRow> best;
    int least = 4;
    std::optional<Recordset> rows = LocalRows(sql, {value});
    for (; rows && !rows->IsEnd() && least > 0; rows->MoveNext()) {
        const int misfit = Misfit(*rows, context, propertyContext);
        if (misfit >= least) continue;
        least = misfit;
        best = ReadProperty(*rows);
    }
    return best;
}

/// `column` of the first row with this code whose flag `mode` is set; the mode must be one of those
/// listed.
std::string TextWhere(std::string_view code, std::string_view mode, std::string_view modes,
                      std::string_view column) {
    if (mode.empty() ||
        (" " + std::string(modes) + " ").find(" " + std::string(mode) + " ") == std::string::npos)
        return {};
    std::optional<Recordset> rows = LocalRows(kByCode, {code});
    for (; rows && !rows->IsEnd(); rows->MoveNext())
        if (rows->Flag(mode)) return rows->Text(column);
    return {};
}

std::string LetterByPhase(std::string_view propertyClass, std::string_view phase1) {
    const std::string letter(propertyClass.substr(0, 1));
    return phase1 == "L" || phase1 == "G" ? letter : LowerAscii(letter);
}

} // namespace

std::optional<PropertyRow> FindProperty(std::string_view code, std::string_view context,
                                        std::string_view propertyContext) {
    return BestProperty(kByCode, code, context, propertyContext);
}

std::optional<PropertyRow> FindPropertyByName(std::string_view name, std::string_view context) {
    return BestProperty(kByName, name, context, {});
}

std::vector<PropertyGroupRow> PropertyGroups(std::string_view context) {
    std::vector<PropertyGroupRow> groups;
    std::optional<Recordset> rows = LocalRows("select * from PropertyGroups order by rowid");
    for (; rows && !rows->IsEnd(); rows->MoveNext())
        if (IsOffered(*rows, context))
            groups.push_back(
                {rows->Text("GROUP"), rows->Text("GroupName"), rows->Text("XMLGroup")});
    return groups;
}

std::vector<PropertyRow> PropertiesOfGroup(std::string_view group, std::string_view context) {
    std::vector<PropertyRow> properties;
    std::optional<Recordset> rows =
        LocalRows("select * from Properties where \"GROUP\"=? order by rowid", {group});
    for (; rows && !rows->IsEnd(); rows->MoveNext())
        if (PropertyOffered(*rows, context)) properties.push_back(ReadProperty(*rows));
    return properties;
}

std::string PropertyCode(std::string_view name) {
    return FindPropertyByName(name).value_or(PropertyRow()).Code;
}

std::string PropertyName(std::string_view code, std::string_view context,
                         std::string_view propertyContext) {
    return FindProperty(code, context, propertyContext).value_or(PropertyRow()).Property;
}

bool PropertyValid(std::string_view code) {
    std::optional<Recordset> rows = LocalRows(kByCode, {code});
    for (; rows && !rows->IsEnd(); rows->MoveNext())
        if (OpenForPure(*rows)) return true;
    return false;
}

std::string DefaultUnit(std::string_view name) {
    if (const auto property = FindPropertyByName(name)) return property->Unit;
    return FindVariableByName(name).value_or(VariableRow()).Unit;
}

std::string PureAvailable(std::string_view code, std::string_view mode) {
    return TextWhere(code, mode, "Single Fixed One Two", "PureAvail");
}

std::string MixtureAvailable(std::string_view code, std::string_view mode) {
    return TextWhere(code, mode, "MixZ MixV", "MixtAvail");
}

std::string IndVarFixed(std::string_view code) {
    std::string variable = TextWhere(code, "Fixed", "Fixed", "IndVarFixed");
    if (variable.empty()) variable = TextWhere(code, "One", "One", "IndVarFixed");
    return variable.empty() ? "T" : variable;
}

std::optional<std::string> PureLetter(std::string_view propertyClass, bool onBoundary,
                                      std::string_view phase1) {
    const bool fluid = phase1 == "L" || phase1 == "G" || phase1 == "FL";
    const std::string_view c = propertyClass;
    if (c == "NN" || c == "FF" || c == "GG") return LetterByPhase(c, phase1);
    if (c == "DD") return onBoundary ? (fluid ? "V" : "v") : LetterByPhase(c, phase1);
    if (c == "HH") return onBoundary ? (fluid ? "l" : "") : LetterByPhase(c, phase1);
    if (c == "AA" || c == "YY" || c == "PP") return phase1 == "G" ? "P" : fluid ? "S" : "s";
    if (c == "EE" || c == "II" || c == "WW" || c == "ZZ" || c == "XX") return "";
    return std::nullopt;
}

std::vector<MethodRow> MethodsOf(std::string_view propertyCode) {
    std::vector<MethodRow> methods;
    std::optional<Recordset> rows = LocalRows(
        "select * from Methods where Code=? collate binary order by rowid", {propertyCode});
    for (; rows && !rows->IsEnd(); rows->MoveNext())
        methods.push_back({rows->Text("MethodCode"), rows->Text("Method")});
    return methods;
}

std::string MethodCode(std::string_view name, std::string_view propertyCode) {
    return LocalText("select MethodCode from Methods where Method=? and Code=? collate binary"
                     " order by rowid",
                     {name, propertyCode}, "MethodCode");
}

std::vector<QuestionRow> Questions(std::string_view method, std::string_view context) {
    std::vector<QuestionRow> questions;
    std::optional<Recordset> rows = LocalRows(
        "select * from Questions where Method=? collate binary and Context=? order by rowid",
        {method, context});
    for (; rows && !rows->IsEnd(); rows->MoveNext())
        questions.push_back({rows->Text("Question"), rows->Text("Key")});
    return questions;
}

} // namespace vexora

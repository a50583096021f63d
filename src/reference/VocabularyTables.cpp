#include "reference/VocabularyTables.h"

namespace vexora {

namespace {

ContextFlags ReadContexts(const Recordset& row) {
    return {row.Flag("Pure"), row.Flag("Bin"), row.Flag("Tern"), row.Flag("React"), row.Flag("GH")};
}

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
    property.Offered = ReadContexts(row);
    return property;
}

PropertyGroupRow ReadPropertyGroup(const Recordset& row) {
    return {row.Text("GROUP"), row.Text("GroupName"), row.Text("XMLGroup"), ReadContexts(row)};
}

VariableRow ReadVariable(const Recordset& row) {
    VariableRow variable;
    variable.IndVarCode = row.Text("IndVarCode");
    variable.IndVariable = row.Text("IndVariable");
    variable.Unit = row.Text("Unit");
    variable.XMLGroup = row.Text("XMLGroup");
    variable.XMLNAME = row.Text("XMLNAME");
    variable.Constr = row.Flag("Constr");
    variable.NeedSolvent = row.Flag("NeedSolvent");
    variable.Offered = ReadContexts(row);
    return variable;
}

ConversionRow ReadConversion(const Recordset& row) {
    return {row.Text("ConversionCode"), row.Text("Conversion"), row.Text("Unit"),
            row.Number("FACTOR")};
}

PhaseRow ReadPhase(const Recordset& row) {
    return {row.Text("Code"), row.Text("Phase"), ReadContexts(row)};
}

MethodOfProperty ReadMethod(const Recordset& row) {
    return {row.Text("Code"), {row.Text("MethodCode"), row.Text("Method")}};
}

QuestionOfMethod ReadQuestion(const Recordset& row) {
    return {row.Text("Method"), row.Text("Context"), {row.Text("Question"), row.Text("Key")}};
}

ReactionRow ReadReaction(const Recordset& row) {
    return {row.Text("RCode"), row.Text("RType")};
}

SampleMethodRow ReadSampleMethod(const Recordset& row) {
    return {row.Text("Code"), row.Text("Method"), static_cast<int>(row.Integer("Rating"))};
}

ElementRow ReadElement(const Recordset& row) {
    return {row.Text("SYMBOL"), row.Number("AMASS")};
}

TitleRow ReadJournal(const Recordset& row) {
    return {row.Text("ShortTitle")};
}

TitleRow ReadPublisher(const Recordset& row) {
    return {row.Text("Publisher")};
}

} // namespace

// The codes of conversions count with their case too, but only behind the look-up: a code that is
// there in another case is not one that is missing.
VocabularyTables::VocabularyTables()
    : Properties("Properties", ReadProperty,
                 {{"Code", &PropertyRow::Code, true},
                  {"Property", &PropertyRow::Property, false},
                  {"GROUP", &PropertyRow::GROUP, false}}),
      PropertyGroups("PropertyGroups", ReadPropertyGroup,
                     {{"GROUP", &PropertyGroupRow::GROUP, false}}),
      IndVariables("IndVariables", ReadVariable,
                   {{"IndVarCode", &VariableRow::IndVarCode, true},
                    {"IndVariable", &VariableRow::IndVariable, false}}),
      Conversions("Conversions", ReadConversion,
                  {{"ConversionCode", &ConversionRow::ConversionCode, false},
                   {"Conversion", &ConversionRow::Conversion, true},
                   {"Unit", &ConversionRow::Unit, true}}),
      Phases("Phases", ReadPhase,
             {{"Code", &PhaseRow::Code, true}, {"Phase", &PhaseRow::Phase, false}}),
      Methods("Methods", ReadMethod, {{"Code", &MethodOfProperty::Code, true}}),
      Questions("Questions", ReadQuestion, {{"Method", &QuestionOfMethod::Method, true}}),
      Reactions("Reactions", ReadReaction,
                {{"RCode", &ReactionRow::RCode, true}, {"RType", &ReactionRow::RType, false}}),
      Purification(
          "Purification", ReadSampleMethod,
          {{"Code", &SampleMethodRow::Code, true}, {"Method", &SampleMethodRow::Method, false}}),
      PurityDetermination(
          "PurityDetermination", ReadSampleMethod,
          {{"Code", &SampleMethodRow::Code, true}, {"Method", &SampleMethodRow::Method, false}}),
      Elements("AMASS", ReadElement, {{"SYMBOL", &ElementRow::SYMBOL, true}}),
      Journals("Journals", ReadJournal, {{"ShortTitle", &TitleRow::Title, false}}),
      Publishers("Publishers", ReadPublisher, {{"Publisher", &TitleRow::Title, false}}) {}

VocabularyTables* CurrentTables() {
    ReferenceDatabases* databases = CurrentDatabases();
    if (!databases || !databases->LocalDb.IsOpen()) return nullptr;
    std::shared_ptr<VocabularyTables>& tables = databases->Tables;
    // Pointers to rows that were handed out before end here.
    if (!tables || tables->Edition != databases->LocalDb.Edition()) {
        tables = std::make_shared<VocabularyTables>();
        tables->Edition = databases->LocalDb.Edition();
    }
    return tables.get();
}

} // namespace vexora

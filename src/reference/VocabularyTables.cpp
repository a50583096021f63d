#include "reference/VocabularyTables.h"

namespace vexora {

// The codes of conversions count with their case too, but only behind the look-up: a code that is
// there in another case is not one that is missing.
VocabularyTables::VocabularyTables()
    : Properties("Properties", {{"Code", &PropertyRow::Code, LookUp::Exact},
                                {"Property", &PropertyRow::Property, LookUp::AnyCase},
                                {"Unit", &PropertyRow::Unit},
                                {"GROUP", &PropertyRow::GROUP, LookUp::AnyCase},
                                {"CONTEXT", &PropertyRow::CONTEXT},
                                {"IndVarFixed", &PropertyRow::IndVarFixed},
                                {"PureAvail", &PropertyRow::PureAvail},
                                {"MixtAvail", &PropertyRow::MixtAvail},
                                {"XMLNAME", &PropertyRow::XMLNAME},
                                {"MixZ", &PropertyRow::MixZ},
                                {"MixV", &PropertyRow::MixV},
                                {"Single", &PropertyRow::Single},
                                {"Fixed", &PropertyRow::Fixed},
                                {"One", &PropertyRow::One},
                                {"Two", &PropertyRow::Two},
                                {"REACT", &PropertyRow::REACT},
                                {"", &PropertyRow::Offered}}),
      PropertyGroups("PropertyGroups", {{"GROUP", &PropertyGroupRow::GROUP, LookUp::AnyCase},
                                        {"GroupName", &PropertyGroupRow::GroupName},
                                        {"XMLGroup", &PropertyGroupRow::XMLGroup},
                                        {"", &PropertyGroupRow::Offered}}),
      IndVariables("IndVariables", {{"IndVarCode", &VariableRow::IndVarCode, LookUp::Exact},
                                    {"IndVariable", &VariableRow::IndVariable, LookUp::AnyCase},
                                    {"Unit", &VariableRow::Unit},
                                    {"XMLGroup", &VariableRow::XMLGroup},
                                    {"XMLNAME", &VariableRow::XMLNAME},
                                    {"Constr", &VariableRow::Constr},
                                    {"NeedSolvent", &VariableRow::NeedSolvent},
                                    {"", &VariableRow::Offered}}),
      Conversions("Conversions",
                  {{"ConversionCode", &ConversionRow::ConversionCode, LookUp::AnyCase},
                   {"Conversion", &ConversionRow::Conversion, LookUp::Exact},
                   {"Unit", &ConversionRow::Unit, LookUp::Exact},
                   {"FACTOR", &ConversionRow::FACTOR}}),
      Phases("Phases", {{"Code", &PhaseRow::Code, LookUp::Exact},
                        {"Phase", &PhaseRow::Phase, LookUp::AnyCase},
                        {"", &PhaseRow::Offered}}),
      Methods("Methods", {{"Code", &MethodOfProperty::Code, LookUp::Exact},
                          {"MethodCode", &MethodOfProperty::MethodCode},
                          {"Method", &MethodOfProperty::Method}}),
      Questions("Questions", {{"Method", &QuestionOfMethod::Method, LookUp::Exact},
                              {"Context", &QuestionOfMethod::Context},
                              {"Question", &QuestionOfMethod::Question},
                              {"Key", &QuestionOfMethod::Key}}),
      Reactions("Reactions", {{"RCode", &ReactionRow::RCode, LookUp::Exact},
                              {"RType", &ReactionRow::RType, LookUp::AnyCase}}),
      Purification("Purification", {{"Code", &SampleMethodRow::Code, LookUp::Exact},
                                    {"Method", &SampleMethodRow::Method, LookUp::AnyCase}}),
      PurityDetermination("PurityDetermination",
                          {{"Code", &SampleMethodRow::Code, LookUp::Exact},
                           {"Method", &SampleMethodRow::Method, LookUp::AnyCase},
                           {"Rating", &SampleMethodRow::Rating}}),
      Elements("AMASS",
               {{"SYMBOL", &ElementRow::SYMBOL, LookUp::Exact}, {"AMASS", &ElementRow::AMASS}}) {}

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

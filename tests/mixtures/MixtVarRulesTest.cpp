#include "mixtures/MixtVarRules.h"

#include "support/DataDialogFixture.h"

#include <gtest/gtest.h>

#include <functional>

namespace vexora::test {
namespace {

/// A density of a ternary along its boiling curve, all of it stated.
MixtVarDraft Ternary() {
    MixtVarDraft draft;
    draft.context = "Tern";
    draft.property = "VDN";
    draft.unit = "S";
    draft.method = "UNKNOWN";
    draft.hasSample = {true, true, true};
    draft.phaseCount = 2;
    draft.constraintCount = 1;
    draft.phases = {"L", "G"};
    draft.constraints = {{"P", "kPa", "L", "101.325"}};
    draft.variables = {{"T", "K", "L"}, {"X1", "Dimensionless", "L"}};
    draft.function = "DIR";
    draft.numerical = "Y";
    return draft;
}

std::string Told(const MixtVarDraft& draft) {
    const auto findings = CheckMixtVar(draft);
    if (findings.empty()) return {};
    const MixtVarFinding& first = findings.front();
    return std::to_string(static_cast<int>(first.field)) + "(" + std::to_string(first.index) +
           "): " + first.text + (first.asks ? " [asks]" : "");
}

std::string Expected(MixtVarField field, const std::string& text, int index = 0) {
    return std::to_string(static_cast<int>(field)) + "(" + std::to_string(index) + "): " + text;
}

class MixtVarRulesTest : public DataDialogFixture {};

struct Fault {
    MixtVarField field;
    std::string text;
    std::function<void(MixtVarDraft&)> make;
    int index = 0;
};

/// Findings with what brings them about in a sound draft, in the order in which they are told:
/// those about what stands on the form, then those about what it means.
std::vector<Fault> FaultsOfChoices() {
    using enum MixtVarField;
    const std::string noSolvents = "Sorry, composition variables associated with solvent "
                                   "definition are not allowed for excess properties";
    return {
        {Method, "Please select experimental method", [](auto& d) { d.method = "EBULLIO"; }},
        {PhaseCount, "Select the number of phases in equilibrium",
         [](auto& d) { d.phaseCount = MixtVarDraft::NotChosen; }},
        {PhaseCount, "Surface/Interfacial tension must involve two phases",
         [](auto& d) {
             d.property = "IIT";
             d.phaseCount = 1;
         }},
        {ConstraintCount,
         "Select the number of constraints (special conditions like critical, or fixed state "
         "variables)",
         [](auto& d) { d.constraintCount = MixtVarDraft::NotChosen; }},
        {ConstraintCount,
         "Select the number of constraints (special conditions like critical, or fixed state "
         "variables)",
         [](auto& d) {
             d.phaseCount = 1; // four variables
             d.constraintCount = 0;
         }},
        {ConstraintCount, "Overdetermined system", [](auto& d) { d.constraintCount = 3; }},
        {Phase, "Select the primary phase", [](auto& d) { d.phases[0].clear(); }},
        {Phase, "Select phase 2", [](auto& d) { d.phases[1].clear(); }, 1},
        {Variable, noSolvents,
         [](auto& d) {
             d.property = "HEX";
             d.variables[1].code = "M1";
         },
         1},
        {Phase, "Duplicate phase", [](auto& d) { d.phases[1] = "L"; }, 1},
        {Variable, "Duplicate variable",
         [](auto& d) {
             d.variables[1] = {"T", "C", "G"};
         },
         1},
        {Variable, "Duplicate variable", [](auto& d) { d.variables[0].code = "P"; }},
        {Constraint, "Duplicate variable", [](auto& d) { d.property = "P"; }},
        {Variable,
         "No composition variable is associated with a component activity\nIs that all right? "
         "[asks]",
         [](auto& d) {
             d.property = "AC2";
             d.standardState = "P";
         }},
        {Sample, "Select sample # for component", [](auto& d) { d.hasSample[1] = false; }, 1},
        {Constraint, "Select constraint", [](auto& d) { d.constraints[0].code.clear(); }},
        {ConstraintUnit, "Select units for constraint 1",
         [](auto& d) { d.constraints[0].unit.clear(); }},
        {ConstraintValue, "Enter constraint 1 value",
         [](auto& d) { d.constraints[0].value.clear(); }},
        {ConstraintValue, "Enter valid constraint 1 value",
         [](auto& d) { d.constraints[0].value = "one"; }},
        {Variable, "Select independent variable", [](auto& d) { d.variables[1].code.clear(); }, 1},
        {VariableUnit, "Select units for independent variable",
         [](auto& d) { d.variables[1].unit.clear(); }, 1},
        {Constant, "Enter a constant value of the state variable Wavelength",
         [](auto& d) { d.property = "RIX"; }},
    };
}

std::vector<Fault> FaultsOfMeaning() {
    using enum MixtVarField;
    const std::string inconsistent =
        "Solvent composition is inconsistent with one variable or property\n";
    return {
        {RefPhase, "Select the initial phase of solute",
         [](auto& d) {
             d.property = "HSL";
             d.solvent = "E";
         }},
        {Function, "Define Measurement Results", [](auto& d) { d.function.clear(); }},
        {Function, "This property should be stored as a difference",
         [](auto& d) { d.property = "G"; }},
        {Relation, "Select Relation to the Reference State", [](auto& d) { d.function = "D"; }},
        {RefPhase, "Select Reference Phase",
         [](auto& d) {
             d.function = "D";
             d.relation = "FR";
         }},
        {RefTemp, "Select Reference Temperature",
         [](auto& d) {
             d.function = "R";
             d.relation = "PF";
             d.refPhase = "L";
         }},
        {RefPressure, "Select Reference Pressure",
         [](auto& d) {
             d.function = "K";
             d.relation = "TF";
             d.refPhase = "L";
         }},
        {VariablePhase, "Select phase for variable 2", [](auto& d) { d.variables[1].phase = ""; },
         1},
        {Solvent,
         "Select the solvent or solvent composition\n"
         "The property or state variables need a solvent definition",
         [](auto& d) { d.property = "VA"; }},
        {Solvent, "Sorry, solvent definition is not allowed for excess properties",
         [](auto& d) {
             d.property = "VEX";
             d.solvent = "C";
         }},
        {StandardState, "Select the standard state", [](auto& d) { d.property = "AP1"; }},
        {Solvent, inconsistent + "It contains a component defined as a solute",
         [](auto& d) {
             d.variables[1].code = "M1";
             d.solvent = "C";
         }},
        {Solvent, inconsistent + "Or does not contain a specified solvent component",
         [](auto& d) {
             d.variables[1].code = "X1S";
             d.solvent = "E";
         }},
        {Variable, "Duplicate component content in the same phase",
         [](auto& d) { d.property = "X1"; }, 1},
        {Variable, "Are you sure you want to use composition variables of different types? [asks]",
         [](auto& d) {
             d.variables[0] = {"W2", "Dimensionless", "L"};
         },
         1},
        {Method,
         "Consider revision of property selection to mass basis or numerical values to mole "
         "basis\nSorry, this conversion is not supported",
         [](auto& d) {
             d.property = "HA";
             d.solvent = "E";
             d.unit = "G";
         }},
        {Numerical, "Select availability of numeric data", [](auto& d) { d.numerical.clear(); }},
    };
}

std::vector<Fault> Faults() {
    std::vector<Fault> faults = FaultsOfChoices();
    const std::vector<Fault> others = FaultsOfMeaning();
    faults.insert(faults.end(), others.begin(), others.end());
    return faults;
}

TEST_F(MixtVarRulesTest, EachFaultIsToldByItselfAtItsField) {
    EXPECT_EQ(Told(Ternary()), "");
    for (const Fault& fault : Faults()) {
        MixtVarDraft draft = Ternary();
        fault.make(draft);
        EXPECT_EQ(Told(draft), Expected(fault.field, fault.text, fault.index));
    }
}

TEST_F(MixtVarRulesTest, OfTwoFaultsTheEarlierOneIsToldFirst) {
    const std::vector<Fault> faults = Faults();
    int pairs = 0;
    for (std::size_t later = 0; later < faults.size(); ++later) {
        for (std::size_t earlier = 0; earlier < later; ++earlier) {
            MixtVarDraft both = Ternary();
            faults[later].make(both);
            faults[earlier].make(both);
            const auto findings = CheckMixtVar(both);
            const auto place = [&](const Fault& fault) {
                return std::ranges::find_if(findings, [&](const MixtVarFinding& one) {
                    return one.field == fault.field && fault.text.starts_with(one.text);
                });
            };
            // One may undo what the other has made.
            if (place(faults[later]) == findings.end()) continue;
            if (place(faults[earlier]) == findings.end()) continue;
            if (faults[earlier].text == faults[later].text) continue;
            EXPECT_LT(place(faults[earlier]), place(faults[later]))
                << faults[earlier].text << " | " << faults[later].text;
            ++pairs;
        }
    }
    EXPECT_GT(pairs, 400);
}

TEST_F(MixtVarRulesTest, AContentMayStandInEachPhaseOnce) {
    MixtVarDraft draft = Ternary();
    draft.property = "T";
    draft.variables = {{"X1", "Dimensionless", "L"}, {"X1", "Dimensionless", "G"}};
    EXPECT_EQ(Told(draft), "");
    draft.variables[1].phase = "L";
    EXPECT_EQ(Told(draft), Expected(MixtVarField::Variable, "Duplicate variable", 1));
    draft.variables[1].code = "W1";
    EXPECT_EQ(Told(draft),
              Expected(MixtVarField::Variable, "Duplicate component content in the same phase", 1));
}

TEST_F(MixtVarRulesTest, ACriticalCurveHasNeitherUnitNorValue) {
    MixtVarDraft draft = Ternary();
    draft.constraints = {{"CUL", "", "L"}};
    EXPECT_EQ(Told(draft), "");
}

TEST_F(MixtVarRulesTest, OnlyWhatTheTablesAllowIsOffered) {
    const auto names = [](const std::vector<VariableRow>& rows) {
        std::string text;
        for (const VariableRow& row : rows)
            text += row.IndVarCode + " ";
        return text;
    };
    const std::string binary = names(OfferMixtureVariables("VDN", "Bin", false));
    EXPECT_EQ(binary.find("X3"), std::string::npos);
    EXPECT_EQ(binary.find("X1S"), std::string::npos);
    EXPECT_NE(names(OfferMixtureVariables("VDN", "Tern", false)).find("X3 "), std::string::npos);
    EXPECT_EQ(names(OfferMixtureVariables("T", "Bin", true)).find("T "), std::string::npos);
    EXPECT_EQ(names(OfferMixtureVariables("VEX", "Bin", false)).find("M1"), std::string::npos);
    EXPECT_NE(names(OfferMixtureVariables("P", "Bin", true)).find("AZ "), std::string::npos);
    EXPECT_EQ(names(OfferMixtureVariables("P", "Bin", false)).find("AZ "), std::string::npos);
    EXPECT_EQ(OfferPhasesOfSet("VVB", "Bin"), std::vector<std::string>{"G"});
    EXPECT_EQ(OfferPhaseCounts("IST", "Tern"), std::vector<std::string>{"2"});
    const auto phases = OfferPhasesOfSet("VDN", "Bin");
    EXPECT_EQ(std::ranges::count(phases, "L3") + std::ranges::count(phases, "CUL"), 0);
    EXPECT_EQ(SolventTexts("Bin").size(), 2U);
}

TEST_F(MixtVarRulesTest, WhatCanOnlyBeOneThingFollows) {
    MixtVarDraft binary;
    binary.property = "PHx"; // of either component
    EXPECT_EQ(SolventOfBinary(binary), "");
    binary.variables = {{"M2", "mol/kg", "L"}};
    EXPECT_EQ(SolventOfBinary(binary), "1");
    binary.constraints = {{"Q1", "per cent", "L", "1"}};
    EXPECT_EQ(SolventOfBinary(binary), "");
    MixtVarDraft ternary = Ternary();
    ternary.variables[1].code = "M1";
    EXPECT_EQ(SolventOfBinary(ternary), "");
    EXPECT_TRUE(CanBeOf("X1", "C")); // which may be mixed
    EXPECT_FALSE(CanBeOf("X1", "Cp1"));
    EXPECT_TRUE(CanBeOf("VDN", "Cp1"));
    EXPECT_FALSE(CanBeOf("P1", "L"));
}

TEST_F(MixtVarRulesTest, PhasesAndConstraintsLeaveVariablesByThePhaseRule) {
    EXPECT_EQ(ConstraintsFor(1, 1, "Bin"), 2);
    EXPECT_EQ(ConstraintsFor(1, 2, "Bin"), 1);
    EXPECT_EQ(ConstraintsFor(3, 2, "Bin"), MixtVarDraft::NotChosen);
    EXPECT_EQ(ConstraintsFor(3, 1, "Tern"), 1);
    MixtVarDraft draft;
    draft.context = "Tern";
    draft.phaseCount = 2;
    EXPECT_EQ(draft.VariableCount(), MixtVarDraft::NotChosen);
    draft.constraintCount = 2;
    EXPECT_EQ(draft.VariableCount(), 1);
}

} // namespace
} // namespace vexora::test

#include "pure/TwoRules.h"

#include "support/DataDialogFixture.h"

#include <gtest/gtest.h>

#include <functional>

namespace vexora::test {
namespace {

/// A density at saturation, all of it stated.
TwoDraft Saturated() {
    TwoDraft draft;
    draft.property = "VDN";
    draft.hasSample = true;
    draft.variable1 = "T";
    draft.unit1 = "K";
    draft.function = "DIR";
    draft.constraint = "PB";
    draft.phase1 = "L";
    draft.phase2 = "G";
    draft.numerical = "Y";
    return draft;
}

/// A density of one phase against two variables.
TwoDraft OnePhase() {
    TwoDraft draft = Saturated();
    draft.nVar = 2;
    draft.variable2 = "P";
    draft.unit2 = "MPa";
    draft.constraint = "FP";
    draft.phase2.clear();
    return draft;
}

std::string Told(const TwoDraft& draft) {
    std::string text;
    for (const TwoFault& fault : CheckTwo(draft))
        text += (text.empty() ? "" : " | ") + fault.text;
    return text;
}

struct Fault {
    TwoField field;
    std::string text;
    std::function<void(TwoDraft&)> make;
    bool two = false;
};

TEST(TwoRulesTest, EachFaultIsToldByItself) {
    const std::string units = "Select Independent Variable Units";
    const std::string limits = "Lower/Upper variables must be consistent";
    const auto spectral = [](TwoDraft& d, const char* property) {
        d.property = property;
        d.variable2 = "VM";
    };
    const auto between = [](TwoDraft& d, const char* upper, const char* lower, const char* f) {
        d.variable1 = upper;
        d.variable2 = lower;
        d.function = f;
    };
    const auto relative = [](TwoDraft& d, const char* f, const char* relation) {
        d.function = f;
        d.relation = relation;
        d.refPhase = "C";
    };
    const Fault faults[] = {
        {TwoField::Sample, "Select Sample", [](auto& d) { d.hasSample = false; }},
        {TwoField::Variable1, "Select Independent Variable 1", [](auto& d) { d.variable1 = ""; }},
        {TwoField::Unit1, units, [](auto& d) { d.unit1 = ""; }},
        {TwoField::Variable2, "Select Independent Variable 2", [](auto& d) { d.variable2 = ""; },
         true},
        {TwoField::Unit2, units, [](auto& d) { d.unit2 = ""; }, true},
        {TwoField::Variable1, "Please select Frequency as one of the variables",
         [&](auto& d) {
             spectral(d, "RPX");
             d.constant = "101.325";
         },
         true},
        {TwoField::Variable1, "Please select Wavelength as one of the variables",
         [&](auto& d) {
             spectral(d, "RIX");
             d.constant = "101.325";
         },
         true},
        {TwoField::Constant, "Enter a constant value of the state variable Wavelength",
         [](auto& d) { d.property = "RIX"; }, true},
        {TwoField::Constant, "Enter a constant value of the state variable Temperature",
         [](auto& d) {
             d.variable1 = "P";
             d.constant = "ten";
         }},
        {TwoField::Function, "Define Measurement Results", [](auto& d) { d.function = ""; }},
        {TwoField::Function, "This property should be stored as a difference",
         [](auto& d) { d.property = "UA"; }},
        {TwoField::Relation, "Select Relation to Reference", [](auto& d) { d.function = "K"; }},
        {TwoField::RefPhase, "Select Reference Phase",
         [&](auto& d) {
             relative(d, "D", "TP");
             d.refPhase = "";
         }},
        {TwoField::Variable2, limits, [](auto& d) { d.variable1 = "TU"; }, true},
        {TwoField::Variable1, limits, [&](auto& d) { between(d, "PL", "TU", "MN"); }, true},
        {TwoField::Variable1, limits, [](auto& d) { d.function = "DT"; }},
        {TwoField::Function, "Definition of Results must be Difference or Mean between TU and TL",
         [&](auto& d) { between(d, "TL", "TU", "DX"); }, true},
        {TwoField::Function, "Definition of Results must be Difference between PU and PL",
         [&](auto& d) { between(d, "PU", "PL", "MN"); }, true},
        {TwoField::RefTemp, "Select Reference Temperature",
         [&](auto& d) { relative(d, "R", "PF"); }},
        {TwoField::RefPressure, "Select Reference Pressure",
         [&](auto& d) { relative(d, "D", "TF"); }},
        {TwoField::Constraint, "Select the Constraint", [](auto& d) { d.constraint = ""; }},
        {TwoField::Constraint, "Overdetermined system",
         [](auto& d) {
             d.constraint = "PB";
             d.phase2 = "G";
         },
         true},
        {TwoField::Phase1, "Select Phase 1", [](auto& d) { d.phase1 = ""; }},
        {TwoField::Phase2, "Select Phase 2", [](auto& d) { d.phase2 = ""; }},
        {TwoField::Phase2, "Duplicate phase", [](auto& d) { d.phase2 = "L"; }},
        {TwoField::Variable2, "Duplicate variable", [](auto& d) { d.variable2 = "T"; }, true},
        {TwoField::Numerical, "Select availability of numeric data",
         [](auto& d) { d.numerical = ""; }},
    };
    EXPECT_EQ(Told(Saturated()) + Told(OnePhase()), "");
    for (const Fault& fault : faults) {
        TwoDraft draft = fault.two ? OnePhase() : Saturated();
        fault.make(draft);
        EXPECT_EQ(Told(draft), fault.text);
        ASSERT_FALSE(CheckTwo(draft).empty());
        EXPECT_EQ(CheckTwo(draft).front().field, fault.field) << fault.text;
    }
}

TEST(TwoRulesTest, FindingsComeInTheOrderOfTheForm) {
    TwoDraft draft;
    draft.property = "UA";
    draft.nVar = 2;
    draft.function = "DIR";
    EXPECT_EQ(Told(draft),
              "Select Sample | Select Independent Variable 1 | Select Independent Variable Units | "
              "Select Independent Variable 2 | Select Independent Variable Units | This property "
              "should be stored as a difference | Select the Constraint | Select Phase 1 | "
              "Duplicate variable | Select availability of numeric data");
}

TEST(TwoRulesTest, OpenVariableIsTheFirstThatTheStateLacks) {
    struct Case {
        const char *property, *variable1, *variable2, *constraint, *open;
        bool isObligatory;
    };
    const Case cases[] = {
        {"PV", "T", "", "PB", "", false},    {"VDN", "P", "", "PB", "T", false},
        {"TB", "P", "", "PB", "", false},    {"CP", "T", "", "FP", "P", false},
        {"RSS", "P", "", "FT", "T", false},  {"VVB", "T", "", "DP", "", false},
        {"VDN", "T", "P", "FP", "", false},  {"VDN", "T", "VM", "FV", "", false},
        {"RIX", "T", "", "FP", "WL", true},  {"RIX", "WL", "", "FP", "T", true},
        {"RPX", "T", "WF", "FP", "P", true}, {"RPX", "T", "P", "FP", "WF", true},
        {"RIX", "T", "WL", "PB", "", false}, {"CP", "TU", "TL", "FP", "P", false},
        {"H", "PU", "PL", "FT", "T", false}, {"HTR", "TU", "TL", "PB", "", false},
    };
    for (const Case& c : cases) {
        TwoDraft draft = OnePhase();
        draft.nVar = *c.variable2 == '\0' ? 1 : 2;
        draft.property = c.property;
        draft.variable1 = c.variable1;
        draft.variable2 = c.variable2;
        draft.constraint = c.constraint;
        const ConstantVariable open = OpenVariable(draft);
        EXPECT_EQ(open.code, c.open) << c.property << c.variable1 << c.variable2 << c.constraint;
        EXPECT_EQ(open.isObligatory, c.isObligatory) << c.property << c.variable1;
    }
}

TEST(TwoRulesTest, CodesOfDefinitionAndPresentationReadBack) {
    for (const char* code : {"DIR", "DT", "DX", "MN", "DFR", "RTP", "KRX", "DFX", "PU", ""}) {
        const ResultDefinition definition = ResultDefinition::Of(code);
        EXPECT_EQ(definition.Code(), code);
    }
    EXPECT_EQ(ResultDefinition::Of("DT"), (ResultDefinition{"DT", ""}));
    EXPECT_EQ(ResultDefinition::Of("DTP"), (ResultDefinition{"D", "TP"}));
    EXPECT_EQ(Presentation::Of("CCG"), (Presentation{"C", true, false, true, ""}));
    EXPECT_EQ(Presentation::Of("EQ"), (Presentation{"", false, true, false, "Q"}));
    for (const char* code : {"Y", "CC", "SEG", "NCEG", "YCx", "E", ""})
        EXPECT_EQ(Presentation::Of(code).Code(), code);
}

TEST(TwoRulesTest, PresetsFollowTheProperty) {
    const auto preset = [](const char* property) {
        const TwoDraft d = PresetTwo(property);
        return d.variable1 + " " + d.constraint + " " + d.phase2 + " " + d.function + d.relation +
               " " + d.refPhase + d.refTemp + d.refPressure;
    };
    EXPECT_EQ(preset("PV"), "T PB G DIR ");
    EXPECT_EQ(preset("TB"), "P PB  DIR ");
    EXPECT_EQ(preset("HTR"), "T PB  DIR ");
    EXPECT_EQ(preset("CPW"), "T FP  DIR ");
    EXPECT_EQ(preset("CVV"), "T FV  DIR ");
    EXPECT_EQ(preset("VVC"), "T DP  DIR ");
    EXPECT_EQ(preset("VDN"), "T PB  DIR ");
    EXPECT_EQ(preset("H"), "T FP  DFR C00");
    EXPECT_EQ(preset("UA"), "T PB  DFR C00");
}

TEST(TwoRulesTest, GasMakesAPressureAVapourPressure) {
    EXPECT_EQ(StoredPropertyCode("P", "L", "G"), "PV");
    EXPECT_EQ(StoredPropertyCode("HTR", "G", "&"), "HVP");
    EXPECT_EQ(StoredPropertyCode("P", "C", "L"), "P");
    EXPECT_EQ(StoredPropertyCode("VDN", "L", "G"), "VDN");
}

class PhasesOfferedTest : public DataDialogFixture {
protected:
    static std::string Joined(const std::vector<std::string>& codes) {
        std::string text;
        for (const std::string& code : codes)
            text += (text.empty() ? "" : " ") + code;
        return text;
    }
    static std::string Offered(const std::string& property, const std::string& context = "Pure") {
        const PhaseOffer offer = OfferPhases(property, 0, {}, context);
        return Joined(offer.Phase1) + "|" + Joined(offer.Phase2) + "|" + Joined(offer.Phase3);
    }
};

TEST_F(PhasesOfferedTest, PhasesFollowThePropertyAndTheContext) {
    const std::string crystals = "C C1 C2 C3 C4 C5 CMS";
    const std::string liquids = "LC LCN LCS LCC";
    const std::string all = "L G IG FL " + crystals + " " + liquids + " VG";
    for (const char* code : {"TC", "PC", "VC", "VDC", "VSC", "ZC"})
        EXPECT_EQ(Offered(code), "L|G|") << code;
    for (const char* code : {"TBN", "TB", "PV", "HVP"})
        EXPECT_EQ(Offered(code), "L " + crystals + "|G|") << code;
    EXPECT_EQ(Offered("TMN"), crystals + "|L|air");
    EXPECT_EQ(Offered("IST"), "L|G air|");
    EXPECT_EQ(OfferPhases("IST", 1).Phase2, (std::vector<std::string>{"G", "air"}));
    EXPECT_TRUE(OfferPhases("TF", 1).Phase2.empty());
    EXPECT_EQ(Offered("TG"), "VG|L " + crystals + " " + liquids + " VG|");
    EXPECT_EQ(Offered("TTR"), crystals + "|" + crystals + "|");
    const std::string condensed = "L " + crystals + " " + liquids + " VG";
    EXPECT_EQ(Offered("HTR"), condensed + "|" + condensed + "|");
    EXPECT_EQ(Offered("VDN"), all + "||");
    EXPECT_EQ(Offered("VDN", "Complex"), all + " CS1 CS2 CSH LQ1 LQ2||");
    EXPECT_EQ(Offered("PV", "Complex"), "L " + crystals + " CS1 CS2 CSH|G|");
}

} // namespace
} // namespace vexora::test

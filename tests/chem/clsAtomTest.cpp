#include "chem/clsAtom.h"

#include "support/DocumentFixture.h"

namespace vexora {
namespace {

using Formulas = test::DocumentFixture;

TEST_F(Formulas, TypedTextBecomesTheCanonicalOne) {
    const std::pair<const char*, const char*> cases[] = {{"H2O", "H2O"},
                                                         {"OH2", "H2O"},
                                                         {"C2H5OH", "C2H6O"},
                                                         {"D2O", "D2O"},
                                                         {"CH3(CH2)2OH", "C3H8O"},
                                                         {"(CH3)2", "C2H6"},
                                                         {"(CH3)", "CH3"},
                                                         {"CaCO3", "CCaO3"},
                                                         {"NaCl", "ClNa"},
                                                         {"HDO", "HDO"},
                                                         {"CHDTBr", "CHDTBr"},
                                                         {"C0.5H2", "C0.5H2"},
                                                         {"{R}2O", "O{R}2"},
                                                         {"H1.2.3O", "H1.2O"},
                                                         {"Ca(OH)2", "CaH2O2"},
                                                         {"K4(Fe(CN)6)", "C6FeK4N6"},
                                                         {" CHBr3 ", "CHBr3"},
                                                         {"CuSO4*5H2O", "CuH10O9S"},
                                                         {"CaSO4\u00B70.5H2O", "CaHO4.5S"},
                                                         {"MgCl2\u22C56H2O*2CH3OH", "C2H20Cl2MgO8"},
                                                         {"(NaCl*2H2O)2", "Cl2H8Na2O4"}};
    for (const auto& [typed, canonical] : cases)
        EXPECT_EQ(CanonicalFormula(typed), canonical) << typed;
}

TEST_F(Formulas, WhatIsNoFormulaGivesNoText) {
    for (const char* text : {"",
                             "H2O0",
                             "H0O",
                             "Xx2",
                             "ch4",
                             "(CH3",
                             "C()H4",
                             "H2O!",
                             "H2(Xx)3O",
                             "(CH2)0",
                             "H.O",
                             "CO2\xC2\xB7H2O",
                             "Chbr3",
                             "C2H5)OH",
                             "CH3)2",
                             "H2O)",
                             "{R2O",
                             "*",
                             "*2H2O",
                             "CuSO4*5",
                             "CuSO4*0H2O",
                             "C*2*3H",
                             "C5H8444444444444444444",
                             "CH0.0000000000000000004"}) {
        EXPECT_EQ(CanonicalFormula(text), "") << text;
        EXPECT_EQ(MolarMassOfFormula(text), 0) << text;
    }
    EXPECT_EQ(CanonicalFormula(std::string(100000, '(') + "C" + std::string(100000, ')')), "");
}

TEST_F(Formulas, APointMayBeMeantForAHydrate) {
    const std::pair<const char*, const char*> cases[] = {{"CuSO4.5H2O", "CuH10O9S"},
                                                         {"MgCl2.6H2O", "Cl2H12MgO6"},
                                                         {"NaCl.2H2O", "ClH4NaO2"},
                                                         {"CaSO4.0.5H2O", "CaHO4.5S"},
                                                         {"CaCl2.4CH3OH", "C4H16CaCl2O4"},
                                                         {"Ca(NO3)2.4(H2O)", "CaH8N2O10"},
                                                         {"Na0.5K1.5SO4.10D2O", "D20K1.5Na0.5O14S"},
                                                         {"MgCl2.6H2O.2CH3OH", "C2H20Cl2MgO8"},
                                                         {"C0.5H2", ""},
                                                         {"Fe0.95O", ""},
                                                         {"CuSO4.5", ""},
                                                         {"CuSO4*5H2O", ""},
                                                         {"H2O", ""},
                                                         {"CaSO4.H2O", ""},
                                                         {"CuSO4.5x", ""},
                                                         {"{R.5S}O", ""}};
    for (const auto& [typed, meant] : cases)
        EXPECT_EQ(HydrateReading(typed), meant) << typed;
}

TEST_F(Formulas, MolarMassSumsTheAtomsAndPassesOverPseudoSymbols) {
    EXPECT_NEAR(MolarMassOfFormula("H2O"), 2 * 1.008 + 15.999, 1e-9);
    EXPECT_NEAR(MolarMassOfFormula("CH3(CH2)2OH"), 3 * 12.011 + 8 * 1.008 + 15.999, 1e-9);
    EXPECT_NEAR(MolarMassOfFormula("C0.5H2"), 0.5 * 12.011 + 2 * 1.008, 1e-9);
    EXPECT_NEAR(MolarMassOfFormula("{R}2O"), 15.999, 1e-9);
}

TEST_F(Formulas, ListsAreMergedInOrderOfFirstAppearance) {
    clsAtom sum, other;
    sum.Build("CH4");
    other.Build("H2O");
    other.Multiply(2);
    sum.AddB(other);
    EXPECT_EQ(sum.Formula(), "CH8O2");
    EXPECT_EQ(sum.Symbol, "C");
    EXPECT_EQ(sum.nextAtom->Symbol, "H");
    EXPECT_TRUE(sum.nextAtom->nextAtom->isLast);
}

} // namespace
} // namespace vexora

#include "export/MixtureExportFixture.h"
#include "records/clsM.h"

namespace vexora::test {

using MixtureSetExport = MixtureExportFixture;

const std::string kDatedHeader = "^A & O & & & & 1/5/2026 &\n";
/// Boiling temperatures of ethanol and water at one pressure, against the liquid.
const std::string kBoiling = kDatedHeader + "^1 1 2 T C DIR 1 Y L G & P 101.325 X1 S & & & & & &\n"
                                            "^d 0.0190 95.5 &\n^d 0.6763 78.74 &\n";

TEST_F(MixtureSetExport, ABoilingSetIsWrittenWhole) {
    EXPECT_EQ(Part(Mixtures(kBinary + kBoiling), "PureOrMixtureData"),
              R"(<PureOrMixtureData>
	<nPureOrMixtureDataNumber>1</nPureOrMixtureDataNumber>
	<Component>
		<RegNum>
			<nOrgNum>1</nOrgNum>
		</RegNum>
		<nSampleNm>1</nSampleNm>
	</Component>
	<Component>
		<RegNum>
			<nOrgNum>4</nOrgNum>
		</RegNum>
		<nSampleNm>2</nSampleNm>
	</Component>
	<dateDateAdded>2026-01-05</dateDateAdded>
	<Property>
		<nPropNumber>1</nPropNumber>
		<Property-MethodID>
			<PropertyGroup>
				<VaporPBoilingTAzeotropTandP>
					<ePropName>Boiling temperature at pressure P, K</ePropName>
				</VaporPBoilingTAzeotropTandP>
			</PropertyGroup>
		</Property-MethodID>
		<PropPhaseID>
			<ePropPhase>Liquid</ePropPhase>
		</PropPhaseID>
		<ePresentation>Direct value, X</ePresentation>
	</Property>
	<PhaseID>
		<ePhase>Liquid</ePhase>
	</PhaseID>
	<PhaseID>
		<ePhase>Gas</ePhase>
	</PhaseID>
	<Constraint>
		<ConstraintID>
			<ConstraintType>
				<ePressure>Pressure, kPa</ePressure>
			</ConstraintType>
		</ConstraintID>
		<nConstraintValue>101.325</nConstraintValue>
		<nConstrDigits>6</nConstrDigits>
	</Constraint>
	<Variable>
		<nVarNumber>1</nVarNumber>
		<VariableID>
			<VariableType>
				<eComponentComposition>Mole fraction</eComponentComposition>
			</VariableType>
			<RegNum>
				<nOrgNum>1</nOrgNum>
			</RegNum>
		</VariableID>
		<VarPhaseID>
			<eVarPhase>Liquid</eVarPhase>
		</VarPhaseID>
	</Variable>
	<NumValues>
		<VariableValue>
			<nVarNumber>1</nVarNumber>
			<nVarValue>0.0190</nVarValue>
			<nVarDigits>3</nVarDigits>
		</VariableValue>
		<PropertyValue>
			<nPropNumber>1</nPropNumber>
			<nPropValue>368.65</nPropValue>
			<nPropDigits>4</nPropDigits>
		</PropertyValue>
	</NumValues>
	<NumValues>
		<VariableValue>
			<nVarNumber>1</nVarNumber>
			<nVarValue>0.6763</nVarValue>
			<nVarDigits>4</nVarDigits>
		</VariableValue>
		<PropertyValue>
			<nPropNumber>1</nPropNumber>
			<nPropValue>351.89</nPropValue>
			<nPropDigits>5</nPropDigits>
		</PropertyValue>
	</NumValues>
</PureOrMixtureData>)");
}

TEST_F(MixtureSetExport, PhasesAndComponentsAreThoseOfEachQuantity) {
    // Vapour against liquid, and a liquid saturated with the crystals of its first component.
    const std::string xml =
        Mixtures(kBinary + kHeader + "^1 1 1 X1 S DIR 1 Y G L -1 P 101.325 X1 S & & & & & &\n" +
                 "^d 0.0190 0.1700 &\n" + kHeader +
                 "^1 1 1 T S DIR 1 Y L Cp1 & P 101.3 W2 S & & & & & &\n^d 0.5 250 &\n");
    EXPECT_EQ(At(xml, "/nPureOrMixtureDataNumber"), "1 | 2");
    EXPECT_EQ(At(xml, "//PropertyGroup/CompositionAtPhaseEquilibrium/ePropName"), "Mole fraction");
    EXPECT_EQ(At(xml, "//PropertyGroup/PhaseTransition/ePropName"),
              "Solid-liquid equilibrium temperature, K");
    EXPECT_EQ(At(xml, "//Property-MethodID/RegNum"), "1");
    EXPECT_EQ(At(xml, "//ePropPhase"), "Gas | Liquid");
    EXPECT_EQ(At(xml, "//eVarPhase"), "Liquid | Liquid");
    EXPECT_EQ(At(xml, "//VariableID/RegNum"), "1 | 4");
    EXPECT_EQ(At(xml, "/PhaseID/ePhase"), "Gas | Liquid | Liquid | Crystal");
    EXPECT_EQ(At(xml, "/PhaseID/RegNum/nOrgNum"), "1");
}

TEST_F(MixtureSetExport, TypedUnitsLeaveAsSystemUnitsWithTheTypedDigits) {
    // g/cm3 against per cent by mass; the constraint as typed into the dialog.
    Read(kBinary + kHeader + "^M 1000\n^1 1 1 VDN * DIR 1 Y L T & P 101.325 W1 0.01 & & & & & &\n" +
         "^d 0 0.99823 &\n^d 40 0.93518 &\n^d 100 0.78934 &\n^g 40 1 0.93520 4 &\n^D 0.5 914 &\n");
    set->Constraints[0].value = "20";
    set->Constraints[0].unit = "C";
    std::string xml = Leaving();
    EXPECT_EQ(At(xml, "//nConstraintValue"), "293.15 | 101.325");
    EXPECT_EQ(At(xml, "//nConstrDigits"), "3 | 6");
    EXPECT_EQ(At(xml, "//nVarValue"), "0 | 0.40 | 1.00 | 0.4 | 0.5");
    EXPECT_EQ(At(xml, "//nVarDigits"), "1 | 2 | 3 | 1 | 1");
    EXPECT_EQ(At(xml, "//nPropValue"), "998.23 | 935.18 | 789.34 | 935.2 | 914");
    EXPECT_EQ(At(xml, "//nPropDigits"), "5 | 5 | 5 | 4 | 3");
    // Rows in system units say nothing about a constraint, whose unit is its own.
    set->isOriginalUnit = false;
    EXPECT_EQ(At(Leaving(), "/Constraint/nConstraintValue"), "293.15 | 101.325");
    set->Constraints[0].unit = "F";
    set->Constraints[0].value = "68.0";
    EXPECT_EQ(At(Leaving(), "/Constraint[1]/nConstraintValue"), "293.15");
    EXPECT_EQ(At(Leaving(), "/Constraint[1]/nConstrDigits"), "4");
}

TEST_F(MixtureSetExport, TiedLayersOfATernaryKeepTheVariableThatTiesThem) {
    // Acid in one layer against chloroform there and acid in the other one, in per cent by mass.
    const std::string xml =
        Mixtures(kTernary + kHeader +
                 "^M 0.01\n^2 1 1 2 W1 S DIR 1 Y L1 L2 -2 T 291.15 W2 0.01 W1 0.01 & & & & & &\n" +
                 "^d 99.01 0.00 0.00 & 1\n^d 91.85 25.10 6.77 & 2\n");
    EXPECT_EQ(At(xml, "/Component/nSampleNm"), "1 | 1 | 2");
    EXPECT_EQ(At(xml, "/Component/RegNum"), "2 | 3 | 4");
    EXPECT_EQ(At(xml, "/PhaseID/ePhase"), "Liquid mixture 1 | Liquid mixture 2");
    EXPECT_EQ(At(xml, "//VariableType"), "Mass fraction | Mass fraction");
    EXPECT_EQ(At(xml, "//VariableID/RegNum"), "3 | 2");
    EXPECT_EQ(At(xml, "//eVarPhase"), "Liquid mixture 1 | Liquid mixture 2");
    EXPECT_EQ(At(xml, "//nVarValue"), "0.9901 | 0.00 | 0.9185 | 0.2510");
    EXPECT_EQ(At(xml, "//nVarDigits"), "4 | 1 | 4 | 4");
    EXPECT_EQ(At(xml, "//nPropValue") + "; " + At(xml, "//nPropDigits"), "0.00 | 0.0677; 1 | 3");
    EXPECT_EQ(At(xml, "//nConstraintValue"), "291.15");
}

TEST_F(MixtureSetExport, NamesOfAPropertyFollowTheEquilibrium) {
    const auto named = [this](const std::string& definition) {
        const std::string xml = Mixtures(kBinary + kHeader + definition + "\n^d 0.5 300 &\n");
        return At(xml, "//ePropName");
    };
    const std::string end = " P 101.325 X1 S & & & & & &";
    EXPECT_EQ(named("^1 1 1 T S DIR 1 Y L L2 &" + end), "Liquid-liquid equilibrium temperature, K");
    EXPECT_EQ(named("^1 1 1 T S DIR 1 Y C Cm &" + end), "Phase transition temperature, K");
    EXPECT_EQ(named("^1 1 1 P S DIR 1 Y L G & T 300 X1 S & & & & & &"),
              "Vapor or sublimation pressure, kPa");
    // Air does not count as a pressure that is stated.
    const std::string xml = Mixtures(
        kBinary + kHeader + "^1 1 1 T S DIR 1 Y L air & Cp1 & X1 S & & & & & &\n^d 0.5 300 &\n");
    EXPECT_EQ(At(xml, "/PhaseID/ePhase"), "Liquid | Air at 1 atmosphere | Crystal");
    EXPECT_EQ(At(xml, "/Constraint"), "");
}

TEST_F(MixtureSetExport, PresentationAndReferenceStateFollowTheFunction) {
    const auto reference = [this](const std::string& function) {
        const std::string xml =
            Mixtures(kBinary + kHeader + "^1 1 1 H S " + function +
                     " 1 Y L T 300 P 101.325 X1 S & & & 298.15 101.325 Cp2\n^d 0.5 2.50 &\n");
        std::string texts = At(xml, "//ePresentation");
        for (const char* path :
             {"//eRefStateType", "//nRefTemp", "//nRefTempDigits", "//nRefPressure",
              "//nRefPressureDigits", "//eRefPhase", "//RefPhaseID/RegNum"})
            texts += "; " + At(xml, path);
        return texts;
    };
    const std::string none = "; ; ; ; ; ; ; ", phase = "; ; ; ; ; Crystal; 4";
    const std::string difference = "Difference with the reference state, X-X(REF); ";
    const std::string same = "Reference phase with the same composition";
    const std::pair<const char*, std::string> cases[] = {
        {"DIR", "Direct value, X" + none},
        {"DT", "Difference between upper and lower temperature, X(T2)-X(T1)" + none},
        {"DX", "Difference between upper and lower pressure, X(P2)-X(P1)" + none},
        {"MN", "Mean between upper and lower temperature, [X(T2)+X(T1)]/2" + none},
        {"DFR", difference + same +
                    " at fixed temperature and pressure; 298.15; 5; 101.325; 6; Crystal; 4"},
        {"DPF", difference + "Reference phase at fixed temperature and the same pressure; "
                             "298.15; 5; ; ; Crystal; 4"},
        {"RTF", "Ratio with the reference state, X/X(REF); Reference phase at the same "
                "temperature and fixed pressure; ; ; 101.325; 6; Crystal; 4"},
        {"KPH", "Ratio of difference with the reference state to the reference state, "
                "[X-X(REF)]/X(REF); " +
                    same + ", temperature and pressure" + phase},
        {"DEQ", difference +
                    "Phase in equilibrium with primary phase at the same temperature and "
                    "pressure" +
                    phase},
        {"DPC", difference +
                    "Pure components in the same proportion at the same temperature and "
                    "pressure" +
                    phase},
        {"DPR",
         difference + "Pure solvent at the temperature of the same phase equilibrium" + phase},
        {"DPS", difference + "Pure solvent at the same temperature and pressure" + phase},
        {"DPT", difference + "Pure solute at the same temperature and pressure" + phase},
        {"RRX", "Ratio with the reference state, X/X(REF); " + phase},
    };
    for (const auto& [function, texts] : cases)
        EXPECT_EQ(reference(function), texts) << function;
}

TEST_F(MixtureSetExport, StandardStateAndSolventStandWhereACodeNeedsThem) {
    const auto stated = [this](const std::string& code, const std::string& variable,
                               const std::string& solvent, const std::string& state) {
        const std::string xml = Mixtures(kTernary + kHeader + "^1 1 1 1 " + code +
                                         " S DIR 1 Y L T 300 P 101.325 M2 1 " + variable + " S " +
                                         solvent + " " + state + " & & & &\n^d 0.5 2.50 &\n");
        return At(xml, "/Property/eStandardState") + "; " + At(xml, "/Property/Solvent") + "; " +
               At(xml, "/Constraint/Solvent") + "; " + At(xml, "/Variable/Solvent") + "; " +
               At(xml, "/Constraint/ConstraintPhaseID");
    };
    const std::string state = "Standard molality (1 mol/kg) solute";
    EXPECT_EQ(stated("AC1", "M1", "3", "M"), state + "; ; 4; 4; Liquid");
    EXPECT_EQ(stated("AOC", "X1", "1", "&"), "; 2; 2; ; Liquid");
    EXPECT_EQ(stated("VDN", "X1S", "C", "&"), "; ; 2 | 3; 2 | 3; Liquid");
    EXPECT_EQ(stated("PHM2", "M2", "D", "Pure_liquid_solute"),
              "Pure liquid solute; 2 | 4; 2 | 4; 2 | 4; Liquid");
    EXPECT_EQ(stated("HEX1", "X1", "E", "&"), "; 3 | 4; 3 | 4; ; Liquid");
    EXPECT_EQ(stated("VDN", "M1", "&", "&"), "; ; ; ; Liquid");
    // A public reader takes one solvent, of several compounds.
    const std::string lines = kTernary + kHeader +
                              "^2 1 1 1 VDN S DIR 1 Y L T 300 P 101.325 M1 S X3S S C & & & & &\n"
                              "^d 0.5 0.5 998 &\n";
    EXPECT_EQ(At(Mixtures(lines), "/Variable[1]/Solvent[1]/RegNum"), "2");
    EXPECT_EQ(At(Mixtures(lines), "/Variable[1]/Solvent[2]/RegNum"), "3");
    EXPECT_EQ(At(Mixtures(lines, ExportFor::StrictReaders), "/Variable[1]/Solvent[1]/RegNum"),
              "2 | 3");
}

std::string Told(const std::string& fault, const std::string& property) {
    return fault + "\nSystem: ethanol + water\nProperty: " + property + " | Data Error!";
}

TEST_F(MixtureSetExport, ConstraintsBearPhaseComponentAndStatements) {
    desktop.Expect("Missing repeatability in \nSystem: acetic acid + chloroform + water\n"
                   "Property: Density | Data Error!");
    const std::string xml =
        Mixtures(kTernary + kHeader +
                 "^1 1 1 1 VDN S DIR 1 Y L X1 0.250 T 300.0 P 101.325 X2 S & & & & & &\n" +
                 "^X 2 X1 L - & & & - & & & + 95 0.002 - & & - & & &\n" +
                 "^X 3 T L + 1 95 0.5 + 0 0.1 3 - & & - & & - & & &\n" +
                 "^X 4 P L - & & & + 1 & 5 - & & - & & - & & &\n" + "^d 0.5 998 &\n");
    EXPECT_EQ(At(xml, "/Constraint/ConstraintID/ConstraintType"),
              "Mole fraction | Temperature, K | Pressure, kPa");
    EXPECT_EQ(At(xml, "/Constraint/ConstraintID/RegNum"), "2");
    EXPECT_EQ(At(xml, "/Constraint/ConstraintPhaseID"), "Liquid");
    EXPECT_EQ(At(xml, "/Constraint/nConstraintValue"), "0.250 | 300.0 | 101.325");
    EXPECT_EQ(At(xml, "/Constraint[1]/ConstrUncertainty/nExpandUncertValue"), "0.002");
    EXPECT_EQ(At(xml, "/Constraint[2]/ConstrRepeatability/nConstrRepeatValue"), "0.1");
    EXPECT_EQ(At(xml, "/Constraint[2]/ConstrDeviceSpec/nConstrDeviceSpecValue"), "0.5");
    EXPECT_EQ(At(xml, "/Constraint[3]/ConstrRepeatability"), "");
}

TEST_F(MixtureSetExport, ACriticalCurveIsAConstraintWithoutAValue) {
    const std::string xml = Mixtures(
        kBinary + kHeader + "^1 1 1 PC S DIR 1 Y L CLG & T 300 X1 S & & & & & &\n^d 0.5 9 &\n");
    EXPECT_EQ(At(xml, "/Constraint/ConstraintID"), "Liquid-gas critical curve | Temperature, K");
    EXPECT_EQ(At(xml, "/Constraint[1]/nConstraintValue"), "");
    EXPECT_EQ(At(xml, "/Constraint/nConstraintValue"), "300");
}

TEST_F(MixtureSetExport, TagsOfTheCommentAreConstraintsUnlessTheDefinitionSaysSo) {
    const std::string xml = Mixtures(
        kBinary + "^A & O & & & & & ::Method:X:WL = 5893:P = 99:\n"
                  "^1 1 1 RIX S DIR 1 Y L T 300 P 101.325 X1 S & & & & & &\n^d 0.5 1.33 &\n");
    EXPECT_EQ(At(xml, "/Constraint/ConstraintID"), "Temperature, K | Pressure, kPa | "
                                                   "Wavelength, nm");
    EXPECT_EQ(At(xml, "//nConstraintValue"), "300 | 101.325 | 589.3");
}

TEST_F(MixtureSetExport, ARowGoesBeforeItsSet) {
    const std::string xml =
        Mixtures(kBinary + kHeader + "^1 1 1 T C DIR 1 Y L G & P 101.325 X1 0.01 & & & & & &\n" +
                 "^X 1 X1 L - & & & - & & & + & 0.5 - & & - & & &\n"
                 "^X 0 T L + 0 95 0.02 + 0 0.1 4 + 95 0.05 + A 95 + 0.03 fit 0.07\n"
                 "^d 50 79.8 &\n^d 60 79.0 &\n^Y & & & 1 & & & 0.5% 0.4 0.2\n");
    EXPECT_EQ(At(xml, "/NumValues/VariableValue/VarUncertainty/nStdUncertValue"), "0.005 | 0.01");
    EXPECT_EQ(At(xml, "/NumValues/PropertyValue/PropUncertainty/nExpandUncertValue"),
              "0.05 | 0.395");
    EXPECT_EQ(At(xml, "/NumValues//nCombExpandUncertValue"), "0.07 | 0.4");
    EXPECT_EQ(At(xml, "/NumValues//nCurveDevValue"), "0.03 | 0.2");
    EXPECT_EQ(At(xml, "/NumValues//nPropRepeatValue"), "0.1 | 0.1");
    EXPECT_EQ(At(xml, "/Property//eCombUncertEvalMethod"),
              "Propagation of evaluated standard uncertainties");
    EXPECT_EQ(At(xml, "/Variable/VarUncertainty/sUncertEvaluator"), "Author");
}

TEST_F(MixtureSetExport, WhatCannotLeaveIsTold) {
    const std::string row = "^d 0.5 1 &\n", end = " P 101.325 X1 S & & & & & &\n";
    const std::string noPlace = "The reference tables have no place for these data in the export";
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"^1 1 1 XE1 S DIR 1 Y L C &" + end, noPlace,
         "Eutectic composition: mole fraction of component 1"},
        {"^1 1 1 QQQ S DIR 1 Y L C &" + end, noPlace, "QQQ"},
        {"^1 1 1 VDN S DIR 1 Y L T 300 P 101.325 QX S & & & & & &\n", noPlace, "Density"},
        {"^1 1 1 VDN S DIR 1 Y L QQ 5" + end, noPlace, "Density"},
        {"^1 1 1 VDN S DIR 1 Y L T 300 P 101.325 X3 S & & & & & &\n", noPlace, "Density"},
        {"^1 1 1 VDN ? DIR 1 Y L T 300" + end, "Invalid conversion factor", "Density"},
        {"^1 1 1 VDN S DFX1 1 Y L T 300" + end, "Unknown definition of results DFX1", "Density"},
        {"^1 1 1 HEX Z DIR 1 Y L T 300 P 101.325 V1 S & & & & & &\n",
         "Unable to calculate average molar mass", "Excess enthalpy (enthalpy of mixing)"},
    };
    for (const auto& [definition, fault, property] : cases) {
        desktop.Expect(Told(fault, property));
        EXPECT_EQ(At(Mixtures(kBinary + kHeader + definition + row), ""), "") << definition;
    }
    Read(kBinary + kBoiling);
    set->Constraints[1].unit = "psi2";
    desktop.Expect(Told("Invalid conversion factor", "Temperature of phase equilibrium"));
    EXPECT_EQ(At(Leaving(), ""), "");
    set->Constraints[1].unit = "S";
    set->Parent->RN2 = "71432";
    desktop.Expect("Component of mixture not described: 71432\nSystem: ethanol + 71432\n"
                   "Property: Temperature of phase equilibrium | Data Error!");
    EXPECT_EQ(At(Leaving(), ""), "");
    // A constraint without a number is left out alone.
    desktop.Expect(Told("Constraint without a valid number in ", "Density"));
    const std::string xml = Mixtures(kBinary + kHeader + "^1 1 1 VDN S DIR 1 Y L T &" + end + row);
    EXPECT_EQ(At(xml, "/Constraint/ConstraintID") + At(xml, "//nPropValue"), "Pressure, kPa1");
}

TEST_F(MixtureSetExport, UnitsByMassGoByTheCompositionOfTheRow) {
    // 46.069 and 18.015 g/mol: one half by amount is 32.042, one half by mass 25.901.
    const auto values = [this](const std::string& definition, const std::string& rows) {
        return At(Mixtures(kBinary + kHeader + definition + "\n" + rows), "//nPropValue");
    };
    EXPECT_EQ(values("^1 1 1 HEX Z DIR 1 Y L T 300 P 101.325 X1 S & & & & & &",
                     "^d 0 1.000 &\n^d 0.5 1.000 &\n^D 0.5 1.000 &\n"),
              "0.018015 | 0.03204 | 1.000");
    EXPECT_EQ(
        values("^1 1 1 HEX Z DIR 1 Y L T 300 P 101.325 W1 0.01 & & & & & &", "^d 50 1.000 &\n"),
        "0.02590");
    EXPECT_EQ(values("^1 1 1 HEX Z DIR 1 Y L T 300 W1 0.5 P S & & & & & &", "^d 99 1.000 &\n"),
              "0.02590");
    // That of the vapour says nothing about the liquid.
    desktop.Expect(Told("Unable to calculate average molar mass", "Enthalpy"));
    EXPECT_EQ(values("^1 1 1 H Z DIR 1 Y L G -1 T 300 X1 S & & & & & &", "^d 0.5 1.000 &\n"), "");
}

TEST_F(MixtureSetExport, MixturesFollowCompoundsInTheOrderOfTheDocument) {
    Read(kTernary + kHeader + "^3 1 1 1 VDN S DIR 1 Y L T 300 P S X1 S X2 S & & & & & &\n" +
         "^d 101 0.1 0.2 900 &\n" + kBinary + kBoiling + kHeader +
         "^z 1 1 TA C 1 L G & & 78.15 & & &\n");
    const std::string xml = Leaving();
    EXPECT_EQ(At(xml, "/nPureOrMixtureDataNumber"), "1 | 2 | 3");
    EXPECT_EQ(At(xml, "//ePropName"), "Mass density, kg/m3 | Azeotropic temperature, K | "
                                      "Boiling temperature at pressure P, K");
    EXPECT_EQ(At(xml, "//nVarNumber"), "1 | 2 | 3 | 1 | 2 | 3 | 1 | 1 | 1");
    EXPECT_TRUE(set->SavedInXML);
    EXPECT_EQ(Leaving(), xml); // nothing is passed over the second time
}

} // namespace vexora::test

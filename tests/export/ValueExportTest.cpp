#include "export/ExportFixture.h"

#include "export/Statements.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsZ.h"

namespace vexora {
namespace {

class ValueExport : public test::ExportFixture {
protected:
    /// Phases and constraint of the data, in one line.
    std::string Phases(const std::string& lines) {
        const std::string data = Data(lines);
        return Line(data, "PhaseID") + Line(data, "Constraint");
    }
    /// What a value line exports, in one line.
    std::string Values(const std::string& lines) {
        return Line(Data(kHeader + lines), "NumValues");
    }
    static std::string Number(const std::string& role, const std::string& value, int digits,
                              const std::string& statements = "") {
        return "<n" + role + "Number>1</n" + role + "Number><n" + role + "Value>" + value + "</n" +
               role + "Value><n" + role + "Digits>" + std::to_string(digits) + "</n" + role +
               "Digits>" + statements;
    }
    static std::string OfProperty(const std::string& value, int digits,
                                  const std::string& statements = "") {
        return "<NumValues><PropertyValue>" + Number("Prop", value, digits, statements) +
               "</PropertyValue></NumValues>";
    }
    std::string Fault(const std::string& text, const std::string& property) {
        return text + "\nSystem: water\nProperty: " + property + " | Data Error!";
    }
};

TEST_F(ValueExport, AValueByItselfIsWrittenWithAllItsStatements) {
    globals.UserName = "A. User";
    globals.Organization = "House & Co";
    EXPECT_EQ(Data("^A n O B 3 AB CD 12/25/2004 sealed <cell> ::Method:VISOBS:\n"
                   "^z 1 TC S 1 L G & 647.096 0.1 0.05 3\n"
                   "^X 0 TC L + 1 95 0.10 + 1 0.05 3 + 95 1% + A 68 + 0.01 cubic 0.2\n"),
              R"(<PureOrMixtureData>
	<nPureOrMixtureDataNumber>1</nPureOrMixtureDataNumber>
	<Component>
		<RegNum>
			<nOrgNum>1</nOrgNum>
		</RegNum>
		<nSampleNm>1</nSampleNm>
	</Component>
	<eExpPurpose>Principal objective of the work</eExpPurpose>
	<sCompiler>A. User</sCompiler>
	<sContributor>House &amp; Co</sContributor>
	<dateDateAdded>2004-12-25</dateDateAdded>
	<Property>
		<nPropNumber>1</nPropNumber>
		<Property-MethodID>
			<PropertyGroup>
				<Criticals>
					<ePropName>Critical temperature, K</ePropName>
					<eMethodName>Visual observation of the meniscus in a sealed cell</eMethodName>
				</Criticals>
			</PropertyGroup>
		</Property-MethodID>
		<PropPhaseID>
			<ePropPhase>Liquid</ePropPhase>
		</PropPhaseID>
		<ePresentation>Direct value, X</ePresentation>
		<CombinedUncertainty>
			<nCombUncertAssessNum>1</nCombUncertAssessNum>
			<sCombUncertEvaluator>Data file complier</sCombUncertEvaluator>
			<eCombUncertEvalMethod>Propagation of evaluated standard uncertainties</eCombUncertEvalMethod>
			<nCombUncertLevOfConfid>68</nCombUncertLevOfConfid>
		</CombinedUncertainty>
		<PropUncertainty>
			<nUncertAssessNum>1</nUncertAssessNum>
			<sUncertEvaluator>Author</sUncertEvaluator>
			<nUncertLevOfConfid>95</nUncertLevOfConfid>
		</PropUncertainty>
		<PropRepeatability>
			<sRepeatEvaluator>Author</sRepeatEvaluator>
			<eRepeatMethod>Standard deviation of a single value (unbiased)</eRepeatMethod>
		</PropRepeatability>
		<PropDeviceSpec>
			<eDeviceSpecMethod>Certified or calibrated by a third party</eDeviceSpecMethod>
			<nDeviceSpecLevOfConfid>95</nDeviceSpecLevOfConfid>
		</PropDeviceSpec>
	</Property>
	<PhaseID>
		<ePhase>Liquid</ePhase>
	</PhaseID>
	<PhaseID>
		<ePhase>Gas</ePhase>
	</PhaseID>
	<NumValues>
		<PropertyValue>
			<nPropNumber>1</nPropNumber>
			<nPropValue>647.096</nPropValue>
			<nPropDigits>6</nPropDigits>
			<CombinedUncertainty>
				<nCombUncertAssessNum>1</nCombUncertAssessNum>
				<nCombStdUncertValue>0.2</nCombStdUncertValue>
			</CombinedUncertainty>
			<PropUncertainty>
				<nUncertAssessNum>1</nUncertAssessNum>
				<nExpandUncertValue>6.47096</nExpandUncertValue>
			</PropUncertainty>
			<PropRepeatability>
				<nPropRepeatValue>0.05</nPropRepeatValue>
				<nRepetitions>3</nRepetitions>
			</PropRepeatability>
			<PropDeviceSpec>
				<nPropDeviceSpecValue>0.10</nPropDeviceSpecValue>
			</PropDeviceSpec>
			<CurveDev>
				<nCurveDevAssessNum>1</nCurveDevAssessNum>
				<nCurveDevValue>0.01</nCurveDevValue>
			</CurveDev>
		</PropertyValue>
	</NumValues>
</PureOrMixtureData>)");
}

TEST_F(ValueExport, AFixedVariableStandsInFrontOfTheValue) {
    const std::string data = Data("^A & O & & & & 2026/01/15 ::Method:OTHER:sMethod:a & b:\n"
                                  "^f 1 VDN S 1 L 25.5 C 997.0 & & &\n"
                                  "^X 1 T L + the_authors & & - & & & + 60 1% - & & - & & &\n");
    EXPECT_EQ(Part(data, "Variable"), R"(<Variable>
	<nVarNumber>1</nVarNumber>
	<VariableID>
		<VariableType>
			<eTemperature>Temperature, K</eTemperature>
		</VariableType>
	</VariableID>
	<VarPhaseID>
		<eVarPhase>Liquid</eVarPhase>
	</VarPhaseID>
	<VarUncertainty>
		<nUncertAssessNum>1</nUncertAssessNum>
		<sUncertEvaluator>Author</sUncertEvaluator>
		<nUncertLevOfConfid>60</nUncertLevOfConfid>
	</VarUncertainty>
	<VarDeviceSpec>
		<sDeviceSpecEvaluator>the authors</sDeviceSpecEvaluator>
	</VarDeviceSpec>
</Variable>)");
    EXPECT_EQ(Line(data, "NumValues"),
              "<NumValues><VariableValue>" +
                  Number("Var", "298.65", 4,
                         "<VarUncertainty><nUncertAssessNum>1</nUncertAssessNum>"
                         "<nStdUncertValue>0.255</nStdUncertValue></VarUncertainty>") +
                  "</VariableValue><PropertyValue>" + Number("Prop", "997.0", 4) +
                  "</PropertyValue></NumValues>");
    EXPECT_EQ(Line(data, "sMethodName"), "<sMethodName>a &amp; b</sMethodName>");
    EXPECT_EQ(Part(data, "dateDateAdded"), "");
}

TEST_F(ValueExport, ValuesLeaveInSystemUnitsWithTheDigitsTyped) {
    EXPECT_EQ(Values("^z 1 TC S 1 L G & 647.0960 & & &\n"), OfProperty("647.0960", 7));
    EXPECT_EQ(Values("^z 1 TC S 1 L G & +6.4710e2 & & &\n"), OfProperty("6.4710e2", 5));
    EXPECT_EQ(Values("^z 1 TC C 1 L G & 25.5 & & &\n"), OfProperty("298.65", 4));
    EXPECT_EQ(Values("^z 1 TC C 1 L G & 0.0 & & &\n"), OfProperty("273.15", 3));
    EXPECT_EQ(Values("^Z 1 TC C 1 L G & 647.1 & & &\n"), OfProperty("647.1", 4));
    EXPECT_EQ(Values("^z 1 PC A 1 L G & 217.0 & & &\n"), OfProperty("21988", 4));
    EXPECT_EQ(Values("^M 1000\n^z 1 PC S 1 L G & 22.0640 & & &\n^M 0\n"), OfProperty("22064.0", 6));
    EXPECT_EQ(Values("^z 1 PC 1000 1 L G & 22.064 & & &\n"), OfProperty("22064", 5));
    EXPECT_EQ(Values("^z 1 HVP Z 1 L G & 2257 & & &\n"), OfProperty("40.66", 4));
    EXPECT_EQ(Values("^z 1 VTP S 1 L & & -0.00 & & &\n"), OfProperty("-0.00", 1));
}

TEST_F(ValueExport, TheLevelAloneDecidesWhetherAFigureIsExpanded) {
    const auto author = [this](const std::string& level, const std::string& figure) {
        return Line(Values("^z 1 TC C 1 L G & -250.0 & & &\n^X 0 TC L - & & & - & & & + " + level +
                           " " + figure + " - & & - & & &\n"),
                    "PropUncertainty");
    };
    const auto standing = [](const std::string& element, const std::string& figure) {
        return "<PropUncertainty><nUncertAssessNum>1</nUncertAssessNum><" + element + ">" + figure +
               "</" + element + "></PropUncertainty>";
    };
    EXPECT_EQ(author("95", "0.10"), standing("nExpandUncertValue", "0.10"));
    EXPECT_EQ(author("70", "0.10"), standing("nExpandUncertValue", "0.10"));
    EXPECT_EQ(author("69.9", "0.10"), standing("nStdUncertValue", "0.10"));
    EXPECT_EQ(author("&", "0.10"), standing("nStdUncertValue", "0.10"));
    EXPECT_EQ(author("high", "1%"), standing("nStdUncertValue", "2.5"));
    EXPECT_EQ(author("95", "%"), "");
    EXPECT_EQ(author("95", "&"), "");
}

TEST_F(ValueExport, FiguresAreBroughtToTheUnitOfTheValueOnce) {
    const auto figures = [this](const std::string& value, const std::string& statement) {
        return Values("^f 1 VDN g/cm3 1 L " + value + " & & &\n" + statement);
    };
    const std::string variable = "^X 1 T L - & & & - & & & + 95 0.18 - & & - & & &\n";
    // What stands in the record is in system units for a variable, but not for the property.
    EXPECT_NE(figures("77 F 0.997", variable).find("<nExpandUncertValue>0.18<"), std::string::npos);
    const std::string property = "^X 0 VDN L - & & & - & & & + 95 0.0010 + B 95 - & & 0.002\n";
    const std::string values = figures("77 F 0.997", property);
    EXPECT_NE(values.find("<nExpandUncertValue>1.0<"), std::string::npos) << values;
    EXPECT_NE(values.find("<nCombExpandUncertValue>2<"), std::string::npos) << values;
    const std::string pressure = Values("^z 1 PC T 1 L G & 165500 & & &\n"
                                        "^X 0 PC L + 0 95 2.0 + 0 1 3 + 95 7 - & & - & & &\n");
    EXPECT_NE(pressure.find("<nExpandUncertValue>0.93<"), std::string::npos) << pressure;
    EXPECT_NE(pressure.find("<nPropRepeatValue>0.13<"), std::string::npos);
    EXPECT_NE(pressure.find("<nPropDeviceSpecValue>0.267<"), std::string::npos);
    // A dialog states it in the unit typed.
    Export(kHead + kHeader + "^f 1 VDN S 1 L 77 F 997 & & &\n" + variable);
    clsZ& record = *globals.recR.Item(std::size_t{1})
                        ->recL.Item(std::size_t{1})
                        ->recS.Item(std::size_t{1})
                        ->recZ.Item(std::size_t{1});
    clsX item = record.Statements(1);
    item.inSystemUnits = false;
    record.Statements(1, item);
    const std::string text = DocumentAsXml({2026, 1, 5});
    EXPECT_NE(text.find("<nExpandUncertValue>0.10<"), std::string::npos) << text;
}

TEST_F(ValueExport, GasAndOneAtmosphereFollowPropertyAndState) {
    const std::string liquid = "<PhaseID><ePhase>Liquid</ePhase></PhaseID>";
    const std::string gas = "<PhaseID><ePhase>Gas</ePhase></PhaseID>";
    const std::string atmosphere =
        "<Constraint><ConstraintID><ConstraintType><ePressure>Pressure, kPa</ePressure>"
        "</ConstraintType></ConstraintID><nConstraintValue>101.325</nConstraintValue>"
        "<nConstrDigits>6</nConstrDigits></Constraint>";
    const std::string plain = "^A & O & & & & & &\n";
    const std::string boundary = "^A & O & & & & & ::Method::PB:\n";
    const std::string fixed = "^A & O & & & & & ::Method::FP:\n";
    const std::string boiling = "^z 1 TB S 1 L & & 373.12 & & &\n";
    EXPECT_EQ(Phases(plain + boiling), liquid + gas + atmosphere);
    EXPECT_EQ(Phases(boundary + boiling), liquid + gas);
    EXPECT_EQ(Phases(fixed + boiling), liquid + atmosphere);
    EXPECT_EQ(Phases(plain + "^z 1 PV S 1 L & & 3.1 & & &\n"), liquid + gas);
    EXPECT_EQ(Phases(plain + "^z 1 HVP S 1 L G & 40.7 & & &\n"), liquid + gas);
    EXPECT_EQ(Phases(boundary + "^z 1 VDN S 1 L & & 997 & & &\n"), liquid + gas);
    EXPECT_EQ(Phases(plain + "^z 1 TBN S 1 L & & 373.12 & & &\n"), liquid);
    EXPECT_EQ(Phases(plain + "^f 1 TB S 1 L 100 S 372.8 & & &\n"), liquid + gas);
    EXPECT_EQ(Phases(fixed + "^f 1 TB S 1 L 100 S 372.8 & & &\n"), liquid);
    EXPECT_EQ(Phases(plain + "^z 1 TMN S 1 C L air 273.150 & & &\n"),
              "<PhaseID><ePhase>Crystal</ePhase></PhaseID>" + liquid +
                  "<PhaseID><ePhase>Air at 1 atmosphere</ePhase></PhaseID>");
    EXPECT_EQ(Phases(plain + "^z 1 VDN S 1 Q9 & & 997 & & &\n"),
              "<PhaseID><ePhase>Q9</ePhase></PhaseID>");
}

TEST_F(ValueExport, WhatCannotLeaveIsToldOnceAndTheRestGoesOn) {
    const std::string good = "^z 1 PC S 9 L G & 22064 & & &\n";
    const auto skips = [&](const std::string& lines, const std::string& fault) {
        desktop.Expect(fault);
        EXPECT_EQ(Values(lines + kHeader + good), OfProperty("22064", 5)) << lines;
    };
    skips("^z 1 QQQ S 1 L & & 1 & & &\n",
          Fault("The reference tables have no place for these data in the export", "QQQ"));
    skips("^z 1 TC S 1 L G & many & & &\n",
          Fault("The value is no number: many", "Critical temperature"));
    skips("^f 1 VDN S 1 L warm C 997 & & &\n", Fault("The variable is no number: warm", "Density"));
    skips("^z 1 TC nounit 1 L G & 647 & & &\n",
          Fault("Invalid conversion factor", "Critical temperature"));
    skips("^z 1 TC * 1 L G & 647 & & &\n",
          Fault("Invalid conversion factor", "Critical temperature"));
    skips("^f 1 VDN S 1 L 25 nounit 997 & & &\n", Fault("Invalid conversion factor", "Density"));
}

TEST_F(ValueExport, AMissingRepeatabilityIsToldOnceASetAndLeftOut) {
    desktop.Expect(Fault("Missing repeatability in ", "Density"));
    const std::string values = Values("^f 1 VDN S 1 L 298.15 S 997 & & &\n"
                                      "^X 1 T L - & & & + 0 & 3 - & & - & & - & & &\n"
                                      "^X 0 VDN L - & & & + 0 & 3 - & & - & & - & & &\n");
    EXPECT_EQ(values.find("Repeat"), std::string::npos) << values;
}

TEST_F(ValueExport, TheMolarMassOfTheFileServesWhereTheFormulaGivesNone) {
    const std::string compound = "^L 1003 DNNNN P\n^N 1003 & tar\n^S 1 ns\n";
    const std::string value = "^z 1 HVP Z 1 L G & 100 & & &\n^M 0\n";
    EXPECT_EQ(Line(Export(kSource + compound + "^M 78.11\n" + kHeader + value), "NumValues"),
              OfProperty("7.81", 3));
    desktop.Expect("Molar mass of the compound is not known\nSystem: tar\n"
                   "Property: Enthalpy of vaporization or sublimation | Data Error!");
    EXPECT_EQ(Line(Export(kSource + compound + kHeader + value), "NumValues"), "");
}

TEST(ExportedWavelengths, LeaveInNanometres) {
    ExportUnit unit{{"nm"}, true, true};
    EXPECT_EQ(ExportedValue("589.30", unit).text, "589.30");
    EXPECT_EQ(ExportedValue("589.30", unit).digits, 5);
    unit.code = "S";
    EXPECT_EQ(ExportedValue("5893.0", unit).text, "589.30");
    unit.converts = false;
    unit.code = "nm"; // a converted value stands in the system unit whatever the paper had
    EXPECT_EQ(ExportedValue("5893", unit).text, "589.3");
}

} // namespace
} // namespace vexora

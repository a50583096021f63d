#include "shell/DocumentText.h"

#include "host/XmlPath.h"
#include "records/DocumentCheck.h"
#include "records/RoundTripFixture.h"
#include "shell/ReadingPane.h"
#include "support/Xml.h"
#include "ui/Html.h"

namespace vexora {
namespace {

class SetExport : public test::RoundTripFixture {
protected:
    /// The document with one set, as exported; an XML reader must take it.
    std::string Exported(const std::string& definition, const std::string& rows,
                         const std::string& comment = "&") {
        Read(test::kHead + "^A & O & & & & & " + comment + "\n" + definition + "\n" + rows +
             "^M 0\n");
        const std::string text = DocumentAsXml({2026, 5, 1});
        EXPECT_TRUE(test::IsWellFormed(text)) << text;
        return text;
    }
    static std::string At(const std::string& document, const std::string& path) {
        std::string texts;
        for (const std::string& text : host::XmlTexts(document, "//PureOrMixtureData" + path))
            texts += (texts.empty() ? "" : " | ") + text;
        return texts;
    }
};

const std::string kDensity = "^2 1 VDN S DIR 1\tY L & DP T C P S & & &";

TEST_F(SetExport, ValuesLeaveInSystemUnitsWithTheirDigits) {
    const std::string xml = Exported(kDensity, "^d 25.5 99.24 996.5560 &\n^D 300 20.0 1005 &\n"
                                               "^g 0.0 1 2500 2 997.0 4 &\n");
    EXPECT_EQ(At(xml, "/Component/nSampleNm"), "1");
    EXPECT_EQ(At(xml, "//nPropNumber"), "1 | 1 | 1 | 1");
    EXPECT_EQ(At(xml, "//ePresentation"), "Direct value, X");
    EXPECT_EQ(At(xml, "//eRefStateType"), "");
    EXPECT_EQ(At(xml, "//eVarPhase"), "Liquid | Liquid");
    EXPECT_EQ(At(xml, "/Variable//VariableType"), "Temperature, K | Pressure, kPa");
    EXPECT_EQ(At(xml, "/PhaseID"), "Liquid");
    EXPECT_EQ(At(xml, "//nVarValue"), "298.65 | 99.24 | 300 | 20.0 | 273.15 | 2500");
    EXPECT_EQ(At(xml, "//nVarDigits"), "4 | 4 | 3 | 3 | 4 | 2");
    EXPECT_EQ(At(xml, "//nPropValue"), "996.5560 | 1005 | 997.0");
    EXPECT_EQ(At(xml, "//nPropDigits"), "7 | 4 | 4");
}

TEST_F(SetExport, ARowGoesBeforeItsSet) {
    const std::string xml = Exported(
        kDensity, "^X 1 T L - & & & - & & & + & 0.1 - & & - & & &\n"
                  "^X 0 VDN L - & & & + 1 2 5 + 95 1% + B 68 + 0.4 fit 3\n"
                  "^d 25 100 250 &\n^d 25 101 250 &\n^Y & & & 0.2 & & & & & 4 6 2 0.5% 0.3\n"
                  "^D 300 100 250 &\n");
    EXPECT_EQ(At(xml, "/NumValues/VariableValue/VarUncertainty/nStdUncertValue"),
              "0.1 | 0.2 | 0.1");
    EXPECT_EQ(At(xml, "/NumValues//nExpandUncertValue"), "2.5 | 2 | 2.5");
    EXPECT_EQ(At(xml, "//nCombStdUncertValue"), "3 | 1.25 | 3");
    EXPECT_EQ(At(xml, "//nCurveDevValue"), "0.4 | 0.3 | 0.4");
    EXPECT_EQ(At(xml, "//nPropRepeatValue"), "2 | 4 | 2");
    EXPECT_EQ(At(xml, "//nRepetitions"), "5 | 6 | 5");
    EXPECT_EQ(At(xml, "/Property/PropUncertainty/nUncertLevOfConfid"), "95");
    EXPECT_EQ(At(xml, "/Property/CombinedUncertainty/eCombUncertEvalMethod"),
              "Comparison with reference property values");
    EXPECT_EQ(At(xml, "/Variable/VarUncertainty/sUncertEvaluator"), "Author");
}

TEST_F(SetExport, StatementsThatOnlyRowsMakeAreAnnounced) {
    const std::string xml =
        Exported(kDensity, "^d 25 100 250 &\n"
                           "^d 26 100 251 &\n^Y & & & & & & & & 1 & & 2 & & &\n");
    EXPECT_EQ(At(xml, "/Property/PropUncertainty/sUncertEvaluator"), "Author");
    EXPECT_EQ(At(xml, "/NumValues//nStdUncertValue"), "2");
    EXPECT_EQ(At(xml, "/NumValues//nPropDeviceSpecValue"), "1");
    // Nobody says who judged the device, and an empty head would say nothing.
    EXPECT_EQ(xml.find("<PropDeviceSpec>\n"), xml.rfind("<PropDeviceSpec>\n"));
}

TEST_F(SetExport, AReferenceStateComesWithItsConditions) {
    const auto reference = [this](const std::string& function) {
        const std::string xml =
            Exported("^1 1 H S " + function + " 1\tY L & FP S 298.15 101.325 C", "^d 300 2.50 &\n");
        std::string texts = At(xml, "//ePresentation");
        for (const char* element : {"//eRefStateType", "//nRefTemp", "//nRefTempDigits",
                                    "//nRefPressure", "//nRefPressureDigits", "//eRefPhase"})
            texts += "; " + At(xml, element);
        return texts;
    };
    const std::string difference =
        "Difference with the reference state, X-X(REF); Reference phase ";
    EXPECT_EQ(reference("DFR"), difference + "with the same composition at fixed temperature and "
                                             "pressure; 298.15; 5; 101.325; 6; Crystal");
    EXPECT_EQ(reference("DPF"), difference + "at fixed temperature and the same pressure; 298.15; "
                                             "5; ; ; Crystal");
    EXPECT_EQ(reference("RTF"), "Ratio with the reference state, X/X(REF); Reference phase at the "
                                "same temperature and fixed pressure; ; ; 101.325; 6; Crystal");
    EXPECT_EQ(reference("DT"), "Difference between upper and lower temperature, X(T2)-X(T1); ; ; "
                               "; ; ; ");
    EXPECT_EQ(reference("DIR"), "Direct value, X; ; ; ; ; ; ");
    EXPECT_EQ(reference("RRX"), "Ratio with the reference state, X/X(REF); ; ; ; ; ; Crystal");
    // The equilibrium with another phase is a state of mixtures.
    for (const std::string unknown : {"QQ", "DEQ"}) {
        desktop.Expect("Unknown definition of results " + unknown +
                       "\nSystem: water\nProperty: Enthalpy | Data Error!");
        EXPECT_EQ(reference(unknown), "; ; ; ; ; ; ");
    }
}

TEST_F(SetExport, PhasesAndConstraintsFollowThePropertyAndTheComment) {
    const std::string row = "^d 300 350 &\n";
    std::string xml = Exported("^1 1 P S DIR 1\tY L G PB S & & &", row);
    EXPECT_EQ(At(xml, "/PhaseID"), "Liquid | Gas");
    EXPECT_EQ(At(xml, "/Constraint"), "");
    xml = Exported("^1 1 TB S DIR 1\tY L & FT S & & &", row);
    EXPECT_EQ(At(xml, "/PhaseID"), "Liquid | Gas");
    EXPECT_EQ(At(xml, "/Constraint"), "");
    xml = Exported("^1 1 VDN S DIR 1\tY L & FP S & & &", row, "::Method:X:P = 250.0:later:");
    EXPECT_EQ(At(xml, "/Constraint/ConstraintID"), "Pressure, kPa");
    EXPECT_EQ(At(xml, "//nConstraintValue") + " " + At(xml, "//nConstrDigits"), "250.0 4");
    xml = Exported("^1 1 RIX S DIR 1\tY L & FP S & & &", row, "::Method:X:WL = 5893:FP:");
    EXPECT_EQ(At(xml, "//nConstraintValue"), "589.3 | 101.325");
    xml = Exported("^2 1 RIX S DIR 1\tY L & FP T S WL nm & & &",
                   "^X 2 WL L - & & & - & & & + & 1 - & & - & & &\n"
                   "^d 300 589.3 1.333 &\n^D 300 5893 1.333 &\n");
    EXPECT_EQ(At(xml, "//nVarValue"), "300 | 589.3 | 300 | 589.3");
    EXPECT_EQ(At(xml, "//nStdUncertValue"), "0.1 | 0.1");
}

TEST_F(SetExport, AConstraintCarriesItsStatementsItself) {
    const std::string xml = Exported("^1 1 RIX S DIR 1\tY L & FP S & & &",
                                     "^X 2 P L + 1 95 0.5% + 0 0.20 3 + 95 1.0 - & & - & & &\n"
                                     "^X 3 WL L - & & & - & & & + & 1 - & & - & & &\n"
                                     "^d 300 1.333 &\n",
                                     "::Method:X:P = 250.0:WL = 5893:");
    EXPECT_EQ(At(xml, "/Constraint/nConstraintValue"), "250.0 | 589.3");
    EXPECT_EQ(At(xml, "/Constraint/ConstrUncertainty/sUncertEvaluator"), "Author | Author");
    EXPECT_EQ(At(xml, "/Constraint/ConstrUncertainty/nExpandUncertValue"), "1.0");
    EXPECT_EQ(At(xml, "/Constraint/ConstrUncertainty/nStdUncertValue"), "0.1");
    EXPECT_EQ(At(xml, "/Constraint/ConstrRepeatability/nConstrRepeatValue"), "0.20");
    EXPECT_EQ(At(xml, "/Constraint/ConstrDeviceSpec/nConstrDeviceSpecValue"), "1.25");
    EXPECT_EQ(At(xml, "/Constraint//nUncertAssessNum"), "");
}

TEST_F(SetExport, WhatCannotLeaveIsToldOnce) {
    const std::string place = "\nSystem: water\nProperty: Density | Data Error!";
    desktop.Expect("Rows without a valid number in " + place);
    desktop.Expect("Missing repeatability in " + place);
    const std::string rep = "^X 0 VDN L - & & & + 1 & 5 - & & - & & - & & &\n";
    const std::string xml =
        Exported(kDensity, rep + "^d 25 x 250 &\n^d & 1 250 &\n^d 25 1 250 &\n^d 26 1 250 &\n");
    EXPECT_EQ(At(xml, "//nPropValue"), "250 | 250");
    desktop.Expect("Invalid conversion factor" + place);
    EXPECT_EQ(At(Exported("^1 1 VDN ? DIR 1\tY L & FP S & & &", "^d 25 1 &\n"), ""), "");
    desktop.Expect("Invalid conversion factor" + place);
    EXPECT_EQ(At(Exported("^1 1 VDN S DIR 1\tY L & FP psi2 & & &", "^d 25 1 &\n"), ""), "");
    // A set without rows does not vanish in silence.
    desktop.Expect("No numerical data in " + place);
    EXPECT_EQ(At(Exported(kDensity, ""), ""), "");
    desktop.Expect("Rows without a valid number in " + place);
    EXPECT_EQ(At(Exported(kDensity, "^d 25 x 250 &\n"), ""), "");
}

TEST_F(SetExport, ARepeatabilityOfSomeRowsIsNotMissingInTheOthers) {
    for (const std::string rep : {"", "^X 0 VDN L - & & & + 1 & & - & & - & & - & & &\n"}) {
        const std::string xml =
            Exported(kDensity, rep + "^d 25 1 250 &\n^Y & & & & & & & & & 0.4 5 &"
                                     " & &\n^d 26 1 251 &\n");
        EXPECT_EQ(At(xml, "//nPropRepeatValue"), "0.4");
    }
}

TEST_F(SetExport, SetsThatAreToHaveNoNumbersAreNamedOnceAtTheEnd) {
    const std::string none = "^2 1 VDN S DIR 1\tN L & DP T C P S & & &\n^M 0\n"
                             "^1 1 VDN S DIR 1\tNG L & FP S & & &\n";
    desktop.Expect("These sets are stated to have no numerical data and are not in the file:\n"
                   "water: Density, Set 1\nwater: Density, Set 1");
    EXPECT_EQ(At(Exported(none, ""), ""), "");
}

TEST_F(SetExport, CodesThatNoTableKnowsAreTold) {
    const std::string noPlace = "The reference tables have no place for these data in the "
                                "export\nSystem: water\nProperty: ";
    desktop.Expect(noPlace + "Density | Data Error!");
    EXPECT_EQ(At(Exported("^2 1 VDN S DIR 1\tY L & DP QX S P S & & &", "^d 1 2 250 &\n"), ""), "");
    desktop.Expect(noPlace + "QQQ | Data Error!");
    EXPECT_EQ(At(Exported("^1 1 QQQ S DIR 1\tY L & FP S & & &", "^d 25 250 &\n"), ""), "");
    // Nor does a critical temperature hang on a temperature, or a boiling point on two variables.
    desktop.Expect(noPlace + "Critical temperature | Data Error!");
    EXPECT_EQ(At(Exported("^1 1 TC S DIR 1\tY L & FP S & & &", "^d 25 250 &\n"), ""), "");
    desktop.Expect(noPlace + "Boiling temperature at pressure P | Data Error!");
    EXPECT_EQ(At(Exported("^2 1 TB S DIR 1\tY L & FP T S P S & & &", "^d 9 9 9 &\n"), ""), "");
    const std::string xml = Exported(kDensity, "^d 25 1 250 &\n", "::Method:OWNWAY:");
    EXPECT_EQ(At(xml, "//sMethodName"), "OWNWAY");
}

TEST_F(SetExport, SetsAreCheckedAndReadInWords) {
    Read(test::kHead + "^A & O & & & & & &\n" + kDensity +
         "\n^d 25.0 100 997.05 &\n^d 10 100 -1 &\n^d 30 x 995 &\n^d 40 y 990 &\n^M 0\n");
    std::string found;
    for (const DocumentFinding& finding : CheckDocument())
        if (finding.text.starts_with("Density"))
            found += std::to_string(finding.line) + " " +
                     std::string(SeverityWord(finding.severity)) + " " + finding.text + "\n";
    EXPECT_EQ(found, "7 hint Density: no uncertainty is stated\n"
                     "7 error Density: row 2: value -1 is not valid\n"
                     "7 error Density, pressure: row 3: this is no number: x (and 1 more)\n");
    const std::string page = ReadingHtml(&Set());
    for (const char* line :
         {"<h3>Density</h3>", "<p><b>Against temperature:</b> 10 to 40 C</p>",
          "<p><b>Against pressure:</b> 100 kPa</p>", "<p><b>Values:</b> -1 to 997.05 kg/m3</p>",
          "<p><b>Rows:</b> 4</p>", "<p><b>Constraint:</b> Derived property</p>",
          "<p>A statement of uncertainty</p>"})
        EXPECT_NE(page.find(line), std::string::npos) << line << "\n" << page;
}

TEST_F(SetExport, ThePageOfASetTellsItsStatementsAndItsEnds) {
    std::string rows;
    for (int t = 10; t < 20; ++t)
        rows += "\n^d " + std::to_string(t) + " 100 99" + std::to_string(t) + " &";
    Read(test::kHead + "^A & O & & & & & &\n" + kDensity + rows + "\n^M 0\n");
    DataSet& set = Set();
    set.UX[0].iUnc = set.UX[1].iRep = true;
    set.UX[0].UValue = "0.5";
    set.UX[0].ULevel = "95";
    set.UX[1].RValue = "2%";
    set.UX[1].Repetitions = "3";
    set.recData.Item(std::size_t{9})->Statements(0).Unc = "0.8";
    const std::string page = ui::TextOfHtml(ReadingHtml(&Set()));
    const std::size_t from = page.find("Uncertainty");
    EXPECT_EQ(page.substr(from, page.find("Data are") - from),
              "Uncertainty of the values: 0.5 kg/m3 (95 % confidence), some rows with their own\n"
              "Repeatability of temperature: 2% (3 repetitions)\nRows: 10\n"
              "Temperature, C Pressure, kPa Value, kg/m3\n"
              "10 100 9910\n11 100 9911\n12 100 9912\n\u2026 4 rows \u2026\n17 100 9917\n"
              "18 100 9918 \u00B1 0.8\n19 100 9919\n");
}

} // namespace
} // namespace vexora

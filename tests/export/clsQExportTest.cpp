#include "export/ClosingCheck.h"
#include "export/ExportDocument.h"
#include "export/ExportFixture.h"
#include "export/XmlWriter.h"
#include "host/XmlPath.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsQ.h"
#include "records/clsR.h"
#include "shell/ShellFixture.h"

#include <tuple>

namespace vexora::test {

namespace {

const std::string Combustion = "^Q CMO 65850 7782447 124389 7732185 Y N & & & & & &\n";
const std::string Participants = " -1 -7.5 7 3 0 0 0 0 ";
const std::string NoEight = " & & & & & & & &";
const std::string ZeroEight = " 0 0 0 0 0 0 0 0";
const std::string Places = " C G G L & & & & 1 & & 1 & & & &" + NoEight + ZeroEight + " & & ";
const std::string State = "298.15 101.325 298.15 101.325 ";
const std::string Dissociation = "^Q OTH 10544726 10102440 999999994 999999994 N Y & & & & & &\n";
const std::string Equilibrium = "^E -1 2 0 0 0 0 1 & & & & & KP S 1 C & & & T C & & & & & & "
                                "G 12 & & & & & & P 101.325 & & & & & &\n";

class ReactionExport : public ExportFixture {
protected:
    /// Compounds by their numbers in the file: benzoic acid 1, oxygen 2, carbon dioxide 3, water 4,
    /// dinitrogen tetroxide 5, nitrogen dioxide 6, ethanol 7.
    static inline const std::string kCompounds = [] {
        std::string lines = kSource;
        for (const char* rn :
             {"65850", "7782447", "124389", "7732185", "10544726", "10102440", "64175"})
            lines += std::string("^L ") + rn + " NNNNN &\n^S 1 cm\n";
        return lines;
    }();

    void Read(const std::string& lines) {
        form.tvwTree.Clear();
        globals.recR.Clear();
        globals.ForgetCurrent();
        const ReadResult result = ReadDocument(kCompounds + lines, ReadPurpose::Look);
        ASSERT_TRUE(result.whole) << result.faultLine << ": " << result.fault;
        ASSERT_EQ(result.linesNotKept, 0);
    }
    /// The document in hand; its closing check must find nothing.
    static std::string Leaving(ExportFor readers = ExportFor::House) {
        const ExportedDocument exported = ExportDocument({2026, 1, 5}, readers);
        for (const ExportFinding& finding : exported.findings)
            if (finding.isError) ADD_FAILURE() << finding.text << "\n" << exported.xml;
        EXPECT_TRUE(IsWellFormed(exported.xml)) << exported.xml;
        return exported.xml;
    }
    std::string Left(const std::string& lines, ExportFor readers = ExportFor::House) {
        Read(lines);
        return Leaving(readers);
    }
    static std::string At(const std::string& xml, const std::string& path) {
        std::string texts;
        for (const std::string& text : host::XmlTexts(xml, "//ReactionData" + path))
            texts += (texts.empty() ? "" : " | ") + text;
        return texts;
    }
    static std::string Change(const std::string& property, const std::string& state,
                              const std::string& value) {
        return "^c" + Participants + property + Places + state + value + "\n";
    }
};

} // namespace

TEST_F(ReactionExport, ChangesAndEquilibriaLeaveWhole) {
    globals.UserName = "A. User";
    const std::string xml =
        Left(Combustion + "^A & O B & & & 12/25/2004 ::Method:STATBOMB:\n" +
             Change("HR S S 1", State, "-3226.9 & 0.2 6") +
             "^X 0 HR & - & & & + 1 0.2 6 + 95 0.5 - & & - & & &\n" + kHeader +
             Change("HR Z 65850 2", State, "-26434 & & &") + Dissociation + kHeader + Equilibrium +
             "^X 1 T & - & & & - & & & + 95 0.1 - & & - & & &\n^d 25 0.146 &\n^d 35.0 0.32 &\n" +
             "^M 0\n");
    EXPECT_EQ(Part(xml, "ReactionData") + "\n",
              FileText(VEXORA_SOURCE_DIR "/tests/export/golden/reactions.xml"));
}

TEST_F(ReactionExport, OptionalElementsStandWhereTheyAreStated) {
    const std::string xml = Left(
        "^Q XXX 65850 7732185 999999994 999999994 Y Y & & 10102440 & 7732185 64175\n" + kHeader +
        "^C -1 2 0 0 0 0 +1 0 HR S S 1 S1 L & & & & FL & & & & & & & & & M & & & & & O & 0.10 0 0 "
        "0 0 0 7 0 S M 300 & 300 & 12.50 & & &\n" +
        kHeader +
        "^H -1 2 0 0 0 0 1 & & & & & KT S 1 C & & J T C XI1 S & & & & L 127 G 2 & & & & X2 0.25 & "
        "& & & & &\n^d 25 0.5 10 &\n^M 0\n");
    // The last participant of an equilibrium is that of the reaction.
    EXPECT_EQ(At(xml, "/nReactionDataNumber"), "1 | 2");
    EXPECT_EQ(At(xml, "/Participant/RegNum"), "1 | 4 | 6 | 1 | 4 | 6");
    EXPECT_EQ(At(xml, "/Participant/nStoichiometricCoef"), "-1 | 2 | 1 | -1 | 2 | 1");
    EXPECT_EQ(At(xml, "/Participant/nSampleNm"), "1");
    EXPECT_EQ(At(xml, "/Participant/ePhase"),
              "Solution 1 | Liquid | Fluid | Liquid | Liquid | Gas | Liquid");
    EXPECT_EQ(At(xml, "/Participant/eCompositionRepresentation"),
              "Molality - amount of participant per mass of solvent, mol/kg | "
              "Amount ratio of participant to solvent");
    EXPECT_EQ(At(xml, "/Participant/nNumericalComposition"), "0.10 | 7");
    EXPECT_EQ(At(xml, "/eReactionType"), "");
    EXPECT_EQ(At(xml, "/Property/Solvent") + At(xml, "/Property/Catalyst"), "4 | 47 | 7");
    EXPECT_EQ(At(xml, "/Property/nTemperature-K") + At(xml, "/Property/nPressure-kPa"), "300");
    EXPECT_EQ(At(xml, "/Property/eStandardState"), "Hypothetical unit molarity solute");
    EXPECT_EQ(At(xml, "/Constraint/ConstraintID/ConstraintType/eComponentComposition") + " " +
                  At(xml, "/Constraint/ConstraintID/RegNum") + " " +
                  At(xml, "/Constraint/nConstraintValue"),
              "Mole fraction 4 0.25");
    EXPECT_EQ(At(xml, "/Variable//VariableType") + " " + At(xml, "/Variable/VariableID/RegNum"),
              "Temperature, K | Initial mole fraction 1");
    EXPECT_EQ(At(xml, "//nVarValue"), "298.15 | 0.5");
    const std::string strict = Leaving(ExportFor::StrictReaders);
    EXPECT_EQ(Line(strict, "Participant").find("<ePhase>Gas"), std::string::npos);
    EXPECT_NE(strict.find("<ePhase>Fluid (supercritical or subcritical phases)<"),
              std::string::npos);
}

TEST_F(ReactionExport, FinalStatesThatAreLostAreToldOnceAtTheEnd) {
    const std::string lost = ": WARNING: XML cannot store final ";
    const std::string name = "benzoic acid + 7.5 oxygen = 7 carbon dioxide + 3 water";
    desktop.Expect(name + lost + "tempareture of reaction 373.15 different that initial " +
                   "tempareture 298.15\n" + name + lost +
                   "pressure of reaction 200 different that initial pressure 101.325");
    const std::string xml = Left(
        Combustion + kHeader + Change("HR S S 1", "298.15 101.325 373.15 101.3250 ", "-1 & & &") +
        kHeader + Change("HR S S 2", "298.15 101.325 2.9815E2 200 ", "-2 & & &") + kHeader +
        Change("HR S S 3", "298.15 101.325 & & ", "-3 & & &"));
    EXPECT_EQ(At(xml, "/Property/nTemperature-K"), "298.15 | 298.15 | 298.15");
}

TEST_F(ReactionExport, WhatCannotLeaveIsToldAndLeftOutWhole) {
    const std::string equation = "benzoic acid + 7.5 oxygen = 7 carbon dioxide + 3 water";
    const std::string names = "benzoic acid + oxygen + carbon dioxide + water";
    const std::string enthalpy = "Molar enthalpy of reaction";
    const std::string place = "The reference tables have no place for these data in the export";
    const std::string constant = "Equilibrium constant in terms of partial pressure";
    const auto equilibrium = [](const char* from, const char* to) {
        return Dissociation + kHeader + Replace(Equilibrium, from, to) + "^d 25 0.146 &\n^M 0\n";
    };
    const std::string split = "dinitrogen tetroxide = 2 nitrogen dioxide";
    // Lines, fault, system, property.
    const std::tuple<std::string, std::string, std::string, std::string> cases[] = {
        {Replace(Change("HR S S 1", State, "-1 & & &"), Participants, ZeroEight + " "),
         "No coefficients of the participants are stated", names, enthalpy},
        {Replace(Change("HR S S 1", State, "-1 & & &"), "-7.5", "much"),
         "The coefficient of oxygen is no number: much", names, enthalpy},
        {Change("HR ? S 1", State, "-1 & & &"), "Invalid conversion factor", equation, enthalpy},
        {Change("HR Z 99999 1", State, "-1 & & &"), "Molar mass of the compound is not known",
         equation, enthalpy},
        {Change("HR S S 1", State, "many & & &"), "The value is no number: many", equation,
         enthalpy},
        {Change("HR S S 1", "warm 101.325 373.15 & ", "-1 & & &"),
         "The initial temperature is no number: warm", equation, enthalpy},
        {Change("VDN S S 1", State, "-1 & & &"), place, equation, "Density"},
    };
    for (const auto& [line, fault, system, property] : cases) {
        desktop.Expect(fault + "\nSystem: " + system + "\nProperty: " + property +
                       " | Data Error!");
        EXPECT_EQ(At(Left(Combustion + kHeader + line), ""), "") << line;
    }
    for (const auto& [from, to, fault] : {std::tuple{"T C", "X3 S", place.c_str()},
                                          {"P 101.325", "XI4 0.5", place.c_str()},
                                          {"T C", "T ?", "Invalid conversion factor"}}) {
        desktop.Expect(std::string(fault) + "\nSystem: " + split + "\nProperty: " + constant +
                       " | Data Error!");
        EXPECT_EQ(At(Left(equilibrium(from, to)), ""), "") << to;
    }
    desktop.Expect("Values reported as log(K) have no place in the export\nSystem: " + split +
                   "\nProperty: " + constant + " | Data Error!");
    EXPECT_EQ(
        At(Left(Dissociation + "^A & O & & & & & ::L:\n" + Equilibrium + "^d 25 -0.84 &\n^M 0\n"),
           ""),
        "");
}

TEST_F(ReactionExport, TheClosingCheckKnowsItsNumbers) {
    Read(Combustion + kHeader + Change("HR Z 65850 1", State, "-26434 & & &"));
    const std::string xml = Leaving();
    const std::vector<XmlMark> marks = {
        {1, globals.recR.Item(std::size_t{1})->recQ.Item(std::size_t{1})->recC.begin()->get()}};
    const std::tuple<const char*, const char*, const char*> faults[] = {
        {"", "", ""},
        {"Coef>-7.5<", "Coef>7.5<", "nStoichiometricCoef reads 7.5 where the record says -7.5"},
        {"-K>298.15<", "-K>25.000<", "nTemperature-K reads 25.000 where the record says 298.15"},
        {"-3228.2", "-26434", "nPropValue reads -26434 where the record says"},
        {"nReactionDataNumber>1<", "nReactionDataNumber>x<",
         "The number nReactionDataNumber reads \"x\""},
        {"\t\t\t<nPressure-kPa>101.325</nPressure-kPa>\n\t\t\t<nPressureDigits>6</"
         "nPressureDigits>\n",
         "", "A value of the record is not in the file"},
    };
    for (const auto& [from, to, told] : faults) {
        const auto findings = CheckExport(Replace(xml, from, to), marks);
        ASSERT_EQ(findings.size(), *told ? 1U : 0U) << from;
        EXPECT_EQ(findings.empty() ? "" : findings[0].text.substr(0, std::string(told).size()),
                  told);
    }
    std::string other = xml;
    const std::size_t at = other.find("nSampleNm>1<", other.find("<Participant>"));
    EXPECT_EQ(CheckExport(other.replace(at, 12, "nSampleNm>5<"), marks)[0].text,
              "nSampleNm 5 stands for no sample");
}

} // namespace vexora::test

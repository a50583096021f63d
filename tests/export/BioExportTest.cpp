#include "export/ClosingCheck.h"
#include "export/ExportDocument.h"
#include "export/ExportFixture.h"
#include "export/XmlWriter.h"
#include "host/XmlPath.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsR.h"
#include "shell/ShellFixture.h"

#include <tuple>

namespace vexora::test {

namespace {

// Compounds by their numbers in the file: glucose 1, fructose 2, water 3, lysozyme 4, glycine 5.
const std::string Glucose = "50997", Fructose = "57487", Water = "7732185", Glycine = "56406";
const std::string Compounds = "^L 50997 NNNNN &\n^S 1 cm\n^L 57487 NNNNN &\n"
                              "^L 7732185 NNNNN &\n^S 1 cm\n^S 2 cm\n"
                              "BL 12650883 3.2.1.17 1LYZ & 8 lysozyme\n^S 1 cm\n"
                              "BL 56406 & & C2H5NO2 0 glycine\n";
const std::string Dated = "^A & O B & & & 12/25/2004 &\n";

/// Isomerization in water with a buffer; its quantities, its method, and its rows and statements.
std::string Reaction(const std::string& quantities, const std::string& rows,
                     const std::string& method = "Enzymatic assay") {
    return Dated + "BR 1 0\nBP 1 50997 0 1 50997 & & 0 0 -1 S 0 & &\n" +
           "BP 0 57487 0 & 57487 & & 0 0 1 S 0 & &\n" +
           "BP 0 7732185 0 2 7732185 & & 0 0 0 & 0 & &\n" +
           "BP 0 56406 0 & 56406 & & 0 0 0 & 0 & &\n" + "BC 7732185 Solvent S 2 &\n" +
           "BC 56406 Buffer_component S & 0.05 mol\n" + quantities + "BE\nBM " + method +
           "\nB0 0 0\n" + rows;
}

/// The same of a property of lysozyme in water; head is what its BH line says.
std::string Property(const std::string& head, const std::string& quantities,
                     const std::string& rows) {
    return Dated + "BN 1\nBP 12650883 0 1 & & 12650883 & 0 8 & &\n" +
           "BP 7732185 0 1 & & 7732185 & 0 0 & &\n" + "BH " + head +
           "\nBC 7732185 Solvent & 1 &\n" + quantities + "BE\nBM DSC\n" + rows;
}

class BioExport : public ExportFixture {
protected:
    void Read(const std::string& lines) {
        form.tvwTree.Clear();
        globals.recR.Clear();
        globals.ForgetCurrent();
        const ReadResult result = ReadDocument(kSource + Compounds + lines, ReadPurpose::Look);
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
    std::string Left(const std::string& lines) {
        Read(lines);
        return Leaving();
    }
    static std::string At(const std::string& xml, const std::string& path) {
        std::string texts;
        for (const std::string& text : host::XmlTexts(xml, "//" + path))
            texts += (texts.empty() ? "" : " | ") + text;
        return texts;
    }
};

} // namespace

TEST_F(BioExport, AReactionIsWrittenWhole) {
    globals.UserName = "A. User";
    const std::string xml = Left(Reaction("BV KM 1 & & 2% P &\nBV H kJ/mol & & * P &\n"
                                          "BV T C & & & V &\nBV M mol/kg S 56406 & V &\n"
                                          "BV pH 1 & & 0.05 C 7.50\nBV P MPa & & & C 0.1\n",
                                          "BD 0.886 2.73 0.25 25 0.050\nBD 0.97 & & 35.0 0.1\n"
                                          "BD & 2.8 10% 45 0.1\n"
                                          "^X 2 T & - & & & - & & & + 95 0.1 - & & - & & &\n"));
    EXPECT_NE(xml.find("xsi:noNamespaceSchemaLocation=\"ThermoML.Bio.xsd\""), std::string::npos);
    EXPECT_EQ(Part(xml, "ReactionData") + "\n",
              FileText(VEXORA_SOURCE_DIR "/tests/export/golden/bio_reaction.xml"));
}

TEST_F(BioExport, ATransitionIsWrittenWhole) {
    const std::string xml =
        Left(Property("D 1 Native Denatured S S & &",
                      "BV T12 C & & 0.3 P &\nBV H kJ/mol & & & P &\nBV pH 1 & & & V &\n"
                      "BV W 1 S 12650883 & C 0.002\n",
                      "BD 76.2 430 4.5\nBD 70 & 3.0\n"
                      "^X 1 H & + 1 95 2% + 1 5 3 + 95 20 + B 68 - & & 15\n"));
    EXPECT_EQ(Part(xml, "PureOrMixtureData") + "\n",
              FileText(VEXORA_SOURCE_DIR "/tests/export/golden/bio_property.xml"));
}

TEST_F(BioExport, ASolubilityIsTheContentOfTheSubstance) {
    // The same code has another unit as a property than as a constraint.
    const std::string xml =
        Left(Property("S 1 & & S C & &",
                      "BV E kg/dm3 & & & P &\nBV T K & & & V &\nBV E kg/m3 S 12650883 & C 1\n"
                      "BV Js mol/dm3 & 7732185 & C 55\n",
                      "BD 0.21 298.15\n"));
    const std::string data = "PureOrMixtureData/";
    EXPECT_EQ(At(xml, data + "Property/Property-MethodID/RegNum/nOrgNum"), "4");
    EXPECT_EQ(At(xml, data + "Property//CompositionAtPhaseEquilibrium/ePropName"),
              "Mass concentration, kg/dm3");
    EXPECT_EQ(At(xml, data + "Property/PropPhaseID") + At(xml, data + "PhaseID"),
              "SolutionSolution | Crystal");
    EXPECT_EQ(At(xml, data + "Constraint/ConstraintID/ConstraintType/*"),
              "Mass concentration, kg/m3 | Solvent: MolaRity, mol/dm3");
    EXPECT_EQ(At(xml, data + "Constraint//eSolventComposition"), "Solvent: MolaRity, mol/dm3");
    EXPECT_EQ(At(xml, data + "Constraint/ConstraintID/RegNum/nOrgNum"), "4 | 3");
    EXPECT_EQ(At(xml, data + "Component/eFunction"), "Solvent");
}

TEST_F(BioExport, StandardStatesFollowFromTheQuantity) {
    const std::tuple<const char*, const char*, const char*> quantities[] = {
        {"KM", "Apparent equilibrium constant (molaLity)", "Hypothetical unit molality solute"},
        {"KJ", "Apparent equilibrium constant (molaRity)", "Hypothetical unit molarity solute"},
        {"KX", "Apparent equilibrium constant (mole fraction)", "Hypothetical pure solute"},
        {"KT", "Thermodynamic equilibrium constant", ""},
        {"S", "Entropy, J/K/mol", ""},
        {"G", "Gibbs Energy, kJ/mol", ""},
    };
    for (const auto& [code, name, state] : quantities) {
        const std::string xml =
            Left(Reaction(std::string("BV ") + code + " & & & & P &\n", "BD 2\n", "&"));
        EXPECT_EQ(At(xml, "ReactionEquilibriumProp/ePropName"), name);
        EXPECT_EQ(At(xml, "ReactionData/Property/eStandardState"), state);
        EXPECT_EQ(At(xml, "sMethodName"), "Error");
    }
}

TEST_F(BioExport, TextsLeaveEscapedAsPlainAscii) {
    const std::string xml =
        Left("BL 99999005 & & & 0 \xCE\xB2-lactoglobulin <A & B>\n" +
             Reaction("BV KT 1 & & & P &\n", "BD 2\n", "\xCE\xB1 & \xCE\xB2 < \"\xCE\xB3\""));
    EXPECT_NE(xml.find("<sMethodName>&#945; &amp; &#946; &lt; \"&#947;\"</sMethodName>"),
              std::string::npos);
    EXPECT_NE(xml.find("<sCommonName>&#946;-lactoglobulin &lt;A &amp; B&gt;</sCommonName>"),
              std::string::npos);
    for (const char c : xml)
        ASSERT_TRUE(c == '\n' || c == '\t' || (c > 31 && c < 127));
    // Only what has a number of its own is told to be of biology.
    EXPECT_EQ(At(xml, "Compound/bio/*"), "3.2.1.17 | 1LYZ");
}

TEST_F(BioExport, WhatCannotLeaveIsTold) {
    const std::string fault = "\nSystem: BioReaction 1 (D-glucose = D-fructose)\nProperty: ";
    const std::string constant = "Thermodynamic equilibrium constant";
    const std::string quantity = "BV KT 1 & & & P &\n";
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"", "BD\n", "No property in " + fault},
        {"BV Q 1 & & & P &\n", "BD 1\n",
         "The reference tables have no place for these data in the export" + fault},
        {"BV KT 1 & & & P &\nBV T bar & & & V &\n", "BD 1 2\n",
         "Invalid conversion factor" + fault + constant},
        {quantity + "BV M mol/kg S & & V &\n", "BD 1 2\n",
         "Component not stated: MolaLity" + fault + constant},
        {quantity + "BV M mol/kg S 64175 & V &\n", "BD 1 2\n",
         "Not a component of the solution: 64175" + fault + constant},
        {quantity, "", "No numerical data in " + fault + constant},
        {quantity, "BD &\n", "No numerical data in " + fault + constant},
        {quantity, "BD many\n", "Rows without a valid number in " + fault + constant},
    };
    for (const auto& [quantities, rows, told] : cases) {
        desktop.Expect(told + " | Data Error!");
        EXPECT_EQ(At(Left(Reaction(quantities, rows)), "ReactionData"), "") << told;
    }
    // A row that cannot leave does not take the others along; one without any value is none.
    desktop.Expect("Constraint without a valid number in " + fault + constant + " | Data Error!");
    desktop.Expect("Rows without a valid number in " + fault + constant + " | Data Error!");
    EXPECT_EQ(At(Left(Reaction(quantity + "BV T K & & & V &\nBV pH 1 & & & C low\n",
                               "BD 1 298\nBD 2 &\nBD & &\nBD 3 299\n")),
                 "PropertyValue/nPropValue"),
              "1 | 3");
}

TEST_F(BioExport, PhaseEquilibriaOfComplexesLeaveAndTheirOtherDataAreCounted) {
    const std::string hydrate =
        "^L 74828 NNNNN &\n^S 1 cm\nCS 1 Ice\nCC 7732185 & Water 1 X\nCE\n"
        "CS 2 Gas Hydrate\nCC 74828 1 Enclathrated_species 0.148 X\nCC 7732185 & Water 0.852 X\n"
        "CE\n^A & O & & & & & &\nSB 1\nSS 74828 0.148 X 1\nSS 7732185 0.852 X &\nSE\n";
    const std::string set =
        Dated + "BN 1\nBP -2 0 1 & & -2 & 0 0 & &\nBP 74828 0 1 & & 74828 & 0 0 & &\n" +
        "BH G 1 & & CS1 L G &\nBC 74828 Gas G 1 &\nBV P MPa G & 1% P &\nBV X 1 G 74828 & P &\n"
        "BV T K & & & V &\nBE\nBM cell\nBD 2.76 0.999 273.7\n";
    desktop.Expect("Data of complexes have no place in the file: 1 crystal structure");
    const std::string xml =
        Left(hydrate + set + "XB Pm-3n 11.9 11.9 11.9 90 90 90 & & & & & & X\nXE\n");
    EXPECT_NE(xml.find("ThermoML.Bio.xsd"), std::string::npos);
    // The first complex has no data in the file; the number is that of the place.
    EXPECT_EQ(At(xml, "Compound[7]/RegNum/nOrgNum"), "8");
    EXPECT_EQ(At(xml, "Compound[7]/sFormulaMolec"), "(CH4)0.148(H2O)0.852");
    EXPECT_EQ(At(xml, "Compound[7]/Sample/nSampleNm"), "1");
    EXPECT_EQ(At(xml, "PureOrMixtureData/Component/RegNum/nOrgNum"), "8 | 6");
    EXPECT_EQ(At(xml, "PureOrMixtureData/Component/eFunction"), "");
    EXPECT_EQ(At(xml, "PropertyGroup/VaporPBoilingTAzeotropTandP/ePropName") + " | " +
                  At(xml, "PropertyGroup/CompositionAtPhaseEquilibrium/ePropName"),
              "Pressure, kPa | Mole fraction");
    EXPECT_EQ(At(xml, "Property/Property-MethodID/RegNum/nOrgNum"), "6");
    EXPECT_EQ(At(xml, "PhaseID/ePhase"), "Crystal sI | Liquid | Gas");
    EXPECT_EQ(At(xml, "PropertyValue/nPropValue") + " " + At(xml, "nStdUncertValue"),
              "2760 | 0.999 27.6");
}

TEST_F(BioExport, AReactionOfAComplexNamesItAsACompound) {
    const std::string xml =
        Left("^L 74828 NNNNN &\nCS 1 Gas Hydrate\nCC 74828 & Gas 0.148 X\n"
             "CC 7732185 & Water 0.852 X\nCE\n^A & O & & & & & &\nSB 3\nSE\n"
             "^Q OTH -1 74828 7732185 999999994 Y N & & & & & &\n" +
             kHeader +
             "^C -1 0.148 0.852 0 0 0 0 0 HR S S 1 C G L & & & & & 3 & & & & & & &"
             " & & & & & & & & 0 0 0 0 0 0 0 0 & & 273.15 & & & 18.1 & & &\n");
    EXPECT_EQ(At(xml, "ReactionData/Participant/RegNum/nOrgNum"), "7 | 6 | 3");
    EXPECT_EQ(At(xml, "ReactionData/Participant/nSampleNm"), "3");
    EXPECT_EQ(At(xml, "Compound[7]/sCommonName"), "Gas Hydrate (methane + water)");
    EXPECT_NE(xml.find("xsi:SchemaLocation"), std::string::npos); // nothing of biology in it
}

TEST_F(BioExport, TheClosingCheckKnowsAllQuantities) {
    Read(Reaction("BV KM 1 & & & P &\nBV H kJ/mol & & & P &\nBV T C & & & V &\n"
                  "BV P MPa & & & C 0.1\n",
                  "BD 0.886 2.73 25\nBD & 2.5 35\n"));
    const std::string xml = Leaving();
    const std::vector<XmlMark> marks = {
        {1, globals.recR.Item(std::size_t{1})->recBR.begin()->get()}};
    const std::tuple<const char*, const char*, const char*> faults[] = {
        {"", "", ""},
        {"Coef>-1<", "Coef>1<", "nStoichiometricCoef reads 1 where the record says -1"},
        {"Enthalpy, kJ/mol", "Enthalpy, J/mol",
         "\"Enthalpy, J/mol\" does not name the unit of the numbers, kJ/mol"},
        {"(molaLity)<", "(molaLity), mol/kg<",
         "\"Apparent equilibrium constant (molaLity), mol/kg\" does not name the unit of the "
         "numbers, 1"},
        {">100<", ">0.1<", "nConstraintValue reads 0.1 where the record says 100"},
        {">2.5<", ">2.73<", "nPropValue reads 2.73 where the record says 2.5"},
        {">0.886<", ">2.73<", "nPropValue reads 2.73 where the record says 0.886"},
        {">298.15<", ">25.000<", "nVarValue reads 25.000 where the record says 298.15"},
        {"<nPropValue>2.5</nPropValue>", "",
         "nPropDigits 2 is more than the digits of 2|A value of the record is not in the file"},
        {"<nConstraintValue>100</nConstraintValue>", "",
         "A value of the record is not in the file"},
    };
    for (const auto& [from, to, told] : faults) {
        std::string found;
        for (const ExportFinding& finding : CheckExport(Replace(xml, from, to), marks))
            found += (found.empty() ? "" : "|") + finding.text;
        EXPECT_EQ(found, told);
    }
    std::string other = xml;
    const std::size_t at = other.find("nSampleNm>2<", other.find("<eFunction>"));
    EXPECT_EQ(CheckExport(other.replace(at, 12, "nSampleNm>5<"), marks)[0].text,
              "nSampleNm 5 stands for no sample");
}

} // namespace vexora::test

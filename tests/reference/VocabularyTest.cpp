#include "reference/Vocabulary.h"

#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"

#include "reference/ReferenceFixture.h"

#include <gtest/gtest.h>

namespace vexora {
namespace {

using Texts = std::vector<std::string>;

class Vocabulary : public test::ReferenceFixture {
protected:
    void SetUp() override {
        folder.Write(
            "Properties.tsv",
            "Code\tProperty\tUnit\tGROUP\tCONTEXT\tIndVarFixed\tPureAvail\tMixtAvail\tMixZ\t"
            "MixV\tSingle\tFixed\tOne\tTwo\tBin\tTern\tREACT\tXMLNAME\tSOURCE_OF_ROW\n"
            "VDN\tDensity\tkg/m3\t6\t\tT\tDD\tDD\t0\t1\t1\t1\t1\t1\t1\t1\t0\t"
            "Mass density, kg/m3\t-\n"
            "TB\tBoiling temperature\tK\t2\t\tP\tPP\tPP\t0\t1\t1\t1\t0\t0\t1\t1\t0\t\t-\n"
            "T\tTemperature lle\tK\t3\tlle\t\t\tPP\t0\t1\t0\t0\t0\t0\t1\t1\t0\t\t-\n"
            "T\tTemperature\tK\t2\t\t\tPP\tPP\t0\t1\t0\t0\t1\t0\t1\t1\t0\t\t-\n"
            "KT\tEquilibrium constant\t1\t12\t\t\t\t\t0\t0\t0\t0\t0\t0\t0\t0\t1\t\t-\n"
            "ZC\tCritical factor\t1\t1\t\t\tPP\tZZ\t1\t0\t1\t0\t0\t0\t1\t0\t0\t\t-\n");
        folder.Write("PropertyGroups.tsv",
                     "GROUP\tGroupName\tXMLGroup\tPure\tBin\tTern\tReact\tSOURCE_OF_ROW\n"
                     "2\tBoiling\tVaporP\t1\t1\t1\t0\t-\n"
                     "3\tTransitions\tPhaseTransition\t1\t1\t1\t0\t-\n"
                     "6\tVolumes\tVolumetricProp\t1\t1\t1\t0\t-\n"
                     "12\tEquilibria\tReactionEquilibriumProp\t0\t0\t0\t1\t-\n");
        folder.Write("IndVariables.tsv",
                     "IndVarCode\tIndVariable\tUnit\tConstr\tPure\tBin\tTern\tXMLGroup\tXMLNAME\t"
                     "NeedSolvent\tSOURCE_OF_ROW\n"
                     "P\tPressure\tkPa\t1\t1\t1\t1\tePressure\tPressure, kPa\t0\t-\n"
                     "X1\tMole fraction of component 1\t1\t1\t0\t1\t1\t\t\t0\t-\n"
                     "VM\tMolar volume\tm3/mol\t0\t1\t1\t1\t\t\t0\t-\n");
        folder.Write("Phases.tsv", "Code\tPhase\tPure\tBin\tTern\tReact\tSOURCE_OF_ROW\n"
                                   "L\tLiquid\t1\t1\t1\t1\t-\n"
                                   "C1\tCrystal 1\t1\t0\t0\t0\t-\n"
                                   "Cp1\tCrystal of pure component 1\t0\t1\t1\t0\t-\n"
                                   "S\tNever this\t1\t1\t1\t1\t-\n");
        folder.Write("Methods.tsv", "Code\tMethodCode\tMethod\tSOURCE_OF_ROW\n"
                                    "VDN\tPYC\tPycnometry\t-\nTB\tPYC\tSomething else\t-\n");
        folder.Write("Questions.tsv", "Question\tMethod\tContext\tKey\tSOURCE_OF_ROW\n"
                                      "Degassed\tPYC\tPure\tgasfree\t-\n");
        folder.Write("Purification.tsv", "Code\tMethod\tSOURCE_OF_ROW\ndist\tDistillation\t-\n");
        folder.Write("PurityDetermination.tsv", "Code\tMethod\tRating\tSOURCE_OF_ROW\n"
                                                "gc\tGas chromatography\t20\t-\n"
                                                "sup\tStated by supplier\t200\t-\n");
        folder.Write("AMASS.tsv", "SYMBOL\tAMASS\tSOURCE_OF_ROW\nCo\t58.933194\t-\nH\t1.008\t-\n");
        folder.Write("Journals.tsv", "ShortTitle\tSOURCE_OF_ROW\nJ. Chem. Thermodyn.\t-\n"
                                     "J. Chem. Eng. Data\t-\n");
        folder.Write("ALLNAME.tsv", "RN\tNAME\tFORMULA\tSOURCE_OF_ROW\n"
                                    "64175\tethanol\tC2H6O\t-\n64175\tName\tC2H6O\t-\n");
        Build();
    }
};

TEST_F(Vocabulary, SolutionsAndTheEmptyPhaseNeverReachTheTable) {
    EXPECT_EQ(PhaseCode("Solution"), "S");
    EXPECT_EQ(PhaseName("S"), "Solution");
    EXPECT_EQ(PhaseName("S1"), "Solution 1");
    EXPECT_EQ(PhaseName("S2"), "Solution 2");
    EXPECT_TRUE(PhaseValid("&"));
    EXPECT_TRUE(PhaseValid("L"));
    EXPECT_FALSE(PhaseValid("l"));
    EXPECT_FALSE(PhaseValid(""));
    EXPECT_EQ(PhaseCode("liquid"), "L");
    EXPECT_EQ(PhaseName("c1"), "");
    EXPECT_EQ(PhaseList("Pure"), (Texts{"Liquid", "Crystal 1", "Never this"}));
    EXPECT_EQ(PhaseList("Bin", "crystal"), (Texts{"Crystal of pure component 1"}));
    EXPECT_TRUE(IsCrystalPhase("Cp1"));
    EXPECT_FALSE(IsCrystalPhase("CUL"));
}

TEST_F(Vocabulary, PropertiesAreChosenByContextAndKindOfEquilibrium) {
    EXPECT_EQ(PropertyName("T", "Bin", "lle"), "Temperature lle");
    EXPECT_EQ(PropertyName("T", "Bin", "sle"), "Temperature");
    EXPECT_EQ(PropertyName("T", "Pure"), "Temperature");
    EXPECT_EQ(PropertyName("ZC", "Tern"), "Critical factor");
    EXPECT_EQ(PropertyName("vdn"), "");
    EXPECT_EQ(PropertyCode("density"), "VDN");
    EXPECT_TRUE(PropertyValid("TB"));
    EXPECT_FALSE(PropertyValid("KT"));
    EXPECT_EQ(XMLPropertyGroup("T", "Bin", "lle"), "PhaseTransition");
    EXPECT_EQ(XMLPropertyGroup("T", "Bin"), "VaporP");
    EXPECT_EQ(XMLPropertyName("VDN"), "Mass density, kg/m3");
    EXPECT_EQ(XMLPropertyName("TB"), "Boiling temperature, K");
    EXPECT_EQ(XMLPropertyName("ZC"), "Critical factor");
    EXPECT_EQ(PropertyGroups("React").size(), 1U);
    EXPECT_EQ(PropertiesOfGroup("2", "Pure").size(), 2U);
    EXPECT_EQ(PropertiesOfGroup("12", "Pure").size(), 0U);
    EXPECT_EQ(PropertiesOfGroup("12", "React").size(), 1U);
}

TEST_F(Vocabulary, ModesOpenTheClassOfAProperty) {
    EXPECT_EQ(PureAvailable("VDN", "Two"), "DD");
    EXPECT_EQ(PureAvailable("TB", "Two"), "");
    EXPECT_EQ(PureAvailable("VDN", "rowid"), "");
    EXPECT_EQ(PureAvailable("VDN", "Single Fixed"), "");
    EXPECT_EQ(MixtureAvailable("ZC", "MixZ"), "ZZ");
    EXPECT_EQ(MixtureAvailable("ZC", "MixV"), "");
    EXPECT_EQ(IndVarFixed("TB"), "P");
    EXPECT_EQ(IndVarFixed("T"), "T");
    EXPECT_EQ(IndVarFixed("none"), "T");
    EXPECT_EQ(DefaultUnit("Density"), "kg/m3");
    EXPECT_EQ(DefaultUnit("Pressure"), "kPa");
}

TEST_F(Vocabulary, ValuesWithQuotesFindWhatTheyNameAndBreakNothing) {
    for (const char* text : {"\"", "'", "x\" or 1=1 --", "'; drop table Properties; --", "Phase"}) {
        EXPECT_EQ(PhaseCode(text), "") << text;
        EXPECT_EQ(PropertyName(text), "") << text;
        EXPECT_EQ(MethodCode(text, text), "") << text;
        EXPECT_EQ(AtomicMass(text), std::nullopt) << text;
    }
}

TEST_F(Vocabulary, MethodsBelongToTheirProperty) {
    EXPECT_EQ(XMLMethod("PYC", "VDN"), "Pycnometry");
    EXPECT_EQ(XMLMethod("pyc", "VDN"), "");
    EXPECT_EQ(MethodCode("Pycnometry", "TB"), "");
    EXPECT_EQ(MethodsOf("TB").at(0).Method, "Something else");
    EXPECT_EQ(Questions("PYC", "Pure").at(0).Key, "gasfree");
    EXPECT_TRUE(Questions("PYC", "Bin").empty());
    EXPECT_EQ(AtomicMass("Co"), 58.933194);
    EXPECT_EQ(AtomicMass("CO"), std::nullopt);
}

TEST_F(Vocabulary, FreeTextOfSamplesKeepsItsBracketsInCodesOnly) {
    EXPECT_EQ(PurificationCode("Distillation"), "dist");
    EXPECT_EQ(PurificationName("dist"), "Distillation");
    EXPECT_EQ(PurificationCode("(frozen twice)"), "(frozen twice)");
    EXPECT_EQ(PurificationName("(frozen (twice)"), "frozen  twice");
    EXPECT_EQ(DeterminationName("(by us)"), "by us");
    EXPECT_EQ(DeterminationCode("("), "()");
    EXPECT_EQ(DeterminationList(), (Texts{"Stated by supplier", "Gas chromatography"}));
    EXPECT_EQ(PurityRating("gc"), 20);
    EXPECT_EQ(PurityRating("y"), std::nullopt);
}

TEST_F(Vocabulary, TheFirstOfSeveralRowsAnswersAndANullNothing) {
    databases.LocalDb.Open(folder.File("VXRLocal.mdb"), false);
    databases.LocalDb.Execute("insert into Phases (Code, Phase) values ('L', 'Second'),"
                              " ('l', 'Small'), ('L2', 'LIQUID'), (null, 'Codeless'),"
                              " ('N', null)");
    EXPECT_EQ(PhaseName("L"), "Liquid");
    EXPECT_EQ(PhaseName("l"), "Small");
    EXPECT_EQ(PhaseCode("liquid"), "L");
    EXPECT_EQ(PhaseName(""), "");
    EXPECT_EQ(PhaseCode(""), "");
    EXPECT_EQ(PhaseCode("codeless"), "");
    EXPECT_EQ(PhaseList("").size(), 9U);
}

TEST_F(Vocabulary, RowsAreReadAnewWhenTheyChangeAndWhenOtherDatabasesOpen) {
    const VariableRow* before = FindVariable("P");
    EXPECT_EQ(FindVariable("P"), before);
    EXPECT_EQ(AtomicMass("Xx"), std::nullopt);
    folder.Write("AMASS.tsv", "SYMBOL\tAMASS\tSOURCE_OF_ROW\nXx\t5\t-\n");
    Build();
    EXPECT_EQ(AtomicMass("Xx"), 5);
    EXPECT_EQ(AtomicMass("Co"), std::nullopt);
    databases.LocalDb.Open(folder.File("VXRLocal.mdb"), false);
    {
        const Transaction notCommitted(databases.LocalDb);
        databases.LocalDb.Execute("update AMASS set AMASS=6");
        EXPECT_EQ(AtomicMass("Xx"), 6);
    }
    EXPECT_EQ(AtomicMass("Xx"), 5);
    ReferenceDatabases none;
    UseDatabases(&none);
    EXPECT_EQ(AtomicMass("Xx"), std::nullopt);
    EXPECT_EQ(ConversionFactor("xyz"), 0);
    UseDatabases(&databases);
    databases.LocalDb.Close();
    EXPECT_EQ(AtomicMass("Xx"), std::nullopt);
}

TEST_F(Vocabulary, ATableThatCannotBeReadIsToldAtEachLookUpOfIt) {
    databases.LocalDb.Open(folder.File("VXRLocal.mdb"), false);
    databases.LocalDb.Execute("drop table Questions");
    databases.LocalDb.Execute("alter table Phases rename column Code to Kode");
    for (int i = 0; i < 2; ++i) {
        EXPECT_THROW(Questions("PYC", "Pure"), DatabaseError);
        EXPECT_THROW(PhaseName("L"), DatabaseError);
    }
    EXPECT_EQ(VariableName("P"), "Pressure");
}

TEST_F(Vocabulary, VariablesAreFilteredByContextAndNamedForTheExport) {
    EXPECT_EQ(VariableName("X1"), "Mole fraction of component 1");
    EXPECT_EQ(VariableName("X1", "Pure"), "");
    EXPECT_TRUE(VariableValid("P"));
    EXPECT_FALSE(VariableValid("X1"));
    EXPECT_EQ(VariablesOf("Pure").size(), 2U);
    EXPECT_EQ(VariablesOf("Bin", true).size(), 2U);
    EXPECT_EQ(XMLVariableName("P"), "Pressure, kPa");
    EXPECT_EQ(XMLVariableName("VM"), "Molar volume, m3/mol");
    const std::pair<const char*, const char*> groups[] = {{"P", "ePressure"},
                                                          {"X1", "eComponentComposition"},
                                                          {"M", "eComponentComposition"},
                                                          {"W2", "eComponentComposition"},
                                                          {"Ws", "eSolventComposition"},
                                                          {"Js", "eSolventComposition"},
                                                          {"X1S", "eSolventComposition"},
                                                          {"VM", "eMiscellaneous"},
                                                          {"pH", "eMiscellaneous"}};
    for (const auto& [code, group] : groups)
        EXPECT_EQ(XMLVariableGroup(code), group) << code;
    // A bio quantity shares the words of a variable only when it shares its unit.
    EXPECT_EQ(XMLBioVariableName({"VM", "Volume", "m3/mol", false, "", ""}),
              "Molar volume, m3/mol");
    EXPECT_EQ(XMLBioVariableName({"VM", "Vitamin", "mol/kg", false, "", ""}), "Vitamin, mol/kg");
    EXPECT_EQ(XMLBioPropertyName({"P", "Partition", "1", false, "", ""}), "Partition");
}

TEST(PureLetters, EveryClassAnswersForFluidsAndSolids) {
    struct Case {
        const char* propertyClass;
        bool boundary;
        const char* letters; // of L, G, FL, C1 in turn, "-" for none
    };
    const Case cases[] = {{"NN", false, "NNnn"}, {"FF", true, "FFff"},  {"GG", false, "GGgg"},
                          {"DD", true, "VVVv"},  {"DD", false, "DDdd"}, {"HH", true, "lll-"},
                          {"HH", false, "HHhh"}, {"PP", true, "SPSs"},  {"ZZ", true, "----"}};
    for (const Case& c : cases) {
        std::string letters;
        for (const char* phase : {"L", "G", "FL", "C1"}) {
            const auto letter = PureLetter(c.propertyClass, c.boundary, phase);
            letters += letter && !letter->empty() ? *letter : "-";
        }
        EXPECT_EQ(letters, c.letters) << c.propertyClass << c.boundary;
    }
    EXPECT_EQ(PureLetter("", false, "L"), std::nullopt);
}

TEST(VocabularyWithoutDatabase, EveryLookUpIsEmpty) {
    UseDatabases(nullptr);
    EXPECT_EQ(PhaseName("L"), "");
    EXPECT_EQ(PhaseName("S"), "Solution");
    EXPECT_TRUE(PropertyGroups("Pure").empty());
    EXPECT_EQ(AtomicMass("H"), std::nullopt);
    EXPECT_EQ(UnitList("kPa"), (Texts{"kPa"}));
}

} // namespace
} // namespace vexora

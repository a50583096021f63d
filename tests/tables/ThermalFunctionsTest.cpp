// Tables of thermal functions of a pure compound.
#include "tables/ThermalFunctions.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "tables/ProcessTableFixture.h"

namespace vexora::test {
namespace {

class ThermalFunctions : public ProcessTableFixture {
protected:
    ProcessSystem Compound(const std::string& rn, const std::string& phase) {
        globals.recR.Clear();
        EXPECT_TRUE(ReadDocument(kSource + "^L " + rn + " NNNNN &\n^S 1 cm;;99.9m%,gc\n").whole);
        ProcessSystem system;
        system.sample =
            globals.recR.Item(std::size_t{1})->recL.Item(std::size_t{1})->recS.Item(std::size_t{1});
        system.phase = phase;
        return system;
    }
    /// The lines behind those of the sample, which a load and a save leaves as they are.
    std::string Processed(const std::string& text, const ProcessSystem& system) {
        const ProcessTable table = TableOf(1, text);
        const ThermalAnalysis analysis = AnalyseTDF(table);
        EXPECT_TRUE(analysis.Ok) << analysis.message << analysis.hint;
        EXPECT_EQ(Findings(CheckThermalTable(table, analysis, system)), "");
        for (const auto& made : ProcessTwo(table, analysis, system))
            made->AttachTo(*system.sample);
        return SavedBehind("gc\n");
    }
    static std::string Lines(const std::string& definition, const std::string& rows) {
        return Header + definition + "\n" + rows + "^M 0\n";
    }
};

const std::string Alumina = "T CP S\nS S S\n- - -\n"
                            "100 12.855 4.295\n200 51.120 24.880\n298.15 79.015 50.950\n"
                            "400 96.086 76.779\n600 112.545 119.345\n800 120.135 152.873\n"
                            "1000 124.771 180.210";

TEST_F(ThermalFunctions, AColumnEachBecomesASetAgainstTemperature) {
    EXPECT_EQ(Processed(Alumina, Compound("1344281", "C")),
              Lines("^1 1 CP S DIR 1\tS C & FP S & & &", Rows(Alumina, {0, 1})) +
                  Lines("^1 1 S S DIR 1\tS C & FP S & & &", Rows(Alumina, {0, 2})));
}

TEST_F(ThermalFunctions, DifferencesGoByTheirOnlyRowOfZero) {
    const std::string water = "T H CS CV\nS S S S\n- - - -\n298.15 0.000 - 74.5\n"
                              "300 0.139 75.3 74.4\n320 - 75.3 73.4\n340 3.153 75.4 72.2";
    EXPECT_EQ(Processed(water, Compound("7732185", "L")),
              Lines("^1 1 H S DFR 1\tS L & FP S 298.15 0 L",
                    "^d 298.15 0.000 &\n^d 300 0.139 &\n^d 340 3.153 &\n") +
                  Lines("^1 1 CS S DIR 1\tS L G PB S & & &",
                        "^d 300 75.3 &\n^d 320 75.3 &\n^d 340 75.4 &\n") +
                  Lines("^1 1 CV S DIR 1\tS L & FV S & & &", Rows(water, {0, 3})));
    // Without such a row, and with two, nobody knows.
    for (const char* zeros : {"25 1.5 1\n27 1.6 1\n", "25 0 1\n27 0.0 1\n"})
        EXPECT_NE(Processed("T UA G/T\nC S S\n- - -\n" + Replace(zeros, " 1\n", " -1\n"),
                            Compound("7732185", "L"))
                      .find("^1 1 UA S DFR 1\tS L & FP C 0 0 C\n"),
                  std::string::npos);
    EXPECT_NE(Processed("T G\nC S\n- -\n25 0\n27 0.139", Compound("7732185", "L"))
                  .find("^1 1 G S DFR 1\tS L & FP C 298.15 0 L\n"),
              std::string::npos);
}

TEST_F(ThermalFunctions, UnitsAndUncertaintiesGoAlong) {
    const std::string table = "T CP CU CP\nC 4.184 - z\n- - - -\n25 18.0 0.2 4.18\n26 18.1 - 4.18";
    EXPECT_EQ(Processed(table, Compound("7732185", "L")),
              Header +
                  "^M 4.184\n^1 1 CP S DIR 1\tS L & FP C & & &\n"
                  "^X 0 CP L - & & & - & & & - & & + A & - & & &\n"
                  "^d 25 18.0 &\n^Y & & & & & & & & 0.2 &\n^d 26 18.1 &\n^M 0\n^M 18.015\n" +
                  Lines("^1 1 CP z DIR 2\tS L & FP C & & &", Rows(table, {0, 3})));
}

TEST_F(ThermalFunctions, WhatIsMissingOrWrongIsTold) {
    struct Case {
        const char* table;
        const char* told;
    };
    const Case cases[] = {
        {"CP\nS\n-\n75", "Data errors detected | A column of temperatures"},
        {"T\nS\n-\n300", "Data errors detected | A column of a property"},
        {"T T CP\nS S S\n- - -\n300 300 75",
         "Data errors detected | Another quantity for column 2, which repeats column 1"},
        {"T CP\nS K\n- -\n300 75", "Data errors detected | Another unit for column 2"},
        {"T CP\nS -\n- -\n300 75", "Data errors detected | A unit for column 2"},
        {"T CP\nS -1\n- -\n300 75",
         "Data errors detected | A factor above 0 as the unit of column 2"},
        {"T X1\nS D\n- -\n300 0.5", "Data errors detected | Another quantity for column 2"},
        {"T CU CP\nS - S\n- - -\n300 1 75", "Data errors detected | No uncertainties of "
                                            "temperatures, which have no place in the sets"},
        {"T CP\nS S\n- -\n300 -", "Data errors detected | A row with a temperature and a property"},
        {"T CP CU S\nC S - S\n- - - -\n2x 75 - -\n25 7,5 - 1e\n- 75 - -\n26 -75 - -\n"
         "27 75 -1 -\n28 - 1 70\n29 - - -\n-300 75 - -\n5000 75 50% -",
         "0,0 Invalid value of independent variable\n"
         "1,3 Invalid property value\n"
         "2,0 Invalid value of independent variable\n"
         "3,1 Value -75 Heat capacity at constant pressure Cp, J/K/mol is not valid\n"
         "4,2 Invalid value of combined uncertainty\n"
         "5,2 There is no value for this combined uncertainty\n"
         "6,0 ? The row has no property and will be left out\n"
         "7,0 Value -26.85 Temperature, K is not valid\n"
         "8,0 ? Value 5273.15 Temperature, K is suspicious\n"},
    };
    const ProcessSystem system = Compound("7732185", "L");
    for (const Case& one : cases) {
        const ProcessTable table = TableOf(1, one.table);
        const ThermalAnalysis analysis = AnalyseTDF(table);
        EXPECT_EQ(analysis.Ok ? Findings(CheckThermalTable(table, analysis, system))
                              : analysis.message + " | " + analysis.hint,
                  one.told)
            << one.table;
    }
}

} // namespace
} // namespace vexora::test

// Tables of phase equilibria as papers print them, and the sets that they become.
#include "tables/ProcessTableFixture.h"

#include <random>
#include <set>

namespace vexora::test {
namespace {

const std::string Boiling = "T P X1 X1\nC S D D\n- - L G\n"
                            "95.5 101.325 0.0190 0.1700\n89.0 101.325 0.0721 0.3891\n"
                            "86.7 101.325 0.0966 0.4375\n85.3 101.325 0.1238 0.4704\n"
                            "84.1 101.325 0.1661 0.5089\n82.7 101.325 0.2337 0.5445\n"
                            "82.3 101.325 0.2608 0.5580\n81.5 101.325 0.3273 0.5826\n"
                            "80.7 101.325 0.3965 0.6122\n79.8 101.325 0.5079 0.6564\n"
                            "79.7 101.325 0.5198 0.6599\n79.3 101.325 0.5732 0.6841\n"
                            "78.74 101.325 0.6763 0.7385\n78.41 101.325 0.7472 0.7815\n"
                            "78.15 101.325 0.8943 0.8943";
const std::string Layers = "T W1 W1\nC 0.01 0.01\n- L1 L2\n"
                           "20 7.81 79.93\n25 7.35 79.73\n30 7.08 79.38\n40 6.60 78.59\n"
                           "50 6.46 77.58\n60 6.52 76.38\n70 6.73 74.79\n80 6.89 73.53";
const std::string Triangle = "T W1 W2 W3 W1 W2 W3\nC 0.01 0.01 0.01 0.01 0.01 0.01\n"
                             "- L1 L1 L1 L2 L2 L2\n"
                             "18 0.00 99.01 0.99 0.00 0.84 99.16\n"
                             "18 6.77 91.85 1.38 25.10 1.21 73.69\n"
                             "18 17.72 80.00 2.28 44.12 7.30 48.58\n"
                             "18 25.75 70.13 4.12 50.18 15.11 34.71\n"
                             "18 27.65 67.15 5.20 50.56 18.33 31.11\n"
                             "18 32.08 59.99 7.93 49.41 25.20 25.39\n"
                             "18 34.61 55.81 9.58 47.87 28.85 23.28";

const std::string NoState =
    "Properties and/or phases are not completely defined in a consistent way\n"
    "Try to add T or P as a state variable | ";

class PhaseEquilibria : public ProcessTableFixture {};

TEST_F(PhaseEquilibria, BoilingTemperaturesAndTheGasAtOnePressure) {
    const ProcessSystem system = Mixture("^B 64175 7732185 &");
    Process(TableOf(2, Boiling), system);
    const std::string lines =
        "^B 64175 7732185 P\n" + Header + "^1 1 1 T C DIR 1 Y L P 101.325 G & X1 D & & & & & &\n" +
        Rows(Boiling, {2, 0}) + Header + "^1 1 1 X1 D DIR 1 Y G P 101.325 L -1 X1 D & & & & & &\n" +
        Rows(Boiling, {2, 3});
    EXPECT_EQ(Saved(), lines);
    // The pressure may as well be known apart from the table.
    const ProcessSystem again = Mixture("^B 64175 7732185 &");
    ProcessTable withoutPressure = TableOf(2, Boiling);
    withoutPressure.columns[1] = {};
    Process(withoutPressure, again, {.P = "101.325"});
    EXPECT_EQ(Saved(), lines);
    const std::string xml = Leaving();
    const std::string row = "/NumValues[1]/VariableValue";
    EXPECT_EQ(At(xml, row + "/nVarValue") + "; " + At(xml, row + "/nVarDigits"),
              "0.0190 | 0.0190; 3 | 3");
    EXPECT_EQ(At(xml, "/NumValues[1]/PropertyValue/nPropValue") + "; " +
                  At(xml, "/NumValues[1]/PropertyValue/nPropDigits"),
              "368.65 | 0.1700; 4 | 4");
    EXPECT_EQ(At(xml, "/Constraint/nConstraintValue") + "; " + At(xml, "/Constraint/nConstrDigits"),
              "101.325 | 101.325; 6 | 6");
    EXPECT_EQ(At(xml, "/PhaseID/ePhase") + "; " + At(xml, "/Property/PropPhaseID/ePropPhase") +
                  "; " + At(xml, "/Variable/VarPhaseID/eVarPhase"),
              "Liquid | Gas | Gas | Liquid; Liquid | Gas; Liquid | Liquid");
}

TEST_F(PhaseEquilibria, TwoLayersWhosePressureNobodyTells) {
    const ProcessSystem system = Mixture("^B 64175 7732185 &");
    Process(TableOf(2, Layers), system);
    const std::string head = Header + "^M 0.01\n^1 1 1 W1 S DIR ";
    EXPECT_EQ(Saved(), "^B 64175 7732185 S\n" + head + "1 Y L1 L2 & & & T C & & & & & &\n" +
                           Rows(Layers, {0, 1}) + head + "2 Y L2 L1 & & & T C & & & & & &\n" +
                           Rows(Layers, {0, 2}));
    const std::string xml = Leaving();
    EXPECT_EQ(At(xml, "/NumValues[1]/VariableValue/*") + "; " +
                  At(xml, "/NumValues[1]/PropertyValue/*") + "; " + At(xml, "/Constraint/*"),
              "1 | 293.15 | 3 | 1 | 293.15 | 3; 1 | 0.0781 | 3 | 1 | 0.7993 | 4; ");
}

TEST_F(PhaseEquilibria, TiesOfATernary) {
    const ProcessSystem system = Mixture("^T 64197 67663 7732185 &");
    Process(TableOf(3, Triangle), system);
    const std::string head = Header + "^M 0.01\n^1 1 1 1 ";
    // A variable has no factor in its record: its values are those of the system unit.
    const auto rows = [](std::size_t property) {
        std::string text;
        const std::vector<std::string> acid = {"0.00",   "0.0677", "0.1772", "0.2575",
                                               "0.2765", "0.3208", "0.3461"};
        const std::vector<std::string> lines = Split(Triangle, '\n');
        for (std::size_t i = 0; i < acid.size(); ++i)
            text += "^d " + acid[i] + " " + Split(lines[i + 3], ' ')[property] + " & " +
                    std::to_string(i + 1) + "\n";
        return text;
    };
    EXPECT_EQ(Saved(), "^T 64197 67663 7732185 S\n" + head +
                           "W2 S DIR 1 Y L1 T 291.15 L2 & & & W1 S & & & & & &\n" + rows(2) + head +
                           "W1 S DIR 1 Y L2 T 291.15 L1 -1 & & W1 S & & & & & &\n" + rows(4) +
                           head + "W3 S DIR 1 Y L2 T 291.15 L1 -1 & & W1 S & & & & & &\n" +
                           rows(6));
}

TEST_F(PhaseEquilibria, AGasAboveATernaryAtOnePressure) {
    const ProcessSystem system = Mixture("^T 64197 67663 7732185 &\n" + Header +
                                         "^1 1 1 1 X2 D DIR 3 Y L1 T 291.15 L2 & & & X1 D & & & & "
                                         "& &\n^d 0.1 0.8 & 7");
    const std::string table = "T P X1 X2 X1 CU X2\nS S D D D - D\n- - L L G - G\n"
                              "340.1 101.3 0.10 0.20 0.31 0.01 0.42\n"
                              "341.1 101.30 0.40 0.20 0.51 - 0.32";
    Process(TableOf(3, table), system);
    const std::string saved = Saved();
    EXPECT_EQ(saved.substr(saved.find(" & 7\n") + 5),
              Header +
                  "^2 1 1 1 X2 D DIR 1 Y L P 101.3 G & T S X1 D & & & & & &\n"
                  "^d 340.1 0.10 0.20 & 8\n^d 341.1 0.40 0.20 & 9\n" +
                  Header +
                  "^2 1 1 1 X1 D DIR 1 Y G P 101.3 L -2 T S X1 D & & & & & &\n"
                  "^X 0 X1 G - & & & - & & & - & & + A & - & & &\n"
                  "^d 340.1 0.10 0.31 & 8\n^Y & & & & & & & & & & & & 0.01 &\n"
                  "^d 341.1 0.40 0.51 & 9\n" +
                  Header +
                  "^2 1 1 1 X2 D DIR 2 Y G P 101.3 L -2 T S X1 D & & & & & &\n"
                  "^d 340.1 0.10 0.42 & 8\n^d 341.1 0.40 0.32 & 9\n");
}

TEST_F(PhaseEquilibria, RowsOfOnePhaseStandInASetOfTheirOwn) {
    const ProcessSystem system = Mixture("^T 64197 67663 7732185 &");
    Process(TableOf(3, "T X1 X2 X1 X2\nS D D D D\n- L1 L1 L2 L2\n300 .1 .1 .5 .1\n"
                       "300 .2 .2 - -\n300 - - .4 .3"),
            system, {.P = "90"});
    const std::string head = Header + "^1 1 1 1 ";
    EXPECT_EQ(Saved(), "^T 64197 67663 7732185 S\n" + head +
                           "X2 D DIR 1 Y L1 T 300 P 90 L2 & X1 D & & & & & &\n"
                           "^d 0.1 0.1 & 1\n^d 0.2 0.2 & &\n" +
                           head +
                           "X1 D DIR 1 Y L2 T 300 P 90 L1 -1 X1 D & & & & & &\n"
                           "^d 0.1 0.5 & 1\n" +
                           head +
                           "X2 D DIR 2 Y L2 T 300 P 90 L1 -1 X1 D & & & & & &\n"
                           "^d 0.1 0.1 & 1\n" +
                           head +
                           "X1 D DIR 2 Y L2 T 300 P 90 L1 & X2 D & & & & & &\n"
                           "^d 0.3 0.4 & &\n");
}

/// Rows with holes anywhere: those without a finding lose nothing.
TEST_F(PhaseEquilibria, EachNumberGoesIntoASet) {
    std::minstd_rand random(1);
    for (const bool isBinary : {true, false}) {
        const ProcessSystem system =
            Mixture(isBinary ? "^B 64175 7732185 &" : "^T 64197 67663 7732185 &");
        ProcessTable table =
            isBinary ? TableOf(2, "T P X1 X1\nS S D D\n- - L G")
                     : TableOf(3, "T P X1 X2 X3 X1 X2\nS S D D D D D\n- - L1 L1 L1 L2 L2");
        const std::vector<std::string> values =
            isBinary ? std::vector<std::string>{"30", "90", "0.3", "0.4"}
                     : std::vector<std::string>{"30", "90", "0.3", "0.5", "0.2", "0.1", "0.9"};
        for (int row = 0; row < 1000; ++row) {
            std::vector<std::string> cells = values;
            cells[1] += std::to_string(row);
            cells[0] += std::to_string(row % 2);
            for (std::string& cell : cells)
                if (random() % 8 == 0) cell.clear();
            table.rows.push_back({cells, -1, ""});
        }
        const PhaseAnalysis analysis = AnalyseVLE(table);
        std::set<std::pair<int, int>> lost;
        for (const Finding& one : CheckPhaseTable(table, analysis, system))
            table.rows[static_cast<std::size_t>(one.row)].cells.clear();
        for (int row = 0; row < 1000; ++row)
            for (int column = 0; column < static_cast<int>(table.columns.size()); ++column)
                if (!table.Cell(row, column).empty()) lost.insert({row, column});
        EXPECT_GT(lost.size(), 1000U);
        const PhaseAnalysis whole = AnalyseVLE(table);
        for (const PlannedSet& planned : whole.sets)
            for (const int row : planned.rows) {
                lost.erase({row, planned.property});
                for (const int column : planned.variables)
                    lost.erase({row, column});
            }
        std::erase_if(lost, [&](const auto& cell) {
            return std::ranges::find(whole.implied, cell.second) != whole.implied.end();
        });
        EXPECT_TRUE(lost.empty()) << lost.begin()->first << ", " << lost.begin()->second;
    }
}

TEST_F(PhaseEquilibria, ConstantsComeOfTheColumnsOrAreAskedFor) {
    const ProcessSystem system = Mixture("^B 64175 7732185 &");
    ProcessTable table = TableOf(2, Layers);
    const PhaseAnalysis first = AnalyseVLE(table);
    EXPECT_TRUE(first.Ok && first.asksP && !first.asksT);
    EXPECT_FALSE(AnalyseVLE(table, {.isAsked = true}).asksP);
    table.notStated = {"P"};
    EXPECT_FALSE(AnalyseVLE(table).asksP);
    Process(table, system, {.P = "101.325"});
    EXPECT_NE(Saved().find("W1 S DIR 1 Y L1 P 101.325 L2 & T C & & & & & &\n"), std::string::npos);
    // A state that nobody knows: of a ternary both are asked for, and one is needed.
    ProcessTable ternary = TableOf(3, "X1 X2 X1\nD D D\nL1 L1 L2\n.1 .2 .8\n.2 .3 .7");
    const PhaseAnalysis both = AnalyseVLE(ternary);
    EXPECT_TRUE(both.Ok && both.asksP && both.asksT);
    EXPECT_EQ(Told(ternary, AnalyseVLE(ternary, {.T = "300", .isAsked = true})),
              "X2(L1) X1(L1) : L2 T=300 & *2\nX1(L2) X1(L1) : L1 T=300 & *2\n");
    EXPECT_EQ(Told(ternary, AnalyseVLE(ternary, {.isAsked = true})),
              NoState + "A temperature or a pressure");
    ternary.notStated = {"T", "P"};
    EXPECT_TRUE(AnalyseVLE(ternary).Ok);
    // The role that a column had in stored sets goes before its values.
    ProcessTable filled = TableOf(2, "T P X1 X1\nS S D D\n- - L G\n300 50 .1 .2");
    filled.columns[1].role = ProcessColumn::Role::Constant;
    EXPECT_EQ(Told(filled, AnalyseVLE(filled)),
              "T(L) X1(L) : G P=50 *1\nX1(G) X1(L) : L P=50 *1\n");
    filled.columns[1].role = ProcessColumn::Role::Variable;
    filled.rows.resize(2, filled.rows[0]);
    EXPECT_EQ(Told(filled, AnalyseVLE(filled)), "X1(L) P : G T=300 *2\nX1(G) P : L T=300 *2\n");
    filled.columns[0].role = ProcessColumn::Role::Constant;
    filled.columns[1].role = ProcessColumn::Role::Free;
    EXPECT_EQ(Told(filled, AnalyseVLE(filled)),
              "P(L) X1(L) : G T=300 *2\nX1(G) X1(L) : L T=300 *2\n");
    filled.columns[1].role = ProcessColumn::Role::Variable;
    filled.rows[1].cells[0] = "310";
    filled.columns[2].role = ProcessColumn::Role::Variable;
    EXPECT_EQ(Told(filled, AnalyseVLE(filled)), "T(L) P X1(L) : G *2\nX1(G) P X1(L) : L *2\n");
    // It may be one that a new table would not be told against.
    ProcessTable turned = TableOf(2, "T X1 X1\nS D D\n- L1 L2\n300 .1 .2\n310 .2 .3");
    turned.columns[2].role = ProcessColumn::Role::Variable;
    EXPECT_EQ(Told(turned, AnalyseVLE(turned)),
              "T(L1) X1(L2) : L2 & *2\nX1(L1) X1(L2) : L2 & *2\n");
}

TEST_F(PhaseEquilibria, HeadsAndValuesTellWhatIsAgainstWhat) {
    struct Case {
        int mixType;
        const char* table;
        const char* told;
    };
    const Case cases[] = {
        // Binaries with a gas.
        {2, "T X1 X1\nS D D\n- L G\n300 .1 .2\n310 .2 .3",
         "T(L) X1(L) : G & *2\nX1(G) X1(L) : L & *2\n"},
        {2, "T P X1 X1\nC S D D\n- - L G\n25 50 .1 .2\n25 60 .2 .3",
         "P(L) X1(L) : G T=298.15 *2\nX1(G) X1(L) : L T=298.15 *2\n"},
        {2, "T P X1 X1\nS S D D\n- - L G\n300 50 .1 .2\n300 60 .2 .3\n310 70 .3 .4",
         "T(L) X1(L) P : G *3\nX1(G) X1(L) P : L *3\n"},
        {2, "T P X1 X1\nS S D D\n- - G L\n300 50 .1 .2\n310 60 .2 .3",
         "P(L) X1(G) T : G *2\nX1(L) X1(G) T : G *2\n"},
        {2, "T P X1 X1 X1\nS S D D D\n- - L1 L2 G\n300 50 .1 .8 .2\n300 60 .2 .7 .3",
         "T(L1) X1(L1) : L2 G *2\nP(L1) X1(L1) : L2 G *2\nX1(L2) X1(L1) : L1 G *2\n"
         "X1(G) X1(L1) : L1 L2 *2\n"},
        // Binaries without one.
        {2, "T W1 W1\nS D D\n- L1 L2\n300 .1 .9\n310 .2 .8",
         "W1(L1) T : L2 & *2\nW1(L2) T : L1 & *2\n"},
        {2, "P W1 W1\nS D D\n- L1 L2\n300 .1 .9\n310 .2 .8",
         "W1(L1) P : L2 & *2\nW1(L2) P : L1 & *2\n"},
        {2, "T P X1 X1\nS S D D\n- - L Cp1\n300 50 .1 1\n310 60 .2 1\n320 70 .3 -",
         "X1(L) T P : Cp1 *3\n"},
        {2, "P T X1 - -\nS S D - -\n- - L Cp1 Cp2\n50 300 .1 - -\n60 310 .2 - -",
         "P(L) T : Cp1 Cp2 *2\nX1(L) T : Cp1 Cp2 *2\n"},
        // Ternaries.
        {3, "T X1 X2 X1 X2\nS D D D D\n- L1 L1 L2 L2\n300 .1 .1 .5 .1\n300 .2 .2 .4 .1",
         "X2(L1) X1(L1) : L2 T=300 & *2\nX1(L2) X1(L1) : L1 T=300 & *2\n"
         "X2(L2) X1(L1) : L1 T=300 & *2\n"},
        {3, "T P X1 X2 X1 X2\nS S D D D D\n- - L L G G\n300 9 .1 .1 .5 .1\n310 9 .2 .2 .4 .1",
         "X2(L) T X1(L) : G P=9 *2\nX1(G) T X1(L) : L P=9 *2\nX2(G) T X1(L) : L P=9 *2\n"},
        {3, "T P X1 X2 X1\nS S D D D\n- - L L G\n300 9 .1 .1 .5\n310 8 .2 .9 .4",
         "X1(L) T P X2(L) : G *2\nX1(G) T P X2(L) : L *2\n"},
        {3, "T X1 X1 X1\nS D D D\n- L1 L2 G\n300 .1 .1 .5\n310 .2 .2 .4",
         "X1(L1) T : L2 G & *2\nX1(L2) T : L1 G & *2\nX1(G) T : L1 L2 & *2\n"},
        {3, "T P X1 X1 X1\nS S D D D\n- - L1 L2 G\n300 9 .1 .1 .5\n310 8 .2 .2 .4",
         "X1(L1) T P : L2 G *2\nX1(L2) T P : L1 G *2\nX1(G) T P : L1 L2 *2\n"},
        {3, "T P X1 X1 X1 -\nS S D D D -\n- - L1 L2 G Cp3\n300 9 .1 .1 .5 -\n310 9 .2 .2 .4 -",
         "P(L1) T : L2 G Cp3 *2\nX1(L1) T : L2 G Cp3 *2\nX1(L2) T : L1 G Cp3 *2\n"
         "X1(G) T : L1 L2 Cp3 *2\n"},
        // Of one row nothing is constant; what is typed as per cent of the others is left out.
        {2, "T P X1 X2 X1\nS S D D D\n- - L L G\n300 50 .1 .9 .2",
         "P(L) X1(L) T : G *1\nX1(G) X1(L) T : L *1\n"},
        // Rows of one phase alone stand in a set of their own.
        {3,
         "T X1 X2 X1 X2\nS D D D D\n- L1 L1 L2 L2\n300 .1 .1 .5 .1\n300 .2 .2 - -\n300 - - .4 .3",
         "X2(L1) X1(L1) : L2 T=300 & *2\nX1(L2) X1(L1) : L1 T=300 & *1\n"
         "X2(L2) X1(L1) : L1 T=300 & *1\nX1(L2) X2(L2) : L1 T=300 & *1\n"},
    };
    for (const Case& one : cases) {
        const ProcessTable table = TableOf(one.mixType, one.table);
        EXPECT_EQ(Told(table, AnalyseVLE(table)), one.told) << one.table;
    }
}

TEST_F(PhaseEquilibria, HeadsThatMakeNoSetsSayWhatIsMissing) {
    struct Case {
        int mixType;
        const char* table;
        const char* told;
    };
    const Case cases[] = {
        {2, "T X1 X2\nS D D\n- L L\n300 .1 .9", "Compositions, or the name, of a second phase"},
        {2, "T X1 X1\nS D D\n- L -\n300 .1 .9", "A phase for column 3"},
        {2, "T X1 X1\nS D -\n- L G\n300 .1 .9", "A unit for column 3"},
        {2, "T X1 X1\nS D T\n- L G\n300 .1 .9", "Another unit for column 3"},
        {2, "T X1 X1\nS D 0\n- L G\n300 .1 .9", "A factor above 0 as the unit of column 3"},
        {2, "T X1 X3\nS D D\n- L G\n300 .1 .9", "Another quantity for column 3"},
        {2, "T X1 X1\nS D D\n- L L\n300 .1 .9",
         "Another quantity or phase for column 3, which repeats column 2"},
        {2, "T T X1 X1\nS S D D\n- - L G\n300 300 .1 .9",
         "Another quantity or phase for column 2, which repeats column 1"},
        {2, "T X1 W2 X1\nS D D D\n- L L G\n300 .1 .9 .2",
         "One kind of composition in Liquid, as in column 2"},
        {2, "T J1 J2 X1\nS S S D\n- L L G\n300 .1 .9 .2",
         "Molarities of all components but one in Liquid"},
        {2, "CU T X1 X1\n- S D D\n- - L G\n1 300 .1 .9",
         "A column of values on the left of the uncertainties in column 1"},
        {2, "T X1 CU X1\nS D - D\n- L - G\n300 .1 - .9",
         "No uncertainties of column 2, which is no property: column 3 has no place in the sets"},
        {2, "T X1 X1 CU CU\nS D D - -\n- L G - -\n300 .1 .9 - -",
         "Only one column of uncertainties for column 3"},
        {2, "T X1 X1 X1 -\nS D D D -\n- L1 L2 G Cp1\n300 .1 .9 .5 -", "Fewer phases"},
        {3, "T X1 X1 X1 X1 X1\nS D D D D D\n- L1 L2 L3 G C\n300 .1 .2 .3 .4 .5",
         "At most four phases"},
        {3, "T P X1 X2 W1 W2\nS S D D D D\n- - L L G G\n300 50 .1 .2 .3 .4",
         "At most five quantities"},
        {2, "T - -\nS - -\n- L G\n300 - -", "A column of a property"},
        {3, "T P - -\nS S - -\n- - L G\n300 9 - -", "A column of compositions"},
        {2, "T X1 X1\nS D D\n- L G\n300 - .9", "A row with a property and all variables"},
    };
    for (const Case& one : cases) {
        const ProcessTable table = TableOf(one.mixType, one.table);
        EXPECT_EQ(Told(table, AnalyseVLE(table)), std::string("Data errors detected | ") + one.told)
            << one.table;
    }
    for (const int mixType : {2, 3}) {
        const ProcessTable table =
            TableOf(mixType,
                    mixType == 2 ? "X1 X1\nD D\nL G\n.1 .9" : "X1 X1 X1\nD D D\nL1 L2 G\n.1 .2 .3");
        EXPECT_EQ(Told(table, AnalyseVLE(table)),
                  NoState + "A column of temperatures or of pressures");
    }
    ProcessTable large = TableOf(2, "T X1 X1\nS D D\n- L G\n300 .1 .9");
    large.rows.resize(16385, large.rows[0]);
    EXPECT_EQ(Told(large, AnalyseVLE(large)), "Data errors detected | At most 16384 rows");
    large = TableOf(3, "T X1 X2 X1\nS D D D\n- L L G\n300 .1 .2 .3");
    large.rows.resize(4097, large.rows[0]);
    EXPECT_EQ(Told(large, AnalyseVLE(large)), "Data errors detected | At most 4096 rows of ties");
}

TEST_F(PhaseEquilibria, EachCellIsTestedAndNoneIsLost) {
    struct Case {
        const char* mixture;
        const char* table;
        const char* told;
    };
    const Case cases[] = {
        {"^B 64175 7732185 &",
         "T P X1 X1 CU\nC S D D -\n- - L G -\n9a 50 .1 .2 -\n25 5O .1 .2 -\n25 50 0.17a .2 -\n"
         "25 50 .1 0.17a -\n25 50 19.0 .2 -\n25 50 - .2 -\n- 50 .1 .2 -\n25 - .1 .2 -\n"
         "- - .1 - -\n25 50 .1 .2 x\n25 50 .1 - 1\n2500 50 .1 .2 1%\n25 50 .1 .2 0,1",
         "0,0 Invalid value of independent variable\n"
         "1,1 Invalid property value\n"
         "2,2 Invalid value of independent variable\n"
         "3,3 Invalid property value\n"
         "4,2 Value 19 Mole fraction of ethanol is not valid\n"
         "5,2 Invalid value of independent variable\n"
         "6,0 Invalid value of independent variable\n"
         "8,2 ? The row has no property and will be left out\n"
         "9,4 Invalid value of combined uncertainty\n"
         "10,4 There is no value for this combined uncertainty\n"
         "11,0 ? Value 2773.15 Temperature, K is suspicious\n"},
        {"^B 64175 7732185 &",
         "T W1 W2 W1\nC 0.01 0.01 0.01\n- L1 L1 L2\n25 10 90.5 80\n26 10 90.6 80\n"
         "27 - 90 80\n28 10 - 80\n29 - - 80\n30 - - -",
         "1,2 Composition error / The fractions in the phase Liquid mixture 1 add up to 1.006\n"
         "2,1 Composition error / Enter the other fractions of the phase Liquid mixture 1 as well\n"
         "5,0 ? The row has no property and will be left out\n"},
        // A ternary whose third component is implied; the first is what the others are against.
        {"^T 64197 67663 7732185 &",
         "T W1 W2 W3 W1 W2\nC 0.01 0.01 0.01 0.01 0.01\n- L1 L1 L1 L2 L2\n"
         "25 0 99.5 0 20 80.5\n25 45 50 5 20 80.6\n25 10 85 5.6 20 80\n25 10 85 0x - -\n"
         "25 10 - 5 20 -\n25 - 85 - 20 80\n25 - 85 5 - -\n25 - - - 20 -\n- - - - 20 30\n"
         "25 10 85 - - -\n25 10 - - - -",
         "1,5 Composition error / The fractions in the phase Liquid mixture 2 add up to 1.006\n"
         "2,3 Composition error / The fractions in the phase Liquid mixture 1 add up to 1.006\n"
         "3,3 Invalid property value\n"
         "4,2 Composition error / Enter the other fractions of the phase Liquid mixture 1 as well\n"
         "5,1 Invalid value of independent variable\n"
         "6,1 Invalid value of independent variable\n"
         "7,1 Invalid value of independent variable\n"
         "10,1 ? The row has no property and will be left out\n"},
    };
    for (const Case& one : cases) {
        const ProcessSystem system = Mixture(one.mixture);
        const ProcessTable table = TableOf(system.MixType(), one.table);
        const PhaseAnalysis analysis = AnalyseVLE(table);
        EXPECT_TRUE(analysis.Ok) << analysis.hint;
        EXPECT_EQ(Findings(CheckPhaseTable(table, analysis, system)), one.told) << one.table;
    }
}

} // namespace
} // namespace vexora::test

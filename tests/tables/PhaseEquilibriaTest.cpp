// Tables of phase equilibria as papers print them, and the sets that they become.
#include "tables/ProcessTableFixture.h"

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

/// Some columns of a table, as rows of a record with what stands behind them.
std::string Rows(const std::string& table, const std::vector<std::size_t>& columns,
                 bool areTied = false) {
    std::string text;
    int row = 0;
    for (const std::string& line : Split(table, '\n')) {
        if (row++ < 3) continue;
        const std::vector<std::string> cells = Split(line, ' ');
        text += "^d";
        for (const std::size_t column : columns)
            text += " " + cells[column];
        text += areTied ? " & " + std::to_string(row - 3) + "\n" : " &\n";
    }
    return text;
}

class PhaseEquilibria : public ProcessTableFixture {};

TEST_F(PhaseEquilibria, BoilingTemperaturesAndTheGasAtOnePressure) {
    const ProcessSystem system = Mixture("^B 64175 7732185 &");
    Process(TableOf(2, Boiling), system);
    const std::string lines =
        "^B 64175 7732185 P\n" + Header + "^1 1 1 T C DIR 1 Y L P 101.325 G & X1 D & & & & & &\n" +
        Rows(Boiling, {2, 0}) + Header + "^1 1 1 X1 D DIR 1 Y G P 101.325 L -1 X1 D & & & & & &\n" +
        Rows(Boiling, {2, 3});
    EXPECT_EQ(Saved(), lines);
}

TEST_F(PhaseEquilibria, TwoLayersWhosePressureNobodyTells) {
    const ProcessSystem system = Mixture("^B 64175 7732185 &");
    Process(TableOf(2, Layers), system);
    const std::string head = Header + "^M 0.01\n^1 1 1 W1 S DIR ";
    EXPECT_EQ(Saved(), "^B 64175 7732185 S\n" + head + "1 Y L1 L2 & & & T C & & & & & &\n" +
                           Rows(Layers, {0, 1}) + head + "2 Y L2 L1 & & & T C & & & & & &\n" +
                           Rows(Layers, {0, 2}));
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

} // namespace
} // namespace vexora::test

#include "records/DocumentCheck.h"
#include "records/RoundTripFixture.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "reference/Text.h"

namespace vexora {
namespace {

const std::string Head = "\n^R 1950 cox wag 1\n^L 65850 NNNNN &\n^S 1 ns\n^L 7782447 NNNNN &\n"
                         "^L 124389 NNNNN &\n^L 7732185 NNNNN &\n^L 10544726 NNNNN &\n^S 1 ns\n"
                         "^L 10102440 NNNNN &\n";
const std::string Benzoic =
    "^Q CMO 65850 7782447 124389 7732185 Y N & & & & & &\n^A & O & & & & & &\n"
    "^c -1 -7.5 7 3 0 0 0 0 HR S S 1 C G G L & & & & 1 & & & & & & & & & & & & & & & 0 0 0 0 0 0 0 "
    "0 & & 298.15 101.325 298.15 101.325 -3226.9 & & &\n";
const std::string Dissociation =
    "^Q OTH 10544726 10102440 999999994 999999994 N Y & & & & & &\n^A & O & & & & & &\n"
    "^E -1 2 0 0 0 0 1 & & & & & KP S 1 C & & & T S & & & & & & G 12 & & & & & & & & & & & & & &\n";

class ReactionAdvice : public test::RoundTripFixture {
protected:
    /// What follows from these data, a line each.
    std::string Found(const std::string& lines) {
        Read(Head + lines);
        std::string found;
        for (const DocumentFinding& finding : CheckDocument())
            if (finding.severity == Severity::Hint &&
                (finding.text.find("enthalpy of formation") != std::string::npos ||
                 finding.text.find("1/T") != std::string::npos))
                found += finding.text + "\n";
        return found;
    }
    std::string Burnt(const std::string& from, const std::string& to) {
        return Found(Replace(Benzoic, from, to));
    }
};

TEST_F(ReactionAdvice, ACombustionTellsTheEnthalpyOfFormation) {
    const std::string hint =
        "Molar enthalpy of reaction: with -393.51 kJ/mol for carbon dioxide and "
        "-285.83 kJ/mol for liquid water the enthalpy of formation of benzoic "
        "acid (Crystal) is -385.2 kJ/mol at 298.15 K\n";
    EXPECT_EQ(Found(Benzoic), hint);
    EXPECT_EQ(Burnt("-3226.9", "-3226.94"), Replace(hint, "-385.2", "-385.12"));
    EXPECT_EQ(Found(Replace(Replace(Benzoic, "HR S S 1", "HR Z 65850 1"), "-3226.9", "-26434")),
              Replace(hint, "-385.2", "-383.9"));
    const std::pair<const char*, const char*> others[] = {
        {"C G G L", "C G G G"},
        {"C G G L", "C G L L"},
        {"298.15", "303.15"},
        {"298.15 101.325 -", "373.15 101.325 -"},
        {"CMO", "OTH"},
        {"7732185 Y", "10102440 Y"},
        {"-1 -7.5 7 3", "-2 -15 14 6"},
        {"-1 -7.5 7", "-1 -7 7"},
        {"HR S S", "UR S S"},
        {"HR S S", "HR Z 124389"},
        {"-3226.9", "much"},
        {"-1 -7.5 7 3 ", "-1 -7.5 7 0 "},
    };
    for (const auto& [from, to] : others)
        EXPECT_EQ(Burnt(from, to), "") << to;
}

TEST_F(ReactionAdvice, ConstantsAgainstTemperatureTellEnthalpyAndEntropy) {
    // Reckoned apart, by the textbook sums over the six points.
    const std::string hint =
        "Equilibrium constant in terms of partial pressure: ln K against 1/T of 6 rows gives an "
        "enthalpy of reaction of 57.02 kJ/mol (standard error 0.15) and an entropy of 175.28 "
        "J/K/mol (standard error 0.50)\n";
    const std::string five = "^D 273.15 0.0177 &\n^D 283.15 0.0438 &\n^D 298.15 0.146 &\n"
                             "^D 313.15 0.443 &\n^d 333.15 1.67 &\n";
    const std::string rows = five + "^D 353.15 5.2 &\n";
    const std::string end = "^M 0\n";
    EXPECT_EQ(Found(Dissociation + rows + end), hint);
    // What has no logarithm is passed over, and celsius are kelvin.
    EXPECT_EQ(Found(Replace(Dissociation, "T S", "T C") + Replace(rows, "^d 333.15", "^d 60") +
                    "^D 373.15 0 &\n^D 0 1 &\n" + end),
              hint);
    EXPECT_EQ(Found(Replace(Dissociation, "& & & & & &\n^E", "& & & & & ::L:\n^E") +
                    "^D 273.15 -1.752027 &\n^D 283.15 -1.358526 &\n^D 298.15 -0.835647 &\n"
                    "^D 313.15 -0.353596 &\n^D 333.15 0.222716 &\n^D 353.15 0.716003 &\n" +
                    end),
              hint)
        << "log(K)";
    EXPECT_EQ(Found(Dissociation + Replace(five, "^d 333.15 1.67 &\n", "") + end), "");
    EXPECT_EQ(
        Found(Dissociation + "^D 300 1 &\n^D 300 2 &\n^D 300 3 &\n^D 300 4 &\n^D 300 5 &\n" + end),
        "");
    for (const auto& [from, to] : {std::pair{"KP S", "KJ S"}, {"T S", "P S"}})
        EXPECT_EQ(Found(Replace(Dissociation, from, to) + rows + end), "") << to;
    EXPECT_NE(Found(Replace(Replace(Dissociation, "KP S", "KJ S"), "G 12", "L 12") + rows + end),
              "");
}

} // namespace
} // namespace vexora

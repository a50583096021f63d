#include "records/DocumentCheck.h"
#include "records/RoundTripFixture.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "reference/Numbers.h"

#include <cmath>

namespace vexora {
namespace {

const std::string Source = "\n^R 1932 car lew 1\n";
const std::string Binary = "^B 64175 7732185 P\n";
const std::string Header = "^A & O & & & & & &\n";

/// Advice about sets of ethanol, chloroform and water.
class MixtureAdvice : public test::RoundTripFixture {
protected:
    /// What is found in mixtures, a line each; ofPure are sets of the first sample of ethanol.
    std::string Found(const std::string& mixtures, Severity severity = Severity::Hint,
                      const std::string& ofPure = "", const std::string& ofWater = "") {
        Read(Source + "^L 64175 NNNNN &\n^S 1 ns\n" + ofPure + "^L 67663 NNNNN &\n^S 1 ns\n" +
             "^L 7732185 NNNNN &\n^S 1 ns\n" + ofWater + mixtures);
        std::string found;
        for (const DocumentFinding& finding : CheckDocument())
            if (dynamic_cast<const clsMV*>(finding.record) && finding.severity == severity &&
                !finding.text.ends_with("no uncertainty is stated"))
                found += finding.text + "\n";
        return found;
    }
    static std::string Set(const std::string& line, const std::string& rows,
                           const std::string& factor = "") {
        return Header + factor + line + " & & & & & &\n" + rows;
    }
};

TEST_F(MixtureAdvice, WhatResultsGoByIsKnown) {
    EXPECT_EQ(
        Found(Binary + Header + "^1 1 1 AC1 S DFR 1 Y LQ T 300 P 100 X1 S Q P & cold 101.325 QZ\n",
              Severity::Error),
        "Unknown phase LQ\nActivity coefficient of ethanol: unknown solvent Q\n"
        "Activity coefficient of ethanol, reference state: this is no number: cold\n"
        "Unknown phase QZ\n");
    const auto mixture = *Globals().CurrentR->recM.begin();
    EXPECT_EQ((*mixture->recMV.begin())->PhaseStatement(), "LQ, T = 300, P = 100");
}

TEST_F(MixtureAdvice, FractionsOfARowSumToOne) {
    EXPECT_EQ(Found(Binary + Set("^1 1 1 X1 S DIR 1 Y L T 300 P 100 X2 S",
                                 "^d 0.6 0.4 &\n^d 0.61 0.395 &\n^d 0.61 0.4 &\n^d 0.5 0.4 &\n")),
              "Mole fraction of ethanol in the liquid: row 3: mole fractions sum to 1.01 (and 1 "
              "more)\n");
    const std::string ternary = "^T 64175 67663 7732185 P\n";
    EXPECT_EQ(Found(ternary + Set("^1 1 1 1 VDN S DIR 1 Y L T 300 P 100 X1 0.3 X2 S",
                                  "^d 0.7 900 & &\n^d 0.8 900 & &\n^d 0.1 900 & &\n")),
              "Density: row 2: mole fractions of two components sum to 1.1\n");
    EXPECT_EQ(Found(ternary + Set("^2 1 1 1 W1 S DIR 1 Y L1 L2 -1 T 291.15 W1 S W2 S",
                                  "^d 0.99 0.008 0.012 & &\n^d 0.6 0.45 0.012 & &\n")),
              "")
        << "fractions of two phases are not added";
}

TEST_F(MixtureAdvice, FractionsOfTiedSetsSumToOne) {
    const auto set = [](const std::string& number, const std::string& code,
                        const std::string& rows) {
        return Set("^1 1 1 1 " + code + " S DIR " + number + " Y L1 L2 & T 291.15 P 101.325 W2 S",
                   rows);
    };
    const std::string first = set("1", "W1", "^d 0.5 0.3 & 1\n^d 0.4 0.3 & 2\n^d 0.3 0.3 & &\n");
    EXPECT_EQ(Found("^T 64175 67663 7732185 P\n" + first +
                    set("1", "W3", "^d 0.5 0.2 & 1\n^d 0.4 0.2 & 2\n^d 0.3 0.2 & &\n")),
              "Weight fraction of ethanol in liquid mixture 1: row 2: mass fractions in liquid "
              "mixture 1 of the tied sets sum to 0.9\n");
    EXPECT_EQ(Found("^T 64175 67663 7732185 P\n" + first +
                    Set("^1 1 1 1 W3 S DIR 1 Y L1 L2 & T 300 P 101.325 W2 S",
                        "^d 0.5 0.2 & 1\n^d 0.4 0.2 & 2\n")),
              "")
        << "other states may bear the same numbers";
}

TEST_F(MixtureAdvice, NoFractionIsAboveOneWhereverItStands) {
    const auto invalid = [this](const std::string& set) {
        return Found("^T 64175 67663 7732185 P\n" + set, Severity::Error)
                   .find("1.2 is not valid") != std::string::npos;
    };
    for (const std::string kind : {"X", "W", "V"})
        for (const std::string rest : {"1", "2", "3", "1S", "2S", "3S"}) {
            const std::string code = kind + rest;
            EXPECT_TRUE(invalid(Set("^1 1 1 1 " + code + " S DIR 1 Y L T 300 P 100 M1 0.1 M2 S",
                                    "^d 0.1 1.2 & &\n")))
                << code;
            EXPECT_TRUE(invalid(Set("^1 1 1 1 VDN S DIR 1 Y L T 300 P 100 M1 0.1 " + code + " S",
                                    "^d 1.2 900 & &\n")))
                << code;
            EXPECT_TRUE(invalid(Set("^1 1 1 1 VDN S DIR 1 Y L T 300 P 100 " + code + " 1.2 M2 S",
                                    "^d 0.1 900 & &\n")))
                << code;
        }
}

TEST_F(MixtureAdvice, APureEndAgreesWithTheSample) {
    const std::string mixture =
        Binary + Set("^1 1 1 VDN S DIR 1 Y L P 101.325 T 293.15 W1 S",
                     "^d 0 0.99823 0.0001\n^d 0.5 0.91384 0.0001\n^d 1 0.78934 0.0001\n",
                     "^M 1000\n");
    const auto pure = [](const std::string& comment, const std::string& rows) {
        return "^A & O & & & & & " + comment + "\n^1 1 VDN S DIR 1\tY L & FP C & & &\n" + rows +
               "^M 0\n";
    };
    const auto with = [&](const std::string& comment, const std::string& rows) {
        return Found(mixture, Severity::Hint, pure(comment, rows));
    };
    const std::string at = "::P = 101.3:";
    EXPECT_EQ(with(at, "^d 20 789.2 0.1\n"), "");
    EXPECT_EQ(with(at, "^d 20 788.1 0.1\n"),
              "Density: row 3: value 789.34 of pure ethanol differs from 788.1 in set 1 of its "
              "sample by more than 0.42, three stated uncertainties\n");
    EXPECT_EQ(with(at, "^d 20 788.1 0.1\n^d 20 789.3 0.1\n"), "") << "one that agrees is enough";
    EXPECT_EQ(with(at, "^d 21 788.1 0.1\n"), "") << "another temperature";
    EXPECT_EQ(with("::P = 110:", "^d 20 788.1 0.1\n"), "") << "another pressure";
    EXPECT_NE(with("&", "^d 20 788.1 0.1\n"), "") << "a liquid at no stated pressure";
}

TEST_F(MixtureAdvice, WithoutAnyUncertaintyNothingIsSaidOfAPureEnd) {
    const std::string mixture = Binary + Set("^1 1 1 VDN S DIR 1 Y L P 101.325 T 293.15 X1 S",
                                             "^d 0 998.2 &\n^d 1 789 &\n");
    EXPECT_EQ(Found(mixture, Severity::Hint,
                    Header + "^1 1 VDN S DIR 1\tY L & FP C & & &\n^d 20 700 &\n^M 0\n"),
              "");
    EXPECT_EQ(Found(mixture, Severity::Hint,
                    Header + "^1 1 VDN S DIR 1\tY L & FP C & & &\n"
                             "^X 0 VDN L - & & & - & & & + 95 1% - & & - & & &\n"
                             "^d 20 700 &\n^M 0\n"),
              "Density: row 2: value 789 of pure ethanol differs from 700 in set 1 of its sample "
              "by more than 21, three stated uncertainties\n");
}

TEST_F(MixtureAdvice, EndsOfABoilingCurveAgreeWithVaporPressures) {
    const std::string mixture =
        Binary + Set("^1 1 1 P S DIR 1 Y L T 333.15 G & X1 S", "^d 0 19.9 0.1\n^d 1 50 0.1\n");
    EXPECT_EQ(Found(mixture, Severity::Hint,
                    Header + "^1 1 P S DIR 1\tY L G PB C & & &\n^d 60 46.9 &\n^M 0\n"),
              "Vapor or sublimation pressure: row 2: value 50 of pure ethanol "
              "differs from 46.9 in set 1 of its sample by more than 0.30, three stated "
              "uncertainties\n");
    const std::string isobar =
        Binary + Set("^1 1 1 T S DIR 1 Y L P 101.325 G & X1 S", "^d 0 373.2 0.1\n^d 1 352 0.1\n");
    EXPECT_EQ(Found(isobar, Severity::Hint, Header + "^z 1 TBN C 1 L G & 78.3 & & &\n^M 0\n"),
              "Boiling temperature at pressure P: row 2: value 352 of pure ethanol "
              "differs from 351.45 in set 1 of its sample by more than 0.30, three stated "
              "uncertainties\n");
}

TEST_F(MixtureAdvice, AnExcessPropertyIsNearZeroAtItsEnds) {
    const auto found = [this](const std::string& rows) {
        return Found(Binary + Set("^1 1 1 HEX S DIR 1 Y L T 300 P 100 X1 S", rows));
    };
    EXPECT_EQ(found("^d 0 0.01 &\n^d 0.5 -0.7 &\n^d 1 0 &\n"), "");
    const std::string told =
        "Excess enthalpy (enthalpy of mixing): row 1: value 0.02 of pure water "
        "is not near 0\n";
    EXPECT_EQ(found("^d 0 0.02 &\n^d 0.5 -0.7 &\n^d 1 0 &\n"), told);
    EXPECT_EQ(found("^d 0 0.02 0.01\n^d 0.5 -0.7 &\n^d 1 0 &\n"), "");
    EXPECT_EQ(found("^d 0 0.02 0.005\n^d 0.5 -0.7 &\n^d 1 0 &\n"), told);
}

/// Ethanol + water at 101.325 kPa by Carey and Lewis (1932), C.
class BoilingAdvice : public MixtureAdvice {
protected:
    static std::string Boiling(double shift = 0) {
        struct State {
            const char *t, *x, *y;
        };
        constexpr State states[] = {
            {"95.5", "0.0190", "0.1700"},  {"89.0", "0.0721", "0.3891"},
            {"86.7", "0.0966", "0.4375"},  {"85.3", "0.1238", "0.4704"},
            {"84.1", "0.1661", "0.5089"},  {"82.7", "0.2337", "0.5445"},
            {"82.3", "0.2608", "0.5580"},  {"81.5", "0.3273", "0.5826"},
            {"80.7", "0.3965", "0.6122"},  {"79.8", "0.5079", "0.6564"},
            {"79.7", "0.5198", "0.6599"},  {"79.3", "0.5732", "0.6841"},
            {"78.74", "0.6763", "0.7385"}, {"78.41", "0.7472", "0.7815"},
            {"78.15", "0.8943", "0.8943"},
        };
        std::string liquid, gas;
        for (const State& state : states) {
            const double y = Val(state.y);
            liquid += std::string("^d ") + state.x + " " + state.t + " &\n";
            gas +=
                std::string("^d ") + state.x + " " + NumberText(y - shift * y * (1 - y)) + " &\n";
        }
        return Binary + Set("^1 1 1 T C DIR 1 Y L P 101.325 G & X1 S", liquid) +
               Set("^1 1 1 X1 S DIR 1 Y G L -1 P 101.325 X1 S", gas);
    }
    // Handbook values, C and kPa.
    const std::string OfEthanol = Header + "^1 1 P S DIR 1\tY L G PB C & & &\n^d 70 72.3 &\n"
                                           "^d 80 108.3 &\n^d 90 158.3 &\n^d 100 225.8 &\n^M 0\n";
    const std::string OfWater = Header + "^1 1 P S DIR 1\tY L G PB C & & &\n^d 70 31.2 &\n"
                                         "^d 80 47.4 &\n^d 90 70.1 &\n^d 100 101.3 &\n^M 0\n";
    const std::string Slopes = "Slopes of the boiling curve at P = 101.325 kPa, x and y of "
                               "ethanol: at x = 0.019 dT/dx = -122 K and y - x = ";
    const std::string Areas = "Area test at P = 101.325 kPa: the areas of ln(gamma1/gamma2) above "
                              "and below 0 differ by D = ";
};

TEST_F(BoilingAdvice, TheEndsOfARealIsobarAreTold) {
    EXPECT_EQ(Found(Boiling()), Slopes + "0.234 go together; at x = 0.8943 dT/dx = -1.77 K and y - "
                                         "x = 0.0172 go together\n");
}

TEST_F(BoilingAdvice, TheAreasOfARealIsobarNeedVaporPressures) {
    EXPECT_EQ(Found(Boiling(), Severity::Hint, OfEthanol, OfWater),
              Found(Boiling()) + Areas +
                  "3.57 %, Herington's allowance is J = 9.33 %, D - J = -5.76 %: consistent, as it "
                  "is not above 10 %\n");
    EXPECT_EQ(Found(Boiling(0.4), Severity::Hint, OfEthanol, OfWater),
              Slopes +
                  "0.158 go together; at x = 0.8943 dT/dx = -1.77 K and y - x = -0.0359 "
                  "contradict each other\n" +
                  Areas +
                  "56.4 %, Herington's allowance is J = 9.33 %, D - J = 47.1 %: a hint that the "
                  "data are not consistent, as it is above 10 %\n");
}

/// ln gamma = 1.2 times the square of the other mole fraction, at 330 K, typed as mass fractions of
/// water in the liquid and mole fractions of water in the gas, each against the pressure. Its ends
/// are the vapor pressures. What `spoil` adds to the gas makes it wrong.
std::string Isotherm(double spoil) {
    std::string liquid, gas;
    for (int i = 0; i <= 10; ++i) {
        const double x = i / 10.0, z = 1 - x;
        const double part1 = 50 * x * std::exp(1.2 * z * z);
        const double part2 = 20 * z * std::exp(1.2 * x * x);
        const std::string p = FormatFixed(part1 + part2, 4);
        const double water = 18.0153 * z / (18.0153 * z + 46.0684 * x);
        liquid += "^d " + FormatFixed(water, 7) + " " + p + " &\n";
        const double y2 = part2 / (part1 + part2) + spoil * x * z;
        if (i % 10 != 0) gas += "^d " + FormatFixed(y2, 5) + " " + p + " &\n";
    }
    const std::string rest = " & & & & & &\n";
    return Binary + Header + "^1 1 1 P S DIR 1 Y L T 330 G & W2 S" + rest + liquid + Header +
           "^1 1 1 P S DIR 2 Y G T 330 L & X2 S" + rest + gas;
}

TEST_F(MixtureAdvice, AnIsothermOfPartsIsJoinedByItsPressures) {
    const std::string good = Found(Isotherm(0));
    EXPECT_TRUE(good.starts_with("Slopes of the boiling curve at T = 330 K, x and y of ethanol: at "
                                 "x = 0 dP/dx = "))
        << good;
    EXPECT_EQ(good.find("contradict"), std::string::npos) << good;
    EXPECT_NE(good.find("\nArea test at T = 330 K: "), std::string::npos) << good;
    EXPECT_TRUE(good.ends_with(": consistent, as it is not above 10 %\n")) << good;
    EXPECT_TRUE(Found(Isotherm(0.3)).ends_with(" not consistent, as it is above 10 %\n"));
}

} // namespace
} // namespace vexora

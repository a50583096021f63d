#include "export/MixtureExportFixture.h"

namespace vexora::test {

class MixtureValueExport : public MixtureExportFixture {
protected:
    /// A value of ethanol and water with these codes in its line.
    std::string Value(const std::string& line, const std::string& comment = "&") {
        return Mixtures(kBinary + "^A & O & & & & & " + comment + "\n^z 1 1 " + line + "\n");
    }
};

TEST_F(MixtureValueExport, AnAzeotropeHasBothPhasesAndItsDigits) {
    const std::string xml = Mixtures(kBinary + kHeader + "^z 1 2 TA C 1 L & & & 78.15 & 0.02 3\n" +
                                     "^X 0 TA L + 1 95 0.10 + 1 0.02 3 + 95 1% + A 68 - & & 0.2\n" +
                                     kHeader + "^z 1 2 XA1 S 1 L G & & 0.8943 & & &\n");
    EXPECT_EQ(At(xml, "/nPureOrMixtureDataNumber"), "1 | 2");
    EXPECT_EQ(At(xml, "/Component/RegNum"), "1 | 4 | 1 | 4");
    EXPECT_EQ(At(xml, "//ePropName"),
              "Azeotropic temperature, K | Azeotropic composition: mole fraction");
    EXPECT_EQ(At(xml, "//Property-MethodID/RegNum"), "1");
    EXPECT_EQ(At(xml, "//ePresentation"), "Direct value, X | Direct value, X");
    EXPECT_EQ(At(xml, "/PhaseID"), "Liquid | Gas | Liquid | Gas");
    EXPECT_EQ(At(xml, "/Constraint"), "");
    EXPECT_EQ(At(xml, "/NumValues/PropertyValue/nPropValue"), "351.30 | 0.8943");
    EXPECT_EQ(At(xml, "/NumValues/PropertyValue/nPropDigits"), "5 | 4");
    EXPECT_EQ(At(xml, "/Property//eRepeatMethod"),
              "Standard deviation of a single value (unbiased)");
    EXPECT_EQ(At(xml, "/Property//eDeviceSpecMethod"), "Certified or calibrated by a third party");
    EXPECT_EQ(At(xml, "/NumValues//nCombStdUncertValue"), "0.2");
    EXPECT_EQ(At(xml, "/NumValues//nExpandUncertValue"), "0.7815");
    EXPECT_EQ(At(xml, "/NumValues//nPropRepeatValue"), "0.02");
}

TEST_F(MixtureValueExport, AEutecticIsAStateOfTheLiquidBesideItsCrystals) {
    const std::string xml =
        Mixtures(kTernary + kHeader + "^z 1 1 1 TE S 1 Cp1 Cp3 L air & 250.0 & & &\n");
    EXPECT_EQ(At(xml, "//ePropPhase"), "Liquid");
    EXPECT_EQ(At(xml, "/PhaseID/ePhase"), "Crystal | Crystal | Liquid | Air at 1 atmosphere");
    EXPECT_EQ(At(xml, "/PhaseID/RegNum"), "2 | 4");
    EXPECT_EQ(At(xml, "//nConstraintValue") + " " + At(xml, "//nConstrDigits"), "101.325 6");
    EXPECT_EQ(At(xml, "/Constraint/ConstraintID/ConstraintType/ePressure"), "Pressure, kPa");
    // At the critical state phases are as stated.
    EXPECT_EQ(At(Value("TUC S 1 CUL L1 L2 & 300 & & &"), "/PhaseID"),
              "Upper liquid-liquid critical state | Liquid mixture 1 | Liquid mixture 2");
}

TEST_F(MixtureValueExport, OneAtmosphereIsAssumedOfOpenTransitionsOnly) {
    struct Case {
        const char *line, *comment, *constraints;
    };

    const Case cases[] = {
        {"TA S 1 L & & & 350 & & &", "::FP:", "Pressure, kPa: 101.325"},
        {"TA S 1 L & & & 350 & & &", "&", ": "},
        {"TA S 1 L air & & 350 & & &", "&", "Pressure, kPa: 101.325"},
        {"TA S 1 L air G & 350 & & &", "&", ": "},
        {"TA S 1 L G & & 350 & & &", "::FP:", ": "},
        {"T S 1 L Cp1 & & 350 & & &", "::FP:", "Pressure, kPa: 101.325"},
        {"TB S 1 L & & & 350 & & &", "::FP:", "Pressure, kPa: 101.325"},
        {"TE S 1 L & & & 350 & & &", "::FP:", "Pressure, kPa: 101.325"},
        {"PA S 1 L & & & 70 & & &", "::FP:", "Pressure, kPa: 101.325"},
        {"WA2 S 1 L & & & 0.1 & & &", "::FP:", "Pressure, kPa: 101.325"},
        {"XE1 S 1 L & & & 0.1 & & &", "::FP:", "Pressure, kPa: 101.325"},
        {"TC S 1 L & & & 500 & & &", "::FP:", ": "},
        {"XC1 S 1 L & & & 0.1 & & &", "::FP:", ": "},
        // A state that is told stands instead.
        {"XA1 S 1 L & & & 0.1 & & &", "::FP:P = 70.0:", "Pressure, kPa: 70.0"},
        {"XA1 S 1 L G & & 0.1 & & &",
         "::T = 300:P = 70.0:", "Temperature, K | Pressure, kPa: 300 | 70.0"},
        {"XE1 S 1 L air & & 0.1 & & &", "::T = 250:", "Temperature, K: 250"},
    };
    for (const Case& one : cases) {
        const std::string xml = Value(one.line, one.comment);
        EXPECT_EQ(At(xml, "/Constraint/ConstraintID") + ": " + At(xml, "//nConstraintValue"),
                  one.constraints)
            << one.line << one.comment;
    }
}

TEST_F(MixtureValueExport, WhatCannotLeaveIsTold) {
    const std::string place = "\nSystem: ethanol + water\nProperty: ";
    const std::tuple<const char*, std::string, std::string> cases[] = {
        {"QQQ S 1 L & & & 1 & & &",
         "The reference tables have no place for these data in the "
         "export",
         "QQQ"},
        {"TA S 1 L & & & x & & &", "The value is no number: x", "Azeotropic temperature"},
        {"TA ? 1 L & & & 350 & & &", "Invalid conversion factor", "Azeotropic temperature"},
        {"H Z 1 L & & & 350 & & &", "Unable to calculate average molar mass", "Enthalpy"},
    };
    for (const auto& [line, fault, property] : cases) {
        desktop.Expect(fault + place + property + " | Data Error!");
        EXPECT_EQ(At(Value(line), ""), "") << line;
    }
    // What is measured against variables may be known at one point alone.
    EXPECT_EQ(At(Value("T S 1 L Cp1 & & 250 & & &"), "//ePropName"),
              "Solid-liquid equilibrium temperature, K");
    EXPECT_EQ(At(Value("H S 1 L & & & 350 & & &", "::T = 300:P = 99:"), "//nPropValue"), "350");
    desktop.Expect("Constraint without a valid number in " + place + "Enthalpy | Data Error!");
    EXPECT_EQ(At(Value("H S 1 L & & & 350 & & &", "::T = warm:P = 99:"), "//nConstraintValue"),
              "99");
}

} // namespace vexora::test

#include "chem/TableRows.h"
#include "export/ExportFixture.h"
#include "export/Statements.h"
#include "records/UnitConversion.h"
#include "records/clsData.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"

#include <cmath>
#include <functional>
#include <vector>

namespace vexora {
namespace {

constexpr double MolarMassOfWater = 18.015; // [g/mol]
constexpr int MostTypedDigits = 6;

/// A number as it may be typed, and the unit of its last place.
struct Typed {
    std::string text;
    double lastPlace = 1;
};

/// Numbers of one to six digits, the point anywhere among them or up to three zeros in front.
std::vector<Typed> TypedNumbers() {
    std::vector<Typed> numbers;
    for (const std::string digits :
         {"1", "100000", "123456", "254763", "500001", "760760", "999999", "873215", "375"}) {
        for (std::size_t count = 1; count <= std::min<std::size_t>(MostTypedDigits, digits.size());
             ++count) {
            const std::string part = digits.substr(0, count);
            for (std::size_t places = 0; places <= count + 3; ++places) {
                std::string text = part;
                if (places >= count) text.insert(0, places - count + 1, '0');
                if (places > 0) text.insert(text.size() - places, ".");
                numbers.push_back({text, std::pow(10, -static_cast<double>(places))});
            }
        }
    }
    return numbers;
}

class ConvertedDigits : public test::ExportFixture {
protected:
    using Step = std::function<void(const UnitConversion&)>;
    void EachUnit(const Step& step) {
        RowRemarks none;
        TableRows row(globals.Databases.LocalDb, "Conversions", none);
        int count = 0;
        for (; !row.IsEnd(); row.MoveNext(), ++count)
            step({row.Text("ConversionCode"), 0, MolarMassOfWater});
        EXPECT_GT(count, 130);
        step({"*", 0.37});
    }
    static double Entered(const UnitConversion& unit, const std::string& system) {
        return FromSystem(unit.code, Val(system), unit.factor, unit.molarMass);
    }
    static bool IsNear(double back, const Typed& typed) {
        return std::abs(back - Val(typed.text)) < 0.2 * typed.lastPlace;
    }
    static std::string InRecord(const UnitConversion& unit, const std::string& typed, int& digits) {
        clsData row;
        row.Values[0] = typed;
        row.Convert(0, unit);
        digits = row.DigitCount(0);
        return row.Values[0];
    }
    static ExportNumber InExport(const UnitConversion& unit, const std::string& typed) {
        ExportUnit leaving;
        leaving.code = unit.code;
        leaving.factor = unit.factor;
        leaving.molarMass = unit.molarMass;
        leaving.converts = true;
        return ExportedValue(typed, leaving);
    }
    /// The figures of one exported element, in one line.
    std::string Exported(const std::string& lines, const std::string& element) {
        return Line(Data(kHeader + lines), element);
    }
};

TEST_F(ConvertedDigits, ValuesOfEveryUnitComeBackAsTyped) {
    const std::vector<Typed> numbers = TypedNumbers();
    int strays = 0;
    EachUnit([&](const UnitConversion& unit) {
        for (const Typed& typed : numbers) {
            int digits = 0;
            const std::string system = InRecord(unit, typed.text, digits);
            const ExportNumber leaving = InExport(unit, typed.text);
            const int stated = unit.factor > 0 ? SignificantDigits(typed.text)
                                               : TemperatureDigits(typed.text, unit.code);
            const bool holds = IsNear(Entered(unit, system), typed) && leaving.text == system &&
                               digits == stated && leaving.digits == stated;
            if (!holds && ++strays < 10)
                ADD_FAILURE() << typed.text << " " << unit.code << " is " << system << " ("
                              << digits << "), leaves as " << leaving.text << " (" << leaving.digits
                              << ")";
        }
    });
    EXPECT_EQ(strays, 0);
}

TEST_F(ConvertedDigits, StatementsOfEveryUnitComeBackAsTyped) {
    const std::vector<Typed> numbers = TypedNumbers();
    int strays = 0;
    EachUnit([&](const UnitConversion& unit) {
        for (const Typed& typed : numbers) {
            const std::string system = unit.DifferenceText(typed.text);
            const double back = Entered(unit, system) - Entered(unit, "0");
            if (!IsNear(back, typed) && ++strays < 10)
                ADD_FAILURE() << typed.text << " " << unit.code << " is " << system;
        }
    });
    EXPECT_EQ(strays, 0);
}

TEST_F(ConvertedDigits, ARecordGetsAsManyDigitsAsTheTypedValueNeeds) {
    const auto recorded = [](const std::string& typed, const std::string& code) {
        int digits = 0;
        const std::string text = InRecord({code}, typed, digits);
        return text + " " + std::to_string(digits);
    };
    EXPECT_EQ(recorded("760", "T"), "101.3 3");
    EXPECT_EQ(recorded("1", "mmHg"), "0.13 1");
    EXPECT_EQ(recorded("25", "C"), "298.15 3");
    EXPECT_EQ(recorded("25.5", "C"), "298.65 4");
    EXPECT_EQ(recorded("25.000", "C"), "298.150 6");
    EXPECT_EQ(recorded("100", "bar"), "10000 3");
    EXPECT_EQ(recorded("22.064", "MegaPa"), "22064 5");
    EXPECT_EQ(recorded("0.0", "C"), "273.15 3");
    EXPECT_EQ(recorded("7.6e2", "T"), "101.3 2");
}

TEST_F(ConvertedDigits, AZeroStaysAsTypedOnlyInAUnitWithTheSameZero) {
    int digits = 0;
    EXPECT_EQ(InRecord({"C"}, "-273.15", digits), "0.00");
    EXPECT_EQ(InExport({"C"}, "-273.15").text, "0.00");
    EXPECT_EQ(InRecord({"T"}, "0.00", digits), "0.00");
    EXPECT_EQ(InExport({"T"}, "0.00").text, "0.00");
    EXPECT_EQ(Exported("^z 1 TC C 1 L G & -273.15 & & &\n", "nPropValue"),
              "<nPropValue>0.00</nPropValue>");
}

TEST_F(ConvertedDigits, AnExportHasThemInValuesVariablesAndStatements) {
    const auto value = [&](const std::string& unit, const std::string& typed) {
        return Exported("^z 1 TC " + unit + " 1 L G & " + typed + " & & &\n", "nPropValue");
    };
    EXPECT_EQ(value("C", "25"), "<nPropValue>298.15</nPropValue>");
    EXPECT_EQ(value("C", "25.5"), "<nPropValue>298.65</nPropValue>");
    EXPECT_EQ(value("C", "25.000"), "<nPropValue>298.150</nPropValue>");
    const std::string pressure = Exported("^z 1 PC T 1 L G & 760 & & &\n"
                                          "^X 0 PC L + 1 95 7 - & & & + 95 1 - & & - & & &\n",
                                          "PropertyValue");
    EXPECT_NE(pressure.find("<nPropValue>101.3</nPropValue><nPropDigits>3</nPropDigits>"),
              std::string::npos)
        << pressure;
    EXPECT_NE(pressure.find("<nExpandUncertValue>0.13<"), std::string::npos) << pressure;
    EXPECT_NE(pressure.find("<nPropDeviceSpecValue>0.93<"), std::string::npos) << pressure;
    const std::string variable = Exported("^f 1 TB S 1 L 760 T 373.1 & & &\n", "VariableValue");
    EXPECT_NE(variable.find("<nVarValue>101.3</nVarValue><nVarDigits>3</nVarDigits>"),
              std::string::npos)
        << variable;
}

TEST_F(ConvertedDigits, AUnitCountsOnlyWithItsOwnQuantity) {
    EXPECT_EQ(Exported("^z 1 TC K 1 L & & 500 & & &\n", "nPropValue"),
              "<nPropValue>500</nPropValue>");
    EXPECT_EQ(Exported("^z 1 PC kPa 1 L G & 22064 & & &\n", "nPropValue"),
              "<nPropValue>22064</nPropValue>");
    EXPECT_EQ(Exported("^z 1 PC K 1 L G & 2 & & &\n", "nPropValue"),
              "<nPropValue>196</nPropValue>");
    EXPECT_EQ(Exported("^f 1 VDN S 1 L 300 K 996 & & &\n", "nVarValue"),
              "<nVarValue>300</nVarValue>");
    const auto refused = [&](const std::string& lines) {
        desktop.Expect("Invalid conversion factor\nSystem: water\nProperty: Density | Data Error!");
        EXPECT_EQ(Data(kHeader + lines), "");
    };
    refused("^f 1 VDN T 1 L 300 S 996 & & &\n");
    refused("^f 1 VDN S 1 L 300 T 996 & & &\n");
    refused("^1 1 VDN T DIR 1 Y L & LM S & & &\n^d 300 996 &\n^M 0\n");
    refused("^1 1 VDN S DIR 1 Y L & LM T & & &\n^d 300 996 &\n^M 0\n");
}

} // namespace
} // namespace vexora

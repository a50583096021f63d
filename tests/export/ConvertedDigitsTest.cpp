#include "chem/TableRows.h"
#include "export/ExportFixture.h"
#include "export/Statements.h"
#include "export/XmlWriter.h"
#include "records/LineWriter.h"
#include "records/UnitConversion.h"
#include "records/clsData.h"
#include "records/clsTwo.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

#include <cmath>
#include <functional>
#include <set>
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
    std::vector<Typed> numbers = {{"7.6e2", 10}, {"1.50E-3", 1e-5}};
    for (const std::string digits : {"100000", "254763", "500001", "999999"}) {
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
    /// A set of a property against one variable in this unit, a row for each number, which is
    /// its statement of uncertainty as well.
    clsTwo SetAgainst(const std::string& variable, const std::string& code,
                      const std::vector<Typed>& numbers) {
        clsTwo set;
        set.Parent = globals.CurrentS.get();
        set.PRPCODE = "CP";
        set.PROPERTY_UNIT = "S";
        set.DATATYPE = "Y";
        set.VARIABLE1 = variable;
        set.VAR1_UNIT = code;
        for (const Typed& typed : numbers) {
            clsData row;
            row.inOriginalUnits = true;
            row.Values = {"1", typed.text};
            row.Statements(1).Unc = typed.text;
            set.AddRow(row);
        }
        return set;
    }
    /// The word at a place of each line with one of these tags.
    static std::vector<std::string> Words(const std::string& lines, const std::string& tags,
                                          int place) {
        std::vector<std::string> found;
        for (const std::string& line : Split(lines, '\n')) {
            if (line.size() < 2 || line[0] != '^' || tags.find(line[1]) == tags.npos) continue;
            WordReader words(line);
            for (int n = 0; n < place; ++n)
                words.NextWord();
            found.emplace_back(words.NextWord());
        }
        return found;
    }
    static std::vector<std::string> Texts(const std::string& xml, const std::string& element) {
        std::vector<std::string> found;
        const std::string opening = "<" + element + ">";
        for (std::size_t at = xml.find(opening); at != xml.npos; at = xml.find(opening, at + 1)) {
            const std::size_t from = at + opening.size();
            found.push_back(xml.substr(from, xml.find('<', from) - from));
        }
        return found;
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

TEST_F(ConvertedDigits, VariablesOfEveryUnitComeBackFromRecordAndExport) {
    const std::vector<Typed> numbers = TypedNumbers();
    Export(kHead);
    int units = 0, strays = 0;
    const auto check = [&](const VariableRow& variable, const std::string& code) {
        const UnitConversion unit{code};
        const clsTwo set = SetAgainst(variable.IndVarCode, code, numbers);
        LineWriter lines;
        set.Print(lines);
        XmlWriter xml;
        set.ExportAll(xml);
        const auto values = Words(lines.Text(), "dg", 1), statements = Words(lines.Text(), "Y", 4);
        const auto leaving = Texts(xml.Text(), "nVarValue"),
                   digits = Texts(xml.Text(), "nVarDigits");
        const auto leavingStatements = Texts(xml.Text(), "nStdUncertValue");
        for (const auto* texts : {&values, &statements, &leaving, &digits, &leavingStatements})
            ASSERT_EQ(texts->size(), numbers.size()) << variable.IndVarCode << " " << code;
        const bool converts = IsUnitLong(code); // a letter stays in the record
        const double inSystem =
            code == "nm" || variable.IndVarCode == "WL" ? 10 : 1; // leaves in nm
        for (std::size_t n = 0; n < numbers.size(); ++n) {
            const Typed& typed = numbers[n];
            const auto comesBack = [&](const std::string& text, double scale, bool isStatement) {
                const double zero = isStatement ? Entered(unit, "0") : 0;
                return IsNear(FromSystem(code, Val(text) * scale, 0, 0) - zero, typed);
            };
            const bool inRecord =
                converts ? comesBack(values[n], 1, false) && comesBack(statements[n], 1, true)
                         : values[n] == typed.text && statements[n] == typed.text;
            const bool holds = inRecord && comesBack(leaving[n], inSystem, false) &&
                               comesBack(leavingStatements[n], inSystem, true) &&
                               digits[n] == std::to_string(TemperatureDigits(typed.text, code));
            if (!holds && ++strays < 10)
                ADD_FAILURE() << typed.text << " " << code << " is " << values[n] << " ± "
                              << statements[n] << ", leaves as " << leaving[n] << " (" << digits[n]
                              << ") ± " << leavingStatements[n];
        }
        ++units;
    };
    std::set<std::string> seen;
    for (const VariableRow& variable : VariablesOf("Pure")) {
        if (!seen.insert(variable.Unit).second) continue;
        for (const std::string& text : UnitList(variable.Unit)) {
            const std::string code = ConversionCodeOf(text, variable.Unit);
            if (!IsMassBased(code)) check(variable, code);
        }
    }
    EXPECT_GT(units, 40);
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

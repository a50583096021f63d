#include "records/clsData.h"

#include "records/LineWriter.h"
#include "records/SetLines.h"
#include "records/UnitConversion.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr int MostVariables = 3;
constexpr int MostDigits = 255;

bool IsPlace(int n) {
    return n >= 0 && n <= MostVariables;
}

/// The items of a ^Y line in their order: the variables, then the property.
std::array<std::size_t, MostVariables + 1> ItemOrder(int variables) {
    std::array<std::size_t, MostVariables + 1> order{};
    for (int n = 1; n <= variables; ++n)
        order[static_cast<std::size_t>(n - 1)] = static_cast<std::size_t>(n);
    return order; // place `variables` holds 0, the property
}

/// The next word, "&" being none.
std::string_view Field(WordReader& words) {
    const std::string_view word = words.NextWord();
    return word == "&" ? std::string_view() : word;
}

/// A count that cannot be meant is brought into what the field holds.
int WrittenCount(std::string_view digits) {
    return static_cast<int>(std::clamp<std::int64_t>(ToInteger(Val(digits)), 0, MostDigits));
}

} // namespace

bool RowStatements::IsEmpty() const {
    return DS.empty() && Rep.empty() && Repetitions.empty() && Unc.empty();
}

clsData::clsData(const clsData& other)
    : Values(other.Values), PRPUNCERTY(other.PRPUNCERTY), TIELINE(other.TIELINE),
      Digits(other.Digits), isDigit(other.isDigit), inOriginalUnits(other.inOriginalUnits),
      nVar(other.nVar),
      Extras(other.Extras ? std::make_unique<RowExtras>(*other.Extras) : nullptr) {}

clsData& clsData::operator=(const clsData& other) {
    if (this != &other) *this = clsData(other);
    return *this;
}

const ShortText& clsData::VARIABLE(int n) const {
    static const ShortText none;
    return n >= 1 && IsPlace(n) ? Values[static_cast<std::size_t>(n)] : none;
}

RowStatements& clsData::Statements(int n) {
    if (!Extras) Extras = std::make_unique<RowExtras>();
    return Extras->items.at(static_cast<std::size_t>(n));
}

const RowStatements& clsData::StatementsOf(int n) const {
    static const RowStatements none;
    return Extras && IsPlace(n) ? Extras->items[static_cast<std::size_t>(n)] : none;
}

int clsData::DigitCount(int n) const {
    if (!IsPlace(n)) return 0;
    const auto place = static_cast<std::size_t>(n);
    // The line wins: the text may be a converted one, whose digits are not the author's.
    if (isDigit && Digits[place] > 0) return Digits[place];
    return SignificantDigits(Values[place]);
}

bool clsData::Load(WordReader& words, int variables) {
    const std::string_view tag = words.NextWord();
    isDigit = tag == "^G" || tag == "^g";
    inOriginalUnits = tag == "^d" || tag == "^g";
    nVar = static_cast<std::int8_t>(variables);
    for (const std::size_t n : ItemOrder(variables)) {
        if (words.AtEnd()) return false;
        const std::string_view text = words.NextWord();
        LoadValue(text, isDigit ? words.NextWord() : std::string_view(), n);
        if (n == 0) break;
    }
    PRPUNCERTY = Field(words);
    TIELINE = Field(words);
    return true;
}

void clsData::LoadValue(std::string_view text, std::string_view digits, std::size_t n) {
    Values[n] = text == "&" ? std::string_view() : text;
    if (!isDigit) return;
    const int count = WrittenCount(digits);
    Digits[n] = static_cast<std::uint8_t>(count > 0 ? count : SignificantDigits(Values[n]));
}

void clsData::LoadExtras(WordReader& words) {
    auto extras = std::make_unique<RowExtras>();
    words.NextWord();
    for (const std::size_t n : ItemOrder(nVar)) {
        RowStatements& item = extras->items[n];
        for (std::string* text : {&item.DS, &item.Rep, &item.Repetitions, &item.Unc})
            *text = NextField(words);
        if (n == 0) break;
    }
    extras->userCU = NextField(words);
    extras->CD = NextField(words);
    Extras = std::move(extras);
}

void clsData::PrintData(LineWriter& out, bool hasTieWord) const {
    // Case tells the unit, the letter whether counts of digits go along.
    out.Field(isDigit ? (inOriginalUnits ? "^g" : "^G") : (inOriginalUnits ? "^d" : "^D"));
    for (const std::size_t n : ItemOrder(nVar)) {
        out.Field(Values[n]);
        if (isDigit) out.Field(std::to_string(DigitCount(static_cast<int>(n))));
        if (n == 0) break;
    }
    out.Field(PRPUNCERTY);
    if (hasTieWord || !IsBlankField(TIELINE)) out.Field(TIELINE);
    out.End();
    PrintExtras(out);
}

void clsData::PrintExtras(LineWriter& out) const {
    if (!Extras) return;
    bool isStated = !Extras->userCU.empty() || !Extras->CD.empty();
    std::string line = "^Y";
    for (const std::size_t n : ItemOrder(nVar)) {
        const RowStatements& item = Extras->items[n];
        isStated = isStated || !item.IsEmpty();
        for (const std::string* text : {&item.DS, &item.Rep, &item.Repetitions, &item.Unc})
            AppendField(line, *text);
        if (n == 0) break;
    }
    AppendField(line, Extras->userCU);
    AppendField(line, Extras->CD);
    // A line of "&" alone says nothing.
    if (isStated) out.Line(line);
}

void clsData::Convert(int n, const UnitConversion& unit, bool isDifference) {
    if (!unit.ChangesValues() || !IsPlace(n)) return;
    const auto place = static_cast<std::size_t>(n);
    if (Extras) {
        RowStatements& item = Extras->items[place];
        for (std::string* text : {&item.DS, &item.Rep, &item.Unc})
            *text = unit.DifferenceText(*text);
    }
    if (n == 0) {
        PRPUNCERTY = unit.DifferenceText(PRPUNCERTY);
        if (Extras) Extras->userCU = unit.DifferenceText(Extras->userCU);
        if (Extras) Extras->CD = unit.DifferenceText(Extras->CD);
    }
    if (!IsNumeric(Values[place])) return;
    const ConvertedNumber number = unit.Converted(Values[place], DigitCount(n), isDifference);
    Values[place] = number.text;
    RecordDigits(place, number.digits);
}

void clsData::RecordDigits(std::size_t n, int digits) {
    if (!isDigit) {
        // Counts stand in the line only where a text would tell another; then all of them do.
        if (SignificantDigits(Values[n]) == digits) return;
        for (std::size_t i = 0; i < Digits.size(); ++i)
            Digits[i] = static_cast<std::uint8_t>(DigitCount(static_cast<int>(i)));
        isDigit = true;
    }
    Digits[n] = static_cast<std::uint8_t>(digits);
}

} // namespace vexora

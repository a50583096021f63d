#include "tables/frmAverage.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "globals/KVOGlobal.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr int MostValues = std::numeric_limits<std::int16_t>::max();

/// A column on the clipboard comes as several numbers between blanks. Empty where one of the parts
/// is no number.
std::vector<std::string> NumbersIn(std::string_view text) {
    std::vector<std::string> numbers;
    WordReader words(text);
    while (!words.AtEnd()) {
        const std::string_view word = words.NextWord();
        if (word.empty()) continue;
        numbers.push_back(NormalizeNumber(word));
        if (!IsNumeric(numbers.back())) return {};
    }
    return numbers;
}

} // namespace

frmAverage::frmAverage() : AverageForm("frmAverage", "Average of repeated values") {
    using namespace ui;
    Arrangement = Column({lblRemark, Field("Value:", Row({Narrow(txtValue, 20), lblUnit, cmdAdd})),
                          Field("Values:", Row({lstAll, cmdRemove})), lblResult,
                          ButtonRow({cmdCalc, cmdCancel})});
    PreferredColumns = 60;
    PreferredRows = 18;
    HelpContext = 328;
    UseButtons(cmdCalc, cmdCancel, [this] { Calculate(); });
    WireEvents();
}

void frmAverage::WireEvents() {
    // Enter in the field adds what is typed; in the empty one it goes on with the average.
    txtValue.OnKey = [this](ui::Key& key) {
        if (key.name != "Enter" || txtValue.IsEmpty()) return;
        key.swallowed = true;
        Add();
    };
    txtValue.OnChange = [this] { ShowResult(); };
    lstAll.OnClick = [this] { cmdRemove.Enabled(lstAll.Index() >= 0); };
    lstAll.OnKey = [this](ui::Key& key) {
        if (key.name == "Delete") Remove();
    };
    cmdAdd.OnClick = [this] { Add(); };
    cmdRemove.OnClick = [this] { Remove(); };
}

void frmAverage::Load() {
    lblRemark.Caption(Remark);
    lblRemark.Visible(!Remark.empty());
    lblUnit.Caption(Globals().PropertyText);
    cmdRemove.Enabled(false);
    ShowResult();
}

/// Work is not thrown away by a slip of the finger.
bool frmAverage::QueryUnload() {
    const bool isLost = nData == 0 && (lstAll.Count() > 0 || !TrimBlanks(txtValue.Text()).empty());
    return !isLost || ui::AskYesNo("The values have not been averaged\nDiscard them?");
}

bool frmAverage::Add() {
    const std::vector<std::string> numbers = NumbersIn(txtValue.Text());
    const bool fits = lstAll.Count() + static_cast<int>(numbers.size()) <= MostValues;
    if (numbers.empty() || !fits) return Refuse(txtValue, "Invalid numeric value");
    for (const std::string& number : numbers)
        lstAll.Add(number);
    txtValue.Text("");
    ShowResult();
    txtValue.SetFocus();
    return true;
}

/// The entry that moves up is the next one to go.
void frmAverage::Remove() {
    const int index = lstAll.Index();
    if (index < 0) return;
    lstAll.Remove(index);
    lstAll.Index(std::min(index, lstAll.Count() - 1));
    cmdRemove.Enabled(lstAll.Index() >= 0);
    ShowResult();
}

/// What is typed and not yet added counts.
void frmAverage::Calculate() {
    if (!TrimBlanks(txtValue.Text()).empty() && !Add()) return;
    const AverageOfValues result = Average(lstAll.Items());
    if (result.count == 0) return;
    sAverage = result.average;
    sUncertainty = result.uncertainty;
    sFormat = result.format;
    nData = result.count;
    Digits = result.digits;
    Hide();
}

void frmAverage::ShowResult() {
    const AverageOfValues result = Average(lstAll.Items());
    const bool isEmpty = result.count == 0;
    cmdCalc.Enabled(!isEmpty || !txtValue.IsEmpty());
    cmdAdd.Enabled(!txtValue.IsEmpty());
    const std::string uncertainty =
        result.count > 1 ? ", standard deviation of the mean " + result.uncertainty : std::string();
    lblResult.Caption(isEmpty ? "No values yet"
                              : "Average of " + std::to_string(result.count) + ": " +
                                    result.average + uncertainty);
}

AverageOfValues Average(const std::vector<std::string>& values) {
    if (values.empty()) return {};
    AverageOfValues result;
    const std::size_t point = values.front().find('.');
    const std::size_t decimals = point == std::string::npos ? 0 : values.front().size() - point - 1;
    result.digits = static_cast<std::uint8_t>(std::min<std::size_t>(decimals, 255));
    result.format = "#########0";
    if (result.digits > 0) result.format += "." + std::string(result.digits, '0');

    // From the first value on, so that the squares of large and near values do not cancel.
    const double first = Val(values.front());
    double sum = 0, squares = 0;
    for (const std::string& value : values) {
        const double d = Val(value) - first;
        sum += d;
        squares += d * d;
    }
    const auto n = static_cast<double>(values.size());
    const double average = first + sum / n;
    const double s = values.size() > 1
                         ? std::sqrt(std::max(0.0, (squares - sum * sum / n) / (n - 1)))
                         : average; // nothing scatters: the value stands for its own uncertainty
    result.count = static_cast<std::int16_t>(values.size());
    result.average = FormatFixed(average, result.digits);
    result.uncertainty = FormatFixed(s / std::sqrt(n), result.digits);
    return result;
}

} // namespace vexora

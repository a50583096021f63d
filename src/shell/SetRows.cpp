#include "shell/SetRows.h"

#include "records/BioSet.h"
#include "records/DataSet.h"
#include "records/clsX.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"

namespace vexora {

namespace {

constexpr std::size_t AtEachEnd = 3;
constexpr const char* PlusMinus = " \xC2\xB1 ";

/// Calls for the rows that are shown; a gap is given as its count of rows.
template <class Show, class Gap>
void AtEnds(std::size_t count, Show show, Gap gap) {
    const bool hasGap = count > 2 * AtEachEnd + 1;
    for (std::size_t row = 0; row < count; ++row) {
        if (hasGap && row == AtEachEnd) {
            row = count - AtEachEnd;
            gap(row - AtEachEnd);
        }
        show(row);
    }
}

std::vector<std::string> GapText(std::size_t rows) {
    return {"\xE2\x80\xA6 " + std::to_string(rows) + " rows \xE2\x80\xA6"};
}

std::string Stated(const std::string& value, const std::string& own) {
    return value.empty() || IsBlankField(own) ? value : value + PlusMinus + own;
}

/// What a row states of the uncertainty of its value n, the combined one first.
std::string OwnUncertainty(const clsData& row, int n) {
    if (!row.Extras) return {};
    if (n == 0 && !row.Extras->userCU.empty()) return row.Extras->userCU;
    return row.StatementsOf(n).Unc;
}

} // namespace

ShownValues::ShownValues(const DataSet& set)
    : set_(set), inSystem_(set.HasBothKinds()), masses_(set) {
    for (int n = 0; n <= set.nVar; ++n)
        entered_.push_back(set.Conversion(n));
}

std::string ShownValues::Of(const clsData& row, int n) {
    const auto at = static_cast<std::size_t>(n);
    std::string typed = row.Values[at];
    if (!inSystem_ || !row.inOriginalUnits || !IsNumeric(typed)) return typed;
    if (n == 0 && set_.ConvertsByRow()) entered_[at].molarMass = masses_.Of(row);
    return entered_[at].Converted(typed).text;
}

void ShowRows(ReadingPage& page, const DataSet& set, const std::vector<std::string>& heads) {
    if (set.recData.IsEmpty()) return;
    std::vector<std::vector<std::string>> rows;
    ShownValues values(set);
    const auto show = [&](std::size_t at) {
        const clsData& row = *set.recData.Item(at + 1);
        std::vector<std::string> cells;
        for (int n = 1; n <= set.nVar; ++n)
            cells.push_back(Stated(values.Of(row, n), OwnUncertainty(row, n)));
        cells.push_back(Stated(values.Of(row, 0), OwnUncertainty(row, 0)));
        rows.push_back(std::move(cells));
    };
    AtEnds(set.recData.Count(), show, [&](std::size_t gap) { rows.push_back(GapText(gap)); });
    page.Table(heads, rows);
}

void ShowRows(ReadingPage& page, const BioSet& set) {
    if (set.recD.empty()) return;
    std::vector<std::string> heads;
    std::vector<std::vector<std::string>> rows;
    for (std::size_t place = 0; place < set.Columns(); ++place) {
        const BioQuantity& quantity = set.Quantities()[place];
        const std::string unit = set.UnitOf(quantity);
        heads.push_back(set.NameOf(quantity) + (unit.empty() ? "" : ", " + unit));
    }
    const auto show = [&](std::size_t at) {
        std::vector<std::string> cells;
        for (const BioCell& cell : set.recD[at].Cells)
            cells.push_back(Stated(std::string(cell.value), std::string(cell.uncertainty)));
        rows.push_back(std::move(cells));
    };
    AtEnds(set.recD.size(), show, [&](std::size_t gap) { rows.push_back(GapText(gap)); });
    page.Table(heads, rows);
}

void DescribeStatements(ReadingPage& page, const std::string& quantity, const std::string& unit,
                        const clsX& stated, const clsX& ofRows) {
    const auto line = [&](bool isMeant, bool byRows, const std::string& what,
                          const std::string& figure, const std::string& more) {
        if (!isMeant && !byRows) return;
        std::string text;
        if (isMeant && !IsBlankField(figure))
            text = figure.ends_with('%') ? figure : NumberWithUnit(figure, unit);
        if (!text.empty() && !more.empty()) text += " (" + more + ")";
        if (byRows) text += text.empty() ? "each row with its own" : ", some rows with their own";
        page.Line(what + " of " + quantity + ":", text);
    };
    const auto level = [](const std::string& percent) {
        return IsBlankField(percent) ? std::string() : percent + " % confidence";
    };
    const std::string means = stated.RType == 0   ? "of the mean"
                              : stated.RType == 1 ? "of a single measurement"
                                                  : "";
    const std::string times =
        IsBlankField(stated.Repetitions) ? "" : stated.Repetitions + " repetitions";
    line(stated.iUnc, ofRows.iUnc, "Uncertainty", stated.UValue, level(stated.ULevel));
    line(stated.iCU, ofRows.iCU, "Combined uncertainty", stated.CValue, level(stated.CLevel));
    line(stated.iRep, ofRows.iRep, "Repeatability", stated.RValue, Listed({means, times}));
    line(stated.iDS, ofRows.iDS, "Device specification", stated.DSValue, level(stated.DSLevel));
    line(stated.iCD, ofRows.iCD, "Deviation from the curve", stated.CDRms, "");
}

} // namespace vexora

#include "tables/ProcessPictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "records/FractionCode.h"
#include "records/MixtureWords.h"
#include "records/clsM.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "tables/PhaseHeads.h"
#include "tables/PictureColumns.h"

namespace vexora {

namespace {

using Pictures = std::vector<std::shared_ptr<PlotTable>>;

/// Each leads to the next.
std::shared_ptr<PlotTable> Chained(Pictures pictures) {
    std::erase_if(pictures, [](const auto& one) { return !one || one->PointTable.empty(); });
    for (const auto& one : pictures)
        one->Cut();
    for (std::size_t i = 1; i < pictures.size(); ++i)
        pictures[i - 1]->Next = pictures[i];
    return pictures.empty() ? nullptr : pictures.front();
}

/// A content of a phase in a row, and the column that tells it.
struct Content {
    double value = 0; // of the whole
    int column = 0;
};

class PhaseDiagram {
public:
    PhaseDiagram(const ProcessTable& table, const clsM& mixture)
        : mixture_(mixture), columns_(table, &mixture), heads_(ReadHeads(table)) {
        for (const PhaseColumns& phase : heads_.phases)
            if (first_ < 0 && !phase.compositions.empty()) first_ = phase.compositions.front();
    }

    Pictures All() {
        if (first_ < 0) return {};
        if (mixture_.MixType > 2) return {Triangle()};
        return {Curves(), GasOverLiquid()};
    }

private:
    int Rows() const { return static_cast<int>(columns_.Table().rows.size()); }
    char Kind() const { return columns_.Head(first_).quantity.front(); }
    std::string Code(int component) const { return Kind() + std::to_string(component); }
    int FirstComponent() const { return columns_.Head(first_).quantity.back() - '0'; }

    std::optional<Content> ContentOf(const PhaseColumns& phase, int component, int row) const;
    void TakeColumn(PlotTable& table, int place, int column);
    void AddPoint(PlotTable& table, const PlotTable::Row& point, int row, int column, int series,
                  int tie);
    double InPicture(int place, double system) const { return scales_.InTable(place, system); }
    std::shared_ptr<PlotTable> New(int nVar);
    void NamePhases(PlotTable& table) const;
    int OrdinateColumn() const;
    std::shared_ptr<PlotTable> Curves();
    std::shared_ptr<PlotTable> GasOverLiquid();
    std::shared_ptr<PlotTable> Triangle();
    std::string TriangleTitle() const;

    const clsM& mixture_;
    PictureColumns columns_;
    PhaseHeads heads_;
    int first_ = -1;     // column of the first composition, whose unit the picture has
    PlotColumns scales_; // of the picture that is being made
};

/// Told by a column of its own, or what the others leave of the whole.
std::optional<Content> PhaseDiagram::ContentOf(const PhaseColumns& phase, int component,
                                               int row) const {
    double rest = 1;
    int known = 0, ofOther = -1;
    for (const int column : phase.compositions) {
        const std::string& code = columns_.Head(column).quantity;
        const auto value = columns_.Value(row, column);
        if (code.front() != Kind() || !value) continue;
        if (code == Code(component)) return Content{*value, column};
        rest -= *value;
        ofOther = column;
        ++known;
    }
    if (!FractionCode::Of(Code(1)) || known != mixture_.MixType - 1) return std::nullopt;
    return Content{rest, ofOther};
}

std::shared_ptr<PlotTable> PhaseDiagram::New(int nVar) {
    scales_ = {};
    auto table = std::make_shared<PlotTable>();
    table->nVar = nVar;
    return table;
}

/// In the unit of a column of the table.
void PhaseDiagram::TakeColumn(PlotTable& table, int place, int column) {
    const auto at = static_cast<std::size_t>(place);
    scales_.codes[at] = columns_.Head(column).quantity;
    scales_.units[at] = columns_.Conversion(column);
    (place == 0 ? table.YName : table.VarNames[at - 1]) = columns_.Caption(column);
    table.Whole[at] = scales_.WholeOf(place);
}

void PhaseDiagram::AddPoint(PlotTable& table, const PlotTable::Row& point, int row, int column,
                            int series, int tie) {
    table.Add(point, 0, row + 1, false, series, tie);
    table.PointColumn.back() = column;
}

void PhaseDiagram::NamePhases(PlotTable& table) const {
    for (const PhaseColumns& phase : heads_.phases)
        table.SeriesNames.push_back(columns_.PhaseText(phase.phase));
}

/// A temperature that varies goes before a pressure.
int PhaseDiagram::OrdinateColumn() const {
    for (const int column : {heads_.TColumn, heads_.PColumn})
        if (column >= 0 && columns_.Varies(column)) return column;
    return -1;
}

std::shared_ptr<PlotTable> PhaseDiagram::Curves() {
    const int y = OrdinateColumn();
    if (y < 0) return nullptr;
    const int other = y == heads_.TColumn ? heads_.PColumn : -1;
    const bool hasOther = other >= 0 && columns_.Varies(other);
    auto table = New(hasOther ? 2 : 1);
    TakeColumn(*table, 0, y);
    TakeColumn(*table, 1, first_);
    if (hasOther) TakeColumn(*table, 2, other);
    NamePhases(*table);
    for (int row = 0; row < Rows(); ++row) {
        const auto state = columns_.Typed(row, y);
        const auto second = hasOther ? columns_.Typed(row, other) : std::optional(0.0);
        if (!state || !second) continue;
        const int begin = table->PointCount();
        for (std::size_t i = 0; i < heads_.phases.size(); ++i)
            if (const auto x = ContentOf(heads_.phases[i], FirstComponent(), row))
                AddPoint(*table, {*state, InPicture(1, x->value), *second}, row, x->column,
                         static_cast<int>(i), row + 1);
        if (table->PointCount() == begin + 1) table->PointTie.back() = 0;
    }
    return table;
}

/// The pure components are its corners.
std::shared_ptr<PlotTable> PhaseDiagram::GasOverLiquid() {
    const auto gas = std::ranges::find(heads_.phases, "G", &PhaseColumns::phase);
    if (gas == heads_.phases.end() || heads_.phases.size() < 2) return nullptr;
    auto table = New(1);
    TakeColumn(*table, 0, first_);
    TakeColumn(*table, 1, first_);
    table->YName = columns_.Caption(first_) + ", " + columns_.PhaseText("G");
    table->HasDiagonal = true;
    const bool hasTwo = heads_.phases.size() > 2;
    for (const PhaseColumns& phase : heads_.phases) {
        if (phase.phase == "G") continue;
        const int series = static_cast<int>(table->SeriesNames.size());
        if (hasTwo) table->SeriesNames.push_back(columns_.PhaseText(phase.phase));
        if (!hasTwo) table->VarNames[0] += ", " + columns_.PhaseText(phase.phase);
        for (int row = 0; row < Rows(); ++row) {
            const auto y = ContentOf(*gas, FirstComponent(), row);
            const auto x = ContentOf(phase, FirstComponent(), row);
            if (x && y)
                AddPoint(*table, {InPicture(0, y->value), InPicture(1, x->value)}, row, y->column,
                         series, 0);
        }
    }
    return table;
}

std::shared_ptr<PlotTable> PhaseDiagram::Triangle() {
    if (!FractionCode::Of(Code(1))) return nullptr;
    const bool hasT = heads_.TColumn >= 0 && columns_.Varies(heads_.TColumn);
    auto table = New(hasT ? 3 : 2);
    for (int place = 1; place <= 2; ++place) {
        TakeColumn(*table, place, first_);
        table->VarNames[static_cast<std::size_t>(place - 1)] =
            WithComponents(VariableName(Code(place)), &mixture_);
    }
    if (hasT) TakeColumn(*table, 3, heads_.TColumn);
    for (int n = 1; n <= 3; ++n)
        table->Corners[static_cast<std::size_t>(n - 1)] =
            WithComponents("component " + std::to_string(n), &mixture_);
    NamePhases(*table);
    for (int row = 0; row < Rows(); ++row) {
        const int begin = table->PointCount();
        const auto T = hasT ? columns_.Typed(row, heads_.TColumn) : std::optional(0.0);
        for (std::size_t i = 0; i < heads_.phases.size(); ++i) {
            const auto one = ContentOf(heads_.phases[i], 1, row);
            const auto two = ContentOf(heads_.phases[i], 2, row);
            if (!one || !two || !T) continue;
            AddPoint(*table, {0, InPicture(1, one->value), InPicture(2, two->value), *T}, row,
                     one->column, static_cast<int>(i), row + 1);
        }
        if (table->PointCount() == begin + 1) table->PointTie.back() = 0;
    }
    table->Title = TriangleTitle();
    return table;
}

/// The kind of fraction, and what of temperature and pressure is the same everywhere.
std::string PhaseDiagram::TriangleTitle() const {
    std::string title = VariableName(Code(1));
    title = title.substr(0, title.find(" of component"));
    if (scales_.WholeOf(1) == 100) title += " (%)";
    for (const int column : {heads_.TColumn, heads_.PColumn}) {
        if (column < 0 || columns_.Varies(column)) continue;
        for (int row = 0; row < Rows(); ++row) {
            const auto value = columns_.Value(row, column);
            if (!value) continue;
            title +=
                ", " + NumberText(*value) + " " + HeadSystemUnit(columns_.Head(column).quantity);
            break;
        }
    }
    return title;
}

/// The combined uncertainty of a cell, of its value where it is told in per cent; 0 for none.
double UncertaintyIn(const ProcessTable& table, int row, int column, double value) {
    if (column < 0) return 0;
    std::string_view text = table.Cell(row, column);
    const bool isPercent = text.ends_with('%');
    if (isPercent) text.remove_suffix(1);
    const double figure = Val(NormalizeNumber(text));
    return std::abs(isPercent ? figure * value / 100 : figure);
}

std::shared_ptr<PlotTable> ColumnPlot(const PictureColumns& columns, const ColumnView& view) {
    auto table = std::make_shared<PlotTable>();
    table->nVar = std::max(static_cast<int>(view.variables.size()), 1);
    table->YName = columns.Caption(view.property, true);
    table->VarNames[0] = "Point number";
    for (std::size_t n = 0; n < view.variables.size(); ++n)
        table->VarNames[n] = columns.Caption(view.variables[n], true);
    for (int row = 0; row < static_cast<int>(columns.Table().rows.size()); ++row) {
        const auto y = columns.Typed(row, view.property);
        if (!y) continue;
        PlotTable::Row point{*y, row + 1.0};
        bool isWhole = true;
        for (std::size_t n = 0; n < view.variables.size() && isWhole; ++n) {
            const auto x = columns.Typed(row, view.variables[n]);
            isWhole = x.has_value();
            point[n + 1] = x.value_or(0);
        }
        if (!isWhole) continue;
        table->Add(point, UncertaintyIn(columns.Table(), row, view.uncertainty, *y), row + 1);
        table->PointColumn.back() = view.property;
    }
    return table;
}

/// Described columns of values, without those of uncertainties.
std::vector<int> ValueColumns(const ProcessTable& table) {
    std::vector<int> columns;
    for (int column = 0; column < static_cast<int>(table.columns.size()); ++column) {
        const ProcessColumn& head = table.columns[static_cast<std::size_t>(column)];
        if (head.IsDescribed() && !head.IsUncertainty()) columns.push_back(column);
    }
    return columns;
}

/// As far as the heads go: all against temperature and pressure, or against the first column.
std::vector<ColumnView> PlainViews(const ProcessTable& table) {
    std::vector<int> columns = ValueColumns(table), states;
    for (const std::string_view code : {"T", "P"})
        if (const int column = table.ColumnOf(code); column >= 0) states.push_back(column);
    std::string fault;
    const std::vector<int> uncertainty = UncertaintyColumns(table, fault);
    std::vector<int> variables = states;
    if (columns.size() > states.size())
        std::erase_if(columns, [&states](int column) {
            return std::ranges::find(states, column) != states.end();
        });
    else
        variables.clear();
    if (variables.empty() && columns.size() > 1) {
        variables = {columns.front()};
        columns.erase(columns.begin());
    }
    std::vector<ColumnView> views;
    for (const int column : columns)
        views.push_back({column, uncertainty[static_cast<std::size_t>(column)], variables});
    return views;
}

} // namespace

std::shared_ptr<PlotTable> PhaseDiagrams(const ProcessTable& table, const clsM& mixture) {
    return Chained(PhaseDiagram(table, mixture).All());
}

std::vector<ColumnView> ViewsOf(const ProcessTable& table, const PhaseAnalysis& analysis) {
    if (!analysis.Ok) return PlainViews(table);
    std::vector<ColumnView> views;
    for (const PlannedSet& set : analysis.sets)
        views.push_back({set.property, set.uncertainty, set.variables});
    return views;
}

std::vector<ColumnView> ViewsOf(const ProcessTable& table, const ThermalAnalysis& analysis) {
    if (!analysis.Ok) return PlainViews(table);
    std::vector<ColumnView> views;
    for (const PlannedFunction& set : analysis.sets)
        views.push_back({set.property, set.uncertainty, {analysis.TColumn}});
    return views;
}

std::shared_ptr<PlotTable> ColumnPlots(const ProcessTable& table,
                                       const std::vector<ColumnView>& views, const clsM* mixture) {
    const PictureColumns columns(table, mixture);
    Pictures pictures;
    for (const ColumnView& view : views)
        pictures.push_back(ColumnPlot(columns, view));
    return Chained(std::move(pictures));
}

} // namespace vexora

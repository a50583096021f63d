#include "entry/SetPictures.h"

#include <algorithm>
#include <utility>

#include "entry/PureEnds.h"
#include "entry/SetStates.h"
#include "records/PropertyChain.h"
#include "records/RowMasses.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr std::size_t MostRows = 1000;    // of a set in a small picture
constexpr std::size_t MostAround = 10000; // of all sets around it

/// The rows of a set as points, in the units of the set or in system units.
class RowPoints {
public:
    RowPoints(const DataSet& set, bool original) : set_(set), original_(original), masses_(set) {
        for (int n = 0; n <= set.nVar; ++n)
            entered_.push_back(set.Conversion(n));
    }

    /// False where a value is missing.
    bool Take(const clsData& row, PlotTable::Row& point) {
        if (!original_ && set_.ConvertsByRow()) entered_[0].molarMass = masses_.Of(row);
        for (int n = 0; n <= set_.nVar; ++n) {
            const auto at = static_cast<std::size_t>(n);
            if (!IsNumeric(row.Values[at])) return false;
            point[at] = original_ ? Val(row.Values[at]) : SystemValueOf(row, n, entered_[at]);
        }
        return true;
    }

private:
    const DataSet& set_;
    bool original_;
    RowMasses masses_;
    std::vector<UnitConversion> entered_;
};

/// A set without variables is seen against the number of the row.
PlotTable PointsOf(const DataSet& set, bool original) {
    PlotTable table;
    table.nVar = std::max(set.nVar, 1);
    NameColumns(table, NamedQuantities(set, original));
    RowPoints points(set, original);
    const std::size_t step = 1 + set.recData.Count() / MostRows;
    int number = 0;
    for (const clsData& row : set.recData) {
        PlotTable::Row point{};
        point[1] = number + 1;
        if (static_cast<std::size_t>(number++) % step == 0 && points.Take(row, point))
            table.Add(point, 0, number);
    }
    return table;
}

/// A copy with the rows of these points alone.
std::shared_ptr<DataSet> WithRowsOf(const PlotTable& points, const DataSet& set) {
    auto copy = set.Copy();
    copy->recData.Clear();
    for (const int number : points.PointRow)
        copy->recData.Add(clsData(*set.recData.Item(static_cast<std::size_t>(number))));
    return copy;
}

void PassOverLong(std::vector<const DataSet*>& sets, std::size_t& total) {
    std::erase_if(sets, [&total](const DataSet* set) {
        const std::size_t rows = set->recData.Count();
        const bool isLong = rows > MostRows || total + rows > MostAround;
        if (!isLong) total += rows;
        return isLong;
    });
}

} // namespace

void NameColumns(PlotTable& table, const std::vector<Quantity>& quantities) {
    table.VarNames[0] = "Point number";
    for (const Quantity& one : quantities) {
        const std::string name = one.name + (one.unit.empty() ? "" : " (" + one.unit + ")");
        (one.isProperty ? table.YName : table.VarNames[static_cast<std::size_t>(one.item - 1)]) =
            name;
    }
}

void NameSystem(PlotTable& first, const std::string& system, const std::string& setNumber) {
    for (PlotTable* one = &first; one != nullptr; one = one->Next.get()) {
        one->System = system;
        one->SetNumber = IsBlankField(setNumber) ? std::string() : setNumber;
    }
}

std::shared_ptr<PlotTable> PicturesOf(const SetInHand& hand, const std::shared_ptr<PlotTable>& own,
                                      const SetSurroundings& around) {
    const PlotColumns columns = PlotColumns::Of(hand.asItStands, hand.original);
    MarkFractions(*own, columns);
    NameComponents(*own, around);
    AddPureEnds(*own, columns, hand.asItStands, around);
    auto phases = PhasePlot(hand, around);
    if (!phases) return own;
    phases->Next = own;
    return phases;
}

std::shared_ptr<PlotTable> PictureOfRecord(const DataSet& set) {
    const bool original = set.isOriginalUnit && !set.HasBothKinds();
    auto own = std::make_shared<PlotTable>(PointsOf(set, original));
    if (own->PointCount() < 2) return nullptr;
    if (set.DataContext() == "Pure" || set.recData.Count() > PlotTable::MostPoints) return own;
    SetSurroundings around = set.Surroundings();
    std::size_t total = 0;
    PassOverLong(around.sameSystem, total);
    for (auto& sets : around.pure)
        PassOverLong(sets, total);
    const auto asItStands = WithRowsOf(*own, set);
    return PicturesOf({set, *asItStands, *own, original}, own, around);
}

} // namespace vexora

#include "plot/PlotScale.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vexora {

namespace {

constexpr double Padding = 0.02;
constexpr double LeastOfLog = 0.0001; // of the largest Y, where the smallest has no logarithm
constexpr double SameLimits = 1e-9;
constexpr double WideEnough = 0.1;   // of the whole
constexpr double RoomOfLabel = 0.12; // of an axis
constexpr double RoomOfTick = 0.02;

std::optional<double> Position(double value, double from, double to) {
    if (from == to) return 0.5;
    const double position = (value - from) / (to - from);
    if (!std::isfinite(position)) return std::nullopt;
    return position;
}

/// Fractions are seen against their whole range, from pure to pure; those of a dilute solution
/// would stick to its edge and keep their own.
void SpanWhole(double whole, double& min, double& max) {
    if (whole <= 0 || max - min < WideEnough * whole) return;
    min = std::min(min, 0.0);
    max = std::max(max, whole);
}

} // namespace

void PlotScale::Ranges(const PlotTable& table, int xVar) {
    Empty = table.PointTable.empty();
    if (Empty) return;
    const auto column = static_cast<std::size_t>(xVar);
    XMin = XMax = table.PointTable.front()[column];
    YMin = YMax = table.PointTable.front()[0];
    for (const PlotTable::Row& row : table.PointTable) {
        XMin = std::min(XMin, row[column]);
        XMax = std::max(XMax, row[column]);
        YMin = std::min(YMin, row[0]);
        YMax = std::max(YMax, row[0]);
    }
    if (Log) return PadLog();
    for (const PlotTable::End& end : table.Ends) {
        XMin = std::min(XMin, end.at[column]);
        XMax = std::max(XMax, end.at[column]);
        YMin = std::min(YMin, end.at[0]);
        YMax = std::max(YMax, end.at[0]);
    }
    SpanWhole(table.Whole[column], XMin, XMax);
    SpanWhole(table.Whole[0], YMin, YMax);
    const double roomX = (XMax - XMin) * Padding;
    const double roomY = (YMax - YMin) * Padding;
    XMin -= roomX;
    XMax += roomX;
    YMin -= roomY;
    YMax += roomY;
}

void PlotScale::PadLog() {
    Empty = XMin + Shift <= 0 || YMax <= 0;
    if (Empty) return;
    const double a = 1 / (XMin + Shift);
    const double b = 1 / (XMax + Shift);
    const double room = (a - b) * Padding;
    if (room > 0) XMin = 1 / (a + room) - Shift;
    if (room > 0 && b > room) XMax = 1 / (b - room) - Shift;
    if (YMin <= 0) {
        YMin = YMax * LeastOfLog;
        return;
    }
    const double factor = std::exp(Padding * std::log(YMax / YMin));
    YMin /= factor;
    YMax *= factor;
}

bool PlotScale::Zoom(double fromX, double fromY, double toX, double toY) {
    for (double* position : {&fromX, &fromY, &toX, &toY})
        *position = std::clamp(*position, 0.0, 1.0);
    if (fromX > toX) std::swap(fromX, toX);
    if (fromY > toY) std::swap(fromY, toY);
    if (Empty || fromX == toX || fromY == toY) return false;
    const double left = ValueX(fromX);
    const double low = ValueY(fromY);
    XMax = ValueX(toX);
    YMax = ValueY(toY);
    XMin = left;
    YMin = low;
    return true;
}

std::optional<double> PlotScale::PositionX(double x) const {
    if (!Log) return Position(x, XMin, XMax);
    if (x + Shift <= 0) return std::nullopt;
    return Position(1 / (x + Shift), 1 / (XMin + Shift), 1 / (XMax + Shift));
}

std::optional<double> PlotScale::PositionY(double y) const {
    if (!Log) return Position(y, YMin, YMax);
    if (y <= 0) return std::nullopt;
    return Position(std::log(y), std::log(YMin), std::log(YMax));
}

double PlotScale::ValueX(double position) const {
    if (!Log || XMin == XMax) return XMin + position * (XMax - XMin);
    const double a = 1 / (XMin + Shift);
    const double b = 1 / (XMax + Shift);
    return 1 / (a + position * (b - a)) - Shift;
}

double PlotScale::ValueY(double position) const {
    if (!Log || YMin == YMax) return YMin + position * (YMax - YMin);
    return YMin * std::exp(position * std::log(YMax / YMin));
}

std::vector<double> PlotScale::TicksX() const {
    if (!HasTicks()) return {};
    std::vector<double> ticks = Ticks(XMin, XMax);
    if (!Log) return ticks;
    constexpr std::size_t enough = 3;
    bool isRefined = false;
    while (!ticks.empty() && Apart(ticks, RoomOfLabel).size() < enough) {
        std::vector<double> finer = Ticks(XMin, ticks.front());
        std::erase_if(finer, [&](double tick) { return tick >= ticks.front(); });
        if (finer.empty()) break;
        ticks.insert(ticks.begin(), finer.begin(), finer.end());
        isRefined = true;
    }
    return isRefined ? Apart(ticks, RoomOfTick) : ticks;
}

/// Those that stand at least so far from the one before them.
std::vector<double> PlotScale::Apart(const std::vector<double>& ticks, double least) const {
    std::vector<double> apart;
    double last = -1;
    for (const double tick : ticks) {
        const auto position = PositionX(tick);
        if (!position || *position - last < least) continue;
        apart.push_back(tick);
        last = *position;
    }
    return apart;
}

std::vector<double> PlotScale::TicksY() const {
    if (!HasTicks()) return {};
    std::vector<double> ticks = Ticks(YMin, YMax);
    if (!Log || ticks.empty()) return ticks;
    std::vector<double> decades;
    double decade = std::ceil(std::log10(YMin));
    for (; std::pow(10.0, decade) < ticks.front(); ++decade)
        decades.push_back(std::pow(10.0, decade));
    ticks.insert(ticks.begin(), decades.begin(), decades.end());
    return ticks;
}

bool PlotScale::HasTicks() const {
    return !Empty && XMin != XMax && YMin != YMax;
}

std::vector<double> Ticks(double min, double max) {
    const double range = std::abs(max - min);
    const double mean = (std::abs(min) + std::abs(max)) / 2;
    if (range == 0 || !std::isfinite(range) || range / mean < SameLimits) return {};
    double step = std::pow(10.0, std::floor(std::log10(range)));
    if (range / step < 2)
        step /= 5;
    else if (range / step < 5)
        step /= 2;
    // Counted, not summed up: a sum of steps drifts off the round values.
    double count = std::trunc(min / step);
    if (count * step < min) ++count;
    const double slack = step * SameLimits;
    std::vector<double> ticks;
    for (; count * step <= max + slack; ++count)
        ticks.push_back(count * step);
    return ticks;
}

double ShiftOf(std::string_view caption) {
    constexpr auto none = std::string_view::npos;
    return caption.find("(C)") != none ? 273.15 : caption.find("(F)") != none ? 459.6696 : 0;
}

double ShiftOf(const PlotTable& table) {
    constexpr double celsius = 273.15;
    double shift = 0;
    for (const std::string& name : table.VarNames)
        if (const double own = ShiftOf(name); own == celsius || shift == 0) shift = own;
    return shift;
}

} // namespace vexora

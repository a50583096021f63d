#include "structures/CellPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <string>
#include <utility>

#include "reference/Numbers.h"

namespace vexora {

namespace {

using Stroke = ui::Picture::Stroke;
using Shape = ui::Picture::Shape;
using Align = ui::Picture::Align;

constexpr double Margin = 40, LegendHeight = 34, LegendStep = 110;
constexpr double OnFace = 0.001; // so near to a side an atom stands on it
constexpr std::size_t MostAtoms = 3000;

/// Red, blue and black as chemists have them. Hydrogen is small, so that it does not hide the atom
/// that it lies before.
constexpr struct Element {
    const char* symbol;
    int colour;
    bool isSmall;
} Elements[] = {{"O", 2, false}, {"H", 4, true}, {"C", 0, false}, {"N", 1, false}};

/// Where the lattice repeats a point, beside whole cells.
std::vector<Point3> CentringOf(std::string_view spaceGroup, const CellConstants& cell) {
    constexpr double half = 0.5, third = 1.0 / 3;
    switch (spaceGroup.empty() ? 'P' : spaceGroup.front()) {
    case 'A':
        return {{0, 0, 0}, {0, half, half}};
    case 'B':
        return {{0, 0, 0}, {half, 0, half}};
    case 'C':
        return {{0, 0, 0}, {half, half, 0}};
    case 'I':
        return {{0, 0, 0}, {half, half, half}};
    case 'F':
        return {{0, 0, 0}, {0, half, half}, {half, 0, half}, {half, half, 0}};
    case 'R': // on hexagonal axes, obverse
        if (Contradictions(CrystalSystem::Hexagonal, false, cell).empty())
            return {{0, 0, 0}, {2 * third, third, third}, {third, 2 * third, 2 * third}};
        return {{0, 0, 0}};
    default:
        return {{0, 0, 0}};
    }
}

Stroke Label(double x, double y, std::string text, Align align) {
    Stroke stroke{Shape::Text, x, y, 0, 0, 0, std::move(text)};
    stroke.align = align;
    return stroke;
}

struct Place {
    Point3 seen;
    const Element* element;
};

class CellDrawing {
public:
    CellDrawing(const CellConstants& cell, const std::array<Point3, 3>& edges, CellView view)
        : cell_(cell), edges_(edges), view_(view) {
        for (int corner = 0; corner < 8; ++corner)
            corners_.at(static_cast<std::size_t>(corner)) =
                Seen({double(corner & 1), double(corner >> 1 & 1), double(corner >> 2 & 1)});
        FitToSurface();
    }

    std::vector<Stroke> Draw(std::string_view spaceGroup, const std::vector<CrystalAtom>& atoms) {
        DrawEdges();
        DrawAtoms(spaceGroup, atoms);
        DrawLegend();
        return std::move(strokes_);
    }

private:
    /// Of a place in parts of the edges.
    Point3 Seen(const Point3& parts) const {
        Point3 point{};
        for (std::size_t n = 0; n < 3; ++n)
            for (std::size_t i = 0; i < 3; ++i)
                point.at(i) += parts.at(n) * edges_.at(n).at(i);
        return Projected(point, edges_, view_);
    }

    void FitToSurface() {
        double left = std::numeric_limits<double>::max(), low = left, right = -left, high = -left;
        for (const Point3& corner : corners_) {
            left = std::min(left, corner[0]);
            right = std::max(right, corner[0]);
            low = std::min(low, corner[1]);
            high = std::max(high, corner[1]);
        }
        const double wide = CellPictureWidth - 2 * Margin;
        const double tall = CellPictureHeight - 2 * Margin - LegendHeight;
        scale_ = std::min(wide / (right - left), tall / (high - low));
        x0_ = CellPictureWidth / 2 - scale_ * (left + right) / 2;
        y0_ = (CellPictureHeight + LegendHeight) / 2 + scale_ * (low + high) / 2;
    }

    double Across(const Point3& seen) const { return x0_ + scale_ * seen[0]; }
    double Down(const Point3& seen) const { return y0_ - scale_ * seen[1]; }

    /// The edges that meet in the hindmost corner lie behind the cell.
    void DrawEdges() {
        const auto hindmost = std::ranges::min_element(
            corners_, [](const Point3& a, const Point3& b) { return a[2] < b[2]; });
        const auto behind = static_cast<int>(hindmost - corners_.begin());
        for (const bool faint : {true, false})
            for (int corner = 0; corner < 8; ++corner)
                for (const int step : {1, 2, 4}) {
                    const bool isHidden = view_ == CellView::Aslant &&
                                          (corner == behind || (corner | step) == behind);
                    if ((corner & step) == 0 && isHidden == faint)
                        Line(At(corner), At(corner | step), faint ? -1 : 0);
                }
        for (std::size_t n = 0; n < 3; ++n)
            if (static_cast<std::size_t>(view_) != n) NameEdge(n);
        Text(At(0), "0", -1);
    }

    const Point3& At(int corner) const { return corners_.at(static_cast<std::size_t>(corner)); }

    /// Behind the end of the edge, away from the corner where all begin.
    void NameEdge(std::size_t n) { Text(At(1 << n), std::string(1, "abc"[n]), 1); }

    void Text(const Point3& corner, std::string text, int side) {
        constexpr double away = 18, halfLine = 11;
        const double x = Across(corner) - Across(At(0)), y = Down(corner) - Down(At(0));
        const double length = std::hypot(x, y);
        const double dx = length > 0 ? side * x / length : -0.7;
        const double dy = length > 0 ? side * y / length : 0.7;
        strokes_.push_back(Label(Across(corner) + away * dx, Down(corner) + away * dy - halfLine,
                                 std::move(text), Align::Centre));
    }

    void Line(const Point3& from, const Point3& to, int colour) {
        strokes_.push_back(
            {Shape::Line, Across(from), Down(from), Across(to), Down(to), colour, {}});
    }

    void DrawAtoms(std::string_view spaceGroup, const std::vector<CrystalAtom>& atoms) {
        const std::vector<Point3> centring = CentringOf(spaceGroup, cell_);
        for (const CrystalAtom& atom : atoms) {
            const auto element = std::ranges::find(Elements, atom.Atom, &Element::symbol);
            const auto x = NumberIn(atom.XX), y = NumberIn(atom.YY), z = NumberIn(atom.ZZ);
            if (element == std::end(Elements) || !x || !y || !z) continue;
            ++counts_[element];
            for (const Point3& shift : centring)
                Repeat({*x + shift[0], *y + shift[1], *z + shift[2]}, element);
        }
        std::ranges::sort(places_, {}, [](const Place& place) { return place.seen[2]; });
        for (const Place& place : places_)
            strokes_.push_back(Marker(Across(place.seen), Down(place.seen), *place.element));
    }

    /// Into the cell; on a side of it the atom stands on the opposite one, too.
    void Repeat(Point3 parts, const Element* element) {
        std::array<bool, 3> onFace{};
        for (std::size_t n = 0; n < 3; ++n) {
            double& part = parts.at(n);
            part -= std::floor(part);
            if (part > 1 - OnFace) part -= 1;
            onFace.at(n) = std::abs(part) < OnFace;
        }
        for (int side = 0; side < 8; ++side) {
            Point3 place = parts;
            bool stands = true;
            for (std::size_t n = 0; n < 3; ++n) {
                if ((side >> n & 1) == 0) continue;
                stands = stands && onFace.at(n);
                place.at(n) += 1;
            }
            if (stands && places_.size() < MostAtoms) places_.push_back({Seen(place), element});
        }
    }

    static Stroke Marker(double x, double y, const Element& element) {
        Stroke stroke{Shape::Marker, x, y, 0, 0, element.colour, {}};
        stroke.dense = element.isSmall;
        return stroke;
    }

    void DrawLegend() {
        double x = Margin;
        for (const Element& element : Elements) {
            if (!counts_.contains(&element)) continue;
            strokes_.push_back(Marker(x, LegendHeight / 2, element));
            strokes_.push_back(Label(x + 16, LegendHeight / 2 - 11,
                                     std::string(element.symbol) + ", " +
                                         std::to_string(counts_[&element]) + " listed",
                                     Align::Left));
            x += LegendStep;
        }
    }

    const CellConstants& cell_;
    const std::array<Point3, 3>& edges_;
    CellView view_;
    std::array<Point3, 8> corners_{};
    double scale_ = 1, x0_ = 0, y0_ = 0;
    std::vector<Place> places_;
    std::map<const Element*, int> counts_;
    std::vector<Stroke> strokes_;
};

} // namespace

std::vector<Stroke> CellPicture(const CellConstants& cell, std::string_view spaceGroup,
                                const std::vector<CrystalAtom>& atoms, CellView view) {
    if (const auto edges = EdgesOf(cell))
        return CellDrawing(cell, *edges, view).Draw(spaceGroup, atoms);
    return {Label(CellPictureWidth / 2, CellPictureHeight / 2,
                  cell.AreComplete() ? "These constants close no cell"
                                     : "The cell is drawn when its six constants are known",
                  Align::Centre)};
}

} // namespace vexora

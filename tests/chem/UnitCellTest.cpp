#include "chem/UnitCell.h"

#include <gtest/gtest.h>

#include "reference/Numbers.h"

namespace vexora {
namespace {

using enum CrystalSystem;

CellConstants Cell(double a, double b, double c, double alpha = 90, double beta = 90,
                   double gamma = 90) {
    return {{a, b, c}, {alpha, beta, gamma}};
}

TEST(SpaceGroups, AreThe230WithTheCountOfEachSystem) {
    int counts[8] = {};
    for (int number = 1; number <= 230; ++number)
        ++counts[static_cast<int>(SystemOfNumber(number))];
    EXPECT_EQ(std::vector(counts, counts + 8), (std::vector{0, 2, 13, 59, 68, 25, 27, 36}));
    EXPECT_EQ(SystemOfNumber(0), Unknown);
    EXPECT_EQ(SystemOfNumber(231), Unknown);
    const auto symbols = SpaceGroupSymbols();
    ASSERT_EQ(symbols.size(), 230U);
    for (std::size_t i = 0; i < symbols.size(); ++i) // no symbol stands twice
        EXPECT_EQ(SpaceGroupNumber(symbols[i]), static_cast<int>(i) + 1) << symbols[i];
    std::string usual;
    for (const std::string_view symbol : UsualSpaceGroups())
        usual += std::to_string(SpaceGroupNumber(symbol)) + " ";
    EXPECT_EQ(usual, "223 227 191 194 216 229 136 140 148 167 62 63 2 ");
}

TEST(SpaceGroups, GoBySymbolsOfPapersToo) {
    const struct {
        const char* symbol;
        int number;
        CrystalSystem system;
    } cases[] = {{"P63/mmc", 194, Hexagonal},
                 {"P 63/m m c", 194, Hexagonal},
                 {"Fd3m", 227, Cubic},
                 {"Pm3n", 223, Cubic},
                 {"P_a_3", 205, Cubic},
                 {"R-3m", 166, Trigonal},
                 {"R3m", 160, Trigonal},
                 {"Cmca", 64, Orthorhombic},
                 {"P21/n", 0, Monoclinic},
                 {"P21/a", 0, Monoclinic},
                 {"I2/a", 0, Monoclinic},
                 {"Pbnm", 0, Orthorhombic},
                 {"P21212", 18, Orthorhombic},
                 {"P21221", 0, Orthorhombic},
                 {"Pb2/m", 0, Unknown},
                 {"P21/", 0, Unknown},
                 {"", 0, Unknown},
                 {"Pm-3x", 0, Unknown}};
    for (const auto& one : cases) {
        EXPECT_EQ(SpaceGroupNumber(one.symbol), one.number) << one.symbol;
        EXPECT_EQ(SystemOfSymbol(one.symbol), one.system) << one.symbol;
    }
}

TEST(UnitCell, HasTheVolumeOfItsConstants) {
    const struct {
        CellConstants cell;
        const char* volume;
    } cases[] = {
        {Cell(4.497, 4.497, 7.321, 90, 90, 120), "128.2"}, // hexagonal ice
        {Cell(10, 10, 10), "1000.0"},
        {Cell(2, 3, 4, 90, 90, 30), "12.0"}, // abc sin gamma
        {Cell(5, 5, 5, 60, 60, 60), "88.4"}, // a3 / sqrt 2, the small cell of a face-centred cube
        {Cell(5, 5, 5, 10, 20, 170), ""},
        {Cell(5, 5, 5, 120, 120, 120), ""},
        {Cell(5, 5, 0), ""},
        {Cell(5, 5, 5, 90, 180, 90), ""},
        {{{1, 1, {}}, {90, 90, 90}}, ""},
    };
    for (const auto& one : cases) {
        const auto volume = VolumeOf(one.cell);
        EXPECT_EQ(volume ? FormatFixed(*volume, 1) : "", one.volume);
    }
    // Four molecules of water in it.
    EXPECT_NEAR(DensityOf(*VolumeOf(cases[0].cell), 18.0153, 4), 0.9334, 0.0002);
}

TEST(UnitCell, TellsWhatASystemDemandsAndTheConstantsDeny) {
    const struct {
        CrystalSystem system;
        CellConstants cell;
        const char* told;
        CrystalSystem shape;
        bool mayBeRhombohedral = false;
    } cases[] = {
        {Cubic, Cell(12, 12, 12), "", Cubic},
        {Cubic, Cell(12, 12.1, 12.2, 90, 91, 90),
         "b differs from a, c differs from a, beta is not 90", Monoclinic},
        {Cubic, {{12, {}, {}}, {90, {}, 80}}, "gamma is not 90", Unknown},
        {Hexagonal, Cell(4.5, 4.5, 7.3, 90, 90, 120), "", Hexagonal},
        {Hexagonal, Cell(4.5, 4.5, 7.3), "gamma is not 120", Tetragonal},
        {Trigonal, Cell(4.5, 4.5, 7.3, 90, 90, 120), "", Hexagonal},
        {Trigonal, Cell(7, 7, 7, 113, 113, 113), "", Trigonal, true},
        {Trigonal, Cell(7, 7, 7, 113, 113, 113),
         "alpha is not 90, beta is not 90, gamma is not 120", Trigonal},
        {Tetragonal, Cell(6, 6, 7), "", Tetragonal},
        {Tetragonal, Cell(6, 7, 6), "b differs from a", Orthorhombic},
        {Orthorhombic, Cell(6, 7, 8, 90, 90, 95), "gamma is not 90", Monoclinic},
        {Monoclinic, Cell(6, 7, 8, 90, 90, 95), "", Monoclinic},
        {Monoclinic, Cell(6, 7, 8, 90, 92, 95), "more than one angle is not 90", Triclinic},
        {Triclinic, Cell(6, 6, 6), "", Cubic},
        {Unknown, Cell(6, 7, 8), "", Orthorhombic},
    };
    for (const auto& one : cases) {
        std::string told;
        for (const std::string& text : Contradictions(one.system, one.mayBeRhombohedral, one.cell))
            told += (told.empty() ? "" : ", ") + text;
        EXPECT_EQ(told, one.told) << NameOf(one.system);
        EXPECT_EQ(ShapeOf(one.cell), one.shape) << NameOf(ShapeOf(one.cell));
    }
}

TEST(UnitCell, IsSeenAlongItsEdges) {
    const auto edges = EdgesOf(Cell(4, 5, 6, 80, 95, 110));
    ASSERT_TRUE(edges);
    for (std::size_t n = 0; n < 3; ++n) {
        const auto view = static_cast<CellView>(n);
        const Point3 axis = Projected((*edges)[n], *edges, view);
        EXPECT_NEAR(axis[0], 0, 1e-9); // the edge looked along is a point
        EXPECT_NEAR(axis[1], 0, 1e-9);
        EXPECT_NEAR(axis[2], 4 + static_cast<double>(n), 1e-9);
        const Point3 next = Projected((*edges)[(n + 1) % 3], *edges, view);
        EXPECT_GT(next[0], 0); // the next one goes to the right, the third one upward
        EXPECT_NEAR(next[1], 0, 1e-9);
        EXPECT_GT(Projected((*edges)[(n + 2) % 3], *edges, view)[1], 0);
    }
    const Point3 up = Projected((*edges)[2], *edges, CellView::Aslant);
    EXPECT_GT(up[1], 0);
}

} // namespace
} // namespace vexora

#include "chem/clsMMM.h"

#include <gtest/gtest.h>

#include "reference/Numbers.h"
#include "reference/TableText.h"

namespace vexora {
namespace {

using Cells = std::vector<std::string>;

double ResultOf(const Cells& cells) {
    clsMMM mixture;
    mixture.SetComponents(cells[3] == "-" ? 2 : 3, {Val(cells[1]), Val(cells[2]), Val(cells[3])});
    for (int n = 1; n <= 3; ++n) {
        mixture.SetIndPurity(n, Val(cells[static_cast<std::size_t>(3 + n)]));
        const auto code = static_cast<std::size_t>(5 + 2 * n);
        mixture.SetVariable(n, 0, cells[code], Val(cells[code + 1]));
    }
    return cells[0] == "mass" ? mixture.Calculate() : mixture.Purity();
}

TEST(MixtureMass, EachKindOfCompositionIsWorkedOutByHand) {
    TableReader cases(std::string(VEXORA_SOURCE_DIR) + "/tests/chem/mixture_mass.tsv");
    ASSERT_TRUE(cases.IsOpen());
    cases.NextRow();
    int count = 0;
    while (const auto row = cases.NextRow()) {
        if (row->front().starts_with('#')) continue;
        ASSERT_EQ(row->size(), 15U) << cases.Line();
        const double expected = Val(row->at(13));
        EXPECT_NEAR(ResultOf(*row), expected, 1e-12 * expected) << "line " << cases.Line();
        ++count;
    }
    EXPECT_GT(count, 45);
}

TEST(MixtureMass, ValuesFollowTheRowsAndCodesStayUntilTheyAreCleared) {
    clsMMM mixture;
    EXPECT_EQ(mixture.Calculate() + mixture.Purity(), 0);
    mixture.SetComponents(2, {18, 46, 0});
    EXPECT_EQ(mixture.GetLocation(2), clsMMM::NoLocation);
    mixture.SetVariable(2, 3, "X2", 0);
    mixture.SetVariable(4, 3, "X4", 0);
    EXPECT_EQ(mixture.Calculate(), 18);
    mixture.SetVal(2, 1);
    EXPECT_EQ(mixture.Calculate(), 46);
    EXPECT_EQ(mixture.GetLocation(2), 3);
    EXPECT_EQ(mixture.getMM(2), 46);
    EXPECT_EQ(mixture.getMM(0) + mixture.getMM(4), 0);
    mixture.SetIndPurity(1, 99);
    mixture.SetIndPurity(2, -1);
    EXPECT_EQ(mixture.Purity(), 95);
    // Other components have purities of their own; the codes are those of the set in hand.
    mixture.SetComponents(2, {18, 32, 0});
    mixture.SetVal(2, 0);
    EXPECT_EQ(mixture.Calculate(), 18);
    EXPECT_EQ(mixture.Purity(), 95);
    mixture.Clear();
    EXPECT_EQ(mixture.Calculate(), 0);
    EXPECT_EQ(mixture.GetLocation(2), clsMMM::NoLocation);
}

} // namespace
} // namespace vexora

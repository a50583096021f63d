#include "records/LineWriter.h"
#include "records/clsMV.h"
#include "support/DocumentFixture.h"

namespace vexora {
namespace {

/// Boiling temperatures at a pressure in torr, as a dialog leaves them.
class MixtureUnits : public test::DocumentFixture {
protected:
    MixtureUnits() {
        EXPECT_TRUE(set->Load("^1 1 2 T C DIR 1 Y L P & G & X1 S & & & & & &"));
        set->Constraints[1] = {"P", "760", "L", "T"};
        set->Constraints[0] = {"G", "", "", "S"};
        set->Header.DATACOMMENT = "::dP:1:dT:0.1:";
        clsX& ofPressure = set->UX[3];
        ofPressure.N = 3;
        ofPressure.PRPCODE = "P";
        ofPressure.Constr = ofPressure.iUnc = true;
        ofPressure.UValue = "1";
        clsData row;
        row.Values = {"95.5", "0.0190", "", ""};
        row.inOriginalUnits = true;
        set->AddRow(std::move(row));
    }
    std::string Printed() const {
        LineWriter out;
        set->Print(out);
        return out.Text();
    }
    const std::string Head = "^A & & & & & & & ::dP:0.13:dT:0.1:\n"
                             "^1 1 2 T C DIR 1 Y L P 101.3 G & X1 S & & & & & &\n"
                             "^X 3 P & - & & & - & & & + & 0.13 - & & - & & &\n";
    std::shared_ptr<clsMV> set = std::make_shared<clsMV>();
};

TEST_F(MixtureUnits, ConstantsLeaveInSystemUnitsAndTheRestAsTheLineSays) {
    EXPECT_EQ(Printed(), Head + "^d 0.0190 95.5 &\n");
}

TEST_F(MixtureUnits, ConstantsGoToSystemUnitsWithTheRows) {
    ASSERT_TRUE(set->AdjustUnits());
    EXPECT_EQ(set->CNVALUE(2) + " " + set->CN_UNIT(2), "101.3 S");
    EXPECT_EQ(Printed(), Head + "^G 0.0190 3 368.65 4 &\n");
    // What stands in system units already is not converted again.
    const std::string before = Printed();
    ASSERT_TRUE(set->AdjustUnits());
    EXPECT_EQ(Printed(), before);
}

} // namespace
} // namespace vexora

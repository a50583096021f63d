#include "entry/StatementMemory.h"

#include <gtest/gtest.h>

#include "chem/clsMethod.h"
#include "support/DataDialogFixture.h"

namespace vexora::test {
namespace {

class StatementMemoryTest : public DataDialogFixture {
protected:
    StatementMemoryTest() { Method("VIBTUBE"); }
    void Method(const std::string& code) {
        globals.CurrentMethod = std::make_shared<clsMethod>();
        globals.CurrentMethod->Method = code;
    }
    static clsX Item(int n, const std::string& code, const std::string& name,
                     const std::string& unit) {
        clsX item;
        item.N = n;
        item.PRPCODE = code;
        item.Name = name;
        item.Unit = unit;
        return item;
    }
    static std::vector<clsX> Density(const std::string& unit = "kg/m3") {
        return {Item(0, "VDN", "Density", unit), Item(1, "T", "Temperature", "K")};
    }
    std::string Offered(const std::vector<clsX>& items) const {
        const auto offer = memory.Offer(items);
        return offer ? StatementWords(*offer) : "nothing";
    }
    StatementMemory memory;
};

TEST_F(StatementMemoryTest, IsOfOnePropertyMethodAndUnit) {
    std::vector<clsX> stated = Density();
    stated[0].iUnc = stated[1].iDS = true;
    stated[0].UValue = "0.02";
    stated[0].ULevel = "95";
    stated[0].KVOUValue = "0.03"; // of that value
    stated[1].DSValue = "0.1%";
    memory.Keep(stated);
    EXPECT_EQ(Offered(Density()), "±0.02 kg/m3 (95 %); Temperature: device ±0.1 % (standard)");
    EXPECT_EQ(memory.Offer(Density())->front().KVOUValue, "");
    EXPECT_EQ(Offered(Density("g/cm3")), "Temperature: device ±0.1 % (standard)");
    EXPECT_EQ(Offered({Item(0, "RSS", "Speed of sound", "kg/m3")}), "nothing");
    Method("PYC");
    EXPECT_EQ(Offered(Density()), "nothing");
}

TEST_F(StatementMemoryTest, ReplacesNothingThatIsStated) {
    std::vector<clsX> stated = Density();
    stated[0].iUnc = true;
    stated[0].UValue = "0.02";
    memory.Keep(stated);
    std::vector<clsX> own = Density();
    own[0].iRep = true;
    own[0].RValue = "0.5";
    EXPECT_EQ(Offered(own), "nothing");
    own[0].iRep = false; // a figure whose mark lacks is an entry all the same
    EXPECT_EQ(Offered(own), "nothing");
}

TEST_F(StatementMemoryTest, HoldsOnlyWhatCanBeRepeated) {
    std::vector<clsX> stated = Density();
    stated[0].iUnc = true; // each row has its own figure
    stated[1].iUnc = stated[1].inSystemUnits = true;
    stated[1].UValue = "0.01";
    memory.Keep(stated);
    EXPECT_EQ(Offered(Density()), "nothing");
}

} // namespace
} // namespace vexora::test

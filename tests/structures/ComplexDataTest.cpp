// Single values and tables on the sample of a complex: the forms are those of a compound's samples.
#include "entry/frmProperty.h"
#include "pure/frmSingle.h"
#include "pure/frmTwo.h"
#include "records/LineWriter.h"
#include "records/Walk.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/Text.h"
#include "support/DataDialogFixture.h"

namespace vexora::test {
namespace {

class ComplexData : public DataDialogFixture {
protected:
    ComplexData() {
        globals.CurrentR = std::make_shared<clsR>();
        globals.CurrentR->SOURCEDOC = "O";
        globals.CurrentR->AttachTo();
        for (const auto& [rn, name, formula] :
             {std::tuple("74828", "methane", "CH4"), std::tuple("7732185", "water", "H2O")}) {
            auto compound = std::make_shared<clsL>();
            compound->RN = rn;
            compound->Name = name;
            compound->Formula = formula;
            compound->AttachTo(*globals.CurrentR);
        }
        auto hydrate = std::make_shared<clsComplex>();
        hydrate->SetNo(1);
        hydrate->CType = "Gas Hydrate";
        hydrate->LoadComponent("CC 74828 & Gas 1 n");
        hydrate->LoadComponent("CC 7732185 & Water 5.75 n");
        hydrate->AttachTo(*globals.CurrentR);
        for (int n = 1; n <= 2; ++n) {
            sample = std::make_shared<clsComplexSample>();
            sample->SetNo(n);
            sample->LoadComponent("SS 74828 1 n &");
            sample->LoadComponent("SS 7732185 6.00 n &");
            sample->AttachTo(*hydrate);
        }
        globals.CurrentKey.clear();
        sample->SetMe();
    }
    ~ComplexData() override { forms.CloseAll(); }

    frmProperty& Choose(const std::string& property, const std::string& unit) {
        auto& form = Open<frmProperty>("frmProperty");
        EXPECT_TRUE(form.IsVisible());
        for (int group = 1; group < form.lstPropGroup.Count(); ++group) {
            form.lstPropGroup.UserChoose(group);
            if (form.lstProp.Find(property) > 0) break;
        }
        Pick(form.lstProp, property);
        Pick(form.lstConv, unit);
        form.lstMethod.UserChoose(form.lstMethod.Find("The method is not stated in the document"));
        Pick(form.lstExpPurpose, "Principal objective of the work");
        return form;
    }
    /// What the sample holds below its own lines, headers aside.
    std::string DataLines() const {
        LineWriter out;
        sample->EachChild([&out](Record& record) { record.Print(out); });
        std::string lines;
        for (const std::string& line : Split(out.Text(), '\n'))
            if (!line.empty() && !line.starts_with("^A")) lines += line + "\n";
        return lines;
    }
    template <class Entry>
    static void ExpectLocked(const Entry& form) {
        EXPECT_EQ(form.cboSubst.Chosen() + " " + form.cboSample.Chosen(),
                  "Gas Hydrate (methane + water) 2");
        EXPECT_FALSE(form.cboSubst.Enabled());
        EXPECT_FALSE(form.cboSample.Enabled());
    }

    std::shared_ptr<clsComplexSample> sample; // the second one
};

TEST_F(ComplexData, AValueIsEnteredAndMendedOnTheSampleOfAComplex) {
    Choose("Heat capacity at constant pressure Cp", "J/K/g").cmdFixed.UserClick();
    forms.DropClosed();
    auto& value = forms.Get<frmSingle>("frmSingle");
    ExpectLocked(value);
    EXPECT_NEAR(globals.CurrentMethod->MMass, 16.0425 + 6 * 18.0153, 0.01) << "of the sample";
    Pick(value.lstPhase1, "Crystal sI");
    value.txtIndVariable.UserReplaceAll("270");
    Pick(value.lstVariable_Unit, "K");
    value.txtValue.UserReplaceAll("2.08");
    value.cmdAccept.UserClick();
    value.cmdAccept.UserClick();
    EXPECT_EQ(DataLines(), "^M 124.133\n^f 2 CP z 1 CS1 270 S 2.08 & & &\n^M 0\n");
    EXPECT_TRUE(globals.CurrentR->recL.Item(std::size_t{1})->recS.IsEmpty());
    // As read again and edited; accepted unchanged, it says the same.
    const std::string before = DataLines();
    globals.EditSingle = true;
    globals.CurrentKey.clear();
    sample->recZ.Item(std::size_t{1})->SetMe();
    globals.CurrentMethod = std::make_shared<clsMethod>();
    forms.DropClosed();
    auto& edited = forms.Get<frmSingle>("frmSingle");
    edited.Show();
    ExpectLocked(edited);
    EXPECT_EQ(edited.lstPhase1.Chosen(), "Crystal sI");
    edited.cmdAccept.UserClick();
    EXPECT_EQ(DataLines(), before);
}

TEST_F(ComplexData, ATableIsDefinedAndMendedOnTheSampleOfAComplex) {
    Choose("Density", "kg/m3").cmdOne.UserClick();
    forms.DropClosed();
    auto& table = forms.Get<frmTwo>("frmTwo");
    ExpectLocked(table);
    Pick(table.cboVar1, "Temperature");
    Pick(table.lstVariable_Unit, "K");
    Pick(table.lstCONSTRAINT, "Phase boundary");
    Pick(table.lstPhase1, "Crystal sI");
    Pick(table.lstPhase2, "Gas");
    Pick(table.lstNumerical, "No numerical data");
    table.cmdOK.UserClick();
    EXPECT_FALSE(table.IsVisible());
    const std::string before = DataLines();
    EXPECT_TRUE(before.starts_with("^1 2 ")) << before;
    const auto set = sample->recTwo.Item(std::size_t{1});
    ASSERT_NE(set, nullptr);
    EXPECT_EQ(set->SystemName(), "Gas Hydrate (methane + water)");
    globals.EditTwo = true;
    globals.CurrentKey.clear();
    set->SetMe();
    globals.CurrentMethod = std::make_shared<clsMethod>();
    forms.DropClosed();
    auto& edited = forms.Get<frmTwo>("frmTwo");
    edited.Show();
    ExpectLocked(edited);
    edited.cmdOK.UserClick();
    EXPECT_EQ(DataLines(), before);
}

} // namespace
} // namespace vexora::test

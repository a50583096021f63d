#include "mixtures/frmMixtSingle.h"

#include "entry/PhaseLists.h"
#include "entry/frmProperty.h"
#include "entry/frmUnc.h"
#include "records/LineWriter.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "support/DataDialogFixture.h"
#include "tables/frmAverage.h"

namespace vexora::test {
namespace {

/// Ethanol with a sample of 99.5 per cent, water with two samples, acetone with one.
class frmMixtSingleTest : public DataDialogFixture {
protected:
    frmMixtSingleTest() {
        globals.CurrentR = std::make_shared<clsR>();
        globals.CurrentR->SOURCEDOC = "O";
        globals.CurrentR->AttachTo();
        AddSample(AddCompound("64175", "ethanol", "C2H6O"), 99.5);
        AddSample(AddCompound("67641", "acetone", "C3H6O"), 98);
        const auto water = AddCompound("7732185", "water", "H2O");
        AddSample(water, 99.9);
        AddSample(water, 0);
        binary = AddMixture({"64175", "7732185"});
        ternary = AddMixture({"64175", "67641", "7732185"});
    }
    ~frmMixtSingleTest() override { forms.CloseAll(); }

    std::shared_ptr<clsL> AddCompound(const std::string& rn, const std::string& name,
                                      const std::string& formula) {
        auto compound = std::make_shared<clsL>();
        compound->RN = rn;
        compound->Name = name;
        compound->Formula = formula;
        compound->AttachTo(*globals.CurrentR);
        return compound;
    }
    static void AddSample(const std::shared_ptr<clsL>& compound, double purity) {
        auto sample = std::make_shared<clsS>();
        sample->SMPNM = std::to_string(compound->NextSampleNumber());
        sample->Purity = purity;
        sample->AttachTo(*compound);
    }
    std::shared_ptr<clsM> AddMixture(const std::vector<std::string>& numbers) {
        auto mixture = std::make_shared<clsM>();
        mixture->MixType = static_cast<int>(numbers.size());
        for (int n = 1; n <= mixture->MixType; ++n)
            mixture->RN(n, numbers[static_cast<std::size_t>(n - 1)]);
        mixture->AttachTo(*globals.CurrentR);
        return mixture;
    }

    /// Through frmProperty to the open form, with the first sample of water.
    frmMixtSingle& Choose(clsM& mixture, const std::string& property, const std::string& unit) {
        mixture.SetMe();
        auto& form = Open<frmProperty>("frmProperty");
        for (int group = 1; group < form.lstPropGroup.Count(); ++group) {
            form.lstPropGroup.UserChoose(group);
            if (form.lstProp.Find(property) > 0) break;
        }
        Pick(form.lstProp, property);
        Pick(form.lstConv, unit);
        form.lstMethod.UserChoose(0);
        Pick(form.lstExpPurpose, "Principal objective of the work");
        form.cmdSingle.UserClick();
        forms.DropClosed();
        auto& entry = forms.Get<frmMixtSingle>("frmMixtSingle");
        Pick(entry.cboSample(mixture.MixType - 1), "1");
        return entry;
    }
    std::shared_ptr<clsMZ> AddValue(clsM& mixture, const std::string& line,
                                    const std::string& header) {
        auto value = std::make_shared<clsMZ>();
        value->MixType = mixture.MixType;
        EXPECT_TRUE(value->Load(line));
        value->Header.Load(header);
        value->AttachTo(mixture);
        return value;
    }
    frmMixtSingle& Edit(const std::shared_ptr<clsMZ>& value) {
        globals.EditMixtSingle = true;
        value->SetMe();
        globals.CurrentMethod = std::make_shared<clsMethod>();
        auto& form = forms.Get<frmMixtSingle>("frmMixtSingle");
        form.Show();
        return form;
    }
    void EndEdit() {
        EXPECT_EQ(forms.Find("frmMixtSingle"), nullptr);
        globals.EditMixtSingle = false;
        forms.DropClosed();
    }
    static std::string Lines(const clsMZ& value) {
        LineWriter out;
        value.Print(out);
        return out.Text();
    }
    static std::string Phases(const frmMixtSingle& form) {
        std::string text;
        for (const auto& list : form.lstPhase)
            text += (list->Visible() ? PhaseChosen(*list) : "-") + "|";
        return text;
    }

    std::shared_ptr<clsM> binary, ternary;
};

TEST_F(frmMixtSingleTest, ChecksComeInOrderAndPutTheFocusOnTheField) {
    auto& form = Choose(*binary, "Density", "kg/m3");
    const auto refused = [&](const std::string& text, const ui::Control& control) {
        desktop.Expect(text);
        form.cmdAccept.UserClick();
        EXPECT_TRUE(control.HasFocus()) << text;
        EXPECT_TRUE(form.IsVisible());
    };
    const std::string code = std::exchange(globals.PropertyCode, "");
    refused("Please review the property selection", form.cmdMethod);
    globals.PropertyCode = code;
    Pick(form.cboMixt, "ethanol + acetone + water");
    refused("Please select sample", form.cboSample(2));
    Pick(form.cboSample(2), "2");
    refused("Select the phase", form.lstPhase(0));
    Pick(form.lstPhase(0), "Liquid");
    Pick(form.lstPhase(4), "Liquid");
    refused("Duplicate phase", form.lstPhase(4));
    Pick(form.lstPhase(4), SelectPhase);
    form.txtT.UserReplaceAll("warm");
    refused("Enter the value of temperature", form.txtT);
    form.txtT.UserReplaceAll("25,00");
    refused("Select units for the temperature", form.cboTUnit);
    Pick(form.cboTUnit, "C");
    form.txtT.UserReplaceAll("-300,00");
    refused("Value -26.85 Temperature, K is not valid", form.txtT);
    form.txtT.UserReplaceAll("25,00");
    refused("Enter the property value | Illegal property value", form.txtValue);
    form.txtValue.UserReplaceAll("-5");
    desktop.Expect("Value -5 Density, kg/m3 is not valid");
    refused("Invalid property value", form.txtValue);
    EXPECT_FALSE(ternary->HasData());
    EXPECT_TRUE(globals.Saved);
    form.txtValue.UserReplaceAll("912,4");
    form.cmdAccept.UserClick();
    ASSERT_EQ(ternary->recMZ.Count(), 1u);
    const std::string text = Lines(*ternary->recMZ.Item(1));
    EXPECT_NE(text.find(":T = 298.15:\n"), std::string::npos) << text;
    EXPECT_NE(text.find("^z 1 1 2 VDN S 1 L & & & & 912.4 & & &\n"), std::string::npos) << text;
}

TEST_F(frmMixtSingleTest, AnAzeotropeGoesByItsPressure) {
    auto& form =
        Choose(*binary, "Azeotropic composition: mole fraction of component 1", "Dimensionless");
    EXPECT_EQ(form.Caption(),
              "Azeotropic composition: mole fraction of ethanol as single valued property");
    EXPECT_EQ(form.lblSample(1).Caption(), "Sample of water:");
    EXPECT_FALSE(form.cboSample(2).IsShown());
    EXPECT_FALSE(form.lblReminder.IsShown());
    EXPECT_EQ(Phases(form), "||||-|");
    Pick(form.lstPhase(0), "Liquid");
    Pick(form.lstPhase(1), "Gas");
    form.txtP.UserReplaceAll("760");
    Pick(form.cboPUnit, "mmHg");
    form.txtComment.UserReplaceAll("Table 2");
    form.txtValue.UserReplaceAll(",8943");
    form.cmdAccept.UserClick();
    EXPECT_EQ(form.cmdAccept.Caption(), "Done");
    EXPECT_EQ(form.txtPrpSetNo.Text(), "2");
    EXPECT_TRUE(form.txtValue.HasFocus());
    const std::string first = Lines(*binary->recMZ.Item(1));
    EXPECT_NE(first.find(" Table 2 ::Method:"), std::string::npos) << first;
    EXPECT_NE(first.find(":P = 101.3:\n^z 1 1 XA1 D 1 L G & & 0.8943 & & &\n"), std::string::npos)
        << first;
    Pick(form.cboSample(1), "2");
    EXPECT_EQ(form.txtPrpSetNo.Text(), "1");
    form.txtP.UserReplaceAll("");
    form.txtValue.UserReplaceAll("0.9");
    form.cmdAccept.UserClick();
    form.cmdAccept.UserClick();
    EXPECT_EQ(forms.Find("frmMixtSingle"), nullptr);
    EXPECT_TRUE(globals.OpenForms.empty());
    const std::string second = Lines(*binary->recMZ.Item(2));
    EXPECT_EQ(second.find("P = "), std::string::npos) << second;
    EXPECT_NE(second.find("^z 1 2 XA1 D 1 L G & & 0.9 & & &\n"), std::string::npos) << second;
}

TEST_F(frmMixtSingleTest, ACriticalStateNamesThePhasesThatFormIt) {
    const auto phasesOf = [this](clsM& mixture, const std::string& property,
                                 const std::string& unit) {
        auto& form = Choose(mixture, property, unit);
        EXPECT_TRUE(form.lblReminder.IsShown()) << property;
        EXPECT_EQ(form.lstPhase(0).Count(), 2) << property;
        const std::string phases = Phases(form);
        form.cmdFinish.UserClick();
        forms.DropClosed();
        return phases;
    };
    EXPECT_EQ(phasesOf(*binary, "Upper consolute temperature", "K"), "L1|L2|CUL||-|");
    EXPECT_EQ(phasesOf(*ternary, "Lower consolute composition: mass fraction of component 3",
                       "Dimensionless"),
              "L1|L2|CLL|||");
    EXPECT_EQ(phasesOf(*ternary, "Critical compressibility factor", "Dimensionless"), "L|G|CLG|||");
    EXPECT_FALSE(binary->HasData());
}

TEST_F(frmMixtSingleTest, ASecondLookChangesNothing) {
    const auto value = AddValue(
        *binary, "^z 1 2 XA1 0.01 7 L1 G & L2 89.43 0.2 1% 3",
        "^A & O B 1 abc XXX 3/4/2001 text ::Method:EBULLIO:P = 101.30:degassed:UFactor:2:dXA1:0.05:"
        "FP:");
    const std::string before = Lines(*value);
    for (int round = 0; round < 2; ++round) {
        auto& form = Edit(value);
        EXPECT_EQ(form.Caption(),
                  "Edit: Azeotropic composition: mole fraction of ethanol as single "
                  "valued property");
        EXPECT_EQ(form.lblUnit.Caption(), "per cent");
        EXPECT_EQ(form.txtPrpSetNo.Text(), "7");
        EXPECT_EQ(form.cboSample(1).Chosen(), "2");
        EXPECT_EQ(form.txtP.Text() + " " + form.cboPUnit.Chosen(), "101.30 kPa");
        EXPECT_EQ(form.txtT.Text() + form.cboTUnit.Chosen(), "");
        EXPECT_FALSE(form.cboMixt.Enabled());
        form.cmdAccept.UserClick();
        EndEdit();
        EXPECT_EQ(Lines(*value), before);
    }
    Edit(value).cmdFinish.UserClick();
    EndEdit();
    EXPECT_EQ(Lines(*value), before);
}

TEST_F(frmMixtSingleTest, AnEditMovesWithItsSamplesAndKeepsWhatIsNotAsked) {
    const auto value = AddValue(*binary, "^z 1 9 TC S 1 L G CLG & 500 & & &",
                                "^A & O B & & & & ::Method:VISOBS:T = 500:");
    AddValue(*binary, "^z 1 1 TC S 1 L G CLG & 510 & & &", "^A & O B & & & & &");
    auto& form = Edit(value);
    EXPECT_FALSE(form.txtT.IsShown());      // the property is a temperature itself
    desktop.Expect("Please select sample"); // nobody knows sample 9
    form.cmdAccept.UserClick();
    Pick(form.cboSample(1), "1");
    EXPECT_EQ(form.txtPrpSetNo.Text(), "2");
    form.cmdAccept.UserClick();
    EndEdit();
    const std::string text = Lines(*value);
    EXPECT_NE(text.find("::Method:VISOBS:T = 500:\n^z 1 1 TC S 2 L G CLG & 500 & & &\n"),
              std::string::npos)
        << text;
    EXPECT_EQ(binary->FindMZ("Z 1 1 TC 2"), value);
}

TEST_F(frmMixtSingleTest, NewMakesASampleOnTheWay) {
    for (const bool editing : {false, true}) {
        auto& form =
            editing ? Edit(binary->recMZ.Item(1)) : Choose(*binary, "Critical temperature", "K");
        const auto openers = globals.OpenForms;
        const std::string number = editing ? "3" : "2";
        desktop.OnModal([this, &number](ui::Form& dialog) {
            AddSample(CurrentCompound(), 0);
            EXPECT_EQ(CurrentCompound()->Name, "ethanol") << number;
            dialog.Close();
        });
        Pick(form.cboSample(0), "New");
        EXPECT_EQ(form.cboSample(0).Chosen(), number);
        EXPECT_EQ(globals.OpenForms, openers);
        form.txtValue.UserReplaceAll("510");
        form.cmdAccept.UserClick();
        if (!editing) form.cmdAccept.UserClick();
        forms.DropClosed();
        EXPECT_EQ(binary->recMZ.Item(1)->SMPNM1, number);
    }
}

TEST_F(frmMixtSingleTest, WhatIsStatedStandsInTheUnitOfItsValueAndGoesWithIt) {
    auto& form = Choose(*binary, "Azeotropic temperature", "C");
    Pick(form.lstPhase(0), "Liquid");
    desktop.OnModal([](ui::Form& shown) {
        auto& statements = dynamic_cast<frmUnc&>(shown);
        statements.chkUnc(0).Value(true);
        statements.txtUValue(0).UserReplaceAll("0.05");
        statements.txtULevel(0).UserReplaceAll("95");
        statements.cmdOK.UserClick();
    });
    form.cmdUnc.UserClick();
    forms.DropClosed();
    for (const char* value : {"78.15", "78.2"}) {
        form.txtValue.UserReplaceAll(value);
        form.cmdAccept.UserClick();
    }
    form.cmdFinish.UserClick();
    forms.DropClosed();
    const auto behindHeader = [this](std::size_t position) {
        const std::string text = Lines(*binary->recMZ.Item(position));
        return text.substr(text.find('\n') + 1);
    };
    const std::string stated = behindHeader(1);
    EXPECT_EQ(stated, "^z 1 1 TA C 1 L & & & 78.15 & & &\n^M 0\n"
                      "^X 0 TA L - & & & - & & & + 95 0.05 - & & - & & &\n");
    EXPECT_EQ(behindHeader(2), "^z 1 1 TA C 2 L & & & 78.2 & & &\n^M 0\n");
    Edit(binary->recMZ.Item(1)).cmdAccept.UserClick();
    EndEdit();
    EXPECT_EQ(behindHeader(1), stated);
}

TEST_F(frmMixtSingleTest, TheAverageGoesByTheCompositionOfTheState) {
    auto& form = Choose(*binary, "Azeotropic temperature", "K");
    const auto remark = [&] {
        std::string shown;
        desktop.OnModal([&shown](ui::Form& dialog) {
            shown = dynamic_cast<frmAverage&>(dialog).lblRemark.Caption();
            dialog.Close();
        });
        globals.CurrentMethod->Purity = 0;
        form.cmdCheck.UserClick();
        forms.DropClosed();
        return shown;
    };
    EXPECT_EQ(remark(), "Average purity of the mixture: 99.70 %\n"
                        "No composition is stated: the mean of the components");
    EXPECT_NEAR(globals.CurrentMethod->Purity, 99.7, 1e-9);
    AddValue(*binary, "^Z 1 2 XA1 S 1 L G & & 0.2 & & &", "^A & O B & & & & &");   // another sample
    AddValue(*binary, "^z 1 1 XA1 0.01 1 L G & & 90 & & &", "^A & O B & & & & &"); // per cent
    EXPECT_EQ(remark(), "Average purity of the mixture: 99.54 %\nAverage molar mass: 43.264 g/mol");
    EXPECT_NEAR(globals.CurrentMethod->Purity, 99.54, 0.005);
    EXPECT_TRUE(form.txtValue.HasFocus());
    EXPECT_EQ(form.txtValue.Text(), "");
}

} // namespace
} // namespace vexora::test

#include "pure/frmSingle.h"

#include "chem/clsProperty.h"
#include "entry/PhaseRules.h"
#include "entry/frmProperty.h"
#include "entry/frmUnc.h"
#include "records/LineWriter.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsZ.h"
#include "support/DataDialogFixture.h"

namespace vexora::test {
namespace {

struct Choice {
    std::string property;
    std::string unit;
    int variableCount = 0;
    std::string otherMethod = {};
};

class frmSingleTest : public DataDialogFixture {
protected:
    frmSingleTest() {
        globals.CompilerCode = "abc";
        globals.ContributorCode = "XXX";
        globals.CurrentR = std::make_shared<clsR>();
        globals.CurrentR->SOURCEDOC = "O";
        globals.CurrentR->AttachTo();
        globals.CurrentL = AddCompound("7732185", "water", "H2O");
        globals.CurrentS = AddSample(*CurrentCompound());
    }
    ~frmSingleTest() override { forms.CloseAll(); }

    std::shared_ptr<clsL> AddCompound(const std::string& rn, const std::string& name,
                                      const std::string& formula) {
        auto compound = std::make_shared<clsL>();
        compound->RN = rn;
        compound->Name = name;
        compound->Formula = formula;
        compound->AttachTo(*globals.CurrentR);
        return compound;
    }
    static std::shared_ptr<clsS> AddSample(clsL& compound) {
        auto sample = std::make_shared<clsS>();
        sample->SMPNM = std::to_string(compound.NextSampleNumber());
        sample->SMPDESC = "ns";
        sample->AttachTo(compound);
        return sample;
    }

    /// Through frmProperty to an open frmSingle.
    frmSingle& Choose(const Choice& choice) {
        auto& form = Open<frmProperty>("frmProperty");
        for (int group = 1; group < form.lstPropGroup.Count(); ++group) {
            form.lstPropGroup.UserChoose(group);
            if (form.lstProp.Find(choice.property) > 0) break;
        }
        Pick(form.lstProp, choice.property);
        Pick(form.lstConv, choice.unit);
        form.lstMethod.UserChoose(choice.otherMethod.empty() ? 0 : form.lstMethod.Count() - 1);
        form.txtMethod.UserReplaceAll(choice.otherMethod);
        Pick(form.lstExpPurpose, "Principal objective of the work");
        (choice.variableCount == 0 ? form.cmdSingle : form.cmdFixed).UserClick();
        forms.DropClosed();
        return forms.Get<frmSingle>("frmSingle");
    }
    frmSingle& Edit(const std::shared_ptr<clsZ>& record) {
        globals.EditSingle = true;
        globals.CurrentZ = record;
        globals.CurrentMethod = std::make_shared<clsMethod>();
        auto& form = forms.Get<frmSingle>("frmSingle");
        form.Show();
        return form;
    }
    void EndEdit() {
        EXPECT_EQ(forms.Find("frmSingle"), nullptr);
        globals.EditSingle = false;
        forms.DropClosed();
    }
    std::shared_ptr<clsZ> Stored(std::size_t position = 1) const {
        return globals.CurrentS->recZ.Item(position);
    }
    static std::string Lines(clsZ& record) {
        LineWriter out;
        record.Print(out);
        return out.Text();
    }
    std::string ValueLines(std::size_t position = 1) const {
        const std::string text = Lines(*Stored(position));
        return text.substr(text.find('\n', text.find("^A")) + 1); // behind the header
    }
};

TEST_F(frmSingleTest, ChecksComeInOrderAndPutTheFocusOnTheField) {
    AddSample(*CurrentCompound());
    globals.CurrentS = nullptr;
    auto& form = Choose({"Density", "kg/m3", 1});
    const auto refused = [&](const std::string& text, const ui::Control& control) {
        desktop.Expect(text);
        form.cmdAccept.UserClick();
        EXPECT_TRUE(control.HasFocus()) << text;
        EXPECT_TRUE(form.IsVisible());
    };
    const std::string code = std::exchange(globals.PropertyCode, "");
    refused("Please review the property selection", form.cmdMethod);
    globals.PropertyCode = code;
    refused("Select the sample", form.cboSample);
    Pick(form.cboSample, "1");
    refused("Select the phase | Phase of the substance", form.lstPhase1);
    Pick(form.lstPhase1, "Liquid");
    refused("Enter the value of independent variable", form.txtIndVariable);
    form.txtIndVariable.UserReplaceAll("300");
    refused("Select units for the independent variable", form.lstVariable_Unit);
    Pick(form.lstVariable_Unit, "K");
    form.txtIndVariable.UserReplaceAll("-3");
    refused("Value -3 Temperature, K is not valid", form.txtIndVariable);
    form.txtIndVariable.UserReplaceAll("300.00");
    refused("Enter the property value | Illegal property value", form.txtValue);
    form.txtValue.UserReplaceAll("0");
    desktop.Expect("Value 0 Density, kg/m3 is not valid");
    refused("Invalid property value", form.txtValue);
    form.txtValue.UserReplaceAll("9000");
    desktop.Expect("Value 9000 Density, kg/m3 is suspicious\nIs that all right?", ui::Answer::No);
    refused("Invalid property value", form.txtValue);
    EXPECT_EQ(globals.CurrentS->recZ.Count(), 0u);
    EXPECT_TRUE(globals.Saved);
    form.txtValue.UserReplaceAll("996,55 60");
    form.cmdAccept.UserClick();
    EXPECT_EQ(ValueLines(), "^f 1 VDN S 1 L 300.00 S 996.5560 & & &\n");
}

TEST_F(frmSingleTest, CriticalPressureOfWaterIsStoredAsThePaperHasIt) {
    auto& form = Choose({"Critical pressure", "MPa"});
    EXPECT_EQ(form.Caption(), "Critical pressure as single valued property");
    EXPECT_EQ(form.lblUnit.Caption(), "MPa");
    EXPECT_EQ(form.cboSubst.Chosen(), "water");
    EXPECT_EQ(form.lstPhase1.Chosen() + "+" + form.lstPhase2.Chosen(), "Liquid+Gas");
    EXPECT_FALSE(form.frmIndVar.IsShown());
    EXPECT_FALSE(form.frmConstraint.IsShown());
    form.txtComment.UserReplaceAll("Table 6.1\nfootnote :: cut");
    form.txtValue.UserReplaceAll("22.064");
    desktop.Expect("Value 22064 Critical pressure, kPa is suspicious\nIs that all right?",
                   ui::Answer::Yes);
    form.cmdAccept.UserClick();
    EXPECT_EQ(Lines(*Stored()), "^A & O B & abc XXX 1/15/2026 Table 6.1 footnote : : cut "
                                "::Method:VISOBS:\n"
                                "^M 1000\n"
                                "^z 1 PC S 1 L G & 22.064 & & &\n"
                                "^M 0\n");
    EXPECT_FALSE(globals.Saved);
    EXPECT_TRUE(globals.DialogAccepted);
}

TEST_F(frmSingleTest, NextTakesValueAfterValueAndDoneCloses) {
    auto& form = Choose({"Critical temperature", "K"});
    EXPECT_EQ(form.txtPrpSetNo.Text(), "1");
    form.txtValue.UserReplaceAll("647.096");
    form.cmdAccept.UserClick();
    EXPECT_EQ(form.cmdAccept.Caption(), "Done");
    EXPECT_EQ(form.txtPrpSetNo.Text(), "2");
    EXPECT_TRUE(form.txtValue.HasFocus());
    form.txtValue.UserReplaceAll("647.10");
    EXPECT_EQ(form.cmdAccept.Caption(), "Next");
    form.cmdAccept.UserClick();
    EXPECT_EQ(form.cmdAccept.Caption(), "Done");
    form.cmdAccept.UserClick();
    EXPECT_EQ(forms.Find("frmSingle"), nullptr);
    EXPECT_TRUE(globals.OpenForms.empty());
    EXPECT_EQ(ValueLines(1) + ValueLines(2), "^z 1 TC S 1 L G & 647.096 & & &\n"
                                             "^z 1 TC S 2 L G & 647.10 & & &\n");
}

TEST_F(frmSingleTest, CancelStoresNothing) {
    auto& form = Choose({"Critical temperature", "K"});
    form.txtValue.UserReplaceAll("647.096");
    form.cmdFinish.UserClick();
    EXPECT_EQ(globals.CurrentS->recZ.Count(), 0u);
    EXPECT_TRUE(globals.OpenForms.empty());
    EXPECT_FALSE(globals.DialogAccepted);
}

TEST_F(frmSingleTest, UnitsKeepTheTypedTextAndAreTestedInTheSystemUnit) {
    auto& boiling = Choose({"Normal boiling temperature", "C"});
    Pick(boiling.lstPhase1, "Liquid");
    boiling.txtValue.UserReplaceAll("99.974");
    boiling.cmdAccept.UserClick();
    boiling.Close();
    desktop.ExpectInput("Property value in the original units", "2.5");
    auto& own = Choose({"Critical pressure", AllOtherUnits});
    EXPECT_EQ(own.lblUnit.Caption(), "2.5* kPa");
    own.txtValue.UserReplaceAll("3000.0");
    own.cmdAccept.UserClick();
    own.Close();
    auto& heat = Choose({"Enthalpy of vaporization or sublimation", "J/g", 1});
    Pick(heat.lstPhase1, "Liquid");
    heat.txtIndVariable.UserReplaceAll("25");
    Pick(heat.lstVariable_Unit, "C");
    heat.txtValue.UserReplaceAll("2442");
    heat.cmdAccept.UserClick();
    EXPECT_EQ(ValueLines(1), "^z 1 TBN C 1 L G & 99.974 & & &\n");
    EXPECT_EQ(ValueLines(2), "^M 2.5\n^z 1 PC S 1 L G & 3000.0 & & &\n^M 0\n");
    EXPECT_EQ(ValueLines(3), "^f 1 HVP Z 1 L 25 C 2442 & & &\n^M 0\n");
    EXPECT_NEAR(Stored(3)->SystemValue(), 2.442 * 18.015, 0.01);
}

TEST_F(frmSingleTest, UnitPerMassNeedsTheMolarMass) {
    globals.CurrentL = AddCompound("999", "something", "");
    globals.CurrentS = AddSample(*CurrentCompound());
    auto& form = Choose({"Enthalpy of vaporization or sublimation", "J/g"});
    Pick(form.lstPhase1, "Liquid");
    form.txtValue.UserReplaceAll("400");
    desktop.Expect("Molar mass of the compound is not known");
    form.cmdAccept.UserClick();
    EXPECT_EQ(globals.CurrentS->recZ.Count(), 0u);
}

TEST_F(frmSingleTest, CommentWithEveryTagSurvivesThreeEdits) {
    auto record = std::make_shared<clsZ>();
    record->Load("^z 1 PV K 1 L G & 3.17 & & &");
    record->Header.Load("^A note O C 9 xyz UUU 3/4/2001 sealed cell ::Method:OTHER:future tag:"
                        "UFactor:2:dPV:0.5%:sMethod:wire bridge:PB:");
    record->AttachTo(*globals.CurrentS);
    const std::string before = Lines(*record);
    for (int round = 0; round < 3; ++round) {
        auto& form = Edit(record);
        EXPECT_EQ(form.Caption(), "Edit: Vapor or sublimation pressure as single valued property");
        EXPECT_EQ(form.txtComment.Text(), "sealed cell");
        EXPECT_TRUE(form.optPB.Value());
        EXPECT_EQ(globals.CurrentMethod->sMethod, "wire bridge");
        EXPECT_EQ(globals.CurrentMethod->f, 2);
        EXPECT_EQ(globals.CurrentProperty->PrecisionText, "0.5%");
        EXPECT_FALSE(form.cboSample.Enabled());
        form.cmdAccept.UserClick();
        EndEdit();
        EXPECT_EQ(Lines(*record), before);
    }
    EXPECT_TRUE(globals.DialogAccepted);
    EXPECT_EQ(globals.CurrentS->recZ.Count(), 1u);
}

TEST_F(frmSingleTest, FiguresTakeThePrecisionInTheUnitOfTheValue) {
    auto record = std::make_shared<clsZ>();
    record->Load("^z 1 TB F 1 L G & 212.0 & & &");
    record->Header.Load("^A & O B & & & & ::Method:X:dTB:0.10:"); // in kelvin
    record->AttachTo(*globals.CurrentS);
    const std::string before = Lines(*record);
    auto& form = Edit(record);
    desktop.OnModal([](ui::Form& shown) {
        auto& statements = dynamic_cast<frmUnc&>(shown);
        statements.cmdCalc.UserClick();
        EXPECT_EQ(statements.lblFigures.Caption(),
                  "Expanded uncertainty of 212.0: 0.180 F; in the system unit 0.100 K");
        statements.cmdOK.UserClick();
    });
    form.cmdUnc.UserClick();
    forms.DropClosed();
    form.cmdAccept.UserClick();
    EndEdit();
    EXPECT_EQ(Lines(*record), before);
}

TEST_F(frmSingleTest, AStateThatTheFormDoesNotAskForSurvivesAnEdit) {
    auto record = std::make_shared<clsZ>();
    record->Load("^z 1 VDN S 1 L & & 997 & & &");
    record->Header.Load("^A & O B & & & & text ::Method:OTHER:sMethod:wire bridge:PB:");
    record->AttachTo(*globals.CurrentS);
    for (int round = 0; round < 2; ++round) {
        auto& form = Edit(record);
        EXPECT_FALSE(form.frmConstraint.IsShown());
        EXPECT_EQ(globals.CurrentMethod->sMethod, "wire bridge");
        form.cmdAccept.UserClick();
        EndEdit();
        EXPECT_EQ(record->Header.DATACOMMENT, "text ::Method:OTHER:PB:sMethod:wire bridge:");
    }
}

TEST_F(frmSingleTest, AUnitThatIsANumberReadsAsItsNameAndSurvivesAReview) {
    auto record = std::make_shared<clsZ>();
    record->Load("^z 1 PC 1000 1 L G & 4.064 & & &");
    record->Header.Load("^A & O B & & & & ::Method:VISOBS:");
    record->AttachTo(*globals.CurrentS);
    auto& form = Edit(record);
    EXPECT_EQ(form.lblUnit.Caption(), "MPa");
    desktop.OnModal([](ui::Form& shown) {
        auto& property = dynamic_cast<frmProperty&>(shown);
        EXPECT_EQ(property.lstConv.Chosen(), "MPa");
        property.cmdOK.UserClick();
    });
    form.cmdMethod.UserClick();
    forms.DropClosed();
    EXPECT_EQ(form.lblUnit.Caption(), "MPa");
    EXPECT_EQ(globals.PropertyUnit, "1000");
    form.cmdAccept.UserClick();
    EndEdit();
    EXPECT_EQ(ValueLines(), "^M 1000\n^z 1 PC S 1 L G & 4.064 & & &\n^M 0\n");
}

TEST_F(frmSingleTest, NumbersStandAsTypedOnceTheyCanBeRead) {
    auto& form = Choose({"Density", "kg/m3", 1});
    Pick(form.lstPhase1, "Liquid");
    Pick(form.lstVariable_Unit, "K");
    const std::string typed[][2] = {{"1e-3", "1e-3"},     {",5", "0.5"}, {"1 234,5", "1234.5"},
                                    {" 997.0 ", "997.0"}, {"+5", "+5"},  {"0012.50", "0012.50"}};
    std::size_t position = 0;
    for (const auto& [text, stored] : typed) {
        form.txtIndVariable.UserReplaceAll("300");
        form.txtValue.UserReplaceAll(text);
        form.cmdAccept.UserClick();
        ASSERT_EQ(globals.CurrentS->recZ.Count(), ++position) << text;
        EXPECT_EQ(Stored(position)->PRPVALUE, stored);
    }
    for (const char* text : {"1,234.5", "5 %", "0x10", "1d3", "inf", "1e999", "-"}) {
        form.txtValue.UserReplaceAll(text);
        desktop.Expect("Enter the property value | Illegal property value");
        form.cmdAccept.UserClick();
    }
    form.txtValue.UserReplaceAll("-0.00");
    desktop.Expect("Value 0 Density, kg/m3 is not valid");
    desktop.Expect("Invalid property value");
    form.cmdAccept.UserClick();
    EXPECT_EQ(globals.CurrentS->recZ.Count(), position);
}

TEST_F(frmSingleTest, EditKeepsTheUncertaintiesAndTheUnitsOfAFile) {
    auto record = std::make_shared<clsZ>();
    record->Load("^F 1 VDN v 1 L 300.0 C 996.55 0.1 0.05 4");
    record->Header.Load("^A & O B 4096 abc XXX 1/2/2003 ::Method:PYC:");
    record->AttachTo(*globals.CurrentS);
    clsX item;
    item.Load("^X 1 T L - & & & - & & & + 95 0.01 - & & - & & &");
    record->AddX(item);
    auto& form = Edit(record);
    EXPECT_EQ(form.lblUnit.Caption(), "kg/m3");
    EXPECT_EQ(form.lstVariable_Unit.Chosen(), "K");
    EXPECT_EQ(form.frmIndVar.Caption(), "Independent variable: Temperature");
    form.txtValue.UserReplaceAll("996.60");
    form.cmdAccept.UserClick();
    EndEdit();
    EXPECT_EQ(Lines(*record), "^A & O B 4096 abc XXX 1/2/2003 ::Method:PYC:\n"
                              "^F 1 VDN v 1 L 300.0 C 996.60 0.1 0.05 4\n"
                              "^X 1 T L - & & & - & & & + 95 0.01 - & & - & & &\n");
}

TEST_F(frmSingleTest, CancelledEditLeavesTheRecord) {
    auto record = std::make_shared<clsZ>();
    record->Load("^z 1 TC S 1 L G & 647.096 & & &");
    record->AttachTo(*globals.CurrentS);
    const std::string before = Lines(*record);
    auto& form = Edit(record);
    form.txtValue.UserReplaceAll("600");
    form.cmdFinish.UserClick();
    EndEdit();
    EXPECT_EQ(Lines(*record), before);
    EXPECT_FALSE(globals.DialogAccepted);
}

TEST_F(frmSingleTest, ReviewOfTheUnitIsTakenOverAndItsCancelIsNot) {
    auto& form = Choose({"Critical pressure", "MPa"});
    form.txtValue.UserReplaceAll("217.755");
    const auto review = [&](bool accept) {
        desktop.OnModal([accept](ui::Form& shown) {
            auto& property = dynamic_cast<frmProperty&>(shown);
            Pick(property.lstConv, "atm");
            (accept ? property.cmdOK : property.cmdFinish).UserClick();
        });
        form.cmdMethod.UserClick();
        forms.DropClosed();
    };
    review(false);
    EXPECT_EQ(form.lblUnit.Caption(), "MPa");
    review(true);
    EXPECT_EQ(form.lblUnit.Caption(), "atm");
    EXPECT_EQ(form.txtValue.Text(), "217.755");
    desktop.Expect("Value 22064.025375 Critical pressure, kPa is suspicious\nIs that all right?",
                   ui::Answer::Yes);
    form.cmdAccept.UserClick();
    EXPECT_EQ(ValueLines(), "^z 1 PC A 1 L G & 217.755 & & &\n");
}

TEST_F(frmSingleTest, NewSampleIsMadeOnTheWay) {
    auto& form = Choose({"Critical temperature", "K"});
    desktop.OnModal([](ui::Form& shown) { shown.Close(); });
    Pick(form.cboSample, "New");
    EXPECT_EQ(form.cboSample.Chosen(), "1");
    desktop.OnModal([this](ui::Form& shown) {
        AddSample(*CurrentCompound());
        shown.Close();
    });
    Pick(form.cboSample, "New");
    EXPECT_EQ(form.cboSample.Chosen(), "2");
    form.txtValue.UserReplaceAll("647.096");
    form.cmdAccept.UserClick();
    EXPECT_EQ(ValueLines(), "^z 2 TC S 1 L G & 647.096 & & &\n");
    EXPECT_EQ(globals.OpenForms, std::vector<std::string>{"frmMain"});
}

TEST_F(frmSingleTest, MeltingPointStandsUnderAirAndBoilingPressureAsksForTheState) {
    auto& melting = Choose({"Normal melting temperature", "K"});
    Pick(melting.lstPhase1, "Crystal");
    melting.txtValue.UserReplaceAll("273.15");
    melting.cmdAccept.UserClick();
    melting.Close();
    auto& boiling = Choose({"Boiling temperature at pressure P", "K", 1});
    EXPECT_EQ(boiling.frmIndVar.Caption(), "Independent variable: Pressure");
    Pick(boiling.lstPhase1, "Liquid");
    boiling.optFP.UserClick();
    boiling.txtIndVariable.UserReplaceAll("1");
    Pick(boiling.lstVariable_Unit, "bar");
    boiling.txtValue.UserReplaceAll("372.76");
    boiling.cmdAccept.UserClick();
    EXPECT_EQ(ValueLines(1), "^z 1 TMN S 1 C L air 273.15 & & &\n");
    EXPECT_TRUE(Stored(2)->Header.DATACOMMENT.ends_with(":FP:"));
    EXPECT_EQ(ValueLines(2), "^f 1 TB S 1 L 100 S 372.76 & & &\n");
}

TEST_F(frmSingleTest, EveryPropertyOffersPhases) {
    for (const PropertyGroupRow& group : PropertyGroups("Pure")) {
        for (const PropertyRow& row : PropertiesOfGroup(group.GROUP, "Pure")) {
            for (const int count : {0, 1}) {
                if (!AllowsEntry(row, EntryKind::Value, count)) continue;
                const auto any = OfferPhases(row.Code, count).Phase1;
                ASSERT_FALSE(any.empty()) << row.Code;
                const PhaseOffer offer = OfferPhases(row.Code, count, any.front());
                EXPECT_EQ(std::count(offer.Phase2.begin(), offer.Phase2.end(), any.front()), 0);
                EXPECT_TRUE(count == 0 || offer.Phase2.empty() || row.Code == "IST") << row.Code;
            }
        }
    }
}

TEST(PhaseRulesTest, UnknownTablesOfferNothing) {
    EXPECT_TRUE(OfferPhases("VDN", 0).Phase1.empty());
    EXPECT_EQ(OfferPhases("TC", 0).Phase2, std::vector<std::string>{"G"});
}

} // namespace
} // namespace vexora::test

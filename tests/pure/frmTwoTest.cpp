#include "pure/frmTwo.h"

#include "entry/frmProperty.h"
#include "records/LineWriter.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "support/DataDialogFixture.h"

namespace vexora::test {
namespace {

/// Stands for the table: takes one row on accept, and spoils the set before it is given up.
class frmTable : public ui::Form {
public:
    frmTable() : Form("frmData2", "Table") {}
    void Enter(const std::string& value) {
        clsTwo& set = *Globals().CurrentTwo;
        set.recData.Clear();
        clsData& row = set.recData.Add({});
        row.nVar = static_cast<std::int8_t>(set.nVar);
        row.inOriginalUnits = true;
        row.Values = {value, "300.0", "101.325", ""};
        row.isDigit = Globals().IncludeDigits;
        Globals().CurrentTwo->UX[0].iUnc = true;
        Globals().CurrentTwo->UX[0].UValue = "1%";
    }
    void Accept() {
        Globals().DialogAccepted = true;
        Close();
    }
    void Unload() override { CloseForm(); }
};

class frmTwoTest : public DataDialogFixture {
protected:
    frmTwoTest() {
        forms.Register<frmTable>("frmData2");
        globals.CurrentR = std::make_shared<clsR>();
        globals.CurrentR->AttachTo();
        globals.CurrentL = std::make_shared<clsL>();
        CurrentCompound()->RN = "7732185";
        CurrentCompound()->Name = "water";
        CurrentCompound()->Formula = "H2O";
        CurrentCompound()->AttachTo(*globals.CurrentR);
        for (const char* number : {"1", "2"}) {
            globals.CurrentS = std::make_shared<clsS>();
            globals.CurrentS->SMPNM = number;
            globals.CurrentS->SMPDESC = "ns";
            CurrentCompoundSample()->AttachTo(*CurrentCompound());
        }
    }
    ~frmTwoTest() override { forms.CloseAll(); }

    frmTwo& Choose(const std::string& property, const std::string& unit, int variables) {
        auto& form = Open<frmProperty>("frmProperty");
        for (int group = 1; group < form.lstPropGroup.Count(); ++group) {
            form.lstPropGroup.UserChoose(group);
            if (form.lstProp.Find(property) > 0) break;
        }
        Pick(form.lstProp, property);
        Pick(form.lstConv, unit);
        form.lstMethod.UserChoose(form.lstMethod.Find("The method is not stated in the document"));
        Pick(form.lstExpPurpose, "Principal objective of the work");
        (variables == 1 ? form.cmdOne : form.cmdTwo).UserClick();
        forms.DropClosed();
        return forms.Get<frmTwo>("frmTwo");
    }
    frmTwo& VaporPressure() {
        auto& form = Choose("Vapor or sublimation pressure", "MPa", 1);
        Pick(form.lstVariable_Unit, "K");
        Pick(form.lstPhase1, "Liquid");
        Pick(form.lstNumerical, "Calculated from the authors' equation");
        return form;
    }
    void ExpectRefusal(frmTwo& form, const std::string& text, const ui::Control& control) {
        desktop.Expect(text);
        form.cmdOK.UserClick();
        EXPECT_TRUE(control.HasFocus()) << text;
    }
    void OnTable(const std::string& value, bool accept) {
        desktop.OnModal([=](ui::Form& shown) {
            auto& table = dynamic_cast<frmTable&>(shown);
            table.Enter(value);
            if (accept)
                table.Accept();
            else
                table.Close();
        });
    }
    frmTwo& Edit(const std::shared_ptr<clsTwo>& set) {
        globals.EditTwo = true;
        globals.CurrentTwo = set;
        globals.CurrentMethod = std::make_shared<clsMethod>();
        auto& form = forms.Get<frmTwo>("frmTwo");
        form.Show();
        return form;
    }
    void EndEdit() {
        EXPECT_EQ(forms.Find("frmTwo"), nullptr);
        globals.EditTwo = false;
        forms.DropClosed();
    }
    std::shared_ptr<clsTwo> Add(const std::string& line) {
        const auto set = std::make_shared<clsTwo>();
        EXPECT_TRUE(set->Load(line)) << line;
        set->AttachTo(*globals.CurrentS);
        return set;
    }
    static clsX Statement(const std::string& line) {
        clsX item;
        item.Load(line);
        return item;
    }
    static std::string Lines(clsTwo& set) {
        LineWriter out;
        set.PrintAll(out);
        return out.Text();
    }
    std::shared_ptr<clsTwo> Stored() const { return globals.CurrentS->recTwo.Item(1); }
};

TEST_F(frmTwoTest, ChoicesOfSampleAndVariablesAreAskedForInOrder) {
    globals.CurrentS = nullptr;
    auto& form = Choose("Refractive index (other wavelength)", "Dimensionless", 2);
    form.cboVar1.UserChoose(0);
    const auto refused = [&](const std::string& text, const ui::Control& control) {
        ExpectRefusal(form, text, control);
    };
    refused("Select Sample", form.cboSample);
    Pick(form.cboSample, "2");
    refused("Select Independent Variable 1", form.cboVar1);
    Pick(form.cboVar1, "Temperature");
    refused("Select Independent Variable Units", form.lstVariable_Unit);
    Pick(form.lstVariable_Unit, "C");
    refused("Select Independent Variable 2", form.cboVar2);
    Pick(form.cboVar2, "Density");
    refused("Select Independent Variable Units", form.lstVar2_Unit);
    Pick(form.lstVar2_Unit, "kg/m3");
    Pick(form.lstCONSTRAINT, "Single phase at fixed pressure");
    refused("Please select Wavelength as one of the variables", form.cboVar1);
    Pick(form.cboVar2, "Pressure");
    Pick(form.lstVar2_Unit, "kPa");
    refused("Enter a constant value of the state variable Wavelength", form.txtVar3);
    EXPECT_TRUE(globals.CurrentS->recTwo.IsEmpty());
}

TEST_F(frmTwoTest, DefinitionAndPhasesAreAskedForInOrder) {
    auto& form = Choose("Enthalpy", "kJ/mol", 2);
    const auto refused = [&](const std::string& text, const ui::Control& control) {
        ExpectRefusal(form, text, control);
    };
    const auto against = [&](const std::string& first, const std::string& second) {
        Pick(form.cboVar1, first);
        form.lstVariable_Unit.UserChoose(0);
        Pick(form.cboVar2, second);
        form.lstVar2_Unit.UserChoose(0);
    };
    against("Temperature", "Temperature");
    EXPECT_EQ(form.lstPROPERTY_FUNCT.Chosen(), "Difference X-Xref");
    EXPECT_EQ(form.lstREF_PHASE.Chosen() + form.txtREF_TEMP.Text(), "Crystal0");
    form.lstPROPERTY_FUNCT.Index(-1);
    refused("Define Measurement Results", form.lstPROPERTY_FUNCT);
    Pick(form.lstPROPERTY_FUNCT, "Direct value");
    refused("This property should be stored as a difference", form.lstPROPERTY_FUNCT);
    Pick(form.lstPROPERTY_FUNCT, "Ratio X/Xref");
    form.lstRelation.Index(-1);
    refused("Select Relation to Reference", form.lstRelation);
    Pick(form.lstRelation, "Rel. to ref. phase at fixed T and P");
    form.lstREF_PHASE.Index(-1);
    refused("Select Reference Phase", form.lstREF_PHASE);
    Pick(form.lstREF_PHASE, "Liquid");
    against("Upper temperature", "Pressure");
    refused("Lower/Upper variables must be consistent", form.cboVar2);
    against("Upper temperature", "Lower temperature");
    refused("Definition of Results must be Difference or Mean between TU and TL",
            form.lstPROPERTY_FUNCT);
    against("Upper pressure", "Lower pressure");
    refused("Definition of Results must be Difference between PU and PL", form.lstPROPERTY_FUNCT);
    against("Temperature", "Temperature");
    form.txtREF_TEMP.UserReplaceAll("room");
    refused("Select Reference Temperature", form.txtREF_TEMP);
    form.txtREF_TEMP.UserReplaceAll("298,15");
    form.txtREF_PRESSURE.UserReplaceAll("");
    refused("Select Reference Pressure", form.txtREF_PRESSURE);
    form.txtREF_PRESSURE.UserReplaceAll("101.325");
    form.lstCONSTRAINT.Index(-1);
    refused("Select the Constraint", form.lstCONSTRAINT);
    Pick(form.lstCONSTRAINT, "Phase boundary");
    EXPECT_EQ(form.lstPhase2.Chosen(), "Gas");
    refused("Overdetermined system", form.lstCONSTRAINT);
    Pick(form.lstCONSTRAINT, "Single phase at fixed pressure");
    refused("Select Phase 1", form.lstPhase1);
    Pick(form.lstPhase1, "Liquid");
    refused("Duplicate variable", form.cboVar2);
    against("Temperature", "Pressure");
    refused("Select availability of numeric data", form.lstNumerical);
    EXPECT_EQ(globals.CurrentS->recTwo.Count(), 0u);
    EXPECT_TRUE(globals.Saved);
}

TEST_F(frmTwoTest, BoundaryHasTwoDifferentPhases) {
    auto& form = Choose("Density", "kg/m3", 1);
    Pick(form.lstVariable_Unit, "K");
    Pick(form.lstPhase1, "Liquid");
    ExpectRefusal(form, "Select Phase 2", form.lstPhase2);
    EXPECT_EQ(form.lstPhase2.Find("Liquid"), -1);
    Pick(form.lstPhase2, "Crystal");
    EXPECT_EQ(form.lstPhase1.Find("Crystal"), -1);
    form.Close();
    forms.DropClosed();
    const auto set = std::make_shared<clsTwo>();
    ASSERT_TRUE(set->Load("^1 2 VDN S DIR 1\tY L L PB S & & &"));
    set->AttachTo(*globals.CurrentS);
    auto& edited = Edit(set);
    ExpectRefusal(edited, "Duplicate phase", edited.lstPhase2);
    edited.cmdFinish.UserClick();
    EndEdit();
}

TEST_F(frmTwoTest, SetJoinsTheTreeOnlyWithItsTable) {
    auto& form = VaporPressure();
    EXPECT_EQ(form.Caption(), "Vapor or sublimation pressure (MPa) as function of Temperature");
    EXPECT_EQ(form.lstCONSTRAINT.Chosen() + "|" + form.lstPhase2.Chosen(), "Phase boundary|Gas");
    EXPECT_EQ(form.lstPhase1.Find("Gas"), -1);
    EXPECT_EQ(form.cboVar1.Find("Pressure"), -1);
    EXPECT_FALSE(form.cboVar2.IsShown());
    EXPECT_FALSE(form.txtVar3.IsShown());
    form.chkCalc.UserClick();
    form.chkIncludeDigit.UserClick();
    form.txtComment.UserReplaceAll("Table 13.1");
    OnTable("9.9", false);
    form.cmdOK.UserClick();
    forms.DropClosed();
    EXPECT_TRUE(form.IsVisible());
    EXPECT_EQ(globals.CurrentS->recTwo.Count(), 0u);
    EXPECT_TRUE(globals.Saved);
    EXPECT_EQ(globals.OpenForms, std::vector<std::string>{"frmMain"});
    OnTable("0.003536", true);
    form.cmdOK.UserClick();
    EXPECT_FALSE(globals.Saved);
    EXPECT_TRUE(globals.DialogAccepted);
    EXPECT_TRUE(globals.OpenForms.empty());
    ASSERT_EQ(globals.CurrentS->recTwo.Count(), 1u);
    const auto set = Stored();
    EXPECT_EQ(set->Key(), "12PV1");
    EXPECT_EQ(set->DATATYPE + set->PROPERTY_FUNCT + set->CONSTRAINT, "CCDIRPB");
    EXPECT_EQ(set->Header.DATACOMMENT, "Table 13.1 ::Method:UNKNOWN:");
    EXPECT_TRUE(set->recData.Item(1)->isDigit);
    const std::string lines = Lines(*set);
    EXPECT_NE(lines.find("^1 2 P "), std::string::npos) << lines;
}

TEST_F(frmTwoTest, NoNumbersNeedNoTable) {
    auto& form = VaporPressure();
    Pick(form.lstNumerical, "No numerical data");
    form.chkGraph.UserClick();
    form.cmdOK.UserClick();
    ASSERT_EQ(globals.CurrentS->recTwo.Count(), 1u);
    EXPECT_EQ(Stored()->DATATYPE, "NG");
    EXPECT_EQ(Stored()->recData.Count(), 0u);
}

TEST_F(frmTwoTest, EditThatChangesNothingKeepsEveryByteAndCancelToo) {
    const auto set = std::make_shared<clsTwo>();
    ASSERT_TRUE(set->Load("^1 2 RIX S RFX 1\tYGq L & FT S 298.15 & L"));
    clsA header;
    header.Load("^A note O C 9 xyz UUU 3/4/2001 sealed ::Method:REFR:future tag:V1:WL:T = 293.15:"
                "UFactor:2:dRIX:0.5%:");
    set->TakePending(header);
    ASSERT_EQ(set->LoadRow("^d 5893 1.3330 &"), OpenRecord::Taken::Yes);
    set->AttachTo(*globals.CurrentS);
    const std::string before = Lines(*set);
    {
        auto& form = Edit(set);
        EXPECT_EQ(form.txtComment.Text(), "sealed");
        EXPECT_EQ(form.cboVar1.Chosen() + "|" + form.txtVar3.Text(), "Wavelength|293.15");
        desktop.Expect("Select Reference Pressure");
        form.cmdOK.UserClick();
        form.txtREF_PRESSURE.UserReplaceAll("100");
        OnTable("1.4", false);
        form.cmdOK.UserClick();
        forms.DropClosed();
        form.cmdFinish.UserClick();
        EndEdit();
        EXPECT_EQ(Lines(*set), before);
        EXPECT_FALSE(globals.DialogAccepted);
    }
    auto& form = Edit(set);
    form.txtREF_PRESSURE.UserReplaceAll("100");
    desktop.OnModal([](ui::Form& shown) { dynamic_cast<frmTable&>(shown).Accept(); });
    form.cmdOK.UserClick();
    EndEdit();
    EXPECT_EQ(globals.CurrentTwo, set);
    std::string expected = before;
    expected.replace(expected.find("298.15 & L"), 10, "298.15 100 L");
    EXPECT_EQ(Lines(*set), expected);
}

TEST_F(frmTwoTest, WhatTheFormDoesNotShowSurvivesAnEdit) {
    const auto set = Add("^1 2 RSS S DIR 1\tN L G DP S 273.15 & C");
    clsA header;
    header.Load("^A & O C & xyz UUU 3/4/2001 ::Method:PULSE:P = 100:T = 5:future:");
    set->TakePending(header);
    set->AddX(Statement("^X 0 RSS L - & & & + 1 0.1% 5 - & & - & & - & & &"));
    const std::string before = Lines(*set);
    Edit(set).cmdOK.UserClick();
    EndEdit();
    std::string expected = before; // but for the constant of what varies
    expected.erase(expected.find("T = 5:"), 6);
    EXPECT_EQ(Lines(*set), expected);
    auto& form = Edit(set);
    desktop.OnModal([](ui::Form& shown) {
        auto& property = dynamic_cast<frmProperty&>(shown);
        for (int group = 1; property.lstProp.Find("Density") < 0; ++group)
            property.lstPropGroup.UserChoose(group);
        Pick(property.lstProp, "Density");
        Pick(property.lstConv, "kg/m3");
        property.lstMethod.UserChoose(0);
        property.cmdOK.UserClick();
    });
    form.cmdMethod.UserClick();
    forms.DropClosed();
    Pick(form.lstCONSTRAINT, "Derived property");
    Pick(form.lstVariable_Unit, "K");
    Pick(form.lstPhase1, "Crystal");
    form.cmdOK.UserClick();
    EndEdit();
    EXPECT_FALSE(set->UX[0].iRep);
    EXPECT_EQ(set->PRPCODE + set->PHASE1 + set->PHASE2, "VDNC&");
    EXPECT_EQ(globals.CurrentS->recTwo.Item("12VDN1"), set);
}

TEST_F(frmTwoTest, PressureBesideAGasTakesANumberOfItsKind) {
    auto& first = VaporPressure();
    OnTable("0.0035", true);
    first.cmdOK.UserClick();
    forms.DropClosed();
    auto& form = Choose("Pressure of phase equilibrium", "kPa", 1);
    Pick(form.lstVariable_Unit, "K");
    Pick(form.lstPhase1, "Liquid");
    EXPECT_EQ(form.txtPrpSetNo.Text(), "1");
    Pick(form.lstPhase2, "Gas");
    EXPECT_EQ(form.txtPrpSetNo.Text(), "2");
    Pick(form.lstCONSTRAINT, "Single phase at fixed volume");
    EXPECT_EQ(form.txtPrpSetNo.Text(), "1"); // no second phase, no vapour pressure
    Pick(form.lstCONSTRAINT, "Phase boundary");
    Pick(form.lstNumerical, "No numerical data");
    form.cmdOK.UserClick();
    ASSERT_EQ(globals.CurrentS->recTwo.Count(), 2u);
    EXPECT_EQ(globals.CurrentS->recTwo.Item(2)->Key(), "12PV2");
}

TEST_F(frmTwoTest, ConstantGoesIntoItsTag) {
    auto& form = Choose("Density", "kg/m3", 1);
    Pick(form.lstVariable_Unit, "C");
    Pick(form.lstCONSTRAINT, "Single phase at fixed pressure");
    EXPECT_FALSE(form.lstPhase2.IsShown());
    EXPECT_EQ(form.lblVar3.Caption() + form.lblUnit3.Caption(), "Pressure:kPa");
    form.txtVar3.UserReplaceAll("101,325");
    Pick(form.lstPhase1, "Liquid");
    Pick(form.lstNumerical, "No numerical data");
    form.cmdOK.UserClick();
    ASSERT_EQ(globals.CurrentS->recTwo.Count(), 1u);
    EXPECT_EQ(Stored()->Header.DATACOMMENT, "::Method:UNKNOWN:P = 101.325:");
    EXPECT_EQ(Stored()->VAR1_UNIT + Stored()->PHASE2, "C&");
}

TEST_F(frmTwoTest, StatementsOfAConstantGoWithIt) {
    auto& form = Choose("Density", "kg/m3", 1);
    Pick(form.lstVariable_Unit, "C");
    Pick(form.lstCONSTRAINT, "Single phase at fixed pressure");
    form.txtVar3.UserReplaceAll("101.325");
    Pick(form.lstPhase1, "Liquid");
    Pick(form.lstNumerical, "No numerical data");
    form.cmdOK.UserClick();
    ASSERT_EQ(globals.CurrentS->recTwo.Count(), 1u);
    Stored()->AddX(Statement("^X 2 P L - & & & - & & & + 95 0.2 - & & - & & &"));
    const auto accept = [this](const char* pressure) {
        auto& again = Edit(Stored());
        again.txtVar3.UserReplaceAll(pressure);
        again.cmdOK.UserClick();
        EndEdit();
    };
    accept("101.3");
    EXPECT_EQ(Stored()->UX[2].UValue, "0.2");
    desktop.Expect("No pressure is stated. Is that all right?", ui::Answer::Yes);
    accept("");
    EXPECT_EQ(Stored()->UX[2].UValue, "");
}

TEST_F(frmTwoTest, RepeatedSetTakesTheDefinitionAndNoMore) {
    const auto set = std::make_shared<clsTwo>();
    ASSERT_TRUE(set->Load("^2 2 VDN v RPF 3\tSGq L & DP T C P L 298.15 & C"));
    clsA header;
    header.Load("^A note O C 9 xyz UUU 3/4/2001 sealed ::Method:PYCNOM:later:m:UFactor:2:dT:0.5:");
    set->TakePending(header);
    set->AddX(Statement("^X 0 VDN L - & & & + 1 0.1% 5 - & & - & & - & & &"));
    set->AddX(Statement("^X 2 P L - & & & - & & & + 95 0.2 - & & - & & &"));
    set->UX[0].KVOUValue = "0.003";
    ASSERT_EQ(set->LoadRow("^g 20.0 3 14.7 3 62.3 5 0.0001"), clsTwo::Taken::Yes);
    set->AttachTo(*globals.CurrentS);
    const std::string before = Lines(*set);
    globals.SetToRepeat = set;
    auto& form = Open<frmTwo>("frmTwo");
    EXPECT_EQ(globals.SetToRepeat, nullptr);
    EXPECT_EQ(form.txtPrpSetNo.Text(), "2");
    EXPECT_EQ(form.lstVar2_Unit.Chosen(), "psi");
    desktop.OnModal([](ui::Form& shown) {
        EXPECT_TRUE(Globals().CurrentTwo->recData.IsEmpty());
        EXPECT_TRUE(Globals().IncludeDigits);
        dynamic_cast<frmTable&>(shown).Accept();
    });
    form.cmdOK.UserClick();
    EXPECT_EQ(Lines(*set), before);
    ASSERT_EQ(globals.CurrentS->recTwo.Count(), 2u);
    EXPECT_EQ(Lines(*globals.CurrentS->recTwo.Item(2)),
              "^A & & C 9 & & 1/15/2026 sealed ::Method:PYCNOM:later:m:UFactor:2:dT:0.5:\n"
              "^2 2 VDN v RPF 2\tSGq L & DP T C P L 298.15 & C\n"
              "^X 2 P L - & & & - & & & + 95 0.2 - & & - & & &\n"
              "^X 0 VDN L - & & & + 1 0.1% 5 - & & - & & - & & &\n^M 0\n");
}

TEST_F(frmTwoTest, SetThatChangesItsCodeKeepsItsPlaceUnderANewKey) {
    for (const char* line :
         {"^1 2 P S DIR 1\tN L & PB S & & &", "^1 2 PV S DIR 1\tN L G PB S & & &"})
        Add(line);
    const auto set = Stored();
    auto& form = Edit(set);
    Pick(form.lstPhase2, "Gas");
    EXPECT_EQ(form.txtPrpSetNo.Text(), "2");
    form.cmdOK.UserClick();
    EndEdit();
    EXPECT_EQ(Stored(), set);
    EXPECT_EQ(globals.CurrentS->recTwo.Item("12PV2"), set);
    EXPECT_EQ(globals.CurrentS->recTwo.Item("12P1"), nullptr);
}

TEST_F(frmTwoTest, UnitThatNoTableKnowsIsKeptInSightAndRefused) {
    const auto set = Add("^1 2 VDN S DIR 1\tN L & FP furlong & & &");
    auto& form = Edit(set);
    EXPECT_EQ(form.lstVariable_Unit.Chosen(), "furlong");
    ExpectRefusal(form, "Invalid conversion factor", form.lstVariable_Unit);
    EXPECT_EQ(set->VAR1_UNIT, "furlong");
    Pick(form.lstVariable_Unit, "C");
    form.cmdOK.UserClick();
    EndEdit();
    EXPECT_EQ(set->VAR1_UNIT, "C");
    // A factor is a unit, also behind a look at the method; one in system units is only remembered.
    const auto byFactor = Add("^1 2 PV S DIR 1\tN L G PB 0.5 & & &");
    auto& second = Edit(byFactor);
    desktop.OnModal([](ui::Form& shown) {
        auto& property = dynamic_cast<frmProperty&>(shown);
        Pick(property.lstMethod, "Static method");
        Pick(property.lstExpPurpose, "Principal objective of the work");
        property.cmdOK.UserClick();
    });
    second.cmdMethod.UserClick();
    forms.DropClosed();
    EXPECT_EQ(globals.CurrentMethod->Method, "STATIC");
    EXPECT_EQ(second.lstVariable_Unit.Chosen(), "0.5* K");
    second.cmdOK.UserClick();
    EndEdit();
    EXPECT_EQ(byFactor->VAR1_UNIT, "0.5");
    const auto converted = Add("^1 2 RSS S DIR 1\tN L & FP furlong & & &");
    converted->isOriginalUnit = false;
    auto& third = Edit(converted);
    EXPECT_EQ(third.lstVariable_Unit.Chosen(), "K");
    third.cmdOK.UserClick();
    EndEdit();
    EXPECT_EQ(converted->VAR1_UNIT, "furlong");
}

TEST_F(frmTwoTest, ReviewOffersWhatHasTablesAndAnUnknownCodeIsTold) {
    auto& form = VaporPressure();
    desktop.OnModal([](ui::Form& shown) {
        auto& property = dynamic_cast<frmProperty&>(shown);
        EXPECT_EQ(property.lstProp.Find("Normal boiling temperature"), -1);
        Pick(property.lstConv, "bar");
        property.cmdOK.UserClick();
    });
    form.cmdMethod.UserClick();
    forms.DropClosed();
    EXPECT_EQ(form.Caption(), "Vapor or sublimation pressure (bar) as function of Temperature");
    EXPECT_EQ(form.lstPhase1.Chosen(), "Liquid");
    form.Close();
    forms.DropClosed();
    const auto set = std::make_shared<clsTwo>();
    ASSERT_TRUE(set->Load("^1 2 XYZ S DIR 1\tY L & FP K & & &"));
    set->AttachTo(*globals.CurrentS);
    desktop.Expect("Property Code Error");
    Edit(set).cmdFinish.UserClick();
    EndEdit();
}

TEST_F(frmTwoTest, StatementsOfRowsGoWithTheirQuantity) {
    const auto set = Add("^1 2 VDN S DIR 1\tY L & FP S & & &");
    set->AddX(Statement("^X 1 T L + 1 95 0.05 - & & & - & & - & & - & & &"));
    ASSERT_EQ(set->LoadRow("^D 300 996.5 0.7"), OpenRecord::Taken::Yes);
    ASSERT_EQ(set->LoadRowStatements("^Y & & & 0.05 0.1 & & 0.5 0.6 0.2"), OpenRecord::Taken::Yes);
    const auto accept = [](ui::Form& shown) { dynamic_cast<frmTable&>(shown).Accept(); };
    {
        auto& form = Edit(set);
        Pick(form.cboVar1, "Pressure");
        Pick(form.lstVariable_Unit, "kPa");
        Pick(form.lstCONSTRAINT, "Single phase at fixed temperature");
        const std::string question =
            "Rows of the table state uncertainties of Temperature, which go with it\nGo on?";
        desktop.Expect(question, ui::Answer::No);
        form.cmdOK.UserClick();
        EXPECT_TRUE(form.cboVar1.HasFocus());
        EXPECT_EQ(set->recData.Item(1)->StatementsOf(1).Unc, "0.05");
        desktop.Expect(question, ui::Answer::Yes);
        desktop.OnModal(accept);
        form.cmdOK.UserClick();
        EndEdit();
    }
    EXPECT_NE(Lines(*set).find("^Y & & & & 0.1 & & 0.5 0.6 0.2"), std::string::npos) << Lines(*set);
    EXPECT_EQ(Lines(*set).find("^X"), std::string::npos);
    auto& form = Edit(set);
    desktop.OnModal([](ui::Form& shown) {
        auto& property = dynamic_cast<frmProperty&>(shown);
        Pick(property.lstProp, "Specific volume");
        Pick(property.lstConv, "m3/kg");
        property.lstMethod.UserChoose(0);
        Pick(property.lstExpPurpose, "Principal objective of the work");
        property.cmdOK.UserClick();
    });
    form.cmdMethod.UserClick();
    forms.DropClosed();
    Pick(form.cboVar1, "Pressure");
    Pick(form.lstVariable_Unit, "kPa");
    Pick(form.lstCONSTRAINT, "Single phase at fixed temperature");
    Pick(form.lstPhase1, "Liquid");
    desktop.Expect("Rows of the table state uncertainties of Density, which go with it\nGo on?",
                   ui::Answer::Yes);
    desktop.OnModal(accept);
    form.cmdOK.UserClick();
    EndEdit();
    EXPECT_EQ(Lines(*set).find("^Y"), std::string::npos) << Lines(*set);
    EXPECT_NE(Lines(*set).find("^D 300 996.5 &"), std::string::npos) << Lines(*set);
}

TEST_F(frmTwoTest, TheSamePhaseTwiceIsNotReachedByGoingBack) {
    auto& form = VaporPressure();
    EXPECT_EQ(form.lstPhase2.Chosen(), "Gas");
    Pick(form.lstCONSTRAINT, "Single phase at fixed volume");
    Pick(form.lstPhase1, "Gas");
    Pick(form.lstCONSTRAINT, "Phase boundary");
    EXPECT_EQ(form.lstPhase2.Find("Gas"), -1);
    Pick(form.lstPhase1, "Liquid");
    EXPECT_EQ(form.lstPhase2.Chosen(), "Gas");
}

} // namespace
} // namespace vexora::test

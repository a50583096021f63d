#include "entry/frmUnc.h"

#include "chem/clsProperty.h"
#include "entry/EditStatements.h"
#include "records/LineWriter.h"
#include "records/PropertyChain.h"
#include "records/clsTwo.h"
#include "reference/Conversions.h"
#include "support/DataDialogFixture.h"

namespace vexora::test {
namespace {

/// Densities in g/cm3 against temperature in degrees Celsius and pressure in bar.
class frmUncTest : public DataDialogFixture {
protected:
    frmUncTest() {
        set.nVar = 2;
        set.PRPCODE = "VDN";
        set.PROPERTY_UNIT = ConversionCodeOf("g/cm3", "kg/m3");
        set.VARIABLE1 = "T";
        set.VAR1_UNIT = "C";
        set.VARIABLE2 = "P";
        set.VAR2_UNIT = ConversionCodeOf("bar", "kPa");
        NameStatements(set);
    }
    ~frmUncTest() override { forms.CloseAll(); }

    /// Opens the form on the set, lets a person work on it; whether it was accepted.
    bool Work(const std::function<void(frmUnc&)>& person) {
        globals.CurrentProperty = BuildChain(set);
        globals.CurrentProperty->Text = "0.9970";
        globals.CurrentProperty->NextItem->Text = "25.00";
        if (set.nVar > 1) globals.CurrentProperty->NextItem->NextItem->Text = "1.0";
        desktop.OnModal([&person](ui::Form& form) { person(dynamic_cast<frmUnc&>(form)); });
        const bool accepted = EditStatements(set.UX);
        forms.DropClosed();
        return accepted;
    }
    std::string Line(int n) const {
        LineWriter out;
        set.UX[static_cast<std::size_t>(n)].SaveX(out, n == 0 ? "" : set.VAR_UNIT(n));
        return out.Text();
    }

    clsTwo set;
};

TEST_F(frmUncTest, EntriesAreCheckedInOrder) {
    globals.CurrentKey = "RLSZ";
    const bool accepted = Work([this](frmUnc& form) {
        const auto refused = [&](const std::string& text, const ui::Control& control) {
            desktop.Expect(text);
            form.cmdOK.UserClick();
            EXPECT_TRUE(control.HasFocus()) << text;
        };
        const std::string invalid = "Invalid numerical value";
        const std::string missing = "Please enter the value";
        const auto value = [&](ui::TextBox& box) {
            refused(missing, box);
            box.UserReplaceAll("x");
            refused(invalid, box);
            box.UserReplaceAll(",5");
        };
        const auto level = [&](ui::TextBox& box) {
            box.UserReplaceAll("high");
            refused(invalid, box);
            box.UserReplaceAll("95");
        };
        for (auto* box :
             {&form.chkComb, &form.chkCD, &form.chkDS(1), &form.chkRep(1), &form.chkUnc(1)})
            box->UserClick();
        value(form.txtCUValue);
        level(form.txtCULevel);
        value(form.txtRMS);
        refused("SELECT REPRESENTATION OF REPEATABILITY", form.cboRType(1));
        form.cboRType(1).UserDropDown();
        refused("SELECT REPRESENTATION OF REPEATABILITY", form.cboRType(1));
        Pick(form.cboRType(1), "Standard Deviation of a Single Measurement");
        value(form.txtUValue(1));
        level(form.txtULevel(1));
        value(form.txtDSValue(1));
        level(form.txtDSLevel(1));
        value(form.txtRValue(1));
        form.txtRepetitions(1).UserReplaceAll("many");
        refused(invalid, form.txtRepetitions(1));
        form.txtRepetitions(1).UserReplaceAll("");
        refused("SELECT TYPE OF EVALUATION", form.cboCUType);
        EXPECT_EQ(form.txtRepetitions(1).Text(), "1");
        Pick(form.cboCUType, "Comparison with Other Measurements");
        form.cmdOK.UserClick();
    });
    EXPECT_TRUE(accepted);
    EXPECT_EQ(Line(0), "^X 0 VDN & - & & & - & & & - & & + B 95 + 0.5 & 0.5\n");
    EXPECT_EQ(Line(1), "^X 1 T & + & 95 0.5 + 1 0.5 1 + 95 0.5 - & & - & & &\n");
    EXPECT_FALSE(set.UX[2].IsStated());
}

TEST_F(frmUncTest, TabGoesThroughABlockBeforeTheNext) {
    Work([](frmUnc& form) {
        const auto tab = [&form](const std::string& key = "Tab") {
            form.UserKey(ui::ParseKey(key));
            return form.ActiveControl() ? form.ActiveControl()->Name() : std::string();
        };
        form.chkDS(0).SetFocus();
        EXPECT_EQ(tab(), "chkRep(0)"); // the fields of a closed block are passed over
        EXPECT_EQ(tab("Shift+Tab"), "chkDS(0)");
        form.chkDS(0).UserClick();
        for (const char* next :
             {"txtDSValue(0)", "chkDSPerCent(0)", "txtDSLevel(0)", "cboDSEvaluator(0)", "chkRep(0)",
              "chkUnc(0)", "chkComb", "chkCD", "chkDS(1)", "chkRep(1)", "chkUnc(1)", "chkDS(2)",
              "chkRep(2)", "chkUnc(2)", "cmdCalc", "cmdOK", "cmdCancel", "chkDS(0)"})
            EXPECT_EQ(tab(), next);
        form.cmdCancel.UserClick();
    });
}

TEST_F(frmUncTest, CalibrationConstantStandsForTheDevice) {
    globals.DataContext = "React";
    set.nVar = 1;
    set.PRPCODE = "HR";
    set.PROPERTY_UNIT = "S";
    set.VAR1_UNIT = "S";
    NameStatements(set);
    EXPECT_TRUE(Work([this](frmUnc& form) {
        EXPECT_FALSE(form.cboDSEvaluator(0).IsShown());
        form.chkDS(0).UserClick();
        form.txtDSValue(0).UserReplaceAll("200");
        desktop.Expect("Invalid calibration constant uncertainty");
        form.cmdOK.UserClick();
        EXPECT_TRUE(form.txtCalibrError.HasFocus());
        form.txtCalibrError.UserReplaceAll("0.2");
        form.txtDSLevel(0).UserReplaceAll("95");
        form.cmdCalc.UserClick();
        EXPECT_EQ(form.lblFigures.Caption().substr(0, 43),
                  "Expanded uncertainty of 0.9970: 0.000997 kJ");
        form.cmdOK.UserClick();
    }));
    EXPECT_EQ(set.UX[0].DSEvaluator + "|" + set.UX[0].DSValue, "0.2|200");
}

TEST_F(frmUncTest, FiguresFollowFromTheStatementsAndCancelLeavesAll) {
    const bool accepted = Work([](frmUnc& form) {
        EXPECT_EQ(form.Frame(0).Caption(), "Property: Density (g/cm3)");
        EXPECT_EQ(form.Frame(1).Caption(), "Variable 1: Temperature (C)");
        EXPECT_FALSE(form.Frame(3).Visible());
        EXPECT_FALSE(form.txtKVOU.IsShown());
        EXPECT_FALSE(form.txtUValue(0).IsUsable());
        form.cmdCalc.UserClick();
        EXPECT_EQ(form.lblFigures.Caption(),
                  "No figure follows for the property: nothing is stated about it");
        form.chkUnc(0).UserClick();
        form.txtUValue(0).UserReplaceAll("1");
        form.chkUPerCent(0).UserClick();
        form.cmdCalc.UserClick();
        EXPECT_EQ(form.lblFigures.Caption(),
                  "Expanded uncertainty of 0.9970: 0.0199 g/cm3; in the system unit 19.9 kg/m3");
        form.txtULevel(0).UserReplaceAll("95");
        form.cmdCalc.UserClick();
        EXPECT_EQ(form.lblFigures.Caption(),
                  "Expanded uncertainty of 0.9970: 0.00997 g/cm3; in the system unit 9.97 kg/m3");
        form.chkComb.UserClick();
        form.txtCUValue.UserReplaceAll("0.02");
        form.cmdCalc.UserClick();
        EXPECT_EQ(form.lblFigures.Caption(), "Combined uncertainty as stated: 0.0200 g/cm3");
        form.cmdCancel.UserClick();
    });
    EXPECT_FALSE(accepted);
    EXPECT_FALSE(set.UX[0].IsStated());
    EXPECT_EQ(globals.CurrentProperty->Unc + globals.CurrentProperty->masterunc, "");
}

TEST_F(frmUncTest, TheLargerCombinedUncertaintyIsTheEvaluatedOne) {
    const auto evaluated = [this](const std::string& stated, bool perCent) {
        EXPECT_TRUE(Work([&](frmUnc& form) {
            if (!form.chkComb.Value()) form.chkComb.UserClick();
            if (form.cboCUType.Chosen().starts_with("SELECT "))
                Pick(form.cboCUType, "Comparison with Other Measurements");
            form.txtCUValue.UserReplaceAll(stated);
            if (form.chkCUPerCent.Value() != perCent) form.chkCUPerCent.UserClick();
            form.cmdCalc.UserClick();
            form.cmdOK.UserClick();
        }));
        return set.UX[0].KVOUValue;
    };
    set.UX[0].KVOUValue = "0.010"; // as a file has it
    EXPECT_EQ(evaluated("0.005", false), "0.010");
    EXPECT_EQ(evaluated("0.020", false), "0.020");
    EXPECT_EQ(evaluated("4", true), "0.03988"); // 4 % of 0.9970
}

TEST_F(frmUncTest, WhatIsNotTouchedKeepsItsBytes) {
    set.UX[0].Load("^X 0 VDN L + 1 95 0.1% - & & & + 95 0.002 + C 95 + 0.01 third_order 1%");
    set.UX[1].Load("^X 1 T L + NIST_lab & 0.010 - & & & - & & - & & - & & &");
    set.UX[2].Load("^X 2 P L - & & & - & & & + 95 20 - & & - & & &");
    NameStatements(set);
    const std::string before = Line(0) + Line(1) + Line(2);
    desktop.Expect("Uncertainty was evaluated at KVO\nand cannot be correctly processed by VXR in "
                   "External mode");
    EXPECT_FALSE(Work([](frmUnc& form) { form.cmdCancel.UserClick(); }));
    EXPECT_EQ(Line(0) + Line(1) + Line(2), before);
    set.UX[0].CType = "A";
    const std::string known = Line(0) + Line(1) + Line(2);
    EXPECT_TRUE(Work([](frmUnc& form) {
        EXPECT_EQ(form.cboDSEvaluator(0).Text() + "|" + form.txtDSValue(0).Text(),
                  "Third party|0.1");
        EXPECT_TRUE(form.chkDSPerCent(0).Value());
        EXPECT_EQ(form.cboDSEvaluator(1).Text(), "NIST lab");
        EXPECT_EQ(form.txtUValue(2).Text(), "0.20"); // 20 kPa of the file
        form.cmdOK.UserClick();
    }));
    EXPECT_EQ(Line(0) + Line(1) + Line(2), known);
    EXPECT_TRUE(Work([](frmUnc& form) {
        form.txtUValue(2).UserReplaceAll("0.3");
        form.cmdOK.UserClick();
    }));
    EXPECT_EQ(set.UX[2].UValue + (set.UX[2].inSystemUnits ? " kPa" : " bar"), "0.3 bar");
    EXPECT_EQ(Line(0) + Line(1), known.substr(0, known.find("^X 2")));
}

TEST_F(frmUncTest, WhatStaysTheSameInAllRowsIsAConstraint) {
    set.nVar = 1;
    set.VARIABLE2.clear();
    set.VAR2_UNIT.clear();
    set.PHASE1 = "L";
    set.Header.DATACOMMENT = "::Method:X:P = 250.0:T = 300:";
    NameStatements(set);
    EXPECT_TRUE(Work([](frmUnc& form) {
        EXPECT_EQ(form.Frame(2).Caption(), "Constraint: Pressure (kPa)");
        EXPECT_FALSE(form.Frame(3).Visible()); // the temperature varies
        form.chkUnc(2).UserClick();
        form.txtUValue(2).UserReplaceAll("0.50");
        form.cmdOK.UserClick();
    }));
    const std::string line = "^X 2 P L - & & & - & & & + & 0.50 - & & - & & &\n";
    EXPECT_EQ(Line(2), line);
    set.Header.DATACOMMENT = "::Method:X:WL = 5893:P = 250.0:";
    NameStatements(set);
    EXPECT_EQ(Line(2), line);
    EXPECT_EQ(set.UX[3].PRPCODE + " " + set.UX[3].Name, "WL Wavelength");
    set.nVar = 2;
    set.VARIABLE2 = "P";
    NameStatements(set);
    EXPECT_FALSE(set.UX[2].Constr);
}

TEST_F(frmUncTest, ChainOfASetCarriesItsStatements) {
    set.UX[0].iUnc = set.UX[1].iRep = true;
    set.UX[0].UValue = "0.002";
    set.UX[0].ULevel = "95";
    set.UX[1].RValue = "0.01";
    set.UX[1].RType = 1;
    set.UX[1].Repetitions = "5";
    set.Header.DATACOMMENT = "::Method:X:dP:2:";
    set.commentInSystemUnits = true;
    const auto head = BuildChain(set);
    EXPECT_EQ(head->masterunc + " " + head->Relation + " " + head->Name, "0.002 A Density, kg/m3");
    EXPECT_EQ(head->unclevel, 95);
    const clsProperty& first = *head->NextItem;
    EXPECT_EQ(first.masterrep + " " + first.ConversionCode, "0.01 C");
    EXPECT_EQ(first.masternrep * 10 + first.replevel, 51);
    EXPECT_EQ(first.NextItem->PrecisionText, "0.02"); // 2 kPa in bar
    EXPECT_TRUE(first.NextItem->isLast);
    set.PROPERTY_FUNCT = "DFR";
    EXPECT_EQ(BuildChain(set)->Relation, "D");
}

} // namespace
} // namespace vexora::test

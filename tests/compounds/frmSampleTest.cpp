#include "compounds/frmSample.h"

#include "compounds/frmSubst.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "support/DialogFixture.h"

namespace vexora {

namespace {

using ui::Answer;

class frmSampleTest : public test::DialogFixture {
protected:
    frmSampleTest() {
        globals.CurrentL = AddCompound("7732185", "water", "H2O");
        globals.CurrentKey = "RL";
    }
    frmSample& Open() { return test::DialogFixture::Open<frmSample>("frmSample"); }
    frmSample& OpenOn(const std::string& description) {
        auto sample = std::make_shared<clsS>();
        sample->SMPNM = "1";
        sample->SMPDESC = description;
        sample->AttachTo(*CurrentCompound());
        globals.CurrentS = sample;
        globals.EditSample = true;
        return Open();
    }
    static void Describe(frmSample& dialog, const std::string& source) {
        Pick(dialog.lstDescAvail, "The sample description is available");
        Pick(dialog.lstSmpSrc, source);
    }
    static void EnterInitial(frmSample& dialog, const std::string& value, const std::string& unit,
                             const std::string& method) {
        Enter(dialog.txtSrcPurity, value);
        if (!unit.empty()) Pick(dialog.lstSrcPurity, unit);
        if (!method.empty()) Pick(dialog.lstSrsDetBy, method);
    }
    static void EnterFinal(frmSample& dialog, int i, const std::string& value,
                           const std::string& unit, const std::string& method) {
        Enter(dialog.txtFinalPurity(i), value);
        if (!unit.empty()) Pick(dialog.lstFinalPurity(i), unit);
        if (!method.empty()) Pick(dialog.lstFinalDetBy(i), method);
    }
    static void Purify(frmSample& dialog, const std::string& text, bool on = true) {
        dialog.lstPurify.UserSelect(dialog.lstPurify.Find(text), on);
    }
    /// Every sample of water, a line each.
    std::string Samples() const {
        std::string text;
        for (const auto& sample : globals.CurrentR->recL.Item(1)->recS)
            text += sample->SMPNM + " " + sample->SMPDESC + " " + NumberText(sample->Purity) + "\n";
        return text;
    }
    static constexpr const char* noPurity = "No numerical purity assessment was provided.\nIs this "
                                            "correct? | Purity information missing";
};

} // namespace

TEST_F(frmSampleTest, EveryChangeComposesTheDescription) {
    frmSample& dialog = Open();
    EXPECT_EQ(dialog.txtSampleNo.Text(), "1");
    Describe(dialog, "Commercial source");
    EXPECT_EQ(dialog.txtSmplDescription.Text(), "cm;;");
    EnterInitial(dialog, "99.50", "mol %", "Gas chromatography");
    EXPECT_EQ(dialog.txtSmplDescription.Text(), "cm,99.50m%,gc;;");
    Purify(dialog, "Zone refining");
    Purify(dialog, "Distillation");
    EXPECT_EQ(dialog.txtSmplDescription.Text(), "cm,99.50m%,gc;zone,dist;");
    EnterFinal(dialog, 0, "99.95", "mass %", "Gas chromatography");
    EnterFinal(dialog, 1, "0.01", "water mass %", "Karl Fischer titration");
    const std::string whole = "cm,99.50m%,gc;zone,dist;99.95w%,gc,0.01h%,kf";
    EXPECT_EQ(dialog.txtSmplDescription.Text(), whole);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Samples(), "1 " + whole + " 99.95\n");
    EXPECT_EQ(Tree(), "2002 wag & 0\n  water\n    Sample 1 (" + whole + ")\n");
    EXPECT_FALSE(globals.Saved);
    EXPECT_TRUE(globals.DialogAccepted);
}

TEST_F(frmSampleTest, FractionsAndPpmAreKeptInPerCentToTheirPlace) {
    frmSample& dialog = Open();
    Describe(dialog, "Commercial source");
    EnterInitial(dialog, "0.990", "mole fraction", "Gas chromatography");
    EnterFinal(dialog, 0, "0.99", "mass fraction", "Gas chromatography");
    EnterFinal(dialog, 1, "2e-4", "water mass fraction", "Karl Fischer titration");
    EnterFinal(dialog, 2, "12.5", "water mass ppm", "Karl Fischer titration");
    EXPECT_EQ(dialog.txtSmplDescription.Text(), "cm,99.0m%,gc;;99w%,gc,0.02h%,kf,0.00125h%,kf");
    Enter(dialog.txtFinalPurity(0), "99"); // per cent, by the look of it
    desktop.Expect("Invalid purity value");
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.txtFinalPurity(0).HasFocus());
}

TEST_F(frmSampleTest, DoneClosesAndAChangeBringsTheStoredSampleUpToDate) {
    frmSample& dialog = Open();
    Describe(dialog, "Synthesized by the authors");
    EnterFinal(dialog, 0, "98", "mol %", "Gas chromatography");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(dialog.cmdAccept.Caption(), "Done");
    Enter(dialog.txtFinalPurity(0), "97,5");
    EXPECT_EQ(dialog.cmdAccept.Caption(), "Accept");
    dialog.cmdAccept.UserClick();
    dialog.cmdAccept.UserClick();
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(Samples(), "1 sa;;97.5m%,gc 97.5\n");
    EXPECT_TRUE(globals.OpenForms.empty());
}

TEST_F(frmSampleTest, NextStoresOnceAndBeginsTheNextFreeNumber) {
    frmSample& dialog = Open();
    Pick(dialog.lstDescAvail, "No sample used");
    EXPECT_FALSE(dialog.txtSrcPurity.IsUsable());
    dialog.cmdNext.UserClick();
    EXPECT_EQ(dialog.txtSampleNo.Text(), "2");
    EXPECT_TRUE(dialog.txtSmplDescription.IsEmpty());
    EXPECT_TRUE(dialog.txtSrcPurity.IsUsable());
    Pick(dialog.lstDescAvail, "The sample was not described in the document");
    dialog.cmdAccept.UserClick();
    dialog.cmdNext.UserClick(); // stored already
    EXPECT_EQ(Samples(), "1 xx 0\n2 ns 0\n");
    desktop.Expect("Select description availability");
    dialog.cmdNext.UserClick();
    EXPECT_EQ(dialog.txtSampleNo.Text(), "3");
}

TEST_F(frmSampleTest, ANumberThatIsTakenIsPassedOver) {
    for (const char* number : {"2", "5"}) {
        auto sample = std::make_shared<clsS>();
        sample->SMPNM = number;
        sample->SMPDESC = "ns";
        sample->AttachTo(*CurrentCompound());
    }
    frmSample& dialog = Open();
    EXPECT_EQ(dialog.txtSampleNo.Text(), "3");
    CurrentCompound()->recS.Remove(CurrentCompound()->recS.Item(2).get());
    dialog.Close();
    globals.OpenForms = {"frmMain"};
    EXPECT_EQ(Open().txtSampleNo.Text(), "3");
}

TEST_F(frmSampleTest, ChoicesAreAskedForInOrder) {
    globals.CurrentL = nullptr;
    frmSample& dialog = Open();
    desktop.Expect("Select the compound");
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.cboSubst.HasFocus());
    Pick(dialog.cboSubst, "water");
    desktop.Expect("Select description availability");
    dialog.cmdAccept.UserClick();
    Pick(dialog.lstDescAvail, "The sample description is available");
    desktop.Expect("Select source of sample");
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.lstSmpSrc.HasFocus());
    EXPECT_EQ(Samples(), "");
}

TEST_F(frmSampleTest, ASampleWithoutPurityIsStoredOnlyOnYes) {
    frmSample& dialog = Open();
    Describe(dialog, "Isolated from a natural product");
    desktop.Expect(noPurity, Answer::No);
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.txtSrcPurity.HasFocus());
    EXPECT_EQ(Samples(), "");
    desktop.Expect(noPurity, Answer::Yes);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Samples(), "1 np;; 0\n");
}

TEST_F(frmSampleTest, UnsoundPuritiesAreRefusedBeforeAndAfterPurification) {
    frmSample& dialog = Open();
    Describe(dialog, "Commercial source");
    const std::string refused = "Invalid purity value";
    for (const char* typed : {"pure", "100.1", "-1"}) {
        EnterInitial(dialog, typed, "mol %", "Gas chromatography");
        desktop.Expect(refused);
        dialog.cmdAccept.UserClick();
        EXPECT_TRUE(dialog.txtSrcPurity.HasFocus());
    }
    Enter(dialog.txtSrcPurity, "$99");
    desktop.Expect("Illegal character in purity value");
    dialog.cmdAccept.UserClick();
    Enter(dialog.txtSrcPurity, "99");
    EnterFinal(dialog, 2, "101", "", "");
    desktop.Expect(refused);
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.txtFinalPurity(2).HasFocus());
    EXPECT_EQ(Samples(), "");
}

TEST_F(frmSampleTest, APurityIsInMolPerCentUnlessSaidAndNeedsItsMethod) {
    frmSample& dialog = Open();
    Describe(dialog, "Commercial source");
    Enter(dialog.txtSrcPurity, "99,0");
    EXPECT_EQ(dialog.txtSmplDescription.Text(), "cm,99.0m%;;");
    desktop.Expect("Please select the method of purity determination");
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.lstSrsDetBy.HasFocus());
    Pick(dialog.lstSrsDetBy, "Stated by supplier");
    EnterFinal(dialog, 1, "99.9", "mass %", "");
    desktop.Expect("Please select the method of purity determination");
    dialog.cmdAccept.UserClick();
    EXPECT_TRUE(dialog.lstFinalDetBy(1).HasFocus());
    Pick(dialog.lstFinalDetBy(1), "Stated by supplier");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Samples(), "1 cm,99.0m%,sup;;99.9w%,sup 99.9\n");
}

TEST_F(frmSampleTest, UnlikelyPuritiesAreAskedAbout) {
    struct Case {
        bool initial;
        const char* value;
        const char* unit;
        const char* question; // empty: none
    };
    const Case cases[] = {{true, "10", "water mass %", ""},
                          {true, "10.1", "water mass %", "Is water content so high?"},
                          {true, "50", "mol %", ""},
                          {false, "90", "mol %", ""},
                          {false, "89.9", "mol %", "Is that low purity value correct?"},
                          {false, "10", "halide impurity mol %", ""},
                          {false, "10.1", "halide impurity mol %", "Is impurity content so high?"},
                          {false, "10.1", "water mol %", "Is impurity content so high?"}};
    for (const Case& c : cases) {
        frmSample& dialog = Open();
        Describe(dialog, "Commercial source");
        if (c.initial)
            EnterInitial(dialog, c.value, c.unit, "Stated by supplier");
        else
            EnterFinal(dialog, 0, c.value, c.unit, "Stated by supplier");
        if (*c.question) {
            desktop.Expect(c.question, Answer::No);
            dialog.cmdAccept.UserClick();
            EXPECT_EQ(dialog.cmdAccept.Caption(), "Accept") << c.value;
            desktop.Expect(c.question, Answer::Yes);
        }
        dialog.cmdAccept.UserClick();
        EXPECT_EQ(dialog.cmdAccept.Caption(), "Done") << c.value;
        dialog.Close();
        globals.OpenForms = {"frmMain"};
    }
}

TEST_F(frmSampleTest, NoneUsedExcludesEveryMethod) {
    frmSample& dialog = Open();
    Describe(dialog, "Commercial source");
    EnterInitial(dialog, "99", "mol %", "Stated by supplier");
    Purify(dialog, "None used");
    Purify(dialog, "Distillation");
    desktop.Expect("Invalid combination of \"None used\" with other options");
    dialog.cmdAccept.UserClick();
    Purify(dialog, "Distillation", false);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Samples(), "1 cm,99m%,sup;none; 99\n");
}

TEST_F(frmSampleTest, OtherMethodsAreAskedForAndStandInBrackets) {
    frmSample& dialog = Open();
    Describe(dialog, "Commercial source");
    const std::string prompt = "Please enter method of purity determination";
    desktop.ExpectInput(prompt, "frozen (twice); slowly");
    Purify(dialog, "Other");
    EXPECT_EQ(dialog.txtSmplDescription.Text(), "cm;(frozen twice slowly);");
    Enter(dialog.txtFinalPurity(0), "99");
    Pick(dialog.lstFinalPurity(0), "mol %");
    desktop.ExpectInput(prompt, "by us, later");
    Pick(dialog.lstFinalDetBy(0), "Other");
    EXPECT_EQ(dialog.lstFinalDetBy(0).Chosen(), "(by us  later)");
    desktop.ExpectInput(prompt, std::nullopt);
    Pick(dialog.lstSrsDetBy, "Other");
    EXPECT_EQ(dialog.lstSrsDetBy.Index(), -1);
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Samples(), "1 cm;(frozen twice slowly);99m%,(by us  later) 99\n");
}

TEST_F(frmSampleTest, ASampleIsEditedWithWhatItsDescriptionSays) {
    frmSample& dialog = OpenOn("cm;(frozen twice);99.0m%,(by us)");
    EXPECT_EQ(dialog.lstSmpSrc.Chosen(), "Commercial source");
    EXPECT_EQ(dialog.txtFinalPurity(0).Text(), "99.0");
    EXPECT_EQ(dialog.lstFinalPurity(0).Chosen(), "mol %");
    EXPECT_EQ(dialog.lstFinalDetBy(0).Chosen(), "(by us)");
    EXPECT_TRUE(dialog.lstPurify.Selected(dialog.lstPurify.Find("(frozen twice)")));
    EXPECT_FALSE(dialog.cmdNext.IsShown());
    EXPECT_FALSE(dialog.cboSubst.IsUsable());
    Pick(dialog.lstSmpSrc, "Synthesized by others");
    dialog.cmdAccept.UserClick();
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(Samples(), "1 sx;(frozen twice);99.0m%,(by us) 99\n");
    const auto& samples = CurrentCompound()->recS;
    EXPECT_EQ(samples.Item("Sample 1 (sx;(frozen twice);99.0m%,(by us))"), samples.Item(1));
}

TEST_F(frmSampleTest, CancelKeepsTheSampleAsItWas) {
    frmSample& dialog = OpenOn("cm,99m%,gc;;");
    Enter(dialog.txtSrcPurity, "12");
    dialog.UserKey(ui::ParseKey("Escape"));
    EXPECT_EQ(Samples(), "1 cm,99m%,gc;; 0\n");
    EXPECT_FALSE(globals.DialogAccepted);
    EXPECT_TRUE(globals.Saved);
}

TEST_F(frmSampleTest, ADescriptionThatCannotBeReadIsGivenToMend) {
    const std::string error =
        "Error: Sample description cannot be interpreted | Please correct sample description";
    desktop.Expect(error);
    desktop.ExpectInput("Sample description:", "cm;;99m%,unknown code");
    desktop.Expect(error);
    desktop.ExpectInput("Sample description:", "cm;;99m%,gc");
    frmSample& dialog = OpenOn("cm;;gc 99");
    EXPECT_EQ(dialog.txtFinalPurity(0).Text(), "99");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Samples(), "1 cm;;99m%,gc 99\n");
}

TEST_F(frmSampleTest, ADescriptionLeftUnmendedStaysUntilChoicesReplaceIt) {
    desktop.Expect("Error: Sample description cannot be interpreted | Please correct sample "
                   "description");
    desktop.ExpectInput("Sample description:", std::nullopt);
    frmSample& dialog = OpenOn("as received");
    EXPECT_EQ(dialog.txtSmplDescription.Text(), "as received");
    desktop.Expect("Select description availability");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Samples(), "1 as received 0\n");
}

TEST_F(frmSampleTest, AnotherCompoundStartsItsOwnNumbers) {
    const auto ethanol = AddCompound("64175", "ethanol", "C2H6O");
    frmSample& dialog = Open();
    Pick(dialog.lstDescAvail, "No sample used");
    dialog.cmdAccept.UserClick();
    Pick(dialog.cboSubst, "ethanol");
    EXPECT_EQ(dialog.cmdAccept.Caption(), "Accept");
    dialog.cmdAccept.UserClick();
    EXPECT_EQ(Samples(), "1 xx 0\n");
    ASSERT_EQ(ethanol->recS.Count(), 1U);
    EXPECT_EQ(ethanol->recS.Item(1)->SMPNM, "1");
}

} // namespace vexora

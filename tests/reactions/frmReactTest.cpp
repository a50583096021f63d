#include "reactions/frmReact.h"

#include "reactions/ReactionFixture.h"
#include "records/Decomposition.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora::test {
namespace {

class frmReactTest : public ReactionFixture {
protected:
    void Refused(frmReact& form, const std::string& text, const ui::Control& control) {
        desktop.Expect(text);
        form.cmdAccept.UserClick();
        EXPECT_TRUE(control.HasFocus()) << text;
        EXPECT_TRUE(form.IsVisible()) << text;
    }
};

TEST_F(frmReactTest, ChecksComeInOrderAndPutTheFocusOnTheField) {
    AddCombustion();
    const std::string before = Lines();
    auto& form = Begin();
    Refused(form, "Select the reaction class", form.cboReactClass);
    Pick(form.cboReactClass, "Combustion with oxygen");
    Refused(form, "Select 1st reaction participant", form.cmbComp(0));
    Put(form, 1, "benzoic acid", "");
    Put(form, 3, "oxygen", "x");
    Refused(form, "Enter coefficient for 2 participant", form.txtCoeff(1));
    form.txtCoeff(1).UserReplaceAll("0");
    Refused(form, "Participant 2 has an invalid coefficient", form.txtCoeff(1));
    form.txtCoeff(1).UserReplaceAll("\xE2\x88\x92"
                                    "1");
    Refused(form, "Participant 4 has an invalid coefficient", form.txtCoeff(3));
    form.txtCoeff(3).UserReplaceAll("-7,5");
    Put(form, 5, "water", "3");
    Put(form, 7, "carbon dioxide", "6");
    Pick(form.cboSample(5), "None");
    Refused(form, "No samples specified\nAt least one participant must have a sample number",
            form.cboSample(1));
    Pick(form.cboSample(1), "2");
    globals.CurrentR->FindL("124389")->Formula = "c";
    Refused(form, "Participant formula is misisng", form.cmbComp(7));
    globals.CurrentR->FindL("124389")->Formula = "CO2";
    Refused(form, "Reaction is not balanced", form.cmdEquate);
    form.txtCoeff(7).UserReplaceAll("7");
    // In another order it is the same reaction.
    Refused(form, "This reaction has already been entered", form.cboReactClass);
    EXPECT_EQ(Lines(), before);
    EXPECT_TRUE(globals.Saved);
    Pick(form.cmbSolvent, "water");
    form.cmdAccept.UserClick();
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(Lines(), before + "^Q CMO 65850 124389 7732185 7782447 N N & & & & 7732185 &\n"
                                "^q -1 7 3 -7.5 & & & & 2 & & & & & & &\n");
    EXPECT_FALSE(globals.Saved);
    EXPECT_EQ(globals.CurrentQ->Equation(),
              "benzoic acid + 7.5 oxygen = 7 carbon dioxide + 3 water");
}

TEST_F(frmReactTest, TheEquationIsShownAsItIsTyped) {
    auto& form = Begin();
    Put(form, 0, "benzoic acid", "-1");
    EXPECT_EQ(form.lblEquation.Caption(), "C₇H₆O₂ = ");
    Put(form, 1, "oxygen", "");
    EXPECT_EQ(form.lblEquation.Caption(), "C₇H₆O₂ + O₂ = ");
    Put(form, 2, "carbon dioxide", "8");
    EXPECT_EQ(form.lblEquation.Caption(), "C₇H₆O₂ + O₂ = 8 CO₂");
    EXPECT_EQ(form.lblEquation.ToolTip(), "benzoic acid + oxygen = 8 carbon dioxide");
    EXPECT_EQ(form.lblSurplus.Caption(),
              "Not balanced. More in the reactants: H 6; in the products: C 1, O 14");
    Pick(form.cmbComp(1), "None");
    EXPECT_EQ(form.txtCoeff(1).Text() + form.cboSample(1).Chosen(), "None");
    AddCompound("999991", "humus", "");
    form.cmdCancel.UserClick();
    auto& second = Begin();
    Put(second, 0, "humus", "-1");
    EXPECT_EQ(second.lblEquation.Caption(), "humus = ");
    EXPECT_EQ(second.lblSurplus.Caption(), "The formula of humus is not known");
    desktop.Expect("Participant formula is misisng");
    second.cmdEquate.UserClick();
}

struct Balancing {
    std::string compounds, coefficients, message, rows;
};

TEST_F(frmReactTest, BalancingEndsAsTheEquationAllows) {
    AddCompound("630080", "carbon monoxide", "CO");
    AddCompound("7440440", "carbon", "C");
    AddCompound("7727379", "nitrogen", "N2");
    const std::string byHand = "Verify the reaction participants or \n"
                               "Enter the stoichiometric coefficients manually.\n"
                               "(Reactants = negative numbers; Products = positive numbers) | "
                               "Unable to Balance Reaction";
    const Balancing cases[] = {
        {"benzoic acid,nitrogen,oxygen,carbon dioxide,water", ",,,,", "",
         "benzoic acid -1 None|oxygen -7.5 None|carbon dioxide 7 None|water 3 1|"},
        {"benzoic acid,oxygen,carbon dioxide,water", ",,3.5,x", "",
         "benzoic acid -0.5 None|oxygen -3.75 None|carbon dioxide 3.5 None|"
         "water 1.5 1|"},
        {"carbon,oxygen,carbon dioxide", "-1.0,-1.00,1", "",
         "carbon -1.0 None|oxygen -1.00 None|carbon dioxide 1 None|"},
        {"benzoic acid,oxygen,carbon dioxide", ",,",
         "Unable to balance\nTry to add or eliminate a participant",
         "benzoic acid  None|oxygen  None|carbon dioxide  None|"},
        {"carbon,oxygen,carbon monoxide,carbon dioxide", ",,,",
         "The equation is ambiguous\n" + byHand,
         "carbon  None|oxygen  None|carbon monoxide  None|"
         "carbon dioxide  None|"},
        {"carbon", "", byHand, "carbon  None|"}};
    for (const Balancing& one : cases) {
        forms.DropClosed();
        auto& form = Begin();
        const auto coefficients = Split(one.coefficients, ',');
        int n = 0;
        for (const std::string& compound : Split(one.compounds, ',')) {
            Put(form, n, compound, coefficients[static_cast<std::size_t>(n)]);
            ++n;
        }
        if (!one.message.empty()) desktop.Expect(one.message);
        form.cmdEquate.UserClick();
        EXPECT_EQ(Rows(form), one.rows);
        form.cmdCancel.UserClick();
    }
}

TEST_F(frmReactTest, CombustionIsCompletedAroundWhatIsThere) {
    AddCompound("75003", "chloroethane", "C2H5Cl");
    AddCompound("64197", "acetic acid", "C2H4O2");
    auto& form = Begin();
    EXPECT_FALSE(form.cmdComplete.Enabled());
    Pick(form.cboReactClass, "Combustion with oxygen");
    desktop.Expect("Select 1st reaction participant");
    form.cmdComplete.UserClick();
    Put(form, 0, "chloroethane", "-2");
    Put(form, 1, "water", "7");
    Put(form, 3, "oxygen", "-5");
    form.cmdComplete.UserClick();
    EXPECT_EQ(Rows(form), "chloroethane -2 None|oxygen -5 None|hydrogen chloride  None|"
                          "water 7 1|carbon dioxide  None|");
    EXPECT_EQ(globals.CurrentR->FindL("7647010")->Formula, "ClH");
    form.cmdComplete.UserClick(); // once is enough
    EXPECT_EQ(form.cmbComp(5).Chosen(), "None");
    // No room for the oxygen that has to come second, and for none of the products.
    for (int n = 1; n < 8; ++n)
        Put(form, n, n == 4 ? "None" : "acetic acid", "");
    Pick(form.cmbComp(4), "acetic acid");
    const std::string full = Rows(form);
    desktop.Expect("No free slot for the products");
    form.cmdComplete.UserClick();
    EXPECT_EQ(Rows(form), full);
    Pick(form.cmbComp(7), "None");
    desktop.Expect("No free slot for the products");
    form.cmdComplete.UserClick();
    Pick(form.cboReactClass, "Combustion with other elements or compounds");
    EXPECT_FALSE(form.cmdComplete.Enabled());
    // Given up, what was made on the way goes.
    form.cmdCancel.UserClick();
    EXPECT_EQ(globals.CurrentR->FindL("7647010"), nullptr);
    EXPECT_NE(globals.CurrentR->FindL("124389"), nullptr);
    EXPECT_TRUE(globals.Saved && !globals.DialogAccepted);
}

/// Not sorted, of a sample and a compound that the document does not have.
TEST_F(frmReactTest, ALookChangesNothing) {
    const auto odd = AddReaction("^Q ZZZ 7782447 65850 7732185 124389 N N & & & & & 111",
                                 "^q -7.50 -1 3 7 & & & & & 9 01 & & & & &");
    const std::string before = Lines();
    auto& form = Edit(odd);
    EXPECT_EQ(form.cboReactClass.Chosen() + " " + form.cmbInert.Chosen(), "ZZZ 111");
    EXPECT_EQ(Rows(form), "oxygen -7.50 None|benzoic acid -1 None|water 3 1|carbon "
                          "dioxide 7 None|");
    form.cmdAccept.UserClick();
    EXPECT_EQ(Lines(), before);
    EXPECT_TRUE(globals.Saved && globals.DialogAccepted);
    EXPECT_EQ(odd->Reaction, "7.50 oxygen + benzoic acid = 3 water + 7 carbon dioxide");
    // What is changed takes its order, and leaves what was not touched.
    Pick(Edit(odd).cmbSolvent, "water");
    forms.Get<frmReact>("frmReact").cmdAccept.UserClick();
    EXPECT_EQ(Lines(), "^Q ZZZ 65850 124389 7732185 7782447 N N & & & & 7732185 111\n"
                       "^q -1 7 3 -7.50 & & & & 9 & 01 & & & & &\n");
    Edit(odd).txtCoeff(0).UserReplaceAll("-5");
    forms.Get<frmReact>("frmReact").cmdCancel.UserClick();
    EXPECT_EQ(odd->Coeff(1), "-1");
    EXPECT_FALSE(globals.DialogAccepted);
}

TEST_F(frmReactTest, SetsGoAlongWithTheirReaction) {
    const auto reaction = AddReaction("^Q CMO 7782447 65850 7732185 124389 Y N & & & & & &",
                                      "^q -7.5 -1 3 7 & & & & & 1 & & & & & &");
    const std::string rest = " HR S S 1 G C L G & & & & & 1 & & & & & & & & & & & & & & "
                             "0 0 0 0 0 0 0 0 & & 298.15 101 298.15 101 -3226 & & &";
    AddValue(*reaction, "^C -7.5 -1 3 7 0 0 0 0" + rest);
    AddValue(*reaction, "^C -15 -2 6 14 0 0 0 0 U" + rest.substr(2));
    const std::string before = Lines();
    auto& form = Edit(reaction);
    EXPECT_FALSE(form.cmbComp(0).Enabled() || form.cboSample(1).Enabled());
    form.txtCoeff(0).UserReplaceAll("");
    form.txtCoeff(1).UserReplaceAll("-3");
    form.cmdEquate.UserClick();
    desktop.Expect("Change the coefficients in all sets of this reaction?", ui::Answer::No);
    form.cmdAccept.UserClick();
    EXPECT_TRUE(form.IsVisible());
    EXPECT_EQ(Lines(), before);
    desktop.Expect("Change the coefficients in all sets of this reaction?", ui::Answer::Yes);
    form.cmdAccept.UserClick();
    // A set with coefficients of its own keeps them; the order is that of the reaction.
    const std::string sorted = " S S 1 C G L G & & & & 1 & & & & & & & & & & & & & & & 0 0 0 0 0 0 "
                               "0 0 & & 298.15 101 298.15 101 -3226 & & &\n";
    const std::string header = "^A & O P & XXX YYY 1/15/2026 &\n";
    EXPECT_EQ(Lines(), "^Q CMO 65850 124389 7732185 7782447 Y N & & & & & &\n" + header +
                           "^C -3 21 9 -22.5 0 0 0 0 HR" + sorted + header +
                           "^C -2 14 6 -15 0 0 0 0 UR" + sorted);
}

TEST_F(frmReactTest, SamplesOfAReactionWithDataAreOpenWhileASetIsEdited) {
    const auto reaction = AddCombustion();
    AddValue(*reaction, "^C -1 7 3 -7.5 0 0 0 0 HR S S 1 C G L G & & & & 1");
    globals.EditChanged = true;
    auto& form = Edit(reaction);
    EXPECT_FALSE(form.cmbComp(0).Enabled());
    Pick(form.cboSample(0), "2");
    form.cmdAccept.UserClick();
    globals.EditChanged = false;
    EXPECT_EQ(reaction->SMPNM(1), "2");
    EXPECT_FALSE(globals.Saved);
}

/// A hydrate of methane with two samples of other contents.
std::shared_ptr<clsComplex> AddHydrate() {
    auto complex = std::make_shared<clsComplex>();
    complex->SetNo(1);
    complex->CType = "Gas Hydrate";
    complex->Components = {{"74828", "", "Gas", {}}, {"7732185", "", "Water", {}}};
    complex->AttachTo(*Globals().CurrentR);
    for (const auto& [gas, water] : {std::pair("0.148", "0.852"), std::pair("1", "5.75")}) {
        auto sample = std::make_shared<clsComplexSample>();
        sample->SetNo(complex->NextSampleNumber());
        sample->Components = {{"74828", {gas, "n"}, ""}, {"7732185", {water, "n"}, "1"}};
        sample->AttachTo(*complex);
    }
    return complex;
}

TEST_F(frmReactTest, AComplexTakesPartAsItsSampleIsComposed) {
    AddCompound("74828", "methane", "CH4");
    const auto complex = AddHydrate();
    const auto sample = complex->FindS(1);
    auto reaction = DecompositionOf(*sample);
    ASSERT_TRUE(reaction);
    EXPECT_EQ(reaction->Equation(), "Gas Hydrate (methane + water) = 0.148 methane + 0.852 water");
    globals.OpenForms.clear();
    sample->SetMe();
    auto& form = Begin();
    EXPECT_EQ(form.cboReactClass.Chosen(), ReactionType("OTH"));
    EXPECT_EQ(Rows(form), "Gas Hydrate (methane + water) -1 1|methane 0.148 None|water 0.852 1|");
    EXPECT_EQ(form.lblSurplus.Caption(), "Balanced");
    // Another sample is of another formula.
    Pick(form.cboSample(0), "2");
    EXPECT_EQ(form.lblSurplus.Caption(),
              "Not balanced. More in the reactants: C 0.852, H 13.204, O 4.898");
    Refused(form, "Reaction is not balanced", form.cmdEquate);
    form.cmdEquate.UserClick();
    form.cmdAccept.UserClick();
    EXPECT_EQ(Lines(), "^Q OTH -1 74828 7732185 999999994 N N & & & & & &\n"
                       "^q -1 1 5.75 & & & & & 2 & 1 & & & & &\n");
    EXPECT_TRUE(IsUsedInReactions(*complex->FindS(2)) && !IsUsedInReactions(*sample));
    // No composition, no decomposition.
    sample->Components.back().content.kind = "X";
    EXPECT_EQ(DecompositionOf(*sample), nullptr);
    sample->Components.back().content = {};
    EXPECT_EQ(DecompositionOf(*sample), nullptr);
    sample->Components.clear();
    EXPECT_EQ(DecompositionOf(*sample), nullptr);
}

} // namespace
} // namespace vexora::test

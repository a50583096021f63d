#include "entry/frmProperty.h"

#include "chem/clsProperty.h"
#include "entry/PhaseRules.h"
#include "entry/PropertyContext.h"
#include "entry/frmKey.h"
#include "reference/UnitText.h"
#include "support/DataDialogFixture.h"

#include <map>

namespace vexora::test {
namespace {

struct EntryForm : ui::Form {
    EntryForm() : Form("frmSingle", "Entry") {}
    void Unload() override { CloseForm(); }
};

class frmPropertyTest : public DataDialogFixture {
protected:
    frmPropertyTest() { forms.Register<EntryForm>("frmSingle"); }

    frmProperty& OpenOn(const std::string& group, const std::string& property) {
        auto& form = Open<frmProperty>("frmProperty");
        Pick(form.lstPropGroup, group);
        Pick(form.lstProp, property);
        return form;
    }
    frmProperty& CriticalPressure() {
        auto& form = OpenOn("Critical properties", "Critical pressure");
        Pick(form.lstConv, "MPa");
        Pick(form.lstMethod, "Calculated from the authors' equation of state");
        Pick(form.lstExpPurpose, "Principal objective of the work");
        return form;
    }
    std::string InForce() const {
        const clsProperty& head = *globals.CurrentProperty;
        return globals.PropertyCode + "|" + globals.PropertyUnit + "|" + globals.PropertyText +
               "|" + globals.ExpPurpose + "|" + globals.PropertyFlags + "|" +
               globals.CurrentMethod->Method + "|" + globals.CurrentMethod->sMethod + "|" +
               globals.KeyRest + "|" + head.ConversionCode + "|" + head.Name;
    }
    /// What the lists hold for the property that is chosen.
    void ExpectOffer(const frmProperty& form) const {
        const std::string& name = form.lstProp.Chosen();
        const auto row = FindPropertyByName(name, globals.DataContext);
        ASSERT_TRUE(row) << name;
        EXPECT_GE(form.lstConv.Count(), row->Unit == "1" ? 2 : 3) << name;
        EXPECT_EQ(form.lstConv.Item(0), row->Unit == "1" ? "Dimensionless" : row->Unit) << name;
        EXPECT_EQ(form.lstConv.Item(form.lstConv.Count() - 1), AllOtherUnits);
        for (int i = 0; i + 1 < form.lstConv.Count(); ++i) { // a code reads back as its unit
            const std::string& unit = form.lstConv.Item(i);
            EXPECT_EQ(UnitText(row->Unit, UnitCode(*row, unit), 0), unit == "kJ/kg" ? "J/g" : unit);
        }
        EXPECT_GE(form.lstMethod.Count(), 5) << name; // two of them are "not stated" and "other"
        EXPECT_EQ(form.lstMethod.Item(form.lstMethod.Count() - 1), other);
        EXPECT_GE(form.lstNote.Count(), 4) << name;
        if (globals.DataContext != "Pure") return;
        EXPECT_FALSE(OfferPhases(row->Code, 0, "").Phase1.empty()) << name;
        EXPECT_TRUE(form.cmdSingle.Visible() || form.cmdFixed.Visible() || form.cmdOne.Visible() ||
                    form.cmdTwo.Visible())
            << name;
    }
    static constexpr const char* other = "Other experimental method (please, describe below)";
};

TEST_F(frmPropertyTest, ChecksComeInOrderAndPutTheFocusOnTheField) {
    auto& form = Open<frmProperty>("frmProperty");
    const auto refused = [&](const std::string& text, const ui::Control& control) {
        desktop.Expect(text);
        form.cmdSingle.UserClick();
        EXPECT_TRUE(control.HasFocus()) << text;
        EXPECT_TRUE(form.IsVisible());
    };
    refused("Please select the property", form.lstProp);
    Pick(form.lstPropGroup, "Critical properties");
    refused("Please select the property", form.lstProp);
    Pick(form.lstProp, "Critical temperature");
    refused("Please select original units of the property", form.lstConv);
    Pick(form.lstConv, "K");
    refused("Please select the experiment purpose", form.lstExpPurpose);
    Pick(form.lstExpPurpose, "Principal objective of the work");
    refused("Select the method of measurement", form.lstMethod);
    Pick(form.lstMethod, other);
    refused("Please describe the method of measurement in comment", form.txtMethod);
    form.txtMethod.UserReplaceAll("wire bridge");
    form.txtFactor.UserReplaceAll("-2");
    refused("The uncertainty factor is a number greater than 0", form.txtFactor);
    form.txtFactor.UserReplaceAll(",5");
    form.cmdSingle.UserClick();
    EXPECT_EQ(InForce(), "TC|S|K|B|0|OTHER|wire bridge|:|S|Critical temperature, K");
    EXPECT_EQ(globals.CurrentMethod->f, 0.5);
    EXPECT_NE(forms.Find("frmSingle"), nullptr);
    EXPECT_EQ(forms.Find("frmProperty"), nullptr);
    EXPECT_EQ(globals.OpenForms, std::vector<std::string>{"frmMain"});
}

/// Every property of the table is met on a walk through the groups of its contexts, with a unit
/// list, methods and statements.
TEST_F(frmPropertyTest, EveryGroupOffersUnitsAndMethodsOfItsProperties) {
    std::map<std::string, std::size_t> met; // names in each context
    for (const char* context : {"Pure", "Complex", "Bin", "Tern", "React"}) {
        globals.DataContext = context;
        auto& form = Open<frmProperty>("frmProperty");
        EXPECT_EQ(form.lstPropGroup.Chosen(), "SELECT PROPERTY GROUP");
        for (int group = 1; group < form.lstPropGroup.Count(); ++group) {
            form.lstPropGroup.UserChoose(group);
            EXPECT_EQ(form.lstProp.Chosen(), "SELECT THE PROPERTY");
            for (int i = 1; i < form.lstProp.Count(); ++i, ++met[context]) {
                form.lstProp.UserChoose(i);
                ExpectOffer(form);
            }
        }
        form.cmdFinish.UserClick();
    }
    const auto rows = [this](const std::string& condition) {
        return static_cast<std::size_t>(
            globals.Databases.LocalDb
                .Query("select count(*) as n from Properties where " + condition)
                .Integer("n"));
    };
    const std::string pure = "(Fixed<>0 or Single<>0 or One<>0 or Two<>0)";
    const std::map<std::string, std::size_t> expected = {
        {"Pure", rows(pure)},
        {"Complex", rows(pure)},
        {"Bin", rows("(MixZ<>0 or MixV<>0) and Bin<>0")},
        {"Tern", rows("(MixZ<>0 or MixV<>0) and Tern<>0")},
        {"React", rows("REACT<>0")}};
    EXPECT_EQ(met, expected);
}

TEST_F(frmPropertyTest, EntriesFollowThePropertyAndDeadOnesSayWhy) {
    auto& form = OpenOn("Critical properties", "Critical temperature");
    EXPECT_TRUE(form.cmdSingle.IsUsable());
    EXPECT_FALSE(form.cmdFixed.IsShown());
    EXPECT_TRUE(form.cmdOK.IsUsable());
    Pick(form.lstPropGroup, "Volumetric properties");
    Pick(form.lstProp, "Density");
    EXPECT_TRUE(form.cmdFixed.IsUsable());
    EXPECT_TRUE(form.cmdTwo.IsShown());
    EXPECT_TRUE(form.cmdOne.IsUsable());
    EXPECT_TRUE(form.cmdTwo.IsUsable());
    EXPECT_FALSE(form.cmdThree.IsUsable());
    EXPECT_FALSE(form.cmdOK.IsUsable());
}

TEST_F(frmPropertyTest, EntriesOfAContextWithoutFormsAreDead) {
    for (const auto& [context, count] : {std::pair("Pure", 4), std::pair("Complex", 4),
                                         std::pair("React", 4), std::pair("Bio", 0)}) {
        globals.DataContext = context;
        auto& form = Open<frmProperty>("frmProperty");
        int live = 0;
        for (const ui::CommandButton* button :
             {&form.cmdSingle, &form.cmdFixed, &form.cmdOne, &form.cmdTwo, &form.cmdThree})
            live += button->IsUsable() ? 1 : 0;
        EXPECT_EQ(live, count) << context;
        form.cmdFinish.UserClick();
    }
}

TEST_F(frmPropertyTest, OwnFactorBecomesAUnitOfTheList) {
    auto& form = CriticalPressure();
    const std::string prompt = "Property value in the original units multiplied by a conversion "
                               "factor is property value in kPa\n(Original Value) * (Conversion "
                               "Factor) = (Converted Value) in kPa";
    for (const char* wrong : {"0", "-1", "ten", "Enter the Conversion Factor here"}) {
        desktop.ExpectInput(prompt, wrong);
        desktop.Expect("Invalid conversion factor");
        Pick(form.lstConv, AllOtherUnits);
        EXPECT_EQ(form.lstConv.Chosen(), "MPa");
    }
    for (const auto& given : {std::optional<std::string>(), std::optional<std::string>(" ")}) {
        desktop.ExpectInput(prompt, given);
        Pick(form.lstConv, AllOtherUnits);
        EXPECT_EQ(form.lstConv.Chosen(), "MPa");
    }
    const int before = form.lstConv.Count();
    for (const char* factor : {"3", "2,50"}) {
        desktop.ExpectInput(prompt, factor);
        Pick(form.lstConv, AllOtherUnits);
    }
    EXPECT_EQ(form.lstConv.Chosen(), "2.5* kPa");
    EXPECT_EQ(form.lstConv.Count(), before + 1);
    form.cmdOK.UserClick();
    EXPECT_EQ(InForce(), "PC|*|2.5* kPa|B|0|CALCEOS||:|*|Critical pressure, kPa");
    EXPECT_EQ(globals.CurrentMethod->Factor, 2.5);
    EXPECT_EQ(globals.CurrentProperty->Factor, 2.5);
}

TEST_F(frmPropertyTest, ValuesInSystemUnitsNeedNoUnit) {
    auto& form = OpenOn("Critical properties", "Critical pressure");
    Pick(form.lstMethod, "The method is not stated in the document");
    Pick(form.lstExpPurpose, "Principal objective of the work");
    form.optSystem.UserClick();
    form.cmdSingle.UserClick();
    EXPECT_EQ(InForce(), "PC|S|kPa|B|0|UNKNOWN||:|S|Critical pressure, kPa");
    EXPECT_FALSE(globals.OriginalUnits);
}

TEST_F(frmPropertyTest, StatementsBecomeBitsAndLetters) {
    auto& form = OpenOn("Phase transitions", "Enthalpy of vaporization or sublimation");
    Pick(form.lstConv, "kJ/mol");
    form.lstMethod.UserChoose(0);
    Pick(form.lstExpPurpose, "Principal objective of the work");
    EXPECT_EQ(form.lstNote.Find("The compiler recommends rejection of this data"), -1);
    for (const int i : {0, 2, 4})
        form.lstNote.UserSelect(i, true);
    form.cmdSingle.UserClick();
    EXPECT_EQ(globals.PropertyFlags, "9");
    EXPECT_EQ(globals.KeyRest, ":H:");
}

TEST_F(frmPropertyTest, DetailsTickTagsAndLeaveTheOthers) {
    auto& form =
        OpenOn("Vapor pressure, boiling temperature, azeotropes", "Vapor or sublimation pressure");
    EXPECT_FALSE(form.cmdDetails.IsUsable());
    for (int i = 0; i < form.lstMethod.Count() && !form.cmdDetails.IsUsable(); ++i)
        form.lstMethod.UserChoose(i);
    ASSERT_TRUE(form.cmdDetails.IsUsable());
    const auto tick = [](bool first) {
        return [first](ui::Form& shown) {
            auto& key = dynamic_cast<frmKey&>(shown);
            EXPECT_EQ(key.lstKey.Selected(0), !first);
            key.lstKey.UserSelect(0, first);
            key.cmdAccept.UserClick();
        };
    };
    desktop.OnModal(tick(true));
    form.cmdDetails.UserClick();
    const std::string ticked = globals.KeyRest;
    EXPECT_GT(ticked.size(), 2u);
    globals.KeyRest = ":UNKNOWN TAG" + ticked;
    desktop.OnModal(tick(false));
    form.cmdDetails.UserClick();
    EXPECT_EQ(globals.KeyRest, ":UNKNOWN TAG:");
    desktop.OnModal([](ui::Form& shown) {
        dynamic_cast<frmKey&>(shown).lstKey.UserSelect(0, true);
        dynamic_cast<frmKey&>(shown).cmdCancel.UserClick();
    });
    form.cmdDetails.UserClick();
    EXPECT_EQ(globals.KeyRest, ":UNKNOWN TAG:");
}

TEST_F(frmPropertyTest, MethodWithoutStatementsClosesTheDetailsAtOnce) {
    globals.CurrentMethod->Method = "OTHER";
    globals.KeyRest.clear();
    forms.Get("frmKey").ShowModal();
    EXPECT_EQ(forms.Find("frmKey"), nullptr);
    EXPECT_EQ(globals.KeyRest, ":");
}

class frmPropertyReviewTest : public frmPropertyTest {
protected:
    frmPropertyReviewTest() {
        CriticalPressure().cmdSingle.UserClick();
        forms.DropClosed();
        globals.KeyRest = ":future tag:m:";
        globals.PropertyFlags = "17";
    }
    void Review(std::function<void(frmProperty&)> step) {
        desktop.OnModal([step](ui::Form& form) { step(dynamic_cast<frmProperty&>(form)); });
        forms.Get("frmProperty").ShowModal();
        forms.DropClosed();
    }
    const std::string unchanged =
        "PC|MegaPa|MPa|B|17|CALCEOS||:future tag:m:|MegaPa|Critical pressure, kPa";
};

TEST_F(frmPropertyReviewTest, AcceptingAnUnchangedChoiceChangesNothing) {
    Review([](frmProperty& form) {
        EXPECT_EQ(form.lstProp.Chosen(), "Critical pressure");
        EXPECT_EQ(form.lstConv.Chosen(), "MPa");
        EXPECT_TRUE(form.lstNote.Selected(0));
        EXPECT_TRUE(form.lstNote.Selected(3));
        EXPECT_FALSE(form.cmdSingle.IsShown());
        form.cmdOK.UserClick();
    });
    EXPECT_EQ(InForce(), unchanged);
    EXPECT_EQ(globals.OpenForms, std::vector<std::string>{"frmMain"});
}

TEST_F(frmPropertyReviewTest, AnotherMethodDropsTheTagsAndCancelBringsThemBack) {
    const auto change = [](frmProperty& form) { form.lstMethod.UserChoose(0); };
    Review([&](frmProperty& form) {
        change(form);
        form.cmdFinish.UserClick();
    });
    EXPECT_EQ(InForce(), unchanged);
    Review([&](frmProperty& form) {
        change(form);
        form.lstNote.UserSelect(3, false);
        form.cmdOK.UserClick();
    });
    EXPECT_EQ(InForce(), "PC|MegaPa|MPa|B|17|VISOBS||:|MegaPa|Critical pressure, kPa");
}

TEST_F(frmPropertyReviewTest, OffersWhatTheEntryDialogCanTake) {
    globals.VariableCount = 1;
    Review([](frmProperty& form) {
        Pick(form.lstPropGroup, "Critical properties");
        EXPECT_EQ(form.lstProp.Count(), 2); // only the one it came with
        Pick(form.lstPropGroup, "Volumetric properties");
        EXPECT_GE(form.lstProp.Find("Density"), 0);
        EXPECT_EQ(form.lstProp.Find("Compressibility factor"), -1);
        form.cmdFinish.UserClick();
    });
}

TEST_F(frmPropertyReviewTest, MethodThatNoTableKnowsStaysUnderItsCode) {
    globals.CurrentMethod->Method = "OLDCODE";
    Review([](frmProperty& form) {
        EXPECT_EQ(form.lstMethod.Chosen(), "OLDCODE");
        form.cmdOK.UserClick();
    });
    EXPECT_EQ(globals.CurrentMethod->Method, "OLDCODE");
    EXPECT_EQ(globals.KeyRest, ":future tag:m:");
}

TEST_F(frmPropertyReviewTest, UnitThatNoTableKnowsIsNeverReplacedInSilence) {
    globals.PropertyUnit = "furlong";
    Review([this](frmProperty& form) {
        EXPECT_EQ(form.lstConv.Index(), -1);
        desktop.Expect("Please select original units of the property");
        form.cmdOK.UserClick();
        form.cmdFinish.UserClick();
    });
    EXPECT_EQ(globals.PropertyUnit, "furlong");
}

/// The forms that take data of mixtures, as doubles.
class frmPropertyOfMixtureTest : public frmPropertyTest {
protected:
    frmPropertyOfMixtureTest() {
        for (const std::string name : {"frmMixtSingle", "frmMixtVar"})
            forms.Register(name, [name] { return std::make_unique<ui::Form>(name, "Entry"); });
        globals.DataContext = "Bin";
    }
    static std::string Shown(const frmProperty& form) {
        std::string names;
        for (const ui::CommandButton* button :
             {&form.cmdSingle, &form.cmdFixed, &form.cmdOne, &form.cmdTwo, &form.cmdThree})
            if (button->IsUsable()) names += button->Caption() + "|";
        return names;
    }
};

TEST_F(frmPropertyOfMixtureTest, EntriesFollowTheColumnsOfMixtures) {
    auto& form = Open<frmProperty>("frmProperty");
    const std::string all = "Single value|1-Variable data|2-Variable data|3-Variable data|";
    EXPECT_EQ(Shown(form), all);
    Pick(form.lstPropGroup, "Phase transitions");
    Pick(form.lstProp, "Eutectic temperature");
    EXPECT_EQ(Shown(form), "Single value|");
    Pick(form.lstPropGroup, "Composition at phase equilibrium");
    EXPECT_EQ(form.lstProp.Find("Mole fraction of component 3"), -1);
    Pick(form.lstProp, "Mole fraction of component 1");
    EXPECT_EQ(Shown(form), all); // a value at a stated temperature
    const std::string integrated =
        "The vapor composition in equilibrium with the liquid was calculated by integration of the "
        "Gibbs-Duhem equation";
    EXPECT_GE(form.lstNote.Find(integrated), 0);
    form.optSystem.UserClick();
    form.lstMethod.UserChoose(0);
    form.lstExpPurpose.UserChoose(1);
    form.cmdThree.UserClick();
    EXPECT_NE(forms.Find("frmMixtVar"), nullptr);
    EXPECT_EQ(globals.VariableCount, 3);
}

TEST_F(frmPropertyOfMixtureTest, AReviewKeepsTheKindOfEquilibrium) {
    auto& form = OpenOn("Phase transitions", "Liquid-liquid equilibrium temperature");
    Pick(form.lstConv, "C");
    form.lstMethod.UserChoose(0);
    form.lstExpPurpose.UserChoose(1);
    form.cmdOne.UserClick();
    forms.DropClosed();
    const std::string before = InForce();
    EXPECT_EQ(globals.CurrentMethod->Context, "lle");
    EXPECT_EQ(PropertyInForce().Property, "Liquid-liquid equilibrium temperature");
    desktop.OnModal([](ui::Form& shown) {
        auto& review = dynamic_cast<frmProperty&>(shown);
        EXPECT_EQ(review.lstProp.Chosen(), "Liquid-liquid equilibrium temperature");
        EXPECT_EQ(review.lstProp.Find("Eutectic temperature"), -1);
        review.cmdOK.UserClick();
    });
    ui::Form entry{"frmEntry", "Entry"};
    ui::TextBox comment{entry, "txtComment"};
    EXPECT_FALSE(ReviewProperty(comment));
    EXPECT_EQ(InForce(), before);
}

TEST_F(frmPropertyTest, AdvancedModeComesBackForTheNextProperty) {
    globals.AdvancedMode = true;
    auto& form = CriticalPressure();
    form.cmdOK.UserClick();
    EXPECT_FALSE(form.IsVisible());
    desktop.OnModal([](ui::Form& shown) {
        shown.UserClose(); // by its frame: it must live on behind the entry dialog
    });
    form.ShowModal();
    forms.Find("frmSingle")->Close();
    EXPECT_TRUE(form.IsVisible());
    EXPECT_TRUE(form.cmdSingle.IsShown());
    form.cmdFinish.UserClick();
    EXPECT_TRUE(globals.OpenForms.empty());
}

} // namespace
} // namespace vexora::test

#include "sources/frmRef.h"
#include "support/SourceFixture.h"

namespace vexora::test {

namespace {

class frmRefTest : public SourceFixture {
protected:
    frmRef& Open() {
        OpenInChain("frmMain", "frmRef");
        return forms.Get<frmRef>("frmRef");
    }
    void Identify(frmRef& ref, const char* year, const char* first, const char* second) {
        Set(ref.txtYear, year);
        Set(ref.txtAut1, first);
        Set(ref.txtAut2, second);
    }
};

TEST_F(frmRefTest, TheIdentificationIsCheckedInOrder) {
    frmRef& ref = Open();
    const struct {
        const char *year, *first, *second, *message, *focus;
    } samples[] = {
        {"1699", "w1", "p1", "Year between 1700 and the current year is allowed | Incorrect year",
         "txtYear"},
        {"2027", "w1", "p1", "Year between 1700 and the current year is allowed | Incorrect year",
         "txtYear"},
        {"2002", "w1", "p1", "Illegal character in the 1st author code | Error", "txtAut1"},
        {"2002", "", "p1", "Illegal character in the 2nd author code | Error", "txtAut2"},
        {"2002", "", "&", "First author code is required | Missing author code", "txtAut1"},
        {"2002", "zzz", "&",
         "Reference not found\nClick \"Create\" button to describe a new source", "cmdVerify"},
    };
    for (const auto& sample : samples) {
        Identify(ref, sample.year, sample.first, sample.second);
        desktop.Expect(sample.message);
        ref.cmdVerify.UserClick();
        EXPECT_EQ(ref.ActiveControl()->Name(), sample.focus) << sample.message;
    }
}

TEST_F(frmRefTest, AKnownSourceStartsADocumentThatIsNotNew) {
    globals.CompoundDb().Insert("SOURCE_REFINFO", {{"YEARPUB", 1999},
                                                   {"AUTHOR1", "zym"},
                                                   {"AUTHOR2", "abc"},
                                                   {"AUTHORN", 3},
                                                   {"SOURCE", "@New J.@, 7"},
                                                   {"TITLE", "On beer"}});
    frmRef& ref = Open();
    Identify(ref, "1999", "Zymurgist", "");
    ref.cmdVerify.UserClick();
    EXPECT_EQ(ref.lstSourceDoc.Chosen(), "SELECT A DOCUMENT HERE OR CLICK \"Create\" BUTTON");
    desktop.Expect("The source you have selected is new\nPlease create new document description");
    ref.cmdAccept.UserClick();
    Choose(ref.lstSourceDoc, "@New J.@, 7");
    EXPECT_EQ(ref.txtAut2.Text() + ref.txtSeqNo.Text(), "abc3");
    desktop.Expect("Select the source of information");
    ref.cmdAccept.UserClick();
    Choose(ref.cboSource, "Original document");
    ref.cmdAccept.UserClick();

    const auto source = globals.recR.Item(1);
    ASSERT_NE(source, nullptr);
    EXPECT_EQ(source->Source(), "1999 zym abc 3");
    EXPECT_EQ(source->SOURCEDOC + source->SSOURCE + source->TTITLE, "O@New J.@, 7On beer");
    EXPECT_FALSE(source->isNew);
    EXPECT_TRUE(globals.DialogAccepted);
    EXPECT_TRUE(globals.OpenForms.empty());
}

TEST_F(frmRefTest, ASourceThatWasAddedHereIsNewAndKeepsItsRow) {
    globals.CompoundDb().Insert("SOURCE_REFINFO", {{"YEARPUB", 1999},
                                                   {"AUTHOR1", "zym"},
                                                   {"AUTHORN", 3},
                                                   {"SOURCE", "Unpublished"},
                                                   {"TITLE", "On beer"},
                                                   {"NEW", true}});
    frmRef& ref = Open();
    Identify(ref, "1999", "zym", "");
    ref.cmdVerify.UserClick();
    Choose(ref.lstSourceDoc, "Unpublished");
    Choose(ref.cboSource, "Original document");
    ref.cmdAccept.UserClick();
    const auto source = globals.recR.Item(1);
    EXPECT_TRUE(source->isNew);
    source->TTITLE = "On ale";
    RegisterDocument();
    EXPECT_EQ(Registered(), "1999|zym||3|Unpublished|On ale|\n");
}

TEST_F(frmRefTest, CreateLeadsOnWithTheYearAndTheChainEndsEmpty) {
    for (const bool advanced : {false, true}) {
        globals.AdvancedMode = advanced;
        frmRef& ref = Open();
        Set(ref.txtYear, "2011");
        ref.cmdCreate.UserClick();
        EXPECT_EQ(forms.Get<frmDocument>("frmDocument").txtYear.Text(), "2011");
        EXPECT_TRUE(ref.IsOpen() && !ref.IsVisible());
        forms.Get<frmDocument>("frmDocument").cmdCalcel.UserClick();
        EXPECT_TRUE(ref.IsVisible());
        forms.DropClosed();
        ref.cmdCreate.UserClick();
        auto& document = forms.Get<frmDocument>("frmDocument");
        Choose(document.cboTypeDoc, "Personal communication");
        Set(document.txtTitle, "A title");
        GiveAuthors(document, {{"Ode", "A."}});
        document.cmdAccept.UserClick();
        EXPECT_TRUE(globals.OpenForms.empty());
        EXPECT_TRUE(forms.OpenForms().empty());
        EXPECT_EQ(globals.recR.Count(), 1U);
        globals.recR.Clear();
        form.tvwTree.Clear();
        forms.DropClosed();
    }
}

} // namespace

} // namespace vexora::test

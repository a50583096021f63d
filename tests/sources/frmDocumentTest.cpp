#include "support/SourceFixture.h"

namespace vexora::test {

namespace {

class frmDocumentTest : public SourceFixture {};

TEST_F(frmDocumentTest, ChecksRunFromTopToBottomAndPutTheFocus) {
    frmDocument& document = OpenNew();
    const auto refused = [&](const std::string& message, const std::string& focus) {
        desktop.Expect(message);
        document.cmdAccept.UserClick();
        ASSERT_NE(document.ActiveControl(), nullptr) << message;
        EXPECT_EQ(document.ActiveControl()->Name(), focus) << message;
        EXPECT_TRUE(document.IsOpen());
    };
    const std::string badYear =
        "Year between 1700 and the current year is allowed | Incorrect year";

    desktop.Expect("Select type of document before");
    document.txtSource.UserClick();
    refused("Select type of document", "cboTypeDoc");
    Choose(document.cboTypeDoc, "To be published");
    refused("Please enter the title", "txtTitle");
    Set(document.txtTitle, "   ");
    refused("Please enter the title", "txtTitle");
    Set(document.txtTitle, "A title");
    refused("Please enter source details", "txtSource");
    document.txtSource.UserClick();
    for (const char* year : {"", "1699", "2028", "2020a", "2020.5", "+202", "02020"}) {
        Set(document.txtYear, year);
        refused(badYear, "txtYear");
    }
    Set(document.txtYear, "2027");
    refused("Enter the author(s)", "txtAuthors");
    GiveAuthors(document, {{"123", ""}, {"Abel", ""}});
    refused("Illegal character in the 1st author name | Error", "txtAuthors");
    GiveAuthors(document, {{"Abel", ""}, {"123", ""}});
    refused("Illegal character in the 2nd author name | Error", "txtAuthors");
    GiveAuthors(document, {{"Ab", ""}});
    document.cmdAccept.UserClick();
    EXPECT_FALSE(document.IsOpen());
    EXPECT_EQ(globals.recR.Item(1)->Source(), "2027 ab & 1");
}

TEST_F(frmDocumentTest, PromptsEmptyOnEntryAndComeBack) {
    frmDocument& document = OpenNew();
    const std::pair<PromptedTextBox*, std::string> fields[] = {
        {&document.txtTitle, "ENTER OR PASTE TITLE HERE"},
        {&document.txtKeyWords, "ENTER KEYWORDS SEPARATED BY COMMAS OR SEMICOLONS"},
        {&document.txtAbstract, "ENTER OR PASTE ABSTRACT HERE"}};
    for (const auto& [field, prompt] : fields) {
        EXPECT_EQ(field->Text(), prompt);
        field->SetFocus();
        EXPECT_EQ(field->Text(), "");
        document.FocusTo(&document.txtYear);
        EXPECT_EQ(field->Text(), prompt);
        Set(*field, "x");
        field->SetFocus();
        EXPECT_EQ(field->Text(), "x");
    }
}

TEST_F(frmDocumentTest, TypedTextTurnsPlainBehindTheCaret) {
    frmDocument& document = OpenNew();
    Set(document.txtTitle, "pure");
    document.txtTitle.SetFocus();
    document.txtTitle.Select(0, 0);
    document.txtTitle.UserPaste("\u03b2, \u00df\r\nand ");
    EXPECT_EQ(document.txtTitle.Text(), "beta, ss and pure");
    EXPECT_EQ(document.txtTitle.Caret(), 13U);
}

TEST_F(frmDocumentTest, TypesWithoutDetailsPutTheirOwnText) {
    frmDocument& document = OpenNew();
    Choose(document.cboTypeDoc, "Personal communication");
    EXPECT_EQ(document.txtSource.Text(), "Personal communication");
    for (const char* type : {"Unpublished", "To be published"}) {
        Choose(document.cboTypeDoc, type);
        EXPECT_EQ(document.txtSource.Text(), "CLICK HERE TO ENTER SOURCE DETAILS");
        document.txtSource.UserClick();
        EXPECT_EQ(document.txtSource.Text(), type);
        Choose(document.cboTypeDoc, type);
        EXPECT_EQ(document.txtSource.Text(), type) << "picked again, nothing changed";
    }
}

TEST_F(frmDocumentTest, AcceptMakesTheSourceAndASaveRegistersIt) {
    frmDocument& document = OpenComplete();
    EXPECT_EQ(document.txtAuthors.Text(), "Zymurgist,Q.; Ab-Cd Ef,J.P.");
    Set(document.txtAbstract, "one\r\ntwo");
    Choose(document.lstSourceDoc, "Chemical Abstracts");
    document.cmdAccept.UserClick();

    const auto source = globals.recR.Item(1);
    ASSERT_NE(source, nullptr);
    EXPECT_EQ(source->Source(), "2011 zym abc 1");
    EXPECT_EQ(source->TYPDOC + source->SOURCEDOC, "CA");
    EXPECT_EQ(source->ABSTRACT, "one two");
    EXPECT_EQ(source->KEYWORDS, "");
    EXPECT_TRUE(source->isNew);
    EXPECT_EQ(source->recAuthor.Item(2)->AUTHSEQNO, "2");
    EXPECT_EQ(Registered(), "");
    RegisterDocument();
    EXPECT_EQ(Registered(), "2011|zym|abc|1|Unpublished|Density of heavy water|\n");
    EXPECT_EQ(Tree(), "2011 zym abc 1\n");
    EXPECT_TRUE(globals.DialogAccepted);
    EXPECT_FALSE(globals.Saved);
    EXPECT_TRUE(globals.OpenForms.empty());
}

TEST_F(frmDocumentTest, TheSeparatorOfTheRecordFileIsLeftOutAtOnce) {
    frmDocument& document = OpenComplete();
    Set(document.txtTitle, "Run #3");
    document.Source("@Rep@ #12@ Inst");
    document.cmdAccept.UserClick();
    EXPECT_EQ(globals.recR.Item(1)->SSOURCE, "@Rep@  12@ Inst");
    EXPECT_EQ(globals.recR.Item(1)->TTITLE, "Run  3");
    RegisterDocument();
    const auto row = globals.CompoundDb().Query("select * from SOURCE_REFINFO where NEW<>0");
    EXPECT_EQ(row.Text("SOURCE") + "/" + row.Text("TITLE"), "@Rep@  12@ Inst/Run  3");
}

TEST_F(frmDocumentTest, TheNextNumberIsOneAboveTheGreatest) {
    for (const char* number : {"9", "10"})
        globals.CompoundDb().Insert(
            "SOURCE_REFINFO",
            {{"YEARPUB", 2011}, {"AUTHOR1", "zym"}, {"AUTHOR2", "abc"}, {"AUTHORN", number}});
    OpenComplete().cmdAccept.UserClick();
    EXPECT_EQ(globals.recR.Item(1)->AUTHORN, "11");
    EXPECT_EQ(globals.recR.Item(1)->SOURCEDOC, "O");
}

TEST_F(frmDocumentTest, CancelLeavesNothingBehind) {
    OpenComplete().cmdCalcel.UserClick();
    EXPECT_TRUE(globals.recR.IsEmpty());
    EXPECT_EQ(Registered(), "");
    EXPECT_FALSE(globals.DialogAccepted);
    EXPECT_TRUE(globals.Saved);
    EXPECT_TRUE(globals.OpenForms.empty());
    forms.DropClosed();
    EXPECT_EQ(OpenNew().txtTitle.Text(), "ENTER OR PASTE TITLE HERE");
}

class EditedSource : public SourceFixture {
protected:
    void Edit(const std::function<void(frmDocument&)>& user) {
        globals.CurrentR = globals.recR.Item(1);
        globals.EditSource = true;
        desktop.ExpectModal("frmDocument",
                            [&](ui::Form& opened) { user(dynamic_cast<frmDocument&>(opened)); });
        forms.Get("frmDocument").ShowModal();
        globals.EditSource = false;
    }
    static std::string State(const clsR& source) {
        std::string text = source.Source() + "|" + source.TYPDOC + "|" + source.SOURCEDOC + "|" +
                           source.SSOURCE + "|" + source.TTITLE + "|" + source.KEYWORDS + "|" +
                           source.ABSTRACT;
        for (const auto& author : source.recAuthor)
            text += "|" + author->AUTHSEQNO + " " + author->FULLNM;
        return text;
    }
};

TEST_F(EditedSource, AcceptedUnchangedStaysTheSame) {
    frmDocument& fresh = OpenComplete();
    Set(fresh.txtKeyWords, "density; D2O");
    Choose(fresh.lstSourceDoc, "Other document");
    fresh.cmdAccept.UserClick();
    const std::string before = State(*globals.recR.Item(1));
    RegisterDocument();
    const std::string row = Registered();
    forms.DropClosed();
    Edit([](frmDocument& document) {
        EXPECT_EQ(document.cboTypeDoc.Chosen(), "Unpublished");
        EXPECT_EQ(document.txtSource.Text(), "Unpublished");
        EXPECT_EQ(document.txtAuthors.Text(), "Zymurgist,Q.; Ab-Cd Ef,J.P.");
        EXPECT_EQ(document.txtAbstract.Text(), "ENTER OR PASTE ABSTRACT HERE");
        document.cmdAccept.UserClick();
    });
    EXPECT_EQ(State(*globals.recR.Item(1)), before);
    RegisterDocument();
    EXPECT_EQ(Registered(), row);
}

TEST_F(EditedSource, AChangedIdentityMovesItsOwnRowOnceItIsSaved) {
    OpenComplete().cmdAccept.UserClick();
    RegisterDocument();
    const std::string row = Registered();
    forms.DropClosed();
    Edit([this](frmDocument& document) {
        Set(document.txtTitle, "Density of water");
        Set(document.txtYear, "2012");
        GiveAuthors(document, {{"Ode", "A. B."}});
        document.cmdAccept.UserClick();
    });
    EXPECT_EQ(State(*globals.recR.Item(1)),
              "2012 ode & 1|C|O|Unpublished|Density of water|||1 Ode,A.B.");
    EXPECT_EQ(Registered(), row);
    RegisterDocument();
    EXPECT_EQ(Registered(), "2012|ode||1|Unpublished|Density of water|\n");
    EXPECT_EQ(Tree(), "2012 ode & 1\n");
}

TEST_F(EditedSource, CancelKeepsTheRecordAndItsAuthors) {
    OpenComplete().cmdAccept.UserClick();
    const std::string before = State(*globals.recR.Item(1));
    forms.DropClosed();
    Edit([this](frmDocument& document) {
        Set(document.txtTitle, "Something else");
        GiveAuthors(document, {{"Ode", "A. B."}});
        EXPECT_EQ(document.txtAuthors.Text(), "Ode,A.B.");
        GiveAuthors(document, {});
        EXPECT_EQ(document.txtAuthors.Text(), "CLICK HERE TO ENTER THE AUTHORS");
        document.cmdCalcel.UserClick();
    });
    EXPECT_EQ(State(*globals.recR.Item(1)), before);
}

TEST_F(EditedSource, AKindOfSourceOutsideTheListIsKept) {
    OpenComplete().cmdAccept.UserClick();
    globals.recR.Item(1)->SOURCEDOC = "L";
    forms.DropClosed();
    Edit([](frmDocument& document) { document.cmdAccept.UserClick(); });
    EXPECT_EQ(globals.recR.Item(1)->SOURCEDOC, "L");
}

} // namespace

} // namespace vexora::test

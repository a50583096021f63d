#include "support/SourceFixture.h"

namespace vexora::test {

namespace {

using Entries = std::vector<std::pair<std::string, std::string>>;

struct Case {
    std::string type;
    std::string form;
    Entries entries;
    std::string text;
    /// The text alone tells which part a comma belongs to.
    bool parts = true;
};

const std::vector<Case> kCases{
    {"Journal article",
     "frmMakeJournal",
     {{"cboJournal", "J. Phys. Chem. Ref. Data"}, {"txtVolume", "31"}, {"txtPages", "387-535"}},
     "@J. Phys. Chem. Ref. Data@ $31$, 387-535"},
    {"Journal article",
     "frmMakeJournal",
     {{"cboJournal", "New J."}, {"txtVolume", "31"}, {"txtIssue", "2"}, {"txtPages", "7"}},
     "@New J.@ $31$(2), 7"},
    {"Journal article",
     "frmMakeJournal",
     {{"cboJournal", "New J."}, {"txtIssue", "2"}, {"txtPages", "7"}},
     "@New J.@ No. 2, 7"},
    {"Journal article",
     "frmMakeJournal",
     {{"cboJournal", "New J."}, {"txtPages", "7, 9"}},
     "@New J.@, 7, 9"},
    {"Submitted manuscript",
     "frmMakeJournal",
     {{"cboJournal", "New J."}, {"txtPages", "je000490a"}},
     "@New J.@, je000490a"},
    {"Book or portion of a book",
     "frmMakeBook",
     {{"txtTitle", "Water, a Matrix"},
      {"txtEdition", "2nd"},
      {"txtVolume", "1"},
      {"txtChapter", "3"},
      {"txtPages", "11-40"},
      {"txtEditor", "Franks, F."},
      {"cboPublisher", "Plenum, New York"}},
     "@Water, a Matrix@, 2nd ed., Vol. 1, Ch. 3, Pg. 11-40, Franks, F., Ed., Plenum, New York"},
    {"Book or portion of a book",
     "frmMakeBook",
     {{"txtTitle", "Ice"}, {"cboPublisher", "Academic Press"}},
     "@Ice@, Academic Press"},
    {"Report",
     "frmMakeReport",
     {{"txtName", "Release"}, {"txtNo", "R6-95"}, {"txtInst", "Board"}, {"txtLoc", "Bonn, DE"}},
     "@Release@ R6-95@ Board, Bonn, DE"},
    {"Patent",
     "frmMakePatent",
     {{"txtCountry", "US"}, {"txtNo", "4,123"}, {"txtOwner", "Works"}, {"txtDate", "2001"}},
     "US Patent 4,123, Works, 2001"},
    {"Patent",
     "frmMakePatent",
     {{"txtCountry", "US"}, {"txtNo", "4123"}, {"txtDate", "2001"}},
     "US Patent 4123, 2001"},
    {"Thesis/Dissertation",
     "frmMakeThesis",
     {{"txtDegree", "Ph.D."}, {"txtInst", "Univ. of Idaho"}, {"txtLoc", "Moscow, ID"}},
     "Ph.D. Thesis, Univ. of Idaho, Moscow, ID"},
    {"Conference proceedings",
     "frmMakeConf",
     {{"txtName", "Steam"}, {"txtLoc", "Prague"}, {"txtDate", "1995"}, {"txtPages", "5"}},
     "@Steam@, Prague, 1995, pp 5"},
    {"Conference proceedings",
     "frmMakeConf",
     {{"txtName", "Steam"}, {"txtDate", "June 1995"}},
     "@Steam@, June 1995"},
    {"Book or portion of a book",
     "frmMakeBook",
     {{"txtTitle", "Ice"},
      {"txtEdition", "3rd, revised"},
      {"txtVolume", "1, Part 2"},
      {"txtPages", "11, 15-17"},
      {"txtEditor", "Franks, F., Jr."},
      {"cboPublisher", "Foo ed., Paris"}},
     "@Ice@, 3rd, revised ed., Vol. 1, Part 2, Pg. 11, 15-17, Franks, F., Jr., Ed., Foo ed., "
     "Paris"},
    {"Book or portion of a book",
     "frmMakeBook",
     {{"txtTitle", "Ice"}, {"txtVolume", "B, Salts"}, {"cboPublisher", "Plenum"}},
     "@Ice@, Vol. B, Salts, Plenum",
     false},
    {"Report",
     "frmMakeReport",
     {{"txtName", "Release"}, {"txtNo", "R6"}, {"txtInst", "Board, Dept."}, {"txtLoc", "Bonn"}},
     "@Release@ R6@ Board, Dept., Bonn",
     false},
    {"Patent",
     "frmMakePatent",
     {{"txtCountry", "US"}, {"txtNo", "4, 123"}, {"txtOwner", "Works, Inc."}},
     "US Patent 4, 123, Works, Inc.",
     false},
    {"Thesis/Dissertation",
     "frmMakeThesis",
     {{"txtDegree", "Ph.D., D.Sc."}, {"txtInst", "Univ., Thesis Office"}, {"txtLoc", "Oslo"}},
     "Ph.D., D.Sc. Thesis, Univ., Thesis Office, Oslo",
     false},
    {"Journal article",
     "frmMakeJournal",
     {{"cboJournal", "New J., A"}, {"txtVolume", "3, 1"}, {"txtIssue", "2(a)"}, {"txtPages", "7"}},
     "@New J., A@ $3, 1$(2(a)), 7",
     false},
    {"Conference proceedings",
     "frmMakeConf",
     {{"txtName", "Steam, A"}, {"txtLoc", "Prague, Hall 3"}, {"txtPages", "5, 6"}},
     "@Steam, A@, Prague, Hall 3, pp 5, 6",
     false},
    {"Deposited document",
     "frmMakeDeposited",
     {{"txtNo", "12, A"}, {"txtInst", "Archive, Data"}, {"txtPages", "1, 2"}},
     "@Deposited Document@ 12, A Archive, Data, pp1, 2",
     false},
    {"Deposited document",
     "frmMakeDeposited",
     {{"txtNo", "1234-80"}, {"txtInst", "Archive of Data"}, {"txtPages", "12"}},
     "@Deposited Document@ 1234-80 Archive of Data, pp12"},
};

class MakeFormTest : public SourceFixture {
protected:
    void ExpectShown(ui::Form& opened, const Entries& entries) {
        for (const auto& [field, text] : entries)
            EXPECT_EQ(opened.Find(field)->Display(), text) << opened.Name() << "." << field;
    }
};

TEST_F(MakeFormTest, EachFormBuildsItsTextAndShowsItsPartsAgain) {
    for (const Case& sample : kCases) {
        frmDocument* document = &OpenNew();
        // Looks at the details and accepts them; the text is the same, whoever built it.
        const auto look = [&](const std::function<void(ui::Form&)>& user) {
            desktop.ExpectModal(sample.form, [&](ui::Form& opened) {
                user(opened);
                Click(opened, "cmdAccept");
            });
            document->txtSource.UserClick();
            EXPECT_EQ(document->txtSource.Text(), sample.text);
            forms.DropClosed();
        };
        Choose(document->cboTypeDoc, sample.type);
        look([&](ui::Form& opened) {
            for (const auto& [field, text] : sample.entries)
                Set(opened, field, text);
        });
        look([&](ui::Form& opened) { ExpectShown(opened, sample.entries); });
        document->Close();
        forms.DropClosed();
        document = &OpenNew();
        Choose(document->cboTypeDoc, sample.type);
        document->Source(sample.text);
        look([&](ui::Form& opened) {
            if (sample.parts) ExpectShown(opened, sample.entries);
        });
        document->Close();
        forms.DropClosed();
    }
}

TEST_F(MakeFormTest, ATextOfAnotherHandIsKeptUnlessAPartIsChanged) {
    frmDocument& document = OpenNew();
    Choose(document.cboTypeDoc, "Book or portion of a book");
    const std::string foreign = "Water, F. Franks (ed.), Plenum 1972";
    document.Source(foreign);
    for (const bool changed : {false, true}) {
        desktop.ExpectModal("frmMakeBook", [changed](ui::Form& opened) {
            if (changed) Set(opened, "txtTitle", "Water");
            if (changed) Set(opened, "cboPublisher", "Plenum");
            Click(opened, "cmdAccept");
        });
        document.txtSource.UserClick();
        EXPECT_EQ(document.txtSource.Text(), changed ? "@Water@, Plenum" : foreign);
        forms.DropClosed();
    }
}

TEST_F(MakeFormTest, MissingPartsAreToldInOrder) {
    struct Missing {
        std::string type, form;
        Entries messages; // the field that gets the focus, the message
    };
    const std::vector<Missing> samples{
        {"Book or portion of a book",
         "frmMakeBook",
         {{"txtTitle", "Enter book title"}, {"cboPublisher", "Select or type the publisher"}}},
        {"Journal article",
         "frmMakeJournal",
         {{"cboJournal", "Enter journal title"}, {"txtPages", "Enter page(s)"}}},
        {"Submitted manuscript",
         "frmMakeJournal",
         {{"cboJournal", "Enter journal title"}, {"txtPages", "Enter manucsript ID"}}},
        {"Report",
         "frmMakeReport",
         {{"txtName", "Enter report name"},
          {"txtNo", "Enter report No"},
          {"txtInst", "Enter institution name"}}},
        {"Patent",
         "frmMakePatent",
         {{"txtCountry", "Enter country"}, {"txtNo", "Enter patent No"}}},
        {"Thesis/Dissertation",
         "frmMakeThesis",
         {{"txtDegree", "Enter degree"}, {"txtInst", "Enter institution name"}}},
        {"Conference proceedings", "frmMakeConf", {{"txtName", "Enter conference name"}}},
        {"Deposited document",
         "frmMakeDeposited",
         {{"txtNo", "Enter document No"}, {"txtInst", "Enter institution name"}}},
    };
    frmDocument& document = OpenNew();
    for (const Missing& sample : samples) {
        Choose(document.cboTypeDoc, sample.type);
        desktop.ExpectModal(sample.form, [&](ui::Form& opened) {
            for (const auto& [field, message] : sample.messages) {
                desktop.Expect(message);
                Click(opened, "cmdAccept");
                EXPECT_EQ(opened.ActiveControl(), opened.Find(field)) << message;
                Set(opened, field, "x");
            }
            Click(opened, "cmdCancel");
        });
        document.txtSource.UserClick();
        EXPECT_EQ(document.txtSource.Text(), "CLICK HERE TO ENTER SOURCE DETAILS");
        forms.DropClosed();
    }
}

TEST_F(MakeFormTest, MarksOfTheSourceTextAreKeptOut) {
    frmDocument& document = OpenNew();
    Choose(document.cboTypeDoc, "Journal article");
    desktop.ExpectModal("frmMakeJournal", [](ui::Form& opened) {
        Set(opened, "cboJournal", "New @ J.");
        Set(opened, "txtVolume", "$3@1");
        EXPECT_EQ(opened.Find("txtVolume")->Display(), "31");
        Set(opened, "txtPages", "1");
        Click(opened, "cmdAccept");
    });
    document.txtSource.UserClick();
    EXPECT_EQ(document.txtSource.Text(), "@New  J.@ $31$, 1");
}

TEST_F(MakeFormTest, ADissertationIsToldFromAThesis) {
    frmDocument& document = OpenNew();
    Choose(document.cboTypeDoc, "Thesis/Dissertation");
    for (int time = 0; time < 2; ++time) {
        desktop.ExpectModal("frmMakeThesis", [time](ui::Form& opened) {
            auto& dissertation = dynamic_cast<ui::OptionButton&>(*opened.Find("optD"));
            EXPECT_EQ(dissertation.Value(), time == 1);
            Set(opened, "txtDegree", "Ph.D.");
            Set(opened, "txtInst", "MIT");
            dissertation.UserClick();
            Click(opened, "cmdAccept");
        });
        document.txtSource.UserClick();
        EXPECT_EQ(document.txtSource.Text(), "Ph.D. Dissertation, MIT");
        forms.DropClosed();
    }
}

TEST_F(MakeFormTest, AKnownContributorGetsHisJournalForAManuscript) {
    globals.ContributorCode = "JCE";
    frmDocument& document = OpenComplete();
    Choose(document.cboTypeDoc, "Submitted manuscript");
    desktop.ExpectModal("frmMakeJournal", [](ui::Form& opened) {
        EXPECT_EQ(opened.Find("cboJournal")->Display(), "J.Chem.Eng.Data");
        EXPECT_EQ(opened.Find("lblPages")->Display(), "Manuscript ID: (e.g., je000490a)");
        Set(opened, "txtPages", "je000490a");
        Click(opened, "cmdAccept");
    });
    document.txtSource.UserClick();
    document.cmdAccept.UserClick();
    EXPECT_EQ(globals.recR.Item(1)->SSOURCE, "@J.Chem.Eng.Data@, je000490a");
    EXPECT_EQ(globals.recR.Item(1)->TYPDOC, "S");
    EXPECT_EQ(globals.recR.Item(1)->ManuscriptID, "je000490a");
}

TEST_F(MakeFormTest, TypingInTheListOfJournalsCompletesIt) {
    frmDocument& document = OpenNew();
    Choose(document.cboTypeDoc, "Journal article");
    desktop.ExpectModal("frmMakeJournal", [](ui::Form& opened) {
        auto& journal = dynamic_cast<ui::ComboBox&>(*opened.Find("cboJournal"));
        EXPECT_EQ(journal.Text(), "SELECT OR TYPE JOURNAL TITLE HERE");
        EXPECT_EQ(journal.SelectedFrom(), 0U) << "typing replaces the prompt";
        Type(journal, "j. phys. chem. r");
        EXPECT_EQ(journal.Text(), "J. Phys. Chem. Ref. Data");
        EXPECT_EQ(journal.SelectedFrom(), 16U);
        opened.UserKey(ui::ParseKey("Backspace"));
        EXPECT_EQ(journal.Text(), "J. Phys. Chem. R") << "the completion goes, and stays away";
        Type(journal, "x");
        EXPECT_EQ(journal.Text(), "J. Phys. Chem. Rx");
        for (const char* typed : {"j chem eng da", "J. Chem. Eng. D"}) {
            Set(opened, "cboJournal", "");
            journal.SetFocus();
            Type(journal, typed);
            EXPECT_EQ(journal.Text(), "J.Chem.Eng.Data") << typed;
        }
        EXPECT_EQ(journal.SelectedFrom(), 12U) << "what is proposed beyond J.Chem.Eng.D";
        for (const char* whole : {"J. Chem. Eng. Data", "J CHEM ENG DATA"}) {
            Set(opened, "cboJournal", whole);
            opened.Find("txtPages")->SetFocus();
            EXPECT_EQ(journal.Text(), "J.Chem.Eng.Data") << whole;
        }
        Set(opened, "cboJournal", "");
        journal.SetFocus();
        Type(journal, "thermodyn");
        journal.UserDropDown();
        EXPECT_EQ(journal.Items(), std::vector<std::string>{"J. Chem. Thermodyn."});
        EXPECT_EQ(journal.Text(), "Thermodyn") << "what was typed stays, in the letters completed";
        Set(opened, "cboJournal", "J. Chem. Thermodyn.");
        journal.UserDropDown();
        EXPECT_GT(journal.Items().size(), 100U) << "below a whole title all are offered";
        Set(opened, "cboJournal", "J. Ph");
        EXPECT_EQ(journal.Text(), "J. Ph") << "what is pasted stays as it is";
        Set(opened, "cboJournal", "");
        EXPECT_EQ(journal.Text(), "SELECT OR TYPE JOURNAL TITLE HERE");
        journal.SetFocus();
        journal.UserEdited("SELECT OR TYPE XJOURNAL TITLE HERE");
        EXPECT_EQ(journal.Text(), "X") << "typed with the caret inside the prompt";
        Type(journal, "y");
        EXPECT_EQ(journal.Text(), "Xy");
        opened.UserKey(ui::ParseKey("Escape"));
    });
    document.txtSource.UserClick();
}

} // namespace

} // namespace vexora::test

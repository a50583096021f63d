#include "support/SourceFixture.h"

namespace vexora::test {

namespace {

class frmAuthorTest : public SourceFixture {
protected:
    /// The form of authors, opened without a description behind it.
    frmAuthor& Open() {
        auto& authors = forms.Get<frmAuthor>("frmAuthor");
        authors.Show();
        return authors;
    }
    /// Accepts the description and registers what it holds; the new rows that this makes.
    std::string RowsMade(frmDocument& document) {
        document.cmdAccept.UserClick();
        RegisterDocument();
        std::string text;
        auto rows =
            Globals().CompoundDb().Query("select * from SOURCE_AUTHOR where NEW<>0 order by rowid");
        for (; !rows.IsEnd(); rows.MoveNext())
            text += rows.Text("LASTNM") + rows.Text("INITNM") + "/" + rows.Text("FULLNM") + "\n";
        return text;
    }
};

TEST_F(frmAuthorTest, ANameComesApartAsItWasPutTogether) {
    const char* const names[][3] = {{"Wagner, W.", "Wagner", "W."},
                                    {"van der Waals,J.D.", "van der Waals", "J.D."},
                                    {"Sartre,J. - P.", "Sartre", "J. - P."},
                                    {"King,M.L. Jr.", "King", "M.L.] Jr."},
                                    {"Beethoven,L. van Sr.", "Beethoven", "L.] van Sr."},
                                    {"Lemmon, Eric W.", "Lemmon", "Eric W."},
                                    {"Ng", "Ng", ""}};
    for (const auto& [full, last, first] : names) {
        clsAuthor author;
        author.FULLNM = full;
        author.SplitName();
        EXPECT_EQ(author.LastName + "|" + author.FirstName, last + ("|" + std::string(first)));
    }
}

TEST_F(frmAuthorTest, AChangedNameOfOnePersonKeepsItsCodesAndTheDocumentsRecord) {
    frmDocument& document = OpenComplete();
    const auto stored = document.Authors()[0];
    stored->INITNM = "q 7";
    document.Authors({stored});
    desktop.ExpectModal("frmAuthor", [](ui::Form& opened) {
        auto& authors = dynamic_cast<frmAuthor&>(opened);
        authors.lstAuthors.UserChoose(0);
        for (const char* last : {"Zymurgista", "Zymurgiste"}) {
            authors.cmdChange.UserClick();
            Set(authors.txtLast, last);
            authors.cmdAdd.UserClick();
        }
        authors.cmdFinish.UserClick();
    });
    document.txtAuthors.UserClick();
    ASSERT_EQ(document.Authors().size(), 1U);
    EXPECT_EQ(document.Authors()[0]->FULLNM + document.Authors()[0]->INITNM, "Zymurgiste,Q.q 7");
    EXPECT_EQ(stored->FULLNM, "Zymurgist,Q.");
}

TEST_F(frmAuthorTest, AKnownAuthorIsTakenFromTheTable) {
    frmDocument& document = OpenNew();
    desktop.ExpectModal("frmAuthor", [](ui::Form& opened) {
        auto& authors = dynamic_cast<frmAuthor&>(opened);
        Set(authors.txtLast, "wagn");
        authors.cmdVerify.UserClick();
        EXPECT_EQ(authors.cboAuthor.Item(0), "CLICK selection, then CLICK \"Add\"");
        EXPECT_EQ(authors.cboAuthor.Item(authors.cboAuthor.Count() - 1), "None of listed");
        Choose(authors.cboAuthor, "Wagner, W.");
        authors.cmdAdd.UserClick();
        EXPECT_EQ(authors.cmdFinish.Caption(), "Done");
        EXPECT_EQ(authors.txtLast.Text() + authors.txtFirst.Text(), "");
        EXPECT_TRUE(authors.txtLast.HasFocus());
        authors.cmdFinish.UserClick();
    });
    document.txtAuthors.UserClick();
    EXPECT_EQ(document.txtAuthors.Text(), "Wagner, W.");
}

TEST_F(frmAuthorTest, AnAuthorRegisteredHereStaysNewToEveryOtherWorkplace) {
    frmDocument& document = OpenComplete();
    globals.CompoundDb().Insert(
        "SOURCE_AUTHOR",
        {{"LASTNM", "yeast "}, {"INITNM", "q  "}, {"FULLNM", "Yeast,Q."}, {"NEW", true}});
    desktop.ExpectModal("frmAuthor", [](ui::Form& opened) {
        auto& authors = dynamic_cast<frmAuthor&>(opened);
        for (int count = authors.lstAuthors.Count(); count > 0; --count) {
            authors.lstAuthors.UserChoose(0);
            authors.cmdRemove.UserClick();
        }
        for (const char* name : {"Yeast,Q.", "Wagner, W."}) {
            Set(authors.txtLast, std::string(name).substr(0, 4));
            authors.cmdVerify.UserClick();
            Choose(authors.cboAuthor, name);
            authors.cmdAdd.UserClick();
        }
        authors.cmdFinish.UserClick();
    });
    document.txtAuthors.UserClick();
    document.cmdAccept.UserClick();
    const auto& stored = globals.recR.Item(1)->recAuthor;
    ASSERT_EQ(stored.Count(), 2U);
    EXPECT_TRUE(stored.Item(1)->isNew);
    EXPECT_FALSE(stored.Item(2)->isNew);
}

TEST_F(frmAuthorTest, ASearchWithoutResultKeepsWhatWasTyped) {
    frmAuthor& authors = Open();
    desktop.Expect("Enter author's last name");
    authors.cmdAdd.UserClick();
    EXPECT_TRUE(authors.txtLast.HasFocus());
    Set(authors.txtLast, "Zymurgist;");
    Set(authors.txtFirst, "Q.,");
    desktop.Expect("Author not found\n\n"
                   "Please complete the Last Name and First Name, then CLICK \"Add\"");
    authors.cmdVerify.UserClick();
    EXPECT_EQ(authors.txtLast.Text() + "/" + authors.txtFirst.Text(), "Zymurgist/Q.");
}

TEST_F(frmAuthorTest, AChangedNameDropsThePickedOne) {
    frmAuthor& authors = Open();
    Set(authors.txtLast, "Wagner");
    authors.cmdVerify.UserClick();
    Choose(authors.cboAuthor, "Wagner, W.");
    Set(authors.txtLast, "Wagnerova");
    authors.cmdAdd.UserClick();
    EXPECT_EQ(authors.lstAuthors.Item(0), "Wagnerova");
}

TEST_F(frmAuthorTest, NamesakesGetMarksFromOneToNineThenLetters) {
    frmDocument& document = OpenComplete();
    Names names(11, {"Zymurgist", "Quentin R."});
    names.emplace_back("Zymurgist", "Quentin");
    GiveAuthors(document, names);
    std::string marks;
    for (const auto& author : document.Authors())
        marks += author->LASTNM + author->INITNM + ",";
    EXPECT_EQ(marks, "zymurgqr ,zymurgqr1,zymurgqr2,zymurgqr3,zymurgqr4,zymurgqr5,zymurgqr6,"
                     "zymurgqr7,zymurgqr8,zymurgqr9,zymurgqrA,zymurgq  ,");
    globals.CompoundDb().Insert("SOURCE_AUTHOR",
                                {{"LASTNM", "zymurg"}, {"INITNM", "q Z"}, {"FULLNM", "x"}});
    GiveAuthors(document, {{"Zymurgist", "Q."}});
    EXPECT_EQ(document.Authors()[0]->INITNM, "q Z") << "the last mark";
}

TEST_F(frmAuthorTest, AuthorsAreRegisteredWithTheDocumentAndOnlyOnce) {
    frmDocument& document = OpenComplete();
    EXPECT_EQ(RowsMade(document), "zymurgq  /Zymurgist,Q.\nabcdefjp /Ab-Cd Ef,J.P.\n");
    EXPECT_EQ(RowsMade(document), "zymurgq  /Zymurgist,Q.\nabcdefjp /Ab-Cd Ef,J.P.\n");
}

TEST_F(frmAuthorTest, ADatabaseThatRefusesAnAuthorTakesNothingOfTheDocument) {
    frmDocument& document = OpenComplete();
    globals.CompoundDb().Execute("create trigger Refuse before insert on SOURCE_AUTHOR "
                                 "begin select raise(abort, 'no room'); end");
    EXPECT_THROW(RowsMade(document), DatabaseError);
    EXPECT_EQ(Registered(), "");
    EXPECT_EQ(globals.recR.Item(1)->recAuthor.Count(), 2U);
    globals.CompoundDb().Execute("drop trigger Refuse");
    RegisterDocument();
    EXPECT_EQ(Registered(), "2011|zym|abc|1|Unpublished|Density of heavy water|\n");
}

} // namespace

} // namespace vexora::test

#include <array>
#include <tuple>

#include "reference/TableText.h"
#include "reference/Text.h"
#include "sources/citation/JournalNames.h"
#include "sources/frmCitation.h"
#include "support/SourceFixture.h"

namespace vexora::test {

namespace {

const std::string Folder = VEXORA_SOURCE_DIR "/tests/sources/citations/";

std::string FileText(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// The lines of a table but for its heading.
std::vector<std::vector<std::string>> RowsOf(const std::string& path) {
    std::vector<std::vector<std::string>> rows;
    TableReader reader(path);
    EXPECT_TRUE(reader.IsOpen()) << path;
    reader.NextRow();
    while (auto row = reader.NextRow())
        rows.push_back(std::move(*row));
    return rows;
}

std::string Joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : " | ") + text;
    return all;
}

class frmCitationTest : public SourceFixture {
protected:
    frmDocument& Open() {
        forms.CloseAll();
        forms.DropClosed();
        return OpenNew();
    }
    /// Pastes the text, presses a button of the review, and answers its remarks.
    std::string Paste(frmDocument& document, const std::string& text,
                      const std::string& button = "cmdAccept") {
        std::string remarks = "not opened";
        desktop.ClipboardText(text);
        desktop.ExpectModal("frmCitation", [&](ui::Form& opened) {
            remarks = Joined(dynamic_cast<frmCitation&>(opened).lstRemarks.Items());
            Click(opened, button);
        });
        document.cmdPasteCitation.UserClick();
        return remarks;
    }
    static std::vector<std::string> State(const frmDocument& document) {
        const std::string authors = document.txtAuthors.Text();
        return {document.cboTypeDoc.Chosen(),
                document.txtTitle.Entered(),
                authors,
                document.txtYear.Text(),
                document.Source(),
                document.txtKeyWords.Entered(),
                document.txtAbstract.Entered()};
    }
};

TEST_F(frmCitationTest, EveryFieldOfACitationGoesToItsPlace) {
    for (const auto& row : RowsOf(Folder + "expected.tsv")) {
        frmDocument& document = Open();
        const std::string remarks = Paste(document, FileText(Folder + row.at(0)));
        std::vector<std::string> found = State(document);
        found.insert(found.begin(), row.at(0));
        found.push_back(remarks);
        EXPECT_EQ(found, row);
    }
}

TEST_F(frmCitationTest, EveryJournalOfTheTableIsFoundByBothItsTitles) {
    JournalNames journals;
    std::vector<std::array<std::string, 2>> titles;
    auto rows = Globals().LocalDb().Query("select * from Journals order by rowid");
    for (; !rows.IsEnd(); rows.MoveNext()) {
        titles.push_back({rows.Text("ShortTitle"), rows.Text("Title")});
        journals.Add(titles.back()[0], titles.back()[1]);
    }
    EXPECT_GT(titles.size(), 90U);
    for (const auto& [shortTitle, title] : titles) {
        EXPECT_EQ(journals.Find(shortTitle), shortTitle);
        EXPECT_EQ(journals.Find(title), shortTitle);
    }
}

TEST_F(frmCitationTest, EachKindOfPublicationMakesItsSource) {
    for (const auto& row : RowsOf(Folder + "types.tsv")) {
        frmDocument& document = Open();
        const std::string remarks = Paste(document, Replace(row.at(0), "\\n", "\n"));
        const std::vector<std::string> found = {row.at(0), document.cboTypeDoc.Chosen(),
                                                document.Source(), remarks};
        EXPECT_EQ(found, row);
    }
}

TEST_F(frmCitationTest, WhatIsNotToldStaysForTheSamePaperAndGoesForAnother) {
    frmDocument& document = Open();
    Set(document.txtKeyWords, "typed; words");
    const std::string first = "TY  - JOUR\nAU  - Brown, A.\nTI  - Hot Salt\nJO  - Fuel\nVL  - 7\n"
                              "SP  - 1\nPY  - 1970\nAB  - Salt is hot.\nER  - \n";
    Paste(document, first, "cmdCancel");
    EXPECT_EQ(document.txtTitle.Entered() + document.Source() + document.txtYear.Text(), "");
    Paste(document, first);
    const auto whole = State(document);
    EXPECT_EQ(Joined(whole), "Journal article | Hot Salt | Brown,A. | 1970 | @Fuel@ $7$, 1 | "
                             "typed; words | Salt is hot.");
    Paste(document, first);
    EXPECT_EQ(State(document), whole);
    Paste(document, "@misc{k, title = {HOT {S}alt}}");
    EXPECT_EQ(Joined(State(document)), Replace(Joined(whole), "Hot Salt", "HOT Salt"));
    Paste(document, "@misc{k, title = {Cold Salt}}");
    EXPECT_EQ(Joined(State(document)), "SELECT TYPE OF DOCUMENT HERE | Cold Salt | "
                                       "CLICK HERE TO ENTER THE AUTHORS |  |  |  | ");
}

TEST_F(frmCitationTest, AuthorsAreThoseOfTheTableOrNewToIt) {
    frmDocument& document = Open();
    for (const char* initials : {"q  ", "q 1"})
        globals.CompoundDb().Insert("SOURCE_AUTHOR", {{"LASTNM", "zymurg"},
                                                      {"INITNM", initials},
                                                      {"FULLNM", "Zymurgist,Q."},
                                                      {"NEW", true}});
    const std::string remarks =
        Paste(document, "@misc{k, title={T}, year=1970, author={Zymurgist, Q. and Wagner, Wolf and "
                        "Wagner, W. R. and van der Waals, Jan and Lemmon, E.}}");
    EXPECT_NE(remarks.find("Several authors are known by the name Zymurgist,Q."), remarks.npos);
    Choose(document.cboTypeDoc, "Unpublished");
    document.txtSource.UserClick();
    document.cmdAccept.UserClick();
    std::string stored;
    for (const auto& author : globals.recR.Item(1)->recAuthor)
        stored += author->AUTHSEQNO + author->LASTNM + author->INITNM + author->FULLNM +
                  (author->isNew ? " new\n" : "\n");
    EXPECT_EQ(
        stored,
        "1zymurgq  Zymurgist,Q. new\n2wagnerw  Wagner, W.\n"
        "3wagnerwr Wagner,W.R. new\n4vanderj  van der Waals,J. new\n5lemmone  Lemmon,E. new\n");
}

TEST_F(frmCitationTest, NamesakesOfOnePaperKeepTheirMarksHoweverOftenItIsPasted) {
    const std::string citation = "@misc{k, title={T}, year=1970, author={Zymurgist, Jan and "
                                 "Zymurgist, Jim and Zymurgy, Joe}}";
    frmDocument* document = &Open();
    const auto codes = [&](bool known) {
        Paste(*document, citation);
        std::string text;
        for (const auto& author : document->Authors()) {
            text += author->LASTNM + author->INITNM + "|";
            EXPECT_EQ(author->KnownName().has_value(), known) << text;
        }
        return text;
    };
    const std::string expected = "zymurgj  |zymurgj 1|zymurgj 2|";
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(codes(false), expected);
    Choose(document->cboTypeDoc, "Unpublished");
    document->txtSource.UserClick();
    document->cmdAccept.UserClick();
    RegisterDocument();
    document = &Open();
    EXPECT_EQ(codes(true), expected);

    // Those whom the description has from elsewhere stay who they are, whoever comes before them.
    const auto own = std::make_shared<clsAuthor>();
    std::tie(own->LASTNM, own->INITNM, own->FULLNM) = std::tuple("quarks", "q  ", "Quarkson, Q.");
    document->Authors({own});
    Paste(*document, "@misc{k, title={T}, author={Quarksen, Q. and Quarkson, Q.}}");
    ASSERT_EQ(document->Authors().size(), 2U);
    EXPECT_EQ(document->Authors()[0]->INITNM, "q 1");
    EXPECT_EQ(document->Authors()[1], own);
}

TEST_F(frmCitationTest, TheDetailsOpenWithThePartsOfTheCitation) {
    frmDocument& document = Open();
    const auto look = [&](const std::string& button, const std::vector<std::string>& entered = {}) {
        std::string shown;
        desktop.ExpectModal("frmMakeConf", [&](ui::Form& opened) {
            auto text = entered.begin();
            for (const char* field : {"txtName", "txtLoc", "txtDate", "txtPages"}) {
                if (text != entered.end()) Set(opened, field, *text++);
                shown += opened.Find(field)->Display() + "|";
            }
            Click(opened, button);
        });
        document.txtSource.UserClick();
        forms.DropClosed();
        return shown;
    };
    const std::string source = "@Steam@, Prague, Hall 3, 12 June 2005, pp 5-9";
    Choose(document.cboTypeDoc, "Conference proceedings");
    look("cmdAccept", {"Steam", "Prague", "Hall 3, 12 June 2005", "5-9"});
    EXPECT_EQ(document.Source(), source);
    Paste(document, "TY  - CONF\nAU  - Brown, A.\nTI  - T\nT2  - Steam\nCY  - Prague, Hall 3\n"
                    "DA  - 12 June 2005\nSP  - 5\nEP  - 9\nER  - \n");
    for (const char* button : {"cmdAccept", "cmdCancel"}) {
        EXPECT_EQ(document.Source(), source);
        EXPECT_EQ(look(button), "Steam|Prague, Hall 3|12 June 2005|5-9|");
    }
    // What was entered for a type stays with it for this paper and not for another one.
    for (const auto& [title, kept] : {std::pair{"T", source}, std::pair{"Other", std::string()}}) {
        Paste(document, "TY  - JOUR\nAU  - Brown, A.\nTI  - " + std::string(title) +
                            "\nJO  - Fuel\nVL  - 7\nSP  - 1\nER  - \n");
        EXPECT_EQ(document.Source(), "@Fuel@ $7$, 1");
        Choose(document.cboTypeDoc, "Conference proceedings");
        EXPECT_EQ(document.Source(), kept);
    }
}

TEST_F(frmCitationTest, ABrokenCitationIsToldAndChangesNothing) {
    frmDocument& document = Open();
    Paste(document, FileText(Folder + "elsevier.ris"));
    const auto before = State(document);
    for (const auto& row : RowsOf(Folder + "broken/expected.tsv")) {
        SCOPED_TRACE(row.at(0));
        const std::string message = Replace(row.at(1), "\\n", "\n") + " | Paste citation";
        desktop.ClipboardText(FileText(Folder + "broken/" + row.at(0)));
        desktop.Expect(message);
        document.cmdPasteCitation.UserClick();
        EXPECT_EQ(State(document), before);
    }
}

} // namespace

} // namespace vexora::test

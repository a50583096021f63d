#include "records/clsR.h"

#include "records/LineWriter.h"
#include "records/clsAuthor.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "records/clsZ.h"
#include "shell/DocumentText.h"
#include "support/DocumentFixture.h"

namespace vexora {
namespace {

class Sources : public test::DocumentFixture {
protected:
    std::string Known(const std::string& author) {
        std::string text;
        for (Recordset row = globals.CompoundDb().Query(
                 "select * from SOURCE_REFINFO where AUTHOR1 = ? order by rowid", {author});
             !row.IsEnd(); row.MoveNext())
            text += row.Text("YEARPUB") + "/" + row.Text("AUTHOR2") + "/" + row.Text("AUTHORN") +
                    "/" + row.Text("SOURCE") + "/" + row.Text("TITLE") + "/" + row.Text("NEW") +
                    "\n";
        return text;
    }
    static std::string Document(const std::string& source) {
        return "^R 2031 qqq & 1\n^J#J#O#" + source + "#Title#####0####\n";
    }
};

TEST_F(Sources, AnUnknownSourceIsAddedOnceTheFileIsWhole) {
    desktop.Expect("Incomplete record: ^L 1003 NNNNN");
    EXPECT_FALSE(ReadDocument(Document("J. X") + "^L 1003 NNNNN\n").whole);
    EXPECT_EQ(Known("qqq"), "");
    EXPECT_TRUE(ReadDocument(Document("J. X")).whole);
    EXPECT_EQ(Known("qqq"), "2031//1/J. X/Title/1\n");
    globals.recR.Clear();
    EXPECT_TRUE(ReadDocument(Document(" J. X ")).whole);
    EXPECT_EQ(Known("qqq"), "2031//1/J. X/Title/1\n");
}

TEST_F(Sources, AnotherTextUnderTheSameIdentityIsAskedAbout) {
    ReadDocument(Document("J. X"));
    globals.CompoundDb().Execute("update SOURCE_REFINFO set AUTHORN = 10 where AUTHOR1 = 'qqq'");
    globals.recR.Clear();
    ReadDocument(Document("J. X"));
    const std::string question = "J. Y\nDatabase: J. X\n2031 qqq & 1: Are these sources different?";
    globals.recR.Clear();
    desktop.Expect(question, ui::Answer::No);
    ReadDocument(Document("J. Y"), ReadPurpose::Look);
    EXPECT_EQ(globals.recR.Item(std::size_t{1})->AUTHORN, "1");
    EXPECT_EQ(Known("qqq"), "2031//10/J. X/Title/1\n2031//1/J. X/Title/1\n");

    globals.recR.Clear();
    form.tvwTree.Clear();
    globals.Saved = true;
    desktop.Expect(question, ui::Answer::Yes);
    desktop.Expect("Please adjust file name after closing it");
    ReadDocument(Document("J. Y"));
    EXPECT_EQ(globals.recR.Item("2031 qqq & 11")->AUTHORN, "11");
    EXPECT_FALSE(globals.Saved);
    EXPECT_EQ(Tree(), "2031 qqq & 11\n");
    EXPECT_EQ(Known("qqq"), "2031//10/J. X/Title/1\n2031//1/J. X/Title/1\n") << "not saved yet";
    EXPECT_EQ(NextAuthorNumber("2031", "qqq", ""), 12);
    EXPECT_EQ(NextAuthorNumber("2031", "qqq", "&"), 12);
    EXPECT_EQ(NextAuthorNumber("2031", "qqq", "rrr"), 1);

    globals.recR.Clear();
    desktop.Expect(question, ui::Answer::No);
    ReadDocument(Document("J. Y"));
    EXPECT_EQ(Known("qqq"), "2031//10/J. X/Title/1\n2031//1/J. Y/Title/1\n");
    globals.recR.Clear();
    ReadDocument(Document("J. Y"));
}

TEST_F(Sources, ANewSourceOfOneAuthorCountsOnFromThoseHeSharedWithOthers) {
    ReadDocument("^R 2031 qqq rrr 20\n^J#J#O#J. Z#Title#####0####\n");
    globals.recR.Clear();
    EXPECT_EQ(NextAuthorNumber("2031", "qqq", "&"), 1);
    EXPECT_EQ(NextNumberOfNewSource("2031", "qqq", "&"), 21);
    EXPECT_EQ(NextNumberOfNewSource("2031", "qqq", "rrr"), 21);
    EXPECT_EQ(NextNumberOfNewSource("2031", "qqq", "sss"), 1);
}

TEST_F(Sources, TheSourceOfTheDocumentIsAskedUntilItIsKnown) {
    ReadDocument("^R 2031 qqq & 1\n^L 7732185 NNNNN &\n^S 1 ns\n^A & & & & & & & &\n"
                 "^z 1 TC S 1 L G & 647 & & &\n");
    const auto source = globals.recR.Item(std::size_t{1});
    const std::string prompt = "Enter the source of document 2031 qqq & 1\nO - original\n";
    for (const auto& answer : {std::optional<std::string>(), std::optional<std::string>(""),
                               std::optional<std::string>("maybe")}) {
        desktop.ExpectInput(prompt, answer);
        EXPECT_NE(DocumentAsRecords().find("^A & & &"), std::string::npos);
        EXPECT_EQ(source->SOURCEDOC, "&");
    }
    desktop.ExpectInput(prompt, "chemical abstracts");
    EXPECT_NE(DocumentAsRecords().find("^A & C &"), std::string::npos);
    DocumentAsRecords();
}

TEST_F(Sources, WhatTheDataHeaderAndTheAuthorsOfAKnownSourceSayIsKept) {
    ReadDocument("^R 1996 spa wag 1\n^I#1#span  #r  #Span,R.\n^L 7732185 NNNNN &\n^S 1 ns\n"
                 "^A & & & & & & & &\n^z 1 TC S 1 L G & 647 & & &\n"
                 "^A & X & & & & & &\n^z 1 TC S 2 L G & 647 & & &\n");
    EXPECT_EQ(globals.recR.Item(std::size_t{1})->SOURCEDOC, "X");
    EXPECT_TRUE(
        DocumentAsRecords().starts_with("\n^R 1996 spa wag 1\n^I#1#span  #r  #Span,R.\n^L"));
}

TEST_F(Sources, LettersOfCompoundsAndSourceFollowTheData) {
    ReadDocument("^R 2031 qqq & 1\n^L 7732185 NDDD xyz\n^S 1 ns\n"
                 "^z 1 TC S 1 L G & 647 & & &\n^f 1 VDN S 1 L 298 S 997 & & &\n"
                 "^f 1 VDN S 2 G 298 S 1 & & &\n^L 64175 NNNNN &\n^S 1 ns\n"
                 "^L 67561 NNNNN &\n");
    const auto source = globals.recR.Item(std::size_t{1});
    source->SOURCEDOC = "O";
    const std::string saved = DocumentAsRecords();
    const auto water = source->FindL("7732185");
    EXPECT_EQ(water->SYSTYPES, "DNNNN");
    EXPECT_EQ(water->REFPROP.size(), 2U) << water->REFPROP;
    EXPECT_EQ(source->PRPCLASS, water->REFPROP);
    EXPECT_NE(saved.find("\n^L 64175 NNNNN &\n^S 1 ns\n"), std::string::npos);
    EXPECT_EQ(saved.find("67561"), std::string::npos) << "nothing names it and it has no sample";
}

TEST_F(Sources, FileNamesAreProposedFromTheIdentity) {
    clsR source;
    Notices told;
    source.Load("^R 2002 wag & 1", told);
    EXPECT_EQ(source.ProposedName(), "2002wag1");
    source.LoadJ("^J#S#O#J. X, je/01#t");
    EXPECT_EQ(source.ProposedName(), "je_01");
    EXPECT_EQ(source.IdentityName(), "2002wag1");
}

TEST_F(Sources, AuthorsGetTheirCodes) {
    struct Case {
        const char* last;
        const char* first;
        const char* result;
    };
    const Case cases[] = {{"Wagner", "W.", "wagner|w |Wagner,W."},
                          {"Pruss", "Andreas", "pruss |a |Pruss,A."},
                          {"van der Waals", "J. D.", "vander|jd|van der Waals,J.D."},
                          {"O'Neil", "", "oneil |zz|O'Neil"},
                          {"Sartre", "Jean-Paul", "sartre|jp|Sartre,J. - P."},
                          {"King", "M. L.] Jr.", "king  |ml|King,M.L. Jr."},
                          {"Fermi", "A.B.C.", "fermi |ab|Fermi,A.B.C."}};
    for (const Case& author : cases) {
        clsAuthor made;
        made.LastName = author.last;
        made.FirstName = author.first;
        made.CreateAbbr();
        EXPECT_EQ(made.LASTNM + "|" + made.INITNM + "|" + made.FULLNM, author.result);
    }
    clsAuthor known;
    known.Load("^I#1#wagner#w  #");
    EXPECT_EQ(known.FULLNM, "Wagner, W.");
    EXPECT_FALSE(known.isNew);
    EXPECT_TRUE(known.CompareName("WAGNER,W"));
    EXPECT_FALSE(known.CompareName("Wagner, V."));
    const Notices told = known.Load("^I#1#nobody#xy1#");
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front().text, "Undefined author nobodyxy1:");
}

} // namespace
} // namespace vexora

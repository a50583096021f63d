#include "chem/CommentTags.h"

#include <fstream>

#include "chem/MethodTags.h"
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "reference/Numbers.h"
#include "support/DocumentFixture.h"

namespace vexora {
namespace {

class Tags : public test::DocumentFixture {
protected:
    Tags() { globals.CurrentMethod = std::make_shared<clsMethod>(); }

    static clsProperty Item(const char* code, const char* precision = "") {
        clsProperty item;
        item.PropertyCode = code;
        item.PrecisionText = precision;
        return item;
    }
    /// Reads a comment as a dialog does and writes it back.
    std::string ReadAndWrite(const std::string& comment, clsProperty head) {
        Reading read = Read(comment, head);
        return BuildComment(read.text, head, read.state);
    }
    struct Reading {
        std::string text, state;
    };
    Reading Read(const std::string& comment, clsProperty& head) {
        CommentTags whole(comment);
        const std::string state = whole.TakeState();
        const CommentTags others(TakeSMethod(whole.Stored()));
        globals.CurrentMethod->KeySaved = others.Tags();
        SplitCommentTags();
        DecodePrecisionTags(head);
        return {others.Text(), state};
    }
};

TEST_F(Tags, CommentsComeBackAsTheyWereWritten) {
    for (const std::string comment : {
             "abc ::Method:X:",
             "sealed cell ::Method:PYC:UFactor:1000:",
             "::Method::",
             "two words ::Method:PYC:gasfree:P = 101.325:UFactor:2.5:dTC:0.01:",
             "::Method:OTHER:dTC:1%:sMethod:weighing by hand:PB:",
             "::Method::sMethod:own way:FP:",
             "::Method:PYC:later:d2:FP:",
             "::Method:OTHER:later:sMethod:x:",
             "caf\xC3\xA9 \xC2\xB1 ::Method:OTHER:UFactor:2:dTC:0.5:sMethod:\xC3\xA9tuve:PB:",
         })
        for (int round = 0; round < 3; ++round)
            EXPECT_EQ(ReadAndWrite(comment, Item("TC")), comment);
}

TEST_F(Tags, OldAndMixedFormsAreReadAndWrittenInOneForm) {
    const std::pair<const char*, const char*> cases[] = {
        {"abc::Method:X", "abc ::Method:X:"},
        {"& ::Method:X:", "::Method:X:"},
        {"abc", "abc ::Method::"},
        {"a ::", "a ::Method::"},
        {"a :: b ::Method:X:", "a ::Method:X: b ::"},
        {"::UFactor:0:Method:X:", "::Method:X:"},
        {"::Method:X:sMethod:stale:", "::Method:X:"},
    };
    for (const auto& [stored, written] : cases)
        EXPECT_EQ(ReadAndWrite(stored, Item("TC")), written) << stored;
}

// Comments as files hold them, with all that the program makes of each.
TEST_F(Tags, OddCommentsAreReadWrittenAndShown) {
    std::ifstream file(std::string(VEXORA_SOURCE_DIR) + "/tests/chem/comment_tags.tsv");
    int cases = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#')) continue;
        const std::string comment = line.substr(0, line.find('\t'));
        globals.CurrentMethod = std::make_shared<clsMethod>();
        clsProperty head = Item("TC");
        head.isLast = false;
        head.NextItem = std::make_shared<clsProperty>(Item("T"));
        const Reading read = Read(comment, head);
        const clsMethod& method = *globals.CurrentMethod;
        std::string all = comment + "\t";
        for (const std::string& part :
             {read.text, method.Method, method.sMethod, NumberText(method.f), head.PrecisionText,
              head.NextItem->PrecisionText, read.state})
            all += part + "|";
        all += globals.KeyRest + "\t";
        all += BuildComment(read.text, head, read.state) + "\t"; // which puts KeyRest in order
        all += CommentDisplayText(comment) + "\t";
        CommentTags tags(comment);
        tags.ChangePrecisions([](const std::string& code, const std::string& typed) {
            return "<" + code + " " + typed + ">";
        });
        EXPECT_EQ(all + tags.Stored(), line);
        ++cases;
    }
    EXPECT_GT(cases, 40);
}

TEST_F(Tags, WordsComeAndGoWithoutTouchingTheirNeighbours) {
    const auto set = [](const char* text, const char* word, bool on) {
        CommentTags tags = CommentTags::OfTags(text);
        tags.Set(word, on);
        return tags.Stored();
    };
    EXPECT_EQ(set("", "m", true), ":m:");
    EXPECT_EQ(set(":m:", "m", true), ":m:");
    EXPECT_EQ(set(":a:m:b:", "m", false), ":a:b:");
    EXPECT_EQ(set(":m:m:", "m", false), ":");
    EXPECT_EQ(set(":mm:", "m", false), ":mm:");
    EXPECT_EQ(set("a", "", true), ":a:");
    EXPECT_FALSE(CommentTags::OfTags(":mm:").Has("m"));
    EXPECT_FALSE(CommentTags::OfTags("::").Has(""));
}

TEST_F(Tags, PairsAreFoundBehindTheTextAndAddedThere) {
    const CommentTags tags("a :T = 5: b ::T = 300:V1: VM :P = 1");
    EXPECT_EQ(tags.Constant("T"), "300");
    EXPECT_EQ(tags.Constant("P"), "1");
    EXPECT_EQ(tags.Constant("WL"), "");
    EXPECT_EQ(tags.Value("V1"), " VM ");
    EXPECT_EQ(tags.TrimmedValue("V1"), "VM");

    const auto added = [](const char* comment) {
        CommentTags with(comment);
        with.Add("V1", "P");
        return with.Stored();
    };
    EXPECT_EQ(added(""), "::V1:P:");
    EXPECT_EQ(added("text"), "text ::V1:P:");
    EXPECT_EQ(added("text::k"), "text::k:V1:P:");
}

TEST_F(Tags, WhatIsDroppedLeavesOneColon) {
    const auto dropped = [](const char* text, const char* words) {
        CommentTags tags = CommentTags::OfTags(text);
        tags.DropBeginning(words);
        return tags.Stored();
    };
    EXPECT_EQ(dropped(":k:P = 1:m:P = 2:", "P = "), ":k:m:");
    EXPECT_EQ(dropped(":k:P = 1", "P = "), ":k");
    EXPECT_EQ(dropped(":P = 1", "P = "), ":");
    EXPECT_EQ(dropped("", "P = "), ":");
}

TEST_F(Tags, PrecisionOfEachItemIsFoundAndPerCentIsOfTheValue) {
    globals.CurrentMethod->KeySaved = "::x:dTC:-2%:dT:0.01:y:";
    clsProperty head = Item("TC");
    head.Value = -50;
    head.isLast = false;
    head.NextItem = std::make_shared<clsProperty>(Item("T"));
    DecodePrecisionTags(head);
    EXPECT_EQ(head.PrecisionText, "-2%");
    EXPECT_EQ(head.PRECISION, 1);
    EXPECT_EQ(head.NextItem->PRECISION, 0.01);
    EXPECT_EQ(globals.KeyRest, ":x:y:");
    EncodeTags(head);
    EXPECT_EQ(globals.CurrentMethod->KeySaved, "::x:y:dTC:-2%:dT:0.01:");
}

TEST_F(Tags, WhatWouldTearTheTagsApartNeverBecomesOne) {
    clsMethod& method = *globals.CurrentMethod;
    method.Method = "OTHER";
    method.sMethod = "a:b";
    method.f = -3;
    globals.KeyRest = ":UFactor:7:k:UFactor:8:";
    EXPECT_EQ(BuildComment("text::more", Item("TC", "1:2"), "FP"),
              "text: :more ::Method:OTHER:k:sMethod:a b:FP:");
    EXPECT_EQ(BuildComment("line\r\nbreak", Item("TC", " 5 "), ""),
              "line break ::Method:OTHER:k:dTC:5:sMethod:a b:");
}

TEST_F(Tags, WordsInFrontOfTheTagsAreNone) {
    clsProperty head = Item("TC", "");
    const std::string comment = "ratio 1:PB:2, see :sMethod: there ::Method:X:";
    const Reading read = Read(comment, head);
    EXPECT_EQ(read.text, "ratio 1:PB:2, see :sMethod: there");
    EXPECT_EQ(read.state + globals.CurrentMethod->sMethod, "");
    EXPECT_FALSE(CommentTags(comment).Has("PB"));
    EXPECT_EQ(ReadAndWrite(comment, head), comment);
    EXPECT_EQ(BuildComment("a:::b", head, ""), "a: : :b ::Method:X:");
}

TEST_F(Tags, UnterminatedFreeMethodLosesItsLastLetter) {
    EXPECT_EQ(TakeSMethod("::Method:OTHER:sMethod:foo"), "::Method:OTHER");
    EXPECT_EQ(globals.CurrentMethod->sMethod, "fo");
    EXPECT_EQ(TakeSMethod("a:sMethod:"), "a:sMethod:");
    EXPECT_EQ(globals.CurrentMethod->sMethod, "");
    EXPECT_EQ(TakeSMethod("::Method:OTHER:sMethod:foo:k:"), "::Method:OTHER:k:");
    EXPECT_EQ(globals.CurrentMethod->sMethod, "foo");
}

TEST_F(Tags, DisplayTextIsReadable) {
    EXPECT_EQ(CommentDisplayText("sealed cell ::Method:PYC:dTF:0.01:"),
              "sealed cell   Method PYC dTF=0.01=");
    EXPECT_EQ(CommentDisplayText("::Method:PYC:sMethod:x:"), "::Method PYC");
    EXPECT_EQ(CommentDisplayText("\xC3\xA9t\xC3\xA9::a:b:"), "\xC3\xA9t\xC3\xA9::a:b ");
    EXPECT_EQ(CommentDisplayText("plain"), "plain");
}

TEST_F(Tags, SampleFlagsFollowTheWordsOfTheDescription) {
    const auto flags = [&](const char* description) {
        SyncSampleFlags(description);
        return globals.CurrentMethod->KeyVolatile;
    };
    EXPECT_EQ(flags("cm;fd,db;99m%,gc"), ":fd:db:cm:");
    EXPECT_EQ(flags("sa;dist;"), ":");
    EXPECT_EQ(flags("sa;\xC3\xA9 av;"), ":av:");
}

} // namespace
} // namespace vexora

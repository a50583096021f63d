#include "cli/CommandLineFixture.h"
#include "reference/Text.h"

namespace vexora::test {

TEST_F(CommandLine, HelpAndVersionAreCleanAndWrongUseIsTwo) {
    for (const char* command : {"", "export", "check", "tree", "diff", "table", "play", "refdb",
                                "refdb build", "refdb import", "refdb check"}) {
        const Outcome help = Run(std::string(command) + " --help");
        EXPECT_EQ(help.code, 0) << command;
        EXPECT_NE(help.out.find("Usage: vexora-cli " + std::string(command)), std::string::npos)
            << help.out;
        EXPECT_EQ(help.err, "") << command;
    }
    EXPECT_EQ(Run("--version").out, "vexora-cli " VEXORA_VERSION "\n");
    for (const char* wrong : {"", "paint", "export", "check", "tree --nix water.txt", "refdb",
                              "refdb build", "refdb import VXR.mdb", "play", "diff water.txt",
                              "table", "table water.txt --format xls", "refdb add VXR.mdb"}) {
        const Outcome outcome = Run(wrong);
        EXPECT_EQ(outcome.code, 2) << wrong;
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
        EXPECT_EQ(outcome.out, "") << wrong;
    }
    EXPECT_EQ(Run("paint").err, "error: unexpected argument paint; see vexora-cli --help\n");
    EXPECT_EQ(Run("refdb build").err,
              "error: --out is required; see vexora-cli refdb build --help\n");
    EXPECT_EQ(Run("check --help >/dev/full").code, 4);
}

TEST_F(CommandLine, TheTreeIsPrintedAsItStandsInTheWorkbench) {
    const Outcome tree = Run("tree water.txt");
    EXPECT_EQ(tree.out, "2031 wag pru 1\n"
                        "  water\n"
                        "    Sample 1 (cm;;99.9m%,gc)\n"
                        "      ^0: Critical temperature (L+G,K), Set 1\n");
    EXPECT_EQ(std::tie(tree.code, tree.err), std::make_tuple(0, std::string()));
}

TEST_F(CommandLine, TheExportGoesToStandardOutputOrIntoAFile) {
    folder.Write("VXR.ini", "XMLCOMPILER A. User\nORGANIZATION House & Co\n");
    const Outcome shown = Run("export water.txt");
    EXPECT_EQ(std::tie(shown.code, shown.err), std::make_tuple(0, std::string()));
    EXPECT_TRUE(shown.out.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n")) << shown.out;
    EXPECT_TRUE(shown.out.ends_with("</DataReport>\n")) << shown.out;
    EXPECT_NE(shown.out.find("<sCompiler>A. User</sCompiler>\n"
                             "\t\t<sContributor>House &amp; Co</sContributor>"),
              std::string::npos);
    const Outcome written = Run("export water.txt water.xml");
    EXPECT_EQ(std::make_tuple(written.code, written.out, written.err),
              std::make_tuple(0, std::string(), std::string()));
    EXPECT_EQ(Read("water.xml"), shown.out);
    EXPECT_EQ(Read("water.txt"), kDocument);
}

TEST_F(CommandLine, AnExportThatCannotBeWrittenLeavesWhatIsThere) {
    const Outcome nowhere = Run("export water.txt no/such/folder.xml");
    EXPECT_EQ(nowhere.code, 4);
    EXPECT_TRUE(nowhere.err.starts_with("water.txt: error: no/such/folder.xml: ")) << nowhere.err;
    folder.Write("record.xml", kDocument);
    const Outcome itself = Run("export record.xml ./record.xml");
    EXPECT_EQ(itself.code, 4);
    EXPECT_EQ(itself.err, "record.xml: error: the export cannot take the place of the record file "
                          "itself\n");
    EXPECT_EQ(Read("record.xml"), kDocument);
}

TEST_F(CommandLine, WhatTheExportLeavesOutIsToldWithItsLine) {
    folder.Write("doc.txt", kDocument + "^A & O & & AB CD & &\n^z 1 PC nounit 1 L G & 22 & & &\n");
    const Outcome outcome = Run("export doc.txt doc.xml");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.err, "doc.txt:9: warning: Invalid conversion factor System: water "
                           "Property: Critical pressure\n");
    EXPECT_EQ(Read("doc.xml").find("Critical pressure"), std::string::npos);
}

TEST_F(CommandLine, CheckNamesASubstanceThatStandsTwice) {
    const std::string place = "doc.txt:10: warning: Compound ";
    const std::string twice = " stands twice: 7789200 and 1003\n";
    const std::string cases[][2] = {{"D2O Heavy Water", place + "Heavy Water" + twice},
                                    {"& heavy water", place + "heavy water" + twice},
                                    {"D2O water-d2", place + "water-d2" + twice},
                                    {"CH4 water-d2", ""},
                                    {"D2O water of Vexora", ""}};
    for (const auto& [formulaAndName, finding] : cases) {
        folder.Write("doc.txt", kDocument +
                                    "^L 7789200 NNNNN &\n^S 1 ns\n^L 1003 NNNNN &\n^N 1003 " +
                                    formulaAndName + "\n^S 1 ns\n");
        std::string found;
        for (const std::string& line : Split(Run("check doc.txt").err, '\n'))
            if (line.find("twice") != line.npos) found += line + "\n";
        EXPECT_EQ(found, finding) << formulaAndName;
    }
}

TEST_F(CommandLine, CheckTellsEveryFindingWithItsLine) {
    EXPECT_EQ(Run("check water.txt").err, "");
    EXPECT_EQ(Run("check water.txt").code, 0);
    const auto value = [](const std::string& fields) {
        return "^A & O & & AB CD & &\n" + fields + " & 1 &\n";
    };
    const std::string hints = "^A & O & & AB CD & &\n^z 1 TC S 1 L G & 647 & & &\n^S 2 cm;;\n"
                              "^A & O & & AB CD & &\n^z 2 TC S 1 L G & 647 & & &\n";
    folder.Write("hints.txt", kHead + hints);
    EXPECT_EQ(Run("check hints.txt").code, 0);
    EXPECT_EQ(Run("check hints.txt").err,
              "hints.txt:7: hint: Critical temperature: no uncertainty is stated\n"
              "hints.txt:8: hint: Sample 2 (cm;;): no purity is stated\n"
              "hints.txt:10: hint: Critical temperature: no uncertainty is stated\n");
    EXPECT_NE(Run("check --format jsonl hints.txt")
                  .out.find("\"exit\": 0, \"findings\": [{\"line\": "
                            "7, \"severity\": \"hint\""),
              std::string::npos);
    folder.Write("doc.txt",
                 kHead + value("^z 1 TC S 1 L G & 2000") + value("^z 1 TC S 2 L G & -1") +
                     value("^z 1 PC nounit 1 L G & 22") + value("^z 1 PC * 2 L G & 22") +
                     value("^z 1 VDC S 1 Q9 G & 322") + value("^z 1 VC S 1 L G & a") +
                     value("^f 1 VDN S 1 L -300 C 997") + value("^f 1 VDN S 2 L 20 nounit 997") +
                     value("^z 1 QQQ S 1 L G & 1") + value("^z 1 TC K 4 L G & 500") +
                     value("^f 1 VDN T 3 L 300 S 997") + value("^f 1 VDN S 4 L 300 T 997") +
                     "^1 1 VDN S DIR 1\tN L & FP S & & &\n^M 0\n^A & O & & & & & ::P = 101.325:\n"
                     "^1 1 VDN S DIR 2\tN L & FP S & & &\n^M 0\n");
    const Outcome outcome = Run("check doc.txt");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "doc.txt:7: warning: Critical temperature: value 2000 is suspicious\n"
                           "doc.txt:9: error: Critical temperature: value -1 is not valid\n"
                           "doc.txt:11: error: Critical pressure: unknown unit nounit\n"
                           "doc.txt:13: error: Critical pressure: unknown unit *\n"
                           "doc.txt:15: error: Unknown phase Q9\n"
                           "doc.txt:17: error: Critical molar volume: the value is no number: a\n"
                           "doc.txt:19: error: Density: Temperature: value -26.85 is not valid\n"
                           "doc.txt:21: error: Density: Temperature: unknown unit nounit\n"
                           "doc.txt:23: error: Unknown property QQQ\n"
                           "doc.txt:27: error: Density: Invalid conversion factor: T is no unit "
                           "of kg/m3\n"
                           "doc.txt:29: error: Density: Temperature: Invalid conversion factor: "
                           "T is no unit of K\n"
                           "doc.txt:30: warning: Density: no pressure is stated\n");
}

TEST_F(CommandLine, AnAuthorKnownNowhereIsNamedAndLeavesByHisCodes) {
    folder.Write("doc.txt", kDocument + "^I#2#nobody#xy1#\n");
    const std::string told = "doc.txt:8: warning: Undefined author nobodyxy1:\n";
    EXPECT_EQ(Run("check doc.txt").err, told);
    const Outcome exported = Run("export doc.txt");
    EXPECT_EQ(exported.err, told);
    EXPECT_NE(exported.out.find("<sAuthor>nobody,x.y.</sAuthor>"), std::string::npos);
}

TEST_F(CommandLine, CheckNamesTheLinesThatASaveWouldLose) {
    folder.Write("doc.txt", kDocument + "^X 0 TC L - & & 1\n^S 1 ns\n^? a line\n");
    const Outcome outcome = Run("check doc.txt");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.err, "doc.txt: warning: 1 line holds data of kinds that this edition does "
                           "not keep\n"
                           "doc.txt:9: warning: sample 1 is described before, as "
                           "cm;;99.9m%,gc\n"
                           "doc.txt:10: warning: nobody knows this tag: ^? a line\n"
                           "doc.txt:7: warning: Critical temperature: a figure of uncertainty "
                           "has no mark and is not exported\n");
}

TEST_F(CommandLine, LookingAtADocumentWritesToNoDatabase) {
    const std::string local = Read("VXRLocal.mdb");
    const std::string compounds = Read("VXR.mdb");
    for (const char* command : {"check", "tree", "export"}) {
        EXPECT_EQ(Run(std::string(command) + " water.txt").code, 0) << command;
        EXPECT_EQ(Read("VXRLocal.mdb"), local) << command;
        EXPECT_EQ(Read("VXR.mdb"), compounds) << command;
    }
}

TEST_F(CommandLine, WhatCannotBeReadIsThree) {
    std::filesystem::create_directory(folder.File("none"));
    folder.Write("empty.txt", "");
    folder.Write("prose.txt", "Dear reader,\nthis is no record file.\n");
    folder.Write("short.txt", kHead + "^A & & & & & & & &\n^z 1 TC S 1 L G &\n");
    const std::string diagnostics[][2] = {
        {"missing.txt", "missing.txt: error: "},
        {"none", "none: error: the folder holds no record file\n"},
        {"empty.txt", "empty.txt: error: this is no record file: it holds no source\n"},
        {"prose.txt", "prose.txt: error: this is no record file: it holds no source\n"},
        {"short.txt", "short.txt:7: warning: Incomplete record: ^z 1 TC S 1 L G &\n"
                      "short.txt:7: error: the document was not read: "}};
    for (const auto& [file, text] : diagnostics) {
        for (const char* command : {"check ", "tree ", "export "}) {
            const Outcome outcome = Run(command + file);
            EXPECT_EQ(outcome.code, 3) << command << file;
            EXPECT_TRUE(outcome.err.starts_with(text)) << outcome.err;
            EXPECT_EQ(outcome.out, "");
        }
    }
    folder.Write("VXR.mdb", "no database");
    const Outcome outcome = Run("tree water.txt");
    EXPECT_EQ(outcome.code, 3);
    EXPECT_TRUE(outcome.err.starts_with("error: ")) << outcome.err;
}

TEST_F(CommandLine, TheDatabasesOfTheConfigurationAndOfTheHomeAreFound) {
    std::filesystem::create_directory(folder.File("elsewhere"));
    for (const char* name : {"VXRLocal.mdb", "VXR.mdb"})
        std::filesystem::rename(folder.File(name), folder.File("elsewhere/" + std::string(name)));
    folder.Write("VXR.ini", "VXRLocalDB " + folder.File("elsewhere/VXRLocal.mdb") +
                                "\nVXRCompoundDB " + folder.File("elsewhere/VXR.mdb") + "\n");
    EXPECT_EQ(Run("check water.txt").code, 0);
    EXPECT_EQ(Run("check --home elsewhere water.txt").code, 0);
    folder.Write("elsewhere/VXR.mdb", "no database");
    EXPECT_EQ(Run("check water.txt").code, 3);
}

TEST_F(CommandLine, PlayEndsWithTheResultOfTheScript) {
    EXPECT_EQ(Run("play .").err, ".: cannot be read: Is a directory\n");
    EXPECT_EQ(Run("play nowhere.vxs").err, "nowhere.vxs: cannot be read: No such file or directory\n");
    folder.Write("good.vxs", "note \"a b\"\n");
    folder.Write("bad.vxs", "expect open frmNowhere\n");
    folder.Write("malformed.vxs", "jump frmMain\n");
    EXPECT_EQ(Run("play --home home good.vxs").code, 0);
    const Outcome bad = Run("play --home home bad.vxs");
    EXPECT_EQ(bad.code, 1);
    EXPECT_NE(bad.err.find("bad.vxs:1: error: "), std::string::npos) << bad.err;
    const Outcome malformed = Run("play --home home malformed.vxs");
    EXPECT_EQ(malformed.code, 2);
    EXPECT_NE(malformed.err.find("malformed.vxs:1: error: "), std::string::npos) << malformed.err;
}

TEST_F(CommandLine, CompoundsAreImportedAndBadRowsToldWithTheirLines) {
    folder.Write("new.tsv",
                 "RN\tNAME\tFORMULA\n99999005\ttest compound\tC8H10\n99999006\twrong\tC8H10\n"
                 "7732185\twater\tH2O\n99999005\tblue stone\tCuSO4.5H2O\n"
                 "99999005\tcut\tC2H5)OH\n99999016\tgreen stone\tFeSO4\u00B77H2O\n");
    const Outcome outcome = Run("refdb import --compounds new.tsv VXR.mdb");
    EXPECT_EQ(outcome.code, 1) << outcome.err;
    EXPECT_EQ(outcome.out, "2 added, 1 already there, 3 skipped\n");
    EXPECT_EQ(outcome.err,
              "new.tsv:3: error: \"99999006\" is no valid registry number\n"
              "new.tsv:5: error: \"CuSO4.5H2O\" may be a hydrate, CuH10O9S; write its dot as *\n"
              "new.tsv:6: error: \"C2H5)OH\" is no formula\n");
    folder.Write("doc.txt", "^R 2031 wag pru 1\n^J#J#O#S#T##A##P#1####\n^I#1#wagner#w  #Wagner,W.\n"
                            "^L 99999005 NNNNN &\n");
    EXPECT_EQ(Run("tree doc.txt").out, "2031 wag pru 1\n  test compound\n");
    EXPECT_EQ(Run("refdb build --data nowhere --out .").code, 3);
    EXPECT_EQ(Run("refdb import --compounds new.tsv nowhere.mdb").code, 3);
}

TEST_F(CommandLine, ACompoundOrAListIsAddedAndHandedOn) {
    const std::string add = "refdb add --rn 99999-00-5 --formula H10C8 --name ";
    EXPECT_EQ(Run(add + "\"test one\" --name \"test two\" VXR.mdb").out,
              "2 added, 0 already there\n");
    EXPECT_EQ(Run(add + "water VXR.mdb").err, "error: \"water\" is the name of 7732185 already\n");
    EXPECT_EQ(Run("refdb add --rn 99999006 --formula H2O --name x VXR.mdb").code, 1);
    EXPECT_EQ(Run("refdb add --rn 99999005 --formula Qq --name x VXR.mdb").code, 1);
    EXPECT_EQ(Run("refdb add --rn 99999005 --formula CuSO4.5H2O --name x VXR.mdb").err,
              "error: \"CuSO4.5H2O\" may be a hydrate, CuH10O9S; write its dot as *\n");
    const std::string list = Run("refdb added VXR.mdb").out;
    EXPECT_EQ(list, "RN\tNAME\tFORMULA\n99999005\ttest one\tC8H10\n99999005\ttest two\tC8H10\n");
    folder.Write("list.tsv", list);
    EXPECT_EQ(Run("refdb add --list list.tsv VXR.mdb").out,
              "0 added, 2 already there, 0 skipped\n");
    folder.Write("sheet.csv", "PK\x03\x04");
    EXPECT_EQ(Run("refdb import --compounds sheet.csv VXR.mdb").err,
              "error: sheet.csv: this is a spreadsheet or an archive; save it as text first\n");
}

TEST_F(CommandLine, TablesAreCheckedAndCounted) {
    EXPECT_EQ(Run("refdb check .").code, 0);
    const Outcome summary = Run("refdb check --summary .");
    EXPECT_EQ(summary.err, "");
    EXPECT_TRUE(summary.out.starts_with("properties ")) << summary.out;
    EXPECT_NE(summary.out.find("\ncompounds "), std::string::npos) << summary.out;
    {
        Database database;
        database.Open(folder.File("VXR.mdb"), false);
        database.Execute("delete from ALLNAME where rowid>3");
        database.Execute("delete from Identifiers");
        database.Execute("update ALLNAME set FORMULA='HOH' where rowid=1");
    }
    const Outcome found = Run("refdb check .");
    EXPECT_EQ(found.code, 1);
    EXPECT_EQ(found.err,
              "ALLNAME:1: error: the formula \"HOH\" is not canonical, that is \"H2O\"\n");
    EXPECT_EQ(Run("refdb check nowhere").code, 3);
}

} // namespace vexora::test

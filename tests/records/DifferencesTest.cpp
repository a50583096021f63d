#include "records/Differences.h"

#include "records/LineNames.h"
#include "records/RoundTripFixture.h"
#include "reference/Text.h"

#include <tuple>
#include <utility>

namespace vexora::test {

namespace {

const std::string SetLines =
    "^A & O C & AB CD 1/15/2026 :: \n"
    "^1 1 VDN S DIR 1\tC L & FP S & & &\n"
    "^d 275 999.9 &\n^Y & & & 0.1 & & & & & &\n^d 300 996.6 &\n^d 325 987.2 &\n"
    "^M 0\n";
const std::string ValueLines = "^A & O C & AB CD 1/15/2026 &\n^z 1 TC S 1 L G & 647.1 & & &\n";

} // namespace

class DifferencesTest : public RoundTripFixture {
protected:
    Outline OutlineFrom(const std::string& text) {
        Read(text);
        return OutlineOfDocument();
    }
    /// What has changed when the one text in the document becomes the other, without the labels
    /// above the node.
    std::string After(const std::string& from, const std::string& to) {
        const std::string whole = kHead + ValueLines + SetLines;
        std::string edited = whole;
        const std::size_t at = edited.find(from);
        if (at == std::string::npos) return "no such text";
        edited.replace(at, from.size(), to);
        std::string told;
        for (const Difference& difference : DifferencesOf(OutlineFrom(whole), OutlineFrom(edited)))
            told +=
                (told.empty() ? "" : "|") +
                DifferenceText(
                    {{}, difference.what, difference.before, difference.after, difference.kind});
        return told;
    }
};

TEST_F(DifferencesTest, EverySourceOfAFileIsCompared) {
    const std::string second =
        Replace(Replace(kHead, "2002 wag pru 1", "2003 abc & 1"), "\n^R", "^R");
    const auto differences =
        DifferencesOf(OutlineFrom(kHead + second + ValueLines),
                      OutlineFrom(kHead + second + Replace(ValueLines, "647.1", "647.2")));
    ASSERT_EQ(differences.size(), 1U);
    EXPECT_EQ(differences[0].before + " -> " + differences[0].after, "647.1 -> 647.2");
    const Record* record = RecordAt(differences[0].place);
    ASSERT_NE(record, nullptr);
    EXPECT_TRUE(record->ShowKey().starts_with("^0: Critical temperature")) << record->ShowKey();
    EXPECT_EQ(DifferencesOf(OutlineFrom(kHead + second), OutlineFrom(kHead)).size(), 1U);
}

TEST_F(DifferencesTest, EachEditIsToldByItsFieldOrCell) {
    const std::string swapped = "^d 300 996.6 &\n^d 325 987.2 &\n";
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"647.1", "647.10", ": value: 647.1 -> 647.10"},
        {"#T##A#", "#T#k#A#", ": key words: nothing -> k"},
        {"cm;;99.9m%,gc", "cm;;99.8m%,gc", ": description: cm;;99.9m%,gc -> cm;;99.8m%,gc"},
        {"^d 300 996.6", "^d 300 996.60", ": row 2, Density: 996.6 -> 996.60"},
        {"^d 300 996.6", "^d 300.0 996.6", ": row 2, Temperature: 300 -> 300.0"},
        {"^d 300 996.6 &\n", "", ": row 2: only in the earlier one: 300 996.6"},
        {"& & & 0.1", "& & & 0.2", ": row 1, uncertainty of Temperature: 0.1 -> 0.2"},
        {swapped, "^d 325 987.2 &\n^d 300 996.6 &\n", ""},
        {ValueLines, "", ": only in the earlier one"},
        {ValueLines + SetLines, SetLines + ValueLines, ""},
    };
    for (const auto& [from, to, told] : cases)
        EXPECT_EQ(After(from, to), told) << from;
}

TEST_F(DifferencesTest, ATagThatNobodyNamedStillCounts) {
    EXPECT_EQ(NamedFields("^? a b").back(),
              std::make_pair(std::string("field 2"), std::string("b")));
    EXPECT_EQ(NamedFields("^S 1 cm; by hand").back().second, "cm; by hand");
}

} // namespace vexora::test

#include <gtest/gtest.h>

#include "reference/TableText.h"
#include "sources/citation/CitationReader.h"
#include "sources/citation/CleanText.h"
#include "sources/citation/LatexText.h"
#include "sources/citation/PersonNames.h"

namespace vexora::test {

namespace {

std::string Shown(const CitedName& name) {
    const std::string suffix = name.suffix.empty() ? "" : "/" + name.suffix;
    return name.last + (name.first.empty() ? "" : "/" + name.first) + suffix;
}

JournalNames SomeJournals() {
    JournalNames journals;
    const std::pair<const char*, const char*> titles[] = {
        {"J. Chem. Phys.", "The Journal of Chemical Physics"},
        {"Int. J. Thermophys.", "International Journal of Thermophysics"},
        {"Chem. Eng. Sci.", "Chemical Engineering Science"},
        {"J. Phys. Chem. Ref. Data", "Journal of Physical and Chemical Reference Data"},
        {"J. Phys. Chem. A", "The Journal of Physical Chemistry A"},
        {"J. Phys. Chem. B", "The Journal of Physical Chemistry B"},
        {"Z. Phys. Chem. (Leipzig)", "Zeitschrift für Physikalische Chemie (Leipzig)"},
        {"Z. Phys. Chem. (Munich)", "Zeitschrift für Physikalische Chemie (Munich)"},
        {"Zh. Fiz. Khim.", ""},
        {"Energy Fuels", "Energy & Fuels"},
        {"Energy", ""},
        {"Fuel", ""}};
    for (const auto& [shortTitle, title] : titles)
        journals.Add(shortTitle, title);
    return journals;
}

TEST(CitationReader, ReferenceLinesOfManyStylesAreTakenApart) {
    const JournalNames journals = SomeJournals();
    TableReader rows(VEXORA_SOURCE_DIR "/tests/sources/citations/lines.tsv");
    ASSERT_TRUE(rows.IsOpen());
    rows.NextRow();
    while (const auto row = rows.NextRow()) {
        const auto reading = ReadCitation(row->at(0), journals);
        ASSERT_TRUE(reading.citation) << row->at(0) << reading.error;
        const Citation& c = *reading.citation;
        std::string names;
        for (const CitedName& name : c.authors)
            names += (names.empty() ? "" : " ") + Shown(name);
        if (c.moreAuthors) names += " +";
        const std::vector<std::string> found = {
            row->at(0), names,    c.title, c.journals.empty() ? "" : c.journals[0],
            c.year,     c.volume, c.issue, c.pages};
        EXPECT_EQ(found, *row);
    }
}

TEST(CitationReader, ACitationCutOffAnywhereIsReadOrRefusedInWords) {
    const JournalNames journals = SomeJournals();
    for (const auto& file :
         std::filesystem::directory_iterator(VEXORA_SOURCE_DIR "/tests/sources/citations")) {
        if (!file.is_regular_file() || file.path().extension() == ".tsv") continue;
        std::ostringstream whole;
        whole << std::ifstream(file.path()).rdbuf();
        const std::string text = whole.str();
        EXPECT_TRUE(ReadCitation(text, journals).citation) << file.path();
        for (std::size_t length = 0; length < text.size(); length += 5) {
            const auto reading = ReadCitation(std::string_view(text).substr(0, length), journals);
            EXPECT_EQ(reading.citation.has_value(), reading.error.empty())
                << file.path() << " " << length;
        }
    }
}

TEST(CitationReader, JournalsAreKnownByAnyOfTheirNamesAndNoOthers) {
    const JournalNames journals = SomeJournals();
    const std::pair<const char*, const char*> cases[] = {
        {"J CHEM PHYS", "J. Chem. Phys."},
        {"The Journal of chemical physics", "J. Chem. Phys."},
        {"The journal of physical chemistry. B", "J. Phys. Chem. B"},
        {"Fuel (London, England)", "Fuel"},
        {"Energy & fuels : an American Chemical Society journal", "Energy Fuels"},
        {"Zeitschrift für Physikalische Chemie (Munich)", "Z. Phys. Chem. (Munich)"},
        {"Z. Phys. Chem.", ""},
        {"J. Phys. Chem.", ""},
        {"Journal of Physiological Chemistry A", ""},
        {"Energies", ""},
        {"", ""},
        {"The", ""}};
    for (const auto& [name, known] : cases)
        EXPECT_EQ(journals.Find(name).value_or(""), known) << name;
}

TEST(CitationReader, NamesAreTakenApartInEveryOrder) {
    const std::pair<const char*, const char*> cases[] = {
        {"García Márquez, Gabriel", "García Márquez/Gabriel"},
        {"van der Waals, J. D.", "van der Waals/J. D."},
        {"Ludwig van Beethoven", "van Beethoven/Ludwig"},
        {"Smith-Jones, Mary, Jr.", "Smith-Jones/Mary/Jr."},
        {"Jones, III, Robert L.", "Jones/Robert L./III"},
        {"King, Martin L Jr", "King/Martin L/Jr"},
        {"King ML Jr", "King/M.L./Jr"},
        {"de Vries AB", "de Vries/A.B."},
        {"Wagner, WH", "Wagner/W.H."},
        {"John P. O’Connell", "O'Connell/John P."},
        {"Plato", "Plato"},
        {",", ""}};
    for (const auto& [text, parts] : cases)
        EXPECT_EQ(Shown(NameOf(text)), parts) << text;
}

TEST(CitationReader, LatexAndWebMarksBecomeLetters) {
    const std::pair<const char*, const char*> latex[] = {
        {R"(M{\"u}ller and M\"uller and M\"{u}ller)", "Müller and Müller and Müller"},
        {R"(\'e\`a\^o\~n\.z{\=a}\u{g}\v{c}\H{o}\k{a}\c{c}\r{a}\d{h})", "éàôñżāğčőąçåḥ"},
        {R"(Wei\ss, S\o rensen, {\L}ukasz, \AA ngstr\"om, {\'\i})",
         "Weiß, Sørensen, Łukasz, Ångström, í"},
        {R"($T_{c}$ of CO$_2$ at 25~$^{\circ}$C, 50\% \& more)", "Tc of CO2 at 25 °C, 50% & more"},
        {R"(\emph{n}-alkanes {\it in} ``water'' -- a \textbf{R}eview, $\alpha$)",
         "n-alkanes in \"water\" - a Review, α"},
        {R"(\odd{text} {unclosed \)", "text unclosed "}};
    std::vector<std::string> unknown;
    for (const auto& [source, text] : latex)
        EXPECT_EQ(TextOfLatex(source, unknown), text);
    EXPECT_EQ(unknown, std::vector<std::string>{"\\odd"});

    EXPECT_EQ(CleanMarkup("H<sub>2</sub>O &amp; p&nbsp;&lt;&nbsp;1 &#956;Pa&#x3b1;, a < b > c"),
              "H2O & p < 1 μPaα, a < b > c");
    EXPECT_EQ(CleanText("Mu\u0308ller\u00A0–\n ‘ﬁne’ s\u0327"), "Müller - 'fine' ş");
    EXPECT_EQ(CleanText("M\xFCller"), "Müller");
}

TEST(CitationReader, PagesAreWrittenInFull) {
    const std::pair<const char*, const char*> cases[] = {
        {"387-95", "387-395"}, {"387–535", "387-535"}, {"101 -- 117", "101-117"},
        {"pp. 5-9", "5-9"},    {"12-12", "12"},        {"e15", "e15"},
        {"9-3", "9-3"},        {"S1-S9", "S1-S9"},     {"12-", "12"}};
    for (const auto& [text, pages] : cases)
        EXPECT_EQ(CleanPages(text), pages) << text;
}

} // namespace

} // namespace vexora::test

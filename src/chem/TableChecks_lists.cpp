#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>

#include "chem/AbridgedWeights.h"
#include "chem/TableChecks.h"
#include "chem/clsAtom.h"
#include "reference/CompoundTable.h"
#include "reference/Numbers.h"
#include "reference/RefdbBuild.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr int HighestRating = 251; // above it come the marks for "no row" and "none"

// Flags of a sample are read off its description by these two letters, wherever they stand.
constexpr std::array<std::string_view, 4> SampleMarks{{"fd", "db", "cm", "av"}};

/// Codes are joined in the description of a sample.
/// These marks part the codes there; a text in brackets is the operator's.
void CheckSampleCode(TableRows& row) {
    const std::string code = row.Text("Code");
    row.Expect(code.find_first_of("%,;()") == code.npos,
               "the code " + Quoted(code) + " holds one of % , ; ( )");
    row.Expect(!row.Text("Method").starts_with('('), "a text in brackets is taken for a remark");
}

/// In a source text "@" encloses the publication and "$" the volume.
void CheckTitles(const Database& vocabulary, const char* table, const char* column,
                 RowRemarks& findings) {
    for (TableRows row(vocabulary, table, findings); !row.IsEnd(); row.MoveNext()) {
        const std::string title = row.Required(column);
        row.Expect(title.find_first_of("@$") == title.npos,
                   Quoted(title) + " holds a mark of the source line, @ or $");
        row.ExpectOnce("the title", LowerAscii(title));
    }
}

bool IsElementSymbol(std::string_view text) {
    const auto isLower = [](char c) { return c >= 'a' && c <= 'z'; };
    return !text.empty() && text.size() <= 2 && text[0] >= 'A' && text[0] <= 'Z' &&
           (text.size() == 1 || isLower(text[1]));
}

void CheckFormula(TableRows& row) {
    const std::string formula = row.Required("FORMULA");
    if (formula.empty()) return;
    const std::string canonical = CanonicalFormula(formula);
    if (canonical.empty())
        row.Tell(Quoted(formula) + " is no formula");
    else
        row.Expect(formula == canonical, "the formula " + Quoted(formula) +
                                             " is not canonical, that is " + Quoted(canonical));
}

void CompareMass(TableRows& row, double mass, const AbridgedWeight& abridged) {
    // Half of the fifth figure, and isotopes that are some units apart.
    const double tolerance = abridged.isMassNumber ? 0.03 : 1e-4;
    row.Expect(std::abs(mass - abridged.weight) <= tolerance * abridged.weight,
               "the mass " + NumberText(mass) + " of " + Quoted(abridged.symbol) +
                   " differs from " + NumberText(abridged.weight) + " of a second list");
}

void ExpectWidth(TableRows& row, const char* field, std::size_t width) {
    row.Expect(CodePointCount(row.Text(field)) == width,
               std::string(field) + " is not " + std::to_string(width) + " characters wide");
}

} // namespace

void CheckLists(const Database& vocabulary, RowRemarks& findings) {
    CheckTitles(vocabulary, "Journals", "ShortTitle", findings);
    CheckTitles(vocabulary, "Publishers", "Publisher", findings);
    for (TableRows row(vocabulary, "Reactions", findings); !row.IsEnd(); row.MoveNext())
        CheckListRow(row, "RCode", "RType");
    for (TableRows row(vocabulary, "Purification", findings); !row.IsEnd(); row.MoveNext()) {
        CheckListRow(row, "Code", "Method");
        CheckSampleCode(row);
        const std::string code = row.Text("Code");
        for (const std::string_view mark : SampleMarks)
            row.Expect(code == mark || code.find(mark) == code.npos,
                       Quoted(code) + " holds " + Quoted(mark) + ", which marks a sample");
    }
    for (TableRows row(vocabulary, "PurityDetermination", findings); !row.IsEnd(); row.MoveNext()) {
        CheckListRow(row, "Code", "Method");
        CheckSampleCode(row);
        const std::int64_t rating = row.Integer("Rating");
        row.Expect(rating >= 1 && rating <= HighestRating, "the rating is not from 1 to 251");
    }
}

void CheckAtomicMasses(const Database& vocabulary, RowRemarks& findings) {
    std::map<std::string, AbridgedWeight> weights;
    for (const AbridgedWeight& weight : AbridgedWeights())
        weights.emplace(weight.symbol, weight);
    for (TableRows row(vocabulary, "AMASS", findings); !row.IsEnd(); row.MoveNext()) {
        const std::string symbol = row.Required("SYMBOL");
        row.Expect(IsElementSymbol(symbol) && symbol != "Xx" && symbol != "R",
                   Quoted(symbol) + " is no symbol of an element");
        row.ExpectOnce("the symbol", symbol);
        // Even hydrogen (1.008 g/mol) is above 1.
        const double mass = row.Number("AMASS");
        row.Expect(mass > 1, "the mass of " + Quoted(symbol) + " is not above 1");
        const auto found = weights.extract(symbol);
        if (mass > 1 && found) CompareMass(row, mass, found.mapped());
    }
    for (const auto& [symbol, weight] : weights)
        findings.push_back({"AMASS", 0, "the element " + Quoted(symbol) + " is missing", false});
}

void CheckCompounds(const Database& compounds, RowRemarks& findings) {
    std::map<std::int64_t, std::string> formulas;
    std::unordered_map<std::string, std::int64_t> numbers; // of each name, whatever its case
    for (TableRows row(compounds, "ALLNAME", findings); !row.IsEnd(); row.MoveNext()) {
        const std::int64_t rn = row.Integer("RN");
        row.Expect(IsRegistryNumber(rn) && rn != EmptySlotNumber,
                   std::to_string(rn) + " is no registry number, or its check digit is wrong");
        const std::string name = row.Required("NAME");
        // Synonyms have rows of their own; one that stands twice would be offered twice.
        row.ExpectOnce("for " + std::to_string(rn) + " the name", LowerAscii(name));
        const std::int64_t known = numbers.emplace(LowerAscii(name), rn).first->second;
        row.Expect(known == rn, Quoted(name) + " is a name of " + std::to_string(known) + " too");
        CheckFormula(row);
        // The molar mass of data is taken from the first row found.
        const std::string& first = formulas.emplace(rn, row.Text("FORMULA")).first->second;
        row.Expect(first == row.Text("FORMULA"),
                   std::to_string(rn) + " has the formula " + Quoted(first) + " in an earlier row");
    }
}

void CheckSources(const Database& compounds, RowRemarks& findings) {
    RowRemarks found;
    for (TableRows row(compounds, "SOURCE_REFINFO", found); !row.IsEnd(); row.MoveNext()) {
        const std::int64_t year = row.Integer("YEARPUB");
        row.Expect(year >= 1000 && year <= 9999, "the year has not four digits");
        row.Required("AUTHOR1");
        row.Required("SOURCE");
    }
    for (TableRows row(compounds, "SOURCE_AUTHOR", found); !row.IsEnd(); row.MoveNext()) {
        row.Required("FULLNM");
        // Authors are found by both, padded with blanks to these widths.
        ExpectWidth(row, "LASTNM", 6);
        ExpectWidth(row, "INITNM", 3);
    }
    // A fresh installation has no sources yet.
    std::erase_if(found, [](const RowRemark& finding) { return finding.row == 0; });
    findings.insert(findings.end(), found.begin(), found.end());
}

} // namespace vexora

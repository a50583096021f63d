#include <algorithm>
#include <map>

#include "chem/TableChecks.h"
#include "chem/clsAtom.h"
#include "reference/Text.h"

namespace vexora {

namespace {

/// Three groups of 14, 10 and 1 capital letters with hyphens between them.
bool IsStructureKey(std::string_view text) {
    constexpr std::string_view form = "AAAAAAAAAAAAAA-AAAAAAAAAA-A";
    return std::ranges::equal(text, form, [](char c, char wanted) {
        return wanted == '-' ? c == '-' : c >= 'A' && c <= 'Z';
    });
}

/// The formula in a structure text; "" where it is not that of the compound: salts are written in
/// their parts, isotopes and protons by layers of their own.
std::string FormulaIn(std::string_view inchi) {
    const std::vector<std::string> layers = Split(inchi, '/');
    const auto isOther = [](const std::string& layer) {
        return layer.starts_with('p') || layer.starts_with('i');
    };
    if (layers.size() < 2 || layers[1].find('.') != std::string::npos) return "";
    return std::ranges::any_of(layers, isOther) ? "" : CanonicalFormula(layers[1]);
}

} // namespace

void CheckIdentifiers(const Database& compounds, RowRemarks& findings) {
    if (!compounds.HasTable("Identifiers")) return; // of an earlier edition
    std::map<std::int64_t, std::string> formulas;
    for (Recordset rows = compounds.Query("select RN, FORMULA from ALLNAME"); !rows.IsEnd();
         rows.MoveNext())
        formulas.emplace(rows.Integer("RN"), rows.Text("FORMULA"));
    RowRemarks found;
    for (TableRows row(compounds, "Identifiers", found); !row.IsEnd(); row.MoveNext()) {
        const auto known = formulas.find(row.Integer("RN"));
        row.Expect(known != formulas.end(),
                   std::to_string(row.Integer("RN")) + " is the number of no compound");
        const std::string inchi = row.Required("InChI");
        row.Expect(inchi.starts_with("InChI=1S/"), Quoted(inchi) + " is no standard InChI");
        row.Expect(IsStructureKey(row.Text("InChIKey")),
                   Quoted(row.Text("InChIKey")) + " is no InChIKey");
        row.Required("SMILES");
        const std::string formula = FormulaIn(inchi);
        if (known != formulas.end() && !formula.empty())
            row.Expect(formula == known->second, Quoted(inchi) + " is not of " + known->second);
    }
    // A table of one's own may do without them.
    std::erase_if(found, [](const RowRemark& finding) { return finding.row == 0; });
    findings.insert(findings.end(), found.begin(), found.end());
}

} // namespace vexora

// The lines that all bio sets have.
#include "records/BioLines.h"
#include "records/BioSet.h"
#include "records/LineWriter.h"
#include "records/SetLines.h"
#include "records/clsL.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr std::string_view RoleLetters = "PVC"; // in the order of BioRole

} // namespace

std::string RunTogether(std::string_view text) {
    std::string word;
    WordReader parts(text);
    while (!parts.AtEnd()) {
        const std::string_view part = parts.NextWord();
        if (part.empty()) continue; // of a run of blanks
        word.append(word.empty() ? "" : "_").append(part);
    }
    return word;
}

std::string NextText(WordReader& words) {
    return UnderscoresToBlanks(NextField(words));
}

int BioSetNumber(std::string_view word) {
    constexpr std::int64_t highest = 999'999'999;
    const std::int64_t number = IsNumeric(word) ? ToInteger(Val(word)) : 0;
    return number > 0 && number <= highest ? static_cast<int>(number) : 0;
}

CompoundWords WordsOf(const BioSet& set, std::string_view key) {
    const auto compound = set.CompoundOf(key);
    if (!compound) return {{}, {}, "0", "0", {}, {}};
    return {RunTogether(compound->Name), compound->Formula,
            NumberText(compound->MMass), std::to_string(compound->Charge),
            RunTogether(compound->EC),   RunTogether(compound->PDB)};
}

BioQuantity ReadQuantity(WordReader& words, const BioSet& set, bool* knowsRole) {
    BioQuantity quantity;
    quantity.code = NextField(words);
    quantity.unit = NextText(words);
    quantity.phase = NextField(words);
    quantity.component = NextField(words);
    quantity.uncertainty = NextField(words);
    const std::string role = NextField(words);
    quantity.value = NextField(words);
    const std::size_t place = role.size() == 1 ? RoleLetters.find(role) : std::string::npos;
    *knowsRole = place != std::string::npos || role.empty();
    if (place != std::string::npos) {
        quantity.role = static_cast<BioRole>(place);
        return quantity;
    }
    quantity.role = BioRole::Variable;
    const BioQuantityText* const asVariable = set.TextOf(quantity);
    quantity.role = BioRole::Property;
    const bool isProperty = set.TextOf(quantity) && (!asVariable || asVariable->kind == "P");
    if (!isProperty) quantity.role = BioRole::Variable;
    return quantity;
}

void BioSet::PrintHeader(LineWriter& out) const {
    Header.PrintHeader(out, Header.DATACOMMENT);
}

void BioSet::PrintDefinition(LineWriter& out) const {
    const std::vector<std::string> keys = Keys();
    std::size_t at = keys.size() - Components.size();
    for (const BioComponent& component : Components)
        out.Fields(
            {"BC", keys[at++], RunTogether(component.function), component.phase, component.SMPNM},
            component.note);
    for (const BioQuantity& quantity : quantities_)
        out.Fields({"BV", quantity.code, RunTogether(quantity.unit), quantity.phase,
                    quantity.component, quantity.uncertainty,
                    std::string(1, RoleLetters[static_cast<std::size_t>(quantity.role)]),
                    quantity.value});
    out.Line("BE");
    out.Fields({"BM"}, Method);
}

void BioSet::PrintRows(LineWriter& out) const {
    const std::size_t columns = Columns();
    std::string line;
    for (const clsBD& row : recD) {
        line = "BD";
        for (std::size_t n = 0; n < columns; ++n) {
            const bool isThere = n < row.Cells.size();
            AppendField(line, isThere ? row.Cells[n].value.View() : "");
            if (quantities_[n].StatesByRow())
                AppendField(line, isThere ? row.Cells[n].uncertainty.View() : "");
        }
        out.Line(line);
    }
}

void BioSet::PrintStatements(LineWriter& out) const {
    for (std::size_t n = 0; n < recU.size() && n < quantities_.size(); ++n) {
        clsX statement = recU[n];
        statement.N = static_cast<int>(n);
        statement.SaveX(out, "");
    }
    SaveOthers(out, others_);
}

OpenRecord::Taken BioSet::LoadRow(std::string_view line) {
    WordReader words(line);
    if (words.NextWord() != "BD") return Taken::NoRows;
    clsBD& row = recD.emplace_back();
    row.Flag1 = Flag1;
    row.Flag2 = Flag2;
    const auto field = [&words] {
        const std::string_view word = words.NextWord();
        return word == "&" ? std::string_view() : word;
    };
    row.Cells.resize(Columns());
    for (std::size_t n = 0; n < row.Cells.size(); ++n) {
        row.Cells[n].value = field();
        if (quantities_[n].StatesByRow()) row.Cells[n].uncertainty = field();
    }
    return words.AtEnd() ? Taken::Yes : Taken::InPart;
}

Placement BioSet::AddX(const clsX& item) {
    clsX added = item;
    // A line may lack its number; then the code tells what it is about.
    for (std::size_t n = 0; n < quantities_.size() && added.N < 0; ++n)
        if (quantities_[n].code == added.PRPCODE) added.N = static_cast<int>(n);
    if (added.N < 0 || added.N >= static_cast<int>(recU.size())) {
        others_.push_back(added);
        return {};
    }
    clsX& present = recU[static_cast<std::size_t>(added.N)];
    const bool replaces = present.IsKept() && !added.SaysTheSame(present);
    present = added;
    return {added.N, replaces};
}

} // namespace vexora

#include "tables/FillRules.h"

#include <algorithm>
#include <set>

#include "records/clsM.h"
#include "records/clsMV.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "tables/StoredColumns.h"

namespace vexora {

namespace {

constexpr const char* TieError = "TIELINE error\nPlease try anothed tied data set";

bool IsState(std::string_view code) {
    return code == "T" || code == "P";
}

bool HasPlace(std::string_view code) {
    return IsState(code) || IsTableComposition(code);
}

/// What keeps a set out of the table, whatever stands beside it.
std::string WhyNotAlone(const clsMV& set) {
    if (!HasPlace(set.PRPCODE))
        return "Only compositions, temperatures and pressures of phases in equilibrium stand in "
               "this table.";
    if (set.Relation() != "A") return "Results relative to another state have no place here.";
    if (TablePhases(set).size() < 2) return "A table of phase equilibria needs two phases.";
    for (int n = 1; n <= set.nVar; ++n)
        if (!HasPlace(set.VARIABLE(n)))
            return "The table has no column for the variable " + VariableName(set.VARIABLE(n)) +
                   ".";
    for (int n = 1; n <= set.ConstraintCount(); ++n) {
        const std::string& code = set.CONSTRAINT(n);
        if (!IsBlankField(code) && !NamesPhase(code) && !IsState(code))
            return "The table has no column for the constraint " + VariableName(code) + ".";
    }
    for (int n = 0; n <= set.nVar; ++n)
        if (!set.Conversion(n).IsPossible()) return "A unit of the set is not known.";
    return {};
}

/// What sets in one table share: their components' samples, phases and constants.
std::string SharedBy(const clsMV& set) {
    std::vector<std::string> parts = set.Phases();
    for (const HeldConstant& constant : set.Constants())
        parts.push_back(
            constant.code + " = " +
            DataSet::ConversionOf(constant.code, constant.unit).Converted(constant.value).text);
    std::ranges::sort(parts);
    std::string text =
        set.SMPNM1 + " " + set.SMPNM2 + " " + set.SMPNM3 + " " + std::to_string(set.nVar);
    for (const std::string& part : parts)
        text += "; " + part;
    return text;
}

std::string IdentityOf(const clsMV& set) {
    std::string text;
    for (int n = 0; n <= set.nVar; ++n)
        text += set.VARIABLE(n) + " " + set.PhaseFor(n) + " ";
    return text;
}

std::string WhyNotTogether(const std::vector<std::shared_ptr<clsMV>>& sets) {
    std::set<std::string> identities;
    for (const auto& set : sets) {
        if (SharedBy(*set) != SharedBy(*sets.front()))
            return "The tied sets are not of the same samples, phases, constants and number of "
                   "variables:\n" +
                   sets.front()->ShowKey() + "\n" + set->ShowKey();
        if (!identities.insert(IdentityOf(*set)).second)
            return "Two of the tied sets hold the same property against the same variables. In one "
                   "table they would become one:\n" +
                   set->ShowKey();
    }
    return {};
}

bool HasTieError(const std::vector<std::shared_ptr<clsMV>>& sets) {
    bool isTied = false;
    for (const auto& set : sets)
        for (const clsData& row : set->recData) {
            if (IsBlankField(row.TIELINE)) continue;
            isTied = true;
            if (!IsNumeric(row.TIELINE)) return true;
        }
    return isTied && sets.size() < 2;
}

} // namespace

std::string WhyNotInTable(const std::vector<std::shared_ptr<clsMV>>& sets) {
    if (sets.empty()) return "There is no data set to show.";
    for (const auto& set : sets)
        if (const std::string why = WhyNotAlone(*set); !why.empty())
            return why + "\n" + set->ShowKey();
    return HasTieError(sets) ? TieError : WhyNotTogether(sets);
}

} // namespace vexora

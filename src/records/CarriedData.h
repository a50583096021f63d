// What rows of a mixture take along when they become data of a lower system, and when such data are
// there already.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "records/DataSet.h"
#include "records/Quantity.h"
#include "records/SingleValue.h"

namespace vexora {

class CommentTags;

constexpr double NormalPressure = 101.325; // [kPa], of what is marked as under one atmosphere

/// The row with the quantity of places[n] in place n, 0 the property. Texts, counts of digits and
/// statements go along, the tie number too.
clsData CarriedRow(const clsData& row, const std::vector<int>& places);
/// The statement of a set about its property with what one of its rows says itself, for a value
/// that stands alone.
clsX CarriedStatement(const clsX& ofSet, const clsData& row);
/// Gives a value the figures of a row, with what the set states about them.
void CarryFigures(SingleValue& value, const DataSet& set, const clsX& ofSet, const clsData& row);

/// A constant, and what is stated about it, in its system unit.
HeldConstant InSystemUnit(const HeldConstant& constant);
clsX InSystemUnit(const clsX& statement, const HeldConstant& constant);
/// Puts a constant among the tags, ":FP:" for one atmosphere.
void StateConstant(CommentTags& tags, const HeldConstant& constant);

// Keys of what has to agree: equal texts mean the same.

/// The unit of a property by what a record keeps of it.
std::string KeyOfUnit(const std::string& unit, double factor, bool isOriginal,
                      const std::string& systemUnit);
std::string KeyOfUnit(const std::string& unit);
std::string KeyOfUnit(const DataSet& set);
std::string KeyOfUnit(const SingleValue& value);
/// The state variables that the tags hold constant.
std::string KeyOfConstants(const clsA& header);
std::string KeyOfMethod(const clsA& header);
std::string KeyOfPhase(std::string_view phase);
/// The texts of the values of a row, with its tie number.
std::string KeyOfRow(const clsData& row);

/// Both state the same about their quantities, so that a row may pass from one to the other.
bool StateTheSame(const DataSet& one, const DataSet& other);

/// The place of rows that go over to one kind of set: a set of the document that takes them, and
/// what is there already in any that could.
template <class Set>
struct RowTarget {
    std::shared_ptr<Set> made; // what is attached when no set of the document takes the rows
    std::shared_ptr<Set> set;  // the one that takes them, null until a row comes
    std::unordered_set<std::string> known;
    bool isShown = false; // the tree shows what has come in

    /// `alike` has the same definition as `made`.
    void Look(const std::shared_ptr<Set>& alike) {
        for (const clsData& row : alike->recData)
            known.insert(KeyOfRow(row));
        const bool sameUnits =
            alike->recData.IsEmpty() || alike->isOriginalUnit == made->isOriginalUnit;
        if (!set && sameUnits && KeyOfMethod(alike->Header) == KeyOfMethod(made->Header) &&
            StateTheSame(*alike, *made))
            set = alike;
    }
};

} // namespace vexora

#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "records/CarriedData.h"
#include "records/clsMV.h"

namespace vexora {

class clsM;
class clsMZ;

/// Rows of a ternary set in which one component is absent, as data of the binary of the other two:
/// what is said of that component goes, the others are renumbered. With no variable left each row
/// is a value by itself.
class BinaryOfTernary {
public:
    /// The set has to stay while this is used.
    BinaryOfTernary(const clsMV& set, int absent);
    /// Adds what the row tells to the binary, which is made when the source has none, unless it is
    /// there already; true when it did. A row that has no place there leaves words to the user.
    bool Take(const clsData& row, std::string& fault);
    /// Rows become single values.
    bool MakesValues() const { return variables_.empty(); }

private:
    void Prepare();
    bool TakePhases();
    bool TakeQuantities();
    bool IsFractionBeside(const std::string& code, const std::string& phase) const;
    void DropSecondFractions();
    std::optional<std::string> GetCode(const std::string& code) const;
    std::string SolventLeft() const;

    void FindMixture();
    std::array<int, 4> Numbers() const;
    clsA Header() const;
    std::shared_ptr<clsMV> NewSet(bool isOriginal) const;
    std::shared_ptr<clsMZ> NewValue(const clsData& row) const;
    RowTarget<clsMV>& TargetFor(const clsData& row);
    void Attach();
    bool TakeSet(const clsData& row);
    bool TakeValue(const clsData& row);

    const clsMV& set_;
    int absent_;
    std::string fault_;
    bool isSilent_ = false; // the property is one of the component that is not there

    /// A quantity that stays, with its place in the rows of the set.
    struct Variable {
        MixtureVariable is;
        int place = 0;
    };
    /// The same of a slot, with its number in the set.
    struct Slot {
        ConstraintSlot is;
        int number = 0;
    };
    std::string code_; // of the property, under the numbers of the ternary as the others
    std::vector<Variable> variables_;
    std::vector<Slot> slots_;

    std::shared_ptr<clsM> mixture_; // stands in the document only when it has got data
    std::array<std::optional<RowTarget<clsMV>>, 2> targets_; // by unit of the rows
    std::optional<std::unordered_set<std::string>> values_;  // that the mixture has
};

} // namespace vexora

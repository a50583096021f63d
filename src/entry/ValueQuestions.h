#pragma once

#include <set>
#include <string>
#include <utility>

#include "chem/clsProperty.h"

namespace vexora {

/// Says a doubt about a value in a box, or asks whether the value may stand: true on Yes.
/// False for what is no question, for there is nothing to confirm.
bool ConfirmInBox(const ValueDoubt& doubt);

/// The answers of one run over many rows. The question about a suspicious value offers "Yes to
/// All": it then holds for the same item until the end of the run, and the same value of an item is
/// not asked about twice.
/// Made for one run and gone with it: the next evaluation asks again.
class SuspicionsOfRun {
public:
    /// As ConfirmInBox; nothing is asked where the answer is known.
    bool Confirm(const ValueDoubt& doubt);

private:
    std::set<std::string> allOf_;
    std::set<std::pair<std::string, double>> confirmed_;
};

} // namespace vexora

#include <cmath>
#include <string>

#include "FuzzRoom.h"
#include "Target.h"
#include "chem/PrintedFormula.h"
#include "chem/clsAtom.h"

namespace vexora::fuzz {

void Try(std::string_view text) {
    static Room room;
    const std::string canonical = CanonicalFormula(text);
    const double mass = MolarMassOfFormula(text);
    Must(mass >= 0, "a molar mass is no less than 0");
    HydrateReading(text);
    PrintedFormula(text);
    if (canonical.empty()) return;
    Must(CanonicalFormula(canonical) == canonical, "the canonical text is its own");
    const double again = MolarMassOfFormula(canonical);
    Must(std::abs(again - mass) <= 1e-6 * mass, "the canonical text has the same mass");
}

} // namespace vexora::fuzz

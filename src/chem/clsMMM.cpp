#include "chem/clsMMM.h"

#include <algorithm>
#include <cstddef>

namespace vexora {

namespace {

constexpr double Kilogram = 1000;     // [g], of the solvent in a molality
constexpr double UnstatedPurity = 95; // [%], a usual figure for a chemical of which none is told

} // namespace

clsMMM::Kind clsMMM::KindOf(std::string_view code, int n) {
    if (code.empty()) return Kind::None;
    // Of another component the value would be taken for the wrong one.
    if (code.size() < 2 || code[1] != static_cast<char>('0' + n)) return Kind::Other;
    const bool inSolvent = code.size() == 3 && code[2] == 'S';
    if (code.size() > 2 && !inSolvent) return Kind::Other;
    switch (code.front()) {
    case 'X':
        return inSolvent ? Kind::MoleInSolvent : Kind::Mole;
    case 'M':
        return inSolvent ? Kind::MolalityInSolvent : Kind::Molality;
    case 'W':
        return inSolvent ? Kind::Other : Kind::Mass;
    case 'V':
        return inSolvent ? Kind::Other : Kind::Volume;
    case 'J':
        return inSolvent ? Kind::Other : Kind::Molarity;
    default:
        return Kind::Other;
    }
}

clsMMM::Slot* clsMMM::Find(int n) {
    return n >= 1 && n <= 3 ? &slots_[static_cast<std::size_t>(n - 1)] : nullptr;
}

const clsMMM::Slot* clsMMM::Find(int n) const {
    return n >= 1 && n <= 3 ? &slots_[static_cast<std::size_t>(n - 1)] : nullptr;
}

double clsMMM::getMM(int n) const {
    const Slot* slot = Find(n);
    return slot ? slot->molarMass : 0;
}

void clsMMM::SetComponents(int nComp, const std::array<double, 3>& molarMasses) {
    nComp_ = nComp;
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        slots_[i].molarMass = molarMasses[i];
        slots_[i].purity = UnstatedPurity;
    }
}

void clsMMM::SetVariable(int n, std::uint16_t location, std::string_view code, double value) {
    Slot* slot = Find(n);
    if (!slot) return;
    slot->code = code;
    slot->kind = KindOf(code, n);
    slot->location = location;
    slot->value = value;
}

void clsMMM::SetVal(int n, double value) {
    if (Slot* slot = Find(n)) slot->value = value;
}

std::uint16_t clsMMM::GetLocation(int n) const {
    const Slot* slot = Find(n);
    return slot ? slot->location : NoLocation;
}

void clsMMM::Clear() {
    for (Slot& slot : slots_) {
        slot.code.clear();
        slot.kind = Kind::None;
        slot.location = NoLocation;
    }
}

void clsMMM::SetIndPurity(int n, double purity) {
    if (Slot* slot = Find(n)) slot->purity = purity > 0 ? purity : UnstatedPurity;
}

// The formulas below follow from the definitions of mole fraction, mass fraction and molality: mass
// of a portion divided by its amount. Portions are 1 mol, 1 g, and what holds 1 kg of solvent.

double clsMMM::Calculate() const {
    if (nComp_ != 2 && nComp_ != 3) return 0;
    // A figure made without one of the masses would pass for that of the mixture.
    const auto end = slots_.begin() + nComp_;
    if (!std::all_of(slots_.begin(), end, [](const Slot& slot) { return slot.molarMass > 0; }))
        return 0;
    return nComp_ == 2 ? BinaryMass() : TernaryMass();
}

double clsMMM::BinaryMass() const {
    // Should both have a code, the second component goes first.
    for (const std::size_t at : {1U, 0U}) {
        const Slot& a = slots_[at];
        const double other = slots_[1 - at].molarMass;
        const double v = a.value;
        if (a.kind == Kind::Mole) return (1 - v) * other + a.molarMass * v;
        if (a.kind == Kind::Mass) return 1 / ((1 - v) / other + v / a.molarMass);
        if (a.kind == Kind::Molality) return (a.molarMass * v + Kilogram) / (Kilogram / other + v);
    }
    return 0;
}

namespace {

/// A component of a solution by its molar mass [g/mol] and its fraction or molality.
struct Share {
    double mass, value;
};

/// The solute by its molality in a solvent of two, of which `second` has a molality in the first.
double MassInMixedSolvent(Share solute, Share second, double firstMass) {
    const double amountOfSolvent = (Kilogram / firstMass + second.value) * Kilogram /
                                   (second.mass * second.value + Kilogram); // mol/kg
    return (solute.mass * solute.value + Kilogram) / (amountOfSolvent + solute.value);
}

/// The solute by its mole fraction, `second` by that in the solvent without the solute.
double MassOfSolventFraction(Share solute, Share second, double firstMass) {
    const double ofSolvent = (1 - second.value) * firstMass + second.value * second.mass;
    return (1 - solute.value) * ofSolvent + solute.mass * solute.value;
}

} // namespace

double clsMMM::TernaryMass() const {
    const auto isSet = [this](std::size_t at) { return slots_[at].kind != Kind::None; };
    const std::size_t first = isSet(1) && isSet(2) ? 1 : 0;
    const std::size_t second = isSet(2) ? 2 : 1;
    const Slot& a = slots_[first];
    const Slot& b = slots_[second];
    const double mc = slots_[3 - first - second].molarMass;
    const Share inA{a.molarMass, a.value};
    const Share inB{b.molarMass, b.value};
    const auto are = [&](Kind ofA, Kind ofB) { return a.kind == ofA && b.kind == ofB; };
    const double rest = 1 - a.value - b.value;
    if (are(Kind::Mole, Kind::Mole)) return inA.mass * inA.value + inB.mass * inB.value + rest * mc;
    if (are(Kind::Mass, Kind::Mass))
        return 1 / (inA.value / inA.mass + inB.value / inB.mass + rest / mc);
    if (are(Kind::Molality, Kind::Molality))
        return (inA.mass * inA.value + inB.mass * inB.value + Kilogram) /
               (inA.value + inB.value + Kilogram / mc);
    if (are(Kind::MolalityInSolvent, Kind::Molality)) return MassInMixedSolvent(inB, inA, mc);
    if (are(Kind::Molality, Kind::MolalityInSolvent)) return MassInMixedSolvent(inA, inB, mc);
    if (are(Kind::MoleInSolvent, Kind::Mole)) return MassOfSolventFraction(inB, inA, mc);
    if (are(Kind::Mole, Kind::MoleInSolvent)) return MassOfSolventFraction(inA, inB, mc);
    return 0;
}

double clsMMM::Purity() const {
    const double weighted = nComp_ == 2 ? BinaryPurity() : nComp_ == 3 ? TernaryPurity() : 0;
    return weighted == 0 ? MeanPurity() : weighted;
}

double clsMMM::MeanPurity() const {
    if (nComp_ != 2 && nComp_ != 3) return 0;
    double sum = 0;
    for (std::size_t at = 0; at < static_cast<std::size_t>(nComp_); ++at)
        sum += slots_[at].purity;
    return sum / nComp_;
}

double clsMMM::BinaryPurity() const {
    const std::size_t at = slots_[1].kind != Kind::None ? 1 : 0;
    const Slot& a = slots_[at];
    const Slot& b = slots_[1 - at];
    if (a.kind == Kind::Mass || a.kind == Kind::Mole || a.kind == Kind::Volume)
        return (1 - a.value) * b.purity + a.value * a.purity;
    if (a.kind != Kind::Molality && a.kind != Kind::Molarity) return 0;
    // A litre of a dilute solution is near to a kilogram of solvent.
    const double mass = a.value * a.molarMass;
    return (mass * a.purity + Kilogram * b.purity) / (mass + Kilogram);
}

double clsMMM::TernaryPurity() const {
    const auto isSet = [this](std::size_t at) { return slots_[at].kind != Kind::None; };
    const std::size_t first = isSet(2) ? 2 : 1;
    const std::size_t second = isSet(2) && isSet(1) ? 1 : 0;
    const Slot& a = slots_[first];
    const Slot& b = slots_[second];
    const double pc = slots_[3 - first - second].purity;
    if (a.kind != b.kind) return 0;
    if (a.kind == Kind::Mass || a.kind == Kind::Mole)
        return a.purity * a.value + b.purity * b.value + (1 - a.value - b.value) * pc;
    if (a.kind != Kind::Molality && a.kind != Kind::Molarity) return 0;
    const double ofA = a.value * a.molarMass;
    const double ofB = b.value * b.molarMass;
    return (ofA * a.purity + ofB * b.purity + Kilogram * pc) / (ofA + ofB + Kilogram);
}

} // namespace vexora

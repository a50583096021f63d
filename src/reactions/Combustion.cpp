#include "reactions/Combustion.h"

#include "chem/clsAtom.h"
#include "records/clsQ.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>

namespace vexora {

namespace {

constexpr CombustionCompound Oxygen = {"O2", "oxygen", "7782447"};

/// A product, and the elements any of which calls for it.
struct Product {
    CombustionCompound compound;
    std::vector<std::string_view> elements;
};

const Product Products[] = {
    {{"N2", "nitrogen", "7727379"}, {"N"}},
    {{"H2O", "water", "7732185"}, {"H", "S", "F", "Cl"}},
    {{"ClH", "hydrogen chloride", "7647010"}, {"Cl"}},
    {{"FH", "hydrogen fluoride", "7664393"}, {"F"}},
    {{"H2O4S", "sulfuric acid", "7664939"}, {"S"}},
    {{"CO2", "carbon dioxide", "124389"}, {"C"}},
};

std::set<std::string, std::less<>> ElementsOf(std::string_view formula) {
    clsAtom atoms;
    atoms.Build(formula);
    std::set<std::string, std::less<>> elements;
    for (const clsAtom* atom = &atoms; atom; atom = atom->nextAtom.get())
        elements.insert(atom->Symbol);
    return elements;
}

/// What stands in the places of a reaction.
struct Places {
    explicit Places(const clsQ& reaction) {
        for (int i = 1; i <= clsQ::MostParticipants; ++i)
            slots.push_back({reaction.RN(i), reaction.Coeff(i), reaction.SMPNM(i)});
    }
    void PutInto(clsQ& reaction) const {
        for (int i = 1; i <= clsQ::MostParticipants; ++i) {
            const Slot& slot = slots[static_cast<std::size_t>(i - 1)];
            reaction.RN(i, slot.rn);
            reaction.Coeff(i, slot.coefficient);
            reaction.SMPNM(i, slot.sample);
        }
    }

    struct Slot {
        std::string rn, coefficient, sample;
    };
    /// The first slot behind the second that has this number, null for none; "" is a free one.
    Slot* Find(std::string_view rn) {
        const auto found = std::find_if(slots.begin() + 2, slots.end(),
                                        [rn](const Slot& slot) { return slot.rn == rn; });
        return found == slots.end() ? nullptr : &*found;
    }
    bool Has(std::string_view rn) const {
        return std::ranges::any_of(slots, [rn](const Slot& slot) { return slot.rn == rn; });
    }
    std::vector<Slot> slots;
};

bool BringOxygen(Places& places) {
    Places::Slot& second = places.slots[1];
    if (second.rn == Oxygen.rn) return true;
    Places::Slot oxygen = {std::string(Oxygen.rn), {}, {}};
    // Where it stands elsewhere the two change places.
    Places::Slot* const elsewhere = places.Find(Oxygen.rn);
    if (elsewhere) oxygen = *elsewhere;
    Places::Slot* const room = elsewhere ? elsewhere : places.Find("");
    if (!second.rn.empty()) {
        if (!room) return false;
        *room = second;
    } else if (elsewhere) {
        *elsewhere = {};
    }
    second = oxygen;
    return true;
}

} // namespace

CombustionCompound OxygenOfCombustion() {
    return Oxygen;
}

std::vector<CombustionCompound> ProductsOfCombustion(std::string_view formula) {
    const auto elements = ElementsOf(formula);
    std::vector<CombustionCompound> products;
    for (const Product& product : Products)
        if (std::ranges::any_of(product.elements,
                                [&](std::string_view e) { return elements.contains(e); }))
            products.push_back(product.compound);
    return products;
}

bool CompleteCombustion(clsQ& reaction, const std::vector<CombustionCompound>& products) {
    Places places(reaction);
    if (!BringOxygen(places)) return false;
    for (const CombustionCompound& product : products) {
        if (places.Has(product.rn)) continue;
        Places::Slot* const room = places.Find("");
        if (!room) return false;
        room->rn = product.rn;
    }
    places.PutInto(reaction);
    return true;
}

} // namespace vexora

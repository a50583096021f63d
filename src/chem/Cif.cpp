#include "chem/Cif.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "chem/CifText.h"
#include "chem/SpaceGroups.h"
#include "chem/clsAtom.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr std::size_t MostAtoms = 5000;
constexpr std::size_t MostLetters = 40; // of a number or symbol
constexpr const char* CellNames[] = {"_cell_length_a",    "_cell_length_b",   "_cell_length_c",
                                     "_cell_angle_alpha", "_cell_angle_beta", "_cell_angle_gamma"};
constexpr const char* PlaceNames[] = {"_atom_site_fract_x", "_atom_site_fract_y",
                                      "_atom_site_fract_z"};

bool AllDigits(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

/// "3" behind a number with three decimals is "0.003".
std::string UncertaintyOf(std::string_view number, std::string digits) {
    const std::size_t point = number.find('.');
    const std::size_t decimals = point == number.npos ? 0 : number.size() - point - 1;
    if (decimals == 0) return digits;
    if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
    return digits.insert(digits.size() - decimals, 1, '.');
}

/// "O" of "O2-" and "OW1", "Ca" of "Ca1"; the letters in front decide, and two of them are one
/// symbol only where they are those of an element.
std::string ElementOf(std::string_view label) {
    std::string letters;
    for (const char c : label) {
        const bool isLetter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (!isLetter) break;
        letters += c;
    }
    if (letters.empty()) return std::string(label.substr(0, MostLetters));
    const std::string first = UpperAscii(letters.substr(0, 1));
    if (letters.size() == 1) return first;
    const std::string both = first + LowerAscii(letters.substr(1, 1));
    const bool meansBoth = letters.size() == 2 || both[1] == letters[1];
    return meansBoth && MolarMassOfFormula(both) > 0 ? both : first;
}

std::string Listed(const std::map<std::string, int>& counts) {
    std::string text;
    for (const auto& [name, count] : counts)
        text += (text.empty() ? "" : ", ") + std::to_string(count) + " " + name;
    return text;
}

/// Takes the structure out of a block.
class BlockReader {
public:
    BlockReader(const CifBlock& block, CifReading& reading)
        : block_(block), reading_(reading), structure_(reading.structure) {}

    void Read() {
        structure_.block = block_.name;
        for (std::size_t n = 0; n < structure_.cell.size(); ++n)
            ReadConstant(n);
        ReadSpaceGroup();
        ReadContent();
        if (reading_.fault.empty()) ReadAtoms();
        if (reading_.fault.empty()) TellWhatIsLeft();
    }

private:
    void Fail(int line, const std::string& what) {
        if (reading_.fault.empty()) reading_.fault = "Line " + std::to_string(line) + ": " + what;
    }
    void Tell(std::string what) { structure_.told.push_back(std::move(what)); }

    const CifItem* Find(const std::string& name) {
        const auto found = block_.items.find(name);
        if (found == block_.items.end()) return nullptr;
        used_.insert(name);
        return &found->second;
    }
    /// The text of an item that stands once, empty for none.
    std::string TextOf(const std::string& name) {
        const CifItem* item = Find(name);
        if (!item || item->values.front().IsMissing()) return {};
        return std::string(Trim(SingleLine(item->values.front().text)));
    }

    /// Newer dictionaries give the uncertainty a name of its own.
    void Number(const std::string& name, std::size_t row, CifNumber& number) {
        const CifItem* item = Find(name);
        if (!item || item->values[row].IsMissing()) return;
        const std::string& text = item->values[row].text;
        if (text.size() > MostLetters || !ReadCifNumber(text, number))
            return Fail(item->values[row].line,
                        name + " is no number: \"" + text.substr(0, MostLetters) + "\"");
        const CifItem* apart = Find(name + "_su");
        if (!apart || row >= apart->values.size() || !number.uncertainty.empty()) return;
        if (NumberIn(apart->values[row].text)) number.uncertainty = apart->values[row].text;
    }

    void ReadConstant(std::size_t n) {
        CifNumber& number = structure_.cell.at(n);
        Number(CellNames[n], 0, number);
        if (!reading_.fault.empty()) return;
        const double value = Val(number.value);
        const bool isPossible = value > 0 && (n < 3 || value < 180);
        if (number.value.empty())
            Tell(std::string("The CIF does not state ") + CellNames[n]);
        else if (!isPossible)
            Fail(Find(CellNames[n])->values.front().line,
                 std::string(CellNames[n]) + " cannot be " + number.value);
    }

    void ReadSpaceGroup() {
        std::string name;
        for (const char* item : {"_space_group_name_h-m_alt", "_symmetry_space_group_name_h-m"})
            if (const std::string text = TextOf(item); name.empty()) name = text;
        std::string number;
        for (const char* item : {"_space_group_it_number", "_symmetry_int_tables_number"})
            if (const std::string text = TextOf(item); number.empty()) number = text;
        const int itNumber = AllDigits(number) ? static_cast<int>(Val(number.substr(0, 4))) : 0;
        structure_.spaceGroup = SymbolOf(name);
        const bool isGroup = itNumber >= 1 && itNumber <= 230;
        if (name.empty() && isGroup) {
            structure_.spaceGroup = SpaceGroupSymbols()[static_cast<std::size_t>(itNumber) - 1];
            Tell("The space group is given by its number alone: " + number + " is " +
                 structure_.spaceGroup);
        } else if (name.empty()) {
            Tell("The CIF names no space group");
        } else if (const int known = SpaceGroupNumber(structure_.spaceGroup);
                   isGroup && known != 0 && known != itNumber) {
            Tell("The space group " + structure_.spaceGroup + " has the number " +
                 std::to_string(known) + ", the CIF says " + number);
        }
    }

    /// Without blanks; the choice of origin or axes behind a colon has no place in a symbol, and a
    /// full monoclinic symbol with the usual axis is that of the list.
    std::string SymbolOf(std::string_view name) {
        std::string symbol = Replace(Replace(name.substr(0, name.find(':')), " ", ""), "_", "");
        if (symbol.size() > MostLetters) {
            Tell("The name of the space group is too long for one: " +
                 symbol.substr(0, MostLetters));
            return {};
        }
        if (name.find(':') != name.npos)
            Tell("The choice of origin or axes of \"" + std::string(name) + "\" is left out");
        if (SpaceGroupNumber(symbol) == 0 && symbol.size() > 3 && symbol[1] == '1' &&
            symbol.ends_with('1')) {
            const std::string brief = symbol[0] + symbol.substr(2, symbol.size() - 3);
            if (SystemOfSymbol(brief) == CrystalSystem::Monoclinic) {
                Tell("The space group \"" + std::string(name) + "\" is taken as " + brief);
                return brief;
            }
        }
        return symbol;
    }

    void ReadContent() {
        const std::string units = TextOf("_cell_formula_units_z");
        if (IsNumeric(units) && Val(units) > 0)
            structure_.units = Val(units);
        else if (!units.empty())
            Tell("The number of formula units is none: " + units.substr(0, MostLetters));
        const std::string formula = TextOf("_chemical_formula_sum");
        structure_.formula = CanonicalFormula(Replace(formula, " ", ""));
        if (!formula.empty() && structure_.formula.empty())
            Tell("The formula is not understood: " + formula.substr(0, MostLetters));
    }

    void ReadAtoms() {
        const CifItem* x = Find(PlaceNames[0]);
        if (!x) return Tell("The CIF has no atoms with coordinates");
        for (const char* name : PlaceNames)
            if (const CifItem* item = Find(name); !item || item->loop != x->loop)
                return Fail(x->line, "the atoms have x, but no " + std::string(name));
        if (x->values.size() > MostAtoms)
            return Fail(x->line, "more than " + std::to_string(MostAtoms) + " atoms");
        symbols_ = InLoopOf(*x, "_atom_site_type_symbol");
        labels_ = InLoopOf(*x, "_atom_site_label");
        occupancies_ = InLoopOf(*x, "_atom_site_occupancy");
        if (!symbols_ && !labels_)
            return Fail(x->line, "the atoms have neither a label nor a symbol");
        for (std::size_t row = 0; row < x->values.size() && reading_.fault.empty(); ++row)
            ReadAtom(row);
        if (!others_.empty())
            Tell("Only H, C, N and O have a place here; left out: " + Listed(others_));
        if (withoutPlace_ > 0)
            Tell(std::to_string(withoutPlace_) + " atoms without coordinates are left out");
        if (fullSites_ > 0)
            Tell("Where the CIF states no occupancy, it is 1 (" + std::to_string(fullSites_) +
                 " atoms)");
        if (roundedSites_ > 0)
            Tell("The uncertainty of an occupancy has no place here (" +
                 std::to_string(roundedSites_) + " atoms)");
    }

    const CifItem* InLoopOf(const CifItem& x, const std::string& name) {
        const CifItem* item = Find(name);
        return item && item->loop == x.loop ? item : nullptr;
    }

    std::string SymbolOfAtom(std::size_t row) const {
        for (const CifItem* item : {symbols_, labels_})
            if (item && !item->values[row].IsMissing()) return ElementOf(item->values[row].text);
        return "without symbol";
    }

    void ReadAtom(std::size_t row) {
        CifAtom atom;
        atom.symbol = SymbolOfAtom(row);
        if (!IsOneOf(atom.symbol, {"H", "C", "N", "O"})) {
            ++others_[atom.symbol];
            return;
        }
        for (std::size_t n = 0; n < 3; ++n)
            Number(PlaceNames[n], row, atom.position.at(n));
        const auto isMissing = [](const CifNumber& number) { return number.value.empty(); };
        if (std::ranges::any_of(atom.position, isMissing)) {
            ++withoutPlace_;
            return;
        }
        CifNumber occupancy;
        if (occupancies_) Number("_atom_site_occupancy", row, occupancy);
        if (!occupancy.uncertainty.empty()) ++roundedSites_;
        if (occupancy.value.empty()) ++fullSites_;
        atom.occupancy = occupancy.value.empty() ? "1" : occupancy.value;
        structure_.atoms.push_back(std::move(atom));
    }

    void TellWhatIsLeft() {
        const auto distances = block_.items.find("_geom_bond_distance");
        if (distances != block_.items.end())
            Tell(std::to_string(distances->second.values.size()) +
                 " distances of the CIF are left out: they name atoms by labels");
        std::size_t rest = 0;
        for (const auto& [name, item] : block_.items)
            rest += used_.contains(name) || name.starts_with("_geom_bond_") ? 0 : 1;
        if (rest > 0) Tell(std::to_string(rest) + " further items of the CIF have no place here");
    }

    const CifBlock& block_;
    CifReading& reading_;
    CifStructure& structure_;
    std::set<std::string> used_;
    const CifItem *symbols_ = nullptr, *labels_ = nullptr, *occupancies_ = nullptr;
    std::map<std::string, int> others_;
    int withoutPlace_ = 0, fullSites_ = 0, roundedSites_ = 0;
};

} // namespace

bool ReadCifNumber(std::string_view text, CifNumber& number) {
    number = {};
    const std::size_t bracket = text.find('(');
    const std::string_view value = text.substr(0, bracket);
    if (!NumberIn(value) || value.find(' ') != value.npos) return false;
    if (bracket != text.npos) {
        if (!text.ends_with(')')) return false;
        const std::string_view digits = text.substr(bracket + 1, text.size() - bracket - 2);
        if (!AllDigits(digits) || value.find_first_of("eE") != value.npos) return false;
        number.uncertainty = UncertaintyOf(value, std::string(digits));
    }
    number.value = value;
    return true;
}

CifReading ReadCif(std::string_view text) {
    CifReading reading;
    CifBlocks read = ReadCifBlocks(text);
    reading.fault = read.fault;
    if (!reading.fault.empty()) return reading;
    const auto hasCell = [](const CifBlock& block) { return block.items.contains(CellNames[0]); };
    const auto block = std::ranges::find_if(read.blocks, hasCell);
    if (block == read.blocks.end()) {
        reading.fault = "The CIF has no cell constants";
        return reading;
    }
    if (read.blocks.size() > 1)
        reading.structure.told.push_back("The CIF has " + std::to_string(read.blocks.size()) +
                                         " data blocks; \"" + block->name +
                                         "\" is the first with a cell, the others are left out");
    BlockReader(*block, reading).Read();
    if (!reading.fault.empty()) reading.structure = {};
    return reading;
}

} // namespace vexora

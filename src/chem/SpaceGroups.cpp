#include "chem/SpaceGroups.h"

#include <array>
#include <unordered_map>
#include <utility>

#include "reference/Text.h"

namespace vexora {

namespace {

constexpr std::array<std::string_view, 230> Symbols = {
    // triclinic
    "P1", "P-1",
    // monoclinic
    "P2", "P21", "C2", "Pm", "Pc", "Cm", "Cc", "P2/m", "P21/m", "C2/m", "P2/c", "P21/c", "C2/c",
    // orthorhombic
    "P222", "P2221", "P21212", "P212121", "C2221", "C222", "F222", "I222", "I212121", "Pmm2",
    "Pmc21", "Pcc2", "Pma2", "Pca21", "Pnc2", "Pmn21", "Pba2", "Pna21", "Pnn2", "Cmm2", "Cmc21",
    "Ccc2", "Amm2", "Aem2", "Ama2", "Aea2", "Fmm2", "Fdd2", "Imm2", "Iba2", "Ima2", "Pmmm", "Pnnn",
    "Pccm", "Pban", "Pmma", "Pnna", "Pmna", "Pcca", "Pbam", "Pccn", "Pbcm", "Pnnm", "Pmmn", "Pbcn",
    "Pbca", "Pnma", "Cmcm", "Cmce", "Cmmm", "Cccm", "Cmme", "Ccce", "Fmmm", "Fddd", "Immm", "Ibam",
    "Ibca", "Imma",
    // tetragonal
    "P4", "P41", "P42", "P43", "I4", "I41", "P-4", "I-4", "P4/m", "P42/m", "P4/n", "P42/n", "I4/m",
    "I41/a", "P422", "P4212", "P4122", "P41212", "P4222", "P42212", "P4322", "P43212", "I422",
    "I4122", "P4mm", "P4bm", "P42cm", "P42nm", "P4cc", "P4nc", "P42mc", "P42bc", "I4mm", "I4cm",
    "I41md", "I41cd", "P-42m", "P-42c", "P-421m", "P-421c", "P-4m2", "P-4c2", "P-4b2", "P-4n2",
    "I-4m2", "I-4c2", "I-42m", "I-42d", "P4/mmm", "P4/mcc", "P4/nbm", "P4/nnc", "P4/mbm", "P4/mnc",
    "P4/nmm", "P4/ncc", "P42/mmc", "P42/mcm", "P42/nbc", "P42/nnm", "P42/mbc", "P42/mnm", "P42/nmc",
    "P42/ncm", "I4/mmm", "I4/mcm", "I41/amd", "I41/acd",
    // trigonal
    "P3", "P31", "P32", "R3", "P-3", "R-3", "P312", "P321", "P3112", "P3121", "P3212", "P3221",
    "R32", "P3m1", "P31m", "P3c1", "P31c", "R3m", "R3c", "P-31m", "P-31c", "P-3m1", "P-3c1", "R-3m",
    "R-3c",
    // hexagonal
    "P6", "P61", "P65", "P62", "P64", "P63", "P-6", "P6/m", "P63/m", "P622", "P6122", "P6522",
    "P6222", "P6422", "P6322", "P6mm", "P6cc", "P63cm", "P63mc", "P-6m2", "P-6c2", "P-62m", "P-62c",
    "P6/mmm", "P6/mcc", "P63/mcm", "P63/mmc",
    // cubic
    "P23", "F23", "I23", "P213", "I213", "Pm-3", "Pn-3", "Fm-3", "Fd-3", "Im-3", "Pa-3", "Ia-3",
    "P432", "P4232", "F432", "F4132", "I432", "P4332", "P4132", "I4132", "P-43m", "F-43m", "I-43m",
    "P-43n", "F-43c", "I-43d", "Pm-3m", "Pn-3n", "Pm-3n", "Pn-3m", "Fm-3m", "Fm-3c", "Fd-3m",
    "Fd-3c", "Im-3m", "Ia-3d"};

// Structures I, II and H of clathrates first, then ices and further hydrates.
constexpr std::string_view Usual[] = {"Pm-3n", "Fd-3m",   "P6/mmm", "P63/mmc", "F-43m",
                                      "Im-3m", "P42/mnm", "I4/mcm", "R-3",     "R-3c",
                                      "Pnma",  "Cmcm",    "P-1"};

/// Symbols from before the glide plane "e" had a letter.
constexpr std::pair<std::string_view, int> Renamed[] = {
    {"Abm2", 39}, {"Aba2", 41}, {"Cmca", 64}, {"Cmma", 67}, {"Ccca", 68}};

/// The last number of each system, in their order from the triclinic one.
constexpr int LastOf[] = {2, 15, 74, 142, 167, 194, 230};

std::string WithoutBlanks(std::string_view symbol) {
    return Replace(Replace(symbol, " ", ""), "_", "");
}

/// "Fd3m" as "Fd-3m": behind a letter of a plane a three-fold axis always has its bar.
std::string WithBar(std::string symbol) {
    for (std::size_t i = 1; i < symbol.size(); ++i)
        if (symbol[i] == '3' && symbol[i - 1] >= 'a' && symbol[i - 1] <= 'z') {
            symbol.insert(i, 1, '-');
            break;
        }
    return symbol;
}

/// Directions of symmetry of a symbol behind its lattice letter, where they are axes 2, screws 21
/// and planes alone; 0 for others.
int DirectionsOf(std::string_view symmetry) {
    int count = 0;
    for (std::size_t i = 0; i < symmetry.size();) {
        const auto isPlane = [&](std::size_t at) {
            return at < symmetry.size() &&
                   std::string_view("mabcnde").find(symmetry[at]) != std::string_view::npos;
        };
        if (symmetry[i] == '2') {
            ++i;
            if (i < symmetry.size() && symmetry[i] == '1') ++i;
            if (i < symmetry.size() && symmetry[i] == '/') {
                if (!isPlane(i + 1)) return 0;
                i += 2;
            }
        } else if (isPlane(i)) {
            ++i;
        } else {
            return 0;
        }
        ++count;
    }
    return count;
}

} // namespace

std::string_view NameOf(CrystalSystem system) {
    constexpr std::string_view names[] = {"",           "triclinic", "monoclinic", "orthorhombic",
                                          "tetragonal", "trigonal",  "hexagonal",  "cubic"};
    return names[static_cast<std::size_t>(system)];
}

std::span<const std::string_view> SpaceGroupSymbols() {
    return Symbols;
}

std::span<const std::string_view> UsualSpaceGroups() {
    return Usual;
}

int SpaceGroupNumber(std::string_view symbol) {
    static const std::unordered_map<std::string_view, int> numbers = [] {
        std::unordered_map<std::string_view, int> table(std::begin(Renamed), std::end(Renamed));
        for (std::size_t i = 0; i < Symbols.size(); ++i)
            table[Symbols[i]] = static_cast<int>(i) + 1;
        return table;
    }();
    const std::string bare = WithoutBlanks(symbol);
    for (const std::string& reading : {bare, WithBar(bare)})
        if (const auto found = numbers.find(reading); found != numbers.end()) return found->second;
    return 0;
}

CrystalSystem SystemOfNumber(int number) {
    int system = 1;
    for (const int last : LastOf) {
        if (number >= 1 && number <= last) return static_cast<CrystalSystem>(system);
        ++system;
    }
    return CrystalSystem::Unknown;
}

CrystalSystem SystemOfSymbol(std::string_view symbol) {
    if (const int number = SpaceGroupNumber(symbol)) return SystemOfNumber(number);
    const std::string bare = WithoutBlanks(symbol);
    if (bare.empty() || std::string_view("PABCFI").find(bare.front()) == std::string_view::npos)
        return CrystalSystem::Unknown;
    switch (DirectionsOf(std::string_view(bare).substr(1))) {
    case 1:
        return CrystalSystem::Monoclinic;
    case 3:
        return CrystalSystem::Orthorhombic;
    default:
        return CrystalSystem::Unknown;
    }
}

std::string SystemInWords(std::string_view symbol) {
    if (symbol.empty()) return {};
    const std::string system(NameOf(SystemOfSymbol(symbol)));
    if (system.empty()) return "none of the 230 symbols";
    const int number = SpaceGroupNumber(symbol);
    return system + (number ? ", no. " + std::to_string(number) : ", in another setting");
}

} // namespace vexora

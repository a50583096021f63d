#include "chem/Cif.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>

#include "records/LineWriter.h"
#include "reference/Numbers.h"
#include "support/DocumentFixture.h"

namespace vexora {
namespace {

const std::filesystem::path Folder = VEXORA_SOURCE_DIR "/tests/chem/cif";

std::string FileText(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator(file), {}};
}

class Cif : public test::DocumentFixture {
protected:
    /// The texts of a folder by their names.
    static std::map<std::string, std::string> TextsIn(const char* kind) {
        std::map<std::string, std::string> texts;
        for (const auto& entry : std::filesystem::directory_iterator(Folder / kind))
            texts[entry.path().stem()] = FileText(entry.path());
        return texts;
    }
    static std::string Numbers(const auto& numbers) {
        std::string text;
        for (const CifNumber& number : numbers)
            text += " " + OrPlaceholder(number.value) + " " + OrPlaceholder(number.uncertainty);
        return text;
    }
    static std::string TextOf(const CifStructure& structure) {
        std::string text = structure.block + ": " + structure.spaceGroup + ";" +
                           Numbers(structure.cell) + "; Z " + NumberText(structure.units) +
                           (structure.formula.empty() ? "" : " ") + structure.formula + "\n";
        for (const CifAtom& atom : structure.atoms)
            text += atom.symbol + Numbers(atom.position) + " " + atom.occupancy + "\n";
        for (const std::string& told : structure.told)
            text += "told: " + told + "\n";
        return text;
    }
};

TEST_F(Cif, TextsOfSeveralProgramsAreReadToTheLastDigit) {
    std::string all;
    for (const auto& [name, text] : TextsIn("good")) {
        const CifReading reading = ReadCif(text);
        EXPECT_EQ(reading.fault, "") << name;
        all += "== " + name + "\n" + TextOf(reading.structure);
    }
    EXPECT_EQ(all, FileText(Folder / "good.txt"));
}

TEST_F(Cif, DamagedTextsAreRefusedWholeAndByTheirOwnWords) {
    std::string all;
    for (const auto& [name, text] : TextsIn("damaged")) {
        const CifReading reading = ReadCif(text);
        EXPECT_EQ(TextOf(reading.structure), TextOf({})) << name;
        all += name + ": " + reading.fault + "\n";
    }
    EXPECT_EQ(all, FileText(Folder / "damaged.txt"));
    EXPECT_EQ(ReadCif("").fault, "This is no CIF: it has no data block");
    EXPECT_EQ(ReadCif(std::string(9 << 20, 'x')).fault,
              "This file is too large for a CIF of a structure");
}

TEST_F(Cif, BracketsHoldTheUncertaintyInTheLastPlaces) {
    const struct {
        const char *text, *value, *uncertainty;
    } cases[] = {{"11.877(3)", "11.877", "0.003"},
                 {"118.77(12)", "118.77", "0.12"},
                 {"1200(30)", "1200", "30"},
                 {"1.0(10)", "1.0", "1.0"},
                 {"-0.5(12)", "-0.5", "1.2"},
                 {".25(1)", ".25", "0.01"},
                 {"90.", "90.", ""},
                 {"90.(2)", "90.", "2"},
                 {"1e-3", "1e-3", ""},
                 {"1e-3(2)", "", ""},
                 {"1.2(3", "", ""},
                 {"1.2()", "", ""},
                 {"1.2(0.3)", "", ""},
                 {"x", "", ""},
                 {"(3)", "", ""},
                 {"", "", ""}};
    for (const auto& one : cases) {
        CifNumber number;
        EXPECT_EQ(ReadCifNumber(one.text, number), *one.value != '\0') << one.text;
        EXPECT_EQ(number, (CifNumber{one.value, one.uncertainty})) << one.text;
    }
}

TEST_F(Cif, SymbolsComeFromTypesAndLabels) {
    std::string symbols;
    for (const char* label : {"O", "O2-", "OW1", "Ow1", "H12A", "HW", "C13", "CA1", "Ca", "cl2",
                              "Nd1", "N+", "Hoh1", "\"O'\"", "1x", "D"}) {
        const CifReading reading =
            ReadCif("data_x\n_cell_length_a 5\nloop_\n_atom_site_type_symbol\n_atom_site_fract_x\n"
                    "_atom_site_fract_y\n_atom_site_fract_z\n" +
                    std::string(label) + " 0 0 0\n");
        const auto& atoms = reading.structure.atoms;
        symbols += (atoms.empty() ? "-" : atoms.front().symbol) + " ";
    }
    EXPECT_EQ(symbols, "O O O O H H C - - - - N - O - - ");
}

/// Whatever happens to a text, reading it ends, and what comes of it is whole or nothing.
TEST_F(Cif, TextsWithAnythingInThemAreReadOrRefused) {
    std::mt19937 random(16);
    const auto below = [&](std::size_t bound) {
        return random() % std::max<std::size_t>(bound, 1);
    };
    const std::string pieces[] = {"loop_",          "\n;",    ";",  "'", "\"", "#",  "data_",
                                  "_cell_length_a", "?",      ".",  "(", ")",  "\r", "\t",
                                  "\xFF",           "save_x", " 0 "};
    int read = 0, refused = 0;
    for (const char* kind : {"good", "damaged"})
        for (const auto& [name, whole] : TextsIn(kind))
            for (int round = 0; round < 300; ++round) {
                std::string text = whole;
                for (std::size_t changes = 1 + below(4); changes > 0; --changes) {
                    const std::size_t at = below(text.size());
                    switch (below(3)) {
                    case 0:
                        text.erase(at, below(12));
                        break;
                    case 1:
                        text.insert(at, pieces[below(std::size(pieces))]);
                        break;
                    default:
                        text.insert(at, text.substr(below(text.size()), below(200)));
                    }
                }
                const CifReading reading = ReadCif(text);
                ++(reading.fault.empty() ? read : refused);
                if (!reading.fault.empty()) {
                    EXPECT_EQ(TextOf(reading.structure), TextOf({})) << text;
                    continue;
                }
                for (const CifNumber& number : reading.structure.cell)
                    EXPECT_TRUE(number.value.empty() || Val(number.value) > 0) << text;
                for (const CifAtom& atom : reading.structure.atoms)
                    for (const CifNumber& number : atom.position)
                        EXPECT_TRUE(IsNumeric(number.value)) << text;
            }
    EXPECT_GT(read, 300);
    EXPECT_GT(refused, 300);
}

} // namespace
} // namespace vexora

// A document with an isomerization and the unfolding of a protein.
#pragma once

#include "shell/ShellFixture.h"

namespace vexora::test {

inline const std::string BioHeader = "^A & O B & & & & &\n";
inline const std::string Isomerization =
    BioHeader + "BR 1 0\n"
                "BP 1 50997 0 1 50997 D-glucose C6H12O6 180.156 0 -1 S 0 & &\n"
                "BP 0 57487 0 & 57487 D-fructose C6H12O6 180.156 0 1 S 0 & &\n"
                "BP 0 7732185 0 1 7732185 water H2O 18.0153 0 0 & 0 & &\n"
                "BC 7732185 Solvent S 1 &\n"
                "BV KM 1 & & 0.01 P &\nBV T K & & * V &\nBV pH 1 S & & C 7.0\n"
                "BE\nBM Liquid chromatography\nB0 0 0\n"
                "BD 0.92 298.15 0.05\nBD 1.10 313.15 0.05\n";
inline const std::string Unfolding =
    BioHeader + "BN 1\n"
                "BP 12650883 0 1 & lysozyme 12650883 C613H959N193O185S10 14313 8 3.2.1.17 1LYZ\n"
                "BP 7732185 0 1 & water 7732185 H2O 18.0153 0 & &\n"
                "BH D 1 Native Denatured S S & &\n"
                "BC 7732185 Solvent S 1 &\n"
                "BV H kJ/mol & & 2% P &\nBV T12 K & & & P &\n"
                "BV pH 1 S & & V &\nBV Ic mol/dm3 S & & C 0.1\n"
                "BE\nBM Differential scanning calorimetry\n"
                "BD 509 348.6 4.5\nBD 430 340 3\n";

/// A gas hydrate whose sample has a table, a phase equilibrium and a crystal structure.
inline std::string HydrateDocument() {
    const std::string data =
        "^A & O P & & & 1/15/2026 ::Method:NS:\n^1 1 VDN S DIR 1\tC CS1 & FP S & & &\n"
        "^D 263.15 913.0 &\n^D 273.15 911.5 &\n^M 0\n"
        "^A & O B & & & 1/15/2026 &\nBN 1\n"
        "BP -1 0 1 & Gas_Hydrate_(methane_+_water) -1 (CH4)0.148(H2O)0.852 17.7232 0 & &\n"
        "BP 74828 0 & & methane 74828 CH4 16.0425 0 & &\n"
        "BP 7732185 0 1 & water 7732185 H2O 18.0153 0 & &\n"
        "BH G 1 & & L CS1 G &\nBC 74828 Gas & & &\nBC 7732185 Water & 1 &\n"
        "BV P MPa G & 1% P &\nBV T K L & 0.1 V &\nBE\nBM Last crystal\n"
        "BD 2.76 273.7\nBD 2.90 274.3\n";
    std::string text = FileText(VEXORA_SOURCE_DIR "/tests/sessions/shell/bio_and_hydrate.txt");
    return text.insert(text.find("XB "), data);
}

class BioShellFixture : public ShellFixture {
protected:
    /// With a second sample of the glucose that nothing needs.
    std::string WriteBio() {
        const std::string path = folder.Path("bio.txt");
        WriteText(path, "\n^R 2002 WAG PRU 1\n^L 7732185 NNNNN &\n^S 1 cm;;99.9m%,gc\n"
                        "^L 50997 NNNNN &\n^S 1 cm;;99%,gc\n^S 2 ns\n^L 57487 NNNNN &\n"
                        "BL 12650883 3.2.1.17 1LYZ C613H959N193O185S10 8 lysozyme\n"
                        "^S 1 rs;;99%,gc\n" +
                            Isomerization + Unfolding);
        return path;
    }
    static clsR& Source() { return *Globals().recR.Item(std::size_t{1}); }
};

} // namespace vexora::test

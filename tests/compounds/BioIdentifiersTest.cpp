#include "compounds/BioIdentifiers.h"

namespace vexora {

TEST(BioIdentifiers, AreToldByTheirForm) {
    for (const char* sound : {"", " ", "5.3.1.5", " 1.1.1.271 ", "3.4.21.-", "3.-.-.-"})
        EXPECT_EQ(EnzymeNumberHint(sound), "") << sound;
    for (const char* odd : {"5", "5.3.1", "5.3.1.", "5.3.1.5.1", "EC 5.3.1.5", "5.3.1.x", "5,3,1,5",
                            "5.3.1.--", ".3.1.5", "5. 3.1.5"})
        EXPECT_EQ(EnzymeNumberHint(odd), "Four parts are usual: 5.3.1.5, or 5.3.1.-") << odd;
    for (const char* sound : {"", "1LYZ", "1lyz", "4HHB ", "2000"})
        EXPECT_EQ(ProteinCodeHint(sound), "") << sound;
    for (const char* odd : {"1LY", "LYZ1", "1LYZ2", "1-YZ", "1L Z", "1\xC3\xA4Z"})
        EXPECT_EQ(ProteinCodeHint(odd), "Four characters are usual, first a digit: 1LYZ") << odd;
}

} // namespace vexora

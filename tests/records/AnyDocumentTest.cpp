#include "records/RoundTripFixture.h"

#include <initializer_list>
#include <random>

namespace vexora {
namespace {

/// Writes lines as files have them: every unit, tag and placeholder in every place, whether or not
/// it means anything there.
class AnyLines {
public:
    explicit AnyLines(unsigned seed) : random_(seed) {}

    std::string Document() {
        std::string text = test::kHead;
        const int records = 1 + Below(4);
        for (int number = 1; number <= records; ++number) {
            if (Below(3) == 0) text += "^M " + Of({"18.015", "1000", "0"}) + "\n";
            if (Below(4) > 0) text += Header();
            text += Below(2) == 0 ? Value(number) : Below(3) == 0 ? Bio(number) : Set(number);
            if (Below(3) == 0) text += "^M 0\n";
        }
        return text;
    }

private:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    std::string Of(std::initializer_list<const char*> texts) {
        return texts.begin()[Below(static_cast<int>(texts.size()))];
    }
    std::string Number() {
        return Of({"0", "0.00", "25", "25.50", "-10.0", "1e-3", "1.50E+2", "997.05", "0.00120", "&",
                   "x", "12.", "-.5", "0012"});
    }
    /// A letter may stand anywhere; a unit without one is refused where it is none of the quantity.
    std::string Unit(std::string_view code = {}) {
        const bool isPressure = code == "P" || code == "PV";
        if (isPressure && Below(4) == 0) return Of({"bar", "kPa"});
        if (code == "VDN" && Below(4) == 0) return Of({"g/cm3", "kg/m3"});
        return Of({"S", "D", "C", "F", "T", "L", "0.5", "Z", "z", "&", "a", "K"});
    }
    std::string Figure() { return Of({"&", "0.1", "0.10", "1%", "%", "few", "-0.2", "1e-2", "0"}); }
    std::string Level() { return Of({"&", "95", "68", "high"}); }
    std::string Mark() { return Of({"+", "-"}); }
    std::string Code() { return Of({"TC", "VDN", "HVP", "TB", "PV", "TMN", "RIX", "P"}); }
    std::string Phase() { return Of({"L", "G", "C", "&", "air"}); }

    std::string Header() {
        const std::string comment =
            Of({"&", "text", "two  words ::Method:X:", "::Method:OTHER:sMethod:own way:PB:",
                "::Method:X:dVDN:0.10:dT:1%:later:", "::V1:VM:", "a::b", "::Method:X:P = 101:FP:"});
        if (Below(6) == 0) return "^a " + comment + "\n";
        return "^A " + Of({"&", "a_b"}) + " O B " + Of({"&", "0", "FF", "-1", "12"}) + " AB & " +
               Of({"&", "1/2/2024", "25.12.04", "1.x.2"}) + " " + comment + "\n";
    }
    std::string Statements(const std::string& code) {
        std::string text;
        for (int count = Below(3); count > 0; --count) {
            text += "^X " + Of({"0", "1", "2", "5", "&", "x"}) + " " +
                    (Below(2) == 0 ? code : Of({"T", "P", "QQ"})) + " L " + Mark() + " " +
                    Of({"&", "0", "a_b"}) + " " + Level() + " " + Figure() + " " + Mark() + " " +
                    Of({"&", "0", "1", "2"}) + " " + Figure() + " " + Of({"&", "5", "few"}) + " " +
                    Mark() + " " + Level() + " " + Figure() + " " + Mark() + " " +
                    Of({"A", "B", "C"}) + " " + Level() + " " + Mark() + " " + Figure() + " " +
                    Of({"&", "a_b"}) + " " + Figure() + "\n";
        }
        return text;
    }
    std::string Value(int number) {
        const std::string code = Code();
        const std::string front =
            " 1 " + code + " " + Unit(code) + " " + std::to_string(number) + " ";
        const std::string back = " " + Number() + " " + Figure() + " " + Figure() + " " +
                                 Of({"&", "3", "3 4"}) + "\n" + Statements(code);
        if (Below(2) == 0)
            return Of({"^z", "^Z"}) + front + Phase() + " " + Phase() + " " + Phase() + back;
        return Of({"^f", "^F"}) + front + Phase() + " " + Number() + " " + Unit() + back;
    }
    std::string Set(int number) {
        const int variables = 1 + Below(2);
        const std::string code = Code();
        std::string text = "^" + std::to_string(variables) + " 1 " + code + " " + Unit(code) + " " +
                           Of({"DIR", "DFR", "MN", "RPH", "QQ"}) + " " + std::to_string(number) +
                           "\tY " + Phase() + " " + Phase() + " " + Of({"FP", "FT", "&"}) + " ";
        if (variables == 2) text += Of({"T", "WL"}) + " " + Unit() + " P ";
        text += Unit(variables == 2 ? "P" : "") + " & & &\n" + Statements(code);
        for (int rows = Below(4); rows > 0; --rows)
            text += Row(variables);
        return text;
    }
    /// A bio set with lines that may lack, stand twice, or name what is not there.
    std::string Bio(int number) {
        const bool isReaction = Below(2) == 0;
        std::string text =
            (isReaction ? "BR " : "BN ") + std::to_string(number) + " " + Of({"0", "1", ""}) + "\n";
        for (int lines = Below(12); lines > 0; --lines)
            text += BioLine(isReaction) + "\n";
        return text + Of({"BE\n", "BE\n", "BE\n", ""}) + Of({"BD 1 2\n", "BM x\n", ""});
    }
    std::string BioLine(bool isReaction) {
        const std::string rn = Of({"7732185", "50997", "64175", "-3", "1003"});
        const std::string key = Of({"7732185", "50997.2", "x", "&"});
        switch (Below(8)) {
        case 0:
        case 1:
            return isReaction ? "BP " + Of({"0", "1"}) + " " + rn + " 0 & " + rn + " a_b " +
                                    Of({"&", "C6H12O6"}) + " 0 0 " + Number() + " " + Phase() +
                                    " " + Of({"0", "-3"}) + " & " + Of({"&", "1LYZ"})
                              : "BP " + rn + " 0 1 & a_b " + rn + " & 0 0 &";
        case 2:
            return "BC " + key + " " + Of({"Inert", "Buffer_component", "&"}) + " & 1 " +
                   Of({"", "two  words"});
        case 3:
        case 4:
            return "BV " + Code() + " " + Unit() + " " + Phase() + " " + key + " " +
                   Of({"&", "*", "1%"}) + " " + Of({"P", "V", "C", "Q", ""}) + " " + Number();
        case 5:
            return "BH " + Of({"D", "S", "x"}) + " & a_b & L";
        case 6:
            // Of a property there may be no reaction to copy.
            return "B0 " + (isReaction ? Of({"0 1", "1", "", "1 x"}) : "0 1");
        default:
            return "BD " + Number() + " " + Number();
        }
    }
    std::string Row(int variables) {
        const std::string tag = Of({"^d", "^D", "^g", "^G"});
        std::string text = tag;
        for (int n = 0; n <= variables; ++n)
            text += " " + Number() + (tag == "^g" || tag == "^G" ? " " + Of({"0", "2", "4"}) : "");
        text += Of({"\n", " &\n", " 0.1\n"});
        if (Below(3) > 0) return text;
        text += "^Y";
        for (int words = Below(16); words > 0; --words)
            text += " " + Figure();
        return text + "\n";
    }

    std::mt19937 random_;
};

/// What is said about strange lines is the matter of other tests.
struct DeafDesktop : test::StrictDesktop {
    ui::Answer Show(const ui::Message&) override { return ui::Answer::Ok; }
};

using AnyDocument = test::RoundTripFixture;

TEST_F(AnyDocument, SettlesAtTheFirstSave) {
    DeafDesktop deaf;
    const ui::Forms formsOfTheDeaf{deaf};
    constexpr unsigned documents = 400;
    for (unsigned seed = 1; seed <= documents && !HasFailure(); ++seed) {
        const std::string document = AnyLines(seed).Document();
        const std::string saved = LoadAndSave(document);
        EXPECT_EQ(DocumentAsRecords(), saved) << "saving changed\n" << document;
        EXPECT_EQ(SavedAgain(saved), saved) << document;
    }
}

} // namespace
} // namespace vexora

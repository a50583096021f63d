#include "records/MixtureLine.h"

#include "records/LineWriter.h"
#include "records/clsMV.h"
#include "support/DocumentFixture.h"

#include <algorithm>
#include <functional>
#include <random>
#include <tuple>

namespace vexora {
namespace {

class MixtureLines : public test::DocumentFixture {
protected:
    /// The line of a set, without header and rows.
    static std::string LineOf(const clsMV& set) {
        LineWriter out;
        set.Print(out);
        const std::string text = out.Text();
        return text.substr(text.find("\n^") + 1);
    }
    static clsMV Loaded(const std::string& line, int mixType) {
        clsMV set;
        set.MixType = mixType;
        EXPECT_TRUE(set.Load(line)) << line;
        return set;
    }
    /// Slots in an order that does not depend on that of the line.
    static MixtureLine InOrder(MixtureLine line) {
        std::ranges::sort(line.slots, {}, [](const ConstraintSlot& slot) {
            return std::tie(slot.code, slot.phase, slot.value);
        });
        return line;
    }
    /// Saves and loads twice: the first load gives what was there, the second the same bytes.
    static void ExpectKept(const clsMV& set) {
        const MixtureLine before = set.Definition();
        const std::string first = LineOf(set);
        EXPECT_EQ(set.Definition(), before) << first;
        const clsMV read = Loaded(first, set.MixType);
        EXPECT_EQ(InOrder(read.Definition()), InOrder(before)) << first;
        EXPECT_EQ(LineOf(read), first);
    }
};

using Codes = std::vector<std::string>;

/// What may be constant, by the number of constants.
const std::vector<Codes>& ConstantsOf(int count) {
    static const std::vector<std::vector<Codes>> sets = {
        {{}},
        {{"T"}, {"P"}, {"X1"}},
        {{"P", "T"}, {"X1", "P"}, {"P", "X1"}, {"X1", "X2"}},
        {{"P", "T", "X1"}, {"X1", "X2", "P"}}};
    return sets[static_cast<std::size_t>(count)];
}

/// Calls with each way to put `places` things into these phases.
void EachChoice(const Codes& phases, int places, const std::function<void(const Codes&)>& visit) {
    Codes chosen(static_cast<std::size_t>(places));
    const std::function<void(std::size_t)> choose = [&](std::size_t at) {
        if (at == chosen.size()) return visit(chosen);
        for (const std::string& phase : phases) {
            chosen[at] = phase;
            choose(at + 1);
        }
    };
    choose(0);
}

/// Calls with each order of phases, of which the first one is the main phase.
void EachOrder(int count, const std::function<void(const Codes&)>& visit) {
    Codes phases = {"C", "G", "L", "L2"};
    if (count < 4)
        phases = count == 3 ? Codes{"C", "G", "L"} : count == 2 ? Codes{"G", "L"} : Codes{"L"};
    do
        visit(phases);
    while (std::ranges::next_permutation(phases).found);
}

clsMV Made(int mixType, int variables, const Codes& phases, const Codes& constants) {
    clsMV set;
    MixtureLine line;
    line.MixType = mixType;
    line.nVar = variables;
    line.PRPCODE = "VDN";
    line.PROPERTY_FUNCT = "DIR";
    line.PHASE1 = phases[0];
    const char* const codes[] = {"X1", "T", "X2"};
    for (int n = 0; n < variables; ++n)
        line.variables[static_cast<std::size_t>(n)] = {codes[n], "S", {}};
    std::size_t slot = 0;
    for (std::size_t i = 1; i < phases.size(); ++i)
        line.slots[slot++].code = phases[i];
    for (std::size_t i = 0; i < constants.size(); ++i)
        line.slots[slot++] = {constants[i], "0." + std::to_string(i + 1), {}, "S"};
    set.Define(line);
    set.SMPNM1 = set.SMPNM2 = "1";
    if (mixType == 3) set.SMPNM3 = "1";
    return set;
}

/// Calls with every state of a system: phases, constants and variables in all phases.
void EachState(int mixType, const std::function<void(const clsMV&)>& visit) {
    for (int variables = 1; variables <= 3; ++variables) {
        const int slots = mixType + 1 - variables;
        for (int others = 0; others <= slots; ++others) {
            for (const Codes& constants : ConstantsOf(slots - others)) {
                EachOrder(others + 1, [&](const Codes& phases) {
                    EachChoice(phases, variables + slots - others, [&](const Codes& chosen) {
                        clsMV set = Made(mixType, variables, phases, constants);
                        for (std::size_t n = 0; n < static_cast<std::size_t>(variables); ++n)
                            set.Variables[n].phase = chosen[n];
                        for (std::size_t n = static_cast<std::size_t>(variables); n < chosen.size();
                             ++n)
                            set.Constraints[phases.size() - 1 + n -
                                            static_cast<std::size_t>(variables)]
                                .phase = chosen[n];
                        visit(set);
                    });
                });
            }
        }
    }
}

TEST_F(MixtureLines, EveryStateComesBackFromItsLine) {
    int count = 0;
    const auto visit = [&count](const clsMV& set) {
        ++count;
        ExpectKept(set);
    };
    EachState(2, visit);
    EXPECT_EQ(count, 58);
    EachState(3, visit);
    EXPECT_EQ(count, 58 + 449);
}

TEST_F(MixtureLines, AnyLineSettlesWithTheFirstSave) {
    std::mt19937 random(20261122);
    const Codes codes = {"&", "L2", "G", "Cp1", "S1", "air", "T", "P", "X1", "X2", "CUL", "AZ"};
    const Codes values = {"&", "-1", "-2", "-3", "-4", "-5", "-6", "-7", "0", "-8", "0.5"};
    const auto one = [&random](const Codes& list) { return list[random() % list.size()]; };
    for (int i = 0; i < 2000; ++i) {
        const int mixType = 2 + i % 2;
        const int variables = 1 + static_cast<int>(random() % 3);
        std::string line = "^" + std::to_string(variables) + (mixType == 2 ? " 1 1" : " 1 1 1");
        line += " VDN S DIR 1 Y " + one({"L", "G", "L1", "Cp2"});
        for (int slot = 0; slot < mixType + 1 - variables; ++slot)
            line += " " + one(codes) + " " + one(values);
        for (int n = 0; n < variables; ++n)
            line += " " + one({"X1", "X2", "T", "P"}) + " S";
        const clsMV set = Loaded(line + " & & & & & &", mixType);
        ExpectKept(set);
    }
}

struct ShortCode {
    int components;
    std::string code, function, solvent; // in memory
    std::string inLine, functionInLine, solventInLine;
};

TEST_F(MixtureLines, ShortCodesAreWrittenWhereTheSolventGivesThemBack) {
    const ShortCode cases[] = {
        {2, "M1", "DIR", "2", "M", "DIR", "2"},     {2, "M1", "DIR", "", "M", "DIR", "2"},
        {2, "B2", "DIR", "", "B", "DIR", "1"},      {2, "M1", "DIR", "1", "M1", "DIR", "1"},
        {2, "HEX1", "DIR", "", "HEX1", "DIR", ""},  {2, "PHM2", "DIR", "1", "PHM", "DIR", "1"},
        {3, "M1", "DIR", "2", "M1", "DIR", "2"},    {3, "HEX3", "DIR", "", "HEX", "DIR", "C"},
        {3, "HEX2", "DIR", "D", "HEX", "DIR", "D"}, {3, "HEX2", "DIR", "C", "HEX2", "DIR", "C"},
        {3, "PHJ1", "DIR", "", "PHJ", "DIR", "E"},  {3, "PHM3", "DIR", "3", "PHM", "DIR", "3"},
        {3, "X1S", "DIR", "D", "X1S", "DIR", "D"},  {2, "HSL", "DIR", "", "HA", "DPT", ""},
        {2, "HSL", "DPT", "", "HSL", "DPT", ""},    {2, "HSL", "DFR", "", "HSL", "DFR", ""},
        {2, "HA", "DIR", "", "HA", "DIR", ""}};
    for (const ShortCode& one : cases) {
        MixtureLine line;
        line.MixType = one.components;
        line.PRPCODE = one.code;
        line.PROPERTY_FUNCT = one.function;
        line.SOLVENT = one.solvent;
        line.PHASE1 = "L";
        line.variables[0] = {"X1", "S", "L"};
        MixtureLine file = line;
        file.ToFile();
        EXPECT_EQ(file.PRPCODE + " " + file.PROPERTY_FUNCT + " " + file.SOLVENT,
                  one.inLine + " " + one.functionInLine + " " + one.solventInLine)
            << one.code << " " << one.solvent;
        EXPECT_TRUE(file.ToMemory());
        line.SOLVENT = one.solventInLine;
        EXPECT_EQ(file, line) << one.code;
    }
}

TEST_F(MixtureLines, OneSolventServesTwoCodes) {
    const auto inLine = [](const std::string& line) {
        const std::string written = LineOf(Loaded(line, 2));
        EXPECT_EQ(LineOf(Loaded(written, 2)), written);
        return written.substr(0, written.find('\n'));
    };
    EXPECT_EQ(inLine("^1 1 1 PHM1 S DIR 1 Y L T 300 P 101 M2 S & & & & & &"),
              "^1 1 1 PHM S DIR 1 Y L T 300 P 101 M2 S 2 & & & & &");
    // Filled in, the solvent would tell what M means, which nobody has said.
    EXPECT_EQ(inLine("^1 1 1 PHM1 S DIR 1 Y L T 300 P 101 M S & & & & & &"),
              "^1 1 1 PHM1 S DIR 1 Y L T 300 P 101 M S & & & & & &");
}

TEST_F(MixtureLines, EmptyFieldsAndBlanksKeepTheirPlace) {
    clsMV set = Made(2, 1, {"L"}, {"T", "P"});
    set.Variables[0].phase = set.Constraints[0].phase = set.Constraints[1].phase = "L";
    set.STANDARD_STATE = "pure compound";
    set.COMPOSITION = "as stated";
    set.REFERENCE_PHASE = "liquid at 300 K";
    set.isOriginalUnit = true;
    set.Constraints[1] = {"P", "760", "L", "T"};
    set.Constraints[0] = {"T", "25", "L", "C"};
    const std::string line = "^1 1 1 VDN S DIR & & L T 298.15 P 101.3 X1 S & pure_compound "
                             "as_stated & & liquid at 300 K\n";
    EXPECT_EQ(LineOf(set), line);
    const clsMV read = Loaded(line, 2);
    EXPECT_EQ(read.STANDARD_STATE + read.COMPOSITION + read.PRPSETNO, "pure compoundas stated");
    EXPECT_EQ(LineOf(read), line);
    EXPECT_EQ(set.Constraints[1].value, "760");
}

} // namespace
} // namespace vexora

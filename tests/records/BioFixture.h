// A document of bio sets, and what is read and saved of it.
#pragma once

#include "records/DataSet.h"
#include "records/RoundTripFixture.h"
#include "records/clsBP.h"
#include "records/clsBR.h"

#include <algorithm>
#include <string>

namespace vexora::test {

inline const std::string BioHead = "\n^R 1950 cox wag 1\n^J#J#O#J#T##A##S#0####\n"
                                   "^L 50997 NNNNN &\n^S 1 cm;;99.9m%,gc\n^L 57487 NNNNN &\n"
                                   "^L 7732185 NNNNN &\n^S 2 ns\n"
                                   "BL 1014 5.3.1.5 1XIB & -3 glucose isomerase\n";

class BioFixture : public RoundTripFixture {
protected:
    /// The lines of the bio sets as a save writes them.
    std::string BioLines() {
        const std::string text = DocumentAsRecords();
        const std::string last = "glucose isomerase\n";
        const std::size_t at = text.find(last);
        return at == text.npos ? text : text.substr(at + last.size());
    }
    static std::string WithoutHeaders(std::string lines) {
        for (std::size_t at = lines.find("^A "); at != lines.npos; at = lines.find("^A ", at))
            lines.erase(at, lines.find('\n', at) + 1 - at);
        return lines;
    }
    /// The same behind the head, after some loads and saves.
    std::string Settled(const std::string& lines) {
        const std::string first = LoadAndSave(BioHead + lines);
        const auto lostAtFirst = lost;
        EXPECT_EQ(SavedAgain(first), first);
        lost = lostAtFirst;
        return BioLines();
    }
    /// Lines named on reading, counted from the end of the head.
    std::string LostLines() const {
        const auto before = std::count(BioHead.begin(), BioHead.end(), '\n');
        std::string text;
        for (const LineLost& one : lost)
            text += std::to_string(one.line - before) + " " + one.text + "\n";
        return text;
    }
    clsR& Source() const { return *globals.recR.Item(std::size_t{1}); }
    clsBR& Reaction(std::size_t position = 1) const { return *Source().recBR.Item(position); }
    clsBP& Property(std::size_t position = 1) const { return *Source().recBP.Item(position); }
};

} // namespace vexora::test

// A document of one sample of water that is loaded and saved again and again.
#pragma once

#include "records/LineWriter.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "shell/DocumentText.h"
#include "support/DocumentFixture.h"

#include <string>
#include <vector>

namespace vexora::test {

inline const std::string kHead =
    "\n^R 2002 wag pru 1\n"
    "^J#J#O#J. Phys. Chem. Ref. Data, 2002, 31, 387-535#T##A##S#0####\n"
    "^L 7732185 DNNNN S\n"
    "^S 1 cm;;99.9m%,gc\n";

/// Reads and saves documents, and looks at what came of them.
class RoundTripFixture : public DocumentFixture {
protected:
    void Read(const std::string& text) {
        form.tvwTree.Clear();
        globals.recR.Clear();
        globals.ForgetCurrent();
        const ReadResult result = ReadDocument(text);
        ASSERT_TRUE(result.whole) << result.faultLine << ": " << result.fault;
        EXPECT_EQ(result.linesNotKept, 0);
        lost = result.lost;
        remarks = result.told;
    }
    std::string LoadAndSave(const std::string& text) {
        Read(text);
        return DocumentAsRecords();
    }
    /// The same for a document that has been saved before: nothing of it is passed over.
    std::string SavedAgain(const std::string& text) {
        const std::string saved = LoadAndSave(text);
        for (const LineLost& one : lost)
            ADD_FAILURE() << "line " << one.line << ": " << one.text << "\n" << text;
        return saved;
    }
    std::vector<LineLost> lost, remarks; // of the document read last
    clsZ& Value(std::size_t position = 1) const {
        return *globals.recR.Item(std::size_t{1})
                    ->recL.Item(std::size_t{1})
                    ->recS.Item(std::size_t{1})
                    ->recZ.Item(position);
    }
    clsTwo& Set(std::size_t position = 1) const {
        return *globals.recR.Item(std::size_t{1})
                    ->recL.Item(std::size_t{1})
                    ->recS.Item(std::size_t{1})
                    ->recTwo.Item(position);
    }
    /// A document with these lines of data, and what they look like after some loads and saves.
    std::string Settled(const std::string& lines) {
        std::string text = LoadAndSave(kHead + lines);
        const std::string first = text;
        for (int cycle = 0; cycle < 3; ++cycle)
            text = SavedAgain(text);
        EXPECT_EQ(text, first);
        return first.substr(first.find('\n', first.find("\n^S ") + 1) + 1);
    }
};

} // namespace vexora::test

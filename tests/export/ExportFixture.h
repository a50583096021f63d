// Documents given as record lines and what comes out as ThermoML. Every export is read by an XML
// reader of its own and must be plain ASCII.
#pragma once

#include "reference/Text.h"
#include "shell/DocumentText.h"
#include "support/DocumentFixture.h"
#include "support/Xml.h"

#include <algorithm>
#include <string>

namespace vexora::test {

class ExportFixture : public DocumentFixture {
protected:
    static inline const std::string kSource =
        "\n^R 2002 wag pru 1\n"
        "^J#J#O#@J. Phys. Chem. Ref. Data@, 2002, $31$(2), 387-535#T##A##S#0####\n";
    static inline const std::string kHead = kSource + "^L 7732185 DNNNN S\n^S 1 cm;;99.9m%,gc\n";
    static inline const std::string kHeader = "^A & O & & & & & &\n";

    std::string Export(const std::string& records) {
        form.tvwTree.Clear();
        globals.recR.Clear();
        globals.ForgetCurrent();
        const ReadResult result = ReadDocument(records, ReadPurpose::Look);
        EXPECT_TRUE(result.whole) << result.faultLine << ": " << result.fault;
        const std::string text = DocumentAsXml({2026, 1, 5});
        EXPECT_TRUE(IsWellFormed(text)) << text;
        EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) {
            return c == '\n' || c == '\t' || (c > 31 && c < 127);
        })) << text;
        return text;
    }
    /// The data of a document of one sample with these record lines, without the outer indent.
    std::string Data(const std::string& lines) {
        return Part(Export(kHead + lines), "PureOrMixtureData");
    }
    /// What stands between the first opening and the last closing tag, tags included.
    static std::string Part(const std::string& xml, const std::string& element) {
        const std::string closing = "</" + element + ">";
        const std::size_t from = xml.find("<" + element + ">");
        const std::size_t to = xml.rfind(closing);
        if (from == std::string::npos || to == std::string::npos) return {};
        const std::size_t depth = from - xml.rfind('\n', from) - 1;
        return Replace(xml.substr(from, to + closing.size() - from),
                       "\n" + std::string(depth, '\t'), "\n");
    }
    /// The same in one line without blanks between elements, for small parts.
    static std::string Line(const std::string& xml, const std::string& element) {
        return Replace(Replace(Part(xml, element), "\n", ""), "\t", "");
    }
};

} // namespace vexora::test

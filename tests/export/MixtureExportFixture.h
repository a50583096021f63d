// Mixtures given as record lines, and what comes out of them as ThermoML.
#pragma once

#include "export/ExportDocument.h"
#include "export/ExportFixture.h"
#include "host/XmlPath.h"
#include "records/clsMV.h"

#include <memory>
#include <string>

namespace vexora::test {

class MixtureExportFixture : public ExportFixture {
protected:
    /// Compounds of the document with their numbers in the file: ethanol 1, acetic acid 2,
    /// chloroform 3, water 4. Each has the samples 1 and 2.
    static inline const std::string kCompounds = [] {
        std::string lines = kSource;
        for (const char* rn : {"64175", "64197", "67663", "7732185"})
            lines += std::string("^L ") + rn + " NNNNN &\n^S 1 cm;;99.9m%,gc\n^S 2 cm\n";
        return lines;
    }();
    static inline const std::string kBinary = "^B 64175 7732185 &\n";
    static inline const std::string kTernary = "^T 64197 67663 7732185 &\n";

    /// The document with these mixtures as it leaves.
    std::string Mixtures(const std::string& lines, ExportFor readers = ExportFor::House) {
        Read(lines);
        return Leaving(readers);
    }
    void Read(const std::string& lines) {
        form.tvwTree.Clear();
        globals.recR.Clear();
        globals.ForgetCurrent();
        const ReadResult result = ReadDocument(kCompounds + lines, ReadPurpose::Look);
        ASSERT_TRUE(result.whole) << result.faultLine << ": " << result.fault;
        EXPECT_EQ(result.linesNotKept, 0);
        set = globals.CurrentMV;
    }
    /// The document in hand; its closing check must find nothing.
    static std::string Leaving(ExportFor readers = ExportFor::House) {
        ExportedDocument exported = ExportDocument({2026, 1, 5}, readers);
        for (const ExportFinding& finding : exported.findings)
            ADD_FAILURE() << finding.text << "\n" << exported.xml;
        EXPECT_TRUE(IsWellFormed(exported.xml)) << exported.xml;
        return exported.xml;
    }
    /// What stands at a road below the data, in order.
    static std::string At(const std::string& xml, const std::string& path) {
        std::string texts;
        for (const std::string& text : host::XmlTexts(xml, "//PureOrMixtureData" + path))
            texts += (texts.empty() ? "" : " | ") + text;
        return texts;
    }

    std::shared_ptr<clsMV> set; // the last one
};

} // namespace vexora::test

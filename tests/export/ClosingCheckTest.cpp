#include "export/ClosingCheck.h"

#include "export/MixtureExportFixture.h"
#include "export/XmlWriter.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"

#include <tuple>

namespace vexora::test {

/// A file of a single value and of a set, with one fault put into it.
class ClosingCheckTest : public ExportFixture {
protected:
    ClosingCheckTest() {
        ReadDocument(
            kHead + kHeader + "^z 1 TC S 1 L G & 647.096 & & &\n" +
                "^A & O & & & & & ::P = 200:\n"
                "^1 1 VDN S DIR 1\tC L & FP C & & &\n^d 25 997.05 &\n^d 30 995.65 &\n^M 0\n",
            ReadPurpose::Look);
        exported_ = ExportDocument({2026, 1, 5});
        XmlWriter marks;
        for (const auto& source : globals.recR)
            source->ExportAll(marks, {2026, 1, 5});
        // The frame of the file stands in front.
        const std::string frame = exported_.xml.substr(0, exported_.xml.find("\t<Citation>"));
        for (XmlMark mark : marks.Marks()) {
            mark.line += static_cast<int>(std::count(frame.begin(), frame.end(), '\n'));
            marks_.push_back(mark);
        }
    }
    /// What is found when the first text behind a place is replaced, with the labels of the nodes.
    std::string Found(const std::string& behind, const std::string& from, const std::string& to) {
        std::string xml = exported_.xml;
        const std::size_t at = xml.find(from, xml.find(behind));
        if (at == std::string::npos) return "no such text";
        xml.replace(at, from.size(), to);
        // In one piece and line by line.
        const std::string told = Told(CheckExport(xml, marks_));
        ClosingCheck check(marks_);
        for (std::size_t begin = 0, end = 0; begin < xml.size(); begin = end) {
            end = std::min(xml.find('\n', begin), xml.size() - 1) + 1;
            check.Read(std::string(xml, begin, end - begin)); // the part is gone behind it
        }
        EXPECT_EQ(Told(check.Finish()), told);
        return told;
    }
    static std::string Told(const std::vector<ExportFinding>& findings) {
        std::string told;
        for (const ExportFinding& finding : findings)
            told += (told.empty() ? "" : "|") +
                    (finding.record ? finding.record->ShowKey().substr(0, 3) + " " : "") +
                    finding.text;
        return told;
    }

    ExportedDocument exported_;
    std::vector<XmlMark> marks_;
};

TEST_F(ClosingCheckTest, AWholeFileHasNoFinding) {
    EXPECT_TRUE(exported_.findings.empty());
    EXPECT_EQ(Found("<Citation>", "T", "T"), "");
}

TEST_F(ClosingCheckTest, EachFaultIsFoundWithItsNode) {
    const std::string value = "Critical temperature, K";
    const std::string set = "<eTemperature>";
    const std::tuple<std::string, std::string, std::string, std::string> faults[] = {
        {"<Citation>", "</Citation>", "</Cite>",
         "200 The file is not well formed: line 24: Citation is closed by another name"},
        {"<sTitle>", ">T<", "><", "200 The element sTitle is empty"},
        {"<Compound>", "<nOrgNum>1", "<nOrgNum>2",
         "^0: nOrgNum 1 stands for no compound|^1: nOrgNum 1 stands for no compound"},
        {"<Component>", "<nOrgNum>1", "<nOrgNum>7", "^0: nOrgNum 7 stands for no compound"},
        {"<Component>", "<nSampleNm>1", "<nSampleNm>2", "^0: nSampleNm 2 stands for no sample"},
        {"<PropertyValue>", "<nPropNumber>1", "<nPropNumber>2",
         "^0: nPropNumber 2 stands for nothing"},
        {set, "<nVarNumber>1", "<nVarNumber>2", "^1: nVarNumber 2 stands for nothing"},
        {value, "647.096", "647.O96", "^0: The number nPropValue reads \"647.O96\""},
        {value, "647.096", "374.096", "^0: nPropValue reads 374.096 where the record says 647.096"},
        {set, "<nVarValue>298.15", "<nVarValue>25.00",
         "^1: nVarValue reads 25.00 where the record says 298.15"},
        {value, "<nPropDigits>6", "<nPropDigits>7",
         "^0: nPropDigits 7 is more than the digits of 647.096"},
        {value, "<ePropPhase>Liquid<", "<ePropPhase><", "^0: The element ePropPhase is empty"},
        {set, "<nPropValue>995.65", "<nPropValue>997.05",
         "^1: nPropValue reads 997.05 where the record says 995.65"},
        {"", "Critical temperature, K", "Critical pressure, kPa",
         "^0: \"Critical pressure, kPa\" does not name the unit of the numbers, K"},
        {"", ">Temperature, K<", ">Temperature<",
         "^1: \"Temperature\" does not name the unit of the numbers, K"},
        {"", "<nConstraintValue>200", "<nConstraintValue>100",
         "^1: nConstraintValue reads 100 where the record says 200"},
        {value, "</NumValues>", "</NumValues>\n<Property><nPropNumber>1</nPropNumber></Property>",
         "^0: nPropNumber 1 stands twice"},
    };
    for (const auto& [behind, from, to, told] : faults)
        EXPECT_EQ(Found(behind, from, to), told) << from;
    EXPECT_EQ(Found("<PureOrMixtureData>\n\t\t<nPureOrMixtureDataNumber>2", ">2<", ">1<"),
              "^1: nPureOrMixtureDataNumber 1 stands twice");
    // A row that is not there is missed at the end of its set.
    std::string xml = exported_.xml;
    const std::size_t last = xml.rfind("\t\t<NumValues>");
    xml.erase(last, xml.find("</NumValues>\n", last) + 13 - last);
    ASSERT_EQ(CheckExport(xml, marks_).size(), 1U);
    EXPECT_EQ(CheckExport(xml, marks_)[0].text, "A value of the record is not in the file");
}

/// The same of a mixture.
class ClosingCheckOfMixtures : public MixtureExportFixture {};

TEST_F(ClosingCheckOfMixtures, ConstantsAndCompoundsAreThoseOfTheSystem) {
    Read(kBinary + kHeader + "^1 1 1 T C DIR 1 Y L G & P 101.325 X1 S & & & & & &\n" +
         "^d 0.0190 95.5 &\n");
    const ExportedDocument exported = ExportDocument({2026, 1, 5});
    const auto found = [&](const std::string& from, const std::string& to) {
        const std::vector<XmlMark> marks = {{1, set.get()}};
        std::string told;
        for (const ExportFinding& finding : CheckExport(Replace(exported.xml, from, to), marks))
            told += finding.text;
        return told;
    };
    EXPECT_EQ(found("", ""), "");
    EXPECT_EQ(found(">101.325<", ">1.01325<"),
              "nConstraintValue reads 1.01325 where the record says 101.325");
    EXPECT_EQ(found("368.65", "95.500"), "nPropValue reads 95.500 where the record says 368.65");
    const std::string variable = "</VariableType>\n\t\t\t\t<RegNum>\n\t\t\t\t\t<nOrgNum>";
    EXPECT_EQ(found(variable + "1", variable + "3"),
              "nOrgNum 3 stands for no component of these data");
}

} // namespace vexora::test

#include "export/ExportDocument.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

#include "export/Complexes.h"
#include "export/ReactionParts.h"
#include "export/RegNum.h"
#include "export/SetRows.h"
#include "export/XmlWriter.h"
#include "globals/KVOGlobal.h"
#include "records/DataSet.h"
#include "records/PropertyLabels.h"
#include "records/Walk.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsC.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// Bio data need elements that only the schema of bio data has.
bool HoldsBioData() {
    for (const auto& source : Globals().recR) {
        if (!source->recBR.IsEmpty() || !source->recBP.IsEmpty()) return true;
        for (const auto& complex : source->recComplex)
            for (const auto& sample : complex->recS)
                if (!sample->recBP.IsEmpty()) return true;
    }
    return false;
}

/// What is said of several records in one message: a box for each would only be clicked away.
void TellTogether(const std::string& saying, const std::vector<std::string>& names) {
    constexpr std::size_t mostNamed = 20; // more lines would not fit on a screen
    if (names.empty()) return;
    std::string text = saying;
    for (std::size_t i = 0; i < std::min(names.size(), mostNamed); ++i)
        text += (text.empty() ? "" : "\n") + names[i];
    if (names.size() > mostNamed)
        text += "\nand " + std::to_string(names.size() - mostNamed) + " more";
    ui::Say(text);
}

/// Sets that have no numbers on purpose, compounds that nobody has named, and final states.
void TellWhatIsUnusual() {
    std::vector<std::string> unnamed, sets, states;
    WalkDocument([&](Record& record) {
        const auto* compound = dynamic_cast<const clsL*>(&record);
        if (compound && compound->Name.empty()) unnamed.push_back(compound->RN);
        if (const auto* change = dynamic_cast<const clsC*>(&record))
            for (std::string& text : FinalStateWarnings(*change))
                states.push_back(std::move(text));
        const auto* set = dynamic_cast<const DataSet*>(&record);
        if (!set || !IsWithoutNumbers(*set)) return;
        sets.push_back(set->SystemName() + ": " + PropertyLabels::Of(*set).name + ", Set " +
                       set->PRPSETNO);
    });
    TellTogether("These compounds have no name and stand under their registry numbers in the file:",
                 unnamed);
    TellTogether("These sets are stated to have no numerical data and are not in the file:", sets);
    TellTogether({}, states);
    if (const std::string told = DataOfComplexesLeftOut(); !told.empty()) ui::Say(told);
}

constexpr const char* PublicNamespace = "http://www.iupac.org/namespaces/ThermoML";

std::vector<std::string> AttributesOfRoot(bool isStrict) {
    const bool bio = HoldsBioData();
    std::vector<std::string> attributes;
    if (isStrict) attributes = {"xmlns", PublicNamespace};
    attributes.insert(attributes.end(), {"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"});
    if (bio)
        attributes.insert(attributes.end(), {"xsi:noNamespaceSchemaLocation", "ThermoML.Bio.xsd"});
    else if (isStrict) // name space and place, as XML Schema has it
        attributes.insert(attributes.end(),
                          {"xsi:schemaLocation", std::string(PublicNamespace) + " ThermoML.xsd"});
    else
        attributes.insert(attributes.end(), {"xsi:SchemaLocation", "ThermoML.xsd"});
    return attributes;
}

void NameCompoundsPassedOver(std::vector<ExportFinding>& findings) {
    for (const auto& source : Globals().recR)
        for (const auto& compound : source->recL)
            if (!PublicStructure(*compound))
                findings.push_back({"Public readers pass over this compound, for no table knows "
                                    "its structure",
                                    compound.get(), false});
    for (const auto& source : Globals().recR)
        for (const auto& complex : ExportedComplexes(*source))
            findings.push_back({"Public readers pass over this complex, for it has no structure of "
                                "its own",
                                complex.get(), false});
}

std::string Padded(std::int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

} // namespace

std::string IsoDate(const ui::Date& date) {
    return std::to_string(date.year) + "-" + Padded(date.month) + "-" + Padded(date.day);
}

std::string IsoDate(std::string_view recordDate) {
    const std::vector<std::string> parts = Split(recordDate, '/');
    if (parts.size() != 3) return {};
    const auto month = ParseInteger(parts[0]);
    const auto day = ParseInteger(parts[1]);
    const auto year = ParseInteger(parts[2]);
    if (!month || !day || !year || *year < 1000 || *year > 9999) return {};
    if (*month < 1 || *month > 12 || *day < 1 || *day > 31) return {};
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(*year)),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    return date.ok() ? std::to_string(*year) + "-" + Padded(*month) + "-" + Padded(*day) : "";
}

ExportedDocument ExportDocument(const ui::Date& today, ExportFor readers, const WorkHeard& heard) {
    ExportedDocument exported;
    std::string& text = exported.xml;
    const auto gather = [&](std::string_view part) {
        // Room that is not written to costs nothing, but a copy does.
        constexpr std::size_t growth = 4;
        if (text.capacity() < text.size() + part.size())
            text.reserve(growth * (text.size() + part.size()));
        text += part;
    };
    exported.findings = ExportDocument(today, readers, gather, heard);
    return exported;
}

std::vector<ExportFinding> ExportDocument(const ui::Date& today, ExportFor readers,
                                          const std::function<void(std::string_view)>& taker,
                                          const WorkHeard& heard) {
    const auto all = static_cast<double>(CountRecords());
    std::unique_ptr<ClosingCheck> check;
    // What was just written is still at hand, the file as well as its records.
    XmlWriter xml(readers == ExportFor::StrictReaders, [&](std::string_view part) {
        if (heard && !heard(std::min(1.0, static_cast<double>(xml.Marks().size()) / all))) {
            Globals().LineInHand = 0;
            throw WorkStopped();
        }
        check->Read(part);
        taker(part);
    });
    check = std::make_unique<ClosingCheck>(xml.Marks());
    xml.Declaration();
    xml.Comment("Created by Vexora " VEXORA_VERSION);
    xml.Open("DataReport", AttributesOfRoot(xml.IsStrict()));
    xml.Open("Version");
    xml.Element("nVersionMajor", "2");
    xml.Element("nVersionMinor", "0");
    xml.Close();
    for (const auto& source : Globals().recR)
        source->ExportAll(xml, today);
    xml.Close();
    xml.Finish();
    TellWhatIsUnusual();
    std::vector<ExportFinding> findings = check->Finish();
    if (xml.IsStrict()) NameCompoundsPassedOver(findings);
    return findings;
}

} // namespace vexora

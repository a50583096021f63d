#include "shell/DocumentText.h"

#include <algorithm>
#include <span>

#include "export/ExportDocument.h"
#include "globals/KVOGlobal.h"
#include "records/clsR.h"
#include "reference/Text.h"

namespace vexora {

namespace {

class DesktopTalk : public ReadTalk {
public:
    explicit DesktopTalk(ui::Progress& progress) : progress_(progress) {}
    void Say(const Notice& notice) override { ui::Say(notice.text, notice.title); }
    bool Confirm(const std::string& question) override { return ui::AskYesNo(question); }
    bool Heard(double share) override { return progress_.Reached(share); }

private:
    ui::Progress& progress_;
};

/// Both files say where the data were taken from.
void AskSourcesOfDocument() {
    for (const auto& source : Globals().recR) {
        const std::string question = source->QuestionOfOrigin();
        if (question.empty()) continue;
        source->TakeOrigin(ui::TheDesktop().Ask({question, "", "O"}).value_or(""));
    }
}

/// The lines by their numbers; a box has no room for many or for long ones.
std::string LinesInBrief(const std::vector<LineLost>& lost) {
    constexpr std::size_t most = 10;
    constexpr std::size_t widest = 100;
    std::string text;
    for (const LineLost& one : std::span(lost).first(std::min(most, lost.size()))) {
        const bool isLong = CodePointCount(one.text) > widest;
        text += "\nLine " + std::to_string(one.line) + ": " +
                (isLong ? Substring(one.text, 1, widest) + "..." : one.text);
    }
    if (lost.size() > most)
        text += "\nand " + std::to_string(lost.size() - most) +
                " more: \"Check the document\" in the Tools menu names all of them.";
    return text;
}

/// One line each, with the node that it came from; a file that is wrong from end to end says so in
/// few of them.
std::string TextOf(const std::vector<ExportFinding>& findings) {
    constexpr std::size_t mostLines = 20; // more would not fit on a screen
    std::string text;
    for (std::size_t i = 0; i < std::min(findings.size(), mostLines); ++i) {
        const Record* record = findings[i].record;
        text += (i == 0 ? "" : "\n") + (record ? record->ShowKey() + ": " : "") + findings[i].text;
    }
    if (findings.size() > mostLines)
        text += "\nand " + std::to_string(findings.size() - mostLines) + " more";
    return text;
}

} // namespace

Notice NoticeOfReading(const ReadResult& result) {
    const std::string lines = LinesInBrief(result.lost);
    if (result.linesNotKept == 0 && lines.empty()) return {};
    if (result.linesNotKept == 0)
        return {
            "Not all that this file holds can be kept. When the document is saved, it will lack:" +
                lines,
            "Passed over"};
    const std::string count = result.linesNotKept == 1
                                  ? std::string("1 line")
                                  : std::to_string(result.linesNotKept) + " lines";
    return {"This document holds " + count +
                " of data that this edition does not keep.\n"
                "It is opened for reading only, so that nothing of it is lost." +
                lines,
            "Read only"};
}

ReadResult ReadDocument(std::string_view text, ReadPurpose purpose, const std::string& name) {
    const ui::HourglassScope hourglass;
    const auto progress =
        ui::TheDesktop().Begin({"Reading " + (name.empty() ? "the document" : name), true});
    DesktopTalk talk(*progress);
    ReadResult result = ReadRecords(text, talk, purpose);
    if (result.endsProgram && purpose == ReadPurpose::Work) ui::TheDesktop().EndProgram();
    return result;
}

std::string DocumentAsRecords() {
    AskSourcesOfDocument();
    PrintedDocument printed = [] {
        const auto progress = ui::TheDesktop().Begin({"Saving the document", true});
        return PrintDocument([&](double share) { return progress->Reached(share); });
    }();
    for (const std::string& notice : printed.notices)
        ui::Say(notice);
    return std::move(printed.text);
}

void DocumentAsRecords(const std::function<void(std::string_view)>& taker) {
    AskSourcesOfDocument();
    for (const std::string& notice : PrintDocument(taker))
        ui::Say(notice);
}

ExportedDocument DocumentForExport(const ui::Date& today, ExportFor readers) {
    AskSourcesOfDocument();
    return ExportDocument(today, readers);
}

std::vector<ExportFinding> DocumentForExport(const ui::Date& today, ExportFor readers,
                                             const std::function<void(std::string_view)>& taker) {
    AskSourcesOfDocument();
    return ExportDocument(today, readers, taker);
}

std::string DocumentAsXml(const ui::Date& today, ExportFor readers) {
    AskSourcesOfDocument();
    ExportedDocument exported = [&] {
        const auto progress = ui::TheDesktop().Begin({"Exporting the document", true});
        return ExportDocument(today, readers,
                              [&](double share) { return progress->Reached(share); });
    }();
    if (!exported.findings.empty()) ui::Say(TextOf(exported.findings), "Please review the export");
    return std::move(exported.xml);
}

} // namespace vexora

#include "shell/DocumentText.h"

#include "export/ExportDocument.h"
#include "globals/KVOGlobal.h"
#include "records/clsR.h"

namespace vexora {

namespace {

class DesktopTalk : public ReadTalk {
public:
    void Say(const Notice& notice) override { ui::Say(notice.text, notice.title); }
    bool Confirm(const std::string& question) override { return ui::AskYesNo(question); }
};

/// Both files say where the data were taken from.
void AskSourcesOfDocument() {
    for (const auto& source : Globals().recR) {
        const std::string question = source->QuestionOfOrigin();
        if (question.empty()) continue;
        source->TakeOrigin(ui::TheDesktop().Ask({question, "", "O"}).value_or(""));
    }
}

} // namespace

ReadResult ReadDocument(std::string_view text, ReadPurpose purpose) {
    const ui::HourglassScope hourglass;
    DesktopTalk talk;
    ReadResult result = ReadRecords(text, talk, purpose);
    if (result.endsProgram) ui::TheDesktop().EndProgram();
    return result;
}

std::string DocumentAsRecords() {
    AskSourcesOfDocument();
    PrintedDocument printed = PrintDocument();
    for (const std::string& notice : printed.notices)
        ui::Say(notice);
    return std::move(printed.text);
}

std::string DocumentAsXml(const ui::Date& today) {
    AskSourcesOfDocument();
    return ExportDocument(today);
}

} // namespace vexora

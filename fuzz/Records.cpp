#include <optional>
#include <string>

#include "FuzzRoom.h"
#include "Target.h"
#include "cli/QuietDesktop.h"
#include "export/ExportDocument.h"
#include "records/DocumentCheck.h"
#include "records/LineWriter.h"
#include "records/RecordReader.h"
#include "records/clsR.h"
#include "ui/Forms.h"

namespace vexora::fuzz {

namespace {

/// Hears everything and confirms what is asked.
class Listener : public ReadTalk {
public:
    void Say(const Notice&) override {}
    bool Confirm(const std::string&) override { return true; }
};

bool Read(std::string_view text) {
    Globals().recR.Clear();
    Globals().ForgetCurrent();
    Listener listener;
    const ReadResult read = ReadRecords(text, listener, ReadPurpose::Look);
    Must(read.whole || Globals().recR.Count() == 0, "a document is never half loaded");
    return read.whole && Globals().recR.Count() > 0;
}

/// The document as a save would write it, nothing when it is refused.
std::optional<std::string> Printed() {
    try {
        return PrintDocument().text;
    } catch (const SaveRefused&) {
        return {};
    }
}

} // namespace

void Try(std::string_view text) {
    static QuietDesktop desktop([](const ui::Message&) {});
    static ui::Forms forms(desktop);
    static Room room;
    if (!Read(text)) return;
    CheckDocument();
    for (const ExportFor readers : {ExportFor::House, ExportFor::StrictReaders})
        ExportDocument({2026, 1, 15}, readers);
    const std::optional<std::string> saved = Printed();
    if (!saved) return;
    Must(Printed() == saved, "saving changes nothing in memory");
    Must(Read(*saved) || saved->find("^R") == saved->npos, "what was saved is read again");
    const std::optional<std::string> again = Printed();
    if (again) Must(Read(*again) && Printed() == again, "a document settles after two saves");
}

} // namespace vexora::fuzz

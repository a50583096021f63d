#include "host/WorkbenchProgram.h"

namespace vexora::host {

namespace {

class WorkbenchProgram : public Program {
public:
    WorkbenchProgram(ui::Desktop& desktop, const Places& places) : workbench_(desktop, places) {}
    bool Start(const std::string& commandLine) override { return workbench_.Start(commandLine); }
    ui::Form* MainForm() override { return Forms().Find("frmMain"); }
    ui::Forms& Forms() override { return workbench_.Forms(); }

private:
    Workbench workbench_;
};

} // namespace

MakeProgram WorkbenchIn(const Places& places) {
    return [places](ui::Desktop& desktop) {
        return std::make_unique<WorkbenchProgram>(desktop, places);
    };
}

} // namespace vexora::host

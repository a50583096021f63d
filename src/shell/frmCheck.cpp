#include "shell/frmCheck.h"

#include <algorithm>
#include <array>

#include "records/Record.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr std::array Severities = {Severity::Error, Severity::Warning, Severity::Hint};

std::string LineOf(const DocumentFinding& finding) {
    std::string word(SeverityWord(finding.severity));
    word.front() = UpperAscii(word).front();
    return word + ": " + finding.text;
}

/// "1 error, 2 warnings, no hints"
std::string CountsOf(const std::vector<DocumentFinding>& findings) {
    std::string text;
    for (const Severity severity : Severities) {
        const auto count = std::ranges::count(findings, severity, &DocumentFinding::severity);
        text += (text.empty() ? "" : ", ") + (count == 0 ? "no" : std::to_string(count)) + " " +
                std::string(SeverityWord(severity)) + (count == 1 ? "" : "s");
    }
    return text;
}

/// The node with those above it.
std::string PathOf(const ui::TreeNode* node) {
    std::string path;
    for (; node != nullptr; node = node->Parent())
        path = node->Text() + (path.empty() ? "" : " / ") + path;
    return path;
}

const ui::TreeNode* NodeOf(const DocumentFinding* finding) {
    return finding && finding->record ? finding->record->tNode : nullptr;
}

} // namespace

frmCheck::frmCheck() : Form("frmCheck", "Check the document") {
    Arrangement = ui::Column({ui::Field("Found:", lblCounts), lstFindings,
                              ui::Field("Node:", txtNode), ui::ButtonRow({cmdGo, cmdClose})});
    UseButtons(cmdGo, cmdClose, [this] { cmdGo_Click(); });
    PreferredColumns = 110;
    PreferredRows = 26;
    HelpContext = 410;
    lstFindings.TakesRoom = true;
    txtNode.Locked(true);
    lstFindings.OnClick = [this] { lstFindings_Click(); };
    lstFindings.OnDoubleClick = [this] { cmdGo_Click(); };
}

void frmCheck::Show(std::vector<DocumentFinding> findings) {
    findings_ = std::move(findings);
    std::ranges::stable_sort(findings_, {}, &DocumentFinding::severity);
    std::vector<std::string> lines;
    lines.reserve(findings_.size());
    std::ranges::transform(findings_, std::back_inserter(lines), LineOf);
    lblCounts.Caption(CountsOf(findings_));
    lstFindings.Assign(std::move(lines));
}

void frmCheck::Load() {
    if (!findings_.empty()) lstFindings.Index(0);
    lstFindings_Click();
    lstFindings.SetFocus();
}

const DocumentFinding* frmCheck::Chosen() const {
    const int index = lstFindings.Index();
    return index < 0 ? nullptr : &findings_[static_cast<std::size_t>(index)];
}

void frmCheck::lstFindings_Click() {
    const ui::TreeNode* node = NodeOf(Chosen());
    txtNode.Text(PathOf(node));
    cmdGo.Enabled(node != nullptr);
}

void frmCheck::cmdGo_Click() {
    const DocumentFinding* chosen = Chosen();
    if (NodeOf(chosen) == nullptr) return;
    ui::TreeNode& node = *chosen->record->tNode;
    const auto go = OnGo; // closing destroys the form
    Close();
    if (go) go(node);
}

} // namespace vexora

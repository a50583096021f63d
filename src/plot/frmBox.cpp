#include "plot/frmBox.h"

#include "plot/RtfText.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

/// What stands between two marks of an HTML page, or the whole.
std::string Between(const std::string& html, std::string_view open, std::string_view close) {
    const std::size_t from = html.find(open);
    if (from == std::string::npos) return {};
    const std::size_t start = from + open.size();
    const std::size_t end = html.find(close, start);
    return end == std::string::npos ? std::string() : html.substr(start, end - start);
}

} // namespace

frmBox::frmBox() : Form("frmBox", "Vexora") {
    Arrangement = ui::Column({RichTextBox1, ui::ButtonRow({cmdPrint, cmdOK})});
    UseButtons(cmdOK, cmdOK, [this] { Close(); });
    PreferredColumns = 80;
    PreferredRows = 28;
    HelpContext = 15;
    cmdPrint.OnClick = [this] { cmdPrint_Click(); };
}

std::string frmBox::LoadFile(const std::string& path) {
    std::string error;
    const auto bytes = ui::TheDesktop().Files().Read(path, error);
    if (!bytes) return error.empty() ? path + " cannot be read" : error;
    const std::string text = ToUtf8(*bytes);
    const std::string name = LowerAscii(path);
    if (name.ends_with(".html") || name.ends_with(".htm")) {
        const std::string title = Between(text, "<title>", "</title>");
        const std::string body = Between(text, "<body>", "</body>");
        Caption(title.empty() ? "Vexora" : title);
        RichTextBox1.Html(body.empty() ? text : body);
    } else {
        Caption("Vexora");
        RichTextBox1.Html(name.ends_with(".rtf") ? HtmlOfRtf(text) : HtmlOfText(text));
    }
    return {};
}

void frmBox::cmdPrint_Click() {
    ui::TheDesktop().Print(Caption(), RichTextBox1.Display());
}

} // namespace vexora

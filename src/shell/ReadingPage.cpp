#include "shell/ReadingPage.h"

#include "chem/CommentTags.h"
#include "plot/RtfText.h"
#include "records/clsA.h"
#include "records/clsX.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

ReadingPage::ReadingPage(std::string_view heading)
    : html_("<h3>" + HtmlOfText(heading) + "</h3>\n") {}

void ReadingPage::Line(std::string_view what, std::string_view value) {
    if (IsBlankField(value)) return;
    html_ += "<p><b>" + HtmlOfText(what) + "</b> " + HtmlOfText(value) + "</p>\n";
}

void ReadingPage::Item(std::string_view text) {
    html_ += "<p>" + HtmlOfText(text) + "</p>\n";
}

void ReadingPage::Table(const std::vector<std::string>& heads,
                        const std::vector<std::vector<std::string>>& rows) {
    // The blank between cells parts them where only the text is read.
    const auto row = [this](const std::vector<std::string>& cells, const std::string& begin,
                            const std::string& end) {
        html_ += "<tr>";
        for (std::size_t n = 0; n < cells.size(); ++n)
            html_ += (n > 0 ? " " : "") + begin + HtmlOfText(cells[n]) + end;
        html_ += "</tr>\n";
    };
    html_ += "<table cellpadding=\"3\">";
    row(heads, "<th align=\"right\">", "</th>");
    const std::string across =
        "<td align=\"center\" colspan=\"" + std::to_string(heads.size()) + "\">";
    for (const auto& cells : rows)
        row(cells, cells.size() == 1 && heads.size() > 1 ? across : "<td align=\"right\">",
            "</td>");
    html_ += "</table>";
}

std::string ReadingPage::Html() const {
    if (missing_.empty()) return html_;
    std::string html = html_ + "<h4>Still missing</h4>\n";
    for (const std::string& text : missing_)
        html += "<p>" + HtmlOfText(text) + "</p>\n";
    return html;
}

std::string MethodText(const clsA& header, const std::string& propertyCode) {
    const CommentTags tags(header.DATACOMMENT);
    const std::string code = tags.TrimmedValue("Method");
    if (code.empty() || code == "OTHER") return tags.TrimmedValue("sMethod");
    return code == "UNKNOWN" ? "not stated in the document" : XMLMethod(code, propertyCode);
}

std::string PhaseText(std::string_view code) {
    return IsBlankField(code) ? std::string() : PhaseName(code);
}

std::string UncertaintyText(const clsX& stated) {
    const auto with = [](const std::string& text, const std::string& level) {
        return IsBlankField(level) ? text : text + " (" + level + " % confidence)";
    };
    if (stated.iCU && !IsBlankField(stated.CValue)) return with(stated.CValue, stated.CLevel);
    if (stated.iUnc && !IsBlankField(stated.UValue)) return with(stated.UValue, stated.ULevel);
    return {};
}

std::string Listed(std::initializer_list<std::string> parts) {
    std::string text;
    for (const std::string& part : parts)
        if (!part.empty()) text += (text.empty() ? "" : ", ") + part;
    return text;
}

} // namespace vexora

#include "ui/Html.h"

#include <utility>

namespace vexora::ui {

std::string TextOfHtml(std::string_view html) {
    static constexpr std::pair<std::string_view, char> entities[] = {
        {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&amp;", '&'}};
    std::string text;
    bool inTag = false;
    for (std::size_t i = 0; i < html.size(); ++i) {
        char c = html[i];
        if (c == '<') inTag = true;
        if (!inTag) {
            for (const auto& [entity, sign] : entities) {
                if (html.compare(i, entity.size(), entity) != 0) continue;
                i += entity.size() - 1;
                c = sign;
                break;
            }
            text += c;
        } else if (c == '>') {
            inTag = false;
        }
    }
    return text;
}

std::string HtmlOfText(std::string_view text) {
    std::string html;
    for (const char c : text) {
        if (c == '&')
            html += "&amp;";
        else if (c == '<')
            html += "&lt;";
        else if (c == '>')
            html += "&gt;";
        else if (c == '\n')
            html += "<br>\n";
        else if (c != '\r')
            html += c;
    }
    return html;
}

} // namespace vexora::ui

#include "shell/HelpPages.h"

#include <algorithm>

#include "reference/Text.h"
#include "shell/Paths.h"
#include "ui/FileSystem.h"
#include "ui/Html.h"

namespace vexora {

namespace {

constexpr std::size_t ExcerptBefore = 14; // bytes in front of a hit
constexpr std::size_t ExcerptLength = 90;

/// One blank for each run of white space, none at the ends.
std::string OneBlankEach(std::string_view text) {
    std::string line;
    for (const char c : text) {
        const bool isBlank = c == ' ' || c == '\n' || c == '\r' || c == '\t';
        if (!isBlank)
            line += c;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    }
    return std::string(TrimBlanks(line));
}

/// The words of a page; cells, paragraphs and lines part them as blanks do.
std::string WordsOfHtml(std::string html) {
    for (const char* end : {"</h1>", "</h2>", "</p>", "</li>", "</td>", "</dt>", "<br>"})
        html = Replace(html, end, std::string(" ") + end);
    return OneBlankEach(ui::TextOfHtml(html));
}

HelpPage PageOf(const std::string& html) {
    HelpPage page;
    const std::size_t open = html.find("<h1>");
    const std::size_t close = html.find("</h1>");
    const bool hasTitle = open != html.npos && close != html.npos && open < close;
    if (hasTitle) page.title = WordsOfHtml(html.substr(open, close - open));
    page.text = WordsOfHtml(hasTitle ? html.substr(close) : html);
    return page;
}

/// The same of a page in Markdown: pictures are left out, and the marks of headings and stress.
HelpPage PageOfMarkdown(const std::string& text) {
    HelpPage page;
    std::string words;
    for (const std::string& line : Split(text, '\n')) {
        if (line.starts_with("![")) continue;
        if (page.title.empty() && line.starts_with("# "))
            page.title = OneBlankEach(line.substr(2));
        else
            words += line.substr(std::min(line.find_first_not_of('#'), line.size())) + " ";
    }
    page.text = OneBlankEach(Replace(Replace(words, "**", ""), "`", ""));
    return page;
}

bool IsInsideLetter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// A part of a text that begins and ends between two words, where that is near.
std::string Excerpt(const std::string& text, std::size_t hit) {
    std::size_t from = hit > ExcerptBefore ? text.find(' ', hit - ExcerptBefore) : 0;
    if (from == text.npos || from > hit) from = hit;
    std::size_t to = std::min(text.size(), from + ExcerptLength);
    if (to < text.size()) to = std::max(hit + 1, text.rfind(' ', to));
    while (to < text.size() && IsInsideLetter(text[to]))
        ++to;
    const std::string part(TrimBlanks(text.substr(from, to - from)));
    return (from > 0 ? "... " : "") + part + (to < text.size() ? " ..." : "");
}

bool HoldsAll(const std::string& lowered, const std::vector<std::string>& words) {
    return std::ranges::all_of(
        words, [&](const std::string& word) { return lowered.find(word) != lowered.npos; });
}

/// Where the first of the words stands, 0 when none does.
std::size_t FirstOf(const std::string& lowered, const std::vector<std::string>& words) {
    std::size_t first = lowered.npos;
    for (const std::string& word : words)
        first = std::min(first, lowered.find(word));
    return first == lowered.npos ? 0 : first;
}

} // namespace

std::vector<std::string> HelpWords(std::string_view words) {
    std::vector<std::string> parts = Split(OneBlankEach(words), ' ');
    std::erase(parts, "");
    return parts;
}

HelpPages HelpPages::Read(const std::string& folder, ui::FileSystem& files) {
    HelpPages pages;
    std::string error;
    const auto contents = files.Read(JoinPath(folder, "contents.txt"), error);
    std::string section;
    for (const std::string& whole : Split(contents.value_or(""), '\n')) {
        const std::string line(Trim(whole));
        if (line.starts_with("# ")) section = line.substr(2);
        if (line.empty() || line.starts_with('#')) continue;
        const auto html = files.Read(JoinPath(folder, line + ".html"), error);
        const auto text = html ? html : files.Read(JoinPath(folder, line + ".md"), error);
        if (!text) continue;
        pages.pages_.push_back(html ? PageOf(ToUtf8(*html)) : PageOfMarkdown(ToUtf8(*text)));
        pages.pages_.back().topic = line;
        pages.pages_.back().file = line + (html ? ".html" : ".md");
        pages.pages_.back().section = section;
    }
    return pages;
}

const HelpPage* HelpPages::Find(std::string_view topic) const {
    const auto found = std::ranges::find(pages_, topic, &HelpPage::topic);
    return found == pages_.end() ? nullptr : &*found;
}

std::vector<HelpHit> HelpPages::Search(std::string_view words) const {
    const std::vector<std::string> wanted = HelpWords(LowerAscii(words));
    std::vector<HelpHit> inTitles;
    std::vector<HelpHit> inTexts;
    if (wanted.empty()) return inTitles;
    for (const HelpPage& page : pages_) {
        const std::string title = LowerAscii(page.title);
        const std::string text = LowerAscii(page.text);
        const bool isTitle = HoldsAll(title, wanted);
        if (!isTitle && !HoldsAll(title + " " + text, wanted)) continue;
        (isTitle ? inTitles : inTexts)
            .push_back({&page, Excerpt(page.text, FirstOf(text, wanted))});
    }
    inTitles.insert(inTitles.end(), inTexts.begin(), inTexts.end());
    return inTitles;
}

} // namespace vexora

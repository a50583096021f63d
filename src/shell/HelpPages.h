#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexora {

namespace ui {
class FileSystem;
}

/// A page of help as its readers find it.
struct HelpPage {
    std::string topic;   // the context number, which is the name of its file without the ending
    std::string file;    // with the ending: .html, or .md for a page that is read elsewhere too
    std::string title;   // its first heading
    std::string section; // the part of the contents that it stands in
    std::string text;    // all its words in one line, the title left out
};

/// A page that holds what was searched for.
struct HelpHit {
    const HelpPage* page = nullptr;
    std::string excerpt; // the words around the first hit in the text, or how the text begins
};

/// The pages of help in the order of their contents, and the search in them. The file contents.txt
/// beside the pages lists them: "# " begins a section, every other line is a topic.
class HelpPages {
public:
    /// Reads a folder of pages. A page that cannot be read is left out; without contents there are
    /// no pages.
    static HelpPages Read(const std::string& folder, ui::FileSystem& files);

    const std::vector<HelpPage>& Pages() const { return pages_; }
    /// The page of a topic, or null.
    const HelpPage* Find(std::string_view topic) const;
    /// The pages that hold every word, in any case and also within longer words: those with all of
    /// them in the title first, then in the order of the contents. Blank words find nothing.
    std::vector<HelpHit> Search(std::string_view words) const;

private:
    std::vector<HelpPage> pages_;
};

/// The words of a search, parted by white space.
std::vector<std::string> HelpWords(std::string_view words);

} // namespace vexora

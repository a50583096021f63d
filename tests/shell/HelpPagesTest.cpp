#include "shell/HelpPages.h"

#include <map>
#include <set>

#include "shell/ShellFixture.h"
#include "ui/Forms.h"

namespace vexora::test {

namespace {

namespace fs = std::filesystem;

const fs::path HelpFolder = fs::path(VEXORA_SOURCE_DIR) / "help";

/// What a page leads to, by the texts behind href.
std::vector<std::string> LinksOf(const std::string& html) {
    static constexpr std::string_view mark = "href=\"";
    std::vector<std::string> links;
    for (std::size_t at = html.find(mark); at != html.npos; at = html.find(mark, at + 1)) {
        const std::size_t from = at + mark.size();
        links.push_back(html.substr(from, html.find('"', from) - from));
    }
    return links;
}

} // namespace

class HelpPagesTest : public ShellFixture {
protected:
    HelpPages OwnPages() { return HelpPages::Read(HelpFolder.string(), files); }
};

TEST_F(HelpPagesTest, TheContentsHoldEveryPageOnceAndLinksLeadToPages) {
    const HelpPages pages = OwnPages();
    std::set<std::string> topics;
    std::set<std::string> titles;
    for (const HelpPage& page : pages.Pages()) {
        EXPECT_TRUE(topics.insert(page.topic).second) << page.topic;
        EXPECT_TRUE(titles.insert(page.title).second) << page.title;
        EXPECT_FALSE(page.section.empty() || page.text.empty()) << page.topic;
        for (const std::string& link :
             LinksOf(FileText((HelpFolder / (page.topic + ".html")).string())))
            EXPECT_TRUE(link.ends_with(".html") && pages.Find(fs::path(link).stem().string()))
                << page.topic << " leads to " << link;
    }
    for (const auto& entry : fs::directory_iterator(HelpFolder)) {
        if (entry.path().extension() != ".html") continue;
        EXPECT_TRUE(topics.erase(entry.path().stem().string())) << entry.path();
    }
    EXPECT_TRUE(topics.empty()) << *topics.begin();
}

TEST_F(HelpPagesTest, EveryFormHasAPageOfItsOwnInTheContents) {
    ASSERT_TRUE(Start());
    const HelpPages pages = OwnPages();
    std::map<int, std::string> owners;
    for (const std::string& name : workbench.Forms().KnownNames()) {
        const int topic = workbench.Forms().Get(name).HelpContext;
        EXPECT_NE(pages.Find(std::to_string(topic)), nullptr) << name << ": " << topic;
        // The forms for the details of a publication are explained together.
        const std::string owner = name.starts_with("frmMake") ? "frmMake" : name;
        const auto [known, isFirst] = owners.emplace(topic, owner);
        EXPECT_TRUE(isFirst || known->second == owner) << known->second << " and " << name;
    }
    EXPECT_GT(owners.size(), 14U);
}

TEST_F(HelpPagesTest, ASearchFindsPagesWithAllWords) {
    WriteText(folder.Path("contents.txt"), "# One\n3\n\n# Two\r\n1\n2\n9\n4\n");
    WriteText(folder.Path("1.html"),
              "<h1>Units &amp; factors</h1>\n<p>A <b>sample</b>, it<br>has none.");
    WriteText(folder.Path("2.html"), "<p>No title</p><p>Plot of units</p>");
    WriteText(folder.Path("4.md"),
              "# The tour\n\nSome **steps**\n\n![A step](tour/a.png)\n## Or `more`\n");
    const std::string filler = "letters without end and number ";
    WriteText(folder.Path("3.html"), "<h1>Samples</h1><p>" + filler + filler +
                                         "then the Units of\na caf\xC3\xA9 " + filler + filler +
                                         filler);
    const HelpPages pages = HelpPages::Read(folder.Path(), files);
    const auto found = [&](const std::string& words) {
        std::string lines;
        for (const HelpHit& hit : pages.Search(words))
            lines += hit.page->topic + ": " + hit.excerpt + "\n";
        return lines;
    };
    const std::string third = "3: ... then the Units of a caf\u00e9 letters without end and number "
                              "letters without end and number ...\n";
    EXPECT_EQ(found("units"), "1: A sample, it has none.\n" + third + "2: ... Plot of units\n");
    EXPECT_EQ(found(" SAMPLE  unit "), third + "1: A sample, it has none.\n");
    EXPECT_EQ(found("plot samples"), "");
    EXPECT_EQ(found(" \t"), "");
    ASSERT_EQ(pages.Pages().size(), 4U); // 9 cannot be read
    EXPECT_EQ(found("steps"), "4: Some steps Or more\n");
    EXPECT_EQ(pages.Find("4")->title + pages.Find("4")->file, "The tour4.md");
    EXPECT_EQ(pages.Find("1")->title, "Units & factors");
    EXPECT_EQ(pages.Find("1")->section + pages.Find("3")->section, "TwoOne");
    EXPECT_EQ(pages.Find("9"), nullptr);
    EXPECT_TRUE(HelpPages::Read(folder.Path("none"), files).Pages().empty());
}

} // namespace vexora::test

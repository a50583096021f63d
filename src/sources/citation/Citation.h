// What a pasted citation tells of a publication, whatever format it came in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// A person as cited. A name that is not one of a person stands in `last` alone.
struct CitedName {
    std::string last;   // with its particles: "van der Waals"
    std::string first;  // first names or initials
    std::string suffix; // "Jr." and the like
};

/// All texts are one line of UTF-8 with plain dashes and quotation marks, "" for what is not told.
struct Citation {
    std::string format; // the name of the format for the reader
    std::string type;   // entry of the list of document types
    std::string title;
    std::vector<CitedName> authors;
    bool moreAuthors = false; // it names "others" besides
    std::string year;
    std::vector<std::string> journals; // the names under which it gives the journal
    std::string bookTitle;             // of a book, of the one it is part of, of a conference
    std::string edition, volume, issue, chapter, pages, editors;
    std::string publisher, place, institution;
    std::string number; // of a report, a patent or a deposited document
    std::string degree; // of a thesis
    std::string date;
    std::string abstract;
    std::string keyWords; // parted by "; "
    std::vector<std::string> notUnderstood;
};

/// Types that the formats know, as the list of document types names them.
namespace cited {
inline constexpr std::string_view Article = "Journal article";
inline constexpr std::string_view Book = "Book or portion of a book";
inline constexpr std::string_view Report = "Report";
inline constexpr std::string_view Patent = "Patent";
inline constexpr std::string_view Thesis = "Thesis/Dissertation";
inline constexpr std::string_view Conference = "Conference proceedings";
inline constexpr std::string_view Communication = "Personal communication";
inline constexpr std::string_view Unpublished = "Unpublished";
inline constexpr std::string_view InPress = "To be published";
inline constexpr std::string_view Manuscript = "Submitted manuscript";
} // namespace cited

} // namespace vexora

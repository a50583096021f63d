#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vexora {

class clsA;
class clsX;

/// Collects a page of the reading pane: a heading, lines of "what: value", and what is missing.
class ReadingPage {
public:
    explicit ReadingPage(std::string_view heading);

    /// Does nothing for an empty value.
    void Line(std::string_view what, std::string_view value);
    void Item(std::string_view text);
    /// A table with numbers to the right; a row of one cell goes across it.
    void Table(const std::vector<std::string>& heads,
               const std::vector<std::vector<std::string>>& rows);
    void Need(bool missing, std::string text) {
        if (missing) missing_.push_back(std::move(text));
    }
    std::string Html() const;

private:
    std::string html_;
    std::vector<std::string> missing_;
};

/// The method that the comment of a set names, in words.
std::string MethodText(const clsA& header, const std::string& propertyCode);
/// A phase in words; empty for none.
std::string PhaseText(std::string_view code);
/// The combined uncertainty of a statement, else that of the author, with its confidence; empty for
/// none that is meant to hold.
std::string UncertaintyText(const clsX& stated);
/// Parts that are not empty, with commas between them.
std::string Listed(std::initializer_list<std::string> parts);

} // namespace vexora

// The kinds of publication that a source can be, in list order, with the code that the record keeps
// and the dialog that asks for the details; entries without one stand as they are in the source
// text.
#pragma once

#include <array>
#include <string_view>

namespace vexora {

struct DocumentType {
    std::string_view text;
    std::string_view code;
    std::string_view detailForm;
};

inline constexpr std::string_view PersonalCommunication = "Personal communication";

inline constexpr std::array<DocumentType, 11> DocumentTypes{{
    {"Book or portion of a book", "B", "frmMakeBook"},
    {"Journal article", "J", "frmMakeJournal"},
    {"Report", "R", "frmMakeReport"},
    {"Patent", "P", "frmMakePatent"},
    {"Thesis/Dissertation", "T", "frmMakeThesis"},
    {"Conference proceedings", "M", "frmMakeConf"},
    {"Deposited document", "D", "frmMakeDeposited"},
    {PersonalCommunication, "C", ""},
    {"Unpublished", "C", ""},
    {"To be published", "C", ""},
    {"Submitted manuscript", "S", "frmMakeJournal"},
}};

} // namespace vexora

#pragma once

#include <string>
#include <string_view>

#include "records/Notice.h"
#include "reference/ShortText.h"

namespace vexora {

class LineWriter;

/// The header that stands before each data set: who compiled it, why it was measured, the comment.
/// The reader keeps one and hands its fields to the record that follows.
///
///   ^A NOTE SOURCEDOC EXPPURPOSE PRPFLAG COMPILER CONTRIBUTOR DATEADDED comment
///   ^a comment
///
/// Each field is one word, "&" when empty; PRPFLAG is "&" when it is 0; the comment is the rest.
class clsA {
public:
    ShortText NOTE, SOURCEDOC, EXPPURPOSE, PRPFLAG = "0", COMPILER, CONTRIBUTOR, DATEADDED;
    std::string DATACOMMENT;
    double Factor = 0; // pending factor of a ^M line, 0 when none

    /// Reads a ^A or ^a line. A flag word that is no number stops being read, which is told.
    Notices Load(std::string_view line);
    /// The eight fields become those of another header; Factor stays.
    void TakeHeader(const clsA& other);
    void PrintHeader(LineWriter& out, std::string_view comment) const;
};

} // namespace vexora

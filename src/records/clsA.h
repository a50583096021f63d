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
/// NOTE is a remark in one word, SOURCEDOC the letter that says where the paper was taken from,
/// EXPPURPOSE the code of why it was measured; COMPILER and CONTRIBUTOR are person and house,
/// DATEADDED is month/day/year. Tags of the comment ("::Method:...") say what has no field of its
/// own.
class clsA {
public:
    /// PRPFLAG is a decimal mask, a bit for each statement about the value.
    ShortText NOTE, SOURCEDOC, EXPPURPOSE, PRPFLAG = "0", COMPILER, CONTRIBUTOR, DATEADDED;
    std::string DATACOMMENT;
    /// It is not part of the header: it has lines of its own, and an end of its own.
    double Factor = 0; // pending factor of a ^M line, 0 when none

    /// Reads a ^A or ^a line. A flag word that is no number stops being read, which is told.
    /// ^a leaves all but the comment in force. A dotted date is put in order.
    Notices Load(std::string_view line);
    /// The eight fields become those of another header; Factor stays.
    void TakeHeader(const clsA& other);
    /// Always ^A, so that no record depends on the header of the one before. The comment is given,
    /// for the record may word its tags otherwise than the memory does.
    void PrintHeader(LineWriter& out, std::string_view comment) const;
};

} // namespace vexora

#pragma once

#include <string_view>

#include "records/Record.h"
#include "records/clsA.h"

namespace vexora {

class XmlWriter;
class clsX;

/// A record of data: it has a header in front, and lines that belong to it may follow its own,
/// which the reader hands to the one that is open, whatever its class.
class OpenRecord : public Record {
public:
    /// In the file one header may stand for many records; each keeps a copy, so that every one of
    /// them can be edited or deleted alone.
    clsA Header; // NOTE ... DATACOMMENT

    /// The element of the record in the export, or a word to the user why there is none.
    virtual void ExportAll(XmlWriter& xml) const = 0;

    /// A ^X line: puts a statement of uncertainty in its place.
    virtual void AddX(const clsX& item) = 0;
    /// A row. None where the class has no rows, false when a word of the line is missing.
    enum class Taken { Yes, Incomplete, NoRows };
    virtual Taken LoadRow(std::string_view) { return Taken::NoRows; }
    /// A ^Y line, which belongs to the row read last; false when there is none.
    /// It names no row: it goes by its place in the file.
    virtual bool LoadRowStatements(std::string_view) { return false; }
};

} // namespace vexora

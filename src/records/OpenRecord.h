#pragma once

#include <string_view>

#include "records/Record.h"
#include "records/clsA.h"

namespace vexora {

class XmlWriter;
class clsX;

/// Where a statement went in its record: the quantity, 0 the property, or -1 beside all of them;
/// and whether it took the place of something else that stood there.
struct Placement {
    int place = -1;
    bool replaces = false;
};

/// A record of data: it has a header in front, and lines that belong to it may follow its own,
/// which the reader hands to the one that is open, whatever its class.
class OpenRecord : public Record {
public:
    /// In the file one header may stand for many records; each keeps a copy, so that every one of
    /// them can be edited or deleted alone.
    clsA Header; // NOTE ... DATACOMMENT

    /// The element of the record in the export, or a word to the user why there is none.
    virtual void ExportAll(XmlWriter& xml) const = 0;

    /// The factor in front says something about the values: they stand in the unit that it makes,
    /// or by the molar mass that it is.
    virtual bool StandsByFactor() const = 0;
    /// A ^X line: puts a statement of uncertainty in its place.
    virtual Placement AddX(const clsX& item) = 0;
    /// A line about rows: InPart when words stand behind those that it has, Incomplete when one is
    /// missing, NoRows when there is none that it could be about.
    enum class Taken { Yes, InPart, Incomplete, NoRows };
    /// A row.
    virtual Taken LoadRow(std::string_view) { return Taken::NoRows; }
    /// A ^Y line, which belongs to the row read last.
    /// It names no row: it goes by its place in the file.
    virtual Taken LoadRowStatements(std::string_view) { return Taken::NoRows; }
};

} // namespace vexora

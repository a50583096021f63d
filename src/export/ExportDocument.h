#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "export/ClosingCheck.h"
#include "records/Walk.h"
#include "ui/Desktop.h"

namespace vexora {

/// A written file, and what its closing check found.
struct ExportedDocument {
    std::string xml;
    std::vector<ExportFinding> findings;
};

/// Who the file is for. Strict readers take the schema by its name space, know a compound by its
/// structure alone, and the phases by the words of the public schema.
enum class ExportFor { House, StrictReaders };

/// The open document as ThermoML. It may ask for the source of the document (see clsR::PrintR), and
/// tells which data it had to leave out. today is the day that the citation bears.
/// Nothing is written to disk here. Text beyond ASCII leaves as character references.
ExportedDocument ExportDocument(const ui::Date& today, ExportFor readers = ExportFor::House,
                                const WorkHeard& heard = {});
/// The same in parts of whole lines, for a file that need not stand in memory; what the closing
/// check found. Tells heard how far it is; throws WorkStopped when that wants no more.
std::vector<ExportFinding> ExportDocument(const ui::Date& today, ExportFor readers,
                                          const std::function<void(std::string_view)>& taker,
                                          const WorkHeard& heard = {});

/// yyyy-mm-dd.
/// ISO 8601, the date type of XML schemas.
std::string IsoDate(const ui::Date& date);
/// yyyy-mm-dd of a record's m/d/y date; empty for what is no such date.
/// A day that no calendar has (2/30) is no date; a schema would refuse it.
std::string IsoDate(std::string_view recordDate);

} // namespace vexora

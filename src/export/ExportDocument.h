#pragma once

#include <string>

#include "ui/Desktop.h"

namespace vexora {

/// The open document as ThermoML. It may ask for the source of the document (see clsR::PrintR), and
/// tells which data it had to leave out. today is the day that the citation bears.
std::string ExportDocument(const ui::Date& today);

/// yyyy-mm-dd.
std::string IsoDate(const ui::Date& date);
/// yyyy-mm-dd of a record's m/d/y date; empty for what is no such date.
std::string IsoDate(std::string_view recordDate);

} // namespace vexora

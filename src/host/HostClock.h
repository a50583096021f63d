#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ui/Desktop.h"

namespace vexora::host {

/// Today by the clock of the machine, in local time.
ui::Date ClockToday();
/// The date of a text yyyy-mm-dd, nothing when there is no such day.
std::optional<ui::Date> ParseDate(std::string_view text);
/// yyyy-mm-dd.
std::string DateText(const ui::Date& date);

} // namespace vexora::host

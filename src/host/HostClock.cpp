#include "host/HostClock.h"

#include <chrono>
#include <ctime>

#include "reference/Numbers.h"

namespace vexora::host {

namespace {

std::string Digits(int number, std::size_t count) {
    const std::string text = std::to_string(number);
    return std::string(count > text.size() ? count - text.size() : 0, '0') + text;
}

} // namespace

ui::Date ClockToday() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

std::optional<ui::Date> ParseDate(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return {};
    const auto year = ParseInteger(text.substr(0, 4));
    const auto month = ParseInteger(text.substr(5, 2));
    const auto day = ParseInteger(text.substr(8, 2));
    if (!year || !month || !day || *month < 1 || *day < 1) return {};
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(*year)),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    if (!date.ok()) return {};
    return ui::Date{static_cast<int>(*year), static_cast<int>(*month), static_cast<int>(*day)};
}

std::string DateText(const ui::Date& date) {
    return Digits(date.year, 4) + '-' + Digits(date.month, 2) + '-' + Digits(date.day, 2);
}

} // namespace vexora::host

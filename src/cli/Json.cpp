#include "cli/Json.h"

namespace vexora {

std::string JsonText(const std::string& text) {
    constexpr char firstPrintable = ' ';
    constexpr const char* digits = "0123456789abcdef";
    std::string json = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (c == '\n') {
            json += "\\n";
        } else if (c == '\t') {
            json += "\\t";
        } else if (c >= '\0' && c < firstPrintable) {
            json += std::string("\\u00") + digits[c >> 4] + digits[c & 0xF];
        } else {
            json += c;
        }
    }
    return json + '"';
}

} // namespace vexora

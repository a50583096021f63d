#include "host/ScriptGrammar.h"

#include <array>

#include "host/ScriptParser.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora::host {

namespace {

// Every form of every command. CONTROL is form.control, TEXT is quoted, ENTRY is quoted or #n, INT
// counts from 0, [TEXT] may be left out, BLOCK is <<END; other words stand for themselves, with
// "|" between alternatives.
constexpr std::array CommandForms = {
    "start [TEXT]",
    "quit",
    "click CONTROL",
    "dblclick CONTROL",
    "set CONTROL TEXT",
    "type CONTROL TEXT",
    "key CONTROL TEXT",
    "choose CONTROL ENTRY",
    "select CONTROL ENTRY on|off",
    "check CONTROL on|off",
    "tab CONTROL ENTRY",
    "node TEXT",
    "node key TEXT",
    "dblnode TEXT",
    "dblnode key TEXT",
    "keynode TEXT",
    "keynode key TEXT",
    "cell CONTROL INT INT TEXT",
    "cells CONTROL INT INT BLOCK",
    "block CONTROL INT INT INT INT",
    "clipboard BLOCK",
    "drag CONTROL NUMBER NUMBER NUMBER NUMBER",
    "hover CONTROL NUMBER NUMBER",
    "drop TEXT",
    "close FORM",
    "answer OK|Yes|No|Cancel|YesToAll [TEXT] [TEXT]",
    "input TEXT",
    "input cancel",
    "file TEXT",
    "file cancel",
    "expect CONTROL TEXT",
    "expect CONTROL contains TEXT",
    "expect CONTROL enabled|disabled|visible|hidden|on|off|empty|focused",
    "expect CONTROL has ENTRY",
    "expect CONTROL lacks TEXT",
    "expect CONTROL count INT",
    "expect CONTROL cell INT INT TEXT",
    "expect caption FORM TEXT",
    "expect open|closed|modal FORM",
    "expect message TEXT [TEXT]",
    "expect no message",
    "expect tree BLOCK",
    "expect node TEXT",
    "expect node key TEXT",
    "expect no node TEXT",
    "expect no node key TEXT",
    "expect selected TEXT",
    "expect selected key TEXT",
    "expect file TEXT BLOCK",
    "expect file TEXT contains TEXT",
    "expect no file TEXT",
    "expect xml TEXT TEXT TEXT",
    "expect xml TEXT count TEXT INT",
    "expect clipboard TEXT",
    "print CONTROL",
    "print tree",
    "print form FORM",
    "print forms",
    "print file TEXT",
    "shot TEXT",
    "copyfile TEXT TEXT",
    "deletefile TEXT",
    "include TEXT",
    "note TEXT",
};

bool IsName(const std::string& text) {
    return !text.empty() && text.find_first_of(".\"()/\\") == text.npos;
}

bool IsControl(const std::string& text) {
    const std::size_t dot = text.find('.');
    return dot != text.npos && dot > 0 && dot + 1 < text.size();
}

bool IsInt(const std::string& text) {
    return !text.empty() && text.size() < 9 && text.find_first_not_of("0123456789") == text.npos;
}

bool Fits(const ScriptWord& word, const std::string& part) {
    if (part == "TEXT" || part == "[TEXT]") return word.quoted;
    if (part == "ENTRY")
        return word.quoted || (word.text.starts_with('#') && IsInt(word.text.substr(1)));
    if (word.quoted) return false;
    if (part == "CONTROL") return IsControl(word.text);
    if (part == "FORM") return IsName(word.text);
    if (part == "INT") return IsInt(word.text);
    if (part == "NUMBER") return IsNumeric(word.text);
    for (const std::string& keyword : Split(part, '|')) {
        if (word.text == keyword) return true;
    }
    return false;
}

bool Fits(const ScriptLine& line, const std::string& form) {
    std::vector<std::string> parts = Split(form, ' ');
    const bool wantsBlock = parts.back() == "BLOCK";
    if (wantsBlock) parts.pop_back();
    if (wantsBlock != line.block.has_value() || line.words.size() > parts.size()) return false;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (!line.Has(i)) return parts[i] == "[TEXT]";
        if (!Fits(line.words[i], parts[i])) return false;
    }
    return true;
}

} // namespace

std::string WhatIsWrong(const ScriptLine& line) {
    std::string known;
    for (const std::string form : CommandForms) {
        if (!line.words[0].Is(form.substr(0, form.find(' ')))) continue;
        if (Fits(line, form)) return {};
        known += "\n  " + form;
    }
    if (known.empty()) return "unknown command " + line.Text(0);
    return "the command is written" + known;
}

bool TakesEntryNext(const std::vector<ScriptWord>& words) {
    if (words.size() == 2) {
        const ScriptWord& command = words[0];
        return command.Is("choose") || command.Is("select") || command.Is("tab");
    }
    return words.size() == 3 && words[0].Is("expect") && words[2].Is("has");
}

} // namespace vexora::host

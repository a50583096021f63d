#pragma once

#include <string>
#include <vector>

namespace vexora::host {

struct ScriptLine;
struct ScriptWord;

/// What is wrong with the words of a line, empty when a command has this form.
std::string WhatIsWrong(const ScriptLine& line);

/// Whether the word behind these may be a list position such as #3.
bool TakesEntryNext(const std::vector<ScriptWord>& words);

} // namespace vexora::host

#pragma once

#include <string>

namespace CLI {
class App;
}

namespace vexora {

/// Adds `export`, `check` and `tree`, which work on a record file and need no display; a command
/// that ran leaves its exit code in exitCode.
void AddDocumentCommands(CLI::App& app, const std::string& argv0, int& exitCode);

} // namespace vexora

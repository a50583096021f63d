// The `refdb` commands: making the reference databases from text, adding compounds to one, checking
// both.
#pragma once

#include <string>

namespace CLI {
class App;
}

namespace vexora {

/// Adds `refdb` with its subcommands; a command that ran leaves its exit code in `exitCode`.
void AddRefdbCommands(CLI::App& app, const std::string& argv0, int& exitCode);

} // namespace vexora

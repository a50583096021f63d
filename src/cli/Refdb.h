// The `refdb` commands: making the reference databases from text and adding compounds to one.
#pragma once

namespace CLI {
class App;
}

namespace vexora {

/// Adds `refdb` with its subcommands; a command that ran leaves its exit code in `exitCode`.
void AddRefdbCommands(CLI::App& app, int& exitCode);

} // namespace vexora

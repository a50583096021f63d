// The `play` command: session scripts on the workbench with no screen.
#pragma once

namespace CLI {
class App;
}

namespace vexora {

/// Adds `play`; when it ran it leaves its exit code in `exitCode`.
void AddPlayCommand(CLI::App& app, int& exitCode);

} // namespace vexora

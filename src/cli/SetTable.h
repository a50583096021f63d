#pragma once

#include <string>

namespace CLI {
class App;
}

namespace vexora {

/// Adds "table". The exit code of the run goes into exitCode.
void AddTableCommand(CLI::App& app, const std::string& argv0, int& exitCode);

} // namespace vexora

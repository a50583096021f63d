#pragma once

#include <string>

namespace CLI {
class App;
}

namespace vexora {

/// Adds "diff". The exit code of the run goes into exitCode.
void AddCompareCommand(CLI::App& app, const std::string& argv0, int& exitCode);

} // namespace vexora

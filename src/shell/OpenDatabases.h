#pragma once

#include <string>

namespace vexora {

/// Opens and tests the two databases of the configuration. When that fails the user is asked
/// whether to correct the configuration: Yes shows frmConfigure, No sets the program to end. True
/// when both are open.
bool OpenDatabases();

/// The same on given paths, without a question: the databases in force change only when both are
/// good. Empty, or what is wrong.
std::string OpenDatabasesAt(const std::string& localPath, const std::string& compoundPath);

} // namespace vexora

#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// The configuration of a workplace, kept in VXR.ini of the application folder: plain text, one
/// setting a line, and in force in the globals.
///
///   COMPILER code            XMLCOMPILER user name     VXRLocalDB path      OutDir folder
///   CONTRIBUTOR code         ORGANIZATION name         VXRCompoundDB path
///   Advanced                 Bio                       GH        (bare words: present means true)

/// Path of the configuration file.
std::string ConfigurationPath();
/// The databases of the application folder.
std::string DefaultLocalDbPath();
std::string DefaultCompoundDbPath();

/// Puts the settings to what holds without a file.
void SetConfigurationDefaults();
/// Takes over the settings of a configuration text; lines with unknown words are passed over, and
/// a database path that names nothing is replaced by the default.
void TakeConfiguration(std::string_view text);
/// The settings in force as a configuration text.
std::string ConfigurationText();

/// Reads the file, if there is one. One that cannot be read is told.
void ReadConfiguration();
/// Writes the file; true when it worked, else the reason is told and the program goes on.
bool WriteConfiguration();

} // namespace vexora

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
/// Puts those of the application folder in place of databases that do not exist.
void FindDatabases();

/// Puts the settings to what holds without a file.
void SetConfigurationDefaults();
/// Takes over the settings of a configuration text; lines with unknown words are passed over, and
/// a database path that names nothing is replaced by the default.
void TakeConfiguration(std::string_view text);
/// The settings in force as a configuration text.
std::string ConfigurationText();

/// Opens and tests two databases; those in force change only when both are good. Empty, or what the
/// user has to hear: that one is locked, or "Specified databases not found or invalid" and in the
/// next line why.
std::string OpenDatabasesAt(const std::string& localPath, const std::string& compoundPath);

/// Reads the file, if there is one. One that cannot be read is told.
void ReadConfiguration();
/// The output folder that the file states, whichever is in force; empty for none.
std::string ConfiguredOutDir();
/// Writes the file; true when it worked, else the reason is told and the program goes on.
bool WriteConfiguration();

} // namespace vexora

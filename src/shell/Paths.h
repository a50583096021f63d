#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// A path in its two parts, and small rules on paths. "/" and "\" both separate folders in what is
/// read; "/" is written.
struct PathParts {
    std::string Folder; // empty when the path is a bare name
    std::string Title;  // file name with its ending
};

PathParts SplitPath(std::string_view path);
/// With "/" for every separator.
std::string WithSlashes(std::string_view path);
/// Begins with "/", or has a drive and ":".
bool IsFullPath(std::string_view path);
/// The path as it stands when it is full, else below the current folder.
std::string AbsolutePath(std::string_view path);
/// The path with an ending (".txt") behind a name that has none. An ending has letters: that of
/// "2002 v1.2" is none.
std::string WithEnding(std::string path, std::string_view ending);
std::string JoinPath(std::string_view folder, std::string_view name);
/// The user's own folder, where choosers start that have no other place.
std::string UserHomeFolder();

/// The document of a command line, with or without double quotes; empty for none. With quotes it is
/// what stands between the first two.
std::string DocumentOfCommandLine(std::string_view commandLine);

/// True when the path names an existing file or folder.
bool FileOrFolderExists(const std::string& path);

} // namespace vexora

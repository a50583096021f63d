#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexora::ui {

/// A file being written. Every call answers with an error text, empty when it went well.
class OutputFile {
public:
    virtual ~OutputFile() = default;
    virtual std::string Write(std::string_view bytes) = 0;
    /// Brings what was written to the disk.
    virtual std::string Flush() = 0;
    virtual std::string Close() = 0;
};

/// The one seam to the disk for documents, exports and the configuration; tests put a failing one
/// in its place. Paths are full. Functions that change something answer with an error text, empty
/// when it went well.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    virtual bool Exists(const std::string& path) = 0;
    virtual bool IsFolder(const std::string& path) = 0;
    /// The whole content, or nothing with the reason in error.
    virtual std::optional<std::string> Read(const std::string& path, std::string& error) = 0;
    /// Size in bytes, -1 when there is no such file.
    virtual long long Size(const std::string& path) = 0;
    /// The path with all symbolic links followed; the path itself when nothing stands there yet.
    virtual std::string Resolve(const std::string& path) = 0;
    /// Why a file could not be written there, empty when it could.
    virtual std::string WhyNotWritable(const std::string& path) = 0;

    /// Opens a new file beside target, with the mode of target if there is one, for writing; its
    /// path goes into temporaryPath. Null with the reason in error when that fails.
    virtual std::unique_ptr<OutputFile>
    CreateBeside(const std::string& target, std::string& temporaryPath, std::string& error) = 0;
    /// The files that CreateBeside made for target more than a minute ago: what a killed program
    /// has left.
    virtual std::vector<std::string> Leftovers(const std::string& target) = 0;
    virtual std::string MakeFolder(const std::string& path) = 0;
    virtual std::string Remove(const std::string& path) = 0;
    /// Puts source in the place of target at once, replacing what stands there.
    virtual std::string Rename(const std::string& source, const std::string& target) = 0;
    /// Gives the file a second name; where links are not to be had, an error.
    virtual std::string Link(const std::string& source, const std::string& name) = 0;
    virtual std::string Copy(const std::string& source, const std::string& target) = 0;
    virtual std::string FlushFolder(const std::string& folder) = 0;
};

} // namespace vexora::ui

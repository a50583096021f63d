#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "ui/FileSystem.h"

namespace vexora {

/// What came of a save, judged by what stands on the disk.
struct SaveOutcome {
    bool isSaved = false; // the new content stands at the path
    /// Why it does not; or, when it does, why a power cut could still take it away. Empty when all
    /// is well.
    std::string fault;

    /// What the user has to hear, empty when all is well. file names it: "The file /papers/a.txt".
    std::string Told(const std::string& file) const;
};

/// Puts content in the place of the file at path without ever endangering what stands there: it is
/// printed into a temporary file beside the target, flushed, measured, and renamed over it. With
/// keepBackup the present file first gets the second name path + ".bak", replacing an older one.
/// When it is not saved, target and ".bak" are untouched and no temporary is left. Those that a
/// killed program has left of this file are removed.
/// path may be a symbolic link, whose target is replaced; content is written byte by byte as it is.
SaveOutcome WriteSafely(ui::FileSystem& files, const std::string& path, std::string_view content,
                        bool keepBackup);

/// Hands its parts to the taker, one behind the other.
using Printing = std::function<void(const std::function<void(std::string_view)>& taker)>;
/// The same of a content that is printed while it is written, so that it never stands in memory as
/// a whole. What the printing throws is passed on, and nothing is saved.
SaveOutcome WriteSafely(ui::FileSystem& files, const std::string& path, const Printing& print,
                        bool keepBackup);

} // namespace vexora

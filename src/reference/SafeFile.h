#pragma once

#include <string>
#include <string_view>

#include "ui/FileSystem.h"

namespace vexora {

/// Puts content in the place of the file at path without ever endangering what stands there: it is
/// printed into a temporary file beside the target, flushed, measured, and renamed over it. With
/// keepBackup the present file first gets the second name path + ".bak", replacing an older one.
/// The answer is empty, or why it failed; then target and ".bak" are untouched and no temporary is
/// left.
/// path may be a symbolic link, whose target is replaced; content is written byte by byte as it is.
std::string WriteSafely(ui::FileSystem& files, const std::string& path, std::string_view content,
                        bool keepBackup);

} // namespace vexora

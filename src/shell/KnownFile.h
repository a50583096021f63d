#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "records/DocumentCheck.h"

namespace vexora {

namespace ui {
class FileSystem;
}

/// What this program last read from the file of the document, or wrote to it. By it is told that
/// another program has put something else there since.
class KnownFile {
public:
    /// What stands in it and not in the document. Nothing, as soon as something is noted.
    PassedOver Lines;

    /// path is full; content is that of the file, byte by byte.
    void Note(std::string path, std::string_view content);
    void Forget() { *this = KnownFile(); }
    /// The file at path is the known one and holds something else now, or cannot be read. One that
    /// is gone is not changed, and of a file that was never noted nothing is told.
    /// The content decides: size and time can be those of before all the same.
    bool IsChanged(ui::FileSystem& files, const std::string& path) const;

    /// What is known as one line for another run of the program, empty for nothing; and back,
    /// without Lines. What is no such line is nothing known.
    std::string ToText() const;
    static KnownFile FromText(std::string_view text);

private:
    std::string path_;
    std::size_t size_ = 0;
    std::uint64_t checksum_ = 0;
};

} // namespace vexora

#pragma once

#include <string>

#include <QStringList>

class QSettings;

namespace vexora::qt {

/// The documents opened or saved last, the latest first, at most ten; kept in the settings. Neither
/// exports nor what else is chosen in a box is among them.
class RecentFiles {
public:
    explicit RecentFiles(QSettings& settings) : settings_(settings) {}
    void Add(const std::string& path);
    /// It is not to be offered again: it could not be opened.
    void Drop(const std::string& path);
    /// Those that are files and can be read.
    QStringList Present() const;

private:
    QSettings& settings_;
};

} // namespace vexora::qt

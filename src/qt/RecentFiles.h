#pragma once

#include <string>

#include <QStringList>

class QSettings;

namespace vexora::qt {

/// The documents opened or saved last, the latest first, at most ten; kept in the settings.
class RecentFiles {
public:
    explicit RecentFiles(QSettings& settings) : settings_(settings) {}
    void Add(const std::string& path);
    /// Those that still exist.
    QStringList Present() const;

private:
    QSettings& settings_;
};

} // namespace vexora::qt

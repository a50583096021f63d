#include "qt/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

#include "qt/Text.h"

namespace vexora::qt {

namespace {

const QString Key = QStringLiteral("recent/files");

} // namespace

void RecentFiles::Add(const std::string& path) {
    constexpr qsizetype most = 10;
    const QString full = QFileInfo(ToQt(path)).absoluteFilePath();
    QStringList files = settings_.value(Key).toStringList();
    files.removeAll(full);
    files.prepend(full);
    settings_.setValue(Key, QStringList(files.mid(0, most)));
}

QStringList RecentFiles::Present() const {
    QStringList files = settings_.value(Key).toStringList();
    files.removeIf([](const QString& file) { return !QFileInfo::exists(file); });
    return files;
}

} // namespace vexora::qt

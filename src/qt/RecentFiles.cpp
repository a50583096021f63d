#include "qt/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

#include "qt/Text.h"

namespace vexora::qt {

namespace {

const QString Key = QStringLiteral("recent/files");

QString FullName(const std::string& path) {
    return QFileInfo(ToQt(path)).absoluteFilePath();
}

} // namespace

void RecentFiles::Add(const std::string& path) {
    constexpr qsizetype most = 10;
    Drop(path);
    QStringList files = settings_.value(Key).toStringList();
    files.prepend(FullName(path));
    settings_.setValue(Key, QStringList(files.mid(0, most)));
}

void RecentFiles::Drop(const std::string& path) {
    QStringList files = settings_.value(Key).toStringList();
    if (files.removeAll(FullName(path)) > 0) settings_.setValue(Key, files);
}

QStringList RecentFiles::Present() const {
    QStringList files = settings_.value(Key).toStringList();
    files.removeIf([](const QString& file) {
        const QFileInfo info(file);
        return !info.isFile() || !info.isReadable();
    });
    return files;
}

} // namespace vexora::qt

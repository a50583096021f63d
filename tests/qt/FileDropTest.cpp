#include "qt/FileDrop.h"

#include <QApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QUrl>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace vexora::qt::test {

namespace {

/// Drops on a widget as the platform does; true when it was taken.
bool DropOn(QWidget& widget, const QMimeData& data) {
    QDragEnterEvent enter({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&widget, &enter);
    QDropEvent drop({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QApplication::sendEvent(&widget, &drop);
    return enter.isAccepted() && drop.isAccepted();
}

TEST(FileDrop, AFileGoesToTheWindowFromAnyFieldAndTextToTheField) {
    QWidget window;
    QVBoxLayout layout(&window);
    QLineEdit line;
    QPlainTextEdit lines;
    layout.addWidget(&line);
    layout.addWidget(&lines);
    QStringList paths;
    const FileDrop taking(window, [&](const QString& path) { paths << path; });
    QMimeData file, address, text;
    file.setUrls({QUrl("https://example.org/a.ris"), QUrl::fromLocalFile("/tmp/Müller 1.ris")});
    address.setUrls({QUrl("https://example.org/a.ris")});
    text.setText("typed");
    for (QWidget* target : {&window, static_cast<QWidget*>(&line), lines.viewport()})
        EXPECT_TRUE(DropOn(*target, file));
    EXPECT_EQ(paths.join("|").toStdString(),
              "/tmp/Müller 1.ris|/tmp/Müller 1.ris|/tmp/Müller 1.ris");
    EXPECT_FALSE(DropOn(window, address));
    EXPECT_TRUE(DropOn(line, text));
    EXPECT_EQ(line.text().toStdString() + lines.toPlainText().toStdString(), "typed");
    EXPECT_EQ(paths.size(), 3);
}

} // namespace

} // namespace vexora::qt::test

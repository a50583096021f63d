#pragma once

#include <string>

#include <QMainWindow>

#include "shell/HelpPages.h"

class QLineEdit;
class QTextBrowser;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;
class QUrl;

namespace vexora::ui {
class FileSystem;
}

namespace vexora::qt {

/// The viewer of help pages: the contents at the left, in their place the hits while something is
/// searched for, the page at the right with the hits marked. One window for all topics, made on
/// first use and kept by Qt.
class HelpWindow : public QMainWindow {
public:
    /// Shows a topic of the pages in that folder; false when there is no such page. A parent that
    /// blocks others by being modal owns its own viewer, so that it can be read beside it.
    static bool Show(const std::string& folder, int context, ui::FileSystem& files,
                     QWidget* parent);

private:
    HelpWindow(const std::string& folder, HelpPages pages, QWidget* parent);
    void PlaceOnScreen(const QSize& wanted);
    void AddTools();
    void AddNavigation(QToolBar& bar);

    void Open(const std::string& topic);
    void FollowPage(const QUrl& url);
    void Search();
    void ShowContents();
    void ShowHits();
    void AddPage(const HelpPage& page, QTreeWidgetItem* section, const QString& text);
    void SelectCurrent();
    void MarkHits();
    void StepHits(int by);
    bool eventFilter(QObject* watched, QEvent* event) override;

    const std::string folder_;
    const HelpPages pages_;
    std::string topic_; // of the page that is shown
    QLineEdit* search_;
    QTreeWidget* list_;
    QTextBrowser* browser_;
};

} // namespace vexora::qt

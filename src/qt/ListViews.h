#pragma once

#include <QComboBox>
#include <QElapsedTimer>
#include <QListWidget>
#include <QTabBar>

#include "qt/View.h"

namespace vexora::qt {

/// A combo box that tells its view before it drops down, so that the form can fill it. Typing finds
/// an entry by its words; a blank between them does not drop the list down.
class DropBox : public QComboBox {
public:
    using QComboBox::QComboBox;
    std::function<void()> OnPopup;
    void showPopup() override;
    /// The chosen entry only says what is to be chosen: it is drawn grey.
    bool IsPrompted = false;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FindBehindBlank();
    QElapsedTimer typed_; // since the last letter of words by which an entry is looked for
};

class ComboView : public ViewOf<ui::ComboBox, DropBox> {
public:
    ComboView(FormWindow& window, ui::ComboBox& combo);
    bool Wants(const ui::Key& key) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// The entries that stand open while a person types; null before the first time.
    const QListWidget* Entries() const { return entries_; }

protected:
    void Draw() override;

private:
    void DrawSelection(const QString& text);
    void DrawEntries();
    void PlaceEntries();

    QPointer<QListWidget> entries_;

    std::vector<std::string> shown_;
};

/// A widget that tells when it has done with a key, which may have moved its current entry.
template <class TWidget>
class Keyed : public TWidget {
public:
    using TWidget::TWidget;
    std::function<void()> OnKeyDone;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        QPointer<Keyed> self(this);
        TWidget::keyPressEvent(event);
        if (self && OnKeyDone) OnKeyDone();
    }
};

class KeyedList : public Keyed<QListWidget> {
public:
    using Keyed::Keyed;
    QSize sizeHint() const override;
};

class ListView : public ViewOf<ui::ListBox, KeyedList> {
public:
    ListView(FormWindow& window, ui::ListBox& list);
    QWidget* ClickTarget() const override { return own_->viewport(); }
    bool Wants(const ui::Key& key) const override;
    /// Where the entry stands, scrolled into sight, and the middle of its check mark.
    QRect EntryRect(int index) const;
    QPoint CheckPoint(int index) const;

protected:
    void Draw() override;

private:
    bool filledLater_ = false; // then its height must not jump with what a search finds
    bool IsSingle() const { return model_.SelectionMode() == ui::ListBox::Mode::Single; }
    bool HasChecks() const { return model_.SelectionMode() == ui::ListBox::Mode::Check; }
    bool IsOn(int index) const;
    void Fill();
    void HandOver();

    std::vector<std::string> shown_;
    std::string readable_;
};

class TabView : public ViewOf<ui::TabStrip, Keyed<QTabBar>> {
public:
    TabView(FormWindow& window, ui::TabStrip& tabs);
    bool Wants(const ui::Key& key) const override;

protected:
    void Draw() override;
};

} // namespace vexora::qt

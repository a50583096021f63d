#pragma once

#include <QGroupBox>

namespace vexora::qt {

/// A group with a caption. One that folds shows its caption alone until it is clicked, or until the
/// keyboard goes to something in it.
class FoldBox : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

    void Caption(const QString& text);
    /// From now on a click on the caption hides and shows the content.
    void FoldAround(QWidget& content);
    bool Folds() const { return content_ != nullptr; }
    bool IsFolded() const { return folded_; }
    void Fold(bool folded);
    /// Unfolds all groups around a widget; true when any was folded.
    static bool Reveal(QWidget& widget);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void ShowCaption();
    bool HoldsKeyboard() const;

    QString caption_;
    QWidget* content_ = nullptr;
    QMargins margins_; // around the content
    bool folded_ = false;
};

} // namespace vexora::qt

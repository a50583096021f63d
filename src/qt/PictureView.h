#pragma once

#include <QPixmap>

#include "qt/View.h"

namespace vexora::qt {

/// The surface that paints the shapes of a picture, scaled to the room it has.
class Canvas : public QWidget {
public:
    Canvas(ui::Picture& picture, QWidget* parent);
    QSize sizeHint() const override;
    /// A place on the widget in the units of the picture, and the way back.
    QPointF ToUnits(QPointF place) const;
    QPointF FromUnits(double x, double y) const;

    bool Detached = false;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize InCharacters(int columns, int lines) const;
    QRectF Room() const;

    ui::Picture& picture_;
    QPixmap ground_;
    QPalette ofPalette_;
    int painted_ = -1; // the revision of the picture that stands in ground_
};

class PictureView : public ViewOf<ui::Picture, Canvas> {
public:
    PictureView(FormWindow& window, ui::Picture& picture);
    bool eventFilter(QObject* watched, QEvent* event) override;
    QPointF PlaceOf(double x, double y) const { return own_->FromUnits(x, y); }

protected:
    void Draw() override { own_->update(); }
    bool MouseEvent(QEvent& event) override;
};

} // namespace vexora::qt

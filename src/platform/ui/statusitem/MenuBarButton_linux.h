#pragma once

#include "ShownStatusItem_linux.h"

#include <QPointer>
#include <QPushButton>

namespace quillon {

/// The item inside the bar: a title of one or two lines, an image to the right of it; opens its menu on a press of the
/// mouse, the space bar, Return or Down, or brings the window to the front that has to be answered first.
class MenuBarButton final : public QPushButton {
    Q_OBJECT

public:
    explicit MenuBarButton(QWidget* parent);

    void setContent(const StatusItemContent& content);
    void setPopupMenu(QMenu* menu);
    void openMenu();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QFont titleFont() const;
    QStringList lines() const;
    qreal linePitch() const;
    qreal blockHeight() const;
    int titleWidth() const;
    int imageSide() const;
    void paintGround(QPainter& painter) const;
    void paintTitle(QPainter& painter, const QRect& area) const;

    StatusItemContent content_;
    QPointer<QMenu> menu_;
};

} // namespace quillon

#pragma once

#include "PopoverPlacement.h"

#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

#include <memory>
#include <optional>

class QScreen;

namespace quillon {

/// Who closes a popover: the code that shows it, or also the user by turning to something else (a click outside,
/// Escape, another application).
enum class PopoverBehavior { ApplicationDefined = 0, Transient = 1 };

/// What a popover points at.
struct PopoverAnchor {
    QPointer<QWidget> view{}; ///< the whole of it
    /// Where there is no view: a rectangle on the screen, in logical pixels. An empty one stands for the pointer, or
    /// for the upper right corner of the screen where the pointer is unknown.
    QRect screenRect{};
};

/// A window with an arrow to its anchor. It lies on the side of the anchor that is asked for, or on another one where
/// that has no room, follows the size of its content and the place of its anchor, and takes the keyboard when it is
/// shown. A child popover, one whose anchor lies inside this one, keeps a transient popover open and has the keyboard
/// before it; a menu or a combo box's list that belongs to it or an application-modal window keep it open too. Where a
/// program cannot place windows (Wayland) it has no arrow and is a child of its anchor's window; only a child popover
/// is placed there too, by the compositor.
class Popover : public QWidget {
    Q_OBJECT

public:
    explicit Popover(QWidget* parent = nullptr);

    /// Takes ownership; the content before is deleted. The popover is as large as the content's size hint, and bears
    /// its accessible name.
    void setContentView(QWidget* content);
    QWidget* contentView() const { return content_; }
    /// The default is ApplicationDefined.
    void setBehavior(PopoverBehavior behavior) { behavior_ = behavior; }
    /// Whether it fades in and out, where the system can do that; the default is yes.
    void setAnimates(bool animates) { animates_ = animates; }

    /// Shows it, or moves it when it is shown. The window of its anchor, put away by the user, comes back.
    void showRelativeTo(const PopoverAnchor& anchor, RectEdge preferredEdge);
    bool isShown() const { return shown_; }
    /// Keeps a transient popover open, as a child of it does, for as long as anybody owns what is returned.
    std::shared_ptr<void> keepOpen();
    /// Fades out; isShown() is false at once.
    void close();

Q_SIGNALS:
    void didShow();
    /// It is gone from the screen, whoever closed it.
    void didClose();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void adaptToDisplay();
    void appear();
    void comeBack();
    void takeKeyboard();
    bool passKeyOn(QObject* watched, QEvent* event);
    void place();
    QRect roomAround(const QRect& anchor);
    QRect currentAnchor();
    QScreen* screenOfAnchor(const QRect& anchor) const;
    QRect body() const;
    bool contains(const QWidget* widget) const;
    Popover* child() const;
    bool isOccupied() const;
    void closeIfLeft();

    QPointer<QWidget> content_;
    PopoverBehavior behavior_ = PopoverBehavior::ApplicationDefined;
    bool animates_ = true;
    bool shown_ = false;
    bool hasBeenActive_ = false; ///< since it appeared
    bool translucent_ = true;
    bool isPlacedByCompositor_ = false;
    int margin_ = 0; ///< around the body, for arrow and shadow
    PopoverAnchor anchor_;
    RectEdge preferredEdge_ = RectEdge::MinY;
    std::optional<PopoverArrow> arrow_;
    QVariantAnimation fade_;
    std::weak_ptr<void> keptOpen_;
};

} // namespace quillon

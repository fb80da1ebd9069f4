#pragma once

#include <QPainterPath>
#include <QRect>
#include <QScrollArea>
#include <QSize>

#include <optional>

class QPainter;
class QPalette;

namespace quillon {

/// Sides of a rectangle, in a coordinate system whose y axis points up: MinY is the lower side, MaxY the upper one.
enum class RectEdge { MinX = 0, MinY = 1, MaxX = 2, MaxY = 3 };

/// From a popover's body to the tip of its arrow, in logical pixels.
inline constexpr int popoverArrowLength = 9;
/// Half of the arrow's base.
inline constexpr int popoverArrowHalfWidth = 9;
inline constexpr int popoverCornerRadius = 9;
/// What stays free between a popover and the screen's edges or the desktop's panels.
inline constexpr int popoverScreenGap = 6;

/// The arrow of a popover: on which side of the anchor the body lies, and how far from the body's left or upper side
/// the tip is.
struct PopoverArrow {
    RectEdge edge = RectEdge::MinY;
    int tip = 0;

    bool operator==(const PopoverArrow&) const = default;
};

struct PopoverPlacement {
    QRect body; ///< without arrow and shadow
    PopoverArrow arrow;

    bool operator==(const PopoverPlacement&) const = default;
};

/// Where a popover goes. It lies on the preferred side of its anchor, on the opposite side where the preferred one has
/// no room for it, or else on one of the other two; it slides along the anchor to keep the gap to the edges of
/// `available` while the arrow stays on the anchor's middle. Where no side has room it covers the anchor, and one that
/// is larger than `available` keeps its upper left corner there.
/// @param anchor may be empty, and may lie outside of `available`
PopoverPlacement popoverPlacement(const QRect& anchor, const QSize& size, const QRect& available, RectEdge preferred);

/// How far a popover's shadow reaches around its body, in logical pixels; the arrow stays inside of it.
inline constexpr int popoverShadowExtent = 16;
static_assert(popoverShadowExtent > popoverArrowLength);

/// The outline of a popover: rounded corners, and an arrow unless it points at nothing.
/// @param body in the coordinates of the path
QPainterPath popoverOutline(const QRectF& body, const std::optional<PopoverArrow>& arrow);

/// A soft shadow around the body, for windows that let what lies under them shine through.
void paintPopoverShadow(QPainter& painter, const QRectF& body);

/// The ground and its border line in the palette's colours.
void paintPopoverGround(QPainter& painter, const QPainterPath& outline, const QPalette& palette);

/// The content of a popover: as large as what is in it, and scrolling where the screen has no room for that. What is in
/// it needs a layout.
class ScreenFittingArea final : public QScrollArea {
    Q_OBJECT

public:
    explicit ScreenFittingArea(QWidget* parent = nullptr);

    /// Takes ownership. Transparent: the ground is that of the popover.
    void setContent(QWidget* content);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
};

} // namespace quillon

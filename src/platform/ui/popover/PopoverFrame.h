#pragma once

#include "PopoverPlacement.h"

#include <QPainterPath>

#include <optional>

class QPainter;
class QPalette;

namespace quillon {

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

} // namespace quillon

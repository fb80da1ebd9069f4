#pragma once

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QTextEdit>

#include <string>

namespace quillon {

/// The languages that there are string tables for.
inline QStringList tableLanguages()
{
    return QStringLiteral("en de fr es it nl pt_BR ja zh_CN").split(u' ');
}

inline bool isClipped(const QWidget& widget)
{
    if (const auto* text = qobject_cast<const QTextEdit*>(&widget))
        return text->document()->size().height() > text->viewport()->height() ||
               text->document()->idealWidth() > text->viewport()->width() + 1;
    const bool showsText = qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget) ||
                           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget);
    if (!showsText)
        return false;
    const QSize needed = widget.minimumSizeHint();
    const bool wraps = widget.hasHeightForWidth();
    const int height = wraps ? widget.heightForWidth(widget.width()) : needed.height();
    return widget.height() < height || (!wraps && widget.width() < needed.width());
}

/// What is visible of a widget and its parts and has less room than its text needs, one a line.
inline std::string clippedTexts(const QWidget& whole)
{
    std::string clipped;
    const auto parts = whole.findChildren<QWidget*>();
    for (const QWidget* part : parts) {
        if (part->isVisible() && isClipped(*part))
            clipped += (part->objectName() + u' ' + part->accessibleName() + u'\n').toStdString();
    }
    return clipped;
}

} // namespace quillon

#pragma once

#include "ChildProgram.h"

#include <QPoint>
#include <QTemporaryDir>

#include <memory>

namespace quillon {

/// An X server without a screen that anybody sees, 1280 by 800 pixels.
class VirtualDisplay {
public:
    VirtualDisplay();

    /// "DISPLAY=..." for children.
    QString variable() const { return variable_; }
    /// The environment of its clients that use Qt.
    QStringList variables() const { return {QStringLiteral("QT_QPA_PLATFORM=xcb"), variable_}; }
    void click(QPoint position) const;
    void pressKey(const QString& name) const;
    /// Output of an X11 client that tells something about the display.
    QString ask(const QString& program, const QStringList& arguments) const;

private:
    ChildProgram server_;
    QString variable_;
};

/// A window manager and a panel with a tray of the XEmbed kind along the lower edge of the display.
class XEmbedTray {
public:
    explicit XEmbedTray(const VirtualDisplay& display);

    void takeDown();
    /// Whether a window of that name sits in the tray.
    bool holds(const QString& windowName) const;

private:
    const VirtualDisplay& display_;
    QTemporaryDir folder_;
    ChildProgram windowManager_;
    std::unique_ptr<ChildProgram> panel_;
};

} // namespace quillon

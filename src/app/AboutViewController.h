#pragma once

#include <QWidget>

namespace quillon {

class RunLoop;

/// Content of the about popover: which version this is. Main thread only.
class AboutViewController final : public QWidget {
    Q_OBJECT

public:
    explicit AboutViewController(RunLoop& runLoop, QWidget* parent = nullptr);
};

} // namespace quillon

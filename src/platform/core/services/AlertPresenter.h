#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace quillon {

enum class AlertStyle { Warning = 0, Informational = 1, Critical = 2 };

/// What an alert says. Texts are plain text, already localised.
struct AlertRequest {
    AlertStyle style = AlertStyle::Informational;
    QString messageText;
    QString informativeText;
    QStringList buttons; ///< the first one is the default; none stands for "OK"
    /// Place of the button that destroys something; it is marked.
    std::optional<int> destructiveButton = std::nullopt;
    /// Place of the button that Escape and closing the window stand for; otherwise the last one that destroys nothing.
    std::optional<int> escapeButton = std::nullopt;
};

/// Response code of the first button; the following ones count up from it.
inline constexpr int alertFirstButtonReturn = 1000;
inline constexpr int alertSecondButtonReturn = 1001;

/// Shows alerts; the seam that keeps code without a display free of widgets.
class AlertPresenter {
public:
    AlertPresenter() = default;
    AlertPresenter(const AlertPresenter&) = delete;
    AlertPresenter& operator=(const AlertPresenter&) = delete;
    virtual ~AlertPresenter() = default;

    /// Shows the alert application-modally and returns at once; `answer` gets the response code when it is closed. One
    /// that comes while another is open waits for it.
    virtual void present(const AlertRequest& request, std::function<void(int response)> answer) = 0;
};

} // namespace quillon

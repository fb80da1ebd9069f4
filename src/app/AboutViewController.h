#pragma once

#include <QSvgRenderer>
#include <QWidget>

#include <memory>

namespace Ui {
class AboutView;
}

namespace quillon {

/// The application's icon, drawn when it is needed, so that it is sharp on every screen.
class ApplicationIcon final : public QWidget {
public:
    explicit ApplicationIcon(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSvgRenderer renderer_;
};

class AlertPresenter;
class RunLoop;
class Workspace;

/// Content of the about popover: which version this is, who made it, and the ways to the maker.
class AboutViewController final : public QWidget {
    Q_OBJECT

public:
    /// The services must outlive the panel.
    AboutViewController(RunLoop& runLoop, Workspace& workspace, AlertPresenter& alerts, QWidget* parent = nullptr);
    ~AboutViewController() override;

    /// Which part of the panel is chosen; kept for whoever shows it, and nothing here depends on it.
    const QString& selectedTabIdentifier() const { return selectedTabIdentifier_; }
    void setSelectedTabIdentifier(const QString& identifier) { selectedTabIdentifier_ = identifier; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void fillOutlets(RunLoop& runLoop);
    void nameControls();
    void arrangeForFont();
    void emailButtonPressed();
    void websiteButtonPressed();
    void appIconCreditsButtonPressed();
    void privacyPolicyButtonPressed();
    void termsButtonPressed();
    void tellThatMailIsNotConfigured();

    Workspace& workspace_;
    AlertPresenter& alerts_;
    std::unique_ptr<Ui::AboutView> ui_;
    QString selectedTabIdentifier_;
};

} // namespace quillon

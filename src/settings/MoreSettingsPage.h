#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class QCheckBox;
class QGridLayout;
class QSpinBox;

namespace quillon {

class UserDefaults;

/// The second page of the settings panel: rules about the machine, and what the user is told unasked. As on the first
/// one every control acts and is stored the moment the user changes it; a number that is typed counts once it is whole.
class MoreSettingsPage final : public QWidget {
    Q_OBJECT

public:
    /// The settings must outlive the page.
    explicit MoreSettingsPage(UserDefaults& defaults, QWidget* parent = nullptr);

    void showStored();

Q_SIGNALS:
    /// The user has changed a setting, which is stored.
    void changed();
    /// The user wants the first page.
    void backPressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Switch {
        QCheckBox* box;
        QString key;
    };
    /// A box and a number behind it, stored as one number: 0 where the box is not checked.
    struct Number {
        QString key;
        qlonglong most;
        int proposed; ///< what stands behind a box that is not checked
        const char* unit;
        const char* unitOfOne;
        const QCheckBox* dependsOn = nullptr;
        QCheckBox* box = nullptr;
        QSpinBox* field = nullptr;
    };

    void addGroup(const char* title);
    QCheckBox* addBox(const char* title, QWidget* behind = nullptr, int indent = 0);
    QCheckBox* addSwitch(const char* title, const QString& key);
    void addNumber(const char* title, Number number);
    void addBackButton();

    void showNumber(const Number& number) const;
    static void showUnit(const Number& number);
    void storeNumber(const Number& number);
    void enableNumbers();

    UserDefaults& defaults_;
    QGridLayout* rows_;
    QString group_; ///< that is being filled
    QList<Switch> switches_;
    QList<Number> numbers_;
};

} // namespace quillon

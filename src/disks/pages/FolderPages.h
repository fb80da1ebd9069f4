#pragma once

#include "ListPage.h"
#include "RunLoop.h"

#include <QDialog>
#include <QStringList>

#include <memory>

class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace quillon {

class Setup;
class TmutilClient;
struct TmutilAnswer;

/// The folders that are backed up.
class SourcesPage final : public ListPage {
    Q_OBJECT

public:
    /// The setup must outlive this object.
    explicit SourcesPage(Setup& setup, QWidget* parent = nullptr);

    void reload();

private:
    void add(const QString& path);
    void remove(const QString& path, const QString& name);

    Setup& setup_;
    QStringList sources_;
};

/// Asks which files are to be left out by their names or by their size, and shows what of the present folders that
/// would be before it takes an answer.
class ExclusionDialog final : public QDialog {
    Q_OBJECT

public:
    enum class Kind { Name, Size };

    /// The setup must outlive this object; its tool is asked.
    ExclusionDialog(Kind kind, const Setup& setup, QWidget* parent);
    ~ExclusionDialog() override;

Q_SIGNALS:
    /// The pattern, or the number of megabytes.
    void chosen(const QString& value);

private:
    QWidget* makeField(Kind kind);
    QString value() const;
    QStringList trial() const;
    void edited();
    void preview();
    void show(const TmutilAnswer& answer);
    void tell(const QString& line);

    const Setup& setup_;
    QLineEdit* name_ = nullptr; ///< by name
    QSpinBox* size_ = nullptr;  ///< by size
    QLabel* preview_;
    QPushButton* leaveOut_;
    Timer delay_;
    std::unique_ptr<TmutilClient> tmutil_; ///< counts for the value as it stands
};

/// What is left out of backups: by path, by name, by size.
class ExclusionsPage final : public ListPage {
    Q_OBJECT

public:
    /// The setup must outlive this object.
    explicit ExclusionsPage(Setup& setup, QWidget* parent = nullptr);

    void reload();

private:
    void addPath(const char* titleKey, bool files);
    void addByRule(ExclusionDialog::Kind kind);

    Setup& setup_;
};

} // namespace quillon

#pragma once

#include "ExclusionDialog.h"
#include "ListPage.h"

#include <QStringList>

namespace quillon {

class Setup;

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

#pragma once

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

} // namespace quillon

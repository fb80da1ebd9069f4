#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace quillon {

/// A tmutil in a folder of its own that plays a script as a real process.
class ScriptedTmutil {
public:
    explicit ScriptedTmutil(const QByteArray& script);
    ScriptedTmutil(const ScriptedTmutil&) = delete;
    ScriptedTmutil& operator=(const ScriptedTmutil&) = delete;
    /// Fails the test when a call of the script was never made, or another one was.
    ~ScriptedTmutil();

    /// What QUILLON_TMUTIL has to name.
    QString path() const { return folder_.filePath(QStringLiteral("tmutil")); }

private:
    QByteArray read(const QString& name) const;

    QTemporaryDir folder_;
    qsizetype calls_;
};

} // namespace quillon

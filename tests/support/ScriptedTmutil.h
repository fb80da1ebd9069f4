#pragma once

#include "TmutilScript.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillon {

/// A tmutil in a folder of its own that plays a script as a real process.
class ScriptedTmutil {
public:
    explicit ScriptedTmutil(const QByteArray& script)
        : calls_(TmutilScript::fromJson(script).calls.size())
    {
        QFile file(folder_.filePath(QStringLiteral("script.json")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(script) == script.size());
        EXPECT_TRUE(QFile::link(QStringLiteral(SCRIPTED_TMUTIL), path()));
    }
    ScriptedTmutil(const ScriptedTmutil&) = delete;
    ScriptedTmutil& operator=(const ScriptedTmutil&) = delete;
    /// Fails the test when a call of the script was never made, or another one was.
    ~ScriptedTmutil()
    {
        EXPECT_EQ(read(QStringLiteral("problems")), "");
        EXPECT_EQ(read(QStringLiteral("progress")).toLongLong(), calls_) << "not every call of the script was made";
    }

    /// What QUILLON_TMUTIL has to name.
    QString path() const { return folder_.filePath(QStringLiteral("tmutil")); }

private:
    QByteArray read(const QString& name) const
    {
        QFile file(folder_.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder_;
    qsizetype calls_;
};

} // namespace quillon

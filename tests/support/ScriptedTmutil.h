#pragma once

#include "TmutilScript.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillon {

/// A tmutil in a folder of its own that gives the answers of a script as a real process, in whatever order it is
/// asked, and refuses everything else.
class ScriptedTmutil {
public:
    explicit ScriptedTmutil(const QByteArray& script)
    {
        QByteArray program = "#!/bin/sh\ncase \"$*\" in\n";
        for (const auto& call : TmutilScript::fromJson(script).calls)
            program += call.expected.join(u' ').toUtf8() + ") printf %s '" + call.output + "';;\n";
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(program + "*) exit 99;;\nesac\n") > 0 &&
                    file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }

    /// What QUILLON_TMUTIL has to name.
    QString path() const { return folder_.filePath(QStringLiteral("tmutil")); }

private:
    QTemporaryDir folder_;
};

} // namespace quillon

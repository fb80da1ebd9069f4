#include "ScriptedTmutil.h"

#include "TmutilScript.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

ScriptedTmutil::ScriptedTmutil(const QByteArray& script)
    : calls_(TmutilScript::fromJson(script).calls.size())
{
    QFile file(folder_.filePath(u"script.json"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(script) == script.size());
    EXPECT_TRUE(QFile::link(QStringLiteral(SCRIPTED_TMUTIL), path()));
}

ScriptedTmutil::~ScriptedTmutil()
{
    EXPECT_EQ(read(u"problems"_s), "");
    EXPECT_EQ(read(u"progress"_s).toLongLong(), calls_) << "not every call of the script was made";
}

QByteArray ScriptedTmutil::read(const QString& name) const
{
    QFile file(folder_.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace quillon

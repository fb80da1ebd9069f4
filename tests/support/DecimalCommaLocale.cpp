#include "DecimalCommaLocale.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

DecimalCommaLocale::DecimalCommaLocale()
{
    const QString made = folder_.filePath(QString::fromLatin1(name));
    EXPECT_EQ(QProcess::execute(u"localedef"_s, {u"-i"_s, u"de_DE"_s, u"-f"_s, u"UTF-8"_s, made}), 0);
}

} // namespace quillon

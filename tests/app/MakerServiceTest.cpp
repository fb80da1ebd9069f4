#include "ApplicationIdentity.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillon {

TEST(MakerService, ItsValuesReadAsTheBuildGaveThemAndStandNowhereAsPlainText)
{
    QFile compiled(QStringLiteral(MAKER_SERVICE_OBJECT));
    ASSERT_TRUE(compiled.open(QIODevice::ReadOnly));
    const QByteArray object = compiled.readAll();
    for (const auto& [value, built] : {std::pair(makerservice::applicationId(), QUILLON_SERVICE_APPLICATION_ID),
                                       std::pair(makerservice::apiKey(), QUILLON_SERVICE_API_KEY),
                                       std::pair(makerservice::address(), QUILLON_SERVICE_ADDRESS)}) {
        EXPECT_EQ(value, QString::fromUtf8(built));
        EXPECT_FALSE(object.contains(QByteArray(built).first(8))) << built;
    }
    EXPECT_TRUE(object.contains(QByteArray(QUILLON_SERVICE_ADDRESS).toBase64()));
}

} // namespace quillon

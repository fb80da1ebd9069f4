#include "MakerSite.h"

namespace quillon::makersite {

using namespace Qt::StringLiterals;

QUrl page(const QString& path)
{
    QUrl address(u"" QUILLON_WEB_SITE ""_s);
    address.setPath(path);
    return address;
}

QString supportAddress()
{
    return u"" QUILLON_SUPPORT_ADDRESS ""_s;
}

QUrl iconCollection()
{
    return QUrl(u"" QUILLON_ICON_COLLECTION ""_s);
}

} // namespace quillon::makersite

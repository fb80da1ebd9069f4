#include "MakerSite.h"

namespace quillon::makersite {

using namespace Qt::StringLiterals;

QUrl page(const QString& path)
{
    QUrl address(u"" QUILLON_WEB_SITE ""_s);
    address.setPath(path);
    return address;
}

} // namespace quillon::makersite

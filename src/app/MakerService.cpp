#include "MakerService.h"

namespace quillon::makerservice {

using namespace Qt::StringLiterals;

QString applicationId()
{
    return u"" QUILLON_SERVICE_APPLICATION_ID ""_s;
}

QString apiKey()
{
    return u"" QUILLON_SERVICE_API_KEY ""_s;
}

QString address()
{
    return u"" QUILLON_SERVICE_ADDRESS ""_s;
}

} // namespace quillon::makerservice

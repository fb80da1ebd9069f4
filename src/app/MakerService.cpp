#include "MakerService.h"

#include "Obfuscated.h"

namespace quillon::makerservice {

namespace {

constexpr Obfuscated hiddenId(QUILLON_SERVICE_APPLICATION_ID);
constexpr Obfuscated hiddenKey(QUILLON_SERVICE_API_KEY);
constexpr auto encodedAddress = base64(QUILLON_SERVICE_ADDRESS);

} // namespace

QString applicationId()
{
    return hiddenId.text();
}

QString apiKey()
{
    return hiddenKey.text();
}

QString address()
{
    return QString::fromUtf8(QByteArray::fromBase64(QByteArray(encodedAddress.data(), encodedAddress.size())));
}

} // namespace quillon::makerservice

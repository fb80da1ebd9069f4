#include "ApplicationIdentity.h"

#include <QByteArray>
#include <QStandardPaths>

#include <array>
#include <cstddef>
#include <cstdint>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A text that the compiler encodes, so that nobody finds it by looking through the program for readable text. That is
/// all it is good for: whoever runs the program can read it.
template<std::size_t size>
class Obfuscated {
public:
    consteval explicit Obfuscated(const char (&text)[size])
    {
        for (std::size_t i = 0; i < bytes_.size(); ++i)
            bytes_[i] = static_cast<std::uint8_t>(text[i]) ^ mask;
    }

    QString text() const
    {
        // Read at run time: an optimiser that knew the mask would decode the text and store that.
        static const volatile std::uint8_t hiddenMask = mask;
        const std::uint8_t known = hiddenMask;
        QByteArray decoded;
        for (const std::uint8_t byte : bytes_)
            decoded.append(static_cast<char>(byte ^ known));
        return QString::fromUtf8(decoded);
    }

private:
    static constexpr std::uint8_t mask = 0xA5;

    std::array<std::uint8_t, size - 1> bytes_{}; ///< without the final NUL
};

/// The base64 form (RFC 4648) of a text, made by the compiler; without the text's final NUL.
template<std::size_t size>
consteval auto base64(const char (&text)[size])
{
    constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t length = size - 1;
    std::array<char, (length + 2) / 3 * 4> encoded{};
    for (std::size_t at = 0, out = 0; at < length; at += 3) {
        std::uint32_t group = 0;
        for (std::size_t i = at; i < at + 3; ++i)
            group = group << 8 | (i < length ? static_cast<std::uint8_t>(text[i]) : 0U);
        for (std::size_t i = 0; i < 4; ++i)
            encoded[out++] = at + i <= length ? digits[(group >> (18 - 6 * i)) & 0x3F] : '=';
    }
    return encoded;
}

constexpr Obfuscated hiddenId(QUILLON_SERVICE_APPLICATION_ID);
constexpr Obfuscated hiddenKey(QUILLON_SERVICE_API_KEY);
constexpr auto encodedAddress = base64(QUILLON_SERVICE_ADDRESS);

} // namespace

QString identity::instanceLock()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + identifier + ".instance"_L1;
}

QString bundleShortVersion()
{
    return QStringLiteral(QUILLON_VERSION);
}

QString bundleVersion()
{
    return QStringLiteral(QUILLON_BUILD_NUMBER);
}

QUrl makersite::page(const QString& path)
{
    QUrl address(u"" QUILLON_WEB_SITE ""_s);
    address.setPath(path);
    return address;
}

QString makersite::supportAddress()
{
    return u"" QUILLON_SUPPORT_ADDRESS ""_s;
}

QUrl makersite::iconCollection()
{
    return QUrl(u"" QUILLON_ICON_COLLECTION ""_s);
}

QString makerservice::applicationId()
{
    return hiddenId.text();
}

QString makerservice::apiKey()
{
    return hiddenKey.text();
}

QString makerservice::address()
{
    return QString::fromUtf8(QByteArray::fromBase64(QByteArray(encodedAddress.data(), encodedAddress.size())));
}

} // namespace quillon

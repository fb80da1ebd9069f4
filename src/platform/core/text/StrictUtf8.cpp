#include "StrictUtf8.h"

#include <QStringConverter>

namespace quillon {

std::optional<QString> strictUtf8(QByteArrayView bytes)
{
    if (!bytes.isValidUtf8())
        return std::nullopt;
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

QByteArrayView withoutByteOrderMark(QByteArrayView bytes)
{
    constexpr QByteArrayView mark = "\xEF\xBB\xBF";
    return bytes.startsWith(mark) ? bytes.sliced(mark.size()) : bytes;
}

} // namespace quillon

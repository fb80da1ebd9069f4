#include "EmojiFont.h"

#include <QFontInfo>
#include <QStringList>

namespace quillon {

using namespace Qt::StringLiterals;

QFont withColorEmoji(QFont font)
{
    font.setFamilies(
        QStringList{QFontInfo(font).family(), u"Noto Color Emoji"_s}); // what a system does not have is passed over
    return font;
}

} // namespace quillon

#include "LocalizedString.h"

#include <QByteArray>

#include <unicode/locid.h>
#include <utility>

namespace quillon {

namespace {

// Order of precedence: locale(7).
QByteArray environmentLocale()
{
    for (const char* name : {"LC_ALL", "LC_TIME", "LANG"}) {
        if (QByteArray value = qgetenv(name); !value.isEmpty())
            return value;
    }
    return {};
}

bool hasModifier(const QByteArray& posixName, const char* modifier)
{
    return posixName.mid(posixName.indexOf('@') + 1) == modifier;
}

} // namespace

std::string userLocale()
{
    const QByteArray name = environmentLocale();
    const icu::Locale locale = icu::Locale::createCanonical(name.constData());
    const std::string language = locale.getLanguage();
    if (locale.isBogus() || language.empty() || language == "c" || language == "posix")
        return "en_US";
    // glibc names scripts by modifiers that ICU does not know.
    for (const auto& [modifier, script] : {std::pair{"latin", "_Latn_"}, std::pair{"cyrillic", "_Cyrl_"}}) {
        if (hasModifier(name, modifier))
            return language + script + locale.getCountry();
    }
    return locale.getName();
}

} // namespace quillon

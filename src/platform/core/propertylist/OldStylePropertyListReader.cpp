#include "PropertyList.h"
#include "PropertyListFormats.h"
#include "Text.h"

#include <QVariantList>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <string_view>
#include <utility>

namespace quillon {

namespace {

constexpr bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

constexpr bool isLetterOrDigit(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

constexpr std::array<bool, 256> bareCharacters = [] {
    std::array<bool, 256> table{};
    for (size_t byte = 0; byte < 0x80; ++byte) {
        const char c = static_cast<char>(byte);
        table[byte] = isLetterOrDigit(c) || std::string_view("_$/:.-").find(c) != std::string_view::npos;
    }
    return table;
}();

constexpr bool isBare(char c)
{
    return bareCharacters[static_cast<unsigned char>(c)];
}

/// Value of a hexadecimal digit; -1 for anything else.
constexpr int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

/// The character that a one-letter escape stands for; 0 where there is no such escape.
constexpr char simpleEscape(char c)
{
    switch (c) {
    case 'a':
        return '\a';
    case 'b':
        return '\b';
    case 'f':
        return '\f';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    case 'v':
        return '\v';
    case '\\':
    case '"':
    case '\'':
    case '\n':
        return c;
    default:
        return 0;
    }
}

const char* find(const char* from, const char* end, char c)
{
    const void* found = from == end ? nullptr : std::memchr(from, c, static_cast<size_t>(end - from));
    return found ? static_cast<const char*>(found) : end;
}

/// Bytes of the UTF-8 sequence that starts with this byte, if it is a sound one.
constexpr int sequenceLength(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead < 0xE0)
        return 2;
    return lead < 0xF0 ? 3 : 4;
}

} // namespace

OldStylePropertyListReader::OldStylePropertyListReader(QByteArrayView bytes)
    : begin_(bytes.data())
    , end_(bytes.data() + bytes.size())
    , position_(withoutByteOrderMark(bytes).data())
{
}

std::optional<QVariant> OldStylePropertyListReader::read()
{
    QVariant value;
    if (!checkEncoding() || !skipBlanks() || !readValue(value) || !skipBlanks())
        return std::nullopt;
    if (position_ != end_) {
        fail(position_, "nothing may follow the property list");
        return std::nullopt;
    }
    return value;
}

propertylist::ParseError OldStylePropertyListReader::error() const
{
    const char* lineStart = begin_;
    int line = 1;
    for (const char* newline = find(begin_, errorPosition_, '\n'); newline != errorPosition_;
         newline = find(lineStart, errorPosition_, '\n')) {
        lineStart = newline + 1;
        ++line;
    }
    return {QString::fromLatin1(errorMessage_), line, static_cast<int>(errorPosition_ - lineStart) + 1};
}

bool OldStylePropertyListReader::fail(const char* at, const char* message)
{
    errorPosition_ = at;
    errorMessage_ = message;
    return false;
}

bool OldStylePropertyListReader::checkEncoding()
{
    if (QUtf8StringView(begin_, end_).isValidUtf8())
        return true;
    const char* at = begin_;
    while (at != end_) {
        const auto length = std::min<qsizetype>(sequenceLength(static_cast<unsigned char>(*at)), end_ - at);
        if (!QUtf8StringView(at, length).isValidUtf8())
            break;
        at += length;
    }
    return fail(at, "the text is not UTF-8");
}

bool OldStylePropertyListReader::skipBlanks()
{
    while (true) {
        position_ = std::find_if_not(position_, end_, isBlank);
        const bool comment = end_ - position_ >= 2 && *position_ == '/' && (position_[1] == '/' || position_[1] == '*');
        if (!comment)
            return true;
        if (!skipComment())
            return false;
    }
}

bool OldStylePropertyListReader::skipComment()
{
    const char* const start = position_;
    if (start[1] == '/') {
        position_ = std::find_if(start, end_, [](char c) { return c == '\n' || c == '\r'; });
        return true;
    }
    constexpr QByteArrayView close = "*/";
    const char* const closing = std::search(start + 2, end_, close.begin(), close.end());
    if (closing == end_)
        return fail(start, "the comment is never closed");
    position_ = closing + close.size();
    return true;
}

bool OldStylePropertyListReader::expect(char character, const char* message)
{
    if (!skipBlanks())
        return false;
    if (position_ == end_ || *position_ != character)
        return fail(position_, message);
    ++position_;
    return true;
}

bool OldStylePropertyListReader::readValue(QVariant& value)
{
    switch (position_ == end_ ? '\0' : *position_) {
    case '{':
    case '(': {
        if (depth_ == propertylist::maximumNesting)
            return fail(position_, "arrays and dictionaries are nested too deeply");
        ++depth_;
        const bool done = *position_ == '{' ? readDictionary(value) : readArray(value);
        --depth_;
        return done;
    }
    case '<':
        return readData(value);
    default: {
        QString text;
        if (!readString(text))
            return false;
        value = text;
        return true;
    }
    }
}

bool OldStylePropertyListReader::readDictionary(QVariant& value)
{
    std::map<QString, QVariant> entries;
    ++position_;
    while (true) {
        if (!skipBlanks())
            return false;
        if (position_ != end_ && *position_ == '}')
            break;
        QString key;
        if (!readString(key) || !expect('=', "expected \"=\" after the key") || !skipBlanks())
            return false;
        // Lists are mostly written with sorted keys: the hint makes these cheap and costs the others next to nothing.
        const auto entry = entries.try_emplace(entries.end(), std::move(key));
        if (!readValue(entry->second) || !expect(';', "expected \";\" after the value"))
            return false;
    }
    ++position_;
    value = QVariantMap(std::move(entries));
    return true;
}

bool OldStylePropertyListReader::readArray(QVariant& value)
{
    QVariantList elements;
    ++position_;
    while (true) {
        if (!skipBlanks())
            return false;
        if (position_ != end_ && *position_ == ')')
            break;
        if (!readValue(elements.emplaceBack()) || !skipBlanks())
            return false;
        if (position_ != end_ && *position_ == ',')
            ++position_;
        else if (position_ == end_ || *position_ != ')')
            return fail(position_, "expected \",\" or \")\" after the element");
    }
    ++position_;
    value = elements;
    return true;
}

bool OldStylePropertyListReader::readData(QVariant& value)
{
    const char* const start = position_;
    const char* const closing = find(start, end_, '>');
    if (closing == end_)
        return fail(start, "the data is never closed");
    QByteArray data;
    data.reserve((closing - start) / 2);
    int high = -1;
    for (const char* at = start + 1; at != closing; ++at) {
        if (isBlank(*at))
            continue;
        const int digit = hexDigit(*at);
        if (digit < 0)
            return fail(at, "data holds something other than hexadecimal digits");
        if (high < 0) {
            high = digit;
        } else {
            data.append(static_cast<char>(high << 4 | digit));
            high = -1;
        }
    }
    if (high >= 0)
        return fail(closing, "data ends within a byte");
    position_ = closing + 1;
    value = data;
    return true;
}

bool OldStylePropertyListReader::readString(QString& text)
{
    if (position_ == end_)
        return fail(position_, "the text ends too early");
    if (*position_ == '"' || *position_ == '\'')
        return readQuotedString(text);
    const char* const start = position_;
    position_ = std::find_if_not(start, end_, isBare);
    if (position_ == start)
        return fail(start, "unexpected character");
    text = QString::fromLatin1(start, position_ - start);
    return true;
}

bool OldStylePropertyListReader::readQuotedString(QString& text)
{
    const char quote = *position_;
    const char* const start = position_ + 1;
    const char* at = start;
    bool escaped = false;
    bool ascii = true;
    for (; at < end_ && *at != quote; ++at) {
        ascii &= *at >= 0;
        if (*at == '\\') {
            escaped = true;
            ++at;
        }
    }
    if (at >= end_)
        return fail(position_, "the string is never closed");
    position_ = at + 1;
    if (escaped)
        return unescape(start, at, text);
    text = ascii ? QString::fromLatin1(start, at - start) : *strictUtf8(QByteArrayView(start, at));
    return true;
}

bool OldStylePropertyListReader::unescape(const char* from, const char* end, QString& text)
{
    // UTF-16 never has more units than UTF-8 has bytes, and no escape is shorter than what it stands for.
    text = QString(end - from, Qt::Uninitialized);
    QChar* out = text.data();
    while (from != end) {
        if (*from == '\\') {
            if (!readEscape(++from, end, out))
                return false;
        } else if (*from >= 0) {
            *out++ = QLatin1Char(*from++);
        } else {
            const char* const run = from;
            from = std::find_if(run, end, [](char c) { return c >= 0; });
            out = utf8_.appendToBuffer(out, QByteArrayView(run, from));
        }
    }
    text.truncate(out - text.constData());
    return true;
}

bool OldStylePropertyListReader::readEscape(const char*& from, const char* end, QChar*& out)
{
    if (*from == 'U')
        return readUnicodeEscape(from, end, out);
    if (const char simple = simpleEscape(*from)) {
        ++from;
        *out++ = QLatin1Char(simple);
        return true;
    }
    const char* const start = from;
    int code = 0;
    while (from != end && from - start < 3 && *from >= '0' && *from <= '7')
        code = code * 8 + (*from++ - '0');
    if (from == start)
        return fail(start - 1, "unknown escape");
    if (code > 0xFF)
        return fail(start - 1, "an octal escape stands for a byte: 377 at most");
    *out++ = code < 0x80 ? QChar(static_cast<char16_t>(code)) : QChar(nextStepUpperHalf[code - 0x80]);
    return true;
}

bool OldStylePropertyListReader::readUnicodeEscape(const char*& from, const char* end, QChar*& out)
{
    const char* const start = from - 1;
    const auto readUnit = [&] {
        int unit = 0;
        for (int i = 1; i <= 4; ++i) {
            const int digit = end - from > i ? hexDigit(from[i]) : -1;
            if (digit < 0)
                return -1;
            unit = unit << 4 | digit;
        }
        from += 5;
        return unit;
    };

    const int unit = readUnit();
    if (unit < 0)
        return fail(start, "\\U needs four hexadecimal digits");
    *out++ = QChar(static_cast<char16_t>(unit));
    if (!QChar::isSurrogate(static_cast<char32_t>(unit)))
        return true;
    if (QChar::isHighSurrogate(static_cast<char32_t>(unit)) && end - from > 1 && from[0] == '\\' && from[1] == 'U') {
        ++from;
        const int low = readUnit();
        if (low >= 0 && QChar::isLowSurrogate(static_cast<char32_t>(low))) {
            *out++ = QChar(static_cast<char16_t>(low));
            return true;
        }
    }
    return fail(start, "\\U gives half a surrogate pair");
}

} // namespace quillon

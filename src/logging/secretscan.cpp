#include "secretscan.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Scheduler {

namespace {

/// Every word after which an expression looks for a value ("apikey" and "api_key" end in "key").
constexpr std::array<std::u16string_view, 9> triggerWords = {
    u"password", u"passwd", u"pwd", u"token", u"secret", u"key", u"authorization", u"auth", u"bearer",
};

constexpr qsizetype markSize = 3;

/// How far into its word a mark may begin: "swo" in "password".
constexpr qsizetype deepestMark = 3;

/// Places that are looked at in one go.
constexpr qsizetype blockSize = 512;

/// Outside ASCII, and yet the same as k and s when case does not count.
constexpr char16_t kelvinSign = u'\u212A';
constexpr char16_t longS = u'\u017F';

/// Lower-cases ASCII letters. What else it changes can only make the scan say yes too often.
template <typename Unit> constexpr Unit folded(Unit unit)
{
    return Unit(unit | 0x20U);
}

/// Whether three bytes are a mark, a rare group of letters out of a trigger word.
constexpr bool isMark(const uchar *bytes)
{
    const uchar a = folded(bytes[0]);
    const uchar b = folded(bytes[1]);
    const uchar c = folded(bytes[2]);
    return ((b == 'w') & (((a == 's') & (c == 'o')) | (c == 'd'))) // password, passwd, pwd
           | ((a == 'k') & (b == 'e') & ((c == 'y') | (c == 'n'))) // key, token
           | ((a == 'e') & (b == 'c') & (c == 'r'))                // secret
           | ((a == 'u') & (b == 't') & (c == 'h'))                // authorization, auth
           | ((a == 'r') & (b == 'e') & (c == 'r'));               // bearer
}

/// Sets 1 for each place where a mark, a Kelvin sign or a long s may begin, and 0 for all others.
///
/// There is no branch in here, so that the compiler looks at many places at once, and it works on the low bytes, which
/// doubles their number. That other characters may then pass for letters gives a false alarm, no more.
void findAlarms(const char16_t *units, qsizetype places, char *alarms)
{
    std::array<uchar, blockSize + markSize - 1> bytes; // NOLINT(*-member-init): written before it is read
    for (qsizetype i = 0; i < places + markSize - 1; ++i)
        bytes[std::size_t(i)] = uchar(units[i]);
    for (qsizetype i = 0; i < places; ++i) {
        const uchar *byte = bytes.data() + i;
        alarms[i] = char(isMark(byte) | (*byte == uchar(kelvinSign)) | (*byte == uchar(longS)));
    }
}

/// Whether the text begins with a trigger word and something that can part it from its value.
bool startsWithTrigger(QStringView text)
{
    return std::ranges::any_of(triggerWords, [text](std::u16string_view word) {
        const auto length = qsizetype(word.size());
        if (text.size() <= length)
            return false;
        const char16_t next = text.utf16()[length];
        return (next <= u' ' || next == u':' || next == u'=') &&
               std::ranges::equal(word, std::u16string_view(text.utf16(), word.size()), {}, {}, folded<char16_t>);
    });
}

/// The careful look at a place with an alarm.
bool isTrueAlarm(QStringView text, qsizetype place)
{
    const QChar character = text[place];
    if (character == kelvinSign || character == longS)
        return true;
    for (qsizetype start = std::max<qsizetype>(0, place - deepestMark); start <= place; ++start) {
        if (startsWithTrigger(text.sliced(start)))
            return true;
    }
    return false;
}

} // namespace

bool mayHoldSecret(QStringView text)
{
    std::array<char, blockSize> alarms; // NOLINT(*-member-init): written before it is read
    // A trigger word has a separator and a value behind it, so nothing that counts begins in the last two places.
    const qsizetype allPlaces = text.size() - markSize + 1;
    for (qsizetype begin = 0; begin < allPlaces; begin += blockSize) {
        const qsizetype places = std::min(blockSize, allPlaces - begin);
        findAlarms(text.utf16() + begin, places, alarms.data());
        const std::string_view found(alarms.data(), std::size_t(places));
        for (auto place = found.find(1); place != std::string_view::npos; place = found.find(1, place + 1)) {
            if (isTrueAlarm(text, begin + qsizetype(place)))
                return true;
        }
    }
    return false;
}

} // namespace Scheduler

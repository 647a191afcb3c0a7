#include "kit/Region.h"

#include <iconv.h>
#include <langinfo.h>
#include <locale.h> // NOLINT(modernize-deprecated-headers): newlocale is POSIX, not C++

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

namespace ondelis {
namespace {

Region& setting()
{
    static Region region;
    return region;
}

/// The name of the locale in which the user writes numbers.
const char* nameOfUser()
{
    for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"})
        if (const char* name = std::getenv(variable); name != nullptr && *name != '\0')
            return name;
    return "C";
}

bool isAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

/// A separator of a locale as UTF-8; nothing if it is not valid in the encoding, or the encoding is unknown.
std::optional<std::string> toUtf8(std::string text, const char* encoding)
{
    if (std::ranges::all_of(text, isAscii)) // the same in all locale encodings
        return text;
    iconv_t conversion = iconv_open("UTF-8", encoding);
    if (conversion == iconv_t(-1)) // NOLINT(performance-no-int-to-ptr): how POSIX reports a failure
        return {};
    constexpr std::size_t longest = 6; // bytes of UTF-8 per byte: in some encodings one byte stands for two characters
    std::string utf8(longest * text.size(), ' ');
    char* from = text.data();
    char* to = utf8.data();
    std::size_t unread = text.size();
    std::size_t room = utf8.size();
    constexpr auto failed = static_cast<std::size_t>(-1);
    const bool whole = iconv(conversion, &from, &unread, &to, &room) != failed
        && iconv(conversion, nullptr, nullptr, &to, &room) != failed; // writes what it held back for a combining mark
    iconv_close(conversion);
    utf8.resize(utf8.size() - room);
    return whole ? std::optional{utf8} : std::nullopt;
}

} // namespace

Region Region::ofUser()
{
    // LC_CTYPE gives the encoding of a locale: it is that of the same locale, whatever LC_CTYPE the user has.
    const locale_t locale = newlocale(LC_NUMERIC_MASK | LC_CTYPE_MASK, nameOfUser(), nullptr);
    if (locale == nullptr)
        return {.decimal = ".", .thousands = ""};
    const char* const encoding = nl_langinfo_l(CODESET, locale);
    Region user{.decimal = toUtf8(nl_langinfo_l(RADIXCHAR, locale), encoding).value_or("."),
        .thousands = toUtf8(nl_langinfo_l(THOUSEP, locale), encoding).value_or("")};
    freelocale(locale);
    return user;
}

const Region& region()
{
    return setting();
}

void setRegion(Region region)
{
    setting() = std::move(region);
}

ScopedRegion::ScopedRegion(Region inside) : outside_{std::exchange(setting(), std::move(inside))} { }

ScopedRegion::~ScopedRegion()
{
    setRegion(std::move(outside_));
}

} // namespace ondelis

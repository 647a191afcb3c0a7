#include "kit/Region.h"

#include <langinfo.h>
#include <locale.h> // NOLINT(modernize-deprecated-headers): newlocale is POSIX, not C++

#include <utility>

namespace ondelis {
namespace {

Region& setting()
{
    static Region region;
    return region;
}

} // namespace

Region Region::ofUser()
{
    const locale_t numeric = newlocale(LC_NUMERIC_MASK, "", nullptr);
    if (numeric == nullptr)
        return {.decimal = ".", .thousands = ""};
    Region user{.decimal = nl_langinfo_l(RADIXCHAR, numeric), .thousands = nl_langinfo_l(THOUSEP, numeric)};
    freelocale(numeric);
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

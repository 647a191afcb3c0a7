#pragma once

#include <string>

namespace ondelis {

/// The separators of the user's regional settings, as UTF-8 texts. `CStr` and `CDbl` follow them; `Str` and
/// `Val` do not.
struct Region {
    std::string decimal = ".";
    std::string thousands = ",";

    /// The separators of the system's user (LC_ALL, LC_NUMERIC, LANG), whatever the encoding of the locale that they
    /// name; "." and no thousands separator where the system does not know it, or cannot convert one of them.
    static Region ofUser();
};

/// The one setting of the process.
[[nodiscard]] const Region& region();

/// Replaces the setting of the process.
void setRegion(Region region);

/// Another region for the length of a scope: for tests.
class ScopedRegion {
public:
    explicit ScopedRegion(Region inside);
    ~ScopedRegion();
    ScopedRegion(const ScopedRegion&) = delete;
    ScopedRegion& operator=(const ScopedRegion&) = delete;

private:
    Region outside_;
};

} // namespace ondelis

#pragma once

#include <string>

namespace ondelis {

/// The separators of the user's regional settings, as UTF-8 texts. `CStr` and `CDbl` follow them; `Str` and
/// `Val` do not.
struct Region {
    std::string decimal = ".";
    std::string thousands = ",";

    /// The separators of the system's user (LC_ALL, LC_NUMERIC, LANG), whatever the encoding of the locale they name;
    /// "." and no thousands separator if the system does not know that locale, or cannot convert one of them.
    static Region ofUser();
};

/// The process-wide setting.
[[nodiscard]] const Region& region();

/// Replaces the process-wide setting.
void setRegion(Region region);

/// Another region for the duration of a scope: for tests.
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

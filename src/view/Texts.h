#pragma once

#include <QString>
#include <string_view>

namespace ondelis {

[[nodiscard]] inline QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A caption for a widget that would take "&" as the mark of a shortcut.
[[nodiscard]] inline QString withoutShortcut(std::string_view caption)
{
    return toQString(caption).replace(QLatin1Char{'&'}, QLatin1String{"&&"});
}

} // namespace ondelis

#pragma once

#include <QFont>
#include <QPalette>
#include <QString>

namespace ondelis {

/// A palette of light text on dark windows, as desktops of the night have them; with a poor highlight.
[[nodiscard]] QPalette darkPalette();

/// The person's desktop, for as long as it lives: its font and its colours.
class ScopedLook {
public:
    ScopedLook(const QString& family, int points, bool dark);
    ~ScopedLook();
    ScopedLook(const ScopedLook&) = delete;
    ScopedLook& operator=(const ScopedLook&) = delete;

private:
    QFont font_;
    QPalette palette_;
};

} // namespace ondelis

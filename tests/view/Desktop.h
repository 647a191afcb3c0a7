#pragma once

#include <QFont>
#include <QPalette>
#include <QString>

namespace ondelis {

/// The colours of a dark desktop that shows poorly what is disabled or selected.
[[nodiscard]] QPalette poorDarkPalette();

/// The person's desktop, for as long as it lives: its font and its colours.
class ScopedDesktop {
public:
    ScopedDesktop(const QString& family, int points, bool dark);
    ~ScopedDesktop();
    ScopedDesktop(const ScopedDesktop&) = delete;
    ScopedDesktop& operator=(const ScopedDesktop&) = delete;

private:
    QFont font_;
    QPalette palette_;
};

} // namespace ondelis

#pragma once

#include <QPalette>

namespace ondelis::galerie {

/// The colours of the usual dark desktops: light text on dark windows.
[[nodiscard]] inline QPalette darkPalette()
{
    constexpr QColor window{0x35, 0x35, 0x35};
    constexpr QColor base{0x2a, 0x2a, 0x2a};
    constexpr QColor text{0xee, 0xee, 0xec};
    constexpr QColor dimmed{0x91, 0x91, 0x90};
    constexpr QColor highlight{0x15, 0x53, 0x9e};

    QPalette palette{window};
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, dimmed);
    }
    for (const auto role : {QPalette::Base, QPalette::ToolTipBase})
        palette.setColor(role, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::PlaceholderText, dimmed);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor{0x62, 0xa0, 0xea});
    return palette;
}

} // namespace ondelis::galerie

#pragma once

#include <QColor>
#include <QDebug>
#include <QMargins>
#include <QRect>
#include <QString>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "shell/Menu.h"

// How values of the toolkit look in the messages of failed tests: GoogleTest finds these where the types are.

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << QDebug::toString(text).toStdString();
}

inline void PrintTo(const QColor& color, std::ostream* out)
{
    *out << QDebug::toString(color).toStdString();
}

inline void PrintTo(const QPoint& place, std::ostream* out)
{
    *out << QDebug::toString(place).toStdString();
}

inline void PrintTo(const QSize& size, std::ostream* out)
{
    *out << QDebug::toString(size).toStdString();
}

inline void PrintTo(const QRect& rect, std::ostream* out)
{
    *out << QDebug::toString(rect).toStdString();
}

inline void PrintTo(const QMargins& margins, std::ostream* out)
{
    *out << QDebug::toString(margins).toStdString();
}

namespace ondelis {

inline void PrintTo(const MenuEntry* entry, std::ostream* out)
{
    *out << entry->control;
}

/// The name of a test that runs once for each row of a table: what GoogleTest prints of the row, without the characters
/// that a name must not have.
template <class Row>
std::string nameOfRow(const testing::TestParamInfo<Row>& row)
{
    std::string name = testing::PrintToString(row.param);
    std::erase_if(name, [](char c) {
        return !(c == '_' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'));
    });
    return name;
}

} // namespace ondelis

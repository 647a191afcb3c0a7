#include "shell/Menu.h"

#include <gtest/gtest.h>

namespace ondelis {
namespace {

TEST(MenuTest, everyEntryIsFoundByItsControl)
{
    for (const Menu& menu : menuTree())
        for (const MenuEntry& entry : menu.entries)
            EXPECT_EQ(findMenuEntry(entry.control), &entry) << entry.control;
}

TEST(MenuTest, theFirstLevelHasNoHandler)
{
    for (const Menu& menu : menuTree())
        EXPECT_EQ(findMenuEntry(menu.control), nullptr) << menu.control;
    EXPECT_EQ(findMenuEntry(""), nullptr);
}

} // namespace
} // namespace ondelis

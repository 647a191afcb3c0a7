#include <gtest/gtest.h>

#include "view/Application.h"

int main(int argc, char** argv)
{
    qputenv("QT_FONT_DPI", "96");
    const ondelis::Application application{argc, argv};
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

#include <gtest/gtest.h>

#include "view/Application.h"

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const ondelis::Application application{argc, argv};
    return RUN_ALL_TESTS();
}

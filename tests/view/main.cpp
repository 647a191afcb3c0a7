#include <QFont>

#include <gtest/gtest.h>

#include "Program.h"
#include "view/Application.h"

namespace {

/// Ends what a test has left to the event loop, so that the next one starts as the first did.
class Tidying final : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& /*test*/) override
    {
        ondelis::recover();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

} // namespace

int main(int argc, char** argv)
{
    const ondelis::Application application{argc, argv};
    QApplication::setFont(QFont{QStringLiteral("DejaVu Sans"), 9}); // the widest of the common fonts
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new Tidying); // which GoogleTest then owns
    return RUN_ALL_TESTS();
}

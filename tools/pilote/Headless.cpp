#include "Headless.h"

namespace ondelis::pilote {

Headless::Headless()
{
    surroundings_.whileBoxWaits([this] {
        hands_.waitForAnswer(true);
        meanwhile_.act(hands_);
        hands_.waitForAnswer(false);
    });
    surroundings_.whileEventsRun([this] { meanwhile_.act(hands_); });
}

Hands::Refusal Headless::setScreen(const Extent& size)
{
    surroundings_.setScreen(size);
    return {};
}

void Headless::forget()
{
    surroundings_.forget();
    meanwhile_.forget();
}

} // namespace ondelis::pilote

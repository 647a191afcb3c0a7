#include "HeadlessBackend.h"

namespace ondelis::pilote {

HeadlessBackend::HeadlessBackend()
{
    host_.whileBoxWaits([this] {
        actor_.waitForAnswer(true);
        meanwhile_.perform(actor_);
        actor_.waitForAnswer(false);
    });
    host_.whileEventsRun([this] { meanwhile_.perform(actor_); });
}

Actor::Refusal HeadlessBackend::setScreen(const Size& size)
{
    host_.setScreen(size);
    return {};
}

void HeadlessBackend::forget()
{
    host_.forget();
    meanwhile_.forget();
}

} // namespace ondelis::pilote

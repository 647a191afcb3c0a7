#pragma once

#include <deque>
#include <utility>

#include "Actor.h"

namespace ondelis::pilote {

/// What a person is to do meanwhile: once a box waits, or a handler lets events through.
class PendingGestures {
public:
    void add(Gesture gesture) { gestures_.push_back(std::move(gesture)); }
    [[nodiscard]] bool empty() const { return gestures_.empty(); }

    /// The occasion has come: performs all gestures.
    void perform(Actor& actor)
    {
        while (!gestures_.empty()) {
            const Gesture gesture = std::move(gestures_.front());
            gestures_.pop_front();
            keepFirst(gesture(actor));
        }
    }

    /// The command is over: refuses the gestures that had no occasion.
    void refuseRemaining()
    {
        if (!gestures_.empty())
            keepFirst("nothing waited meanwhile");
        gestures_.clear();
    }

    /// Why the first gesture refused since the last `forget` was refused.
    [[nodiscard]] const Actor::Refusal& refused() const { return refused_; }
    void forget() { refused_.reset(); }

private:
    void keepFirst(Actor::Refusal refusal)
    {
        if (!refused_)
            refused_ = std::move(refusal);
    }

    std::deque<Gesture> gestures_;
    Actor::Refusal refused_;
};

} // namespace ondelis::pilote

#pragma once

#include <deque>
#include <utility>

#include "Hands.h"

namespace ondelis::pilote {

/// What a person is to do once a box waits, or a handler lets events through.
class Meanwhile {
public:
    void add(Gesture gesture) { gestures_.push_back(std::move(gesture)); }
    [[nodiscard]] bool empty() const { return gestures_.empty(); }

    /// The occasion has come: performs all gestures.
    void act(Hands& hands)
    {
        while (!gestures_.empty()) {
            const Gesture gesture = std::move(gestures_.front());
            gestures_.pop_front();
            note(gesture(hands));
        }
    }

    /// The command is over: refuses the gestures that had no occasion.
    void giveUp()
    {
        if (!gestures_.empty())
            note("nothing waited meanwhile");
        gestures_.clear();
    }

    /// Why the first gesture refused since the last `forget` was refused.
    [[nodiscard]] const Hands::Refusal& refused() const { return refused_; }
    void forget() { refused_.reset(); }

private:
    void note(Hands::Refusal refusal)
    {
        if (!refused_)
            refused_ = std::move(refusal);
    }

    std::deque<Gesture> gestures_;
    Hands::Refusal refused_;
};

} // namespace ondelis::pilote

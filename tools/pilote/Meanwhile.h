#pragma once

#include <deque>
#include <utility>

#include "Hands.h"

namespace ondelis::pilote {

/// What a person is to do once a box waits, or a handler lets events through.
class Meanwhile {
public:
    void add(Deed deed) { deeds_.push_back(std::move(deed)); }
    [[nodiscard]] bool empty() const { return deeds_.empty(); }

    /// The occasion is here.
    void act(Hands& hands)
    {
        while (!deeds_.empty()) {
            const Deed deed = std::move(deeds_.front());
            deeds_.pop_front();
            note(deed(hands));
        }
    }

    /// No occasion comes any more.
    void giveUp()
    {
        if (!deeds_.empty())
            note("nothing waited meanwhile");
        deeds_.clear();
    }

    /// Why the first one was refused, of those since the last `forget`.
    [[nodiscard]] const Hands::Refusal& refused() const { return refused_; }
    void forget() { refused_.reset(); }

private:
    void note(Hands::Refusal refusal)
    {
        if (!refused_)
            refused_ = std::move(refusal);
    }

    std::deque<Deed> deeds_;
    Hands::Refusal refused_;
};

} // namespace ondelis::pilote

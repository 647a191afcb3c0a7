#pragma once

#include "Body.h"
#include "Meanwhile.h"
#include "ScriptedSurroundings.h"
#include "State.h"
#include "UserHands.h"

namespace ondelis::pilote {

/// The program with no window.
class Headless final : public Body {
public:
    Headless();

    [[nodiscard]] const MDIOndelis& frame() const override { return frame_; }
    [[nodiscard]] Hands& hands() override { return hands_; }
    [[nodiscard]] const Eyes& eyes() const override { return eyes_; }

    void start() override { frame_.start(); }
    Hands::Refusal setScreen(const Extent& size) override;
    void answer(Answer answer) override { surroundings_.answer(answer); }
    void onChange(std::function<void(const Control&)> action) override { surroundings_.onChange(std::move(action)); }
    void meanwhile(Gesture gesture) override { meanwhile_.add(std::move(gesture)); }

    [[nodiscard]] const std::vector<MessageBox>& boxes() const override { return surroundings_.boxes(); }
    [[nodiscard]] const std::optional<Fault>& fault() const override { return surroundings_.fault(); }
    [[nodiscard]] Hands::Refusal meanwhileRefused() const override { return meanwhile_.refused(); }
    void forget() override;
    void settle() override { meanwhile_.giveUp(); }

private:
    ScriptedSurroundings surroundings_;
    Desk desk_{surroundings_};
    MDIOndelis frame_{desk_};
    UserHands hands_{frame_};
    State eyes_;
    Meanwhile meanwhile_;
};

} // namespace ondelis::pilote

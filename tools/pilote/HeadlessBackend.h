#pragma once

#include "Backend.h"
#include "EngineActor.h"
#include "EngineInspector.h"
#include "PendingGestures.h"
#include "ScriptedHost.h"

namespace ondelis::pilote {

/// The program with no window.
class HeadlessBackend final : public Backend {
public:
    HeadlessBackend();

    [[nodiscard]] const MDIOndelis& frame() const override { return frame_; }
    [[nodiscard]] Actor& actor() override { return actor_; }
    [[nodiscard]] const Inspector& inspector() const override { return inspector_; }

    void start() override { frame_.start(); }
    Actor::Refusal setScreen(const Size& size) override;
    void answer(Answer answer) override { host_.answer(answer); }
    void onChange(std::function<void(const Control&)> action) override { host_.onChange(std::move(action)); }
    void meanwhile(Gesture gesture) override { meanwhile_.add(std::move(gesture)); }

    [[nodiscard]] const std::vector<MessageBox>& boxes() const override { return host_.boxes(); }
    [[nodiscard]] const std::optional<Fault>& fault() const override { return host_.fault(); }
    [[nodiscard]] Actor::Refusal meanwhileRefused() const override { return meanwhile_.refused(); }
    void forget() override;
    void settle() override { meanwhile_.refuseRemaining(); }

private:
    ScriptedHost host_;
    Runtime runtime_{host_};
    MDIOndelis frame_{runtime_};
    EngineActor actor_{frame_};
    EngineInspector inspector_;
    PendingGestures meanwhile_;
};

} // namespace ondelis::pilote

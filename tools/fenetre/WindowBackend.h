#pragma once

#include <QString>
#include <deque>
#include <memory>

#include "Backend.h"
#include "PendingGestures.h"
#include "ViewSpy.h"
#include "WidgetActor.h"
#include "WidgetInspector.h"

namespace ondelis::fenetre {

/// The program in its real windows.
class WindowBackend final : public pilote::Backend {
public:
    /// Painting takes most of the time; leaving it out changes nothing else.
    enum class Painting { On, Off };
    explicit WindowBackend(Painting painting = Painting::On);
    ~WindowBackend() override;

    [[nodiscard]] const MDIOndelis& frame() const override { return frame_; }
    [[nodiscard]] pilote::Actor& actor() override { return actor_; }
    [[nodiscard]] const pilote::Inspector& inspector() const override { return inspector_; }

    void start() override;
    pilote::Actor::Refusal setScreen(const Size& size) override;
    void answer(Answer answer) override { answers_.push_back(answer); }
    void onChange(std::function<void(const Control&)> action) override { spy_.onChange = std::move(action); }
    void meanwhile(pilote::Gesture gesture) override { meanwhile_.add(std::move(gesture)); }

    [[nodiscard]] const std::vector<MessageBox>& boxes() const override { return boxes_; }
    [[nodiscard]] const std::optional<Fault>& fault() const override { return fault_; }
    [[nodiscard]] pilote::Actor::Refusal meanwhileRefused() const override { return meanwhile_.refused(); }
    void forget() override;
    void settle() override;

    /// Whether the control that has the keyboard on screen is the one that has it for the runtime.
    [[nodiscard]] bool focusAgrees() const;

private:
    void readBox();
    void readFault();
    /// The button that answers a box, which asks for "Oui" or "Non" or just tells something.
    [[nodiscard]] QString nextAnswer(bool asks);

    Painting painting_;
    View view_;
    ViewSpy spy_{view_};
    Runtime runtime_{spy_};
    MDIOndelis frame_{runtime_};
    WidgetActor actor_;
    WidgetInspector inspector_{view_};
    pilote::PendingGestures meanwhile_;
    std::deque<Answer> answers_;
    std::vector<MessageBox> boxes_;
    std::optional<Fault> fault_;
};

} // namespace ondelis::fenetre

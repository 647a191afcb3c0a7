#pragma once

#include <QString>
#include <deque>
#include <memory>

#include "Body.h"
#include "Meanwhile.h"
#include "Onlooker.h"
#include "WidgetEyes.h"
#include "WindowHands.h"

namespace ondelis::fenetre {

/// The program in its real windows.
class Window final : public pilote::Body {
public:
    /// Painting takes most of the time; leaving it out changes nothing else.
    enum class Painting { On, Off };
    explicit Window(Painting painting = Painting::On);
    ~Window() override;

    [[nodiscard]] const MDIOndelis& frame() const override { return frame_; }
    [[nodiscard]] pilote::Hands& hands() override { return hands_; }
    [[nodiscard]] const pilote::Eyes& eyes() const override { return eyes_; }

    void start() override;
    pilote::Hands::Refusal setScreen(const Extent& size) override;
    void answer(Answer answer) override { answers_.push_back(answer); }
    void onChange(std::function<void(const Control&)> action) override { onlooker_.onChange = std::move(action); }
    void meanwhile(pilote::Gesture gesture) override { meanwhile_.add(std::move(gesture)); }

    [[nodiscard]] const std::vector<MessageBox>& boxes() const override { return boxes_; }
    [[nodiscard]] const std::optional<Fault>& fault() const override { return fault_; }
    [[nodiscard]] pilote::Hands::Refusal meanwhileRefused() const override { return meanwhile_.refused(); }
    void forget() override;
    void settle() override;

    /// Whether the control that has the keyboard on screen is the one that has it for the desk.
    [[nodiscard]] bool agreesOnKeyboard() const;

private:
    void readBox();
    void readFault();
    /// The button that answers a box, which asks for "Oui" or "Non" or just tells something.
    [[nodiscard]] QString nextAnswer(bool asks);

    Painting painting_;
    View view_;
    Onlooker onlooker_{view_};
    Desk desk_{onlooker_};
    MDIOndelis frame_{desk_};
    WindowHands hands_;
    WidgetEyes eyes_{view_};
    pilote::Meanwhile meanwhile_;
    std::deque<Answer> answers_;
    std::vector<MessageBox> boxes_;
    std::optional<Fault> fault_;
};

} // namespace ondelis::fenetre

#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "Eyes.h"
#include "Hands.h"
#include "forms/Surroundings.h"
#include "shell/MDIOndelis.h"

namespace ondelis::pilote {

/// One run of the program as the driver sees it: hands to act with, eyes to look with, and the world around it. The
/// program with a window and the one without are different bodies.
class Body {
public:
    Body() = default;
    Body(const Body&) = delete;
    Body& operator=(const Body&) = delete;
    virtual ~Body() = default;

    /// The program itself, in which the driver finds what it is asked for.
    [[nodiscard]] virtual const MDIOndelis& frame() const = 0;
    [[nodiscard]] virtual Hands& hands() = 0;
    [[nodiscard]] virtual const Eyes& eyes() const = 0;

    virtual void start() = 0;
    /// The size of the screen, or a new one while the program runs; twips.
    virtual Hands::Refusal setScreen(const Extent& size) = 0;

    /// The answer to the next box that asks "Oui" or "Non" and has none yet. Without one, a box gets "Oui".
    virtual void answer(Answer answer) = 0;
    /// Calls `action` with each control that changes.
    virtual void onChange(std::function<void(const Control&)> action) = 0;
    /// What the person does while the next box waits for its answer, or the next handler lets events through.
    virtual void meanwhile(Gesture gesture) = 0;

    // What there was to see since the last `forget`.
    /// The boxes, in order.
    [[nodiscard]] virtual const std::vector<MessageBox>& boxes() const = 0;
    /// The fault that was named.
    [[nodiscard]] virtual const std::optional<Fault>& fault() const = 0;
    /// Why a gesture meant for `meanwhile` was refused: the first one that was.
    [[nodiscard]] virtual Hands::Refusal meanwhileRefused() const = 0;
    virtual void forget() = 0;
    /// The command is over: gestures meant for `meanwhile` that had no occasion are refused.
    virtual void settle() = 0;
};

} // namespace ondelis::pilote

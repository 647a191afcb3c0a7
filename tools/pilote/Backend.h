#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "Actor.h"
#include "Inspector.h"
#include "forms/Host.h"
#include "shell/MDIOndelis.h"

namespace ondelis::pilote {

/// One run of the program as the driver sees it: an actor, an inspector, and what the program runs in. The program with
/// a window and the one without are different backends.
class Backend {
public:
    Backend() = default;
    Backend(const Backend&) = delete;
    Backend& operator=(const Backend&) = delete;
    virtual ~Backend() = default;

    /// The program itself, in which the driver finds what it is asked for.
    [[nodiscard]] virtual const MDIOndelis& frame() const = 0;
    [[nodiscard]] virtual Actor& actor() = 0;
    [[nodiscard]] virtual const Inspector& inspector() const = 0;

    virtual void start() = 0;
    /// The size of the screen, or a new one while the program runs; twips.
    virtual Actor::Refusal setScreen(const Size& size) = 0;

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
    [[nodiscard]] virtual Actor::Refusal meanwhileRefused() const = 0;
    virtual void forget() = 0;
    /// The command is over: gestures meant for `meanwhile` that had no occasion are refused.
    virtual void settle() = 0;
};

} // namespace ondelis::pilote

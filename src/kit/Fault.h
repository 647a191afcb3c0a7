#pragma once

#include <exception>

namespace ondelis {

/// What can go wrong while a handler runs. A fault ends the program: `Runtime::perform` catches it and has it shown.
/// Two places pass over it: `resumeNext`, which goes on with the next statement of `Form_Load`, and
/// `MaskEdBox::display`.
enum class FaultKind {
    InvalidArgument,
    Overflow,
    SubscriptOutOfRange,
    DivisionByZero, ///< 0 / 0 is an overflow
    TypeMismatch,
    ObjectNotSet,
    InvalidPropertyValue,
};

/// The one exception type that kit and controls throw.
class Fault final : public std::exception {
public:
    explicit Fault(FaultKind kind) noexcept : kind_{kind} { }

    [[nodiscard]] FaultKind kind() const noexcept { return kind_; }

    /// The number that the fault dialog shows.
    [[nodiscard]] int number() const noexcept;

    /// The French text that the fault dialog shows.
    [[nodiscard]] const char* text() const noexcept;

    /// The English name by which scenarios know the fault.
    [[nodiscard]] const char* what() const noexcept override;

private:
    FaultKind kind_;
};

} // namespace ondelis

#pragma once

#include <QFocusFrame>

namespace ondelis {

/// The mark around the control that has the keyboard: the style marks some kinds of widgets faintly and others not at
/// all.
class FocusFrame final : public QFocusFrame {
public:
    using QFocusFrame::QFocusFrame;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ondelis

#pragma once

#include <QFocusFrame>

namespace ondelis {

/// The mark around the control that has the keyboard: the style marks some kinds of widgets faintly and others not at
/// all. It is hidden until it is given a control.
class FocusFrame final : public QFocusFrame {
public:
    explicit FocusFrame(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ondelis

#pragma once

#include <QFrame>
#include <QGroupBox>
#include <QPixmap>

#include "forms/Controls.h"
#include "view/ControlWidget.h"

namespace ondelis {

/// A vector drawing of resources/dessins, read and rendered when it is first painted, and again when its size or the
/// system's colours change. The drawings are made for light windows; on dark ones light and dark change places, hues
/// stay, and white is the ground of the window.
class Drawing {
public:
    explicit Drawing(std::string_view name);

    /// Paints the drawing as large as it fits, in the middle of a part of the widget.
    void paint(QWidget& widget, const QRect& into);

private:
    [[nodiscard]] QPixmap render(const QSize& pixels, const QColor& darkGround) const;

    QString file_;
    QPixmap rendered_;
    QColor darkGround_; ///< none on light windows
};

/// A titled group of controls, or a titled drawing.
class FrameWidget final : public QGroupBox, public ControlWidget {
public:
    FrameWidget(PanelWindow& window, Frame& frame, QWidget* parent);

    QWidget& widget() override { return *this; }
    void follow() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Frame& frame_;
    Drawing drawing_;
};

/// A drawing, with a border or without one.
class PictureWidget final : public QFrame, public ControlWidget {
public:
    enum class Border { No, Yes };
    PictureWidget(PanelWindow& window, Picture& picture, Border border, QWidget* parent);

    QWidget& widget() override { return *this; }
    void follow() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Picture& picture_;
    Drawing drawing_;
};

} // namespace ondelis

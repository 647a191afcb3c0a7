#pragma once

#include <QGroupBox>
#include <QPixmap>
#include <QWidget>

#include "forms/Controls.h"
#include "view/ControlWidget.h"

namespace ondelis {

/// A vector drawing of resources/dessins, read and rendered when it is first painted, and again when its size, its font
/// or the system's colours change. It is lettered in the widget's font. The drawings are made for light windows; on
/// dark ones light and dark are swapped, hues stay, and white becomes the window's background.
class Drawing {
public:
    explicit Drawing(std::string_view name);

    /// A drawing for dark windows, from its source for light ones. Colours that it writes as rgb(...) belong to things
    /// that look the same on both, and stay.
    [[nodiscard]] static QByteArray darkened(const QByteArray& svg, const QColor& background);

    /// Paints the drawing as large as it fits, in the middle of a part of the widget.
    void paint(QWidget& widget, const QRect& into);

private:
    [[nodiscard]] QPixmap render(const QSize& pixels) const;

    QString file_;
    QPixmap rendered_;
    QString family_; ///< of the lettering
    QColor darkBackground_; ///< invalid on light windows
};

/// A titled group of controls, or a titled drawing. It hides captions and drawings of the panel that lie under it.
class FrameWidget final : public WidgetOf<QGroupBox, Frame> {
public:
    FrameWidget(PanelWindow& window, Frame& frame, QWidget* parent);

    void refresh() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Drawing drawing_;
};

/// A drawing.
class PictureWidget final : public WidgetOf<QWidget, Picture> {
public:
    PictureWidget(PanelWindow& window, Picture& picture, QWidget* parent);

    void refresh() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Drawing drawing_;
};

} // namespace ondelis

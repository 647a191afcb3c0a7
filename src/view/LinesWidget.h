#pragma once

#include <QLineF>
#include <optional>
#include <vector>

#include "forms/Controls.h"
#include "view/ControlWidget.h"
#include "view/Scale.h"

namespace ondelis {

/// The lines and shapes of a panel or of a frame, painted over its drawings. The mouse passes through it.
class LinesWidget final : public QWidget, public ControlWidget {
public:
    LinesWidget(PanelWindow& window, QWidget* parent);

    void add(const Line& line) { lines_.push_back(&line); }
    void add(const Shape& shape) { shapes_.push_back(&shape); }
    /// What is painted of a line, in pixels; nothing where it is hidden, or runs outside its diagram.
    [[nodiscard]] std::optional<QLineF> painted(const Line& line) const;

    QWidget& widget() override { return *this; }
    void refresh() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// What is painted, in pixels.
    struct Stroke {
        const Line* of = nullptr;
        QLineF line;
        QRect area; ///< nothing is painted outside it; null for no limit
        Color color = windowTextColor;
        double width = 0;
    };

    void draw(const Line& line, const Scale& scale);
    /// Makes the widget reach from the upper left corner of the panel to the far end of what it paints.
    void fitGeometry();

    std::vector<const Line*> lines_;
    std::vector<const Shape*> shapes_;
    std::vector<Stroke> strokes_;
    std::vector<QRect> rectangles_;
};

} // namespace ondelis

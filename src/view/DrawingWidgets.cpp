#include "view/DrawingWidgets.h"

#include <QPainter>
#include <QStyleOptionGroupBox>
#include <QSvgRenderer>
#include <algorithm>

#include "view/Colors.h"

namespace ondelis {
namespace {

void turnLightness(QImage& image, const QColor& ground)
{
    for (int y = 0; y < image.height(); ++y) {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): a row of 32-bit pixels, given as bytes
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(line, line + image.width(), line, [&](QRgb pixel) { return turned(pixel, ground); });
    }
}

} // namespace

Drawing::Drawing(std::string_view name)
    : file_{name.empty() ? QString{} : QStringLiteral(":/dessins/%1.svg").arg(toQString(name))}
{
}

void Drawing::paint(QWidget& widget, const QRect& into)
{
    if (file_.isEmpty() || into.isEmpty())
        return;
    const double ratio = widget.devicePixelRatioF();
    const QSize pixels = into.size() * ratio;
    const QPalette& palette = widget.palette();
    const QColor ground = isDark(palette) ? palette.color(QPalette::Window) : QColor{};
    if (rendered_.size() != pixels || darkGround_ != ground) {
        rendered_ = render(pixels, ground);
        rendered_.setDevicePixelRatio(ratio);
        darkGround_ = ground;
    }
    QPainter{&widget}.drawPixmap(into.topLeft(), rendered_);
}

QPixmap Drawing::render(const QSize& pixels, const QColor& darkGround) const
{
    QSvgRenderer renderer{file_};
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage image{pixels, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    QPainter painter{&image};
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    if (darkGround.isValid())
        turnLightness(image, darkGround);
    return QPixmap::fromImage(std::move(image));
}

FrameWidget::FrameWidget(PanelWindow& window, Frame& frame, QWidget* parent)
    : QGroupBox{withoutShortcut(frame.design().Caption), parent},
      ControlWidget{window}, frame_{frame}, drawing_{frame.design().picture}
{
}

void FrameWidget::follow()
{
    place(frame_);
    setVisible(frame_.Visible);
}

void FrameWidget::paintEvent(QPaintEvent* event)
{
    QGroupBox::paintEvent(event);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    drawing_.paint(*this, style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this));
}

PictureWidget::PictureWidget(PanelWindow& window, Picture& picture, Border border, QWidget* parent)
    : QFrame{parent}, ControlWidget{window}, picture_{picture}, drawing_{picture.design().picture}
{
    if (border == Border::Yes)
        setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
}

void PictureWidget::follow()
{
    place(picture_);
    setVisible(picture_.Visible);
}

void PictureWidget::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    drawing_.paint(*this, contentsRect());
}

} // namespace ondelis

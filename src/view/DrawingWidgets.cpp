#include "view/DrawingWidgets.h"

#include <QFile>
#include <QPainter>
#include <QStyleOptionGroupBox>
#include <QSvgRenderer>

#include "view/Colors.h"

namespace ondelis {
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
    const QColor background = isDark(palette) ? palette.color(QPalette::Window) : QColor{};
    const QString family = widget.font().family();
    if (rendered_.size() != pixels || darkBackground_ != background || family_ != family) {
        darkBackground_ = background;
        family_ = family;
        rendered_ = render(pixels);
        rendered_.setDevicePixelRatio(ratio);
    }
    QPainter{&widget}.drawPixmap(into.topLeft(), rendered_);
}

QByteArray Drawing::darkened(const QByteArray& svg, const QColor& background)
{
    constexpr int length = 7; // of a colour as written, "#1f2d3d"
    QByteArray dark = svg;
    for (qsizetype at = dark.indexOf("\"#"); at >= 0; at = dark.indexOf("\"#", at + length)) {
        const QColor light{QString::fromLatin1(dark.mid(at + 1, length))};
        dark.replace(at + 1, length, inverted(light, background).name().toLatin1());
    }
    return dark;
}

QPixmap Drawing::render(const QSize& pixels) const
{
    QFile file{file_};
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray svg = file.readAll();
    QSvgRenderer renderer{darkBackground_.isValid() ? darkened(svg, darkBackground_) : svg};
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPixmap pixmap{pixels};
    pixmap.fill(Qt::transparent);
    QPainter painter{&pixmap};
    painter.setFont(QFont{family_}); // the drawings name no font
    renderer.render(&painter);
    return pixmap;
}

FrameWidget::FrameWidget(PanelWindow& window, Frame& frame, QWidget* parent)
    : WidgetOf{window, frame, withoutShortcut(frame.design().Caption), parent}, drawing_{frame.design().picture}
{
    setAutoFillBackground(true);
}

void FrameWidget::refresh()
{
    applyGeometry();
    setVisible(control().Visible);
}

void FrameWidget::paintEvent(QPaintEvent* event)
{
    QGroupBox::paintEvent(event);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    drawing_.paint(*this, style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this));
}

PictureWidget::PictureWidget(PanelWindow& window, Picture& picture, QWidget* parent)
    : WidgetOf{window, picture, parent}, drawing_{picture.design().picture}
{
}

void PictureWidget::refresh()
{
    applyGeometry();
    setVisible(control().Visible);
}

void PictureWidget::paintEvent(QPaintEvent* /*event*/)
{
    drawing_.paint(*this, rect());
}

} // namespace ondelis

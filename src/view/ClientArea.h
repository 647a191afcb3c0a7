#pragma once

#include <QList>
#include <QMdiArea>
#include <QRect>

#include "view/Background.h"

namespace ondelis {

/// The client area of the main window: a picture, and the panels on it. It scrolls where they reach beyond it.
class ClientArea final : public QMdiArea {
public:
    explicit ClientArea(QWidget* parent);

    /// Scrolls until the widget, which is on a panel, can be seen.
    void ensureVisible(const QWidget& widget);
    /// Scrolls until all panels can be seen; if there is no room for that, the active one, or at least its beginning;
    /// and in any case what has the keyboard.
    void ensurePanelsVisible();
    /// Whether no part of a panel is out of sight.
    [[nodiscard]] bool showsAll() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void scrollAfterResize();
    /// Where the widget would be if nothing were scrolled.
    [[nodiscard]] QRect geometryOf(const QWidget& widget) const;
    /// Its place with a little room around it.
    [[nodiscard]] QRect paddedGeometryOf(const QWidget& widget) const;
    /// Scrolls until the places can be seen in a view of this size; of those that do not fit together, the later ones.
    void reveal(const QList<QRect>& places, const QSize& seen);

    bool resized_ = false; ///< the control or panel in use may now be out of sight
    Background background_;
    bool onScreen_ = false;
};

} // namespace ondelis

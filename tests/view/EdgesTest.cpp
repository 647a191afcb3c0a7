#include <QPainter>

#include "Edges.h"
#include "Program.h"
#include "Walk.h"
#include "shell/Menu.h"

namespace ondelis {

/// The edges of all panels, of their fields, lists, bars and frames, are there and equally strong on each side, in what
/// is painted. The scale of the screen is that of the environment (QT_FONT_DPI, QT_SCALE_FACTOR).
class EdgesTest final : public QObject {
    Q_OBJECT

private slots:
    void theCheckFindsEachFault()
    {
        const QRect place{10, 10, 80, 60};
        const auto sides = [&](const QRect& fault, const QColor& color) {
            QImage image{100, 80, QImage::Format_RGB32};
            image.fill(Qt::white);
            QPainter painter{&image};
            painter.fillRect(place, Qt::gray);
            painter.fillRect(place.adjusted(2, 2, -2, -2), Qt::white);
            painter.fillRect(fault, color);
            painter.end();
            return sidesWithoutEdge(image, place, 2).join(QLatin1Char{' '});
        };
        QCOMPARE(sides({}, Qt::white), QString{});
        QCOMPARE(sides({10, 10, 80, 2}, Qt::white), QStringLiteral("top"));
        QCOMPARE(sides({10, 10, 80, 1}, Qt::white), QStringLiteral("top"));
        QCOMPARE(sides({10, 69, 80, 1}, Qt::lightGray), QStringLiteral("bottom"));
        QCOMPARE(sides({12, 10, 1, 60}, Qt::gray), QStringLiteral("left"));
        QCOMPARE(sides({88, 10, 2, 60}, Qt::black), QStringLiteral("right"));
        QCOMPARE(sides(place, Qt::white), QStringLiteral("top bottom left right"));
        QCOMPARE(sides(place, Qt::gray), QStringLiteral("top bottom left right"));
    }

    void allEdgesAreThere()
    {
        Walk walk;
        QStringList missing;
        int things = 0;
        for (const MenuEntry* entry : panelEntries()) {
            walk.open(*entry);
            QCoreApplication::processEvents();
            walk.lookAt([&](PanelWindow& window) {
                things += edgedThings(window);
                missing.append(missingEdges(window));
            });
        }
        missing.removeDuplicates();
        if (!missing.isEmpty())
            qWarning("of %d things:\n%s", things, qPrintable(missing.join(QLatin1Char{'\n'})));
        QVERIFY(missing.isEmpty());
        QVERIFY2(things > 400, qPrintable(QString::number(things)));
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::EdgesTest>(argc, argv);
}

#include "EdgesTest.moc"

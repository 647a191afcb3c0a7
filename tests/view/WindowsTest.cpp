#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QStyleOptionTitleBar>

#include "Program.h"
#include "TestPanel.h"
#include "panels/resonance/CircuitsOscillants.h"
#include "shell/Menu.h"
#include "view/ClientArea.h"

namespace ondelis {

/// The main window, its menu, and the sub-windows of the panels.
class WindowsTest final : public QObject {
    Q_OBJECT

    static QPoint closeBoxOf(const QMdiSubWindow& window)
    {
        QStyleOptionTitleBar option;
        option.initFrom(&window);
        option.titleBarFlags = window.windowFlags();
        option.subControls = QStyle::SC_All;
        option.rect.setHeight(window.style()->pixelMetric(QStyle::PM_TitleBarHeight, &option, &window));
        return window.style()
            ->subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarCloseButton, &window)
            .center();
    }

    /// Destroys closed windows.
    static void settle() { QTest::qWait(1); }

private slots:
    void theStartMakesNoPanel()
    {
        const Program program;
        QVERIFY(program.desk.loadedPanels().empty());
        QVERIFY(program.view.mainWindow().area().subWindowList().isEmpty());
        QVERIFY(program.view.mainWindow().findChildren<QLineEdit*>().isEmpty());
    }

    void theWholeMenuIsThere()
    {
        const Program program;
        const auto drops = program.view.mainWindow().menuBar()->actions();
        QCOMPARE(drops.size(), 12);
        QCOMPARE(drops.at(2)->text(), QStringLiteral("Circuits oscillants et Selfs"));
        QCOMPARE(drops.at(2)->menu()->actions().at(0)->text(), QStringLiteral("Adaptation d'impédance"));
        int entries = 0;
        for (const QAction* drop : drops)
            entries += static_cast<int>(drop->menu()->actions().size());
        QCOMPARE(entries, 43);
    }

    void theMainWindowHasItsOuterSize()
    {
        const Program program;
        const QRect frame = program.view.mainWindow().frameGeometry();
        const Scale scale{program.view.mainWindow()};
        QCOMPARE(frame.size(), (QSize{scale.pixels(19470), scale.pixels(15000)}));
        QCOMPARE(program.view.mainWindow().windowTitle(),
            QStringLiteral("Kervane : Veloris divers V21.5.0 du 20 Janvier 2021"));
    }

    void theUserResizesTheMainWindow()
    {
        Program program;
        program.view.mainWindow().resize(960, 720);
        settle();
        const Scale scale{program.view.mainWindow()};
        QCOMPARE(Double{program.frame.Width}.value(), scale.twips(program.view.mainWindow().frameGeometry().width()));
        QCOMPARE(Double{program.frame.Height}.value(), scale.twips(program.view.mainWindow().frameGeometry().height()));
        program.pick("MenuCircuitOscillant");
        const auto& panel = program.desk.get<CircuitsOscillants>();
        const QMdiSubWindow& window = program.window(panel);
        const QSize outer = program.view.mainWindow().frameGeometry().size();
        QVERIFY(qAbs(window.x() - (outer.width() - window.width()) / 2) <= 1);
        QVERIFY(qAbs(window.y() - (outer.height() - window.height()) / 2) <= 1);
    }

    void aPanelHasItsOuterSizeAndKeepsIt()
    {
        Program program;
        const auto& panel = program.open<TestPanel>();
        const PanelWindow& window = program.window(panel);
        const Scale scale{window};
        QCOMPARE(window.size(), (QSize{scale.pixels(9000), scale.pixels(7200)}));
        QCOMPARE(window.minimumSize(), window.maximumSize());
        QVERIFY(window.form().height() < window.height());
        QVERIFY(!window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
        QVERIFY(!window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
        QCOMPARE(window.windowTitle(), QStringLiteral("Panneau d'essai"));
    }

    void codeMovesAndResizesAPanel()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] {
            panel.Left = 1500;
            panel.Top = 750;
            panel.Width = 6000;
            panel.Caption = "Autre titre";
        });
        const PanelWindow& window = program.window(panel);
        const Scale scale{window};
        QCOMPARE(window.pos(), (QPoint{scale.pixels(1500), scale.pixels(750)}));
        QCOMPARE(window.width(), scale.pixels(6000));
        QCOMPARE(window.windowTitle(), QStringLiteral("Autre titre"));
    }

    void theUserDragsAPanel()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        PanelWindow& window = program.window(panel);
        const QPoint title{window.width() / 2, 10};
        const QPoint before = window.pos();
        QWindow* const screen = program.view.mainWindow().windowHandle();
        const QPoint start = window.mapTo(&program.view.mainWindow(), title);
        QTest::mousePress(screen, Qt::LeftButton, Qt::NoModifier, start);
        QTest::mouseMove(screen, start + QPoint{40, 24});
        QTest::mouseRelease(screen, Qt::LeftButton, Qt::NoModifier, start + QPoint{40, 24});
        const Scale scale{window};
        QCOMPARE(window.pos(), before + (QPoint{40, 24}));
        QCOMPARE(scale.pixels(Double{panel.Left}.value()), window.x());
        QCOMPARE(scale.pixels(Double{panel.Top}.value()), window.y());
    }

    void theAreaScrollsToAPanelBeyondIt()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] { panel.Left = 15000; });
        QScrollBar& bar = *program.view.mainWindow().area().horizontalScrollBar();
        QVERIFY(QTest::qWaitFor([&] { return bar.maximum() > 0; }));
        bar.setValue(bar.maximum());
        PanelWindow& window = program.window(panel);
        QVERIFY(window.geometry().right() <= program.view.mainWindow().area().viewport()->width());
        QCOMPARE(Double{panel.Left}.value(), 15000.0);
        program.store([&] { panel.Left = 300; });
        QCOMPARE(window.x() + bar.value(), Scale{window}.pixels(300));
    }

    void theCloseBoxUnloadsAPanel()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("1"));
        const QPointer<PanelWindow> window = &program.window(panel);
        const QPoint closeBox = window->mapTo(&program.view.mainWindow(), closeBoxOf(*window));
        QTest::mouseMove(program.view.mainWindow().windowHandle(), closeBox);
        QTest::mouseClick(program.view.mainWindow().windowHandle(), Qt::LeftButton, Qt::NoModifier, closeBox);
        QVERIFY(!panel.loaded());
        settle();
        QVERIFY(window == nullptr);
        program.open<TestPanel>();
        QCOMPARE(program.widget<QLineEdit>(panel.TxtA).text(), QString{});
    }

    void aKeyClosesTheActivePanel()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        QTest::keyClick(&program.widget(panel.TxtA), Qt::Key_F4, Qt::ControlModifier);
        QVERIFY(!panel.loaded());
    }

    void aHiddenPanelKeepsItsControls()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("1"));
        program.store([&] { panel.Hide(); });
        QVERIFY(!program.window(panel).isVisible());
        program.store([&] { panel.Show(); });
        QVERIFY(program.window(panel).isVisible());
        QCOMPARE(program.widget<QLineEdit>(panel.TxtA).text(), QStringLiteral("1"));
    }

    void aLoadedPanelThatIsHiddenHasNoWidgets()
    {
        Program program;
        auto& panel = program.desk.get<TestPanel>();
        program.store([&] { panel.Hide(); });
        QVERIFY(panel.loaded());
        QVERIFY(program.view.find(panel) == nullptr);
    }

    void openingAgainAndAgainLeavesNoWidgetBehind()
    {
        Program program;
        program.pick("MenuCircuitOscillant");
        program.window(program.desk.get<CircuitsOscillants>()).close();
        settle();
        const auto before = QApplication::allWidgets().size();
        for (int round = 0; round < 100; ++round) {
            program.pick("MenuCircuitOscillant");
            QCOMPARE(program.view.mainWindow().area().subWindowList().size(), 1);
        }
        program.window(program.desk.get<CircuitsOscillants>()).close();
        settle();
        QCOMPARE(QApplication::allWidgets().size(), before);
        QVERIFY(program.view.mainWindow().area().subWindowList().isEmpty());
    }

    void openingAllPanelsLeavesNoWidgetBehind()
    {
        const BoxCloser closer;
        Program program;
        const auto openAll = [&] {
            for (const MenuEntry* entry : panelEntries())
                program.pick(std::string{entry->control}.c_str());
            settle();
            return QApplication::allWidgets().size();
        };
        const auto before = openAll();
        for (int round = 0; round < 5; ++round)
            QCOMPARE(openAll(), before);
    }

    void labelsArePlainText()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] { panel.LblA.Caption = "<b>R</b> & C"; });
        const auto& label = program.widget<QLabel>(panel.LblA);
        QCOMPARE(label.text(), QStringLiteral("<b>R</b> & C"));
        QCOMPARE(label.textFormat(), Qt::PlainText);
        QVERIFY(label.buddy() == nullptr);
    }

    void theWindowMenuIsFrench()
    {
        Program program;
        const auto& panel = program.open<TestPanel>();
        const auto actions = program.window(panel).systemMenu()->actions();
        QCOMPARE(actions.size(), 1);
        QVERIFY(actions.at(0)->text().remove(QLatin1Char{'&'}).startsWith(QStringLiteral("Fermer")));
    }

    void darkColorsStayReadable()
    {
        const QPalette light = QApplication::palette();
        QPalette dark{QColor{45, 45, 45}};
        QApplication::setPalette(dark);
        {
            Program program;
            auto& panel = program.open<TestPanel>();
            const auto& result = program.widget(panel.TxtB);
            QVERIFY(result.palette().color(QPalette::Base).lightness() < 128); // pale on light palettes
            QCOMPARE(result.palette().color(QPalette::Text), QColor(Qt::white));
            const auto& label = program.widget(panel.LblA);
            QVERIFY(label.palette().color(QPalette::WindowText).lightness() > 200);
            program.store([&] { panel.OptX.ForeColor = 0x800000; }); // a dark blue
            const QColor option = program.widget(panel.OptX).palette().color(QPalette::WindowText);
            QVERIFY(option.lightness() > 80);
            QApplication::setPalette(light);
            QVERIFY(QTest::qWaitFor([&] {
                return program.widget(panel.OptX).palette().color(QPalette::WindowText) == QColor(0, 0, 0x80);
            }));
        }
        QApplication::setPalette(light);
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::WindowsTest>(argc, argv);
}

#include "WindowsTest.moc"

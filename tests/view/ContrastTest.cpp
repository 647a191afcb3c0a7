#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QToolButton>
#include <algorithm>

#include "Contrast.h"
#include "Desktop.h"
#include "Program.h"
#include "TestPanel.h"
#include "Walk.h"
#include "view/Colors.h"

namespace ondelis {

/// Every text can be read, on light windows and on dark ones.
class ContrastTest final : public QObject {
    Q_OBJECT

    static void addPalettes()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }

    static ScopedDesktop palette(bool dark) { return {QStringLiteral("DejaVu Sans"), 9, dark}; }

    static void report(const QStringList& faults)
    {
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char{'\n'})));
    }

    /// Gives a widget text of nearly the colour of its ground.
    static void spoil(QWidget& widget, QPalette::ColorRole text, QPalette::ColorRole ground)
    {
        QPalette palette = widget.palette();
        palette.setColor(text, palette.color(ground).darker(110));
        widget.setPalette(palette);
    }

private slots:
    void contrastIsThatOfTheGuidelines()
    {
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
        QVERIFY(qAbs(contrast(QColor{0x767676}, Qt::white) - 4.54) < 0.005);
        QVERIFY(qAbs(contrast(QColor{0x777777}, Qt::white) - 4.48) < 0.005);
        QVERIFY(qAbs(contrast(Qt::red, Qt::white) - 4.00) < 0.005);
    }

    void colorsChangeOnlyAsFarAsTheyMust()
    {
        QCOMPARE(readable(Qt::blue, Qt::white), QColor{Qt::blue});
        for (const QColor& ground : {QColor{0xC0FFFF}, QColor{0x353535}, QColor{0x808080}, QColor{0xEFEFEF}})
            for (const QColor& text : {QColor{0xFF80FF}, QColor{0xFF0000}, QColor{0x0000FF}, ground}) {
                const double before = contrast(text, ground);
                const double after = contrast(readable(text, ground), ground);
                QVERIFY(after >= 4.5);
                QVERIFY(before >= 4.5 ? after == before : after < 4.9);
            }
    }

    void theCheckFindsEachFault()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] { panel.LstR.ListIndex = 0; });
        spoil(program.widget(panel.LblA), QPalette::WindowText, QPalette::Window);
        spoil(program.widget(panel.TxtB), QPalette::Text, QPalette::Base);
        spoil(program.widget(panel.TxtC), QPalette::HighlightedText, QPalette::Highlight);
        spoil(program.widget(panel.LstU), QPalette::Text, QPalette::Base);
        spoil(program.widget(panel.LstR), QPalette::HighlightedText, QPalette::Highlight);
        spoil(program.widget(panel.OptX), QPalette::WindowText, QPalette::Window);
        spoil(program.widget(panel.BtnGo), QPalette::ButtonText, QPalette::Button);
        spoil(program.widget(panel.TxtM), QPalette::Text, QPalette::Base);
        spoil(program.widget(panel.Frame1), QPalette::WindowText, QPalette::Window);
        QStringList found;
        for (const QString& fault : contrastFaultsOf(program.window(panel)))
            found.append(fault.section(QLatin1Char{':'}, 0, 0).section(QLatin1Char{'.'}, 1));
        found.removeDuplicates();
        const QStringList expected{QStringLiteral("LblA"), QStringLiteral("TxtB"), QStringLiteral("TxtC"),
            QStringLiteral("LstU"), QStringLiteral("LstR"), QStringLiteral("OptX"), QStringLiteral("BtnGo"),
            QStringLiteral("TxtM"), QStringLiteral("Frame1")};
        QCOMPARE(found, expected);
    }

    void theCheckSeesWhatIsPaintedUnderAText()
    {
        Program program;
        const auto& panel = program.open<TestPanel>();
        QWidget under{&program.window(panel).form()};
        under.setGeometry(program.widget(panel.LblA).geometry());
        under.setAutoFillBackground(true);
        under.setPalette(QPalette{Qt::darkGray, Qt::darkGray});
        under.show();
        program.widget(panel.LblA).raise();
        QVERIFY(contrastFaultsOf(program.window(panel)).isEmpty());
        under.setPalette(QPalette{Qt::black, Qt::black});
        const QStringList faults = contrastFaultsOf(program.window(panel));
        QCOMPARE(faults.size(), 1);
        QVERIFY(faults.first().startsWith(QStringLiteral("TestPanel.LblA")));
    }

    void theCheckFindsAPoorTitleAndMenu()
    {
        const ScopedDesktop look = palette(false);
        QPalette poor = QApplication::palette();
        poor.setColor(QPalette::Text, poor.color(QPalette::Base));
        QApplication::setPalette(poor);
        Program program;
        QVERIFY(contrastFaultsOfMenus(*program.view.mainWindow().menuBar()).size() > 40);
        program.open<TestPanel>();
        program.pick("MenuThomson"); // two panels, one of which has no keyboard
        const QStringList faults = contrastFaultsOf(program.window(*program.desk.loadedPanels().front()))
            + contrastFaultsOf(program.window(*program.desk.loadedPanels().back()));
        QCOMPARE(faults.filter(QStringLiteral("(title)")).size() > 0, true);
    }

    void aPropertyKeepsAColorThatIsNotReadable()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] {
            panel.TxtB.BackColor = 0xFFFFC0;
            panel.TxtB.ForeColor = 0xFF80FF;
        });
        QCOMPARE(panel.TxtB.ForeColor.get(), 0xFF80FFU);
        const QPalette shown = program.widget(panel.TxtB).palette();
        QCOMPARE(shown.color(QPalette::Base), QColor(0xC0, 0xFF, 0xFF));
        QCOMPARE(shown.color(QPalette::Text), readable(QColor{0xFF, 0x80, 0xFF}, QColor{0xC0, 0xFF, 0xFF}));
    }

    void colorsAreTurnedOnDarkPalettes()
    {
        const ScopedDesktop look = palette(true);
        const QPalette system = QApplication::palette();
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] {
            panel.TxtA.BackColor = 0xFFFFFF;
            panel.TxtB.BackColor = 0xFFFFC0;
            panel.TxtC.ForeColor = 0;
        });
        const auto color = [&](const Control& control, QPalette::ColorRole role) {
            return program.widget(control).palette().color(role);
        };
        QCOMPARE(color(panel.TxtA, QPalette::Base), system.color(QPalette::Base));
        QCOMPARE(color(panel.TxtC, QPalette::Text), QColor{Qt::white});
        const QColor result = color(panel.TxtB, QPalette::Base);
        QVERIFY(result.lightness() < 128);
        QCOMPARE(result.hue(), QColor(0xC0, 0xFF, 0xFF).hue());
        QCOMPARE(panel.TxtB.BackColor.get(), 0xFFFFC0U);
    }

    void aHueIsKeptOnDarkPalettes()
    {
        const ScopedDesktop look = palette(true);
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] {
            panel.TxtA.BackColor = 0xFFFFC0;
            panel.TxtB.BackColor = 0xFFFFC0;
            panel.TxtB.ForeColor = 0xFF0000;
        });
        QCOMPARE(program.widget(panel.TxtA).palette().color(QPalette::Text), QColor{Qt::white});
        const QColor blue = program.widget(panel.TxtB).palette().color(QPalette::Text);
        QCOMPARE(blue.hue(), QColor{Qt::blue}.hue());
        QVERIFY(blue.blue() - blue.red() > 80);
    }

    void allColoredFieldsHaveWhiteTextOnDarkPalettes()
    {
        const ScopedDesktop look = palette(true);
        Program program;
        auto& panel = program.open<TestPanel>();
        for (const Color ground : {0xFFFFC0U, 0xFFFF80U, 0xFFFF00U, 0xC0FFC0U, 0xC0E0FFU, 0xE0E0E0U}) {
            program.store([&] { panel.TxtB.BackColor = ground; });
            const QPalette shown = program.widget(panel.TxtB).palette();
            QCOMPARE(shown.color(QPalette::Text), QColor{Qt::white});
            QVERIFY(contrast(Qt::white, shown.color(QPalette::Base)) >= 4.5);
        }
    }

    void theCloseBoxIsSeen_data() { addPalettes(); }

    void theCloseBoxIsSeen()
    {
        QFETCH(bool, dark);
        const ScopedDesktop look = palette(dark);
        Program program;
        program.pick("MenuThomson"); // two panels, one of which has no keyboard
        for (const FeuilleCalcul* panel : program.desk.loadedPanels())
            report(contrastFaultsOf(program.window(*panel)));
    }

    void theSliderIsSeen_data() { addPalettes(); }

    void theSliderIsSeen()
    {
        QFETCH(bool, dark);
        const ScopedDesktop look = palette(dark);
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& bar = program.widget<QScrollBar>(panel.HscrA);
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = Qt::Horizontal;
        option.state |= QStyle::State_Horizontal;
        option.maximum = bar.maximum();
        option.sliderPosition = bar.sliderPosition();
        option.sliderValue = bar.value();
        option.pageStep = bar.pageStep();
        const QRect slider
            = bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar);
        QVERIFY(slider.left() > bar.height() + 8 && slider.right() < bar.width() - bar.height() - 8);
        const QImage image = bar.grab().toImage();
        const QColor ground = image.pixelColor(slider.left() - 8, slider.center().y());
        QVERIFY(contrast(image.pixelColor(slider.left(), slider.center().y()), ground) >= lineContrast);
        QVERIFY(contrast(image.pixelColor(slider.right(), slider.center().y()), ground) >= lineContrast);
    }

    void theMarkOfMenusWithoutRoomIsSeen_data() { addPalettes(); }

    void theMarkOfMenusWithoutRoomIsSeen()
    {
        QFETCH(bool, dark);
        const ScopedDesktop look = palette(dark);
        Program program;
        QMenuBar& bar = *program.view.mainWindow().menuBar();
        program.view.mainWindow().resize(500, 400);
        auto* const mark = bar.findChild<QToolButton*>();
        QVERIFY(mark != nullptr && QTest::qWaitFor([&] { return mark->isVisible(); }));
        const QImage image = mark->grab().toImage();
        double most = 0;
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                most = std::max(most, contrast(image.pixelColor(x, y), image.pixelColor(1, 1)));
        QVERIFY(most >= lineContrast);
    }

    void menus_data() { addPalettes(); }

    void menus()
    {
        QFETCH(bool, dark);
        const ScopedDesktop look = palette(dark);
        const Program program;
        report(contrastFaultsOfMenus(*program.view.mainWindow().menuBar()));
    }

    void boxes_data() { addPalettes(); }

    void boxes()
    {
        QFETCH(bool, dark);
        const ScopedDesktop look = palette(dark);
        Program program;
        Reader reader{{QStringLiteral("Oui")}};
        QStringList faults;
        bool looked = false;
        reader.meanwhile = [&] {
            QWidget& box = *QApplication::activeModalWidget();
            looked = box.findChildren<QLabel*>().size() > 0 && box.findChildren<QPushButton*>().size() == 2;
            faults = contrastFaultsOfBox(box);
        };
        auto& panel = program.open<TestPanel>();
        panel.onGo = [&] { panel.MsgBox("Continuer ?", 4, "Question"); };
        program.store([&] { panel.BtnGo.Value = true; });
        QVERIFY(looked);
        report(faults);
    }

    void panels_data() { addPalettes(); }

    void panels()
    {
        QFETCH(bool, dark);
        const ScopedDesktop look = palette(dark);
        QStringList faults;
        Walk walk;
        for (const MenuEntry* entry : panelEntries()) {
            walk.open(*entry);
            walk.choose([&](PanelWindow& window) { faults += contrastFaultsOf(window); });
        }
        faults.removeDuplicates();
        report(faults);
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::ContrastTest>(argc, argv);
}

#include "ContrastTest.moc"

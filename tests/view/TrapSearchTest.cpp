#include <QStringList>

#include "Program.h"
#include "panels/antennes/AntennesTrappesCoaxiales.h"
#include "panels/antennes/GammaMatch.h"

namespace ondelis {

/// What a person sees and does while the search for the turns of a coaxial trap runs.
class TrapSearchTest final : public QObject {
    Q_OBJECT

    using Traps = AntennesTrappesCoaxiales;

    /// Acts once, in the middle of a search: the timer fires in each of its rounds.
    class Meanwhile {
    public:
        explicit Meanwhile(std::function<void()> action, int round = 100)
        {
            timer_.callOnTimeout([this, action = std::move(action), round] {
                if (++fired_ != round)
                    return;
                timer_.stop();
                action();
                done = true;
            });
            timer_.start(0);
        }
        bool done = false;

    private:
        QTimer timer_;
        int fired_ = 0;
    };

    /// Notes the text of a field each time that it is painted.
    class PaintedTexts final : public QObject {
    public:
        explicit PaintedTexts(QLineEdit& field) : field_{field} { field.installEventFilter(this); }
        QStringList seen;

        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            if (event->type() == QEvent::Paint && (seen.isEmpty() || seen.last() != field_.text()))
                seen.append(field_.text());
            return false;
        }

    private:
        QLineEdit& field_;
    };

    static Traps& openTraps(Program& program)
    {
        program.pick("mnuTrappesCoaxiales");
        return program.desk.get<Traps>();
    }

    /// A person's new value of a field.
    static void enter(const Program& program, const Control& field, const char* text)
    {
        auto& edit = program.widget<QLineEdit>(field);
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromUtf8(text));
    }

    static void clickCalculer(const Program& program, const Traps& panel)
    {
        QTest::mouseClick(&program.widget(panel.BtnCalculer), Qt::LeftButton);
    }

private slots:
    void bothReactancesAreSeenToConverge()
    {
        Program program;
        const Traps& panel = openTraps(program);
        enter(program, panel.TxtFrequence, "3.6");
        PaintedTexts inductive{program.widget<QLineEdit>(panel.TxtReactanceInductive)};
        PaintedTexts capacitive{program.widget<QLineEdit>(panel.TxtReactanceCapacitive)};
        clickCalculer(program, panel);
        // Nearly each of the 662 rounds.
        QVERIFY(inductive.seen.size() > 600);
        QVERIFY(capacitive.seen.size() > 600);
        QCOMPARE(program.widget<QLineEdit>(panel.TxtReactanceInductive).text(), QStringLiteral("193.714642463106"));
        QCOMPARE(program.widget<QLineEdit>(panel.TxtReactanceCapacitive).text(), QStringLiteral("193.714642472944"));
        QCOMPARE(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("13.51"));
    }

    void aFieldTakesKeysDuringTheSearch()
    {
        Program program;
        const Traps& panel = openTraps(program);
        const Meanwhile typing{[&] { enter(program, panel.TxtFrequence, "14.1"); }};
        clickCalculer(program, panel);
        QVERIFY(typing.done);
        QCOMPARE(program.widget<QLineEdit>(panel.TxtFrequence).text(), QStringLiteral("14.1"));
        QCOMPARE(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("7.75"));
        clickCalculer(program, panel);
        QCOMPARE(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("4.54"));
    }

    void aSecondClickRunsASearchInsideTheFirst()
    {
        Program program;
        const Traps& panel = openTraps(program);
        enter(program, panel.TxtFrequence, "3.6");
        QString inside;
        const Meanwhile clicking{[&] {
            enter(program, panel.TxtFrequence, "14.1");
            clickCalculer(program, panel);
            inside = program.widget<QLineEdit>(panel.TxtNombreTours).text();
        }};
        clickCalculer(program, panel);
        QVERIFY(clicking.done);
        QCOMPARE(inside, QStringLiteral("4.54"));
        QCOMPARE(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("13.51"));
    }

    void closingThePanelLeavesTheSearch()
    {
        Program program;
        const Traps& panel = openTraps(program);
        const Meanwhile closing{[&] { program.window(panel).close(); }};
        clickCalculer(program, panel);
        QVERIFY(closing.done);
        QVERIFY(!panel.loaded());
        QVERIFY(program.view.find(panel) == nullptr);
        QVERIFY(!program.desk.ended());
        openTraps(program);
        QVERIFY(program.window(panel).isVisible());
        QCOMPARE(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("7.75"));
    }

    void closingTheProgramLeavesTheSearch()
    {
        Program program;
        const Traps& panel = openTraps(program);
        const Meanwhile closing{[&] { program.view.mainWindow().close(); }};
        QTimer::singleShot(0, &program.view.mainWindow(), [&] { clickCalculer(program, panel); });
        QCOMPARE(program.view.run(), 0);
        QVERIFY(closing.done);
        QVERIFY(program.desk.ended());
    }

    void closingTheProgramWhileThePanelOpensLeavesTheSearch()
    {
        Program program;
        const Meanwhile closing{[&] { program.view.mainWindow().close(); }};
        QTimer::singleShot(0, &program.view.mainWindow(), [&] { openTraps(program); });
        QCOMPARE(program.view.run(), 0);
        QVERIFY(closing.done);
        QVERIFY(!program.desk.get<Traps>().visible());
    }

    void aFaultInsideTheSearchEndsTheProgram()
    {
        Program program;
        const Traps& panel = openTraps(program);
        const Meanwhile faulting{[&] {
            enter(program, panel.TxtFrequence, "0");
            clickCalculer(program, panel);
        }};
        Reader reader{{"OK"}};
        QTimer::singleShot(0, &program.view.mainWindow(), [&] { clickCalculer(program, panel); });
        QCOMPARE(program.view.run(), 1);
        QCOMPARE(reader.seen.size(), std::size_t{1});
        QVERIFY(reader.seen.at(0).text.contains(QStringLiteral("Division par zéro")));
    }

    void anotherPanelOpensInTheMiddleOfTheSearch_data()
    {
        QTest::addColumn<bool>("whileItOpens");
        QTest::newRow("while the panel opens") << true;
        QTest::newRow("after a click") << false;
    }

    void anotherPanelOpensInTheMiddleOfTheSearch()
    {
        QFETCH(bool, whileItOpens);
        Program program;
        if (!whileItOpens)
            openTraps(program);
        const Traps& panel = program.desk.get<Traps>();
        const Meanwhile picking{[&] { program.pick("mnuGammaMatch"); }};
        if (whileItOpens)
            openTraps(program);
        else
            clickCalculer(program, panel);
        QVERIFY(picking.done);
        QVERIFY(!panel.loaded());
        QVERIFY(program.view.find(panel) == nullptr);
        QVERIFY(program.window(program.desk.get<GammaMatch>()).isVisible());
        QVERIFY(!program.desk.ended());
    }

    void thePanelIsRestartedInTheMiddleOfTheSearch()
    {
        Program program;
        const Traps& panel = openTraps(program);
        enter(program, panel.TxtFrequence, "3.6");
        const Meanwhile picking{[&] { openTraps(program); }};
        clickCalculer(program, panel);
        QVERIFY(picking.done);
        QVERIFY(program.window(panel).isVisible());
        QCOMPARE(program.widget<QLineEdit>(panel.TxtFrequence).text(), QStringLiteral("7.1"));
        QCOMPARE(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("7.75"));
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::TrapSearchTest>(argc, argv);
}

#include "TrapSearchTest.moc"

#include <QFontInfo>
#include <QMenuBar>
#include <set>

#include "CrookedPanel.h"
#include "Desktop.h"
#include "FormCheck.h"
#include "Program.h"
#include "Walk.h"

namespace ondelis {

/// Every panel of the menu, as it opens and in the states that its options and lists lead to: no text is cut, nothing
/// overlaps, nothing stands beyond its panel, whatever font the person's system has. The resolution is that of the
/// environment (QT_FONT_DPI).
class FormsTest final : public QObject {
    Q_OBJECT

private slots:
    void theCheckFindsEachFault()
    {
        Program program;
        const auto& panel = program.open<CrookedPanel>();
        QStringList found;
        for (const FormFault& fault : faultsOf(program.window(panel)))
            found.append(fault.place.section(QLatin1Char{'.'}, -1) + ": " + fault.words);
        const QStringList expected{
            QStringLiteral("CrookedPanel: the text \"%1\" is cut").arg(toQString(panel.design().Caption)),
            QStringLiteral("CutLabel: the text \"Fréquence de résonance\" is cut"),
            QStringLiteral("CutLines: the text \"Une longue remarque sur trois lignes de texte\" is cut"),
            QStringLiteral("CutResult: the text \" 123.456789 micro\" is cut"),
            QStringLiteral("CutDefault: the text \"0.000318309886183791\" is cut"),
            QStringLiteral("CutArea: the text \"Une longue remarque sur trois lignes de texte\" is cut"),
            QStringLiteral("LowField: it is too low for any text"),
            QStringLiteral("CutRow: the text \"Polyéthylène\" is cut"),
            QStringLiteral("ShortList: the list does not show all of its few rows"),
            QStringLiteral("PartList: the list does not show all of its few rows"),
            QStringLiteral("PartList: the list cuts a row"),
            QStringLiteral("BlankList: the list is blank below its last row"),
            QStringLiteral("HighOption: the option is not as high as all others"),
            QStringLiteral("LowTitle: the bold caption is lower than a field"),
            QStringLiteral("CutOption: the text \"Rho optimum\" is cut"),
            QStringLiteral("CutButton: the text \"Calculer\" is cut"),
            QStringLiteral("NamelessOption: it has no name for a screen reader"),
            QStringLiteral("Beyond: it reaches beyond its panel or frame"),
            QStringLiteral("Missing: there is no drawing aucun"),
            QStringLiteral("Stretched: the drawing is not shown in its size"),
            QStringLiteral("Small: its text is not of the size of all others"),
            QStringLiteral("CutFrame: the text \"Caractéristiques\" is cut"),
            QStringLiteral("OnTitle: it covers the title of its frame"),
            QStringLiteral("Under: it overlaps Over"),
            QStringLiteral("Frame2: it overlaps OnFrame"),
        };
        for (qsizetype line = 0; line < std::max(found.size(), expected.size()); ++line)
            QCOMPARE(found.value(line), expected.value(line));
    }

    void looks_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<int>("points");
        for (const QString& family :
            {QStringLiteral("DejaVu Sans"), QStringLiteral("Cantarell"), QStringLiteral("Noto Sans")})
            for (const int points : {8, 12})
                QTest::addRow("%s %d", qPrintable(family), points) << family << points;
    }

    void looks()
    {
        QFETCH(QString, family);
        QFETCH(int, points);
        const ScopedDesktop look{family, points, false};
        QCOMPARE(QFontInfo{QApplication::font()}.family(), family);
        std::set<QString> faults;
        Walk walk;
        for (const MenuEntry* entry : panelEntries()) {
            walk.open(*entry);
            walk.choose([&](PanelWindow& window) {
                QCOMPARE(QFontInfo{window.form().font()}.family(), family);
                for (const FormFault& fault : faultsOf(window))
                    faults.insert(fault.line());
            });
        }
        const QStringList lines{faults.cbegin(), faults.cend()};
        QVERIFY2(lines.isEmpty(), qPrintable(lines.join(QLatin1Char{'\n'})));
    }

    void theMenuBarShowsAllHeadings_data() { looks_data(); }

    void theMenuBarShowsAllHeadings()
    {
        QFETCH(QString, family);
        QFETCH(int, points);
        const ScopedDesktop look{family, points, false};
        const Program program;
        QMenuBar& bar = *program.view.mainWindow().menuBar();
        for (QAction* const heading : bar.actions()) {
            const QRect place = bar.actionGeometry(heading);
            QVERIFY(bar.rect().contains(place));
            QVERIFY(place.width() >= bar.fontMetrics().horizontalAdvance(heading->text()));
        }
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::FormsTest>(argc, argv);
}

#include "FormsTest.moc"

#include <QFontInfo>
#include <QMenuBar>
#include <set>

#include "CrookedPanel.h"
#include "Desktop.h"
#include "FormCheck.h"
#include "Program.h"
#include "Walk.h"

namespace ondelis {
namespace {

struct TextFont {
    const char* family;
    int points;
};

void PrintTo(const TextFont& font, std::ostream* out)
{
    *out << font.family << ' ' << font.points;
}

/// Every panel of the menu, as it opens and in the states that its options and lists lead to: no text is cut, nothing
/// overlaps, nothing stands beyond its panel, whatever font the person's system has. The resolution is that of the
/// environment (QT_FONT_DPI).
class FormsTest : public testing::TestWithParam<TextFont> {
protected:
    static QString family() { return QString::fromUtf8(GetParam().family); }
};

TEST_F(FormsTest, theCheckFindsEachFault)
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
        EXPECT_EQ(found.value(line), expected.value(line));
}

TEST_P(FormsTest, looks)
{
    const ScopedDesktop look{family(), GetParam().points, false};
    EXPECT_EQ(QFontInfo{QApplication::font()}.family(), family());
    std::set<QString> faults;
    Walk walk;
    for (const MenuEntry* entry : panelEntries()) {
        walk.open(*entry);
        walk.choose([&](PanelWindow& window) {
            EXPECT_EQ(QFontInfo{window.form().font()}.family(), family());
            for (const FormFault& fault : faultsOf(window))
                faults.insert(fault.line());
        });
    }
    const QStringList lines{faults.cbegin(), faults.cend()};
    EXPECT_TRUE(lines.isEmpty()) << qPrintable(lines.join(QLatin1Char{'\n'}));
}

TEST_P(FormsTest, theMenuBarShowsAllHeadings)
{
    const ScopedDesktop look{family(), GetParam().points, false};
    const Program program;
    QMenuBar& bar = *program.view.mainWindow().menuBar();
    for (QAction* const heading : bar.actions()) {
        const QRect place = bar.actionGeometry(heading);
        EXPECT_TRUE(bar.rect().contains(place));
        EXPECT_GE(place.width(), bar.fontMetrics().horizontalAdvance(heading->text()));
    }
}

INSTANTIATE_TEST_SUITE_P(Fonts, FormsTest,
    testing::Values(TextFont{"DejaVu Sans", 8}, TextFont{"DejaVu Sans", 12}, TextFont{"Cantarell", 8},
        TextFont{"Cantarell", 12}, TextFont{"Noto Sans", 8}, TextFont{"Noto Sans", 12}),
    nameOfRow<TextFont>);

} // namespace
} // namespace ondelis

#include <QTemporaryDir>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "FormCheck.h"
#include "Gallery.h"
#include "Support.h"
#include "Words.h"
#include "forms/Controls.h"
#include "view/ControlWidget.h"

namespace ondelis::galerie {
namespace {

/// The panels that have an example.
std::vector<std::string> allExamples()
{
    std::vector<std::string> panels;
    for (const auto& file : std::filesystem::directory_iterator{EXAMPLES})
        panels.push_back(file.path().stem());
    std::ranges::sort(panels);
    return panels;
}

/// What the gallery says of examples that are right or wrong.
class ExamplesTest : public testing::TestWithParam<std::string> {
protected:
    QTemporaryDir scratch;

    /// Draws the panel with that example; returns what was wrong, from the file's name on.
    std::string draw(const std::string& panel, const std::string& example) const
    {
        const std::filesystem::path folder = scratch.path().toStdString();
        std::ofstream{folder / (panel + ".txt")} << example;
        const auto subjects = allSubjects();
        try {
            Gallery{folder, folder, looks.front()}.draw(*std::ranges::find(subjects, panel, &Subject::panel));
            return {};
        } catch (const Refused& refused) {
            return std::string{refused.what()}.substr(folder.string().size() + 1);
        }
    }

    [[nodiscard]] QImage picture(const char* name) const { return QImage{scratch.filePath(QString::fromUtf8(name))}; }

    /// The panel of the example.
    static Subject subject()
    {
        const auto subjects = allSubjects();
        const auto found = std::ranges::find(subjects, GetParam(), &Subject::panel);
        if (found == subjects.end())
            throw std::invalid_argument{"no panel has this name: " + GetParam()};
        return *found;
    }

    /// The lines of diagrams that reach beyond their frames.
    static QStringList cutLines(const Desk& desk)
    {
        QStringList names;
        for (const FeuilleCalcul* panel : desk.loadedPanels())
            for (const Control* control : panel->controls()) {
                const auto* const line = dynamic_cast<const Line*>(control);
                if (line == nullptr || line->design().within == nullptr || !line->Visible)
                    continue;
                const auto twips = [](const Property<Single>& place) { return Double{place}.value(); };
                const Box& room = line->design().within->at();
                const QRectF inside{room.Left, room.Top, room.Width, room.Height};
                if (!inside.contains(twips(line->X1), twips(line->Y1))
                    || !inside.contains(twips(line->X2), twips(line->Y2)))
                    names.append(QString::fromStdString(std::string{control->name()}));
            }
        return names;
    }
};

TEST_F(ExamplesTest, aPictureShowsWhatHasBeenTyped)
{
    const std::string fault = draw("SectionDiametre",
        "# a wire\n"
        "picture vide\n\n"
        "replace SectionDiametre.TxtS \"2.5\"   # mm²\n"
        "picture exemple\n");
    EXPECT_EQ(fault, "");
    EXPECT_FALSE(picture("SectionDiametre-exemple-96.png").isNull());
    EXPECT_EQ(picture("SectionDiametre-vide-96.png"), picture("SectionDiametre-96.png"));
    EXPECT_NE(picture("SectionDiametre-exemple-96.png"), picture("SectionDiametre-96.png"));
}

TEST_P(ExamplesTest, everyExampleOfThePanelsPlays)
{
    try {
        Gallery{EXAMPLES, scratch.path().toStdString(), looks.front()}.draw(subject());
    } catch (const Refused& refused) {
        FAIL() << refused.what();
    }
}

TEST_P(ExamplesTest, noExampleCutsAResult)
{
    const Subject shown = subject();
    Player player;
    player.play("menu " + shown.entry);
    const Desk& desk = player.frame().desk();
    Typed typed;
    QStringList faults;
    std::ifstream in{std::filesystem::path{EXAMPLES} / (shown.panel + ".txt")};
    for (std::string line; std::getline(in, line);) {
        pilote::Words words{line};
        if (words.atEnd())
            continue;
        if (words.next() != "picture") {
            player.play(line);
            if (const auto* const box = dynamic_cast<const TextBox*>(desk.focused()))
                typed[box] = toQString(box->Text.get());
            continue;
        }
        for (const FeuilleCalcul* panel : desk.loadedPanels())
            if (const PanelWindow* const window = player.view().find(*panel))
                for (const FormFault& fault : faultsOf(*window, typed))
                    faults.append(QString::fromStdString(line) + QStringLiteral(": ") + fault.line());
    }
    EXPECT_TRUE(faults.isEmpty()) << qPrintable(faults.join(QLatin1Char{'\n'}));
}

TEST_P(ExamplesTest, everyDiagramStaysInside)
{
    const Subject shown = subject();
    Player player;
    player.play("menu " + shown.entry);
    QStringList beyond = cutLines(player.frame().desk());
    std::ifstream in{std::filesystem::path{EXAMPLES} / (shown.panel + ".txt")};
    for (std::string line; std::getline(in, line);) {
        pilote::Words words{line};
        if (words.atEnd())
            continue;
        if (words.next() == "picture")
            for (const QString& name : cutLines(player.frame().desk()))
                beyond.append(QString::fromStdString(line) + QStringLiteral(": ") + name);
        else
            player.play(line);
    }
    EXPECT_EQ(beyond.join(QLatin1Char{'\n'}), QString{});
}

TEST_F(ExamplesTest, whatIsNoCommandIsNamed)
{
    EXPECT_EQ(draw("SectionDiametre", "# a wire\nwrite SectionDiametre.TxtS 2\n"),
        "SectionDiametre.txt:2: write SectionDiametre.TxtS 2: no such command: write");
    EXPECT_EQ(draw("SectionDiametre", "picture\n"), "SectionDiametre.txt:1: picture: a word is missing");
    EXPECT_EQ(draw("SectionDiametre", "type SectionDiametre.TxtS 2 3\n"),
        "SectionDiametre.txt:1: type SectionDiametre.TxtS 2 3: a word too many");
}

TEST_F(ExamplesTest, whatAPersonCannotDoIsNamed)
{
    EXPECT_EQ(draw("SectionDiametre", "picture vide\ntype SectionDiametre.TxtD 2\n"),
        "SectionDiametre.txt:2: type SectionDiametre.TxtD 2: the field is locked");
    EXPECT_EQ(draw("SectionDiametre", "close SectionDiametre\npicture rien\n"),
        "SectionDiametre.txt:2: picture rien: the window is not on screen: SectionDiametre");
}

TEST_F(ExamplesTest, aPictureMayShowAnotherWindow)
{
    EXPECT_EQ(draw("FormuleDeThomson", "picture deux MDIOndelis\npicture compagnon CalculNombreSpires\n"), "");
    EXPECT_GT(picture("FormuleDeThomson-deux-96.png").width(), picture("FormuleDeThomson-96.png").width());
    EXPECT_FALSE(picture("FormuleDeThomson-compagnon-96.png").isNull());
}

TEST_F(ExamplesTest, aPictureIsTakenOnce)
{
    EXPECT_EQ(draw("SectionDiametre", "picture exemple\npicture exemple\n"),
        "SectionDiametre.txt:2: picture exemple: a picture of this name has been taken");
}

TEST_F(ExamplesTest, aFaultIsNamed)
{
    const std::string fault = draw("SectionDiametre", "replace SectionDiametre.TxtS \"-1\"\n");
    EXPECT_TRUE(fault.starts_with("SectionDiametre.txt:1: replace SectionDiametre.TxtS \"-1\": the program has ended: "
                                  "Erreur 5 : "))
        << fault;
}

INSTANTIATE_TEST_SUITE_P(Panels, ExamplesTest, testing::ValuesIn(allExamples()), nameOfRow<std::string>);

} // namespace
} // namespace ondelis::galerie

#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <fstream>

#include "FormCheck.h"
#include "Gallery.h"
#include "Words.h"
#include "forms/Controls.h"
#include "view/Application.h"
#include "view/ControlWidget.h"

namespace ondelis::galerie {

/// What the gallery says of examples that are right or wrong.
class ExamplesTest final : public QObject {
    Q_OBJECT

    QTemporaryDir scratch_;

    /// Draws the panel with that example; returns what was wrong, from the file's name on.
    std::string draw(const std::string& panel, const std::string& example) const
    {
        const std::filesystem::path folder = scratch_.path().toStdString();
        std::ofstream{folder / (panel + ".txt")} << example;
        const auto subjects = allSubjects();
        try {
            Gallery{folder, folder, looks.front()}.draw(*std::ranges::find(subjects, panel, &Subject::panel));
            return {};
        } catch (const Refused& refused) {
            return std::string{refused.what()}.substr(folder.string().size() + 1);
        }
    }

    [[nodiscard]] QImage picture(const char* name) const { return QImage{scratch_.filePath(QString::fromUtf8(name))}; }

    static void addExamples()
    {
        QTest::addColumn<QString>("panel");
        for (const auto& file : std::filesystem::directory_iterator{EXAMPLES}) {
            const std::string panel = file.path().stem();
            QTest::newRow(panel.c_str()) << QString::fromStdString(panel);
        }
    }

    /// The subject of that row.
    static Subject subject()
    {
        QFETCH(const QString, panel);
        const auto subjects = allSubjects();
        const auto found = std::ranges::find(subjects, panel.toStdString(), &Subject::panel);
        if (found == subjects.end())
            qFatal("no panel has this name: %s", qPrintable(panel));
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

private slots:
    void aPictureShowsWhatHasBeenTyped()
    {
        const std::string fault = draw("SectionDiametre",
            "# a wire\n"
            "picture vide\n\n"
            "replace SectionDiametre.TxtS \"2.5\"   # mm²\n"
            "picture exemple\n");
        QCOMPARE(fault, std::string{});
        QVERIFY(!picture("SectionDiametre-exemple-96.png").isNull());
        QCOMPARE(picture("SectionDiametre-vide-96.png"), picture("SectionDiametre-96.png"));
        QVERIFY(picture("SectionDiametre-exemple-96.png") != picture("SectionDiametre-96.png"));
    }

    void everyExampleOfThePanelsPlays_data() { addExamples(); }

    void everyExampleOfThePanelsPlays()
    {
        try {
            Gallery{EXAMPLES, scratch_.path().toStdString(), looks.front()}.draw(subject());
        } catch (const Refused& refused) {
            QFAIL(refused.what());
        }
    }

    void noExampleCutsAResult_data() { addExamples(); }

    void noExampleCutsAResult()
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
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char{'\n'})));
    }

    void everyDiagramStaysInside_data() { addExamples(); }

    void everyDiagramStaysInside()
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
        QCOMPARE(beyond.join(QLatin1Char{'\n'}), QString{});
    }

    void whatIsNoCommandIsNamed()
    {
        QCOMPARE(draw("SectionDiametre", "# a wire\nwrite SectionDiametre.TxtS 2\n"),
            std::string{"SectionDiametre.txt:2: write SectionDiametre.TxtS 2: no such command: write"});
        QCOMPARE(
            draw("SectionDiametre", "picture\n"), std::string{"SectionDiametre.txt:1: picture: a word is missing"});
        QCOMPARE(draw("SectionDiametre", "type SectionDiametre.TxtS 2 3\n"),
            std::string{"SectionDiametre.txt:1: type SectionDiametre.TxtS 2 3: a word too many"});
    }

    void whatAPersonCannotDoIsNamed()
    {
        QCOMPARE(draw("SectionDiametre", "picture vide\ntype SectionDiametre.TxtD 2\n"),
            std::string{"SectionDiametre.txt:2: type SectionDiametre.TxtD 2: the field is locked"});
        QCOMPARE(draw("SectionDiametre", "close SectionDiametre\npicture rien\n"),
            std::string{"SectionDiametre.txt:2: picture rien: the window is not on screen: SectionDiametre"});
    }

    void aPictureMayShowAnotherWindow()
    {
        QCOMPARE(
            draw("FormuleDeThomson", "picture deux MDIOndelis\npicture compagnon CalculNombreSpires\n"), std::string{});
        QVERIFY(picture("FormuleDeThomson-deux-96.png").width() > picture("FormuleDeThomson-96.png").width());
        QVERIFY(!picture("FormuleDeThomson-compagnon-96.png").isNull());
    }

    void aPictureIsTakenOnce()
    {
        QCOMPARE(draw("SectionDiametre", "picture exemple\npicture exemple\n"),
            std::string{"SectionDiametre.txt:2: picture exemple: a picture of this name has been taken"});
    }

    void aFaultIsNamed()
    {
        const std::string fault = draw("SectionDiametre", "replace SectionDiametre.TxtS \"-1\"\n");
        QVERIFY2(fault.starts_with("SectionDiametre.txt:1: replace SectionDiametre.TxtS \"-1\": the program has ended: "
                                   "Erreur 5 : "),
            fault.c_str());
    }
};

} // namespace ondelis::galerie

int main(int argc, char** argv)
{
    qputenv("QT_FONT_DPI", "96");
    const ondelis::Application application{argc, argv};
    ondelis::galerie::ExamplesTest tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "ExamplesTest.moc"

#include <QFontInfo>

#include "CrookedPanel.h"
#include "FormCheck.h"
#include "Program.h"
#include "forms/Controls.h"
#include "shell/Menu.h"

namespace ondelis {

/// Every panel of the menu, as it opens and in the states that its options and lists lead to: no text is cut, nothing
/// overlaps, nothing stands beyond its panel. The resolution is that of the environment (QT_FONT_DPI).
class FormsTest final : public QObject {
    Q_OBJECT

    /// One click of a person on the panel: an option, or a row of a list.
    struct Choice {
        std::string panel;
        std::string control;
        int row;
    };

    static FeuilleCalcul* findPanel(const Program& program, const std::string& name)
    {
        for (FeuilleCalcul* panel : program.desk.loadedPanels())
            if (panel->design().name == name)
                return panel;
        return nullptr;
    }

    static std::vector<Choice> choicesOn(const Program& program)
    {
        constexpr int manyRows = 12; // of a long list the first ones stand for all
        std::vector<Choice> choices;
        for (const FeuilleCalcul* panel : program.desk.loadedPanels())
            for (Control* control : panel->controls()) {
                if (dynamic_cast<OptionButton*>(control) != nullptr)
                    choices.push_back({panel->design().name, control->name(), 0});
                if (const auto* const list = dynamic_cast<ListBox*>(control))
                    for (int row = 0; row < std::min(manyRows, list->ListCount().value()); ++row)
                        choices.push_back({panel->design().name, control->name(), row});
            }
        return choices;
    }

    static void choose(Program& program, const Choice& choice)
    {
        FeuilleCalcul* const panel = findPanel(program, choice.panel);
        Control* const control = panel == nullptr ? nullptr : panel->find(choice.control);
        program.view.act([&](User& user) {
            if (auto* const option = dynamic_cast<OptionButton*>(control))
                user.click(*option);
            else if (auto* const list = dynamic_cast<ListBox*>(control))
                user.choose(*list, choice.row);
        });
    }

    static QStringList faultsOn(const Program& program)
    {
        QStringList faults;
        for (const FeuilleCalcul* panel : program.desk.loadedPanels())
            if (const PanelWindow* const window = program.view.find(*panel))
                faults += faultsOf(*window);
        return faults;
    }

    static std::unique_ptr<Program> open(const QString& entry)
    {
        auto program = std::make_unique<Program>();
        program->pick(entry.toUtf8().constData());
        return program;
    }

private slots:
    void theCheckFindsEachFault()
    {
        Program program;
        const auto& panel = program.open<CrookedPanel>();
        QStringList found = faultsOf(program.window(panel));
        for (QString& fault : found)
            fault.remove(QStringLiteral("CrookedPanel."));
        const QStringList expected{
            QStringLiteral("CutLabel: the text \"Fréquence de résonance\" is cut"),
            QStringLiteral("CutLines: the text \"Une longue remarque sur trois lignes de texte\" is cut"),
            QStringLiteral("CutResult: the text \" 123.456789 micro\" is cut"),
            QStringLiteral("LowField: the field is too low for its text"),
            QStringLiteral("CutRow: the text \"Polyéthylène\" is cut"),
            QStringLiteral("ShortList: the list does not show all of its few rows"),
            QStringLiteral("CutOption: the text \"Rho optimum\" is cut"),
            QStringLiteral("CutButton: the text \"Calculer\" is cut"),
            QStringLiteral("NamelessOption: it has no name for a screen reader"),
            QStringLiteral("Beyond: it reaches beyond its panel or frame"),
            QStringLiteral("Missing: there is no drawing aucun"),
            QStringLiteral("Under: it overlaps Over"),
        };
        QCOMPARE(found, expected);
    }

    void initTestCase() { QCOMPARE(QFontInfo{QApplication::font()}.family(), QStringLiteral("DejaVu Sans")); }

    void panels_data()
    {
        QTest::addColumn<QString>("entry");
        for (const Menu& menu : menuTree())
            for (const MenuEntry& entry : menu.entries)
                if (!entry.steps.empty() && entry.control != "MenuQuitter")
                    QTest::newRow(toQString(entry.control).toUtf8().constData()) << toQString(entry.control);
    }

    void panels()
    {
        QFETCH(QString, entry);
        const Patient patient;
        std::unique_ptr<Program> program = open(entry);
        QStringList faults = faultsOn(*program);
        for (const Choice& choice : choicesOn(*program)) {
            choose(*program, choice);
            if (program->desk.ended()) { // a fault that the panel has: go on with a fresh one
                program.reset();
                patient.recover();
                program = open(entry);
                continue;
            }
            for (const QString& fault : faultsOn(*program))
                if (!faults.contains(fault))
                    faults.append(fault);
        }
        for (const QString& fault : faults)
            qWarning("%s", qPrintable(fault));
        QCOMPARE(faults.size(), 0);
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::FormsTest>(argc, argv);
}

#include "FormsTest.moc"

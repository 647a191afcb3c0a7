#include <QAccessible>
#include <QListWidget>

#include "Program.h"
#include "ScreenReader.h"
#include "TestPanel.h"
#include "forms/Controls.h"
#include "panels/antennes/HB9CV_HF.h"
#include "panels/lignes/RVListeCoaxiaux.h"
#include "panels/resonance/CircuitsOscillants.h"
#include "panels/timer555/Astable.h"
#include "shell/Menu.h"

namespace ondelis {
namespace {

/// What a screen reader must find in place of a control.
struct Told {
    QAccessible::Role role = QAccessible::NoRole;
    QString name;
    QString value; ///< of a field or a bar
    bool readOnly = false;
    bool checked = false;
    QStringList rows; ///< of a list
    int chosen = -1;
};

/// Says what a control is, by its properties alone.
class Teller final : private ControlVisitor {
public:
    Told of(Control& control)
    {
        told_ = {};
        control.accept(*this);
        return told_;
    }

private:
    QString nameOf(const Label* label)
    {
        return toQString(label == nullptr ? panel_->Caption.get() : label->Caption.get());
    }
    /// The caption that stands beside the control.
    static const Label* labelOf(const TextBox& box)
    {
        const TextBox::Design& design = box.design();
        return design.otherLabel != nullptr && design.otherLabel->Visible ? design.otherLabel : design.label;
    }
    template <class Labelled>
    static const Label* labelOf(const Labelled& control)
    {
        return control.design().label;
    }

    template <class Labelled>
    void tell(QAccessible::Role role, Labelled& control)
    {
        panel_ = &control.panel();
        told_.role = role;
        told_.name = nameOf(labelOf(control));
    }

    void visit(TextBox& box) override
    {
        tell(QAccessible::EditableText, box);
        told_.value = toQString(box.Text.get());
        told_.readOnly = box.Locked;
    }
    void visit(MaskEdBox& box) override
    {
        tell(QAccessible::EditableText, box);
        told_.value = toQString(box.display());
        told_.readOnly = true;
    }
    void visit(ListBox& list) override
    {
        tell(QAccessible::List, list);
        for (const std::string& row : list.items())
            told_.rows.append(toQString(row));
        told_.chosen = list.ListIndex.get().value();
    }
    void visit(OptionButton& option) override
    {
        tell(QAccessible::RadioButton, option);
        if (!std::string_view{option.design().Caption}.empty())
            told_.name = toQString(option.design().Caption);
        told_.checked = option.Value;
    }
    void visit(CommandButton& button) override
    {
        told_.role = QAccessible::PushButton;
        told_.name = toQString(button.design().Caption);
    }
    void visit(ScrollBar& bar) override
    {
        tell(QAccessible::ScrollBar, bar);
        told_.value = QString::number(bar.Value.get().value());
    }
    void visit(Label& label) override
    {
        told_.role = QAccessible::StaticText;
        told_.name = toQString(label.Caption.get());
    }
    void visit(Frame& frame) override
    {
        told_.role = QAccessible::Grouping;
        told_.name = toQString(frame.design().Caption);
    }
    void visit(Picture& /*picture*/) override { }
    void visit(Line& /*line*/) override { }
    void visit(Shape& /*shape*/) override { }

    FeuilleCalcul* panel_ = nullptr;
    Told told_;
};

/// What a screen reader does find.
Told found(QWidget& widget)
{
    QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(&widget);
    Told found;
    found.role = told.role();
    found.name = told.text(QAccessible::Name);
    if (found.role == QAccessible::EditableText)
        found.value = told.textInterface()->text(0, told.textInterface()->characterCount());
    else if (told.valueInterface() != nullptr)
        found.value = told.valueInterface()->currentValue().toString();
    found.readOnly = found.role == QAccessible::EditableText && told.state().readOnly;
    found.checked = told.state().checked;
    if (found.role == QAccessible::List)
        for (int row = 0; row < told.childCount(); ++row) {
            QAccessibleInterface& item = *told.child(row);
            if (item.role() != QAccessible::ListItem)
                continue;
            if (item.state().selected)
                found.chosen = row;
            found.rows.append(item.text(QAccessible::Name));
        }
    return found;
}

/// Every difference, in words.
QStringList differences(const Told& wanted, const Told& found)
{
    QStringList words;
    const auto compare = [&](const char* what, const auto& one, const auto& other) {
        if (one != other)
            words.append(QString::fromUtf8(what));
    };
    compare("role", wanted.role, found.role);
    compare("name", wanted.name, found.name);
    compare("value", wanted.value, found.value);
    compare("read-only state", wanted.readOnly, found.readOnly);
    compare("checked state", wanted.checked, found.checked);
    compare("rows", wanted.rows, found.rows);
    compare("chosen row", wanted.chosen, found.chosen);
    return words;
}

/// What screen readers find in every panel, and what they are told when it changes.
class ScreenReaderTest : public testing::TestWithParam<const MenuEntry*> {
protected:
    /// What is wrong in a panel for a person who cannot see it.
    static QStringList faultsOf(const PanelWindow& window)
    {
        QStringList faults;
        for (Control* control : window.panel().controls()) {
            ControlWidget* const shown = window.find(*control);
            const Told wanted = Teller{}.of(*control);
            if (shown == nullptr || wanted.role == QAccessible::NoRole || !control->onScreen())
                continue;
            for (const QString& difference : differences(wanted, found(shown->widget())))
                faults.append(toQString(control->name()) + QStringLiteral(": ") + difference);
            if (wanted.name.isEmpty() && control->focusable())
                faults.append(toQString(control->name()) + QStringLiteral(": no name"));
        }
        return faults;
    }

    /// Fields, lists and bars of one kind, on screen together and in one group, that have the same name.
    static QStringList twinsOn(const PanelWindow& window)
    {
        QStringList twins;
        std::map<QString, Control*> first;
        for (Control* control : window.panel().controls()) {
            if (!control->focusable() || dynamic_cast<CommandButton*>(control) != nullptr)
                continue;
            const Told told = Teller{}.of(*control);
            const QString key = QStringLiteral("%1 %2 %3")
                                    .arg(told.role)
                                    .arg(reinterpret_cast<quintptr>(control->container())) // NOLINT
                                    .arg(told.name);
            const auto [known, isFirst] = first.emplace(key, control);
            if (!isFirst)
                twins.append(toQString(known->second->name() + " " + control->name()));
        }
        return twins;
    }
};

TEST_P(ScreenReaderTest, everyPanelIsRead)
{
    const BoxCloser closer;
    Program program;
    program.pick(GetParam()->control);
    // Some captions stand twice in their panel, on purpose; the order of the fields tells them apart.
    const QStringList knownTwins{"Txt0125 TxtL16_2", "MebIp MebIc", "LstUnités LstUniteE",
        "TxtDiamIntFerPul TxtDiamIntFerrite", "TxtDiamExtFerPul TxtDiamExtFerrite", "TxtEpFePul TxtEpFerrite",
        "TxtSpiresFerPul TxtSpiresFerrite", "VScrollSpiresFerPul VScrollSpiresFerrite",
        "TxtInductanceFerPul TxtInductanceFerrite", "TxtUSec(0) TxtUSec(1)", "TxtIsec(0) TxtIsec(1)",
        "TxtPap(0) TxtPap(1)", "TxtSpires(0) TxtSpires(1)", "TxtDiamFil(0) TxtDiamFil(1)"};
    for (const FeuilleCalcul* panel : program.desk.loadedPanels()) {
        const PanelWindow& window = program.window(*panel);
        EXPECT_EQ(faultsOf(window), QStringList{});
        for (const QString& twin : twinsOn(window))
            EXPECT_TRUE(knownTwins.contains(twin)) << qPrintable(twin);
        QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(program.view.find(*panel));
        EXPECT_EQ(told.role(), QAccessible::Window);
        EXPECT_EQ(told.text(QAccessible::Name), toQString(panel->Caption.get()));
    }
}

TEST_F(ScreenReaderTest, aFieldIsRead)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.TxtB.Text = "4.7 Kilo"; });
    const Told result = found(program.widget(panel.TxtB));
    EXPECT_EQ(result.role, QAccessible::EditableText);
    EXPECT_EQ(result.name, QStringLiteral("Résultat"));
    EXPECT_EQ(result.value, QStringLiteral("4.7 Kilo"));
    EXPECT_TRUE(result.readOnly);
    EXPECT_FALSE(found(program.widget(panel.TxtA)).readOnly);
    EXPECT_TRUE(found(program.widget(panel.MebI)).readOnly);
}

TEST_F(ScreenReaderTest, aNameFollowsItsCaption)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    const auto name = [&](const Control& control) { return found(program.widget(control)).name; };
    const ScreenReader reader;
    program.store([&] { panel.LblB.Caption = "Largeur"; });
    for (const Control* named : std::initializer_list<Control*>{&panel.TxtB, &panel.LstR, &panel.VscrA}) {
        EXPECT_EQ(name(*named), QStringLiteral("Largeur"));
        EXPECT_TRUE(ScreenReader::heard(QAccessible::NameChanged, program.widget(*named), QStringLiteral("Largeur")));
    }
    program.store([&] { panel.LblB.Caption = ""; });
    EXPECT_EQ(name(panel.TxtB), QStringLiteral("Résultat")); // better than none
    ScreenReader::forget();
    program.store([&] { panel.LblB.Visible = false; });
    EXPECT_TRUE(ScreenReader::heardOf(program.widget(panel.TxtB)).empty());
}

TEST_F(ScreenReaderTest, aNameIsThatOfTheCaptionThatIsShown)
{
    Program program;
    program.pick("mnuHB9CV_HF");
    auto& panel = program.desk.get<HB9CV_HF>();
    const auto name = [&] { return found(program.widget(panel.TxtTmatch)).name; };
    EXPECT_EQ(name(), QStringLiteral("0.25 * Lambda / 2 (m)"));
    const ScreenReader reader;
    QTest::keyClick(&program.widget(panel.HScroll1), Qt::Key_Right);
    QTest::mouseClick(&program.widget(panel.Option2), Qt::LeftButton);
    EXPECT_EQ(name(), QStringLiteral("0.30 * Lambda / 2 (m)"));
    EXPECT_TRUE(ScreenReader::heard(QAccessible::NameChanged, program.widget(panel.TxtTmatch), name()));
    QTest::mouseClick(&program.widget(panel.Option1), Qt::LeftButton);
    EXPECT_EQ(name(), QStringLiteral("0.25 * Lambda / 2 (m)"));
}

TEST_F(ScreenReaderTest, whatHasNoLabelIsNamedAfterItsPanel)
{
    Program program;
    program.pick("MenuCircuitOscillant");
    auto& panel = program.desk.get<CircuitsOscillants>();
    EXPECT_EQ(found(program.widget(panel.LstCalcul)).name, QStringLiteral("Circuits résonants"));
    program.store([&] { panel.Caption = "Autre titre"; });
    EXPECT_EQ(found(program.widget(panel.LstCalcul)).name, QStringLiteral("Autre titre"));
}

TEST_F(ScreenReaderTest, resultsInFieldsAreAnnounced)
{
    Program program;
    program.pick("MenuCircuitOscillant");
    auto& panel = program.desk.get<CircuitsOscillants>();
    QTest::keyClicks(&program.widget(panel.TxtFreq), QStringLiteral("1"));
    QTest::keyClicks(&program.widget(panel.TxtRes), QStringLiteral("1000"));
    QTest::keyClicks(&program.widget(panel.TxtCapa), QStringLiteral("100"));
    const ScreenReader reader;
    QTest::keyClicks(&program.widget(panel.TxtCapa), QStringLiteral("0"));
    EXPECT_TRUE(panel.TxtImp.Locked);
    EXPECT_TRUE(ScreenReader::heard(
        QAccessible::TextUpdated, program.widget(panel.TxtImp), toQString(panel.TxtImp.Text.get())));
    EXPECT_TRUE(ScreenReader::heard(QAccessible::TextInserted, program.widget(panel.TxtCapa), QStringLiteral("0")));
}

TEST_F(ScreenReaderTest, fieldsThatARowFillsAreAnnounced)
{
    Program program;
    program.pick("MenuCoaxiauxCourants");
    auto& panel = program.desk.get<RVListeCoaxiaux>();
    const ScreenReader reader;
    QTest::keyClick(&program.widget(panel.LstResultat), Qt::Key_Home);
    EXPECT_FALSE(panel.TxtRef.Locked);
    EXPECT_TRUE(ScreenReader::heard(
        QAccessible::TextUpdated, program.widget(panel.TxtRef), toQString(panel.TxtRef.Text.get())));
}

TEST_F(ScreenReaderTest, aNewTextIsAnnouncedOnce)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    const auto texts = [&](const Control& field) {
        QStringList heard;
        for (const ScreenReader::Event& event : ScreenReader::heardOf(program.widget(field)))
            if (event.type == QAccessible::TextInserted || event.type == QAccessible::TextUpdated)
                heard.append(event.text);
        ScreenReader::forget();
        return heard;
    };
    const ScreenReader reader;
    program.store([&] { panel.TxtB.Text = "12"; });
    EXPECT_EQ(texts(panel.TxtB), QStringList{"12"});
    program.store([&] { panel.TxtB.Text = "13"; });
    EXPECT_EQ(texts(panel.TxtB), QStringList{"13"});
    program.store([&] { panel.MebI.Text = "0.12"; });
    EXPECT_EQ(texts(panel.MebI), QStringList{"1.200E-01"});
    program.store([&] { panel.TxtM.Text = "une remarque"; });
    EXPECT_EQ(texts(panel.TxtM), QStringList{"une remarque"});
    QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("7"));
    EXPECT_EQ(texts(panel.TxtA), QStringList{"7"});
}

TEST_F(ScreenReaderTest, resultsInLabelsAreAnnounced)
{
    Program program;
    program.pick("MenuAstable");
    auto& panel = program.desk.get<Astable>();
    const ScreenReader reader;
    QTest::keyClick(&program.widget(panel.HscrFreq), Qt::Key_Right);
    for (const Label* result : {&panel.LblFreq, &panel.LblR1, &panel.LblR2})
        EXPECT_TRUE(
            ScreenReader::heard(QAccessible::NameChanged, program.widget(*result), toQString(result->Caption.get())));
    EXPECT_TRUE(ScreenReader::heardOf(program.widget(panel.LblCapa)).empty());
}

TEST_F(ScreenReaderTest, aRowThatCodeChoosesIsAnnounced)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onRow = [&] { panel.LstR.ListIndex = 1; };
    auto& moved = program.widget<QListWidget>(panel.LstR);
    const ScreenReader reader;
    QTest::keyClick(&program.widget(panel.LstU), Qt::Key_Down);
    const auto heard = ScreenReader::heardOf(moved);
    EXPECT_TRUE(std::ranges::any_of(
        heard, [](const auto& event) { return event.type == QAccessible::SelectionAdd && event.child == 1; }));
    // The keyboard has not moved there.
    EXPECT_TRUE(std::ranges::none_of(heard, [](const auto& event) { return event.type == QAccessible::Focus; }));
    moved.setFocus();
    ScreenReader::forget();
    QTest::keyClick(&moved, Qt::Key_Up);
    EXPECT_TRUE(std::ranges::any_of(ScreenReader::heardOf(moved),
        [](const auto& event) { return event.type == QAccessible::Focus && event.child == 0; }));
}

TEST_F(ScreenReaderTest, newRowsAreAnnounced)
{
    Program program;
    program.pick("MenuCoaxiauxCourants");
    auto& panel = program.desk.get<RVListeCoaxiaux>();
    const ScreenReader reader;
    QTest::keyClick(&program.widget(panel.OptVF), Qt::Key_Space);
    EXPECT_TRUE(std::ranges::any_of(ScreenReader::heardOf(program.widget(panel.LstCritere)),
        [](const auto& event) { return event.type == QAccessible::TableModelChanged; }));
    EXPECT_EQ(faultsOf(program.window(panel)), QStringList{});
}

TEST_F(ScreenReaderTest, anOptionThatCodeChoosesIsAnnounced)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onA = [&] { panel.OptY.Value = true; };
    program.store([&] { panel.OptX.Value = true; });
    const ScreenReader reader;
    QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("1"));
    for (const Control* option : {&panel.OptX, &panel.OptY})
        EXPECT_TRUE(std::ranges::any_of(ScreenReader::heardOf(program.widget(*option)),
            [](const auto& event) { return event.type == QAccessible::StateChanged; }));
}

TEST_F(ScreenReaderTest, aBarThatCodeMovesIsAnnounced)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    const auto& widget = program.widget(panel.HscrR);
    const ScreenReader reader;
    program.store([&] { panel.HscrR.Value = 60; });
    EXPECT_TRUE(ScreenReader::heard(QAccessible::ValueChanged, widget, QStringLiteral("60")));
    program.store([&] { panel.HscrR.Value = -10; }); // the lower end
    ScreenReader::forget();
    program.store([&] { panel.HscrR.Max = 0; }); // where it stays, for another value
    EXPECT_TRUE(ScreenReader::heard(QAccessible::ValueChanged, widget, QStringLiteral("0")));
    ScreenReader::forget();
    program.store([&] { panel.HscrR.Visible = false; });
    program.store([&] { panel.HscrR.Visible = true; });
    EXPECT_TRUE(std::ranges::none_of(
        ScreenReader::heardOf(widget), [](const auto& event) { return event.type == QAccessible::ValueChanged; }));
}

TEST_F(ScreenReaderTest, aBoxIsRead)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onGo = [&] { panel.MsgBox("Continuer ?", 4, "Filtre"); };
    QStringList read;
    Reader reader{{"Non"}};
    reader.meanwhile = [&] {
        QAccessibleInterface& box = *QAccessible::queryAccessibleInterface(QApplication::activeModalWidget());
        EXPECT_EQ(box.role(), QAccessible::AlertMessage);
        read.append(box.text(QAccessible::Name));
        for (QWidget* part : box.object()->findChildren<QWidget*>())
            if (QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(part);
                told.role() == QAccessible::StaticText || told.role() == QAccessible::PushButton)
                read.append(told.text(QAccessible::Name));
    };
    QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
    for (const char* part : {"Filtre", "Continuer ?", "Oui", "Non"})
        EXPECT_TRUE(read.contains(QString::fromUtf8(part))) << qPrintable(read.join(QLatin1Char{'|'}));
}

TEST_F(ScreenReaderTest, aFieldThatIsLockedIsAnnounced)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    const ScreenReader reader;
    program.store([&] { panel.TxtA.Locked = true; });
    EXPECT_TRUE(std::ranges::any_of(ScreenReader::heardOf(program.widget(panel.TxtA)),
        [](const auto& event) { return event.type == QAccessible::StateChanged; }));
    EXPECT_TRUE(found(program.widget(panel.TxtA)).readOnly);
}

INSTANTIATE_TEST_SUITE_P(Panels, ScreenReaderTest, testing::ValuesIn(panelEntries()), nameOfRow<const MenuEntry*>);

} // namespace
} // namespace ondelis

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "Support.h"

namespace ondelis::fenetre {
namespace {

/// The driver reports what is on the widgets, even if they show something other than the engine says.
class EyesTest : public WindowTest {
protected:
    void open(const char* entry)
    {
        say("start");
        say(std::string{"menu "} + entry);
    }

    static void paint(QWidget& widget, QPalette::ColorRole role, const QColor& color)
    {
        QPalette palette = widget.palette();
        palette.setColor(role, color);
        widget.setPalette(palette);
    }
};

TEST_F(EyesTest, aFieldIsReadFromItsWidget)
{
    open("MenuCircuitOscillant");
    auto& field = widget<QLineEdit>("TxtFreq");
    behindTheEngine(field, [](QLineEdit& edit) { edit.setText(QStringLiteral("7")); });
    EXPECT_EQ(seen("CircuitsOscillants.TxtFreq.Text"), "7");
    field.setReadOnly(true);
    EXPECT_EQ(seen("CircuitsOscillants.TxtFreq.Locked"), true);
    field.move(field.x(), 30);
    EXPECT_EQ(seen("CircuitsOscillants.TxtFreq.Top"), 450);
    field.setAccessibleName(QStringLiteral("Longueur"));
    EXPECT_EQ(seen("CircuitsOscillants.TxtFreq.Label"), "Longueur");
    field.hide();
    EXPECT_EQ(seen("CircuitsOscillants.TxtFreq.Visible"), false);
}

TEST_F(EyesTest, colorsAreThoseOfTheWidget)
{
    open("MenuCircuitOscillant");
    auto& field = widget<QLineEdit>("TxtFreq");
    EXPECT_EQ(seen("CircuitsOscillants.TxtFreq.BackColor"), 0xFFFFFF);
    paint(field, QPalette::Base, QColor{0x11, 0x22, 0x33});
    EXPECT_EQ(seen("CircuitsOscillants.TxtFreq.BackColor"), 0x332211);
    paint(field, QPalette::Text, QColor{0xFF, 0x80, 0});
    EXPECT_EQ(seen("CircuitsOscillants.TxtFreq.ForeColor"), 0x0080FF);
}

TEST_F(EyesTest, aListIsReadFromItsWidget)
{
    open("MenuCircuitOscillant");
    auto& list = widget<QListWidget>("LstFreq");
    list.item(1)->setText(QStringLiteral("GHz"));
    EXPECT_EQ(seen("CircuitsOscillants.LstFreq.Items")[1], "GHz");
    list.selectionModel()->blockSignals(true);
    list.setCurrentRow(1);
    list.selectionModel()->blockSignals(false);
    EXPECT_EQ(seen("CircuitsOscillants.LstFreq.ListIndex"), 1);
    EXPECT_EQ(seen("CircuitsOscillants.LstFreq.Text"), "GHz");
    delete list.takeItem(0);
    EXPECT_EQ(seen("CircuitsOscillants.LstFreq.ListCount"), list.count());
}

TEST_F(EyesTest, aBarAnOptionAButtonAndACaptionAreReadFromTheirWidgets)
{
    open("MenuRLCserie");
    behindTheEngine(widget<QScrollBar>("HScroll1"), [](QScrollBar& bar) { bar.setValue(5); });
    EXPECT_EQ(seen("RLCSerie.HScroll1.Value"), 15); // its lower limit is 10
    widget<QLabel>("Label19").setText(QStringLiteral("zéro"));
    EXPECT_EQ(seen("RLCSerie.Label19.Caption"), "zéro");
    say("menu mnuGammaMatch");
    widget<QPushButton>("BtnCalculer").setText(QStringLiteral("Un && deux"));
    EXPECT_EQ(seen("GammaMatch.BtnCalculer.Caption"), "Un & deux");
    say("menu menuFiltrePasseBas");
    auto& option = widget<QRadioButton>("OptmmH");
    const bool chosen = option.isChecked();
    behindTheEngine(option, [&](QRadioButton& button) {
        button.setAutoExclusive(false);
        button.setChecked(!chosen);
    });
    EXPECT_EQ(seen("CalculNombreSpires.OptmmH.Value"), !chosen);
}

TEST_F(EyesTest, windowsAreWhereTheyAreSeen)
{
    open("MenuCircuitOscillant");
    auto& panel = widget<QMdiSubWindow>("CircuitsOscillants");
    panel.setWindowTitle(QStringLiteral("Rien"));
    EXPECT_EQ(seen("CircuitsOscillants.Caption"), "Rien");
    panel.setFixedSize(400, 300);
    EXPECT_EQ(seen("CircuitsOscillants.Width"), 6000);
    panel.hide();
    EXPECT_EQ(say("expect CircuitsOscillants hidden")["got"], "hidden");
    mainWindow().resize(1000, 900);
    EXPECT_EQ(seen("MDIOndelis.Width"), 15000);
}

TEST_F(EyesTest, theMenuIsReadFromItsBar)
{
    open("MenuCircuitOscillant");
    widget<QMenuBar>("").actions().first()->setText(QStringLiteral("Fin && suite"));
    EXPECT_EQ(say("state")["menus"][0]["Caption"], "Fin & suite");
}

TEST_F(EyesTest, everyMemberOfEveryPanelHasBeenLookedFor)
{
    say("start");
    const pilote::Json menus = say("state")["menus"];
    for (const auto& menu : menus)
        for (const auto& entry : menu["Entries"]) {
            const auto name = entry["Name"].get<std::string>();
            if (name == "MenuQuitter")
                continue;
            say("menu " + name);
            EXPECT_TRUE(say("state")["ok"]) << name;
        }
}

} // namespace
} // namespace ondelis::fenetre

#include "Support.h"

namespace ondelis {
namespace {

/// One control of each class, each with a design of its own.
class Modele final : public FeuilleCalcul {
public:
    explicit Modele(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Modele", .Caption = "Modèle", .Width = 6000, .Height = 4000}}
    {
    }

    Label Legende{this, "Legende", {.Caption = "C", .at = {240, 360, 1200, 255}, .Visible = false}};
    TextBox Champ{this, "Champ",
        {.Text = "10", .at = {240, 720, 1200, 315}, .BackColor = resultColor, .ForeColor = red, .Locked = true}};
    ListBox Liste{this, "Liste", {.Items = {"nF", "pF"}, .BackColor = givenColor}};
    OptionButton Serie{this, "Serie", {.Value = true, .ForeColor = red}};
    OptionButton Parallele{this, "Parallele", {.Visible = false}};
    CommandButton Bouton{this, "Bouton", {.Visible = false}};
    VScrollBar Barre{this, "Barre", {.Min = 10, .Max = 90, .Value = 50}};
    Frame Cadre{this, "Cadre", {.Visible = false}};
    Image Dessin{this, "Dessin", {.Visible = false}};
    Line Trait{this, "Trait", {.X1 = 100, .Y1 = 200, .X2 = 300, .Y2 = 400, .Visible = false}};
    MaskEdBox Masque{this, "Masque", {}};

    void changeAll()
    {
        Caption = "Autre";
        Left = 3;
        Top = 4;
        Width = 1;
        Height = 2;
        Legende.Caption = "R";
        Legende.Top = 1;
        Legende.Visible = true;
        Champ.Text = "1";
        Champ.Top = 1;
        Champ.BackColor = white;
        Champ.ForeColor = black;
        Champ.Locked = false;
        Champ.Visible = false;
        Liste.ListIndex = 1;
        Liste.BackColor = white;
        Liste.Visible = false;
        Parallele.Value = true;
        Parallele.Visible = true;
        Serie.ForeColor = black;
        Bouton.Visible = true;
        Barre.Value = 20;
        Barre.Min = 15;
        Barre.Max = 25;
        Barre.Visible = false;
        Cadre.Visible = true;
        Dessin.Visible = true;
        Trait.X1 = 1;
        Trait.Y1 = 2;
        Trait.X2 = 3;
        Trait.Y2 = 4;
        Trait.Visible = true;
        Masque.Text = "1";
    }
};

class DesignTest : public RuntimeTest { };

TEST_F(DesignTest, aPanelThatIsLoadedAnewGoesBackToItsDesign)
{
    auto& panel = runtime.get<Modele>();
    panel.Show();
    panel.changeAll();
    panel.Unload();
    panel.Show();

    EXPECT_EQ(panel.Caption, "Modèle");
    EXPECT_EQ(Double{panel.Left}, 0);
    EXPECT_EQ(Double{panel.Top}, 0);
    EXPECT_EQ(Double{panel.Width}, 6000);
    EXPECT_EQ(Double{panel.Height}, 4000);
    EXPECT_EQ(panel.Legende.Caption, "C");
    EXPECT_EQ(Double{panel.Legende.Top}, 360);
    EXPECT_EQ(panel.Champ.Text, "10");
    EXPECT_EQ(Double{panel.Champ.Top}, 720);
    EXPECT_EQ(panel.Champ.BackColor.get(), resultColor);
    EXPECT_EQ(panel.Champ.ForeColor.get(), red);
    EXPECT_TRUE(panel.Champ.Locked);
    EXPECT_EQ(panel.Liste.ListIndex, -1);
    EXPECT_EQ(panel.Liste.BackColor.get(), givenColor);
    EXPECT_TRUE(panel.Serie.Value);
    EXPECT_EQ(panel.Serie.ForeColor.get(), red);
    EXPECT_FALSE(panel.Parallele.Value);
    EXPECT_EQ(panel.Barre.Min, 10);
    EXPECT_EQ(panel.Barre.Max, 90);
    EXPECT_EQ(panel.Barre.Value, 50);
    EXPECT_EQ(Double{panel.Trait.X1}, 100);
    EXPECT_EQ(Double{panel.Trait.Y1}, 200);
    EXPECT_EQ(Double{panel.Trait.X2}, 300);
    EXPECT_EQ(Double{panel.Trait.Y2}, 400);
    EXPECT_EQ(panel.Masque.Text, "");
}

TEST_F(DesignTest, whatThePanelHidOrShowedIsAsItsDesignSaysWhenLoadedAnew)
{
    auto& panel = runtime.get<Modele>();
    panel.Show();
    panel.changeAll();
    panel.Unload();
    panel.Show();

    EXPECT_FALSE(panel.Legende.Visible);
    EXPECT_TRUE(panel.Champ.Visible);
    EXPECT_TRUE(panel.Liste.Visible);
    EXPECT_TRUE(panel.Serie.Visible);
    EXPECT_FALSE(panel.Parallele.Visible);
    EXPECT_FALSE(panel.Bouton.Visible);
    EXPECT_TRUE(panel.Barre.Visible);
    EXPECT_FALSE(panel.Cadre.Visible);
    EXPECT_FALSE(panel.Dessin.Visible);
    EXPECT_FALSE(panel.Trait.Visible);
}

/// Controls of which nothing is said.
class Nue final : public FeuilleCalcul {
public:
    explicit Nue(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Nue", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    Label Legende{this, "Legende", {}};
    TextBox Champ{this, "Champ", {}};
    ListBox Liste{this, "Liste", {}};
    OptionButton Choix{this, "Choix", {}};
    CommandButton Bouton{this, "Bouton", {}};
    HScrollBar Barre{this, "Barre", {}};
    Frame Cadre{this, "Cadre", {}};
    PictureBox Tableau{this, "Tableau", {}};
    Image Dessin{this, "Dessin", {}};
    Line Trait{this, "Trait", {}};
    MaskEdBox Masque{this, "Masque", {}};
};

TEST_F(DesignTest, controlsWithoutADesignShowAndAreEmpty)
{
    auto& panel = runtime.get<Nue>();
    panel.Show();
    for (const Control* control : panel.controls())
        EXPECT_TRUE(control->onScreen()) << control->name();
    EXPECT_EQ(panel.Legende.Caption, "");
    EXPECT_EQ(panel.Champ.Text, "");
    EXPECT_EQ(panel.Liste.ListCount(), 0);
    EXPECT_FALSE(panel.Choix.Value);
    EXPECT_STREQ(panel.Choix.design().Caption, "");
    EXPECT_STREQ(panel.Bouton.design().Caption, "");
    EXPECT_STREQ(panel.Cadre.design().Caption, "");
    EXPECT_STREQ(panel.Cadre.design().picture, "");
    EXPECT_STREQ(panel.Dessin.design().picture, "");
    EXPECT_EQ(panel.Masque.Text, "");
}

TEST_F(DesignTest, fieldsWithoutADesignAreOpenAndWrittenInTheDefaultType)
{
    auto& panel = runtime.get<Nue>();
    EXPECT_FALSE(panel.Champ.Locked);
    EXPECT_FALSE(panel.Champ.design().multiLine);
    EXPECT_EQ(panel.Champ.design().MaxLength, 0);
    EXPECT_EQ(panel.Champ.design().align, Align::Left);
    EXPECT_EQ(panel.Champ.design().font.size, 9);
    EXPECT_FALSE(panel.Champ.design().font.bold);
    EXPECT_EQ(panel.Legende.design().align, Align::Left);
    EXPECT_EQ(panel.Legende.design().font.size, 9);
    EXPECT_FALSE(panel.Legende.design().font.bold);
    EXPECT_FALSE(panel.Liste.design().clickOnChosenRow);
}

TEST_F(DesignTest, barsAndLinesWithoutADesignHaveTheUsualLimits)
{
    auto& panel = runtime.get<Nue>();
    EXPECT_EQ(panel.Barre.Min, 0);
    EXPECT_EQ(panel.Barre.Max, 32767);
    EXPECT_EQ(panel.Barre.Value, 0);
    EXPECT_EQ(panel.Barre.design().SmallChange, 1);
    EXPECT_EQ(panel.Barre.design().LargeChange, 1);
    EXPECT_EQ(Double{panel.Trait.X1}, 0);
    EXPECT_EQ(Double{panel.Trait.Y1}, 0);
    EXPECT_EQ(Double{panel.Trait.X2}, 0);
    EXPECT_EQ(Double{panel.Trait.Y2}, 0);
    EXPECT_EQ(panel.Trait.design().BorderWidth, 1);
}

TEST_F(DesignTest, theTwoKindsOfDrawingsDifferInTheirNames)
{
    auto& panel = runtime.get<Nue>();
    EXPECT_STREQ(panel.Tableau.kind(), "PictureBox");
    EXPECT_STREQ(panel.Dessin.kind(), "Image");
    EXPECT_EQ(panel.Barre.orientation(), Orientation::Horizontal);
    EXPECT_EQ(runtime.get<Modele>().Barre.orientation(), Orientation::Vertical);
}

} // namespace
} // namespace ondelis

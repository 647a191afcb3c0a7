// The minimal program of this kind: a main window of the same size, a menu bar with the same entries, an empty client
// area.

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QScreen>
#include <array>

namespace {

struct DropDown {
    const char* caption = nullptr;
    QStringList entries;
};

std::array<DropDown, 12> dropDowns()
{
    // clang-format off
    return {{
        {"Fin de travail", {"Quitter"}},
        {"Antennes", {"Antenne Log Périodique (LPDA)", "Dipôle raccourci", "Double Quad", "Gamma match", "HB9CV HF",
                      "HB9CV VUSHF", "High Q Loop", "Trappes en coaxial"}},
        {"Circuits oscillants et Selfs", {"Adaptation d'impédance", "Circuits oscillants", "Circuits RLC Parallèles",
                                          "Circuit RLC Série", "Epingle", "Formule de Thomson",
                                          "Nombre de spires d'une self", "Selfs sur tores", "Strip line",
                                          "Valeur d'une self"}},
        {"Condensateurs", {"Condensateurs CMS", "Condensateurs Fixes", "Condensateurs Variables",
                           "Energie emmagasinée"}},
        {"Le timer 555", {"Astable", "Monostable", "Rapport cyclique variable"}},
        {"Décibels", {"Décibels"}},
        {"Filtres", {"Filtre à élimination de bande", "Filtre en Pi f(Ze, Zs, Q)", "Filtre en double Pi",
                     "Filtre passe-bande", "Filtre Passe-bas", "Filtre passe haut"}},
        {"Lignes", {"Coaxiaux Section Carrée", "Coaxiale Section Cylindrique", "Echelle à grenouille"}},
        {"Transformateurs", {"Calcul Transfo 500VA maxi"}},
        {"Ponts diviseurs", {"Calculs de Shunts", "Pont de résistances avec charge"}},
        {"Rubiques en vrac", {"Coaxiaux Courants", "Section vers diamètre", "Unités de Pression"}},
        {"?", {"A propos"}},
    }};
    // clang-format on
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application{argc, argv};
    QMainWindow window;
    for (const DropDown& dropDown : dropDowns()) {
        QMenu* const menu = window.menuBar()->addMenu(QString::fromUtf8(dropDown.caption));
        for (const QString& entry : dropDown.entries)
            menu->addAction(entry);
    }
    window.setCentralWidget(new QMdiArea{&window});

    constexpr double twipsPerInch = 1440;
    const double dpi = window.screen()->logicalDotsPerInch();
    window.resize(qRound(19470 * dpi / twipsPerInch), qRound(15000 * dpi / twipsPerInch));
    window.show();
    return QApplication::exec();
}

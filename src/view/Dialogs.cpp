#include "view/Dialogs.h"

#include <QMessageBox>
#include <QPushButton>

#include "view/ControlWidget.h"

namespace ondelis {
namespace {

constexpr int yesAndNo = 4;

} // namespace

Answer ask(QWidget& window, const MessageBox& box)
{
    QMessageBox dialog{
        QMessageBox::NoIcon, toQString(box.title), toQString(box.prompt), QMessageBox::NoButton, &window};
    dialog.setTextFormat(Qt::PlainText);
    if (box.buttons != yesAndNo) {
        dialog.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
        dialog.exec();
        return Answer::Ok;
    }
    QAbstractButton* const yes = dialog.addButton(QStringLiteral("Oui"), QMessageBox::YesRole);
    QAbstractButton* const no = dialog.addButton(QStringLiteral("Non"), QMessageBox::NoRole);
    dialog.setEscapeButton(no);
    dialog.exec();
    return dialog.clickedButton() == yes ? Answer::Yes : Answer::No;
}

void tell(QWidget& window, const Fault& fault)
{
    const std::string number = std::to_string(fault.number());
    ask(window, {.prompt = "Erreur " + number + " : " + fault.text() + ".\n\nLe programme va s'arrêter."});
}

} // namespace ondelis

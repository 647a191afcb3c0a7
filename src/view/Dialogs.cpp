#include "view/Dialogs.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>

#include "view/FocusFrame.h"
#include "view/Texts.h"

namespace ondelis {
namespace {

constexpr int yesAndNo = 4;

/// Shows the box, with a mark around the button that has the keyboard, until it is answered.
void run(QMessageBox& dialog)
{
    auto& buttons = *dialog.findChild<QDialogButtonBox*>();
    const int across = dialog.style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
    const int down = dialog.style()->pixelMetric(QStyle::PM_FocusFrameVMargin);
    buttons.setContentsMargins(across, down, across, down); // room for the mark, which lies around the button
    FocusFrame mark{&buttons};
    QObject::connect(qApp, &QApplication::focusChanged, &mark,
        [&](QWidget* /*before*/, QWidget* now) { mark.setWidget(buttons.isAncestorOf(now) ? now : nullptr); });
    dialog.exec();
}

} // namespace

Answer ask(QWidget& window, const MessageBox& box)
{
    QMessageBox dialog{
        QMessageBox::NoIcon, toQString(box.title), toQString(box.prompt), QMessageBox::NoButton, &window};
    dialog.setTextFormat(Qt::PlainText);
    if (box.buttons != yesAndNo) {
        dialog.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
        run(dialog);
        return Answer::Ok;
    }
    QAbstractButton* const yes = dialog.addButton(QStringLiteral("Oui"), QMessageBox::YesRole);
    QAbstractButton* const no = dialog.addButton(QStringLiteral("Non"), QMessageBox::NoRole);
    dialog.setEscapeButton(no);
    run(dialog);
    return dialog.clickedButton() == yes ? Answer::Yes : Answer::No;
}

void tell(QWidget& window, const Fault& fault)
{
    const std::string number = std::to_string(fault.number());
    ask(window, {.prompt = "Erreur " + number + " : " + fault.text() + ".\n\nLe programme va s'arrêter."});
}

} // namespace ondelis

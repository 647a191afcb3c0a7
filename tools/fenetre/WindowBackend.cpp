#include "WindowBackend.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <algorithm>
#include <array>
#include <stdexcept>

#include "Mouse.h"
#include "Screen.h"
#include "view/MainWindow.h"
#include "view/PanelWindow.h"

namespace ondelis::fenetre {
namespace {

constexpr Size usualScreen{.Width = 28800, .Height = 16200};

/// The box that is on screen.
QMessageBox& boxOnScreen()
{
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr)
        throw std::logic_error{"no box is on screen"};
    return *box;
}

/// What a box shows: its words, its title, and its buttons.
MessageBox read(const QMessageBox& box)
{
    QStringList buttons;
    for (const QAbstractButton* const button : box.buttons())
        buttons.append(button->text());
    buttons.sort();
    if (buttons != QStringList{QStringLiteral("OK")}
        && buttons != QStringList{QStringLiteral("Non"), QStringLiteral("Oui")})
        throw std::logic_error{"a box has other buttons: " + buttons.join(QLatin1Char{' '}).toStdString()};
    return {.prompt = box.text().toStdString(),
        .buttons = buttons.size() == 1 ? 0 : 4,
        .title = box.windowTitle().toStdString()};
}

void pressButton(QMessageBox& box, const QString& words)
{
    for (QAbstractButton* const button : box.buttons())
        if (button->text() == words) {
            Mouse::click(*button, button->rect().center());
            return;
        }
}

/// The fault that a box names.
Fault faultNamed(const QString& words)
{
    for (const FaultKind kind :
        {FaultKind::InvalidArgument, FaultKind::Overflow, FaultKind::SubscriptOutOfRange, FaultKind::DivisionByZero,
            FaultKind::TypeMismatch, FaultKind::ObjectNotSet, FaultKind::InvalidPropertyValue}) {
        Fault fault{kind};
        if (words.startsWith(QStringLiteral("Erreur %1 : %2.")
                                 .arg(QString::number(fault.number()), QString::fromUtf8(fault.text()))))
            return fault;
    }
    throw std::logic_error{"a box names no fault: " + words.toStdString()};
}

} // namespace

WindowBackend::WindowBackend(Painting painting) : painting_{painting}
{
    spy_.onBox = [this] { readBox(); };
    spy_.onFault = [this] { readFault(); };
    spy_.onEvents = [this] { meanwhile_.perform(actor_); };
    setOffscreenSize(usualScreen);
}

WindowBackend::~WindowBackend()
{
    actor_.detach();
    if (!runtime_.loadedPanels().empty()) // the view may never have been opened
        view_.perform([this](User&) {
            while (!runtime_.loadedPanels().empty())
                runtime_.loadedPanels().front()->Unload();
        });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // no event loop will do it
    // Ending a program marks the event loop as ended; running it once clears the mark for the next program.
    if (runtime_.ended()) {
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        QCoreApplication::exec();
    }
}

void WindowBackend::start()
{
    view_.open(frame_);
    view_.mainWindow().setUpdatesEnabled(painting_ == Painting::On);
    if (!QTest::qWaitForWindowActive(&view_.mainWindow()))
        throw std::runtime_error{"the main window does not come on screen"};
    actor_.attach(view_.mainWindow());
}

pilote::Actor::Refusal WindowBackend::setScreen(const Size& size)
{
    if (!setOffscreenSize(size))
        return "the screen is the desktop's";
    return {};
}

void WindowBackend::forget()
{
    boxes_.clear();
    fault_.reset();
    meanwhile_.forget();
}

void WindowBackend::settle()
{
    meanwhile_.refuseRemaining();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (runtime_.ended())
        actor_.detach();
    actor_.reactivateWindow();
}

bool WindowBackend::focusAgrees() const
{
    const QWidget* const shown = QApplication::focusWidget();
    const Control* const stated = runtime_.focused();
    for (const FeuilleCalcul* const panel : runtime_.loadedPanels())
        if (const PanelWindow* const window = view_.find(*panel))
            if (const Control* const control = window->controlOf(shown))
                return control == stated;
    return true; // no control has the keyboard
}

void WindowBackend::readBox()
{
    QPointer<QMessageBox> box{&boxOnScreen()};
    boxes_.push_back(read(*box));
    const QString answer = nextAnswer(boxes_.back().buttons != 0);
    meanwhile_.perform(actor_);
    if (box != nullptr)
        pressButton(*box, answer);
}

void WindowBackend::readFault()
{
    QPointer<QMessageBox> box{&boxOnScreen()};
    fault_ = faultNamed(box->text());
    meanwhile_.perform(actor_);
    if (box != nullptr)
        pressButton(*box, nextAnswer(false));
}

QString WindowBackend::nextAnswer(bool asks)
{
    if (!asks)
        return QStringLiteral("OK");
    const Answer answer = answers_.empty() ? Answer::Yes : answers_.front();
    if (!answers_.empty())
        answers_.pop_front();
    return answer == Answer::Yes ? QStringLiteral("Oui") : QStringLiteral("Non");
}

} // namespace ondelis::fenetre

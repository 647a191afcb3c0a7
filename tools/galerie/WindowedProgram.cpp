#include "WindowedProgram.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

#include "Gestures.h"
#include "view/MainWindow.h"
#include "view/PanelWindow.h"

namespace ondelis::galerie {
namespace {

/// Lets the windows be laid out and painted.
void settle()
{
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

} // namespace

WindowedProgram::WindowedProgram()
{
    QApplication::setCursorFlashTime(0); // the caret shows in every picture
    boxes_.callOnTimeout([this] { answerBox(); });
    boxes_.start(0);
    view_.open(frame_);
    settle();
}

WindowedProgram::~WindowedProgram()
{
    view_.perform([this](User&) {
        while (!runtime_.loadedPanels().empty())
            runtime_.loadedPanels().front()->Unload();
    });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // no event loop will do it
}

void WindowedProgram::play(std::string_view line)
{
    pilote::Tokenizer words{line};
    const std::string word = words.next();
    if (word == "answer") {
        const Answer answer = pilote::readAnswer(words);
        words.finish();
        answers_.push_back(answer);
        return;
    }
    const pilote::Gesture gesture = pilote::readGesture(word, words);
    if (!gesture)
        throw pilote::Malformed{"no such command: " + word};
    words.finish();
    run(gesture);
}

void WindowedProgram::run(const pilote::Gesture& gesture)
{
    pilote::Actor::Refusal refusal;
    view_.perform([&](User&) { refusal = gesture(actor_); });
    if (runtime_.ended())
        throw Refused{"the program has ended: " + lastBox_};
    settle();
    if (refusal)
        throw Refused{*refusal};
}

void WindowedProgram::picture(std::string_view window, const std::string& file) const
{
    const FeuilleCalcul* const panel = pilote::findPanel(frame_, window);
    QWidget* const shown = window == "MDIOndelis" ? static_cast<QWidget*>(&view_.mainWindow())
        : panel == nullptr                        ? nullptr
                                                  : view_.find(*panel);
    if (shown == nullptr)
        throw Refused{"the window is not on screen: " + std::string{window}};
    if (!shown->grab().save(QString::fromStdString(file)))
        throw Refused{"cannot write " + file};
}

void WindowedProgram::answerBox()
{
    const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr)
        return;
    lastBox_ = box->text().section(QLatin1Char{'\n'}, 0, 0).toStdString();
    const bool asks = box->buttons().size() > 1;
    const bool no = asks && !answers_.empty() && answers_.front() == Answer::No;
    if (asks && !answers_.empty())
        answers_.pop_front();
    for (QAbstractButton* button : box->buttons())
        if ((box->buttonRole(button) == QMessageBox::NoRole) == no)
            button->click();
}

} // namespace ondelis::galerie

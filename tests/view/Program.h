#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <functional>
#include <vector>

#include "Support.h"
#include "forms/Desk.h"
#include "shell/MDIOndelis.h"
#include "view/ControlWidget.h"
#include "view/MainWindow.h"
#include "view/PanelWindow.h"
#include "view/View.h"

namespace ondelis {

/// The program, on screen, as a test uses it.
struct Program {
    View view;
    Desk desk{view};
    MDIOndelis frame{desk};

    Program()
    {
        view.open(frame);
        if (!QTest::qWaitForWindowActive(&view.mainWindow()))
            qFatal("the main window does not come on screen");
    }

    /// Picks an entry of the menu.
    void pick(std::string_view entry) { view.mainWindow().findChild<QAction*>(toQString(entry))->trigger(); }

    /// Opens the test's own panel.
    template <class Panel>
    Panel& open()
    {
        view.perform([this](User&) { desk.get<Panel>().Show(); });
        return desk.get<Panel>();
    }

    /// Code stores something, outside any action of the user.
    template <class Store>
    void store(Store&& store)
    {
        view.perform([&](User&) { desk.perform(store); });
    }

    [[nodiscard]] PanelWindow& window(const FeuilleCalcul& panel) const { return *view.find(panel); }

    /// The widget of a control.
    template <class Widget = QWidget>
    [[nodiscard]] Widget& widget(const Control& control) const
    {
        return dynamic_cast<Widget&>(window(control.panel()).find(control)->widget());
    }
};

/// A person at a message box: notes what it says and presses the buttons that the test names, one per box.
class Reader {
public:
    explicit Reader(QStringList answers) : answers_{std::move(answers)}
    {
        timer_.callOnTimeout([this] { answer(); });
        timer_.start(1);
    }

    struct Seen {
        QString title;
        QString text;
        QStringList buttons;
        QMessageBox::Icon icon;
    };
    std::vector<Seen> seen;

    /// What happens while the box waits, before it is answered.
    std::function<void()> meanwhile = [] {};

private:
    void answer()
    {
        auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || box == answered_)
            return;
        answered_ = box;
        QStringList buttons;
        for (const QAbstractButton* button : box->buttons())
            buttons.append(button->text());
        seen.push_back({box->windowTitle(), box->text(), buttons, box->icon()});
        meanwhile();
        const QString wanted = answers_.isEmpty() ? QString{} : answers_.takeFirst();
        for (QAbstractButton* button : box->buttons())
            if (button->text() == wanted)
                QTest::mouseClick(button, Qt::LeftButton);
    }

    QStringList answers_;
    QTimer timer_;
    QPointer<QMessageBox> answered_;
};

/// Turns the mouse wheel one notch down over a widget.
inline void turnWheel(QWidget& widget)
{
    const QPoint place = widget.rect().center();
    QWheelEvent event{
        place, widget.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false};
    QApplication::sendEvent(&widget, &event);
}

/// After the end of a program that ran in no event loop: the next one may show boxes again.
inline void recover()
{
    QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
    QCoreApplication::exec();
}

/// A person who presses the first button of each box that comes.
class BoxCloser {
public:
    BoxCloser()
    {
        timer_.callOnTimeout([] {
            if (auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget()))
                QTest::mouseClick(box->buttons().first(), Qt::LeftButton);
        });
        timer_.start(1);
    }

private:
    QTimer timer_;
};

} // namespace ondelis

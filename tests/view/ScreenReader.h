#pragma once

#include <QAccessible>
#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <vector>

namespace ondelis {

/// What a screen reader is told: it listens while it lives. At most one lives at a time.
class ScreenReader {
public:
    ScreenReader()
    {
        events().clear();
        activate(true);
        before_ = QAccessible::installUpdateHandler(&ScreenReader::hear);
    }
    ~ScreenReader()
    {
        QAccessible::installUpdateHandler(before_);
        activate(false);
    }
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;

    struct Event {
        QAccessible::Event type;
        const QObject* object;
        int child; ///< the row of a list; -1 for the object itself
        QString text; ///< the new text of a field, the new value of a bar, the new name
    };

    /// What it was told about an object since the last call for any object.
    [[nodiscard]] static std::vector<Event> heardOf(const QObject& object)
    {
        std::vector<Event> heard;
        for (const Event& event : events())
            if (event.object == &object)
                heard.push_back(event);
        return heard;
    }
    /// Whether it was told that.
    [[nodiscard]] static bool heard(QAccessible::Event type, const QObject& object, const QString& text)
    {
        const auto all = heardOf(object);
        return std::ranges::any_of(all, [&](const Event& event) { return event.type == type && event.text == text; });
    }
    static void forget() { events().clear(); }

private:
    static std::vector<Event>& events()
    {
        static std::vector<Event> events;
        return events;
    }

    static void activate(bool active)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }

    static void hear(QAccessibleEvent* event)
    {
        if (event->object() != nullptr)
            events().push_back({event->type(), event->object(), event->child(), textOf(*event)});
    }

    static QString textOf(const QAccessibleEvent& event)
    {
        switch (event.type()) {
        case QAccessible::TextInserted:
            return dynamic_cast<const QAccessibleTextInsertEvent&>(event).textInserted();
        case QAccessible::TextUpdated:
            return dynamic_cast<const QAccessibleTextUpdateEvent&>(event).textInserted();
        case QAccessible::ValueChanged:
            return dynamic_cast<const QAccessibleValueChangeEvent&>(event).value().toString();
        case QAccessible::NameChanged:
            return QAccessible::queryAccessibleInterface(event.object())->text(QAccessible::Name);
        default:
            return {};
        }
    }

    QAccessible::UpdateHandler before_;
};

} // namespace ondelis

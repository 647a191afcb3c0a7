// The scenarios on the real window: see docs/pilote.md.

#include <QLoggingCategory>
#include <QSocketNotifier>
#include <array>
#include <iostream>
#include <span>
#include <string>

#include "Program.h"
#include "WindowBackend.h"
#include "view/Application.h"

#include <unistd.h>

namespace {

using namespace ondelis;
using fenetre::WindowBackend;

/// Answers each line of standard input with one line of JSON. Between the lines anyone may use the window.
class Conversation {
public:
    Conversation()
    {
        QObject::connect(&input_, &QSocketNotifier::activated, &input_, [this] { listen(); });
    }

    void run() const
    {
        while (!over_)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

private:
    void listen()
    {
        std::array<char, 4096> bytes{};
        const ssize_t count = ::read(STDIN_FILENO, bytes.data(), bytes.size());
        input_.setEnabled(false); // while a box waits, too
        if (count > 0)
            heard_.append(bytes.data(), static_cast<std::size_t>(count));
        else if (!heard_.empty() && heard_.back() != '\n')
            heard_ += '\n';
        for (auto end = heard_.find('\n'); end != std::string::npos; end = heard_.find('\n')) {
            std::cout << answerLine(pilote_, heard_.substr(0, end)) << std::endl;
            heard_.erase(0, end + 1);
        }
        input_.setEnabled(count > 0);
        over_ = count <= 0;
    }

    WindowBackend backend_;
    pilote::Pilote pilote_{backend_};
    QSocketNotifier input_{STDIN_FILENO, QSocketNotifier::Read};
    std::string heard_; ///< what was read and is not answered yet
    bool over_ = false;
};

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false")); // it says what it does not support
    }
    const Application application{argc, argv};
    const std::span words{argv, static_cast<std::size_t>(argc)};
    if (argc > 1)
        return pilote::playFiles(words.subspan(1), [] { return std::make_unique<WindowBackend>(); }) ? 0 : 1;
    Conversation{}.run();
    return 0;
}

// Random users of the program in its windows and of the program with none, in step: see docs/architecture.md.

#include <QLoggingCategory>
#include <iostream>
#include <random>
#include <span>
#include <string_view>

#include "Lockstep.h"
#include "Run.h"
#include "view/Application.h"

#ifdef FINDS_LEAKS
#include <sanitizer/lsan_interface.h>
#endif

namespace {

/// Reads in advance what each session would otherwise read again: fonts, and the symbols that tell our leaks from those
/// of the libraries.
void readOnce()
{
    ondelis::fuzz::Lockstep{}.answer("start");
#ifdef FINDS_LEAKS
    __lsan_do_recoverable_leak_check();
#endif
}

} // namespace

int main(int argc, char** argv)
{
    using namespace ondelis::fuzz;
    // Each session is a copy of this process; only a platform without a screen can be copied.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false")); // it says what it does not support
    const std::span words{argv, static_cast<std::size_t>(argc)};
    try {
        const bool byActions = argc > 1 && std::string_view{words[1]} == "actions";
        const std::size_t count = byActions ? 2 : 1;
        const std::uint64_t length = words.size() > count ? whole(words[count]) : 60;
        const std::uint64_t seed = words.size() > count + 1 ? whole(words[count + 1]) : std::random_device{}();
        const ondelis::Application application{argc, argv};
        blockChildSignals();
        readOnce();
        const Budget whole = byActions ? Budget{.actions = length} : Budget{.time = std::chrono::seconds{length}};
        return run([] { return std::make_unique<Lockstep>(); }, whole, seed) == 0 ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "usage: fuzz_step [SECONDS [SEED]], or fuzz_step actions COUNT [SEED]: " << error.what() << '\n';
        return 2;
    }
}

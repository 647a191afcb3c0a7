#include "Session.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <new>
#include <stdexcept>
#include <string_view>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "RandomUser.h"

namespace ondelis::fuzz {
namespace {

constexpr int stepsPerUser = 250;

/// How a session is played.
struct Mode {
    double longestStep; ///< seconds of the session's own processor time
    bool digests;
};
constexpr Mode findings{.longestStep = 10, .digests = false};
constexpr Mode comparison{.longestStep = 60, .digests = true};

/// To look for leaks takes as long as twenty steps: it is done after the session of one user in so many.
constexpr std::uint64_t usersALeakSearch = 8;

/// A step that waits this long without using the processor would wait forever.
constexpr std::chrono::seconds longestWait{300};

/// What the session's process reports about itself. It starts as zeros.
struct Log { // NOLINT(cppcoreguidelines-pro-type-member-init): the memory that it is made in is all zeros
    static constexpr std::size_t capacity = std::size_t{1} << 22U;

    std::atomic<std::size_t> length; ///< of the commands written, a line each
    std::atomic<double> stepBegan; ///< seconds of processor time
    std::array<char, 64> subject;
    std::array<char, 64> fault;
    std::array<char, 128> where; ///< of a difference
    std::array<char, 1024> expectation;
    std::uint64_t digest;
    std::array<char, capacity> lines;
};

/// A log shared by the processes made while it lives; it outlives them.
class SharedLog {
public:
    SharedLog() : memory_{mmap(nullptr, sizeof(Log), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)}
    {
        if (memory_ == MAP_FAILED)
            throw std::bad_alloc{};
        log_ = new (memory_) Log;
    }
    ~SharedLog() { munmap(memory_, sizeof(Log)); }
    SharedLog(const SharedLog&) = delete;
    SharedLog& operator=(const SharedLog&) = delete;

    Log& operator*() { return *log_; }

private:
    void* memory_;
    Log* log_;
};

template <std::size_t size>
void copyInto(std::array<char, size>& place, std::string_view text)
{
    const std::size_t length = std::min(text.size(), size - 1);
    std::memcpy(place.data(), text.data(), length);
    place.at(length) = '\0';
}

/// Seconds that a process has kept the processor busy.
double processorTime(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Takes a text into a digest: FNV-1a, which is the same everywhere.
void digest(std::uint64_t& sum, std::string_view text)
{
    for (const char byte : text)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
}

/// The program in the session's process.
class Session {
public:
    Session(Log& log, const Mode& mode, const TargetFactory& makeTarget)
        : log_{log}, digests_{mode.digests}, target_{makeTarget()}
    {
    }

    [[nodiscard]] const Runtime& runtime() const { return target_->runtime(); }
    [[nodiscard]] bool over() const
    {
        return runtime().ended() || log_.length + 16384 > Log::capacity || !std::string_view{log_.where.data()}.empty();
    }

    void carryOut(const std::string& command)
    {
        const std::size_t before = log_.length;
        std::ranges::copy(command + '\n', log_.lines.begin() + static_cast<std::ptrdiff_t>(before));
        copyInto(log_.subject, subjectOf(command));
        log_.stepBegan = processorTime(CLOCK_PROCESS_CPUTIME_ID);
        log_.length = before + command.size() + 1;
        const pilote::Json reply = target_->answer(command);
        if (reply.contains("error"))
            throw std::logic_error{command};
        const Difference difference = target_->difference();
        copyInto(log_.where, difference.where);
        copyInto(log_.expectation, difference.expectation);
        if (reply.contains("refused") && difference.where.empty())
            log_.length = before;
        else if (reply.contains("fault") && reply["fault"].is_string())
            copyInto(log_.fault, reply["fault"].get<std::string>());
        if (!digests_)
            return;
        digest(log_.digest, command);
        digest(log_.digest, text(reply));
        if (++commands_ % commandsPerLook == 0)
            look();
    }

    /// Takes what the panels show into the digest.
    void look()
    {
        if (digests_)
            digest(log_.digest, text(target_->answer("state")));
    }

private:
    static std::string text(const pilote::Json& json)
    {
        return json.dump(-1, ' ', false, pilote::Json::error_handler_t::replace);
    }

    static constexpr int commandsPerLook = 8; // looking takes far longer than a command

    Log& log_;
    bool digests_;
    int commands_ = 0;
    std::unique_ptr<Target> target_;
};

/// Waits for the end of the session's process, and ends it if a step takes too long. Returns what was wrong with its
/// end, or "".
std::string watch(pid_t child, const Log& log, double longestStep)
{
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGCHLD);
    clockid_t clock{};
    clock_getcpuclockid(child, &clock);
    bool hangs = false;
    bool waits = false;
    int status = 0;
    std::size_t length = log.length;
    auto last = std::chrono::steady_clock::now();
    while (waitpid(child, &status, WNOHANG) == 0) {
        const timespec pollInterval{.tv_sec = 0, .tv_nsec = 100'000'000};
        sigtimedwait(&ends, nullptr, &pollInterval);
        hangs = processorTime(clock) - log.stepBegan > longestStep;
        if (log.length != length) {
            length = log.length;
            last = std::chrono::steady_clock::now();
        }
        waits = std::chrono::steady_clock::now() - last > longestWait;
        if (hangs || waits)
            kill(child, SIGKILL);
    }
    if ((hangs || waits) && WIFSIGNALED(status))
        return hangs ? "hang" : "it waits for ever";
    if (WIFSIGNALED(status))
        return std::string{"crash: "} + strsignal(WTERMSIG(status));
    // The sanitizers, which have written their report, end a process with a status.
    return WEXITSTATUS(status) == 0 ? "" : "the process ended with status " + std::to_string(WEXITSTATUS(status));
}

Outcome play(
    const Mode& mode, const TargetFactory& makeTarget, bool looksForLeaks, const std::function<void(Session&)>& what)
{
    SharedLog shared;
    Log& log = *shared;
    const pid_t child = fork();
    if (child == -1)
        throw std::runtime_error{"no process for a session"};
    if (child == 0) {
        {
            Session session{log, mode, makeTarget};
            what(session);
            session.look();
        }
        if (!looksForLeaks)
            std::_Exit(0);
        std::exit(0); // the sanitizer looks for them on the way out
    }
    Outcome outcome{
        .commands = {}, .subject = {}, .fault = {}, .trouble = watch(child, log, mode.longestStep), .difference = {}};
    outcome.subject = log.subject.data();
    outcome.fault = log.fault.data();
    outcome.difference = {.where = log.where.data(), .expectation = log.expectation.data()};
    outcome.digest = log.digest;
    std::string_view lines{log.lines.data(), log.length};
    while (!lines.empty()) {
        outcome.commands.emplace_back(lines.substr(0, lines.find('\n')));
        lines.remove_prefix(outcome.commands.back().size() + 1);
    }
    return outcome;
}

Outcome playUser(const Mode& mode, const TargetFactory& makeTarget, std::uint64_t seed)
{
    return play(mode, makeTarget, seed % usersALeakSearch == 0, [seed](Session& session) {
        RandomUser user{seed};
        session.carryOut(user.region());
        session.carryOut("start");
        for (int step = 0; step < stepsPerUser && !session.over(); ++step)
            session.carryOut(user.next(session.runtime()));
    });
}

} // namespace

std::string_view subjectOf(std::string_view command)
{
    const std::string_view path = command.substr(command.find(' ') + 1);
    return path.substr(0, path.find_first_of(". "));
}

Outcome playUser(const TargetFactory& makeTarget, std::uint64_t seed)
{
    return playUser(findings, makeTarget, seed);
}

Outcome watchUser(std::uint64_t seed)
{
    return playUser(comparison, makeHeadlessTarget, seed);
}

Outcome playAgain(const TargetFactory& makeTarget, const std::vector<std::string>& commands)
{
    return play(findings, makeTarget, true, [&commands](Session& session) {
        [[maybe_unused]] const std::FILE* const silence
            = std::freopen("/dev/null", "w", stderr); // the sanitizers have reported it already
        for (const std::string& command : commands)
            if (!session.over())
                session.carryOut(command);
    });
}

} // namespace ondelis::fuzz

// How long the program takes to its first painted window, and how much memory it then holds, against a bare
// program of the same size (bench/nu). The two take turns, so that whatever else the machine does meets both.
// Goal: at most 1.15 times the bare program, in time and in memory.

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <thread>
#include <vector>

#include "Process.h"
#include "Screen.h"

namespace {

using namespace ondelis::bench;

constexpr int rounds = 12;
constexpr int startsPerRound = 5; ///< of which the last one also tells its memory
constexpr std::chrono::seconds settling{2};
constexpr double goal = 1.15;

struct Program {
    const char* file;
    std::vector<double> milliseconds; ///< of each start, from exec to the first painted window
    std::vector<double> megabytes; ///< of each round, resident two seconds later
};

void start(Program& program, Screen& screen, bool settled)
{
    const auto before = Screen::Clock::now();
    const Process process{{program.file}};
    const auto painted = screen.waitForPaintedWindow();
    program.milliseconds.push_back(std::chrono::duration<double, std::milli>{painted - before}.count());
    if (settled) {
        std::this_thread::sleep_for(settling);
        program.megabytes.push_back(static_cast<double>(process.residentKilobytes()) / 1024);
    }
}

void playRound(std::array<Program*, 2> programs, Screen& screen)
{
    for (int i = 1; i <= startsPerRound; ++i) {
        for (Program* program : programs)
            start(*program, screen, i == startsPerRound);
        std::ranges::reverse(programs); // each is first and second in turn
    }
}

/// The figure at a rank among all: 0.5 for the median.
double ranked(std::vector<double> figures, double rank)
{
    std::ranges::sort(figures);
    return figures[static_cast<std::size_t>(rank * static_cast<double>(figures.size()))];
}

void print(const char* what, const char* unit, double ours, double bare)
{
    std::printf("%-28s %7.1f %s %7.1f %s %8.3f %8.2f\n", what, ours, unit, bare, unit, ours / bare, goal);
}

void compare(Screen& screen)
{
    Program ours{.file = PROGRAM, .milliseconds = {}, .megabytes = {}};
    Program bare{.file = BARE_PROGRAM, .milliseconds = {}, .megabytes = {}};
    Program unseen = ours;
    Program unseenBare = bare;
    playRound({&unseen, &unseenBare}, screen); // it brings the files into memory
    for (int round = 0; round < rounds; ++round)
        playRound({&ours, &bare}, screen);

    std::printf("%-28s %10s %10s %8s %8s\n", "", "ondelis", "bare", "ratio", "goal");
    print("first paint, median", "ms", ranked(ours.milliseconds, 0.5), ranked(bare.milliseconds, 0.5));
    print("first paint, lower quartile", "ms", ranked(ours.milliseconds, 0.25), ranked(bare.milliseconds, 0.25));
    print("resident memory, median", "MB", ranked(ours.megabytes, 0.5), ranked(bare.megabytes, 0.5));
    std::printf("%zu starts of each in turns, %d of them for memory\n", ours.milliseconds.size(), rounds);
}

} // namespace

int main()
{
    try {
        Screen screen;
        setenv("QT_QPA_PLATFORM", "xcb", 1);
        compare(screen);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

// How long the program takes to its first painted window, and how much memory it has held and then holds, against a
// bare program of the same size (bench/bare). The two take turns, so that whatever else the machine does affects both.

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
constexpr int startsPerRound = 5; ///< of which the last also gives its memory
constexpr std::chrono::seconds settling{2};
constexpr double paintGoal = 0.95; // times the bare program, at most
constexpr double residentGoal = 1.08;
constexpr double peakGoal = 1.10;

struct Program {
    const char* file;
    std::vector<double> milliseconds; ///< of each start, from exec to the first painted window
    std::vector<double> resident; ///< megabytes of each round, two seconds later
    std::vector<double> peak; ///< megabytes of each round, the most until then
};

void start(Program& program, Screen& screen, bool settled)
{
    const auto before = Screen::Clock::now();
    const Process process{{program.file}};
    const auto painted = screen.waitForPaintedWindow();
    program.milliseconds.push_back(std::chrono::duration<double, std::milli>{painted - before}.count());
    if (settled) {
        std::this_thread::sleep_for(settling);
        program.resident.push_back(process.residentMegabytes());
        program.peak.push_back(process.peakMegabytes());
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

void print(const char* what, const char* unit, double ours, double bare, double goal)
{
    std::printf("%-28s %7.1f %s %7.1f %s %8.3f %8.2f\n", what, ours, unit, bare, unit, ours / bare, goal);
}

void compare(Screen& screen)
{
    Program ours{.file = PROGRAM, .milliseconds = {}, .resident = {}, .peak = {}};
    Program bare{.file = BARE_PROGRAM, .milliseconds = {}, .resident = {}, .peak = {}};
    Program unseen = ours;
    Program unseenBare = bare;
    playRound({&unseen, &unseenBare}, screen); // it brings the files into memory
    for (int round = 0; round < rounds; ++round)
        playRound({&ours, &bare}, screen);

    std::printf("%-28s %10s %10s %8s %8s\n", "", "ondelis", "bare", "ratio", "goal");
    print("first paint, median", "ms", ranked(ours.milliseconds, 0.5), ranked(bare.milliseconds, 0.5), paintGoal);
    print("first paint, lower quartile", "ms", ranked(ours.milliseconds, 0.25), ranked(bare.milliseconds, 0.25),
        paintGoal);
    print("resident memory, median", "MB", ranked(ours.resident, 0.5), ranked(bare.resident, 0.5), residentGoal);
    print("peak memory, median", "MB", ranked(ours.peak, 0.5), ranked(bare.peak, 0.5), peakGoal);
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

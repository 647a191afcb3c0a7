#include <iostream>
#include <span>
#include <string>

#include "HeadlessBackend.h"
#include "Program.h"

namespace {

using namespace ondelis::pilote;

/// Answers each line of standard input with one line of JSON.
void converse()
{
    std::ios::sync_with_stdio(false);
    HeadlessBackend backend;
    Pilote pilote{backend};
    std::string line;
    while (std::getline(std::cin, line))
        std::cout << answerLine(pilote, line) << std::endl;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1)
        return playFiles(std::span{argv, static_cast<std::size_t>(argc)}.subspan(1),
                   [] { return std::make_unique<HeadlessBackend>(); })
            ? 0
            : 1;
    converse();
    return 0;
}

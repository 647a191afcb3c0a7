#include "Process.h"

#include <fcntl.h>
#include <signal.h> // NOLINT(modernize-deprecated-headers): kill is POSIX, not C++
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <system_error>

namespace ondelis::bench {

Process::Process(std::vector<std::string> words, int inherited)
{
    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    if (inherited >= 0) // onto itself: the program then gets it, although it is closed in others
        posix_spawn_file_actions_adddup2(&actions, inherited, inherited);
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const int error = posix_spawnp(&id_, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
        throw std::system_error{error, std::generic_category(), words[0]};
}

Process::~Process()
{
    kill(id_, SIGTERM);
    waitpid(id_, nullptr, 0);
}

double Process::megabytes(std::string_view name) const
{
    std::ifstream status{"/proc/" + std::to_string(id_) + "/status"};
    for (std::string word; status >> word;)
        if (word == name) {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes / 1024;
        }
    throw std::runtime_error{"the program has ended"};
}

} // namespace ondelis::bench

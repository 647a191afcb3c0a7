#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>
#include <vector>

namespace ondelis::bench {

/// A running program, with its output discarded; it is ended when the object is destroyed.
class Process {
public:
    /// `inherited` is a file descriptor that the program gets under the same number; -1 for none. Throws
    /// std::system_error if the program does not start.
    explicit Process(std::vector<std::string> words, int inherited = -1);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// The megabytes of memory that it holds now, and the most that it has held.
    [[nodiscard]] double residentMegabytes() const { return megabytes("VmRSS:"); }
    [[nodiscard]] double peakMegabytes() const { return megabytes("VmHWM:"); }

private:
    /// A figure of its status, by its name in proc(5).
    [[nodiscard]] double megabytes(std::string_view name) const;

    pid_t id_ = 0;
};

} // namespace ondelis::bench

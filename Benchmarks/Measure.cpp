// Runs a command with its output thrown away and tells what it cost. A program of its own, since the peak memory of a
// process counts from before its exec: below a large interpreter every command would look large.
//
//     karvello-measure COMMAND [ARGUMENT...]
//
// Prints "STATUS SECONDS USER SYSTEM KIB": exit status (128 and more for a signal), wall clock and processor times in
// seconds, peak resident memory in KiB.

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 2) {
        std::fputs("usage: karvello-measure COMMAND [ARGUMENT...]\n", stderr);
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        const int sink = open("/dev/null", O_RDWR | O_CLOEXEC);
        dup2(sink, STDIN_FILENO);
        dup2(sink, STDOUT_FILENO);
        execvp(arguments[1], arguments + 1);
        std::fprintf(stderr, "%s: %s\n", arguments[1], std::strerror(errno));
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child) {
        std::perror(arguments[1]);
        return 1;
    }
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    std::printf("%d %.6f %.6f %.6f %ld\n", WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status),
        elapsed.count(), seconds(usage.ru_utime), seconds(usage.ru_stime), usage.ru_maxrss);
    return 0;
}

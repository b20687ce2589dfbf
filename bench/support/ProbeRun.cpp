#include "support/ProbeRun.h"

#include "support/Comparison.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

[[noreturn]] void TellFailure(const std::string& program) {
    std::fprintf(stderr, "%s failed.\n", program.c_str());
    std::exit(EXIT_FAILURE);
}

/// Everything that comes until the other end is closed.
std::string ReadAll(int pipeEnd) {
    std::string text;
    char buffer[256];
    for (ssize_t count; (count = ::read(pipeEnd, buffer, sizeof buffer)) > 0;)
        text.append(buffer, size_t(count));
    return text;
}

/// Runs a program to its end; returns what it wrote.
std::string OutputOf(const std::string& folder, std::vector<std::string>& commandLine) {
    std::vector<char*> arguments;
    for (std::string& argument : commandLine)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    int ends[2];
    if (::pipe(ends) != 0)
        TellFailure(commandLine.front());
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    ::posix_spawn_file_actions_addclose(&actions, ends[0]);
    ::posix_spawn_file_actions_addclose(&actions, ends[1]);
    pid_t process = 0;
    const int error =
        ::posix_spawn(&process, arguments.front(), &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    if (error != 0)
        TellFailure(commandLine.front());
    const std::string output = ReadAll(ends[0]);
    ::close(ends[0]);
    int status = 0;
    if (::waitpid(process, &status, 0) != process || status != 0)
        TellFailure(commandLine.front());
    return output;
}

} // namespace

ProbeResult RunProbe(const std::string& folder, std::vector<std::string> commandLine) {
    constexpr double kibibytesInMebibyte = 1024;
    std::string output;
    const double seconds = SecondsOf([&] { output = OutputOf(folder, commandLine); });
    return {seconds, std::strtod(output.c_str(), nullptr) / kibibytesInMebibyte};
}

#pragma once

#include <QtGlobal>
#include <csignal>
#include <cstdio>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

/** What became of a process that was to be killed at one of its system calls. */
enum class StepKill {
    Killed,
    Succeeded, ///< it ended before, its work done
    Failed, ///< it ended before, or crashed
    Forbidden ///< this system lets nobody trace a process
};

/** Runs bool work() in a copy of this process, which is killed as it makes its system call number
 *  `call` (from 0), before that call does anything. The copy runs no clean-up at its end. */
template <typename Work>
StepKill killAtCall(int call, const Work &work)
{
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            ::_exit(2);
        ::raise(SIGSTOP);
        ::_exit(work() ? 0 : 1);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFSTOPPED(status))
        return StepKill::Forbidden;
    const long options = PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD;
    ::ptrace(PTRACE_SETOPTIONS, child, nullptr, options);
    // Each call stops twice: before it begins, and when it is done.
    for (int stops = 0; stops < 2 * call + 1;) {
        const bool isCall = WSTOPSIG(status) == (SIGTRAP | 0x80);
        const long signal = isCall || WSTOPSIG(status) == SIGSTOP ? 0 : WSTOPSIG(status);
        if (::ptrace(PTRACE_SYSCALL, child, nullptr, signal) != 0
            || ::waitpid(child, &status, 0) != child || WIFSIGNALED(status))
            return StepKill::Failed;
        if (WIFEXITED(status))
            return WEXITSTATUS(status) == 0 ? StepKill::Succeeded : StepKill::Failed;
        stops += WSTOPSIG(status) == (SIGTRAP | 0x80);
    }
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
    return StepKill::Killed;
}

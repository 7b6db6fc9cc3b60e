#include "makers/isolated.h"

#include "makers/damage.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane {

namespace {

// The first byte of what the new process tells: this, or the kind of a failure before its cause.
constexpr char Succeeded = 127;

// In the new process: runs Action and ends.
[[noreturn]] void RunAndEnd(const std::function<void()>& Action, std::chrono::seconds Patience,
                            int Answer)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL); // nobody would wait for the end any more
    std::signal(SIGALRM, SIG_DFL);
    ::alarm(static_cast<unsigned>(Patience.count()));
    const rlimit NoDump{0, 0};
    ::setrlimit(RLIMIT_CORE, &NoDump);
    if (const int Nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC); Nowhere >= 0)
        ::dup2(Nowhere, STDERR_FILENO);
    std::string Told;
    try {
        Action();
        Told = Succeeded;
    } catch (const Failure& Given) {
        Told = static_cast<char>(Given.Kind()) + Given.Cause();
    } catch (const std::exception& Given) {
        Told = static_cast<char>(FailureKind::JetDamaged) + std::string(Given.what());
    }
    const std::size_t Size = std::min<std::size_t>(Told.size(), PIPE_BUF); // what one write takes
    ::_exit(::write(Answer, Told.data(), Size) < 0 ? EXIT_FAILURE : EXIT_SUCCESS);
}

// Repeats a call that a signal breaks off.
template <class Function>
auto Insisting(Function Call)
{
    auto Result = Call();
    while (Result < 0 && errno == EINTR)
        Result = Call();
    return Result;
}

} // namespace

void RunIsolated(const std::function<void()>& Action, std::chrono::seconds Patience)
{
    std::array<int, 2> Ends{};
    if (::pipe2(Ends.data(), O_CLOEXEC) != 0)
        throw Failure(FailureKind::Program, {}, "no pipe");
    const pid_t Child = ::fork();
    if (Child == 0)
        RunAndEnd(Action, Patience, Ends[1]);
    ::close(Ends[1]);
    std::array<char, PIPE_BUF> Told{};
    const auto Size = Insisting([&] { return ::read(Ends[0], Told.data(), Told.size()); });
    ::close(Ends[0]);
    if (Child < 0)
        throw Failure(FailureKind::Program, {}, "no process");
    Insisting([&] { return ::waitpid(Child, nullptr, 0); });
    if (Size <= 0)
        ThrowDamaged("the reader ended without a word");
    if (Told[0] != Succeeded)
        throw Failure(static_cast<FailureKind>(Told[0]), {},
                      std::string(Told.data() + 1, static_cast<std::size_t>(Size) - 1));
}

} // namespace orvane

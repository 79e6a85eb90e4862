#include "loadtrial.h"

#include "filestate.h"
#include "panellog.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QJsonDocument>
#include <QSaveFile>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <exception>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace panel
{

struct LoadTrial::Child {
    pid_t process = -1;
    int reports = -1;
};

/** How the child ended with the library that it was opening. */
struct LoadTrial::End {
    int opened = 0; ///< libraries that the linker opened or refused
    QByteArray thrown; ///< what it threw, with a mark in front; empty: nothing
    bool hung = false;
    int status = 0; ///< as of waitpid()
};

namespace
{

constexpr qint64 maximumListSize = 1 << 20;
constexpr int maximumText = 500; // of what was thrown
constexpr int lastInherited = 1024; // a panel has a few dozen files
constexpr int pause = 5; // ms between two looks at a child that is about to end

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(panel)
};

// What the child reports: a byte for each library, or the mark and what was thrown.
constexpr char openedMark = 'o';
constexpr char refusedMark = 'r';
constexpr char thrownMark = 't';
constexpr char endOfText = '\0';

int reportPipe = -1; ///< the child's; its handlers take no argument

void report(const char *text, size_t size)
{
    [[maybe_unused]] const auto written = ::write(reportPipe, text, size);
}

[[noreturn]] void reportThrown(const char *what)
{
    report(&thrownMark, 1);
    report(what, strnlen(what, maximumText));
    report(&endOfText, 1);
    _exit(EXIT_FAILURE);
}

[[noreturn]] void reportCurrentException()
{
    try {
        if (std::current_exception())
            std::rethrow_exception(std::current_exception());
    } catch (const std::exception &exception) {
        reportThrown(exception.what());
    } catch (...) {
        reportThrown("an unknown exception");
    }
    reportThrown("std::terminate() was called");
}

/** Nothing of the panel's is left but the standard error and the way to report. */
void leavePanel()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const rlimit noCore {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, SIG_DFL);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    for (int file = STDERR_FILENO + 1; file < lastInherited; ++file) {
        if (file != reportPipe)
            close(file);
    }
    std::set_terminate(reportCurrentException);
    // exit() in an initialiser would run the panel's own handlers behind this one.
    std::atexit([] { _exit(EXIT_FAILURE); });
}

/** Without Qt, whose locks a thread of the panel may have held; as QLibrary does with the hints
 *  that the panel uses. */
[[noreturn]] void openAll(const std::vector<QByteArray> &paths)
{
    try {
        for (const QByteArray &path : paths) {
            const bool opened = dlopen(path.constData(), RTLD_NOW | RTLD_NODELETE) != nullptr;
            report(opened ? &openedMark : &refusedMark, 1);
        }
    } catch (...) {
        reportCurrentException();
    }
    _exit(EXIT_SUCCESS);
}

/** Within the limit it may end by itself, so that its status tells why. */
int statusOf(pid_t process, const QDeadlineTimer &limit)
{
    int status = 0;
    while (waitpid(process, &status, WNOHANG) == 0) {
        if (limit.hasExpired())
            kill(process, SIGKILL);
        poll(nullptr, 0, pause);
    }
    return status;
}

QString cause(const QByteArray &thrown, bool hung, int status, int limit)
{
    if (!thrown.isEmpty())
        return Texts::tr("throws while it is loaded (%1)")
            .arg(QString::fromLocal8Bit(thrown.mid(1)).simplified());
    if (hung)
        return Texts::tr("does not come back while it is loaded (within %1 s)").arg(limit / 1000.0);
    if (WIFSIGNALED(status))
        return Texts::tr("crashes while it is loaded (%1)")
            .arg(QString::fromLocal8Bit(strsignal(WTERMSIG(status))));
    return Texts::tr("ends the program while it is loaded");
}

} // namespace

LoadTrial::LoadTrial(const QString &runtimeDirectory, int limit)
    : m_file(QDir(runtimeDirectory).filePath(QStringLiteral("known-libraries.json")))
    , m_limit(limit)
{
    QFile file(m_file);
    if (file.open(QIODevice::ReadOnly))
        m_known = QJsonDocument::fromJson(file.read(maximumListSize)).object();
}

bool LoadTrial::isKnown(const QFileInfo &library) const
{
    return m_known.value(library.absoluteFilePath()) == fileState(library);
}

LoadTrial::Outcome LoadTrial::run(const QFileInfoList &libraries)
{
    std::vector<QByteArray> paths; // the child has to allocate as little as possible
    for (const QFileInfo &library : libraries)
        paths.push_back(QFile::encodeName(library.absoluteFilePath()));
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return {libraries.size(), QString()};
    const Child child {fork(), ends[0]};
    if (child.process == 0) {
        reportPipe = ends[1];
        leavePanel();
        openAll(paths);
    }
    close(ends[1]);
    const End end = child.process < 0 ? End {libraries.size(), {}} : follow(child, libraries);
    close(ends[0]);
    if (end.opened == libraries.size())
        return {end.opened, QString()};
    return {end.opened,
            Texts::tr("%1 %2: correct what its static initialisers do.")
                .arg(libraries.at(end.opened).fileName(),
                     cause(end.thrown, end.hung, end.status, m_limit))};
}

LoadTrial::End LoadTrial::follow(const Child &child, const QFileInfoList &libraries)
{
    End end;
    std::array<char, 1> byte {};
    QDeadlineTimer limit(m_limit);
    while (end.opened < libraries.size() && !end.thrown.endsWith(endOfText)) {
        pollfd reports {child.reports, POLLIN, 0};
        const int ready = poll(&reports, 1, static_cast<int>(limit.remainingTime()));
        if (ready < 0 && errno == EINTR)
            continue;
        end.hung = ready == 0;
        if (ready <= 0 || read(child.reports, byte.data(), 1) != 1)
            break;
        if (byte[0] == thrownMark || !end.thrown.isEmpty()) {
            end.thrown += byte[0];
            continue;
        }
        // What the linker refuses may be opened one day, when what it lacks is installed.
        if (byte[0] == openedMark)
            remember(libraries.at(end.opened));
        ++end.opened;
        limit.setRemainingTime(m_limit);
    }
    if (end.thrown.endsWith(endOfText))
        end.thrown.chop(1);
    end.status = statusOf(child.process, limit);
    save();
    return end;
}

void LoadTrial::remember(const QFileInfo &library)
{
    m_known.insert(library.absoluteFilePath(), fileState(library));
}

/** Without the libraries that have gone. */
void LoadTrial::save() const
{
    QJsonObject known;
    for (auto library = m_known.begin(); library != m_known.end(); ++library) {
        if (QFileInfo::exists(library.key()))
            known.insert(library.key(), *library);
    }
    QSaveFile file(m_file);
    const QByteArray text = QJsonDocument(known).toJson();
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return;
    errorLine() << Texts::tr("%1 can't be written: %2").arg(m_file, file.errorString());
}

} // namespace panel

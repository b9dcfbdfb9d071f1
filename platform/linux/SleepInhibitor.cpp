// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/SleepInhibitor.h"

#include "platform/linux/LinuxTools.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

pid_t startHelper(const QByteArray &program, int input)
{
    const QByteArray waiter = QFile::encodeName(linuxtools::find(QStringLiteral("cat")));
    const char *words[] = {"systemd-inhibit",
                           "--what=sleep:idle",
                           "--mode=block",
                           "--who=Velmora Halvane",
                           "--why=Disks are being checked",
                           waiter.constData(),
                           nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t helper = -1;
    const int error = posix_spawn(&helper, program.constData(), &actions, nullptr,
                                  const_cast<char *const *>(words), environ);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? helper : -1;
}

} // namespace

SleepInhibitor::~SleepInhibitor()
{
    release();
}

void SleepInhibitor::hold()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    if (m_helper > 0)
        return;
    const QString program = linuxtools::find(QStringLiteral("systemd-inhibit"));
    int ends[2];
    if (program.isEmpty() || pipe2(ends, O_CLOEXEC) != 0)
        return;
    m_helper = startHelper(QFile::encodeName(program), ends[0]);
    ::close(ends[0]);
    m_lifeLine = ends[1];
    if (m_helper < 0)
        releaseLocked();
}

void SleepInhibitor::release()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    releaseLocked();
}

void SleepInhibitor::releaseLocked()
{
    if (m_lifeLine >= 0)
        ::close(m_lifeLine);
    m_lifeLine = -1;
    if (m_helper > 0) {
        kill(m_helper, SIGTERM);
        while (waitpid(m_helper, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    m_helper = -1;
}

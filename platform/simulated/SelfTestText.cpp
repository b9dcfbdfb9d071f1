// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/SelfTestText.h"

#include <QRegularExpression>

#include <array>

namespace simulated::selftext
{
namespace
{

constexpr int mostRows = 21;
const QByteArray logHeading =
    "Num  Test_Description    Status                  Remaining  LifeTime(hours)  LBA_of_first_error";

struct Wording {
    const char *status; ///< lines of the execution status
    const char *log;    ///< the log's column
};

constexpr std::array<Wording, 10> wordings{{
    {"The previous self-test routine completed\nwithout error or no self-test has ever \nbeen run.",
     "Completed without error"},
    {"The self-test routine was aborted by\nthe host.", "Aborted by host"},
    {"The self-test routine was interrupted\nby the host with a hard or soft reset.",
     "Interrupted (host reset)"},
    {"A fatal error or unknown test error\noccurred while the device was executing\nits self-test routine "
     "and the "
     "device \nwas unable to complete the self-test \nroutine.",
     "Fatal or unknown error"},
    {"The previous self-test completed having\na test element that failed and the test\nelement that failed "
     "is not "
     "known.",
     "Completed: unknown failure"},
    {"The previous self-test completed having\nthe electrical element of the test\nfailed.",
     "Completed: electrical failure"},
    {"The previous self-test completed having\nthe servo (and/or seek) element of the \ntest failed.",
     "Completed: servo/seek failure"},
    {"The previous self-test completed having\nthe read element of the test failed.",
     "Completed: read failure"},
    {"The previous self-test completed having\na test element that failed and the\ndevice is suspected of "
     "having "
     "handling\ndamage.",
     "Completed: handling damage??"},
    {"Reserved.", "Unknown status (0x9)"},
}};

Wording wordingOf(int status)
{
    if (status < 0 || static_cast<std::size_t>(status) >= wordings.size())
        return {"Self-test routine in progress...", "Self-test routine in progress"};
    return wordings[static_cast<std::size_t>(status)];
}

bool isContinuation(const QByteArray &line)
{
    return line.startsWith(' ') || line.startsWith('\t');
}

/// Lines without their ends; what ends them is told apart.
QList<QByteArray> linesOf(const QByteArray &text, QByteArray *end)
{
    *end = text.contains("\r\n") ? "\r\n" : "\n";
    QByteArray plain = text;
    plain.replace("\r\n", "\n");
    return plain.split('\n');
}

} // namespace

QByteArray withStatus(const QByteArray &text, int status, int remainingTenths)
{
    static const QByteArray marker = "Self-test execution status:";
    QByteArray end;
    QList<QByteArray> lines = linesOf(text, &end);
    for (int i = 0; i < lines.size(); ++i) {
        if (!lines.at(i).startsWith(marker))
            continue;
        while (i + 1 < lines.size() && isContinuation(lines.at(i + 1)))
            lines.removeAt(i + 1);
        QList<QByteArray> told = QByteArray(wordingOf(status).status).split('\n');
        if (status == inProgress)
            told.append(QByteArray::number(remainingTenths) + "0% of test remaining.");
        const QByteArray code = QByteArray::number(status * 16 + remainingTenths).rightJustified(4);
        lines[i] = marker + "      (" + code + ")\t" + told.takeFirst();
        for (const QByteArray &more : told)
            lines.insert(++i, "\t\t\t\t\t" + more);
    }
    return lines.join(end);
}

QByteArray logRow(const QString &kind, int status, int remainingTenths, qint64 hours, const QString &lba)
{
    return kind.toLatin1().leftJustified(19) + ' ' + QByteArray(wordingOf(status).log).leftJustified(29) +
           ' ' + QByteArray::number(remainingTenths) + "0%  " + QByteArray::number(hours).rightJustified(8) +
           "         " + lba.toLatin1();
}

QByteArray withLogRows(const QByteArray &text, const QList<QByteArray> &rows)
{
    if (rows.isEmpty())
        return text;
    QByteArray end;
    QList<QByteArray> lines = linesOf(text, &end);
    int at = 0;
    while (at < lines.size() && !lines.at(at).startsWith("No self-tests have been logged") &&
           !lines.at(at).startsWith("Num  Test_Description    Status     ")) {
        ++at;
    }
    if (at == lines.size())
        return text;
    lines[at] = logHeading;
    QList<QByteArray> all = rows;
    while (at + 1 < lines.size() && lines.at(at + 1).startsWith('#')) {
        all.append(lines.takeAt(at + 1).mid(5)); // behind "# 1  "
    }
    for (int i = 0; i < all.size() && i < mostRows; ++i)
        lines.insert(at + 1 + i, '#' + QByteArray::number(i + 1).rightJustified(2) + "  " + all.at(i));
    return lines.join(end);
}

std::optional<int> pollingMinutes(const QByteArray &capabilities, const QByteArray &kind)
{
    const QRegularExpression minutes(
        QStringLiteral("%1 self-test routine\\s+recommended polling time:\\s*\\(\\s*([0-9]+)\\) minutes")
            .arg(QString::fromLatin1(kind)));
    const QRegularExpressionMatch match = minutes.match(QString::fromLatin1(capabilities));
    return match.hasMatch() ? std::optional(match.captured(1).toInt()) : std::nullopt;
}

qint64 powerOnHours(const QByteArray &report)
{
    static const QRegularExpression row(QStringLiteral("^ *9 Power_On_[A-Za-z_]+(?: +\\S+){7} +([0-9]+)"),
                                        QRegularExpression::MultilineOption);
    return row.match(QString::fromLatin1(report)).captured(1).toLongLong() % 65536;
}

} // namespace simulated::selftext

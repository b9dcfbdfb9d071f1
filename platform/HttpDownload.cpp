// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/HttpDownload.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFile>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QThread>
#include <QTimer>
#include <QVariant>

#include <algorithm>
#include <atomic>
#include <memory>

namespace
{

constexpr qint32 resultNotFound = static_cast<qint32>(0x800C0005u);
constexpr qint32 resultDownloadFailure = static_cast<qint32>(0x800C0008u);

constexpr int SilenceMs = 15000; ///< without a connection or new data
constexpr int MostRedirects = 5;
constexpr qint64 BufferBytes = 65536;
constexpr int GraceMs = 1000; ///< for the end of a transfer that was broken off

struct Job {
    QUrl url;
    QString path;
    DownloadLimits limits;
    Reach reach;
    std::atomic<qint32> result{Platform::DownloadRefused};
};

bool mayAsk(const Job &job, const QUrl &url)
{
    const bool here = isThisPc(url);
    if (job.reach == Reach::ThisPc && !here)
        return false;
    // Others could change what comes by plain http, so it is allowed only within this PC.
    const bool plain = isThisPc(job.url) && (!job.limits.onlyHttps || job.reach == Reach::ThisPc);
    return url.scheme() == QLatin1String("https") || (url.scheme() == QLatin1String("http") && here && plain);
}

/// Not a QSaveFile: its file has no known name until the end, but the progress bar watches the file grow.
bool replace(QFile *partial, const QString &path)
{
    partial->close();
    QFile::remove(path);
    return partial->error() == QFileDevice::NoError && partial->rename(path);
}

qint64 announced(const QNetworkReply &reply)
{
    const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
    return length.isValid() ? length.toLongLong() : -1;
}

/// Qt takes an answer that ends right after its headers for complete.
bool isWhole(const QNetworkReply &reply, qint64 size)
{
    return announced(reply) < 0 || announced(reply) == size;
}

QNetworkRequest requestFor(const Job &job, qint64 begin)
{
    QNetworkRequest request(job.url);
    request.setTransferTimeout(std::min<int>(job.limits.milliseconds, SilenceMs));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(MostRedirects);
    // A compressed answer would announce another length than the file's.
    request.setRawHeader("Accept-Encoding", "identity");
    if (begin > 0)
        request.setRawHeader("Range", "bytes=" + QByteArray::number(begin) + '-');
    return request;
}

/// The bytes of the answers so far, in the file with ".part" behind its name.
class Part
{
public:
    explicit Part(const Job &job) : m_job(job), m_file(job.path + QLatin1String(".part")) {}

    bool open()
    {
        const QIODevice::OpenMode mode = m_job.limits.resumes ? QIODevice::Append : QIODevice::Truncate;
        const bool opened = m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered | mode);
        m_begin = m_file.size();
        return opened;
    }

    qint64 begin() const { return m_begin; }
    bool isComplete() const { return m_job.limits.resumes && m_begin == m_job.limits.bytes; }

    /// False if the answer is too long.
    bool take(QNetworkReply *reply)
    {
        const QByteArray bytes = reply->readAll();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (status < 200 || status > 299) {
            m_ignored += bytes.size(); // the text of an error, or of a redirection
            return m_ignored <= m_job.limits.bytes;
        }
        if (status != 206 && m_begin > 0) {
            m_begin = 0; // the server begins anew
            m_written = m_file.resize(0) && m_written;
        }
        const qint64 coming = announced(*reply) < 0 ? 0 : m_begin + announced(*reply);
        if (std::max(coming, m_file.size() + bytes.size()) > m_job.limits.bytes)
            return false;
        m_written = m_written && m_file.write(bytes) == bytes.size();
        return true;
    }

    /// The answer has ended well; null if nothing was asked, because all was there.
    qint32 finish(const QNetworkReply *reply)
    {
        const bool whole = m_written && (!reply || isWhole(*reply, m_file.size() - m_begin));
        return whole && replace(&m_file, m_job.path) ? 0 : breakOff(resultDownloadFailure);
    }

    qint32 breakOff(qint32 result)
    {
        if (!m_job.limits.resumes)
            m_file.remove();
        return result;
    }

    qint32 drop()
    {
        m_file.remove();
        return Platform::DownloadRefused;
    }

private:
    const Job &m_job;
    QFile m_file;
    qint64 m_begin = 0; ///< of the answer that is being taken
    qint64 m_ignored = 0;
    bool m_written = true;
};

qint32 load(const Job &job)
{
    Part part(job);
    if (!part.open())
        return resultDownloadFailure;
    if (part.isComplete())
        return part.finish(nullptr);
    QNetworkAccessManager manager;
    // A request to this PC must not go through a proxy.
    if (isThisPc(job.url))
        manager.setProxy(QNetworkProxy::NoProxy);
    QEventLoop loop;
    bool refused = false;
    bool late = false;
    const std::unique_ptr<QNetworkReply> reply(manager.get(requestFor(job, part.begin())));
    reply->setReadBufferSize(BufferBytes);
    const auto refuse = [&] {
        refused = true;
        loop.quit();
    };
    const auto take = [&] {
        if (!part.take(reply.get()))
            refuse();
    };
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
    QObject::connect(reply.get(), &QNetworkReply::metaDataChanged, &loop, take);
    QObject::connect(reply.get(), &QNetworkReply::redirected, &loop, [&](const QUrl &next) {
        if (mayAsk(job, next))
            emit reply->redirectAllowed();
        else
            refuse();
    });
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(job.limits.milliseconds, &loop, [&] {
        late = true;
        loop.quit();
    });
    if (!reply->isFinished())
        loop.exec();
    if (!refused && !late)
        take(); // what came before an error counts, too
    if (refused)
        return part.drop();
    if (late)
        return job.limits.resumes ? resultNotFound : part.drop();
    return reply->error() == QNetworkReply::NoError ? part.finish(reply.get())
                                                    : part.breakOff(resultNotFound);
}

} // namespace

bool isThisPc(const QUrl &url)
{
    return url.host() == QLatin1String("localhost") || QHostAddress(url.host()).isLoopback();
}

qint32 httpDownload(const QString &url, const QString &path, const DownloadLimits &limits, Reach reach)
{
    const auto job = std::make_shared<Job>();
    job->url = QUrl(url);
    job->path = path;
    job->limits = limits;
    job->reach = reach;
    if (!job->url.isValid() || job->url.host().isEmpty() || !mayAsk(*job, job->url) ||
        limits.milliseconds <= 0)
        return Platform::DownloadRefused;
    // The transfer needs an event loop. It gets a thread with one, so that the caller's handles no events
    // meanwhile.
    std::unique_ptr<QThread> worker(QThread::create([job] { job->result = load(*job); }));
    worker->start();
    // If the system itself hangs, for instance while it looks for a proxy, the thread is left behind.
    if (!worker->wait(QDeadlineTimer(qint64{limits.milliseconds} + GraceMs)))
        worker.release();
    return job->result;
}

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
    return url.scheme() == QLatin1String("https") ||
           (url.scheme() == QLatin1String("http") && here && isThisPc(job.url));
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

QNetworkRequest requestFor(const Job &job)
{
    QNetworkRequest request(job.url);
    request.setTransferTimeout(std::min<int>(job.limits.milliseconds, SilenceMs));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(MostRedirects);
    // A compressed answer would announce another length than the file's.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

qint32 load(const Job &job)
{
    QFile file(job.path + QLatin1String(".part"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        return resultDownloadFailure;
    QNetworkAccessManager manager;
    // A request to this PC must not go through a proxy.
    if (isThisPc(job.url))
        manager.setProxy(QNetworkProxy::NoProxy);
    QEventLoop loop;
    bool written = true;
    bool refused = false;
    const std::unique_ptr<QNetworkReply> reply(manager.get(requestFor(job)));
    reply->setReadBufferSize(BufferBytes);
    const auto refuse = [&] {
        refused = true;
        loop.quit();
    };
    const auto take = [&] {
        const QByteArray bytes = reply->readAll();
        if (std::max(announced(*reply), file.size() + bytes.size()) > job.limits.bytes)
            refuse();
        else
            written = written && file.write(bytes) == bytes.size();
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
    QTimer::singleShot(job.limits.milliseconds, &loop, refuse);
    if (!reply->isFinished())
        loop.exec();
    if (!refused && reply->error() == QNetworkReply::NoError)
        take();
    if (refused || reply->error() != QNetworkReply::NoError) {
        file.remove();
        return refused ? Platform::DownloadRefused : resultNotFound;
    }
    if (!written || !isWhole(*reply, file.size()) || !replace(&file, job.path)) {
        file.remove();
        return resultDownloadFailure;
    }
    return 0;
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

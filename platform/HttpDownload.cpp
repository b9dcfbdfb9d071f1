#include "platform/HttpDownload.h"

#include <QEventLoop>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QThread>
#include <QUrl>
#include <QVariant>

#include <memory>

namespace
{

constexpr qint32 resultInvalidUrl = static_cast<qint32>(0x800C0002u);
constexpr qint32 resultNotFound = static_cast<qint32>(0x800C0005u);
constexpr qint32 resultDownloadFailure = static_cast<qint32>(0x800C0008u);

/// Not a QSaveFile: that one has no name before its end, and who waits watches the file grow.
bool replace(QFile *partial, const QString &path)
{
    partial->close();
    QFile::remove(path);
    return partial->error() == QFileDevice::NoError && partial->rename(path);
}

/// The toolkit takes an answer that ends with its headers for complete.
bool isWhole(const QNetworkReply &reply, qint64 size)
{
    const QVariant announced = reply.header(QNetworkRequest::ContentLengthHeader);
    return !announced.isValid() || announced.toLongLong() == size;
}

qint32 load(const QUrl &url, const QString &path, int limitMs)
{
    QFile file(path + QLatin1String(".part"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        return resultDownloadFailure;
    }
    QNetworkRequest request(url);
    request.setTransferTimeout(limitMs);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    // Compressed, the announced length would be another one than that of the file.
    request.setRawHeader("Accept-Encoding", "identity");

    QNetworkAccessManager manager;
    QEventLoop loop;
    bool written = true;
    const std::unique_ptr<QNetworkReply> reply(manager.get(request));
    const auto take = [&] {
        const QByteArray bytes = reply->readAll();
        written = written && file.write(bytes) == bytes.size();
    };
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply->isFinished()) {
        loop.exec();
    }
    take();
    if (reply->error() != QNetworkReply::NoError) {
        file.remove();
        return resultNotFound;
    }
    if (!written || !isWhole(*reply, file.size()) || !replace(&file, path)) {
        file.remove();
        return resultDownloadFailure;
    }
    return 0;
}

} // namespace

qint32 httpDownload(const QString &url, const QString &path, int limitMs)
{
    const QUrl parsed(url);
    if (!parsed.isValid() || parsed.scheme().isEmpty()) {
        return resultInvalidUrl;
    }
    qint32 result = resultDownloadFailure;
    // A thread of its own has the event loop that the transfer needs; the caller's stays untouched.
    const std::unique_ptr<QThread> worker(QThread::create([&] { result = load(parsed, path, limitMs); }));
    worker->start();
    worker->wait();
    return result;
}
